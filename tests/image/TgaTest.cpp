// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// TGA files of 3 x 2 pixels, byte by byte.
class TgaTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void rowsOfEveryOriginComeOutUpright_data() {
        QTest::addColumn<int>("descriptor");
        QTest::addColumn<QByteArray>("pixels");
        // Blue, green, red of each pixel; the picture's blues are 1 2 3 over 4 5 6.
        QTest::newRow("top left") << 0x20 << QByteArray("\1\0\0\2\0\0\3\0\0\4\0\0\5\0\0\6\0\0", 18);
        QTest::newRow("bottom left") << 0 << QByteArray("\4\0\0\5\0\0\6\0\0\1\0\0\2\0\0\3\0\0", 18);
        QTest::newRow("top right")
            << 0x30 << QByteArray("\3\0\0\2\0\0\1\0\0\6\0\0\5\0\0\4\0\0", 18);
        QTest::newRow("bottom right")
            << 0x10 << QByteArray("\6\0\0\5\0\0\4\0\0\3\0\0\2\0\0\1\0\0", 18);
    }

    void rowsOfEveryOriginComeOutUpright() {
        QFETCH(int, descriptor);
        QFETCH(QByteArray, pixels);
        const PdfImage image = toPdfImage(tga("00020000000000", 24, descriptor, pixels));
        QCOMPARE(rgbRows(image), QByteArray("\0\0\1\0\0\2\0\0\3\0\0\4\0\0\5\0\0\6", 18));
        QVERIFY(image.softMask == nullptr);
    }

    void runsMayCrossRows() {
        const QByteArray runs = QByteArray::fromHex("84010203"   // Five of one colour,
                                                    "00040506"); // one of another.
        const PdfImage image = toPdfImage(tga("000a0000000000", 24, 0x20, runs));
        QCOMPARE(rgbRows(image), QByteArray::fromHex("030201030201030201030201030201060504"));
    }

    void colorMapGivesColors() {
        // Two entries, the first being number 1.
        const QByteArray rest = QByteArray::fromHex("0000ff00ff00") + QByteArray("\1\2\1\2\1\2", 6);
        const PdfImage image = toPdfImage(tga("01010100020018", 8, 0x20, rest));
        QCOMPARE(rgbRows(image), QByteArray::fromHex("ff000000ff00ff000000ff00ff000000ff00"));
    }

    void colorMapHasIndexesOfTwoBytes() {
        const QByteArray rest =
            QByteArray::fromHex("0000ff00ff00") + QByteArray("\0\1\1\1\0\1\1\1\0\1\1\1", 12);
        const PdfImage image =
            toPdfImage(tga("01010001020018", 16, 0x20, rest)); // From number 256.
        QCOMPARE(rgbRows(image), QByteArray::fromHex("ff000000ff00ff000000ff00ff000000ff00"));
    }

    void aCommentBeforeThePixelsIsSkipped() {
        QByteArray bytes =
            bytesOf(tga("00030000000000", 8, 0x20, QByteArray::fromHex("616263000a141e28ff")));
        bytes[0] = 3;
        const PdfImage image = toPdfImage(writeFile(m_folder.filePath(u"comment.tga"_s), bytes));
        QCOMPARE(qGray(decoded(image).pixel(1, 0)), 10);
    }

    void whatIsSaidOfAColorMapThatIsNotThereIsIgnored() {
        const PdfImage image =
            toPdfImage(tga("00030000020018", 8, 0x20, QByteArray::fromHex("000a141e28ff")));
        QCOMPARE(qGray(decoded(image).pixel(1, 0)), 10);
    }

    void greyStaysGrey() {
        const PdfImage image =
            toPdfImage(tga("00030000000000", 8, 0x20, QByteArray::fromHex("000a141e28ff")));
        QCOMPARE(image.color, ImageColor::Gray);
        QCOMPARE(qGray(decoded(image).pixel(2, 1)), 255);
        QCOMPARE(qGray(decoded(image).pixel(1, 0)), 10);
    }

    void greyFromTheBottomRightComesOutUpright() {
        const auto stored = QByteArray::fromHex("000a141e28ff");
        const PdfImage image = toPdfImage(tga("00030000000000", 8, 0x10, stored));
        QCOMPARE(qGray(decoded(image).pixel(0, 0)), 255);
        QCOMPARE(qGray(decoded(image).pixel(2, 0)), 30);
        QCOMPARE(qGray(decoded(image).pixel(1, 1)), 10);
    }

    void aPictureOfFewColorsGetsAPalette() {
        const auto pixels = QByteArray::fromHex("0000ff00ff00ff0000").repeated(2);
        const PdfImage image = toPdfImage(tga("00020000000000", 24, 0x20, pixels));
        QCOMPARE(image.color, ImageColor::Indexed);
        QCOMPARE(rgbRows(image), QByteArray::fromHex("ff000000ff000000ff").repeated(2));
    }

    void colorMapOfGreyGivesGrey() {
        const QByteArray rest = QByteArray::fromHex("10f0") + QByteArray("\1\2\1\2\1\2", 6);
        const PdfImage image = toPdfImage(tga("01010100020008", 8, 0x20, rest));
        QCOMPARE(rgbRows(image).toHex(), QByteArray("101010f0f0f0").repeated(3));
    }

    void oneBitIsBlackOrWhite() {
        const PdfImage image =
            toPdfImage(tga("00030000000000", 1, 0x20, QByteArray::fromHex("a040")));
        QCOMPARE(rgbRows(image).toHex(), QByteArray("ffffff000000ffffff000000ffffff000000"));
    }

    void fiveBitColorsAreWidened() {
        const PdfImage image = toPdfImage(
            tga("00020000000000", 16, 0x20, QByteArray::fromHex("007ce0031f00ff7f00000042")));
        QCOMPARE(rgbRows(image), QByteArray::fromHex("ff000000ff000000ffffffff000000848400"));
    }

    void fourthByteIsOpacityThoughNoneIsDeclared_data() {
        QTest::addColumn<int>("descriptor");
        QTest::newRow("declared") << 0x28;
        QTest::newRow("not declared") << 0x20;
    }

    void fourthByteIsOpacityThoughNoneIsDeclared() {
        QFETCH(const int, descriptor);
        const QByteArray pixels =
            QByteArray::fromHex("010203ff0102038001020300010203ff010203ff010203ff");
        const PdfImage image = toPdfImage(tga("00020000000000", 32, descriptor, pixels));
        QVERIFY(image.softMask != nullptr);
        QCOMPARE(rgbRows(*image.softMask).toHex(),
                 QByteArray("ffffff808080000000ffffffffffffffffff"));
    }

    void fourthByteThatIsTheSameThroughoutIsNoOpacity() {
        for (const char *value : {"00", "ff"}) {
            const QByteArray pixel = QByteArray::fromHex("010203") + QByteArray::fromHex(value);
            const PdfImage image = toPdfImage(tga("00020000000000", 32, 0x20, pixel.repeated(6)));
            QVERIFY(image.softMask == nullptr);
            QCOMPARE(rgbRows(image).toHex(), QByteArray("030201").repeated(6));
        }
    }

    void sixteenthBitIsOpacityOnlyWhereItIsDeclared() {
        const QByteArray pixels = QByteArray::fromHex("007c00fc007c00fc007c00fc");
        QVERIFY(toPdfImage(tga("00020000000000", 16, 0x20, pixels)).softMask == nullptr);
        QVERIFY(toPdfImage(tga("00020000000000", 16, 0x21, pixels)).softMask != nullptr);
        QVERIFY(toPdfImage(tga("00020000000000", 15, 0x21, pixels)).softMask == nullptr);
    }

    void fileWithoutAWholeRowIsRefused() {
        QCOMPARE(refusalOf(tga("00020000000000", 24, 0x20, QByteArray(8, '\1'))),
                 u"The file ends too early"_s);
        QCOMPARE(refusalOf(tga("000a0000000000", 24, 0x20, QByteArray::fromHex("81010203"))),
                 u"The file ends too early"_s);
    }

    void runThatIsCutOffLeavesTheRowsBefore() {
        // Five of one colour, and half of another.
        const PdfImage image =
            toPdfImage(tga("000a0000000000", 24, 0x20, QByteArray::fromHex("8401020300 0405")));
        QCOMPARE(rgbRows(image).first(9).toHex(), QByteArray("030201").repeated(3));
        QCOMPARE(warningsOf(image), QStringList(u"picture-damaged: The picture is cut off: 50 % of "
                                                u"its rows could not be read"_s));
    }

  private:
    QTemporaryDir m_folder;

    /// An image of 3 x 2 pixels.
    QString tga(const char *typeBytes, int bits, int descriptor, const QByteArray &rest) {
        QByteArray bytes("\0", 1);
        bytes += QByteArray::fromHex(typeBytes) + QByteArray::fromHex("0000000003000200");
        bytes.append(static_cast<char>(bits)).append(static_cast<char>(descriptor));
        return writeFile(m_folder.filePath(u"picture.tga"_s), bytes + rest);
    }
};

FOLIOFORGE_TEST(TgaTest)
#include "TgaTest.moc"
