// SPDX-License-Identifier: Apache-2.0

#include "pdf/Password.h"

#include "error/Error.h"
#include "pdf/PDFContext.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::PdfProbe;
using test::runTool;

class PasswordTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString protectedFile(const Encryption &encryption) const {
        const QString path = m_folder.filePath(u"protected.pdf"_s);
        QFile::remove(path);
        PDFContext::Settings settings;
        settings.flush = Flush::Never;
        settings.info.title = u"Secret"_s;
        settings.encryption = std::make_unique<Encryption>(encryption);
        PDFContext context(path, std::move(settings));
        context.beginPage({0, 0, 100, 100});
        context.endPage();
        const CloseResult result = context.close();
        return result.status == CloseResult::Status::Written ? path : QString();
    }

  private Q_SLOTS:
    // The examples of RFC 4013, section 3.
    void passwordsAreMappedAndNormalized() {
        QCOMPARE(preparedPassword(u"I\u00ADX"_s), QByteArray("IX"));
        QCOMPARE(preparedPassword(u"user"_s), QByteArray("user"));
        QCOMPARE(preparedPassword(u"USER"_s), QByteArray("USER"));
        QCOMPARE(preparedPassword(u"\u00AA"_s), QByteArray("a"));
        QCOMPARE(preparedPassword(u"\u2168"_s), QByteArray("IX"));
    }

    void aCharacterMayBecomeMany() {
        QCOMPARE(preparedPassword(u"\uFDFA"_s),
                 u"\u0635\u0644\u0649 \u0627\u0644\u0644\u0647 \u0639\u0644\u064A\u0647 "
                 "\u0648\u0633\u0644\u0645"_s.toUtf8());
    }

    void forbiddenCharactersAreRefused() {
        QVERIFY(passwordProblem(u"\u0007"_s));
        QVERIFY(passwordProblem(u"\u0627\u0031"_s)); // a digit last, right to left
        QVERIFY(passwordProblem(u"a\u0750"_s));      // newer than Unicode 3.2, right to left
        QVERIFY(passwordProblem(QString(QChar(0xD800))));
        QVERIFY(passwordProblem(QString(1, QChar(u'\0'))));
        QVERIFY(passwordProblem(u"\u00AD"_s));
        QVERIFY_THROWS_EXCEPTION(Error, preparedPassword(u"\u0007"_s));
    }

    void theLimitIs127BytesOfUtf8() {
        QVERIFY(!passwordProblem(QString(127, u'a')));
        QVERIFY(passwordProblem(QString(128, u'a')));
        QVERIFY(!passwordProblem(QString(63, QChar(0xE9))));
        QVERIFY(passwordProblem(QString(64, QChar(0xE9))));
        QVERIFY(!passwordProblem(QString()));
    }

    /// What a reader that does not know SASLprep itself has to be given is `prepared`.
    void everyReaderOpensWithThePassword_data() {
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("prepared");
        const auto row = [](const char *name, const QString &password, const QString &prepared) {
            QTest::newRow(name) << password << prepared;
        };
        const auto same = [&row](const char *name, const QString &password) {
            row(name, password, password);
        };
        same("ASCII", u"open sesame"_s);
        same("blanks", u" open  sesame "_s);
        same("punctuation", u"\"'`$\\%&;|<>*?~!#(){}[]"_s);
        same("Latin", u"Gr\u00FC\u00DFe"_s);
        same("Greek", u"\u039A\u03C9\u03B4\u03B9\u03BA\u03CC\u03C2"_s);
        same("Cyrillic", u"\u041F\u0430\u0440\u043E\u043B\u044C"_s);
        same("Hebrew", u"\u05E1\u05D9\u05E1\u05DE\u05D4"_s);
        same("Arabic", u"\u0643\u0644\u0645\u0629"_s);
        same("Arabic around a digit", u"\u0643\u0644\u06F1\u0645\u0629"_s);
        same("Devanagari", u"\u092A\u093E\u0938\u0935\u0930\u094D\u0921"_s);
        same("Thai", u"\u0E23\u0E2B\u0E31\u0E2A"_s);
        same("Chinese", u"\u5BC6\u7801\u672C"_s);
        same("beyond the first plane", u"\U00020000\U00020001"_s);
        same("newer than Unicode 3.2", u"\u20BF\u1E9E"_s);
        same("emoji", u"\U0001F511\U0001F600"_s);
        same("longest", QString(127, u'x'));
        same("longest in two bytes", QString(63, QChar(0xE9)) + u'x');
        row("no-break space", u"a\u00A0b"_s, u"a b"_s);
        row("accent apart", u"cafe\u0301"_s, u"caf\u00E9"_s);
        row("accents in another order", u"a\u0308\u0323"_s, u"\u1EA1\u0308"_s);
        row("ligature", u"o\uFB03ce"_s, u"office"_s);
        row("full width", u"\uFF21\uFF22\uFF13"_s, u"AB3"_s);
        row("half-width kana", u"\uFF76\uFF9E"_s, u"\u30AC"_s);
        row("Hangul letters", u"\u1112\u1161\u11AB"_s, u"\uD55C"_s);
        row("superscript", u"x\u00B2"_s, u"x2"_s);
        row("mathematical letters", u"\U0001D49C\U0001D4B7"_s, u"Ab"_s);
        row("soft hyphen", u"I\u00ADX"_s, u"IX"_s);
        row("joiner", u"\U0001F469\u200D\U0001F680"_s, u"\U0001F469\U0001F680"_s);
    }
    void everyReaderOpensWithThePassword() {
        QFETCH(QString, password);
        QFETCH(QString, prepared);
        QCOMPARE(preparedPassword(password), prepared.toUtf8());
        const QString path = protectedFile({password, u"owner"_s, false, false});
        QVERIFY(!path.isEmpty());
        const PdfProbe probe(path, prepared);
        QString log;
        QVERIFY2(probe.isValid(&log), qPrintable(log));
        constexpr int kPopplerToolsLimit = 32;
        if (prepared.toUtf8().size() <= kPopplerToolsLimit) {
            QCOMPARE(probe.info(u"Title"_s), u"Secret"_s);
        }
        QVERIFY(
            runTool(u"mutool"_s, {u"info"_s, u"-p"_s, prepared, path}).out.contains("Pages: 1"));
        QVERIFY(!PdfProbe(path, u"wrong"_s).isValid());
        QVERIFY(!PdfProbe(path).isValid());
    }

    void onlyWhatIsRefusedIsRefused_data() {
        QTest::addColumn<bool>("refusePrint");
        QTest::addColumn<bool>("refuseCopy");
        QTest::addColumn<QString>("permissions");
        QTest::newRow("nothing") << false << false
                                 << u"print:yes copy:yes change:yes addNotes:yes "
                                    "algorithm:AES-256"_s;
        QTest::newRow("print") << true << false
                               << u"print:no copy:yes change:yes addNotes:yes "
                                  "algorithm:AES-256"_s;
        QTest::newRow("copy") << false << true
                              << u"print:yes copy:no change:yes addNotes:yes "
                                 "algorithm:AES-256"_s;
        QTest::newRow("both") << true << true
                              << u"print:no copy:no change:yes addNotes:yes "
                                 "algorithm:AES-256"_s;
    }
    void onlyWhatIsRefusedIsRefused() {
        QFETCH(bool, refusePrint);
        QFETCH(bool, refuseCopy);
        const QString path = protectedFile({u"u"_s, u"o"_s, refusePrint, refuseCopy});
        QFETCH(QString, permissions);
        const QString shown = PdfProbe(path, u"u"_s).info(u"Encrypted"_s);
        QVERIFY2(shown.contains(permissions), qPrintable(shown));
        const QByteArray details =
            runTool(u"qpdf"_s, {u"--password=u"_s, u"--show-encryption"_s, path}).out;
        QVERIFY(details.contains("R = 6"));
        QVERIFY(details.contains("modify forms: allowed"));
        QVERIFY(details.contains("extract for accessibility: allowed"));
        QVERIFY(details.contains("modify document assembly: allowed"));
        QVERIFY(details.contains(refusePrint ? "print low resolution: not allowed"
                                             : "print low resolution: allowed"));
        QVERIFY(details.contains(refusePrint ? "print high resolution: not allowed"
                                             : "print high resolution: allowed"));
    }

    void theOwnerPasswordAloneLeavesTheDocumentOpen() {
        const QString path = protectedFile({{}, u"owner"_s, true, true});
        QVERIFY(PdfProbe(path).isValid());
        QVERIFY(PdfProbe(path).info(u"Encrypted"_s).contains(u"print:no"_s));
        const QByteArray details = runTool(u"qpdf"_s, {u"--show-encryption"_s, path}).out;
        QVERIFY(details.contains("Supplied password is user password"));
        QVERIFY(!details.contains("Supplied password is owner password"));
    }

    void withoutAnOwnerPasswordNobodyIsOwnerByAnEmptyOne() {
        const QString path = protectedFile({u"user"_s, {}, false, false});
        QVERIFY(!PdfProbe(path).isValid());
        QVERIFY(PdfProbe(path, u"user"_s).isValid());
    }
};

FOLIOFORGE_TEST(PasswordTest)
#include "PasswordTest.moc"
