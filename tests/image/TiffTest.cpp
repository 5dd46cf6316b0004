// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "WrittenTiff.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// TIFF files that libtiff writes.

namespace {

template<typename T> QByteArray bytesOfValues(const std::vector<T> &values) {
    return {reinterpret_cast<const char *>(values.data()), qsizetype(values.size() * sizeof(T))};
}

} // namespace

class TiffTest : public QObject {
    Q_OBJECT

    /// A picture of 32 x 32 pixels as most writers put JPEG into TIFF.
    QString jpegOfBrightnessAndColor(uint32_t rowsPerStrip) {
        constexpr uint32_t kSide = 32;
        QString path = m_folder.filePath(u"ycbcr%1.tif"_s.arg(rowsPerStrip));
        const auto tif = openTiff(path, "w");
        TIFFSetField(tif.get(), TIFFTAG_IMAGEWIDTH, kSide);
        TIFFSetField(tif.get(), TIFFTAG_IMAGELENGTH, kSide);
        setSamples(tif.get(), 3, 8, PHOTOMETRIC_YCBCR);
        TIFFSetField(tif.get(), TIFFTAG_ROWSPERSTRIP, rowsPerStrip);
        TIFFSetField(tif.get(), TIFFTAG_COMPRESSION, COMPRESSION_JPEG);
        TIFFSetField(tif.get(), TIFFTAG_YCBCRSUBSAMPLING, 1, 1);
        TIFFSetField(tif.get(), TIFFTAG_JPEGCOLORMODE, JPEGCOLORMODE_RGB);
        for (uint32_t y = 0; y < kSide; ++y) {
            QByteArray row;
            for (uint32_t x = 0; x < kSide; ++x) {
                row.append(static_cast<char>(7 * x))
                    .append(static_cast<char>(7 * y))
                    .append('\x20');
            }
            TIFFWriteScanline(tif.get(), row.data(), y, 0);
        }
        return path;
    }

    /// Red, green and blue under the numbers that other JPEG files give brightness and colour.
    QString jpegWithoutNames() {
        QByteArray bytes = bytesOf(imageFile(u"jpeg.tif"_s));
        const qsizetype frame = bytes.indexOf("\xFF\xC0") + 10;
        const qsizetype scan = bytes.indexOf("\xFF\xDA") + 5;
        for (const int i : {0, 1, 2}) {
            bytes[frame + 3 * i] = bytes[scan + 2 * i] = static_cast<char>(i + 1);
        }
        return writeFile(m_folder.filePath(u"unnamed.tif"_s), bytes);
    }

  private Q_SLOTS:
    void colorsOfAJpegInATiffAreThoseOfLibtiff_data() {
        QTest::addColumn<QString>("path");
        QTest::newRow("RGB") << imageFile(u"jpeg.tif"_s);
        QTest::newRow("RGB that the JPEG does not name") << jpegWithoutNames();
        QTest::newRow("YCbCr") << jpegOfBrightnessAndColor(32);
        QTest::newRow("YCbCr in strips") << jpegOfBrightnessAndColor(16);
    }
    void colorsOfAJpegInATiffAreThoseOfLibtiff() {
        QFETCH(const QString, path);
        const QImage shown = decoded(toPdfImage(path)).convertToFormat(QImage::Format_RGB888);
        const auto tif = openTiff(path, "r");
        std::vector<uint32_t> pixels(static_cast<std::size_t>(shown.width()) *
                                     static_cast<std::size_t>(shown.height()));
        QCOMPARE(TIFFReadRGBAImageOriented(tif.get(), static_cast<uint32_t>(shown.width()),
                                           static_cast<uint32_t>(shown.height()), pixels.data(),
                                           ORIENTATION_TOPLEFT, 1),
                 1);
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                const uint32_t pixel = pixels.at(static_cast<std::size_t>(y) *
                                                     static_cast<std::size_t>(shown.width()) +
                                                 static_cast<std::size_t>(x));
                const QColor color = shown.pixelColor(x, y);
                QVERIFY(std::abs(color.red() - int(TIFFGetR(pixel))) < 3);
                QVERIFY(std::abs(color.green() - int(TIFFGetG(pixel))) < 3);
                QVERIFY(std::abs(color.blue() - int(TIFFGetB(pixel))) < 3);
            }
        }
    }

    void floatingPointBecomesSixteenBits() {
        const QString path = tiff(4, 1, bytesOfValues<float>({0, 0.25F, 1, 7}), [](TIFF *tif) {
            setSamples(tif, 1, 32, PHOTOMETRIC_MINISBLACK);
            TIFFSetField(tif, TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_IEEEFP);
        });
        const PdfImage image = toPdfImage(path);
        QCOMPARE(image.bitsPerComponent, 16);
        QCOMPARE(image.color, ImageColor::Gray);
        const QImage picture = decoded(image).convertToFormat(QImage::Format_Grayscale16);
        const auto *samples = reinterpret_cast<const quint16 *>(picture.constScanLine(0));
        QCOMPARE(samples[0], quint16(0));
        QCOMPARE(samples[1], quint16(16384));
        QCOMPARE(samples[2], quint16(65535));
        QCOMPARE(samples[3], quint16(65535));
    }

    void samplesOf24BitsBecome16_data() {
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<QByteArray>("pixels");
        QTest::newRow("little-endian") << QByteArray("wl") << QByteArray::fromHex("563412ffffff");
        QTest::newRow("big-endian") << QByteArray("wb") << QByteArray::fromHex("123456ffffff");
    }

    void samplesOf24BitsBecome16() {
        QFETCH(const QByteArray, mode);
        QFETCH(const QByteArray, pixels);
        const QString path = tiff(
            2, 1, pixels, [](TIFF *tif) { setSamples(tif, 1, 24, PHOTOMETRIC_MINISBLACK); },
            mode.constData());
        const QImage picture =
            decoded(toPdfImage(path)).convertToFormat(QImage::Format_Grayscale16);
        const auto *samples = reinterpret_cast<const quint16 *>(picture.constScanLine(0));
        QCOMPARE(samples[0], quint16(0x1234));
        QCOMPARE(samples[1], quint16(0xFFFF));
    }

    void opacityIsTakenOutOfTheColorsItMultiplies() {
        const QByteArray pixels = QByteArray::fromHex("40200080"
                                                      "ff8000ff");
        const QString path = tiff(2, 1, pixels, [](TIFF *tif) {
            setSamples(tif, 4, 8, PHOTOMETRIC_RGB);
            uint16_t kind = EXTRASAMPLE_ASSOCALPHA;
            TIFFSetField(tif, TIFFTAG_EXTRASAMPLES, 1, &kind);
        });
        const PdfImage image = toPdfImage(path);
        QVERIFY(image.softMask != nullptr);
        QCOMPARE(qGray(decoded(*image.softMask).pixel(0, 0)), 128);
        QCOMPARE(decoded(image).pixel(0, 0), qRgb(128, 64, 0)); // 64 and 32 of 128.
        QCOMPARE(decoded(image).pixel(1, 0), qRgb(255, 128, 0));
    }

    void opacityMultipliesNoNumbersOfColors() {
        const QString path = tiff(2, 1, QByteArray::fromHex("028001ff"), [](TIFF *tif) {
            setSamples(tif, 2, 8, PHOTOMETRIC_PALETTE);
            uint16_t kind = EXTRASAMPLE_ASSOCALPHA;
            TIFFSetField(tif, TIFFTAG_EXTRASAMPLES, 1, &kind);
            std::vector<uint16_t> levels(256);
            levels[1] = 0x1000;
            levels[2] = 0x2000;
            TIFFSetField(tif, TIFFTAG_COLORMAP, levels.data(), levels.data(), levels.data());
        });
        QCOMPARE(rgbRows(toPdfImage(path)).toHex(), QByteArray("202020101010"));
    }

    void subsampledColorBecomesRgb() {
        // Two by two pixels share one colour: four brightnesses, then Cb and Cr. A red, by JFIF.
        const QByteArray block = QByteArray::fromHex("4c4c4c4c55ff");
        const QString path = tiff(2, 2, block, [](TIFF *tif) {
            setSamples(tif, 3, 8, PHOTOMETRIC_YCBCR);
            TIFFSetField(tif, TIFFTAG_YCBCRSUBSAMPLING, 2, 2);
            const float limits[6] = {0, 255, 128, 255, 128, 255};
            TIFFSetField(tif, TIFFTAG_REFERENCEBLACKWHITE, limits);
        });
        const QRgb color = decoded(toPdfImage(path)).pixel(1, 1);
        QVERIFY2(qRed(color) >= 252 && qGreen(color) <= 3 && qBlue(color) <= 3,
                 qPrintable(QString::number(color, 16)));
    }

    void orientationIsRead() {
        const QString path = tiff(3, 1, "abc", [](TIFF *tif) {
            setSamples(tif, 1, 8, PHOTOMETRIC_MINISBLACK);
            TIFFSetField(tif, TIFFTAG_ORIENTATION, ORIENTATION_RIGHTTOP);
        });
        const ImageHeader header = readImageHeader(path);
        QCOMPARE(header.orientation, 6);
        QCOMPARE(header.width, 3); // The stored pixels; only the page is turned.
        QCOMPARE(header.sizeInPoints(), QSizeF(1, 3));
    }

    void resolutionUnitsAreHeeded_data() {
        QTest::addColumn<int>("unit");
        QTest::addColumn<double>("horizontal");
        QTest::addColumn<double>("vertical");
        QTest::newRow("inch") << int(RESUNIT_INCH) << 100.0 << 200.0;
        QTest::newRow("centimetre") << int(RESUNIT_CENTIMETER) << 254.0 << 508.0;
        QTest::newRow("none") << int(RESUNIT_NONE) << 72.0 << 72.0;
    }

    void resolutionUnitsAreHeeded() {
        QFETCH(int, unit);
        QFETCH(double, horizontal);
        QFETCH(double, vertical);
        const QString path = tiff(3, 1, "abc", [&](TIFF *tif) {
            setSamples(tif, 1, 8, PHOTOMETRIC_MINISBLACK);
            TIFFSetField(tif, TIFFTAG_RESOLUTIONUNIT, unit);
            TIFFSetField(tif, TIFFTAG_XRESOLUTION, 100.0);
            TIFFSetField(tif, TIFFTAG_YRESOLUTION, 200.0);
        });
        QCOMPARE(readImageHeader(path).horizontalDpi, horizontal);
        QCOMPARE(readImageHeader(path).verticalDpi, vertical);
    }

    void labOfSixteenBitsCountsIn256ths() {
        const QString path = tiff(1, 1, bytesOfValues<quint16>({0xFFFF, 0, 0x8000}),
                                  [](TIFF *tif) { setSamples(tif, 3, 16, PHOTOMETRIC_CIELAB); });
        const PdfImage image = toPdfImage(path);
        QCOMPARE(unzipped(image.data).last(6), QByteArray::fromHex("ffff80000000"));
        // By the Decode array, a sample of 0x8000 is no colour at all and 0 is -128.
        QCOMPARE(image.decode.size(), size_t(6));
        const double neutral =
            image.decode[2] + 0x8000 / 65535.0 * (image.decode[3] - image.decode[2]);
        QVERIFY(qAbs(neutral) < 0.002);
        QCOMPARE(image.decode[2], -128.0);
    }

  private:
    QTemporaryDir m_folder;

    template<typename SetUp>
    QString tiff(int width, int height, QByteArray data, const SetUp &setUp,
                 const char *mode = "w") {
        return writeStrip(m_folder.filePath(u"picture.tif"_s), {width, height}, std::move(data),
                          setUp, mode);
    }
};

FOLIOFORGE_TEST(TiffTest)
#include "TiffTest.moc"
