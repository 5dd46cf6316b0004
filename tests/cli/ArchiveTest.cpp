// SPDX-License-Identifier: Apache-2.0

#include "ArchiveCase.h"
#include "support/TestUnit.h"

#include <QImage>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// PDF/A of texts and pictures. The rules are looked at by tests/support/archive.
class ArchiveTest : public QObject, ArchiveCase {
    Q_OBJECT

    /// The largest difference of a sample between two pages as mutool draws them.
    static int differenceOf(const QString &one, const QString &other) {
        const QImage a = PdfProbe(one).renderWithMutool(1).convertToFormat(QImage::Format_RGB32);
        const QImage b = PdfProbe(other).renderWithMutool(1).convertToFormat(QImage::Format_RGB32);
        int largest = a.size() == b.size() && !a.isNull() ? 0 : 256;
        for (int y = 0; y < a.height() && largest < 256; ++y) {
            for (int x = 0; x < a.width(); ++x) {
                const QRgb p = a.pixel(x, y);
                const QRgb q = b.pixel(x, y);
                largest =
                    std::max({largest, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                              std::abs(qBlue(p) - qBlue(q))});
            }
        }
        return largest;
    }

    QByteArray streamOf(const QString &pdf, const QByteArray &reference) const {
        return runTool(u"qpdf"_s, {u"--show-object="_s + QString::fromLatin1(reference),
                                   u"--filtered-stream-data"_s, pdf})
            .out;
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void aPictureOfEachKindKeepsTheStandard_data() { levels(); }
    void aPictureOfEachKindKeepsTheStandard() {
        QFETCH(const QString, standard);
        const ToolRun run = convert(archive(standard) + pictures());
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(outputs().size(), pictures().size());
        QCOMPARE(faultsOf(standard, outputPaths()), QByteArray());
    }

    void allInOneKeepTheStandard_data() { levels(); }
    void allInOneKeepTheStandard() {
        QFETCH(const QString, standard);
        const QStringList arguments{
            u"--bookmarks"_s, u"both"_s,     u"--title"_s,    u"A < B & \"ö\" \u0001\uFFFE"_s,
            u"--author"_s,    u"One, Two"_s, u"--keywords"_s, u" k "_s};
        QCOMPARE(
            merge("all.pdf", archive(standard) + arguments + QStringList(scripts()) + pictures())
                .exitCode,
            0);
        QCOMPARE(faultsOf(standard, {path("all.pdf")}), QByteArray());
        QVERIFY(PdfProbe(path("all.pdf")).isValid());
    }

    void textInEachLayoutKeepsTheStandard_data() { levels(); }
    void textInEachLayoutKeepsTheStandard() {
        QFETCH(const QString, standard);
        QCOMPARE(merge("plain.pdf", archive(standard) + QStringList(scripts())).exitCode, 0);
        QCOMPARE(
            merge("readable.pdf",
                  archive(standard) + QStringList{u"--text-layout"_s, u"readable"_s, u"--header"_s,
                                                  u"{file} {page}/{pages} \uE000"_s, scripts()})
                .exitCode,
            0);
        QCOMPARE(faultsOf(standard, {path("plain.pdf"), path("readable.pdf")}), QByteArray());
    }

    void aNameKeyedFontKeepsTheStandard_data() { levels(); }
    void aNameKeyedFontKeepsTheStandard() {
        QFETCH(const QString, standard);
        const QString family = u"Latin Modern Roman"_s;
        const auto found =
            runTool(u"fc-match"_s, {u"-f"_s, u"%{family[0]}|%{fontformat}"_s, family});
        QCOMPARE(QString::fromUtf8(found.out), family + u"|CFF"_s);
        QCOMPARE(merge("cff.pdf", archive(standard) +
                                      QStringList{u"--text-layout"_s, u"readable"_s, u"--font"_s,
                                                  family, text("a.txt", "Hamburgefonstiv 12")})
                     .exitCode,
                 0);
        QCOMPARE(faultsOf(standard, {path("cff.pdf")}), QByteArray());
    }

    void aCompressedDocumentKeepsTheStandard_data() { levels(); }
    void aCompressedDocumentKeepsTheStandard() {
        QFETCH(const QString, standard);
        for (const QStringList &grey : {QStringList(), QStringList(u"--compress-grey"_s)}) {
            QCOMPARE(merge("small.pdf", archive(standard) +
                                            QStringList{u"--overwrite"_s, u"always"_s,
                                                        u"--compress"_s, u"72l"_s} +
                                            grey + QStringList(scripts()) + pictures())
                         .exitCode,
                     0);
            QCOMPARE(faultsOf(standard, {path("small.pdf")}), QByteArray());
        }
    }

    void whatIsNotAskedForIsJudgedOtherwise() {
        QCOMPARE(convert({text("a.txt")}).exitCode, 0);
        QVERIFY(faultsOf(u"2u"_s, outputPaths()).contains("6.6.2.1-1"));
        QVERIFY(faultsOf(u"1b"_s, outputPaths()).contains("6.3.5-3"));
    }

    void opacityIsLaidOnWhiteInPart1() {
        QStringList translucent;
        for (const QString &file : pictures()) {
            if (file.contains(u"translucent")) {
                translucent += file;
            }
        }
        QCOMPARE(translucent.size(), 10);
        for (const QString &file : translucent) {
            merge("usual.pdf", {u"--overwrite"_s, u"always"_s, file});
            const ToolRun run = merge(
                "white.pdf", archive(u"1b"_s) + QStringList{u"--overwrite"_s, u"always"_s, file});
            QVERIFY(run.err.contains("laid on white"));
            QVERIFY2(differenceOf(path("usual.pdf"), path("white.pdf")) <= 2, qPrintable(file));
        }
    }

    void pixelsBehindAPaletteHaveItsLastColor() {
        // Two bits a pixel, three colours, the first transparent; the pixels are 0, 1, 2 and 3.
        const QByteArray png =
            QByteArray::fromBase64("iVBORw0KGgoAAAANSUhEUgAAAAQAAAABAgMAAACEUudeAAAACVBMVEX/AAAA/"
                                   "wAAAP8tSs2KAAAAAXRSTlMAQObYZgAAAApJ"
                                   "REFUeJxjkAYAAB0AHI709SEAAAAASUVORK5CYII=");
        const QString file = writeFile(path("p.png"), png);
        merge("white.pdf",
              archive(u"1b"_s) + QStringList{u"--image-page-size"_s, u"400x100"_s, file});
        const QImage page = PdfProbe(path("white.pdf")).render(1);
        QCOMPARE(page.pixelColor(50, 50), QColor(255, 255, 255));
        QCOMPARE(page.pixelColor(150, 50), QColor(0, 255, 0));
        QCOMPARE(page.pixelColor(250, 50), QColor(0, 0, 255));
        QCOMPARE(page.pixelColor(350, 50), QColor(0, 0, 255));
    }

    void sixteenBitsBecomeEightInPart1() {
        for (const QString &file :
             {u"deep.png"_s, u"deep.tif"_s, u"deep.psd"_s, u"deep-bigendian.tif"_s}) {
            const QString picture = inSource(u"tests/data/image/"_s + file);
            merge("usual.pdf", {u"--overwrite"_s, u"always"_s, picture});
            merge("old.pdf",
                  archive(u"1b"_s) + QStringList{u"--overwrite"_s, u"always"_s, picture});
            QCOMPARE(PdfProbe(path("old.pdf")).images().first().at(7), u"8"_s);
            QVERIFY2(differenceOf(path("usual.pdf"), path("old.pdf")) <= 1, qPrintable(file));
        }
        merge("new.pdf", archive(u"2u"_s) + QStringList(inSource(u"tests/data/image/deep.png"_s)));
        QCOMPARE(PdfProbe(path("new.pdf")).images().first().at(7), u"16"_s);
    }

    void jpeg2000StaysWhereItMayBe() {
        const QString picture = inSource(u"tests/data/image/colour.jp2"_s);
        merge("old.pdf", archive(u"1b"_s) + QStringList(picture));
        merge("new.pdf", archive(u"2u"_s) + QStringList(picture));
        QCOMPARE(PdfProbe(path("old.pdf")).images().first().at(8), u"image"_s);
        QCOMPARE(PdfProbe(path("new.pdf")).images().first().at(8), u"jpx"_s);
        QVERIFY(differenceOf(path("old.pdf"), path("new.pdf")) <= 1);
    }

    void aNewProfileBecomesAnOldOneOfTheSameColors() {
        const QString picture = inSource(u"tests/data/image/wide.avif"_s);
        merge("old.pdf", archive(u"1b"_s) + QStringList(picture));
        merge("new.pdf", archive(u"2u"_s) + QStringList(picture));
        QCOMPARE(faultsOf(u"1b"_s, {path("old.pdf")}), QByteArray());
        QVERIFY(differenceOf(path("old.pdf"), path("new.pdf")) <= 1);
    }

    void theOutputIntentIsSrgb() {
        merge("a.pdf", archive(u"2u"_s) + QStringList(text("a.txt")));
        runTool(u"qpdf"_s,
                {u"--qdf"_s, u"--object-streams=disable"_s, path("a.pdf"), path("qdf.pdf")});
        const QByteArray pdf = readFile(path("qdf.pdf"));
        const qsizetype at = pdf.indexOf("/DestOutputProfile ");
        const QByteArray reference = pdf.mid(at + 19, 12).split(' ').first();
        writeFile(path("srgb.icc"), streamOf(path("qdf.pdf"), reference));
        const ToolRun compared = runTool(
            python(),
            {u"-c"_s,
             u"import sys\n"
             "from PIL import Image, ImageCms\n"
             "image = Image.new('RGB', (17, 289))\n"
             "image.putdata([(r * 15, g * 15, b * 15) for r in range(17) for g in range(17) for b "
             "in range(17)])\n"
             "to = ImageCms.profileToProfile(image, sys.argv[1], ImageCms.createProfile('sRGB'))\n"
             "print(max(abs(a - b) for a, b in zip(image.tobytes(), to.tobytes())))\n"_s,
             path("srgb.icc")});
        QCOMPARE(compared.err, QByteArray());
        QVERIFY2(compared.out.trimmed().toInt() <= 1, compared.out);
    }

    void whatNoFontHasIsReadAsItIs() {
        merge("a.pdf",
              archive(u"2u"_s) + QStringList(text("a.txt", u"x\uE000y\u0378z\n"_s.toUtf8())));
        QCOMPARE(linesOf(PdfProbe(path("a.pdf"))), QStringList(u"x\uE000y\u0378z"_s));
    }

    void inksWithoutAProfileAreRefusedByName() {
        const QString ink = inSource(u"tests/data/image/ink.jpg"_s);
        const ToolRun run =
            merge("a.pdf", {u"--archive"_s, u"pdfa-2u"_s, u"--json"_s, text("a.txt"), ink});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(
            member(objectsOf(run.out).at(1), "message"),
            u"It cannot go into a document that is PDF/A-2u, since its colours are inks without a profile, and none is given"_s);
        QCOMPARE(member(objectsOf(run.out).at(0), "archive"), u"PDF/A-2u"_s);
        QCOMPARE(faultsOf(u"2u"_s, {path("a.pdf")}), QByteArray());
    }

    void withAFallbackTheClaimIsNotMade() {
        const QString ink = inSource(u"tests/data/image/ink.jpg"_s);
        const ToolRun run = merge("a.pdf", {u"--archive"_s, u"pdfa-2u"_s, u"--archive-fallback"_s,
                                            u"--json"_s, text("a.txt"), ink});
        QCOMPARE(run.exitCode, 0);
        const QList<QJsonObject> inputs = objectsOf(run.out);
        QVERIFY(!inputs.at(0).contains(u"archive"));
        QCOMPARE(inputs.at(1)["warnings"_L1][0]["code"_L1].toString(), u"claim-missing"_s);
        QVERIFY(!readFile(path("a.pdf")).contains("pdfaid"));
    }

    void anEntryThatFailsTakesNoClaimAway() {
        // The second page is damaged beyond reading, after the first made the claim impossible.
        QByteArray broken = readFile(inSource(u"tests/data/image/ink.jpg"_s)).first(300);
        const ToolRun run =
            merge("a.pdf", {u"--archive"_s, u"pdfa-2u"_s, u"--archive-fallback"_s, u"--json"_s,
                            text("a.txt"), writeFile(path("b.jpg"), broken)});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(member(objectsOf(run.out).at(0), "archive"), u"PDF/A-2u"_s);
    }

    void aSourceThatBreaksTheStandardAndFailsTakesNoClaimAway() {
        const ToolRun run = merge("a.pdf", {u"--archive"_s, u"pdfa-2a"_s, u"--archive-fallback"_s,
                                            u"--accessible"_s, u"--json"_s, text("a.txt"),
                                            writePdf(path("plain.pdf"), 1)});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(member(objectsOf(run.out).at(1), "message").contains(u"no structure tags"));
        QCOMPARE(member(objectsOf(run.out).at(0), "archive"), u"PDF/A-2a"_s);
        QVERIFY(readFile(path("a.pdf")).contains("pdfaid"));
    }

    void aPageBeyondTheLimitsIsRefused_data() {
        QTest::addColumn<QString>("standard");
        QTest::addColumn<int>("pixels");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("part 2, largest") << u"2u"_s << 14400 << 0;
        QTest::newRow("part 2, larger") << u"2u"_s << 14401 << 1;
        QTest::newRow("part 2, smaller") << u"2u"_s << 2 << 1;
        QTest::newRow("part 1") << u"1b"_s << 14401 << 0;
        QTest::newRow("part 1, larger") << u"1b"_s << 32768 << 1;
    }
    void aPageBeyondTheLimitsIsRefused() {
        QFETCH(const QString, standard);
        QFETCH(const int, pixels);
        const QString picture = writePng(path("long.png"), pixels, 3);
        QTEST(merge("a.pdf", archive(standard) + QStringList(picture)).exitCode, "exitCode");
    }

    void whatDoesNotGoTogetherIsWrongUsage_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("fallback alone") << QStringList{u"--archive-fallback"_s};
        QTest::newRow("profile alone") << QStringList{u"--cmyk-profile"_s, u"x"_s};
        QTest::newRow("sources alone") << QStringList{u"--embed-sources"_s};
        QTest::newRow("sources in part 2")
            << QStringList{u"--archive"_s, u"pdfa-2u"_s, u"--embed-sources"_s};
        QTest::newRow("no profile")
            << QStringList{u"--archive"_s, u"pdfa-2u"_s, u"--cmyk-profile"_s, u"/dev/null"_s};
        QTest::newRow("endless profile")
            << QStringList{u"--archive"_s, u"pdfa-2u"_s, u"--cmyk-profile"_s, u"/dev/zero"_s};
        QTest::newRow("no standard") << QStringList{u"--archive"_s, u"pdfa-4"_s};
    }
    void whatDoesNotGoTogetherIsWrongUsage() {
        QFETCH(const QStringList, arguments);
        const ToolRun run = convert(arguments + QStringList(text("a.txt")));
        QCOMPARE(run.exitCode, 2);
        QVERIFY(outputs().isEmpty());
    }

    void aPropertyBeyondTheLimitIsRefused() {
        const QString longest(16382, u'ö');
        QCOMPARE(
            merge("a.pdf", archive(u"2u"_s) + QStringList{u"--title"_s, longest, text("a.txt")})
                .exitCode,
            0);
        QCOMPARE(faultsOf(u"2u"_s, {path("a.pdf")}), QByteArray());
        const ToolRun run = merge(
            "b.pdf", archive(u"2u"_s) + QStringList{u"--title"_s, longest + u'ö', text("a.txt")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.contains("longer than PDF/A-2u allows"));
    }

    void thousandsOfGlyphsOfAFontAreAllStated() {
        QString text;
        for (int i = 0; i < 5000; ++i) {
            text += QChar(0x4E00 + i * 7919 % 5003);
            text += i % 40 == 39 ? u"\n"_s : QString();
        }
        merge("a.pdf", archive(u"1b"_s) + QStringList(this->text("a.txt", text.toUtf8())));
        QCOMPARE(faultsOf(u"1b"_s, {path("a.pdf")}), QByteArray());
    }

    void passwordsAreWrongUsage() {
        const QString password = text("secret", "word");
        const ToolRun run = convert(
            archive(u"2u"_s) + QStringList{u"--user-password-file"_s, password, text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.contains("not encrypted"));
    }
};

FOLIOFORGE_TEST(ArchiveTest)
#include "ArchiveTest.moc"
