// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "FileParts.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>

#include <bit>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Photoshop documents byte by byte.

class PsdTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void bitmapStaysOneBitAndBlackIsOne() {
        const PdfImage image =
            toPdfImage(psd({1, 9, 2, 1, 0, {}, QByteArray::fromHex("80004080")}));
        QCOMPARE(image.bitsPerComponent, 1);
        const QImage picture = decoded(image);
        QCOMPARE(qGray(picture.pixel(0, 0)), 0);
        QCOMPARE(qGray(picture.pixel(1, 0)), 255);
        QCOMPARE(qGray(picture.pixel(1, 1)), 0);
        QCOMPARE(qGray(picture.pixel(8, 1)), 0);
    }

    void inkIsStoredInverted() {
        const PdfImage image =
            toPdfImage(psd({4, 1, 1, 8, 4, {}, QByteArray::fromHex("ff80ffff")}));
        QCOMPARE(image.color, ImageColor::Cmyk);
        QCOMPARE(image.decode, (std::vector<double>{1, 0, 1, 0, 1, 0, 1, 0}));
    }

    void resolutionAndProfileAreRead() {
        const QByteArray resolution = big(quint32(300 << 16)) + big(quint16(2)) + big(quint16(1)) +
                                      big(quint32(150 << 16)) + big(quint16(1)) + big(quint16(1));
        QByteArray profile(130, '\0');
        profile.replace(0, 4, big(quint32(130)));
        profile.replace(16, 4, "GRAY").replace(36, 4, "acsp").replace(12, 4, "mntr");
        const QString path =
            psd({1, 2, 1, 8, 1,
                 photoshopResource(1005, resolution) + photoshopResource(1039, profile), "\1\2"});
        QCOMPARE(readImageHeader(path).horizontalDpi, 300.0);
        QCOMPARE(readImageHeader(path).verticalDpi, 150.0);
        QCOMPARE(toPdfImage(path).iccProfile, profile);
    }

    void labKeepsThreeComponents() {
        const PdfImage image = toPdfImage(psd({3, 1, 1, 8, 9, {}, QByteArray::fromHex("ff807b")}));
        QCOMPARE(image.color, ImageColor::Lab);
        QCOMPARE(unzipped(image.data).last(3), QByteArray::fromHex("ff807b"));
    }

    void brightnessOf32BitsBecomes16() {
        const auto light = [](float value) { return big(std::bit_cast<quint32>(value)); };
        const PdfImage image =
            toPdfImage(psd({1, 3, 1, 32, 1, {}, light(0) + light(0.5F) + light(7)}));
        QCOMPARE(image.bitsPerComponent, 16);
        const QImage picture = decoded(image).convertToFormat(QImage::Format_Grayscale16);
        const auto *samples = reinterpret_cast<const quint16 *>(picture.constScanLine(0));
        QCOMPARE(samples[0], quint16(0));
        // Half the light is 0.7354 in sRGB.
        QVERIFY(qAbs(samples[1] - 48192) <= 2);
        QCOMPARE(samples[2], quint16(65535));
    }

    void fourthChannelIsOpacity() {
        const QByteArray pixels = QByteArray::fromHex("0a0b141528296480");
        const PdfImage image = toPdfImage(psd({4, 2, 1, 8, 3, {}, pixels}));
        QVERIFY(image.softMask != nullptr);
        QCOMPARE(qGray(decoded(*image.softMask).pixel(1, 0)), 0x80);
        QCOMPARE(decoded(image).pixel(0, 0), qRgb(10, 20, 40));
    }

    void whiteBehindColorsIsTakenAway() {
        // One layer, whose colours lie on white: red 0, green 100 and blue 255 of half opacity, and
        // black of a quarter.
        const QByteArray layers = QByteArray::fromHex("00000002ffff");
        const auto like = [&](const char *planes) {
            return decoded(
                toPdfImage(psd({4, 2, 1, 8, 3, {}, QByteArray::fromHex(planes), layers})));
        };
        const QImage onWhite = like("7fbf b1bf ffbf 8040");
        QCOMPARE(onWhite.pixel(0, 0), qRgb(0, 100, 255));
        QCOMPARE(onWhite.pixel(1, 0), qRgb(0, 0, 0));
        // A pixel of half opacity that is darker than on white.
        const QImage straight = like("3232 3232 3232 8080");
        QCOMPARE(straight.pixel(0, 0), qRgb(50, 50, 50));
    }

    void oneColorOfAPaletteMayBeTransparent() {
        QByteArray palette; // All reds, then all greens, then all blues.
        for (int i = 0; i < 256; ++i) {
            palette += static_cast<char>(i);
        }
        for (int i = 0; i < 256; ++i) {
            palette += static_cast<char>(255 - i);
        }
        palette += QByteArray(256, '\7');
        const PdfImage image =
            toPdfImage(psd({1, 2, 1, 8, 2, photoshopResource(1047, big(quint16(2))), "\1\2",
                            QByteArray(), palette}));
        QCOMPARE(decoded(image).pixel(0, 0), qRgb(1, 254, 7));
        QVERIFY(image.softMask != nullptr);
        const QImage mask = decoded(*image.softMask);
        QCOMPARE(qGray(mask.pixel(0, 0)), 255);
        QCOMPARE(qGray(mask.pixel(1, 0)), 0);
    }

    void opacityOf32BitsIsNoLight() {
        const auto fraction = [](float value) { return big(std::bit_cast<quint32>(value)); };
        const PdfImage image = toPdfImage(
            psd({2, 2, 1, 32, 1, {}, fraction(1) + fraction(1) + fraction(0.5F) + fraction(1)}));
        QVERIFY(image.softMask != nullptr);
        const QImage mask = decoded(*image.softMask).convertToFormat(QImage::Format_Grayscale16);
        const auto *samples = reinterpret_cast<const quint16 *>(mask.constScanLine(0));
        QVERIFY(qAbs(samples[0] - 32768) <= 1);
        QCOMPARE(samples[1], quint16(65535));
    }

    void packedRowsAreUnpacked_data() {
        QTest::addColumn<bool>("isBig");
        QTest::addColumn<QByteArray>("lengths");
        QTest::newRow("PSD") << false << QByteArray::fromHex("0006 0004");
        QTest::newRow("PSB") << true << QByteArray::fromHex("00000006 00000004");
    }
    void packedRowsAreUnpacked() {
        QFETCH(const bool, isBig);
        QFETCH(const QByteArray, lengths);
        // Two bytes as they are, nothing, and three times one; then one as it is and four of one.
        const QByteArray rows =
            QByteArray::fromHex("010a0b80fe0c") + QByteArray::fromHex("0001fd02");
        Parts parts{1, 5, 2, 8, 1, {}, lengths + rows};
        parts.compression = 1;
        parts.isBig = isBig;
        const QImage picture = decoded(toPdfImage(psd(parts)));
        QByteArray greys;
        for (int i = 0; i < 10; ++i) {
            greys += static_cast<char>(qGray(picture.pixel(i % 5, i / 5)));
        }
        QCOMPARE(greys.toHex(), QByteArray("0a0b0c0c0c0102020202"));
    }

    void unknownCompressionIsRefused() {
        Parts parts{1, 2, 1, 8, 1, {}, "abcdef"};
        parts.compression = 2;
        QCOMPARE(refusalOf(psd(parts)), u"The Photoshop file's compression is unknown"_s);
    }

    void layersWithoutAMergedImageAreRefused() {
        const auto version = [](char hasMerged) {
            return photoshopResource(1057, big(quint32(1)) + hasMerged + QByteArray(8, '\0'));
        };
        const QByteArray blank(6, '\xff');
        const QByteArray layers(16, '\1');
        const QString reason = refusalOf(psd({3, 2, 1, 8, 3, version('\0'), blank, layers}));
        QVERIFY2(reason.startsWith(u"The Photoshop file holds its layers alone"_s),
                 qPrintable(reason));
        // A picture that is white, one without layers, and one that is there all the same.
        QCOMPARE(refusalOf(psd({3, 2, 1, 8, 3, version('\1'), blank, layers})), QString());
        QCOMPARE(refusalOf(psd({3, 2, 1, 8, 3, version('\0'), blank})), QString());
        QCOMPARE(refusalOf(psd({3, 2, 1, 8, 3, version('\0'), "abcdef", layers})), QString());
    }

    void rowsThatAreMissingHaveNoInk() {
        const PdfImage image =
            toPdfImage(psd({4, 1, 2, 8, 4, {}, QByteArray::fromHex("1020304050")}));
        QCOMPARE(unzipped(image.data).last(4), QByteArray::fromHex("2040ffff"));
    }

    void namedChannelIsNoOpacity() {
        const QByteArray pixels = QByteArray::fromHex("0a0b141528296480");
        QVERIFY(
            toPdfImage(psd({4, 2, 1, 8, 3, photoshopResource(1006, "\5Spots"), pixels})).softMask ==
            nullptr);
    }

  private:
    QTemporaryDir m_folder;

    struct Parts {
        int channels;
        int width;
        int height;
        int depth;
        int mode;
        QByteArray resources;
        QByteArray pixels;
        QByteArray layers = {};
        QByteArray palette = {};
        int compression = 0;
        bool isBig = false;
    };

    QString psd(const Parts &parts) {
        QByteArray bytes = "8BPS" + big(quint16(parts.isBig ? 2 : 1)) + QByteArray(6, '\0') +
                           big(quint16(parts.channels)) + big(quint32(parts.height)) +
                           big(quint32(parts.width)) + big(quint16(parts.depth)) +
                           big(quint16(parts.mode));
        bytes += big(quint32(parts.palette.size())) + parts.palette;
        bytes += big(quint32(parts.resources.size())) + parts.resources;
        bytes += QByteArray(parts.isBig ? 4 : 0, '\0');
        bytes += big(quint32(parts.layers.size())) + parts.layers;
        bytes += big(quint16(parts.compression)) + parts.pixels;
        return writeFile(m_folder.filePath(u"picture.psd"_s), bytes);
    }
};

FOLIOFORGE_TEST(PsdTest)
#include "PsdTest.moc"
