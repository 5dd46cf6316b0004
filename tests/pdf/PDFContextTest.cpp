// SPDX-License-Identifier: Apache-2.0

#include "pdf/PDFContext.h"

#include "error/Error.h"
#include "files/SourceReader.h"
#include "image/PdfImage.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"
#include "text/FontCascade.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>

#include <array>
#include <atomic>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <ctime>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::PdfProbe;

namespace {

/// A picture whose four quarters are red, green (above), blue and white (below).
QImage quarters(int side) {
    QImage image(side, side, QImage::Format_RGB888);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const bool left = x < side / 2;
            const bool top = y < side / 2;
            image.setPixelColor(x, y,
                                top ? (left ? Qt::red : Qt::green) : (left ? Qt::blue : Qt::white));
        }
    }
    return image;
}

PdfImage jpegInPlace(const QString &path) {
    PdfImage image;
    const QImage pixels(path);
    image.width = pixels.width();
    image.height = pixels.height();
    image.filter = ImageFilter::Dct;
    image.embeddedAs = EmbeddedAs::OwnBytes;
    image.source = std::make_shared<const SourceFile>(SourceFile::open(path));
    image.slices = {{0, image.source->version().size}};
    return image;
}

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

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray identifierOf(const QByteArray &pdf) {
    return pdf.mid(pdf.lastIndexOf("/ID ["), 72);
}

} // namespace

/// The time of libqpdf, which makes identifiers of it: each time it asks, a second has passed.
extern "C" std::time_t time(std::time_t *result) noexcept {
    static std::atomic<std::time_t> seconds{1'700'000'000};
    const std::time_t now = ++seconds;
    if (result) {
        *result = now;
    }
    return now;
}

class PDFContextTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    int m_number = 0;

    QString file(const QString &name) const { return m_folder.filePath(name); }
    QString jpeg(const QString &name) const {
        QString path = file(name);
        quarters(64).save(path, "JPEG", 95);
        return path;
    }
    QString newFile(const QString &extension) {
        return file(u"new%1.%2"_s.arg(++m_number).arg(extension));
    }
    static PDFContext::Settings settings() {
        PDFContext::Settings settings;
        settings.flush = Flush::Never;
        settings.info.created = QDateTime::fromSecsSinceEpoch(1'700'000'000).toUTC();
        return settings;
    }
    /// One page of 100 x 50 for each of `images`, each drawn over the whole page.
    CloseResult writeImages(const QString &path, const QStringList &images) const {
        PDFContext context(path, settings());
        for (const QString &image : images) {
            context.beginPage({0, 0, 100, 50});
            context.drawImage({0, 0, 100, 50}, jpegInPlace(image), 1);
            context.endPage();
        }
        return context.close();
    }

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
        const auto font = FontCascade::load(u"Liberation Sans"_s, 14);
        const std::array glyphs{font->glyph(U'W')};
        // Steps of 20, of 20 again, of 3 and of nearly the height of a row, 16.1.
        const QList<QPointF> places{{10, 150}, {10, 130}, {10, 110}, {10, 107}, {12, 91}};
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
        const auto font = FontCascade::load(u"Liberation Sans"_s, 40);
        const std::array glyphs{font->glyph(U'W')};
        PDFContext context(path, settings());
        context.setFont(font, 40);
        for (const double red : {1.0, 0.0}) { // A page begins with black.
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
        QVERIFY(holds(2, Qt::black) && !holds(2, Qt::red));
    }

    void copiesTheBytesOfAJpegAsTheyAre() {
        const QString source = jpeg(u"own.jpg"_s);
        const QString path = file(u"own.pdf"_s);
        writeImages(path, {source});
        QFile original(source);
        QVERIFY(original.open(QIODevice::ReadOnly));
        QFile written(path);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QVERIFY(written.readAll().contains(original.readAll()));
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

    void theDocumentInformationIsAlwaysThere() {
        const QString path = newFile(u"pdf"_s);
        PDFContext::Settings given = settings();
        given.info.title = u"Gr\u00FC\u00DFe (\u4F60\u597D)"_s;
        given.info.keywords = u"a, b"_s;
        PDFContext context(path, std::move(given));
        context.beginPage({0, 0, 10, 10});
        context.endPage();
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        const PdfProbe probe(path);
        QCOMPARE(probe.info(u"Title"_s), u"Gr\u00FC\u00DFe (\u4F60\u597D)"_s);
        QCOMPARE(probe.info(u"Keywords"_s), u"a, b"_s);
        QCOMPARE(probe.info(u"Creator"_s), u"Vesprin-Folioforge"_s);
        QVERIFY(probe.info(u"Producer"_s).startsWith(u"Folioforge 1."_s));
        QVERIFY(probe.info(u"CreationDate"_s).contains(u"2023"_s));
        const QByteArray json = probe.json();
        for (const char *key : {"/Author", "/Subject"}) {
            QVERIFY(json.contains(QByteArray("\"") + key + "\": \"u:\""));
        }
    }

    void theSameInputsGiveTheSameBytes() {
        const QString source = jpeg(u"same.jpg"_s);
        qputenv("SOURCE_DATE_EPOCH", "1700000000");
        QList<QByteArray> files;
        for (const QString &title : {u"a"_s, u"a"_s, u"b"_s}) {
            const QString path = newFile(u"pdf"_s);
            PDFContext::Settings given;
            given.info.title = title;
            PDFContext context(path, std::move(given));
            context.beginPage({0, 0, 10, 10});
            context.drawImage({0, 0, 10, 10}, jpegInPlace(source), 1);
            context.endPage();
            QCOMPARE(context.close().status, CloseResult::Status::Written);
            files += contentOf(path);
        }
        qunsetenv("SOURCE_DATE_EPOCH");
        QCOMPARE(files[0], files[1]);
        QVERIFY(identifierOf(files[0]) != identifierOf(files[2]));
    }

    void documentsOfOneSizeHaveIdentifiersOfTheirOwn() {
        QList<QByteArray> files;
        for (const double height : {11.0, 12.0}) {
            const QString path = newFile(u"pdf"_s);
            PDFContext context(path, settings());
            context.beginPage({0, 0, 10, height});
            context.endPage();
            QCOMPARE(context.close().status, CloseResult::Status::Written);
            files += contentOf(path);
        }
        QCOMPARE(files[0].size(), files[1].size());
        QVERIFY(identifierOf(files[0]) != identifierOf(files[1]));
    }

    void theCreationDateFollowsSourceDateEpoch() {
        qputenv("SOURCE_DATE_EPOCH", "86400");
        const QString path = newFile(u"pdf"_s);
        PDFContext context(path, {});
        context.beginPage({0, 0, 10, 10});
        context.endPage();
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        qunsetenv("SOURCE_DATE_EPOCH");
        QVERIFY(PdfProbe(path).json().contains("D:19700102000000Z"));
    }

    void contextsDestroyedUnclosedLeaveNothing() {
        const QString path = newFile(u"pdf"_s);
        {
            PDFContext context(path, settings());
            context.beginPage({0, 0, 10, 10});
            context.endPage();
        }
        QVERIFY(!QFile::exists(path));
    }

    void aTakenNameGivesWayToTheNext() {
        const QString taken = jpeg(u"taken.pdf"_s);
        const QByteArray before = contentOf(taken);
        const QString source = jpeg(u"d.jpg"_s);
        QCOMPARE(writeImages(taken, {source}).status, CloseResult::Status::NameTaken);
        PDFContext context(taken, settings());
        context.beginPage({0, 0, 10, 10});
        context.endPage();
        QString next = newFile(u"pdf"_s);
        const CloseResult result = context.close([&] { return next; });
        QCOMPARE(result.status, CloseResult::Status::Written);
        QCOMPARE(result.path, next);
        QVERIFY(PdfProbe(next).isValid());
        QCOMPARE(contentOf(taken), before);
    }

    void aFullDiskFailsWithItsReasonAndLeavesNothing() {
        QTemporaryDir folder;
        const QString source = newFile(u"jpg"_s);
        QFile big(source);
        QVERIFY(big.open(QIODevice::WriteOnly));
        big.write(QByteArray(4 << 20, 'x'));
        big.close();
        PDFContext context(folder.filePath(u"full.pdf"_s), settings());
        PdfImage image;
        image.width = image.height = 1;
        image.filter = ImageFilter::Dct;
        image.source = std::make_shared<const SourceFile>(SourceFile::open(source));
        image.slices = {{0, image.source->version().size}};
        context.beginPage({0, 0, 10, 10});
        context.drawImage({0, 0, 10, 10}, std::move(image), 1);
        context.endPage();
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit small{1 << 20, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        const CloseResult result = context.close();
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
        QCOMPARE(result.status, CloseResult::Status::Failed);
        QVERIFY2(result.reason.contains(u"File too large"_s), qPrintable(result.reason));
        QVERIFY(
            QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void anImageThatChangedFailsTheDocument() {
        const QString source = jpeg(u"changing.jpg"_s);
        const QString path = newFile(u"pdf"_s);
        PDFContext context(path, settings());
        context.beginPage({0, 0, 10, 10});
        context.drawImage({0, 0, 10, 10}, jpegInPlace(source), 1);
        context.endPage();
        QVERIFY(quarters(32).save(source, "JPEG", 95));
        const CloseResult result = context.close();
        QCOMPARE(result.status, CloseResult::Status::Failed);
        QVERIFY2(result.reason.contains(source), qPrintable(result.reason));
        QVERIFY(!QFile::exists(path));
    }

    void thousandsOfSourcesNeedFewDescriptors() {
        QStringList sources;
        const QByteArray bytes = contentOf(jpeg(u"e.jpg"_s));
        for (int i = 0; i < 300; ++i) {
            sources += file(u"many%1.jpg"_s.arg(i));
            QFile copy(sources.last());
            QVERIFY(copy.open(QIODevice::WriteOnly));
            copy.write(bytes);
        }
        const QString first = newFile(u"pdf"_s);
        rlimit before{};
        getrlimit(RLIMIT_NOFILE, &before);
        const rlimit few{32, before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &few);
        const CloseResult result = writeImages(first, sources);
        setrlimit(RLIMIT_NOFILE, &before);
        QVERIFY2(result.status == CloseResult::Status::Written, qPrintable(result.reason));
        QCOMPARE(PdfProbe(first).pageCount(), 300);
    }
};

FOLIOFORGE_TEST(PDFContextTest)
#include "PDFContextTest.moc"
