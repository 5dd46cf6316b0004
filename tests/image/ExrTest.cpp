// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <ImfArray.h>
#include <ImfChannelList.h>
#include <ImfFrameBuffer.h>
#include <ImfHeader.h>
#include <ImfMultiPartOutputFile.h>
#include <ImfOutputPart.h>
#include <ImfPartType.h>
#include <ImfRgbaFile.h>
#include <ImfStandardAttributes.h>
#include <ImfTiledRgbaFile.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// EXR files that OpenEXR writes.

namespace {

struct Deep {
    int red;
    int green;
    int blue;
};

Deep deepPixel(const PdfImage &image, int x) {
    const QRgba64 pixel = decoded(image).pixelColor(x, 0).rgba64();
    return {pixel.red(), pixel.green(), pixel.blue()};
}

} // namespace

class ExrTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void lightBecomesSrgbOfSixteenBits() {
        const PdfImage image = toPdfImage(exr({{0.0F, 0.5F, 1.0F}, {0.25F, 0.002F, 0.0F}}));
        QCOMPARE(image.bitsPerComponent, 16);
        QVERIFY(image.softMask == nullptr);
        const Deep first = deepPixel(image, 0);
        QCOMPARE(first.red, 0);
        QVERIFY(qAbs(first.green - 48192) < 3); // 0.73536
        QCOMPARE(first.blue, 65535);
        const Deep second = deepPixel(image, 1);
        QVERIFY(qAbs(second.red - 35199) < 3);  // 0.53710
        QVERIFY(qAbs(second.green - 1693) < 3); // 0.002 is 12.92 times as much.
    }

    void brighterThanWhiteIsWhiteAndNoNumberIsBlack() {
        const float nothing = std::numeric_limits<float>::quiet_NaN();
        const PdfImage image = toPdfImage(exr({{9.0F, nothing, -3.0F}}));
        const Deep pixel = deepPixel(image, 0);
        QCOMPARE(pixel.red, 65535);
        QCOMPARE(pixel.green, 0);
        QCOMPARE(pixel.blue, 0);
    }

    void opacityIsTakenOutOfTheColor() {
        const PdfImage image =
            toPdfImage(exr({{0.25F, 0.0F, 0.5F, 0.5F}, {0.5F, 0.5F, 0.5F, 1.0F}}, Imf::WRITE_RGBA));
        QVERIFY(image.softMask != nullptr);
        QVERIFY(qAbs(deepPixel(*image.softMask, 0).red - 32768) <= 1);
        QCOMPARE(deepPixel(*image.softMask, 1).red, 65535);
        QVERIFY(qAbs(deepPixel(image, 0).red - 48192) < 3); // 0.25 of half opacity is 0.5 of light.
        QCOMPARE(deepPixel(image, 0).blue, 65535);
    }

    void brightnessAloneStaysGrey() {
        const PdfImage image = toPdfImage(oneChannel({{}}, "Y"));
        QCOMPARE(image.color, ImageColor::Gray);
        QCOMPARE(deepPixel(image, 0).red, 65535);
        QVERIFY(qAbs(deepPixel(image, 1).red - 48192) < 3);
    }

    void brightnessWithHalvedColorBecomesRgb() {
        const QString path = m_folder.filePath(u"chroma.exr"_s);
        {
            const std::vector<Imf::Rgba> pixels(8 * 4, Imf::Rgba(0.5F, 0.25F, 0.0F));
            Imf::RgbaOutputFile file(QFile::encodeName(path).constData(), Imf::Header(8, 4),
                                     Imf::WRITE_YC);
            file.setFrameBuffer(pixels.data(), 1, 8);
            file.writePixels(4);
        }
        const PdfImage image = toPdfImage(path);
        QCOMPARE(image.color, ImageColor::Rgb);
        const Deep pixel = deepPixel(image, 3);
        QVERIFY(qAbs(pixel.red - 48192) < 300); // Brightness and colour are rounded apart.
        QVERIFY(qAbs(pixel.green - 35199) < 300);
        QVERIFY(pixel.blue < 1000);
    }

    void tilesComeOutInTheirPlaces() {
        const QString path = m_folder.filePath(u"tiles.exr"_s);
        {
            std::vector<Imf::Rgba> pixels(40 * 20, Imf::Rgba(0.0F, 0.0F, 0.0F));
            pixels[39] = Imf::Rgba(1.0F, 0.0F, 0.0F);
            Imf::TiledRgbaOutputFile file(QFile::encodeName(path).constData(), 40, 20, 16, 16,
                                          Imf::ONE_LEVEL, Imf::ROUND_DOWN, Imf::WRITE_RGB);
            file.setFrameBuffer(pixels.data(), 1, 40);
            file.writeTiles(0, file.numXTiles() - 1, 0, file.numYTiles() - 1);
        }
        const PdfImage image = toPdfImage(path);
        QCOMPARE(QSize(image.width, image.height), QSize(40, 20));
        QCOMPARE(deepPixel(image, 39).red, 65535);
        QCOMPARE(deepPixel(image, 38).red, 0);
    }

    void missingColorsAreNone_data() {
        QTest::addColumn<QByteArray>("channel");
        QTest::newRow("red alone") << QByteArray("R");
        QTest::newRow("green alone") << QByteArray("G");
        QTest::newRow("blue alone") << QByteArray("B");
    }

    void missingColorsAreNone() {
        QFETCH(const QByteArray, channel);
        const Deep pixel = deepPixel(toPdfImage(oneChannel({{}}, channel)), 0);
        QCOMPARE(pixel.red, channel == "R" ? 65535 : 0);
        QCOMPARE(pixel.green, channel == "G" ? 65535 : 0);
        QCOMPARE(pixel.blue, channel == "B" ? 65535 : 0);
    }

    void furtherPartsAreNamed() {
        QCOMPARE(warningsOf(toPdfImage(oneChannel({{}}, "Y"))), QStringList());
        QCOMPARE(warningsOf(toPdfImage(oneChannel({"left", "right", "depth"}, "Y"))),
                 QStringList(u"more-pictures: 2 further parts are left out"_s));
    }

    void windowMayBeginAnywhere() {
        Imf::Header header(2, 1);
        header.dataWindow() = Imath::Box2i({-7, 3}, {-6, 3});
        const PdfImage image =
            toPdfImage(exr({{1.0F, 0.0F, 0.0F}, {0.0F, 1.0F, 0.0F}}, Imf::WRITE_RGB, header));
        QCOMPARE(deepPixel(image, 0).red, 65535);
        QCOMPARE(deepPixel(image, 1).green, 65535);
    }

    void densityIsRead() {
        Imf::Header header(1, 1);
        Imf::addXDensity(header, 300);
        const ImageHeader read = readImageHeader(exr({{1.0F, 0.0F, 0.0F}}, Imf::WRITE_RGB, header));
        QCOMPARE(read.horizontalDpi, 300.0);
        QCOMPARE(read.verticalDpi, 300.0);
    }

    void cutFileIsRefused() {
        const QByteArray bytes = bytesOf(exr({{1.0F, 0.0F, 0.0F}}));
        const QString path =
            writeFile(m_folder.filePath(u"cut.exr"_s), bytes.first(bytes.size() / 2));
        QVERIFY(!refusalOf(path).isEmpty());
    }

  private:
    QTemporaryDir m_folder;

    /// Parts of these names, each with one channel of full and half light.
    QString oneChannel(const std::vector<std::string> &parts, const QByteArray &channel) {
        QString path = m_folder.filePath(u"channel.exr"_s);
        std::vector<Imf::Header> headers;
        for (const std::string &part : parts) {
            Imf::Header header(2, 1);
            header.setName(part);
            header.setType(Imf::SCANLINEIMAGE);
            header.channels().insert(channel.constData(), Imf::Channel(Imf::FLOAT));
            headers.push_back(header);
        }
        Imf::MultiPartOutputFile file(QFile::encodeName(path).constData(), headers.data(),
                                      static_cast<int>(headers.size()));
        for (int number = 0; number < file.parts(); ++number) {
            std::vector<float> row = {1.0F, 0.5F};
            Imf::FrameBuffer buffer;
            buffer.insert(
                channel.constData(),
                Imf::Slice(Imf::FLOAT, reinterpret_cast<char *>(row.data()), sizeof(float), 0));
            Imf::OutputPart part(file, number);
            part.setFrameBuffer(buffer);
            part.writePixels(1);
        }
        return path;
    }

    /// A row of pixels as an EXR file with these channels.
    QString exr(const std::vector<Imf::Rgba> &row, Imf::RgbaChannels channels, Imf::Header header) {
        QString path = m_folder.filePath(u"light.exr"_s);
        Imf::RgbaOutputFile file(QFile::encodeName(path).constData(), header, channels);
        file.setFrameBuffer(row.data() - header.dataWindow().min.x, 1, 0);
        file.writePixels(1);
        return path;
    }

    QString exr(const std::vector<Imf::Rgba> &row, Imf::RgbaChannels channels = Imf::WRITE_RGB) {
        return exr(row, channels, Imf::Header(static_cast<int>(row.size()), 1));
    }
};

FOLIOFORGE_TEST(ExrTest)
#include "ExrTest.moc"
