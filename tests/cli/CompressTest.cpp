// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/PhotoPage.h"
#include "support/TestUnit.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// --compress with a resolution and a quality, and --compress-grey.
class CompressTest : public QObject, CommandLineCase {
    Q_OBJECT

    static constexpr int kWidthColumn = 3;
    static constexpr int kColorColumn = 5;

    /// Merges a photo of 1200 x 900 pixels, on a page of 576 x 432 points, into `target`.
    ToolRun mergePhoto(const char *target, const QStringList &options) const {
        const QString photo = path("photo.png");
        if (!QFile::exists(photo) && !test::photo(1200, 900).save(photo)) {
            qFatal("no photo");
        }
        return merge(target,
                     QStringList{u"--image-page-size=576x432"_s} + options + QStringList{photo});
    }

    /// The quality that ImageMagick tells of the JPEG of `pdf`.
    QString qualityOf(const char *pdf) const {
        runTool(u"pdfimages"_s, {u"-j"_s, path(pdf), path("image")});
        return QString::fromUtf8(
            runTool(u"identify"_s, {u"-format"_s, u"%Q"_s, path("image-000.jpg")}).out);
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void photosGetTheResolutionAndQualityThatAreGiven() {
        QCOMPARE(mergePhoto("small.pdf", {u"--compress=50:40"_s}).exitCode, 0);
        const PdfProbe small(path("small.pdf"));
        QCOMPARE(small.images()[0][kWidthColumn], u"400"_s); // 8 inches.
        QCOMPARE(qualityOf("small.pdf"), u"40"_s);
        QCOMPARE(mergePhoto("large.pdf", {u"--compress=100"_s}).exitCode, 0);
        QCOMPARE(PdfProbe(path("large.pdf")).images()[0][kWidthColumn], u"800"_s);
        QCOMPARE(qualityOf("large.pdf"), u"65"_s);
        QVERIFY(QFileInfo(path("small.pdf")).size() < QFileInfo(path("large.pdf")).size());
    }

    void theyLookAsTheyDid() {
        QCOMPARE(mergePhoto("whole.pdf", {}).exitCode, 0);
        QCOMPARE(mergePhoto("small.pdf", {u"--compress=100:80"_s}).exitCode, 0);
        for (const char *name : {"whole", "small"}) {
            const QByteArray file = QByteArray(name) + ".pdf";
            QCOMPARE(runTool(u"mutool"_s, {u"draw"_s, u"-q"_s, u"-r"_s, u"100"_s, u"-o"_s,
                                           path((QByteArray(name) + ".png").constData()),
                                           path(file.constData())})
                         .exitCode,
                     0);
        }
        const ToolRun run = runTool(u"compare"_s, {u"-metric"_s, u"PSNR"_s, path("whole.png"),
                                                   path("small.png"), u"null:"_s});
        // Version 7 gives it in two measures.
        QVERIFY2(run.err.split(' ').first().toDouble() > 30, run.err);
    }

    void greyTakesTheColoursOfPictures() {
        QCOMPARE(mergePhoto("grey.pdf", {u"--compress=96m"_s, u"--compress-grey"_s}).exitCode, 0);
        QCOMPARE(PdfProbe(path("grey.pdf")).images()[0][kColorColumn], u"gray"_s);
    }

    void whatCannotBeMeantIsRefusedInWords_data() {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("message");
        const auto refused = [](const QStringList &options, const char *message) {
            QTest::newRow(qPrintable(options.join(u' '))) << options << QByteArray(message);
        };
        refused({u"--compress=8"_s}, "--compress: \"8\" is no number from 9 to 2400");
        refused({u"--compress=2401"_s}, "--compress: \"2401\" is no number from 9 to 2400");
        refused({u"--compress=150:0"_s}, "--compress: \"0\" is no whole number from 1 to 100");
        refused({u"--compress=150:101"_s}, "--compress: \"101\" is no whole number from 1 to 100");
        refused({u"--compress=150:"_s}, "--compress: \"\" is no whole number from 1 to 100");
        refused({u"--compress=150:60:1"_s}, "--compress: \"150:60:1\" is none of none, 150m, 96m, "
                                            "72l and DPI:QUALITY, such as 120 or 120:70");
        refused({u"--compress=small"_s}, "--compress: \"small\" is none of none, 150m");
        refused({u"--compress-grey"_s}, "--compress-grey needs --compress");
        refused({u"--compress=none"_s, u"--compress-grey"_s}, "--compress-grey needs --compress");
    }

    void whatCannotBeMeantIsRefusedInWords() {
        QFETCH(const QStringList, options);
        QFETCH(const QByteArray, message);
        const ToolRun run = mergePhoto("none.pdf", options);
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains(message), run.err);
    }
};

FOLIOFORGE_TEST(CompressTest)
#include "CompressTest.moc"
