// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "support/ByteOrder.h"
#include "support/TestUnit.h"

#include "image/ImageHeader.h"
#include "support/Files.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

constexpr quint32 kPlain = 0;
constexpr quint32 kMasks = 3;

/// A bitmap of 2 x 2 pixels, whose header of `headerSize` bytes ends with `masks`; `pixels` are its
/// rows from the bottom, as it stores them.
QByteArray bitmap(qsizetype headerSize, char bits, quint32 compression, const QByteArray &masks,
                  const QByteArray &pixels) {
    constexpr quint32 kPerMetre = 11811; // 300 per inch
    QByteArray header = little(quint32(headerSize)) + little(2) + little(2) +
                        QByteArray::fromHex("0100") + bits + '\0' + little(compression) +
                        little(0) + little(kPerMetre) + little(kPerMetre) + little(0) + little(0) +
                        masks;
    header.resize(headerSize, '\0');
    const qsizetype start = 14 + headerSize;
    return "BM" + little(quint32(start + pixels.size())) + little(0) + little(quint32(start)) +
           header + pixels;
}

/// A bitmap of `width` pixels and so many rows whose four colours are red, green, blue and white.
QByteArray fourColors(qint32 width, qint32 height, char bits, quint32 compression,
                      const QByteArray &pixels) {
    const QByteArray colors = QByteArray::fromHex("0000ff00"
                                                  "00ff0000"
                                                  "ff000000"
                                                  "ffffff00");
    constexpr quint32 kStart = 14 + 40 + 16;
    return "BM" + little(quint32(kStart + pixels.size())) + little(0) + little(kStart) +
           little(40) + little(quint32(width)) + little(quint32(height)) +
           QByteArray::fromHex("0100") + bits + '\0' + little(compression) + little(0) + little(0) +
           little(0) + little(4) + little(0) + colors + pixels;
}

/// The colours of each row of an image as letters: red, green, blue, white and others.
QStringList letters(const PdfImage &image) {
    const QImage picture = decoded(image);
    QStringList rows;
    for (int y = 0; y < picture.height(); ++y) {
        QString row;
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb color = picture.pixel(x, y) & 0xFFFFFF;
            row += color == 0xFF0000   ? u'r'
                   : color == 0x00FF00 ? u'g'
                   : color == 0x0000FF ? u'b'
                   : color == 0xFFFFFF ? u'w'
                                       : u'?';
        }
        rows += row;
    }
    return rows;
}

} // namespace

/// Bitmaps of 2 x 2 pixels, byte by byte.
class BmpTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void headersOfEveryLengthGiveTheirPixels_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("rgb");
        // Red 2, green 5, blue 1 of 31, 63 and 31, then each alone.
        const QByteArray pixels16 = QByteArray::fromHex("a110"
                                                        "0010"
                                                        "a000"
                                                        "0100");
        const QByteArray rgb16 = QByteArray::fromHex("001400"
                                                     "000008"
                                                     "101408"
                                                     "100000");
        const QByteArray masks565 = little(0xF800) + little(0x07E0) + little(0x001F);
        // Red first: the other way round than without masks.
        const QByteArray pixels32 = QByteArray::fromHex("01020300"
                                                        "04050600"
                                                        "07080900"
                                                        "ff00fe00");
        const QByteArray rgb32 = QByteArray::fromHex("070809"
                                                     "ff00fe"
                                                     "010203"
                                                     "040506");
        const QByteArray masks888 = little(0x0000FF) + little(0x00FF00) + little(0xFF0000);
        const QByteArray pixels24 = QByteArray::fromHex("0102030405060000"
                                                        "070809ff00fe0000");
        const QByteArray rgb24 = QByteArray::fromHex("090807"
                                                     "fe00ff"
                                                     "030201"
                                                     "060504");
        for (const int size : {52, 56, 108, 124}) {
            QTest::addRow("16 bits, %d", size)
                << bitmap(size, 16, kMasks, masks565, pixels16) << rgb16;
            QTest::addRow("32 bits, %d", size)
                << bitmap(size, 32, kMasks, masks888, pixels32) << rgb32;
        }
        for (const int size : {16, 40, 52, 56, 64, 108, 124}) {
            QTest::addRow("24 bits, %d", size) << bitmap(size, 24, kPlain, {}, pixels24) << rgb24;
        }
        // Without masks, green has 5 bits of 15.
        QTest::addRow("16 bits without masks") << bitmap(56, 16, kPlain, {},
                                                         QByteArray::fromHex("4108"
                                                                             "0008"
                                                                             "4000"
                                                                             "0100"))
                                               << QByteArray::fromHex("001000"
                                                                      "000008"
                                                                      "101008"
                                                                      "100000");
    }

    void headersOfEveryLengthGiveTheirPixels() {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QByteArray, rgb);
        const QString path = file(bytes);
        QCOMPARE(readImageHeader(path).kind, ImageKind::Bmp);
        const PdfImage image = toPdfImage(path);
        QCOMPARE(rgbRows(image).toHex(), rgb.toHex());
        QVERIFY(image.softMask == nullptr);
    }

    void colorsOfFewBitsAreWidened_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("rgb");
        const QByteArray masks565 = little(0xF800) + little(0x07E0) + little(0x001F);
        // White and half of each: 16, 32 and 16 of 31, 63 and 31 are 131.6, 129.5 and 131.6 of 255.
        const QByteArray pixels565 = QByteArray::fromHex("ffff"
                                                         "1084"
                                                         "00f8"
                                                         "0000");
        const QByteArray rgb565 = QByteArray::fromHex("ff0000"
                                                      "000000"
                                                      "ffffff"
                                                      "848284");
        for (const int size : {52, 56, 108}) {
            QTest::addRow("5, 6 and 5 bits, %d", size)
                << bitmap(size, 16, kMasks, masks565, pixels565) << rgb565;
        }
        QByteArray masksBehind = bitmap(52, 16, kMasks, masks565, pixels565);
        masksBehind[14] = 40; // The same bytes: masks come between a header of 40 and the pixels.
        QTest::newRow("5, 6 and 5 bits, 40") << masksBehind << rgb565;
        QTest::newRow("5 bits each") << bitmap(40, 16, kPlain, {},
                                               QByteArray::fromHex("ff7f"
                                                                   "1042"
                                                                   "007c"
                                                                   "0000"))
                                     << QByteArray::fromHex("ff0000"
                                                            "000000"
                                                            "ffffff"
                                                            "848484");
        // 1, 8 and 15 of 15.
        QTest::newRow("4 bits each of 32")
            << bitmap(56, 32, kMasks, little(0xF00) + little(0xF0) + little(0xF),
                      little(0x18F) + little(0xFFF) + little(0) + little(0x00F))
            << QByteArray::fromHex("000000"
                                   "0000ff"
                                   "1188ff"
                                   "ffffff");
    }

    void colorsOfFewBitsAreWidened() {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QByteArray, rgb);
        QCOMPARE(rgbRows(toPdfImage(file(bytes))).toHex(), rgb.toHex());
    }

    void oneBitOfOpacityIsAllOrNothing() {
        const QByteArray masks = little(0x7C00) + little(0x03E0) + little(0x001F) + little(0x8000);
        const PdfImage image = toPdfImage(
            file(bitmap(56, 16, kMasks, masks, QByteArray::fromHex("ffff007cff7f00fc"))));
        QVERIFY(image.softMask != nullptr);
        QCOMPARE(rgbRows(*image.softMask).toHex(), QByteArray("000000ffffffffffff000000"));
    }

    void opacityCountsWhereTheHeaderHasAMaskForIt() {
        const QByteArray masks =
            little(0x0000FF) + little(0x00FF00) + little(0xFF0000) + little(0xFF000000);
        const PdfImage image = toPdfImage(file(bitmap(56, 32, kMasks, masks,
                                                      QByteArray::fromHex("01020300"
                                                                          "04050640"
                                                                          "07080980"
                                                                          "0a0b0cff"))));
        QCOMPARE(rgbRows(image).toHex(), QByteArray("0708090a0b0c010203040506"));
        QVERIFY(image.softMask != nullptr);
        QCOMPARE(rgbRows(*image.softMask).toHex(), QByteArray("808080ffffff000000404040"));
    }

    void runsAreDrawn_data() {
        QTest::addColumn<int>("bits");
        QTest::addColumn<QByteArray>("runs");
        QTest::addColumn<QStringList>("rows");
        const auto add = [](const char *name, int bits, const char *runs, const QStringList &rows) {
            QTest::newRow(name) << bits << QByteArray::fromHex(runs) << rows;
        };
        // The last row comes first.
        add("8 bits", 8, "0501 0000 0203 0302 0001", {u"wwbbb"_s, u"ggggg"_s});
        add("8 bits as they are", 8, "0003 010203 00 0200 0000 0503 0001",
            {u"wwwww"_s, u"gbwrr"_s});
        add("8 bits with a jump", 8, "0101 0002 0301 0102 0001", {u"rrrrb"_s, u"grrrr"_s});
        add("a run over the end of the row", 8, "0901 0000 0102 0001", {u"brrrr"_s, u"ggggg"_s});
        add("4 bits", 4, "0512 0000 0230 0321 0001", {u"wrbgb"_s, u"gbgbg"_s});
        add("4 bits as they are", 4, "0005 123120 00 0000 0533 0001", {u"wwwww"_s, u"gbwgb"_s});
        add("the end of the file in a run", 8, "0501 0000 05", {u"rrrrr"_s, u"ggggg"_s});
        add("the end of the file among bytes", 8, "0501 0000 0004 0302", {u"wbrrr"_s, u"ggggg"_s});
    }

    void runsAreDrawn() {
        QFETCH(const int, bits);
        QFETCH(const QByteArray, runs);
        QFETCH(const QStringList, rows);
        const QByteArray bytes = fourColors(5, 2, static_cast<char>(bits), bits == 8 ? 1 : 2, runs);
        QCOMPARE(letters(toPdfImage(file(bytes))), rows);
    }

    void pixelsThatRunsLeaveOutAreNamed_data() {
        QTest::addColumn<QByteArray>("runs");
        QTest::addColumn<bool>("named");
        const auto add = [](const char *name, const char *runs, bool named) {
            QTest::newRow(name) << QByteArray::fromHex(runs) << named;
        };
        add("none", "0501 0000 0203 0302 0001", false);
        add("a jump", "0501 0000 0203 0002 0100 0202 0001", true);
        add("a short row", "0401 0000 0203 0302 0001", true);
        add("an early end", "0501 0001", true);
    }

    void pixelsThatRunsLeaveOutAreNamed() {
        QFETCH(const QByteArray, runs);
        QFETCH(const bool, named);
        const QStringList expected(
            u"picture-damaged: Pixels that the file leaves out have its first colour"_s);
        QCOMPARE(warningsOf(toPdfImage(file(fourColors(5, 2, 8, 1, runs)))),
                 named ? expected : QStringList());
    }

    void rowsThatRunsDoNotReachAreNamed() {
        const QByteArray runs = QByteArray::fromHex("0501 0000 0502 0000");
        QCOMPARE(warningsOf(toPdfImage(file(fourColors(5, 4, 8, 1, runs)))).first(),
                 u"picture-damaged: The picture is cut off: 50 % of its rows could not be read"_s);
    }

    void rowsFromTheTopStayInOrder() {
        const QByteArray pixels = QByteArray::fromHex("0001020001020300");
        const QStringList rows = {u"rgb"_s, u"gbw"_s};
        QCOMPARE(letters(toPdfImage(file(fourColors(3, -2, 8, kPlain, pixels)))), rows);
        QCOMPARE(letters(toPdfImage(file(fourColors(
                     3, -2, 8, 1, QByteArray::fromHex("0003000102000000 0003010203000001"))))),
                 rows);
        QCOMPARE(letters(toPdfImage(
                     file(fourColors(3, 2, 4, kPlain, QByteArray::fromHex("1230000001200000"))))),
                 rows);
    }

    void rowsThatAreMissingAreOfTheFirstColor() {
        const QByteArray pixels = QByteArray::fromHex("01020300");
        const QStringList rows = {u"rrr"_s, u"gbw"_s};
        QCOMPARE(letters(toPdfImage(file(fourColors(3, 2, 8, kPlain, pixels)))), rows);
    }

    void blackAndWhiteTakesOneBit_data() {
        QTest::addColumn<QByteArray>("colors");
        QTest::newRow("black first") << QByteArray::fromHex("00000000ffffff00");
        QTest::newRow("white first") << QByteArray::fromHex("ffffff0000000000");
    }

    void blackAndWhiteTakesOneBit() {
        QFETCH(const QByteArray, colors);
        QByteArray bytes = fourColors(2, 2, 1, kPlain, QByteArray::fromHex("8000000040000000"));
        qToLittleEndian(quint32(0), bytes.data() + 46);           // Two colours, as one bit names.
        qToLittleEndian(quint32(14 + 40 + 8), bytes.data() + 10); // The pixels follow them.
        bytes.remove(54, 16).insert(54, colors);
        const PdfImage image = toPdfImage(file(bytes));
        QCOMPARE(image.bitsPerComponent, 1);
        const QByteArray whiteFirst = QByteArray::fromHex("ffffff000000000000ffffff");
        const QByteArray blackFirst = QByteArray::fromHex("000000ffffffffffff000000");
        QCOMPARE(rgbRows(image).toHex(),
                 (colors.startsWith('\0') ? blackFirst : whiteFirst).toHex());
    }

    void channelsOfMoreThanEightBitsAreScaled() {
        const QByteArray masks = little(0x3FF00000) + little(0x000FFC00) + little(0x000003FF);
        // 1023, 512 and 3 of 1023, which are 255, 127.6 and 0.7 of 255, then each alone.
        const QByteArray pixels =
            little(0x3FF80003) + little(0x3FF00000) + little(0x00080000) + little(0x00000003);
        QCOMPARE(rgbRows(toPdfImage(file(bitmap(56, 32, kMasks, masks, pixels)))).toHex(),
                 QByteArray("008000000001ff8001ff0000"));
    }

    void opacityThatIsZeroThroughoutDoesNotCount() {
        const QByteArray masks =
            little(0xFF0000) + little(0x00FF00) + little(0x0000FF) + little(0xFF000000);
        const PdfImage image =
            toPdfImage(file(bitmap(56, 32, kMasks, masks, little(0x010203).repeated(4))));
        QVERIFY(image.softMask == nullptr);
        QCOMPARE(rgbRows(image).toHex(), QByteArray("010203").repeated(4));
    }

    void unknownKindIsRefused_data() {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray pixels(16, '\x7f');
        QTest::newRow("2 bits") << bitmap(40, 2, kPlain, {}, pixels);
        QTest::newRow("JPEG inside") << bitmap(40, 24, 4, {}, pixels);
        QTest::newRow("runs of whole colours") << bitmap(40, 24, 1, {}, pixels);
        QByteArray planes = bitmap(40, 24, kPlain, {}, pixels);
        planes[26] = 3;
        QTest::newRow("three planes") << planes;
    }

    void unknownKindIsRefused() {
        QFETCH(const QByteArray, bytes);
        QCOMPARE(refusalOf(file(bytes)), u"The bitmap is of an unknown kind"_s);
    }

    void densityIsReadOnlyWhereTheHeaderHasIt() {
        const QByteArray pixels(16, '\x7f');
        QCOMPARE(readImageHeader(file(bitmap(56, 24, kPlain, {}, pixels))).horizontalDpi, 300.0);
        QCOMPARE(readImageHeader(file(bitmap(16, 24, kPlain, {}, pixels))).horizontalDpi, 72.0);
    }

    void cutFileIsRefused_data() {
        QTest::addColumn<qsizetype>("headerSize");
        QTest::addColumn<qsizetype>("left");
        QTest::newRow("in the masks") << qsizetype{52} << qsizetype{60};
        QTest::newRow("after the masks") << qsizetype{56} << qsizetype{70};
        QTest::newRow("in the shortest header") << qsizetype{16} << qsizetype{29};
    }

    void cutFileIsRefused() {
        QFETCH(const qsizetype, headerSize);
        QFETCH(const qsizetype, left);
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        const QByteArray whole = bitmap(headerSize, 32, kMasks, {}, QByteArray(16, '\x7f'));
        QCOMPARE(refusalOf(file(whole.first(left))), u"The file ends too early"_s);
    }

  private:
    QString file(const QByteArray &bytes) const {
        return writeFile(m_folder.filePath(u"picture.bmp"_s), bytes);
    }

    QTemporaryDir m_folder;
};

FOLIOFORGE_TEST(BmpTest)
#include "BmpTest.moc"
