// SPDX-License-Identifier: Apache-2.0

#include "pdf/PDFContext.h"

#include "ContextCase.h"
#include "support/PdfProbe.h"
#include "support/PhotoPage.h"
#include "support/TestUnit.h"
#include "text/FontCascade.h"

#include <QTest>

#include <sys/resource.h>
#include <zlib.h>

#include <array>
#include <cmath>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// A grey row of two pixels.
PdfImage rowOfTwo(const QByteArray &samples, int bits) {
    PdfImage image;
    image.width = 2;
    image.height = 1;
    image.bitsPerComponent = bits;
    // QByteArray::mid(4) leaves out the length that qCompress() puts first.
    image.data = qCompress(samples).mid(4);
    return image;
}

bool isNear(const QColor &shown, const QColor &wanted) {
    constexpr int kTolerance = 12;
    return std::abs(shown.red() - wanted.red()) <= kTolerance &&
           std::abs(shown.green() - wanted.green()) <= kTolerance &&
           std::abs(shown.blue() - wanted.blue()) <= kTolerance;
}

} // namespace

/// What is drawn on pages.
class PDFContextTest : public QObject, protected ContextCase {
    Q_OBJECT

  private Q_SLOTS:
    void drawsAnImageIntoItsRectangle() {
        const QString path = file(u"image.pdf"_s);
        const auto result = writeImages(path, {jpeg(u"a.jpg"_s)});
        QVERIFY2(result.status == CloseResult::Status::Written, qPrintable(result.reason));
        const PdfProbe probe(path);
        QString log;
        QVERIFY2(probe.isValid(&log), qPrintable(log));
        QCOMPARE(probe.pageCount(), 1);
        QCOMPARE(probe.box(u"MediaBox"_s, 1), QRectF(0, 0, 100, 50));
        const QImage page = probe.render(1);
        QVERIFY(page.pixelColor(10, 10).red() > 200);
        QVERIFY(page.pixelColor(10, 40).blue() > 200);
        QVERIFY(page.pixelColor(90, 10).green() > 200);
    }

    void imagesOfOnePageStandEachInItsRectangle() {
        QImage green(64, 64, QImage::Format_RGB32);
        green.fill(Qt::green);
        QVERIFY(green.save(file(u"green.jpg"_s), "JPEG", 95));
        const QString path = newFile(u"pdf"_s);
        PDFContext context(path, settings());
        context.beginPage({0, 0, 100, 50});
        context.drawImage({0, 0, 50, 50}, jpegInPlace(jpeg(u"quarters.jpg"_s)), 1);
        context.drawImage({50, 0, 50, 50}, jpegInPlace(file(u"green.jpg"_s)), 1);
        context.endPage();
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        const QImage page = PdfProbe(path).render(1);
        QVERIFY(page.pixelColor(10, 10).red() > 200);
        QVERIFY(page.pixelColor(10, 40).blue() > 200);
        QVERIFY(page.pixelColor(60, 10).green() > 200 && page.pixelColor(60, 10).red() < 50);
        QVERIFY(page.pixelColor(90, 40).green() > 200 && page.pixelColor(90, 40).blue() < 50);
    }

    void aPageMayBeginAnywhere() {
        const QString path = newFile(u"pdf"_s);
        PDFContext context(path, settings());
        // Two boxes of one size, for boxes that repeat are shared.
        for (const QRectF &box : {QRectF(10, 20, 100, 50), QRectF(-5, 0, 100, 50)}) {
            context.beginPage(box);
            context.endPage();
        }
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        QCOMPARE(PdfProbe(path).box(u"MediaBox"_s, 1), QRectF(10, 20, 100, 50));
        QCOMPARE(PdfProbe(path).box(u"MediaBox"_s, 2), QRectF(-5, 0, 100, 50));
    }

    void rowsOfAnyDistanceStandWhereTheyArePut() {
        const QString path = newFile(u"pdf"_s);
        const auto font = FontCascade::load({u"Liberation Sans"_s}, 14);
        const std::array glyphs{font->glyph(U'W')};
        // Steps of 20, of 20 again, of 3, of 3 upwards and of nearly the height of a row,
        // 16.1, down and up.
        // Newer mutool takes a letter that stands where the same stood for its bold.
        const QList<QPointF> places{{10, 150}, {10, 130}, {10, 110}, {10, 107},
                                    {40, 110}, {60, 94},  {60, 110}};
        PDFContext context(path, settings());
        context.setFont(font, 14);
        context.beginPage({0, 0, 100, 200});
        for (const QPointF &place : places) {
            context.showGlyphsAtPoint(place.x(), place.y(), glyphs);
        }
        context.endPage();
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        const QList<QPointF> origins = PdfProbe(path).characterOrigins(1);
        QCOMPARE(origins.size(), places.size());
        for (qsizetype i = 0; i < places.size(); ++i) {
            QVERIFY(std::abs(origins[i].x() - places[i].x()) < 0.01);
            QVERIFY(std::abs(origins[i].y() - (200 - places[i].y())) < 0.01);
        }
    }

    void textHasTheColorOfItsPage() {
        const QString path = newFile(u"pdf"_s);
        const auto font = FontCascade::load({u"Liberation Sans"_s}, 40);
        const std::array glyphs{font->glyph(U'W')};
        PDFContext context(path, settings());
        context.setFont(font, 40);
        for (const double red : {1.0, 1.0, 0.0}) { // A page begins with black.
            context.beginPage({0, 0, 100, 50});
            if (red > 0) {
                context.setRGBFillColor(red, 0, 0);
            }
            context.showGlyphsAtPoint(10, 10, glyphs);
            context.endPage();
        }
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        const auto holds = [&path](int number, const QColor &color) {
            const QImage page = PdfProbe(path).render(number);
            for (int i = 0; i < page.width() * page.height(); ++i) {
                if (page.pixelColor(i % page.width(), i / page.width()) == color) {
                    return true;
                }
            }
            return false;
        };
        QVERIFY(holds(1, Qt::red) && !holds(1, Qt::black));
        QVERIFY(holds(2, Qt::red) && !holds(2, Qt::black));
        QVERIFY(holds(3, Qt::black) && !holds(3, Qt::red));
    }

    void copiesTheBytesOfAJpegAsTheyAre_data() {
        QTest::addColumn<int>("side");
        QTest::newRow("small") << 64;
        QTest::newRow("of more than one piece") << 1500;
    }
    void copiesTheBytesOfAJpegAsTheyAre() {
        QFETCH(const int, side);
        const QString source = file(u"own.jpg"_s);
        QVERIFY(photo(side, side).save(source, "JPEG", 95));
        QCOMPARE(QFileInfo(source).size() > (1 << 19), side > 1000);
        const QString path = file(u"own%1.pdf"_s.arg(side));
        const CloseResult result = writeImages(path, {source, jpeg(u"next.jpg"_s)});
        QCOMPARE(result.status, CloseResult::Status::Written);
        const QByteArray written = readFile(path);
        QVERIFY(written.contains(readFile(source)));
        const PdfProbe probe(path);
        QString log;
        QVERIFY2(probe.isValid(&log), qPrintable(log)); // All stands where it is said to.
        QCOMPARE(m_checksum, crc32(0, reinterpret_cast<const Bytef *>(written.constData()),
                                   static_cast<uInt>(written.size())));
    }

    void aLargePictureThatChangesBeforeItIsWrittenFailsTheDocument() {
        const QString source = file(u"changing.jpg"_s);
        QVERIFY(photo(1500, 1500).save(source, "JPEG", 95));
        const QString path = newFile(u"pdf"_s);
        PDFContext context(path, settings());
        context.beginPage({0, 0, 100, 50});
        context.drawImage({0, 0, 100, 50}, jpegInPlace(source), 1);
        context.endPage();
        QVERIFY(QFile(source).resize(QFileInfo(source).size() - 1));
        const CloseResult result = context.close();
        QCOMPARE(result.status, CloseResult::Status::Failed);
        QVERIFY2(result.reason.contains(u"was changed"_s), qPrintable(result.reason));
        QVERIFY(!QFile::exists(path));
    }

    void takesOverThePagesOfAnotherDocument() {
        const QString first = file(u"first.pdf"_s);
        writeImages(first, {jpeg(u"b.jpg"_s), jpeg(u"c.jpg"_s)});
        const QString path = file(u"merged.pdf"_s);
        PDFContext context(path, settings());
        QCOMPARE(context.addDocument(first).pages, 2);
        QCOMPARE(context.addDocument(first).pages, 2);
        QCOMPARE(context.pageCount(), 4);
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        const PdfProbe probe(path);
        QString log;
        QVERIFY2(probe.isValid(&log), qPrintable(log));
        QCOMPARE(probe.pageCount(), 4);
        QVERIFY(probe.render(4).pixelColor(10, 10).red() > 200);
    }

    void everyOrientationShowsThePictureUpright_data() {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QTransform>("stored"); // turns the picture into what the file stores
        QTest::newRow("1") << 1 << QTransform();
        QTest::newRow("2") << 2 << QTransform(-1, 0, 0, 1, 0, 0);
        QTest::newRow("3") << 3 << QTransform(-1, 0, 0, -1, 0, 0);
        QTest::newRow("4") << 4 << QTransform(1, 0, 0, -1, 0, 0);
        QTest::newRow("5") << 5 << QTransform(0, 1, 1, 0, 0, 0);
        QTest::newRow("6") << 6 << QTransform(0, -1, 1, 0, 0, 0);
        QTest::newRow("7") << 7 << QTransform(0, -1, -1, 0, 0, 0);
        QTest::newRow("8") << 8 << QTransform(0, 1, -1, 0, 0, 0);
    }
    void everyOrientationShowsThePictureUpright() {
        QFETCH(int, orientation);
        QFETCH(QTransform, stored);
        const QString source = newFile(u"jpg"_s);
        QVERIFY(quarters(64).transformed(stored).save(source, "JPEG", 95));
        const QString path = newFile(u"pdf"_s);
        PDFContext context(path, settings());
        context.beginPage({0, 0, 80, 80});
        context.drawImage({0, 0, 80, 80}, jpegInPlace(source), orientation);
        context.endPage();
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        const QImage page = PdfProbe(path).render(1);
        QVERIFY(isNear(page.pixelColor(15, 15), Qt::red));
        QVERIFY(isNear(page.pixelColor(65, 15), Qt::green));
        QVERIFY(isNear(page.pixelColor(15, 65), Qt::blue));
        QVERIFY(isNear(page.pixelColor(65, 65), Qt::white));
    }

    void anImageUsedTwiceIsEmbeddedOnce() {
        const QString source = jpeg(u"twice.jpg"_s);
        const QString path = newFile(u"pdf"_s);
        writeImages(path, {source, source});
        const QList<QStringList> images = PdfProbe(path).images();
        QCOMPARE(images.size(), 2);
        constexpr int kObjectColumn = 10;
        QCOMPARE(images[0][kObjectColumn], images[1][kObjectColumn]);
    }

    void samplesAreShownInTheirColors_data() {
        QTest::addColumn<int>("color");
        QTest::addColumn<int>("bits");
        QTest::addColumn<QByteArray>("samples"); // one row of two pixels
        QTest::addColumn<QByteArray>("palette");
        QTest::addColumn<QColor>("left");
        QTest::addColumn<QColor>("right");
        const auto hex = [](const char *text) { return QByteArray::fromHex(text); };
        QTest::newRow("grey") << int(ImageColor::Gray) << 8 << hex("40c0") << QByteArray()
                              << QColor(0x40, 0x40, 0x40) << QColor(0xC0, 0xC0, 0xC0);
        QTest::newRow("bilevel") << int(ImageColor::Gray) << 1 << hex("40") << QByteArray()
                                 << QColor(Qt::black) << QColor(Qt::white);
        QTest::newRow("16 bits") << int(ImageColor::Gray) << 16 << hex("4000c000") << QByteArray()
                                 << QColor(0x40, 0x40, 0x40) << QColor(0xC0, 0xC0, 0xC0);
        QTest::newRow("rgb") << int(ImageColor::Rgb) << 8 << hex("ff000000ff00") << QByteArray()
                             << QColor(Qt::red) << QColor(Qt::green);
        QTest::newRow("indexed") << int(ImageColor::Indexed) << 4 << hex("10")
                                 << hex("0000ff00ff00") << QColor(Qt::green) << QColor(Qt::blue);
        QTest::newRow("lab") << int(ImageColor::Lab) << 8 << hex("008080ff8080") << QByteArray()
                             << QColor(Qt::black) << QColor(Qt::white);
    }
    void samplesAreShownInTheirColors() {
        QFETCH(int, color);
        QFETCH(int, bits);
        QFETCH(QByteArray, samples);
        QFETCH(QByteArray, palette);
        PdfImage image = rowOfTwo(samples, bits);
        image.color = static_cast<ImageColor>(color);
        image.palette = palette;
        const QString path = newFile(u"pdf"_s);
        PDFContext context(path, settings());
        context.beginPage({0, 0, 40, 20});
        context.drawImage({0, 0, 40, 20}, std::move(image), 1);
        context.endPage();
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        QString log;
        QVERIFY2(PdfProbe(path).isValid(&log), qPrintable(log));
        QList<QImage> pages{PdfProbe(path).render(1)};
        if (color != static_cast<int>(ImageColor::Lab)) {
            // MuPDF 1.21 shows Lab images in wrong colours.
            pages += PdfProbe(path).renderWithMutool(1);
        }
        for (const QImage &page : pages) {
            QFETCH(QColor, left);
            QFETCH(QColor, right);
            const QString shown = page.pixelColor(5, 10).name() + page.pixelColor(35, 10).name();
            QVERIFY2(isNear(page.pixelColor(5, 10), left), qPrintable(shown));
            QVERIFY2(isNear(page.pixelColor(35, 10), right), qPrintable(shown));
        }
    }

    void aSoftMaskLetsThePageShow() {
        PdfImage image;
        image.width = 2;
        image.height = 1;
        image.data = qCompress(QByteArray::fromHex("ff0000ff0000")).mid(4);
        image.softMask = std::make_unique<PdfImage>();
        image.softMask->width = 2;
        image.softMask->height = 1;
        image.softMask->color = ImageColor::Gray;
        image.softMask->data = qCompress(QByteArray::fromHex("ff00")).mid(4);
        const QString path = newFile(u"pdf"_s);
        PDFContext context(path, settings());
        context.beginPage({0, 0, 40, 20});
        context.drawImage({0, 0, 40, 20}, std::move(image), 1);
        context.endPage();
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        const QImage page = PdfProbe(path).render(1);
        QVERIFY(isNear(page.pixelColor(5, 10), Qt::red));
        QVERIFY(isNear(page.pixelColor(35, 10), Qt::white));
    }

    void aProfileIsEmbeddedOnceForAllImages() {
        QByteArray profile(200, '\0');
        profile.replace(16, 4, "GRAY");
        const QString path = newFile(u"pdf"_s);
        PDFContext context(path, settings());
        for (int i = 0; i < 3; ++i) {
            PdfImage image;
            image.width = 1;
            image.height = 1;
            image.color = ImageColor::Gray;
            image.iccProfile = profile;
            image.data = qCompress(QByteArray(1, static_cast<char>(i))).mid(4);
            context.beginPage({0, 0, 10, 10});
            context.drawImage({0, 0, 10, 10}, std::move(image), 1);
            context.endPage();
        }
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        QCOMPARE(PdfProbe(path).json().count("/Alternate"), 1);
        QCOMPARE(PdfProbe(path).json().count("/ICCBased"), 1);
    }
};

FOLIOFORGE_TEST(PDFContextTest)
#include "PDFContextTest.moc"
