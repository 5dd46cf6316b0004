#include "DecodedImage.h"
#include "support/TestUnit.h"

#include "image/ImageHeader.h"

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

QByteArray little(quint32 number) {
    QByteArray bytes(4, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

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
