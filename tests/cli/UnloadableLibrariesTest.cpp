// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge::test;

/// Libraries of pictures that are loaded when they are needed, and cannot be.
class UnloadableLibrariesTest : public QObject, CommandLineCase {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }

    void theirPicturesFailAndOthersAreConverted_data() {
        QTest::addColumn<QString>("picture");
        QTest::addColumn<QString>("words");
        QTest::newRow("libheif") << u"wide.avif"_s
                                 << u"HEIC and AVIF files are read by libheif 1"_s;
        QTest::newRow("libjxl") << u"colour.jxl"_s
                                << u"JPEG XL files are read by libjxl 0\\.\\d+"_s;
    }
    void theirPicturesFailAndOthersAreConverted() {
        QFETCH(const QString, picture);
        QFETCH(const QString, words);
        text("libheif.so.1", "no library");
        for (int minor = 7; minor < 30; ++minor) {
            text("libjxl.so.0." + QByteArray::number(minor), "no library");
        }
        text("a.txt");
        const ToolRun run = shell("LD_LIBRARY_PATH=. folioforge-cli --merge out.pdf a.txt '" +
                                  inSource(u"tests/data/image/"_s + picture).toUtf8() + '\'');
        QCOMPARE(run.exitCode, 1);
        // The loader's own words, which older Qt puts in brackets.
        const QRegularExpression said(
            QRegularExpression::escape(picture) + u": "_s + words +
            u", which cannot be loaded: [^\n]*lib\\w+\\.so\\.[\\d.]+: file too short\\)?\n"_s);
        QVERIFY2(QString::fromUtf8(run.err).contains(said), run.err.constData());
        QCOMPARE(PdfProbe(path("out.pdf")).pageCount(), 1);
    }
};

FOLIOFORGE_TEST(UnloadableLibrariesTest)
#include "UnloadableLibrariesTest.moc"
