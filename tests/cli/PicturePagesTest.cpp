// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// The pages that pictures get by the options of the command line.
class PicturePagesTest : public QObject, CommandLineCase {
    Q_OBJECT

    /// A red picture that states no density.
    QString red(const char *name, int width, int height) const {
        const QByteArray binary = "P6 " + QByteArray::number(width) + ' ' +
                                  QByteArray::number(height) + " 255\n" +
                                  QByteArray("\xFF\0\0", 3).repeated(width * height);
        // Qt would write a density, and netpbm writes none.
        return writeFile(path(name), runTool(u"pnmtopng"_s, {}, binary).out);
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void aPaperLiesAsItsPictureDoes() {
        const ToolRun run =
            merge("both.pdf", {u"--image-page-size"_s, u"A4"_s, u"--image-orientation=auto"_s,
                               red("wide.png", 200, 100), red("tall.png", 10, 20)});
        QCOMPARE(run.exitCode, 0);
        const PdfProbe both(path("both.pdf"));
        QCOMPARE(both.box(u"MediaBox"_s, 1), QRectF(0, 0, 842, 595));
        QCOMPARE(both.box(u"MediaBox"_s, 2), QRectF(0, 0, 595, 842));
    }

    void aPictureThatFillsItsPageIsCutOffAtTheMargins() {
        const ToolRun run =
            merge("full.pdf", {u"--image-page-size=100x200"_s, u"--image-margins=10,20"_s,
                               u"--image-fit=fill"_s, red("wide.png", 200, 100)});
        QCOMPARE(run.exitCode, 0);
        for (const QImage &page : {PdfProbe(path("full.pdf")).render(1),
                                   PdfProbe(path("full.pdf")).renderWithMutool(1)}) {
            QCOMPARE(page.size(), QSize(100, 200));
            QCOMPARE(page.pixelColor(22, 12), QColor(Qt::red));
            QCOMPARE(page.pixelColor(77, 187), QColor(Qt::red));
            QCOMPARE(page.pixelColor(17, 100), QColor(Qt::white));
            QCOMPARE(page.pixelColor(50, 7), QColor(Qt::white));
        }
    }

    void aPictureOfUnknownDensityHasTheOneThatIsGiven() {
        const QString stating = writePng(path("stating.png"), 300, 600, 150);
        const ToolRun run =
            merge("dense.pdf", {u"--image-dpi=300"_s, red("silent.png", 300, 600), stating});
        QCOMPARE(run.exitCode, 0);
        const PdfProbe dense(path("dense.pdf"));
        QCOMPARE(dense.box(u"MediaBox"_s, 1), QRectF(0, 0, 72, 144));
        QCOMPARE(dense.box(u"MediaBox"_s, 2), QRectF(0, 0, 144, 288));
    }

    void eachFrameIsAPageWhereAllAreAskedFor() {
        const QString frames = path("frames.gif");
        runTool(u"convert"_s, {u"-size"_s, u"30x20"_s, u"xc:red"_s, u"xc:blue"_s, frames});
        const ToolRun run = merge("frames.pdf", {u"--image-pages=all"_s, frames});
        QCOMPARE(run.err, "");
        const PdfProbe pages(path("frames.pdf"));
        QCOMPARE(pages.pageCount(), 2);
        QCOMPARE(pages.render(1).pixelColor(15, 10), QColor(Qt::red));
        QCOMPARE(pages.render(2).pixelColor(15, 10), QColor(Qt::blue));
        const ToolRun first = merge("first.pdf", {u"--image-pages=first"_s, frames});
        QVERIFY(first.err.contains("1 further picture is left out"));
        QCOMPARE(PdfProbe(path("first.pdf")).pageCount(), 1);
    }

    void aRoundedLengthIsSaidOnce() {
        const QStringList asked{u"--text-margins=25mm"_s, text("a.txt")};
        QCOMPARE(convert(asked).err, "folioforge-cli: --text-margins: 25mm is 71 points\n");
        const ToolRun quiet = convert(asked + QStringList{u"--quiet"_s, u"--json"_s});
        QCOMPARE(quiet.err, "");
        QVERIFY2(quiet.out.contains("\"rounded\":[\"--text-margins: 25mm is 71 points\"]"),
                 quiet.out);
    }
};

FOLIOFORGE_TEST(PicturePagesTest)
#include "PicturePagesTest.moc"
