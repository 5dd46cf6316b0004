// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "error/Error.h"
#include "image/Bytes.h"
#include "image/RowFilter.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <array>
#include <cstdlib>
#include <random>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

class PngTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void transparentPaletteKeepsItsRows() {
        QImage picture(QSize(5, 3), QImage::Format_Indexed8);
        // The file states no opacity of the last colour, which is opaque.
        picture.setColorTable({qRgba(255, 0, 0, 255), qRgba(0, 255, 0, 128), qRgba(0, 0, 255, 0),
                               qRgba(9, 9, 9, 255)});
        for (int y = 0; y < 3; ++y) {
            for (int x = 0; x < 5; ++x) {
                picture.setPixel(x, y, static_cast<uint>((x + y) % 4));
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
        QCOMPARE(qGray(mask.pixel(3, 0)), 255);
        QCOMPARE(qGray(mask.pixel(4, 2)), 0);
    }

    void greysOfFewBitsAreRead_data() {
        QTest::addColumn<int>("bits");
        for (const int bits : {1, 2, 4}) {
            QTest::addRow("%d", bits) << bits;
        }
    }
    void greysOfFewBitsAreRead() {
        QFETCH(const int, bits);
        const int whitest = (1 << bits) - 1;
        // Black, the darkest grey, white and black again, in as many bytes as they take.
        const quint32 four = ((1U << bits) | static_cast<quint32>(whitest)) << bits;
        QByteArray row(5, '\0'); // The number of its filter stands first.
        qToBigEndian(four << (32 - 4 * bits), row.data() + 1);
        const PdfImage image =
            toPdfImage(write(png(QSize(4, 1), bits, 0, row.first(1 + (4 * bits + 7) / 8))));
        QCOMPARE(image.bitsPerComponent, bits);
        const QImage shown = decoded(image);
        const QList<int> greys{0, 255 / whitest, 255, 0};
        for (int x = 0; x < 4; ++x) {
            QCOMPARE(qGray(shown.pixel(x, 0)), greys[x]);
        }
    }

    void anyBytesInPaethsRowsAreReadAsByLibpng_data() {
        QTest::addColumn<int>("bits");
        QTest::addColumn<int>("color");
        QTest::newRow("colour and opacity") << 8 << 6;
        QTest::newRow("deep colour and opacity") << 16 << 6;
        QTest::newRow("grey and opacity") << 8 << 4;
        QTest::newRow("deep grey and opacity") << 16 << 4;
    }
    void anyBytesInPaethsRowsAreReadAsByLibpng() {
        QFETCH(const int, bits);
        QFETCH(const int, color);
        constexpr QSize kSize(64, 64);
        std::minstd_rand numbers(1);
        QByteArray rows;
        for (int y = 0; y < kSize.height(); ++y) {
            rows += filteredRow(4, kSize.width() * (color == 6 ? 4 : 2) * bits / 8, numbers);
        }
        const QByteArray bytes = png(kSize, bits, color, rows);
        const QImage expected = QImage::fromData(bytes).convertToFormat(QImage::Format_ARGB32);
        const PdfImage image = toPdfImage(write(bytes));
        const QImage opaque = decoded(image);
        const QImage alpha = decoded(*image.softMask);
        // Qt may round sixteen bits to eight in another way.
        const auto isLike = [&](int one, int other) {
            return std::abs(one - other) <= (bits == 16 ? 1 : 0);
        };
        for (int y = 0; y < kSize.height(); ++y) {
            for (int x = 0; x < kSize.width(); ++x) {
                const QColor shown = opaque.pixelColor(x, y);
                const QColor wanted = expected.pixelColor(x, y);
                QVERIFY(isLike(qGray(alpha.pixel(x, y)), wanted.alpha()));
                QVERIFY(isLike(shown.red(), wanted.red()));
                QVERIFY(isLike(shown.green(), wanted.green()));
                QVERIFY(isLike(shown.blue(), wanted.blue()));
            }
        }
    }

    void interlacedRowsAreReadAsByLibpng_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("bits");
        QTest::addColumn<int>("color");
        for (const int bits : {1, 2, 4, 8}) {
            QTest::addRow("grey of %d bits", bits) << QSize(13, 11) << bits << 0;
        }
        QTest::newRow("without some passes") << QSize(3, 2) << 4 << 0;
        QTest::newRow("colour") << QSize(13, 11) << 8 << 2;
    }
    void interlacedRowsAreReadAsByLibpng() {
        QFETCH(const QSize, size);
        QFETCH(const int, bits);
        QFETCH(const int, color);
        const int pixelBits = bits * (color == 2 ? 3 : 1);
        std::minstd_rand numbers(1);
        QByteArray rows;
        // The first column and row of each pass, and how far its pixels are apart.
        for (const auto &[left, top, right, down] :
             {std::array{0, 0, 8, 8}, std::array{4, 0, 8, 8}, std::array{0, 4, 4, 8},
              std::array{2, 0, 4, 4}, std::array{0, 2, 2, 4}, std::array{1, 0, 2, 2},
              std::array{0, 1, 1, 2}}) {
            const int columns = (size.width() - left + right - 1) / right;
            for (int y = top; columns > 0 && y < size.height(); y += down) {
                rows += filteredRow(1, (columns * pixelBits + 7) / 8, numbers);
            }
        }
        const QByteArray bytes = png(size, bits, color, rows, Rows::Interlaced);
        const QImage expected = QImage::fromData(bytes).convertToFormat(QImage::Format_RGB32);
        QVERIFY(!expected.isNull());
        QCOMPARE(decoded(toPdfImage(write(bytes))).convertToFormat(QImage::Format_RGB32), expected);
    }

    void oneGreyMayBeTransparent() {
        QByteArray bytes = png(QSize(3, 1), 8, 0, QByteArray("\0\4\5\6", 4));
        bytes.insert(33, pngChunk("tRNS", QByteArray("\0\5", 2))); // Behind the header's chunk.
        const PdfImage image = toPdfImage(write(bytes));
        QVERIFY(image.softMask != nullptr);
        QCOMPARE(rgbRows(*image.softMask).toHex(), QByteArray("ffffff000000ffffff"));
    }

    void rowsOfAnUnknownFilterHaveNone() {
        QByteArray rows = QByteArray::fromHex("050102 040304 ff0506 000708");
        dropUnknownFilters(rows, 3);
        QCOMPARE(rows.toHex(), QByteArray("000102040304000506000708"));
    }

    void rowsThatAreNotAllThereAreAnError() {
        constexpr int kFiltered = 2 * (1 + 5);
        QCOMPARE(unfilterRows(QByteArray(kFiltered, '\0'), 2, 5, 1), QByteArray(10, '\0'));
        QVERIFY_THROWS_EXCEPTION(Error, unfilterRows(QByteArray(kFiltered - 1, '\0'), 2, 5, 1));
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

    void missingChunksOfRowsAreTold_data() {
        QTest::addColumn<int>("size");
        QTest::newRow("equally long chunks") << 1000;
        QTest::newRow("chunks of a round size") << 4096;
    }
    void missingChunksOfRowsAreTold() {
        QFETCH(const int, size);
        const QByteArray packed = packedNoise();
        QList<QByteArray> chunks;
        for (qsizetype at = 0; at < packed.size(); at += size) {
            chunks += packed.sliced(at, std::min<qsizetype>(size, packed.size() - at));
        }
        QVERIFY(chunks.size() > 3);
        QCOMPARE(dataOf(toPdfImage(write(noise(chunks)))), packed);
        const auto isCutOff = [&](qsizetype count) {
            const auto warnings = warningsOf(toPdfImage(write(noise(chunks.first(count)))));
            return warnings.size() == 1 &&
                   warnings[0].startsWith(u"picture-damaged: The picture is cut off: "_s);
        };
        QVERIFY(isCutOff(chunks.size() - 1));
        QVERIFY(isCutOff(size == 4096 ? 1 : 2));
        QCOMPARE(refusalOf(write(noise(chunks.sliced(1)))), u"The PNG file is damaged"_s);
    }

    void wholeRowsInChunksOfRoundSizesStay() {
        const QByteArray packed = packedNoise();
        QCOMPARE(dataOf(toPdfImage(write(noise({packed, {}})))), packed);
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

    void paletteOfHalfAColorIsRefused() {
        QByteArray bytes = bytesOf(imageFile(u"palette.png"_s));
        const qsizetype end = bytes.indexOf("IDAT") - 4;
        bytes.insert(end, pngChunk("PLTE", QByteArray(4, '\1')));
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

    /// A row of `size` random bytes behind the number of their filter.
    static QByteArray filteredRow(char filter, int size, std::minstd_rand &numbers) {
        QByteArray row(1, filter);
        for (int i = 0; i < size; ++i) {
            row += static_cast<char>(numbers() >> 8);
        }
        return row;
    }

    enum class Rows : char { InOrder, Interlaced };

    /// A PNG file of `rows` that are filtered already; `color` is the number of the colour type.
    static QByteArray png(QSize size, int bits, int color, const QByteArray &rows,
                          Rows order = Rows::InOrder) {
        QByteArray header(13, '\0');
        qToBigEndian(qint32(size.width()), header.data());
        qToBigEndian(qint32(size.height()), header.data() + 4);
        header[8] = static_cast<char>(bits);
        header[9] = static_cast<char>(color);
        header[12] = static_cast<char>(order);
        return "\x89PNG\r\n\x1A\n" + pngChunk("IHDR", header) +
               pngChunk("IDAT", qCompress(rows).mid(4)) + pngChunk("IEND", {});
    }

    static constexpr QSize kNoise{64, 200};

    /// The rows of a grey picture.
    static QByteArray packedNoise() {
        QByteArray rows;
        std::mt19937 random(20240305);
        for (int y = 0; y < kNoise.height(); ++y) {
            rows += '\0'; // The number of its filter.
            for (int x = 0; x < kNoise.width(); ++x) {
                rows += static_cast<char>(random());
            }
        }
        return qCompress(rows).mid(4);
    }
    /// The picture whose rows these chunks hold.
    static QByteArray noise(const QList<QByteArray> &chunks) {
        QByteArray file = png(kNoise, 8, 0, {});
        file.truncate(33); // Behind the header's chunk.
        for (const QByteArray &chunk : chunks) {
            file += pngChunk("IDAT", chunk);
        }
        return file + pngChunk("IEND", {});
    }

    QString write(const QByteArray &bytes) {
        return writeFile(m_folder.filePath(u"picture.png"_s), bytes);
    }
};

FOLIOFORGE_TEST(PngTest)
#include "PngTest.moc"
