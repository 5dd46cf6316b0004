// SPDX-License-Identifier: Apache-2.0

#include "image/ImageHeader.h"
#include "support/TestUnit.h"

#include "DecodedImage.h"
#include "error/Error.h"
#include "support/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

class ImageHeaderTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void headerStatesFormatAndPixels_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<ImageKind>("format");
        QTest::addColumn<QSize>("size");
        const auto add = [](const char *name, ImageKind format, QSize size = QSize(24, 16)) {
            QTest::newRow(name) << QString::fromLatin1(name) << format << size;
        };
        add("photo.jpg", ImageKind::Jpeg);
        add("progressive.jpg", ImageKind::Jpeg);
        add("colour.jp2", ImageKind::Jpeg2000);
        add("codestream.jp2", ImageKind::Jpeg2000);
        add("colour.png", ImageKind::Png);
        add("colour-LZW.tif", ImageKind::Tiff);
        add("colour-bigendian.tif", ImageKind::Tiff);
        add("palette.gif", ImageKind::Gif);
        add("icon.ico", ImageKind::Ico, QSize(48, 48));
        add("png.icns", ImageKind::Icns);
        add("jp2.icns", ImageKind::Icns);
        add("classic.icns", ImageKind::Icns, QSize(16, 16));
        add("colour.psd", ImageKind::Psd);
        add("colour.webp", ImageKind::Webp);
        add("lossy.webp", ImageKind::Webp);
        add("two.webp", ImageKind::Webp);
        add("colour.heic", ImageKind::Heif);
        add("colour.avif", ImageKind::Heif);
        add("two.avif", ImageKind::Heif);
        add("colour.jxl", ImageKind::JpegXl);
        add("photo.jxl", ImageKind::JpegXl);
    }

    void headerStatesFormatAndPixels() {
        QFETCH(QString, name);
        QFETCH(ImageKind, format);
        QFETCH(QSize, size);
        const ImageHeader header = readImageHeader(imageFile(name));
        QCOMPARE(header.kind, format);
        QCOMPARE(QSize(header.width, header.height), size);
        QCOMPARE(header.orientation, 1);
        QCOMPARE(header.horizontalDpi, 72.0);
        const PdfImage image = toPdfImage(imageFile(name));
        QCOMPARE(QSize(image.width, image.height), size);
    }

    void imageCarriesTheHeaderOfItsFile_data() {
        QTest::addColumn<QString>("path");
        const QFileInfoList files = QDir(imageFile({})).entryInfoList(QDir::Files, QDir::Name);
        for (const QFileInfo &file : files) {
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
        }
        const QByteArray tga = QByteArray::fromHex("000002000000000000000000020001001800") +
                               QByteArray::fromHex("0102030405060000");
        QTest::newRow("TGA") << write("two.tga", tga);
        QTest::newRow("BMP") << bitmapWithDensity(5906);
    }

    void imageCarriesTheHeaderOfItsFile() {
        QFETCH(const QString, path);
        const PdfImage image = toPdfImage(path);
        QCOMPARE(QSize(image.header.width, image.header.height), QSize(image.width, image.height));
        QVERIFY(image.header == readImageHeader(path));
    }

    void contentCountsMoreThanExtension() {
        const QByteArray png = bytesOf(imageFile(u"colour.png"_s));
        QCOMPARE(readImageHeader(write("really-png.tga", png)).kind, ImageKind::Png);
        QCOMPARE(readImageHeader(write("really-png.jpg", png)).kind, ImageKind::Png);
        const QByteArray avif = bytesOf(imageFile(u"two.avif"_s));
        QCOMPARE(readImageHeader(write("really-avif.jpg", avif)).kind, ImageKind::Heif);
    }

    void extensionDecidesWhereBytesDoNot() {
        const QByteArray tga = QByteArray::fromHex("000002000000000000000000020001001800") +
                               QByteArray::fromHex("0102030405060000");
        QCOMPARE(readImageHeader(write("plain.TGA", tga)).kind, ImageKind::Tga);
    }

    void unknownContentIsRefused() {
        QCOMPARE(headerRefusal(write("letter.txt", "Dear reader, this is no picture at all.")),
                 u"The file is no image of a known format"_s);
    }

    void densityOfABitmapIsPerMetre() {
        const ImageHeader header = readImageHeader(bitmapWithDensity(11811)); // 300 per inch.
        QCOMPARE(header.horizontalDpi, 300.0); // 299.9994, which no writer meant.
        QCOMPARE(header.sizeInPoints().width(), 7.2);
    }

    void densityOfAPngIsPerMetre() {
        QImage picture(10, 10, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        picture.setDotsPerMeterX(5906);
        picture.setDotsPerMeterY(2953);
        const QString path = m_folder.filePath(u"density.png"_s);
        QVERIFY(picture.save(path));
        const ImageHeader header = readImageHeader(path);
        // As near to 150 and to 75 as whole pixels per metre come.
        QCOMPARE(header.horizontalDpi, 150.0);
        QCOMPARE(header.verticalDpi, 75.0);
        picture.setDotsPerMeterX(5000);
        picture.setDotsPerMeterY(2000);
        QVERIFY(picture.save(path));
        QCOMPARE(readImageHeader(path).horizontalDpi, 127.0);
        QCOMPARE(readImageHeader(path).verticalDpi, 50.8);
    }

    void absurdDensityMeansSeventyTwo_data() {
        QTest::addColumn<int>("perMetre");
        QTest::newRow("none") << 0;
        QTest::newRow("one pixel a metre") << 1;
        QTest::newRow("negative") << -2835;
        QTest::newRow("atoms") << 2'000'000'000;
    }

    void absurdDensityMeansSeventyTwo() {
        QFETCH(int, perMetre);
        QByteArray bytes = bytesOf(bitmapWithDensity(2835));
        qToLittleEndian(qint32(perMetre), bytes.data() + 38);
        const ImageHeader header = readImageHeader(write("absurd.bmp", bytes));
        QCOMPARE(header.horizontalDpi, 72.0);
        QCOMPARE(header.verticalDpi, 72.0);
        QCOMPARE(header.sizeInPoints(), QSizeF(30, 20));
    }

    void densitiesFrom5To25400AreKept() {
        const auto kept = [](double horizontal, double vertical) {
            ImageHeader header = tenByTen();
            header.horizontalDpi = horizontal;
            header.verticalDpi = vertical;
            header = checkedHeader(header);
            return QSizeF(header.horizontalDpi, header.verticalDpi);
        };
        QCOMPARE(kept(5, 25400), QSizeF(5, 25400));
        QCOMPARE(kept(4.9, 100), QSizeF(72, 72));
        QCOMPARE(kept(100, 25401), QSizeF(72, 72));
        QCOMPARE(kept(100, 4.9), QSizeF(72, 72));
    }

    void densitiesHalfAPixelPerMetreFromAWholeNumberAreThatNumber() {
        ImageHeader header = tenByTen();
        header.horizontalDpi = 150.0126; // Half a pixel per metre are 0.0127 per inch.
        header.verticalDpi = 150.0128;
        header = checkedHeader(header);
        QVERIFY(header.horizontalDpi == 150);
        QVERIFY(header.verticalDpi == 150.0128);
    }

    void orientationsFromOneToEightAreKept() {
        const auto kept = [](int orientation) {
            ImageHeader header = tenByTen();
            header.orientation = orientation;
            return checkedHeader(header).orientation;
        };
        QCOMPARE(kept(1), 1);
        QCOMPARE(kept(8), 8);
        for (const int other : {0, 9, -1}) {
            QCOMPARE(kept(other), 1);
        }
    }

    void anImageHasPixelsUpToTheBound() {
        ImageHeader header;
        header.width = static_cast<int>(kMaxImagePixels);
        header.height = 1;
        QCOMPARE(checkedHeader(header).width, header.width);
        for (const QSize size : {QSize(header.width + 1, 1), QSize(5, 0), QSize(0, 5)}) {
            header.width = size.width();
            header.height = size.height();
            QVERIFY_THROWS_EXCEPTION(Error, checkedHeader(header));
        }
    }

    void sidewaysOrientationExchangesTheSides() {
        ImageHeader header;
        header.width = 300;
        header.height = 100;
        header.horizontalDpi = 150;
        header.verticalDpi = 50;
        header.orientation = 4;
        QCOMPARE(header.sizeInPoints(), QSizeF(144, 144));
        header.verticalDpi = 100;
        header.orientation = 5;
        QCOMPARE(header.sizeInPoints(), QSizeF(72, 144));
    }

    void tooManyPixelsAreRefused() {
        QByteArray png = bytesOf(imageFile(u"colour.png"_s));
        qToBigEndian(quint32(100'000), png.data() + 16);
        qToBigEndian(quint32(50'000), png.data() + 20);
        const QString path = write("bomb.png", png);
        const QString reason = u"The image is too large (100000 x 50000 pixels)"_s;
        QCOMPARE(headerRefusal(path), reason);
        QCOMPARE(refusalOf(path), reason);
    }

    void pipeIsRefusedWithoutWaiting() {
        const QString path = m_folder.filePath(u"pipe.png"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        QCOMPARE(headerRefusal(path), u"It is not a regular file"_s);
    }

    void folderIsRefused() {
        QCOMPARE(headerRefusal(m_folder.path()), u"It is not a regular file"_s);
    }

    void missingFileIsRefused() {
        QVERIFY(headerRefusal(m_folder.filePath(u"absent.png"_s))
                    .startsWith(u"Cannot open the file: "_s));
    }

    void emptyFileIsRefused() {
        QCOMPARE(headerRefusal(write("empty.jpg", {})), u"The file is empty"_s);
    }

  private:
    QTemporaryDir m_folder;

    QString write(const char *name, const QByteArray &bytes) {
        return writeFile(m_folder.filePath(QString::fromLatin1(name)), bytes);
    }

    static ImageHeader tenByTen() {
        ImageHeader header;
        header.width = 10;
        header.height = 10;
        return header;
    }

    static QString headerRefusal(const QString &path) {
        try {
            readImageHeader(path);
            return {};
        } catch (const Error &error) {
            return error.reason();
        }
    }

    QString bitmapWithDensity(int perMetre) {
        QImage picture(30, 20, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.setDotsPerMeterX(perMetre);
        picture.setDotsPerMeterY(perMetre);
        QString path = m_folder.filePath(u"density.bmp"_s);
        picture.save(path);
        return path;
    }
};

FOLIOFORGE_TEST(ImageHeaderTest)
#include "ImageHeaderTest.moc"
