// SPDX-License-Identifier: Apache-2.0

#include "ConversionCase.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::PdfProbe;

namespace {

const QString kOwner = u"owner"_s;
const QString kUser = u"user"_s;

/// What `qpdf --show-encryption` says about the PDF at `path` when opened with `password`.
QString encryptionOf(const QString &path, const QString &password) {
    return QString::fromUtf8(
        test::runTool(u"qpdf"_s, {u"--password="_s + password, u"--show-encryption"_s, path}).out);
}

} // namespace

/// What the passwords and permission boxes make of a PDF.
class ProtectionTest : public QObject, protected test::ConversionCase {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }

    void aUserPasswordAloneIsTheOwnersTooAndRefusesNothing() {
        addText("a.txt", "x");
        m_options.security = {true, kUser, false, kOwner, true, true};
        const QString file = convertTo(path("out/a.pdf")).close.path;
        QCOMPARE(PdfProbe(file).pageCount(), 0);
        const QString facts = encryptionOf(file, kUser);
        QVERIFY2(facts.contains(u"R = 6"_s), qPrintable(facts));
        QVERIFY2(facts.contains(u"Supplied password is owner password"_s), qPrintable(facts));
        QVERIFY2(facts.contains(u"Supplied password is user password"_s), qPrintable(facts));
        QVERIFY2(!facts.contains(u"not allowed"_s), qPrintable(facts));
    }

    void aTickedBoxRefusesItsPermission_data() {
        QTest::addColumn<bool>("print");
        QTest::addColumn<bool>("copy");
        QTest::newRow("none") << false << false;
        QTest::newRow("print") << true << false;
        QTest::newRow("copy") << false << true;
        QTest::newRow("both") << true << true;
    }

    void aTickedBoxRefusesItsPermission() {
        QFETCH(const bool, print);
        QFETCH(const bool, copy);
        addText("a.txt", "x");
        m_options.security = {true, kUser, true, kOwner, print, copy};
        const QString facts = encryptionOf(convertTo(path("out/a.pdf")).close.path, kUser);
        const auto isAllowed = [&facts](const char *what) {
            return facts.contains(QString::fromLatin1(what) + u": allowed"_s);
        };
        QCOMPARE(isAllowed("print low resolution"), !print);
        QCOMPARE(isAllowed("print high resolution"), !print);
        QCOMPARE(isAllowed("extract for any purpose"), !copy);
        QVERIFY2(isAllowed("modify annotations"), qPrintable(facts));
        QVERIFY(isAllowed("modify forms"));
        QVERIFY(isAllowed("modify document assembly"));
        QVERIFY(!facts.contains(u"Supplied password is owner password"_s));
    }

    void anOwnerPasswordAloneLetsEveryoneRead() {
        addText("a.txt", "x");
        m_options.security = {false, kUser, true, kOwner, false, true};
        const QString file = convertTo(path("out/a.pdf")).close.path;
        QCOMPARE(PdfProbe(file).pageCount(), 1);
        QVERIFY(encryptionOf(file, kOwner).contains(u"Supplied password is owner password"_s));
    }

    void noPasswordMeansNoEncryption() {
        QVERIFY(!encryptionFor({false, kUser, false, kOwner, true, true}));
    }
};

FOLIOFORGE_TEST(ProtectionTest)
#include "ProtectionTest.moc"
