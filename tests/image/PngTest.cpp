// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "image/Bytes.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

class PngTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void transparentPaletteKeepsItsRows() {
        QImage picture(QSize(5, 3), QImage::Format_Indexed8);
        picture.setColorTable({qRgba(255, 0, 0, 255), qRgba(0, 255, 0, 128), qRgba(0, 0, 255, 0)});
        for (int y = 0; y < 3; ++y) {
            for (int x = 0; x < 5; ++x) {
                picture.setPixel(x, y, static_cast<uint>((x + y) % 3));
            }
        }
        const QString path = m_folder.filePath(u"palette.png"_s);
        QVERIFY(picture.save(path));
        const PdfImage image = toPdfImage(path);
        QCOMPARE(image.embeddedAs, EmbeddedAs::OwnBytes);
        QCOMPARE(image.color, ImageColor::Indexed);
        QCOMPARE(image.palette.first(9), QByteArray::fromHex("ff000000ff000000ff"));
        QVERIFY(image.softMask != nullptr);
        const QImage mask = decoded(*image.softMask);
        QCOMPARE(qGray(mask.pixel(0, 0)), 255);
        QCOMPARE(qGray(mask.pixel(1, 0)), 128);
        QCOMPARE(qGray(mask.pixel(2, 0)), 0);
        QCOMPARE(qGray(mask.pixel(4, 2)), 255);
    }

    void framesOfAnAnimationAreNamed() {
        const QByteArray still = bytesOf(imageFile(u"colour.png"_s));
        const auto framesOf = [&](char count, bool isPictureFirst) {
            QByteArray chunks = pngChunk("acTL", QByteArray(3, '\0') + count + QByteArray(4, '\0'));
            const QByteArray control = pngChunk("fcTL", QByteArray(26, '\0'));
            chunks += isPictureFirst ? control : QByteArray();
            QByteArray bytes = still;
            bytes.insert(33, chunks); // Behind the header's chunk.
            return warningsOf(toPdfImage(write(bytes.insert(bytes.size() - 12, control))));
        };
        QCOMPARE(warningsOf(toPdfImage(write(still))), QStringList());
        QCOMPARE(framesOf(3, true), QStringList(u"more-pictures: 2 further frames are left out"_s));
        QCOMPARE(framesOf(1, true), QStringList());
        QCOMPARE(framesOf(1, false), QStringList(u"more-pictures: 1 further frame is left out"_s));
    }

    void filteredRowsAreSplitByChannel() {
        // Each row of the picture asks for another filter, so that libpng uses them all.
        QImage picture(64, 40, QImage::Format_ARGB32);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const int red = y % 5 == 0 ? x * 4 : y % 5 == 1 ? (x * 7919) % 251 : y * 6;
                picture.setPixel(x, y, qRgba(red, (x * y) % 256, (x + y) % 256, 255 - x * 2));
            }
        }
        const QString path = m_folder.filePath(u"filters.png"_s);
        QVERIFY(picture.save(path));
        const PdfImage image = toPdfImage(path);
        const QImage color = decoded(image);
        const QImage alpha = decoded(*image.softMask);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                QCOMPARE(color.pixel(x, y) & 0xFFFFFF, picture.pixel(x, y) & 0xFFFFFF);
                QCOMPARE(qGray(alpha.pixel(x, y)), qAlpha(picture.pixel(x, y)));
            }
        }
    }

    void damagedRowsAreRefused() {
        QByteArray bytes = bytesOf(imageFile(u"colour.png"_s));
        const qsizetype rows = bytes.indexOf("IDAT") + 20;
        bytes[rows] = static_cast<char>(bytes.at(rows) ^ 1);
        QCOMPARE(refusalOf(write(bytes)), u"The PNG file is damaged"_s);
    }

    void fileWithoutAWholeRowIsRefused() {
        const QByteArray bytes = bytesOf(imageFile(u"colour.png"_s));
        QCOMPARE(refusalOf(write(bytes.first(bytes.indexOf("IDAT") + 10))),
                 u"The PNG file is damaged"_s);
        QCOMPARE(refusalOf(write(bytes.first(bytes.indexOf("IDAT")))),
                 u"The PNG file holds no picture"_s);
    }

    void missingEndLeavesThePicture() {
        const QByteArray bytes = bytesOf(imageFile(u"colour.png"_s));
        const PdfImage image = toPdfImage(write(bytes.chopped(12)));
        QCOMPARE(warningsOf(image), QStringList());
        QCOMPARE(rgbRows(image), rgbRows(toPdfImage(imageFile(u"colour.png"_s))));
    }

    void damagedPaletteIsNamed() {
        QByteArray bytes = bytesOf(imageFile(u"palette.png"_s));
        const qsizetype color = bytes.indexOf("PLTE") + 4;
        bytes[color] = static_cast<char>(bytes.at(color) ^ 1);
        QCOMPARE(
            warningsOf(toPdfImage(write(bytes))),
            QStringList(u"picture-damaged: The picture is damaged: parts of it may look wrong"_s));
    }

    void profileIsInflatedAndKept() {
        QByteArray profile(200, '\0');
        profile[3] = char(200);
        profile.replace(12, 4, "mntr").replace(16, 4, "RGB ").replace(36, 4, "acsp");
        const QByteArray zipped = qCompress(profile).mid(4);
        QByteArray bytes = bytesOf(imageFile(u"colour.png"_s));
        bytes.insert(33, pngChunk("iCCP", QByteArray("name\0\0", 6) + zipped)); // After IHDR.
        const PdfImage image = toPdfImage(write(bytes));
        QCOMPARE(image.iccProfile, profile);
        QVERIFY(toPdfImage(imageFile(u"colour.png"_s)).iccProfile.isEmpty());
        bytes = bytesOf(imageFile(u"colour.png"_s));
        bytes.insert(33, pngChunk("iCCP", QByteArray("name\0\0", 6) + zipped.first(10)));
        QVERIFY(toPdfImage(write(bytes)).iccProfile.isEmpty()); // Damaged, but the picture is not.
    }

    void orientationAfterTheRowsIsRead() {
        const QByteArray exif =
            QByteArray::fromHex("4d4d002a00000008" // Big-endian, directory at 8.
                                "0001"
                                "011200030000000100080000"
                                "00000000");
        QByteArray bytes = bytesOf(imageFile(u"colour.png"_s));
        bytes.insert(bytes.size() - 12, pngChunk("eXIf", exif));
        const ImageHeader header = readImageHeader(write(bytes));
        QCOMPARE(header.orientation, 8);
        QCOMPARE(header.sizeInPoints(), QSizeF(16, 24));
    }

    void paletteOfTooManyColorsIsRefused() {
        QByteArray bytes = bytesOf(imageFile(u"palette.png"_s));
        bytes.insert(bytes.indexOf("IDAT") - 4,
                     pngChunk("PLTE", QByteArray(qsizetype{3} * 257, '\1')));
        QCOMPARE(refusalOf(write(bytes)), u"The PNG file has no palette"_s);
    }

    void claimOfManyPixelsInFewBytesIsRefused() {
        QByteArray bytes = bytesOf(imageFile(u"translucent.png"_s));
        bytes.replace(16, 8, QByteArray::fromHex("0000520800005208")); // 21,000 x 21,000.
        QCOMPARE(refusalOf(write(bytes)),
                 u"The file is too short for the image its header describes"_s);
    }

    void sampleBehindMoreBitsThanAnIntCountsIsFound() {
        // A picture of so wide a row takes seconds and gigabytes; of these bytes only the end is
        // used.
        QByteArray row((1 << 28) + 1, Qt::Uninitialized);
        row.back() = '\x2A';
        const auto *bytes = reinterpret_cast<const uchar *>(row.constData());
        QCOMPARE(packedSample(bytes, row.size() - 1, 8), 0x2A);
        QCOMPARE(packedSample(bytes, 4 * row.size() - 2, 2), 2);
    }

  private:
    QTemporaryDir m_folder;

    QString write(const QByteArray &bytes) {
        return writeFile(m_folder.filePath(u"picture.png"_s), bytes);
    }
};

FOLIOFORGE_TEST(PngTest)
#include "PngTest.moc"
