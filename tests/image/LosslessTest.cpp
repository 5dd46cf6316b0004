// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <random>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Files of one picture in many forms, made with other programs: what is encoded, read back, is
/// the picture.

namespace {

QImage reference(const QString &name, QImage::Format format) {
    return QImage(imageFile(name)).convertToFormat(format);
}

void addRows(const char *column, const QStringList &names) {
    QTest::addColumn<QString>(column);
    for (const QString &name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

} // namespace

class LosslessTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void fileComesOutPixelForPixel_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("like");
        const auto add = [](const char *name, const char *like) {
            QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(like);
        };
        for (const char *name :
             {"colour.png", "colour-interlaced.png", "colour-LZW.tif", "colour-None.tif",
              "colour-RLE.tif", "colour-Zip.tif", "colour-predictor.tif", "colour-planes.tif",
              "colour-tiles.tif", "colour-bigendian.tif", "colour.psd", "colour-raw.psd",
              "png.icns", "colour.webp", "colour.avif", "colour.jxl"}) {
            add(name, "colour.png");
        }
        for (const char *name : {"palette.png", "palette.tif", "palette.gif", "palette.psd"}) {
            add(name, "palette.png");
        }
        add("two.gif", "palette.png"); // The second frame is the negative of the first.
        for (const char *name : {"two.webp", "two.avif", "two.jxl"}) {
            add(name, "colour.png"); // So it is here.
        }
        add("photo.jpg", "photo.jpg");
        add("photo.jxl", "photo.jpg");
        add("progressive.jpg", "progressive.jpg");
    }

    void fileComesOutPixelForPixel() {
        QFETCH(QString, name);
        QFETCH(QString, like);
        const PdfImage image = toPdfImage(imageFile(name));
        QVERIFY(image.softMask == nullptr);
        QCOMPARE(decoded(image).convertToFormat(QImage::Format_RGB32),
                 reference(like, QImage::Format_RGB32));
    }

    void opacityBecomesASoftMask_data() {
        addRows("name",
                {u"translucent.png"_s, u"translucent-interlaced.png"_s, u"translucent.tif"_s,
                 u"translucent.psd"_s, u"translucent.jp2"_s, u"jp2.icns"_s, u"translucent.webp"_s,
                 u"translucent.avif"_s, u"translucent.jxl"_s});
    }

    void opacityBecomesASoftMask() {
        QFETCH(QString, name);
        const PdfImage image = toPdfImage(imageFile(name));
        QVERIFY(image.softMask != nullptr);
        const QImage color = decoded(image);
        const QImage alpha = decoded(*image.softMask);
        const QImage expected = reference(u"translucent.png"_s, QImage::Format_ARGB32);
        QCOMPARE(color.size(), expected.size());
        QCOMPARE(alpha.size(), expected.size());
        for (int y = 0; y < expected.height(); ++y) {
            for (int x = 0; x < expected.width(); ++x) {
                const QRgb pixel = expected.pixel(x, y);
                QCOMPARE(qGray(alpha.pixel(x, y)), qAlpha(pixel));
                if (qAlpha(pixel) != 0) {
                    QCOMPARE(color.pixel(x, y) & 0xFFFFFF, pixel & 0xFFFFFF);
                }
            }
        }
    }

    void sixteenBitsStaySixteenBits_data() {
        addRows("name", {u"deep.png"_s, u"deep.tif"_s, u"deep-bigendian.tif"_s, u"deep.psd"_s,
                         u"deep.jxl"_s});
    }

    void sixteenBitsStaySixteenBits() {
        QFETCH(QString, name);
        const PdfImage image = toPdfImage(imageFile(name));
        QCOMPARE(image.bitsPerComponent, 16);
        QCOMPARE(decoded(image).convertToFormat(QImage::Format_RGBX64),
                 reference(u"deep.png"_s, QImage::Format_RGBX64));
    }

    void greyStaysGrey_data() {
        addRows("name", {u"grey.png"_s, u"grey.tif"_s, u"grey.psd"_s, u"grey.jxl"_s});
    }

    void greyStaysGrey() {
        QFETCH(QString, name);
        const PdfImage image = toPdfImage(imageFile(name));
        QCOMPARE(image.color, ImageColor::Gray);
        QCOMPARE(decoded(image).convertToFormat(QImage::Format_Grayscale8),
                 reference(u"grey.png"_s, QImage::Format_Grayscale8));
    }

    void bilevelStaysOneBit_data() {
        addRows("name", {u"bilevel.png"_s, u"bilevel-g4.tif"_s, u"bilevel-strips.tif"_s,
                         u"bilevel-g3.tif"_s, u"bilevel-lsb.tif"_s, u"bilevel-minisblack.tif"_s});
    }

    void bilevelStaysOneBit() {
        QFETCH(QString, name);
        const PdfImage image = toPdfImage(imageFile(name));
        QCOMPARE(image.bitsPerComponent, 1);
        QCOMPARE(decoded(image).convertToFormat(QImage::Format_RGB32),
                 reference(u"bilevel.png"_s, QImage::Format_RGB32));
    }

    void fullOpacityIsDropped() {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"opaque.png"_s);
        QVERIFY(reference(u"colour.png"_s, QImage::Format_RGBA8888).save(path));
        QCOMPARE(bytesOf(path).at(25), '\x06'); // The file does hold an alpha channel.
        const PdfImage image = toPdfImage(path);
        QVERIFY(image.softMask == nullptr);
        QCOMPARE(decoded(image).convertToFormat(QImage::Format_RGB32),
                 reference(u"colour.png"_s, QImage::Format_RGB32));
    }

    void opacityOfAllOrNothingTakesOneBit() {
        const QTemporaryDir folder;
        QImage picture = reference(u"colour.png"_s, QImage::Format_ARGB32);
        picture.setPixel(3, 4, 0);
        const QString path = folder.filePath(u"hole.png"_s);
        QVERIFY(picture.save(path));
        const PdfImage image = toPdfImage(path);
        QVERIFY(image.softMask != nullptr);
        QCOMPARE(image.softMask->bitsPerComponent, 1);
        const QImage mask = decoded(*image.softMask);
        QCOMPARE(qGray(mask.pixel(3, 4)), 0);
        QCOMPARE(qGray(mask.pixel(4, 3)), 255);
    }

    void bitmapsOfQtComeOutPixelForPixel_data() {
        QTest::addColumn<QImage::Format>("format");
        QTest::addColumn<int>("bits");
        QTest::newRow("one bit") << QImage::Format_Mono << 1;
        QTest::newRow("palette") << QImage::Format_Indexed8 << 8;
        QTest::newRow("grey") << QImage::Format_Grayscale8 << 8;
        QTest::newRow("colour") << QImage::Format_RGB32 << 8;
    }

    void bitmapsOfQtComeOutPixelForPixel() {
        QFETCH(QImage::Format, format);
        QFETCH(int, bits);
        const QTemporaryDir folder;
        const QImage picture = reference(u"colour.png"_s, format);
        const QString path = folder.filePath(u"picture.bmp"_s);
        QVERIFY(picture.save(path));
        const PdfImage image = toPdfImage(path);
        QCOMPARE(image.bitsPerComponent, bits);
        QCOMPARE(decoded(image).convertToFormat(QImage::Format_RGB32),
                 picture.convertToFormat(QImage::Format_RGB32));
    }

    void largePictureIsFilteredWhereThatPays_data() {
        QTest::addColumn<int>("slope");
        QTest::addColumn<int>("noise");
        QTest::addColumn<int>("predictor");
        QTest::newRow("noise on flat paper") << 0 << 8 << 1;
        QTest::newRow("light falling off") << 1 << 1 << 15;
        QTest::newRow("noise on light falling off") << 3 << 12 << 15;
    }

    void largePictureIsFilteredWhereThatPays() {
        QFETCH(int, slope);
        QFETCH(int, noise);
        QFETCH(int, predictor);
        QImage picture(701, 523, QImage::Format_RGB888);
        std::mt19937 random(11);
        for (int y = 0; y < picture.height(); ++y) {
            uchar *row = picture.scanLine(y);
            for (int i = 0; i < picture.width() * 3; ++i) {
                const int light = 100 + slope * (i / 3 + y) / 8;
                row[i] = static_cast<uchar>(light + static_cast<int>(random() % quint32(noise)));
            }
        }
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"large.bmp"_s);
        QVERIFY(picture.save(path));
        const PdfImage image = toPdfImage(path);
        QCOMPARE(image.predictor, predictor);
        QCOMPARE(decoded(image).convertToFormat(QImage::Format_RGB888), picture);
    }

    void singleRowOfManyPixelsComesOut() {
        QImage picture(400'000, 1, QImage::Format_RGB888);
        for (int x = 0; x < picture.width(); ++x) {
            picture.setPixel(x, 0, qRgb(x % 251, x % 83, x / 2000));
        }
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"row.bmp"_s);
        QVERIFY(picture.save(path));
        QCOMPARE(decoded(toPdfImage(path)).convertToFormat(QImage::Format_RGB888), picture);
    }

    void labKeepsItsAxes() {
        // White, by hand: L 255, a and b 0 in two's complement, which a PDF counts from -128.
        const QTemporaryDir folder;
        QByteArray tiff = QByteArray::fromHex("49492a000b000000" // Header, directory at 11.
                                              "ff00fb"           // One pixel: L 100, a 0, b -5.
                                              "0900");
        const auto entry = [&](quint16 tag, quint16 value, quint16 count = 1) {
            QByteArray bytes(12, '\0');
            qToLittleEndian(tag, bytes.data());
            qToLittleEndian<quint16>(3, bytes.data() + 2);
            qToLittleEndian<quint32>(count, bytes.data() + 4);
            qToLittleEndian(value, bytes.data() + 8);
            tiff += bytes;
        };
        entry(256, 1);
        entry(257, 1);
        const qsizetype bitsEntry = tiff.size();
        entry(258, 0, 3);
        entry(259, 1);
        entry(262, 8);
        entry(273, 8);
        entry(277, 3);
        entry(278, 1);
        entry(279, 3);
        tiff += QByteArray(4, '\0');
        qToLittleEndian(quint32(tiff.size()), tiff.data() + bitsEntry + 8);
        tiff += QByteArray::fromHex("080008000800");
        const PdfImage image = toPdfImage(writeFile(folder.filePath(u"lab.tif"_s), tiff));
        QCOMPARE(image.color, ImageColor::Lab);
        QCOMPARE(unzipped(image.data).last(3), QByteArray::fromHex("ff807b"));
    }

    void inkOfATiffKeepsFourComponents() {
        const PdfImage image = toPdfImage(imageFile(u"ink.tif"_s));
        QCOMPARE(image.color, ImageColor::Cmyk);
        QVERIFY(image.decode.empty());
        QCOMPARE(unzipped(image.data).size(), qsizetype(16 * (1 + 24 * 4)));
    }
};

FOLIOFORGE_TEST(LosslessTest)
#include "LosslessTest.moc"
