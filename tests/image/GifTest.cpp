// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "support/TestUnit.h"

#include "image/ImageHeader.h"
#include "support/Files.h"
#include "support/PdfProbe.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// GIF files, byte by byte.
class GifTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aScreenWithoutSizeIsAsLargeAsTheFirstImage_data() {
        QTest::addColumn<QByteArray>("screen");
        QTest::addColumn<QByteArray>("extension");
        QTest::addColumn<QSize>("size");
        QTest::newRow("no size") << QByteArray("00000000") << QByteArray() << QSize(3, 4);
        QTest::newRow("a comment before") << QByteArray("00000000") << comment() << QSize(3, 4);
        QTest::newRow("no width") << QByteArray("00000500") << QByteArray() << QSize(3, 5);
        QTest::newRow("no height") << QByteArray("05000000") << QByteArray() << QSize(5, 4);
        QTest::newRow("both") << QByteArray("05000600") << QByteArray() << QSize(5, 6);
    }

    void aScreenWithoutSizeIsAsLargeAsTheFirstImage() {
        QFETCH(const QByteArray, screen);
        QFETCH(const QByteArray, extension);
        QFETCH(const QSize, size);
        const QString path = gif(screen.constData(), extension + frame());
        const ImageHeader header = readImageHeader(path);
        QCOMPARE(QSize(header.width, header.height), size);
        const QImage picture = decoded(toPdfImage(path));
        QCOMPARE(picture.size(), size);
        QCOMPARE(picture.pixelColor(1, 2), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(2, 2), QColor(Qt::green));
        QCOMPARE(picture.pixelColor(1, 3), QColor(Qt::blue));
        QCOMPARE(picture.pixelColor(2, 3), QColor(Qt::white));
    }

    void pictureLiesOnTheBackground() {
        // The background is the table's first colour, red.
        const PdfImage image = toPdfImage(gif("04000500", frame()));
        QCOMPARE(rgbRows(image).toHex(), QByteArray("ff0000ff0000ff0000ff0000"
                                                    "ff0000ff0000ff0000ff0000"
                                                    "ff0000ff000000ff00ff0000"
                                                    "ff00000000ffffffffff0000"
                                                    "ff0000ff0000ff0000ff0000"));
    }

    void colorMarkedTransparentIsNotSeen() {
        const QByteArray control = QByteArray::fromHex("21f904"
                                                       "01000003"
                                                       "00");
        const PdfImage image = toPdfImage(gif("03000400", control + frame()));
        // Nor is the screen around the picture.
        QCOMPARE(reds(image), (QList<int>{-1, -1, -1, -1, -1, -1, -1, 255, 0, -1, 0, -1}));
    }

    void interlacedRowsComeInOrder() {
        // Ten rows of one pixel, stored as 0, 8, 4, 2, 6, 1, 3, 5, 7 and 9; red in rows 0, 4 and 9.
        const QByteArray stored = QByteArray::fromHex("00 01 00 01 02 01 02 01 02 00");
        const PdfImage image = toPdfImage(gif(
            "01000a00", QByteArray::fromHex("2c 0000 0000 0100 0a00 40") + codes(stored) + ';'));
        QCOMPARE(reds(image), (QList<int>{255, 0, 0, 0, 255, 0, 0, 0, 0, 255}));
    }

    void firstPictureOfSeveralIsShown() {
        const auto pixel = [](char color) {
            return QByteArray::fromHex("2c 0000 0000 0100 0100 00") + codes(QByteArray(1, color));
        };
        const PdfImage image = toPdfImage(gif("01000100", pixel(2) + pixel(0) + ';'));
        QCOMPARE(rgbRows(image).toHex(), QByteArray("0000ff"));
    }

    void picturesBehindTheFirstAreNamed() {
        const QByteArray control = QByteArray::fromHex("21f904 00000000 00");
        const QByteArray picture =
            QByteArray::fromHex("2c 0000 0000 0100 0100 00") + codes(QByteArray(1, '\2'));
        QCOMPARE(warningsOf(toPdfImage(gif("01000100", control + picture + comment() + ';'))),
                 QStringList());
        QCOMPARE(warningsOf(toPdfImage(gif("01000100", picture + comment() + picture + ';'))),
                 QStringList(u"more-pictures: 1 further picture is left out"_s));
        // Without the end, too.
        QCOMPARE(warningsOf(toPdfImage(gif("01000100", (control + picture).repeated(5000)))),
                 QStringList(u"more-pictures: 4999 further pictures are left out"_s));
    }

    void eachFrameIsTheScreenAsItIsShown() {
        const QString path = m_folder.filePath(u"frames.gif"_s);
        const QStringList blue{
            u"("_s,       u"-size"_s,  u"20x20"_s, u"xc:none"_s,
            u"-fill"_s,   u"blue"_s,   u"-draw"_s, u"rectangle 2,2 12,12"_s,
            u"-repage"_s, u"+30+25"_s, u")"_s}; // Beyond the screen's lower edge.
        const auto plain = [](const QString &size, const QString &color, const QString &place) {
            return QStringList{u"("_s,       u"-size"_s, size,  u"xc:"_s + color,
                               u"-repage"_s, place,      u")"_s};
        };
        const QStringList dispose{u"-dispose"_s};
        const QStringList frames =
            dispose + QStringList{u"none"_s, u"-size"_s, u"60x40"_s, u"xc:red"_s} + dispose +
            QStringList{u"background"_s} + blue + dispose + QStringList{u"previous"_s} +
            plain(u"20x20"_s, u"green"_s, u"+30+10"_s) + dispose + QStringList{u"none"_s} +
            plain(u"10x10"_s, u"yellow"_s, u"+40+20"_s) + blue;
        QCOMPARE(runTool(u"convert"_s, frames + QStringList{path}).exitCode, 0);
        const QByteArray shown =
            runTool(u"convert"_s, {path, u"-coalesce"_s, u"-depth"_s, u"8"_s, u"rgba:-"_s}).out;
        const auto pictures = picturesOf(path);
        QCOMPARE(pictures.size(), size_t(5));
        constexpr qsizetype kBytes = 60 * 40 * 4;
        QCOMPARE(shown.size(), 5 * kBytes);
        for (qsizetype frame = 0; frame < 5; ++frame) {
            QCOMPARE(seenPixels(pictures[static_cast<size_t>(frame)]),
                     seenPixels(shown.sliced(frame * kBytes, kBytes)));
        }
    }

    void aFrameThatEndsEarlyIsNamedByItsPage() {
        const QByteArray picture = QByteArray::fromHex("2c 0000 0000 0200 0200 00");
        const QByteArray rows = codes(QByteArray::fromHex("00030003"));
        const QByteArray cutRows = rows.first(1) + '\2' + rows.sliced(2, 2);
        Warnings warnings;
        QCOMPARE(picturesOf(gif("02000200", picture + rows + picture + cutRows), &warnings).size(),
                 size_t(2));
        QCOMPARE(warnings, (Warnings{{WarningCode::PictureDamaged,
                                      u"Page 2: The picture is cut off: 50 % of its rows could "
                                      u"not be read"_s}}));
    }

    void framesOfAFileWithoutAnyAreRefused() {
        QVERIFY_THROWS_EXCEPTION(Error, picturesOf(gif("02000200", comment() + ';')));
    }

    void dataThatEndsEarlyLeavesTheRowsBefore() {
        QByteArray bytes = QByteArray::fromHex("2c 0000 0000 0200 0200 00 02");
        const QByteArray data = codes(QByteArray::fromHex("00030003")).sliced(2).chopped(1);
        for (const char byte : data.chopped(1)) {
            bytes.append('\1').append(byte); // A block of its own.
        }
        const PdfImage image = toPdfImage(gif("02000200", bytes));
        QCOMPARE(rgbRows(image).toHex(), QByteArray("ff0000ffffff000000000000"));
        QCOMPARE(warningsOf(image).first(),
                 u"picture-damaged: The picture is cut off: 50 % of its rows could not be read"_s);
    }

    void aScreenWithoutSizeNeedsAnImage_data() {
        QTest::addColumn<QByteArray>("rest");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("the end") << QByteArray(";");
        QTest::newRow("an extension without end") << comment().chopped(1);
        QTest::newRow("an extension alone") << comment() + ';';
        QTest::newRow("half an image") << comment() + frame().first(8);
    }

    void aScreenWithoutSizeNeedsAnImage() {
        QFETCH(const QByteArray, rest);
        QVERIFY(!refusalOf(gif("00000000", rest)).isEmpty());
    }

  private:
    QTemporaryDir m_folder;

    /// A file with a screen of `screen` and a palette of red, green, blue and white.
    QString gif(const char *screen, const QByteArray &rest) const {
        return writeFile(m_folder.filePath(u"picture.gif"_s), "GIF89a" +
                                                                  QByteArray::fromHex(screen) +
                                                                  QByteArray::fromHex("810000"
                                                                                      "ff0000"
                                                                                      "00ff00"
                                                                                      "0000ff"
                                                                                      "ffffff") +
                                                                  rest);
    }

    /// Red, green, blue and opacity of each pixel; nothing but zeros where none is seen.
    static QByteArray seenPixels(const QByteArray &rgba) {
        QByteArray seen = rgba;
        for (qsizetype at = 0; at < seen.size(); at += 4) {
            if (seen[at + 3] == '\0') {
                seen.replace(at, 3, QByteArray(3, '\0'));
            }
        }
        return seen;
    }
    static QByteArray seenPixels(const PdfImage &image) {
        const QByteArray colors = rgbRows(image);
        const QByteArray opacity = image.softMask ? rgbRows(*image.softMask) : QByteArray();
        QByteArray rgba;
        for (qsizetype at = 0; at < colors.size(); at += 3) {
            rgba += colors.sliced(at, 3) + (opacity.isEmpty() ? '\xFF' : opacity[at]);
        }
        return seenPixels(rgba);
    }

    static QByteArray comment() {
        return QByteArray::fromHex("21fe"
                                   "03616263"
                                   "0164"
                                   "00");
    }

    /// Pixels in codes of three bits, the code to clear the table before every second one.
    static QByteArray codes(const QByteArray &pixels) {
        constexpr int kClear = 4;
        constexpr int kEnd = 5;
        QByteArray bytes;
        int filled = 0;
        const auto append = [&](int code) {
            for (int bit = 0; bit < 3; ++bit, ++filled) {
                if (filled % 8 == 0) {
                    bytes.append('\0');
                }
                bytes.back() = static_cast<char>(bytes.back() | (code >> bit & 1) << filled % 8);
            }
        };
        for (qsizetype i = 0; i < pixels.size(); ++i) {
            if (i % 2 == 0) {
                append(kClear);
            }
            append(pixels[i]);
        }
        append(kEnd);
        return '\2' + QByteArray(1, static_cast<char>(bytes.size())) + bytes + '\0';
    }
    /// The red value of each pixel, row after row; -1 where it is transparent.
    static QList<int> reds(const PdfImage &image) {
        const QImage picture = decoded(image);
        const QImage mask = image.softMask ? decoded(*image.softMask) : QImage();
        QList<int> values;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const bool isSeen = mask.isNull() || qGray(mask.pixel(x, y)) != 0;
                values += isSeen ? qRed(picture.pixel(x, y)) : -1;
            }
        }
        return values;
    }
    /// An image of 2 x 2 pixels, one from the left and two from the top: red and green over blue
    /// and white. Its codes of three bits are clear, 0, 1, clear, 2, 3, end.
    static QByteArray frame() {
        return QByteArray::fromHex("2c"
                                   "0100"
                                   "0200"
                                   "0200"
                                   "0200"
                                   "00"
                                   "02"
                                   "03"
                                   "44a815"
                                   "00"
                                   "3b");
    }
};

FOLIOFORGE_TEST(GifTest)
#include "GifTest.moc"
