// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "WrittenTiff.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>
#include <vector>

#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// TIFF files that libtiff writes.

namespace {

template<typename T> QByteArray bytesOfValues(const std::vector<T> &values) {
    return {reinterpret_cast<const char *>(values.data()), qsizetype(values.size() * sizeof(T))};
}

/// The most memory that the process has had, in bytes.
qint64 peakMemory() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
#ifdef Q_OS_MACOS
    return usage.ru_maxrss;
#else
    return usage.ru_maxrss * qint64(1024);
#endif
}

} // namespace

class TiffTest : public QObject {
    Q_OBJECT

    /// A picture of 32 x 32 pixels as most writers put JPEG into TIFF.
    QString jpegOfBrightnessAndColor() {
        constexpr uint32_t kSide = 32;
        QString path = m_folder.filePath(u"ycbcr.tif"_s);
        const auto tif = openTiff(path, "w");
        TIFFSetField(tif.get(), TIFFTAG_IMAGEWIDTH, kSide);
        TIFFSetField(tif.get(), TIFFTAG_IMAGELENGTH, kSide);
        setSamples(tif.get(), 3, 8, PHOTOMETRIC_YCBCR);
        TIFFSetField(tif.get(), TIFFTAG_ROWSPERSTRIP, kSide);
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

  private Q_SLOTS:
    void colorsOfAJpegInATiffAreThoseOfLibtiff_data() {
        QTest::addColumn<QString>("path");
        QTest::newRow("RGB") << imageFile(u"jpeg.tif"_s);
        QTest::newRow("YCbCr") << jpegOfBrightnessAndColor();
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

    void shortDataIsRefused() {
        const QString path = tiff(20000, 20000, QByteArray(2000, 'x'),
                                  [](TIFF *tif) { setSamples(tif, 3, 8, PHOTOMETRIC_YCBCR); });
        QCOMPARE(refusalOf(path), u"The file is too short for the image its header describes"_s);
    }

    void aTextThatShouldLieFarBehindTheEndTakesNoMemory() {
        QByteArray bytes("II*\0\x08\0\0\0\x0A\0", 10);
        const auto add = [&bytes](const std::vector<quint32> &tag) {
            const auto numbers = bytesOfValues(tag);
            bytes += numbers.first(2) + numbers.sliced(4, 2) + numbers.sliced(8, 8);
        };
        constexpr quint32 kBytes = 300'000'000;
        for (const std::vector<quint32> &tag : std::vector<std::vector<quint32>>{
                 {TIFFTAG_IMAGEWIDTH, TIFF_SHORT, 1, 4},
                 {TIFFTAG_IMAGELENGTH, TIFF_SHORT, 1, 8},
                 {TIFFTAG_BITSPERSAMPLE, TIFF_SHORT, 1, 8},
                 {TIFFTAG_COMPRESSION, TIFF_SHORT, 1, COMPRESSION_NONE},
                 {TIFFTAG_PHOTOMETRIC, TIFF_SHORT, 1, PHOTOMETRIC_MINISBLACK},
                 {TIFFTAG_IMAGEDESCRIPTION, TIFF_ASCII, kBytes, 1000},
                 {TIFFTAG_STRIPOFFSETS, TIFF_LONG, 1, 134},
                 {TIFFTAG_SAMPLESPERPIXEL, TIFF_SHORT, 1, 1},
                 {TIFFTAG_ROWSPERSTRIP, TIFF_SHORT, 1, 8},
                 {TIFFTAG_STRIPBYTECOUNTS, TIFF_LONG, 1, 32}}) {
            add(tag);
        }
        bytes += QByteArray(4 + 16, '\0'); // No further page, and half of the rows.
        const qint64 before = peakMemory();
        const PdfImage image = toPdfImage(writeFile(m_folder.filePath(u"text.tif"_s), bytes));
        QCOMPARE(warningsOf(image), QStringList(u"picture-damaged: The picture is cut off: 50 % of "
                                                u"its rows could not be read"_s));
        QVERIFY(peakMemory() - before < kBytes / 3);
    }

    void rowsWithoutAStripAreMissing() {
        QByteArray bytes = bytesOf(imageFile(u"colour-None.tif"_s));
        const QByteArray rows("\x01\x01\x03\x00\x01\x00\x00\x00\x10", 9); // Which are 16.
        const qsizetype at = bytes.indexOf(rows);
        QVERIFY(at > 0);
        bytes[at + 8] = 40;
        const PdfImage image = toPdfImage(writeFile(m_folder.filePath(u"tall.tif"_s), bytes));
        QCOMPARE(warningsOf(image), QStringList(u"picture-damaged: The picture is cut off: 60 % of "
                                                u"its rows could not be read"_s));
        const QByteArray pixels = rgbRows(image);
        const QByteArray all = rgbRows(toPdfImage(imageFile(u"colour-None.tif"_s)));
        QCOMPARE(pixels.first(all.size()), all);
        QCOMPARE(pixels.sliced(all.size()), QByteArray(pixels.size() - all.size(), '\0'));
    }

    void aFaxThatEndsInARowOfOnesIsWhole() {
        // Two rows of ten black pixels, of which the second is as the one above.
        const QByteArray data("\x26\xA1\x30\x01\x00\x10", 6);
        const PdfImage image = toPdfImage(tiff(10, 2, data, [](TIFF *tif) {
            setSamples(tif, 1, 1, PHOTOMETRIC_MINISBLACK);
            TIFFSetField(tif, TIFFTAG_COMPRESSION, COMPRESSION_CCITTFAX4);
        }));
        QCOMPARE(warningsOf(image), QStringList());
        QCOMPARE(rgbRows(image), QByteArray(2 * 10 * 3, '\xFF'));
    }

    void rowsOfGroup4BehindAFaultAreMissing() {
        // Four white and four black pixels in horizontal mode, a row as the one above, a code that
        // is none, and what would be more such rows.
        const QByteArray bits = "001101101111000000011" + QByteArray(40, '1');
        QByteArray data;
        for (qsizetype at = 0; at + 8 <= bits.size(); at += 8) {
            data += static_cast<char>(bits.sliced(at, 8).toInt(nullptr, 2));
        }
        const PdfImage image = toPdfImage(tiff(8, 8, data, [](TIFF *tif) {
            setSamples(tif, 1, 1, PHOTOMETRIC_MINISWHITE);
            TIFFSetField(tif, TIFFTAG_COMPRESSION, COMPRESSION_CCITTFAX4);
        }));
        QCOMPARE(warningsOf(image), QStringList(u"picture-damaged: The picture is cut off: 75 % of "
                                                u"its rows could not be read"_s));
        const QByteArray there = QByteArray(12, '\xFF') + QByteArray(12, '\0');
        QCOMPARE(rgbRows(image), there.repeated(2) + QByteArray(6 * 24, '\xFF'));
    }

    void whatIsWrongIsSaidInPlainWords_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("words");
        const QByteArray whole = bytesOf(imageFile(u"colour-None.tif"_s));
        QByteArray compressed = whole;
        const QByteArray compression("\x03\x01\x03\x00\x01\x00\x00\x00", 8); // And its value.
        compressed[whole.indexOf(compression) + 8] = '\x99';
        QTest::newRow("compression") << compressed << u"its compression is not supported"_s;
        QTest::newRow("directory") << whole.first(1000) << u"its directory is damaged"_s;
    }

    void whatIsWrongIsSaidInPlainWords() {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, words);
        const QString path = writeFile(m_folder.filePath(u"wrong.tif"_s), bytes);
        QCOMPARE(refusalOf(path), u"The TIFF file cannot be read: "_s + words);
    }

  private:
    QTemporaryDir m_folder;

    /// One strip of `data`; `setUp` adds what the picture needs.
    template<typename SetUp>
    QString tiff(int width, int height, QByteArray data, const SetUp &setUp,
                 const char *mode = "w") {
        QString path = m_folder.filePath(u"picture.tif"_s);
        const auto tif = openTiff(path, mode);
        TIFFSetField(tif.get(), TIFFTAG_IMAGEWIDTH, width);
        TIFFSetField(tif.get(), TIFFTAG_IMAGELENGTH, height);
        TIFFSetField(tif.get(), TIFFTAG_ROWSPERSTRIP, height);
        TIFFSetField(tif.get(), TIFFTAG_COMPRESSION, COMPRESSION_NONE);
        TIFFSetField(tif.get(), TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
        setUp(tif.get());
        TIFFWriteRawStrip(tif.get(), 0, data.data(), data.size());
        return path;
    }
};

FOLIOFORGE_TEST(TiffTest)
#include "TiffTest.moc"
