#include "pdf/PDFContext.h"

#include "error/Error.h"
#include "image/EncodedImage.h"
#include "support/PdfProbe.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

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

EncodedImage jpegInPlace(const QString &path) {
    EncodedImage image;
    const QImage pixels(path);
    image.width = pixels.width();
    image.height = pixels.height();
    image.filter = ImageFilter::Dct;
    image.embeddedAs = EmbeddedAs::OwnBytes;
    image.sourcePath = path;
    image.sourceSize = QFileInfo(path).size();
    image.slices = {{0, image.sourceSize}};
    return image;
}

} // namespace

class PDFContextTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString file(const QString &name) const { return m_folder.filePath(name); }
    QString jpeg(const QString &name) const {
        const QString path = file(name);
        quarters(64).save(path, "JPEG", 95);
        return path;
    }
    static PDFContext::Settings settings() {
        PDFContext::Settings settings;
        settings.flush = Flush::Never;
        settings.info.created = QDateTime::fromSecsSinceEpoch(1'700'000'000, Qt::UTC);
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
        const QString path = file(QStringLiteral("image.pdf"));
        const auto result = writeImages(path, {jpeg(QStringLiteral("a.jpg"))});
        QVERIFY2(result.status == CloseResult::Status::Written, qPrintable(result.reason));
        const PdfProbe probe(path);
        QString log;
        QVERIFY2(probe.isValid(&log), qPrintable(log));
        QCOMPARE(probe.pageCount(), 1);
        QCOMPARE(probe.box(QStringLiteral("MediaBox"), 1), QRectF(0, 0, 100, 50));
        const QImage page = probe.render(1);
        QVERIFY(page.pixelColor(10, 10).red() > 200);
        QVERIFY(page.pixelColor(10, 40).blue() > 200);
        QVERIFY(page.pixelColor(90, 10).green() > 200);
    }

    void copiesTheBytesOfAJpegAsTheyAre() {
        const QString source = jpeg(QStringLiteral("own.jpg"));
        const QString path = file(QStringLiteral("own.pdf"));
        writeImages(path, {source});
        QFile original(source);
        QVERIFY(original.open(QIODevice::ReadOnly));
        QFile written(path);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QVERIFY(written.readAll().contains(original.readAll()));
    }

    void takesOverThePagesOfAnotherDocument() {
        const QString first = file(QStringLiteral("first.pdf"));
        writeImages(first, {jpeg(QStringLiteral("b.jpg")), jpeg(QStringLiteral("c.jpg"))});
        const QString path = file(QStringLiteral("merged.pdf"));
        PDFContext context(path, settings());
        QCOMPARE(context.addDocument(first), 2);
        QCOMPARE(context.addDocument(first), 2);
        QCOMPARE(context.pageCount(), 4);
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        const PdfProbe probe(path);
        QString log;
        QVERIFY2(probe.isValid(&log), qPrintable(log));
        QCOMPARE(probe.pageCount(), 4);
        QVERIFY(probe.render(4).pixelColor(10, 10).red() > 200);
    }
};

QTEST_MAIN(PDFContextTest)
#include "PDFContextTest.moc"
