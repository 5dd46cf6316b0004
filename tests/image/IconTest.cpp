// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "support/ByteOrder.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QBuffer>
#include <QImageReader>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <random>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Icons of Windows and the Macintosh: what comes out is what Qt's readers show.

namespace {

QByteArray randomBytes(qsizetype size) {
    std::mt19937 random(7);
    QByteArray bytes(size, '\0');
    for (char &byte : bytes) {
        byte = static_cast<char>(random());
    }
    return bytes;
}

/// One plane of runs: 100 of a value, then bytes as they are, until `size` bytes are told.
QByteArray runs(qsizetype size, char seed) {
    QByteArray packed;
    qsizetype told = 0;
    while (size - told >= 104) {
        packed.append(static_cast<char>(100 - 3 + 0x80)).append(seed);
        packed.append('\3');
        for (int i = 1; i <= 4; ++i) {
            packed.append(static_cast<char>(seed + i));
        }
        told += 104;
    }
    for (; told < size; ++told) {
        packed.append('\0').append(static_cast<char>(seed + told));
    }
    return packed;
}

QByteArray entry(const QByteArray &type, const QByteArray &content) {
    return type + big(quint32(content.size() + 8)) + content;
}

QByteArray icns(const QByteArray &entries) {
    return entry("icns", entries);
}

QByteArray ico(const QList<QByteArray> &frames) {
    QByteArray bytes = QByteArray("\0\0\1\0", 4) + little(quint16(frames.size()));
    quint32 at = 6 + 16 * quint32(frames.size());
    for (const QByteArray &frame : frames) {
        bytes += QByteArray("\x08\x04\0\0\1\0", 6) + little(quint16(0)) +
                 little(quint32(frame.size())) + little(at);
        at += quint32(frame.size());
    }
    return bytes + frames.join();
}

/// A frame of 8 x 4 pixels.
QByteArray bitmapFrame(int bits, const QByteArray &rest) {
    return little(quint32(40)) + little(qint32(8)) + little(qint32(8)) + little(quint16(1)) +
           little(quint16(bits)) + QByteArray(24, '\0') + rest;
}

QImage shownByQt(const QByteArray &bytes, const char *format) {
    QByteArray copy = bytes;
    QBuffer buffer(&copy);
    return QImageReader(&buffer, format).read().convertToFormat(QImage::Format_ARGB32);
}

/// Colour and opacity of an encoded image together.
QImage whole(const PdfImage &image) {
    QImage picture = decoded(image).convertToFormat(QImage::Format_ARGB32);
    if (image.softMask) {
        const QImage mask = decoded(*image.softMask);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor color = picture.pixelColor(x, y);
                picture.setPixel(
                    x, y, qRgba(color.red(), color.green(), color.blue(), qGray(mask.pixel(x, y))));
            }
        }
    }
    return picture;
}

/// The first pixel that can be seen and differs, in words; empty where there is none.
QString difference(const QImage &one, const QImage &other) {
    if (one.size() != other.size() || one.isNull()) {
        return u"sizes differ"_s;
    }
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            // Qt multiplies colours by their opacity and back, which rounds them.
            const int most = qAlpha(a) == 0xFF ? 0 : 255 / std::max(qAlpha(a), 1);
            if (qAlpha(a) != qAlpha(b) || std::abs(qRed(a) - qRed(b)) > most ||
                std::abs(qGreen(a) - qGreen(b)) > most || std::abs(qBlue(a) - qBlue(b)) > most) {
                return u"%1 %2: %3 %4"_s.arg(x).arg(y).arg(a, 0, 16).arg(b, 0, 16);
            }
        }
    }
    return {};
}

} // namespace

class IconTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void classicEntryLooksAsQtShowsIt_data() {
        QTest::addColumn<QByteArray>("entries");
        const auto add = [](const char *name, const QByteArray &entries) {
            QTest::newRow(name) << entries;
        };
        const auto color = [](qsizetype pixels) {
            return runs(pixels, 1) + runs(pixels, 60) + runs(pixels, 120);
        };
        add("16 in full colour", entry("is32", color(256)) + entry("s8mk", randomBytes(256)));
        add("32 in full colour", entry("il32", color(1024)) + entry("l8mk", randomBytes(1024)));
        add("128 in full colour",
            entry("it32", QByteArray(4, '\0') + color(16384)) + entry("t8mk", randomBytes(16384)));
        add("16 of 256 colours", entry("ics8", randomBytes(256)) + entry("ics#", randomBytes(64)));
        add("48 of 256 colours",
            entry("ich8", randomBytes(2304)) + entry("ich#", randomBytes(576)));
        add("32 of 16 colours", entry("icl4", randomBytes(512)) + entry("ICN#", randomBytes(256)));
        add("32 in black and white", entry("ICN#", randomBytes(256)));
    }

    void classicEntryLooksAsQtShowsIt() {
        QFETCH(QByteArray, entries);
        const QByteArray bytes = icns(entries);
        QCOMPARE(
            difference(whole(toPdfImage(write("classic.icns", bytes))), shownByQt(bytes, "icns")),
            QString());
    }

    void deepestOfEqualEntriesIsTaken() {
        const QByteArray grey = runs(256, 60) + runs(256, 60) + runs(256, 60);
        const QByteArray bytes = icns(entry("ics#", QByteArray(64, '\xFF')) +
                                      entry("ics8", QByteArray(256, '\x23')) + entry("is32", grey));
        const PdfImage image = toPdfImage(write("depths.icns", bytes));
        QVERIFY(image.softMask == nullptr); // The outline is full.
        QCOMPARE(decoded(image).pixel(0, 0), qRgb(60, 60, 60));
    }

    void deepestOfEqualPngEntriesIsTaken() {
        const QByteArray coarse = pngOf(QImage::Format_Indexed8, Qt::red);
        const QByteArray deep = pngOf(QImage::Format_ARGB32, Qt::green);
        const QByteArray classic = entry("is32", runs(256, 60).repeated(3));
        const auto colorIn = [&](const QString &path) {
            return decoded(toPdfImage(path)).pixelColor(0, 0);
        };
        QCOMPARE(colorIn(write("png.icns", icns(entry("icp4", coarse) + entry("ic04", deep)))),
                 QColor(Qt::green));
        QCOMPARE(colorIn(write("png.icns", icns(entry("icp4", coarse) + classic))),
                 QColor(60, 60, 60));
        QCOMPARE(colorIn(write("png.ico", ico({coarse, deep}))), QColor(Qt::green));
        QCOMPARE(colorIn(write("png.ico", ico({deep, coarse}))), QColor(Qt::green));
    }

    void picturesLeftOutAreNamed() {
        const QByteArray frame = bitmapFrame(24, QByteArray(96 + 16, '\0'));
        QCOMPARE(warningsOf(toPdfImage(write("one.ico", ico({frame})))), QStringList());
        QCOMPARE(warningsOf(toPdfImage(write("three.ico", ico({frame, frame, frame})))),
                 QStringList(u"more-pictures: 2 further pictures are left out"_s));
        const QByteArray grey = entry("is32", runs(256, 60).repeated(3));
        // Opacity belongs to its picture.
        QCOMPARE(warningsOf(toPdfImage(
                     write("one.icns", icns(grey + entry("s8mk", QByteArray(256, '\x7f')))))),
                 QStringList());
        QCOMPARE(warningsOf(toPdfImage(
                     write("two.icns", icns(grey + entry("ics8", QByteArray(256, '\x23')))))),
                 QStringList(u"more-pictures: 1 further picture is left out"_s));
    }

    void picturesThatCannotBeReadAreNamed() {
        const QString inIco = u"picture-damaged: 1 of the icon's 2 pictures cannot be read"_s;
        const QByteArray frame = bitmapFrame(24, QByteArray(96 + 16, '\0'));
        QVERIFY(warningsOf(toPdfImage(write("bad.ico", ico({QByteArray(50, '\x55'), frame}))))
                    .contains(inIco));
        const QByteArray grey = entry("is32", runs(256, 60).repeated(3));
        const QByteArray png = pngOf(QImage::Format_ARGB32, Qt::green).first(30);
        QVERIFY(warningsOf(toPdfImage(write("bad.icns", icns(grey + entry("ic07", png)))))
                    .contains(inIco));
    }

    void entriesBehindTheEndAreNamed() {
        const QByteArray grey = entry("is32", runs(256, 60).repeated(3));
        const QByteArray whole = icns(grey + entry("ics8", QByteArray(256, '\x23')));
        for (const qsizetype cut : {1, 258, 264}) { // In its bytes, in its lead, before it.
            const QStringList warnings =
                warningsOf(toPdfImage(write("cut.icns", whole.chopped(cut))));
            QCOMPARE(warnings.size(), 1);
            QVERIFY(warnings.first().startsWith(u"picture-damaged: The icon file is cut off"_s));
        }
        QCOMPARE(warningsOf(toPdfImage(write("zeros.icns", icns(grey) + QByteArray(16, '\0')))),
                 QStringList());
    }

    void newerEntryHasItsOwnOpacity() {
        const QByteArray planes = runs(256, 9) + runs(256, 10) + runs(256, 20) + runs(256, 30);
        const PdfImage image =
            toPdfImage(write("newer.icns", icns(entry("ic04", "ARGB" + planes))));
        QCOMPARE(whole(image).pixel(0, 0), qRgba(10, 20, 30, 9));
    }

    void classicEntryThatEndsEarlyIsRefused() {
        const QByteArray bytes = icns(entry("is32", runs(256, 1)));
        QCOMPARE(refusalOf(write("short.icns", bytes)), u"The file ends too early"_s);
    }

    void bitmapFrameLooksAsQtShowsIt_data() {
        QTest::addColumn<QByteArray>("frame");
        const auto palette = [](qsizetype colors) {
            QByteArray bytes = randomBytes(4 * colors);
            for (qsizetype i = 3; i < bytes.size(); i += 4) {
                bytes[i] = '\0';
            }
            return bytes;
        };
        const QByteArray mask = QByteArray::fromHex("0f000000aa000000ff00000001000000");
        QTest::newRow("1 bit") << bitmapFrame(1, palette(2) + randomBytes(16) + mask);
        QTest::newRow("4 bits") << bitmapFrame(4, palette(16) + randomBytes(16) + mask);
        QTest::newRow("8 bits") << bitmapFrame(8, palette(256) + randomBytes(32) + mask);
        QTest::newRow("32 bits") << bitmapFrame(32, randomBytes(128) + QByteArray(16, '\0'));
    }

    void bitmapFrameLooksAsQtShowsIt() {
        QFETCH(QByteArray, frame);
        const QByteArray bytes = ico({frame});
        QCOMPARE(difference(whole(toPdfImage(write("frame.ico", bytes))), shownByQt(bytes, "ico")),
                 QString());
    }

    void bitsBelowABitmapFrameAreItsOpacity() {
        QByteArray pixels(96, '\x40');
        const QByteArray mask = QByteArray::fromHex("00000000000000000000000080000000");
        const QImage icon =
            whole(toPdfImage(write("mask.ico", ico({bitmapFrame(24, pixels + mask)}))));
        QCOMPARE(qAlpha(icon.pixel(0, 0)), 0); // The last row of the file is the first.
        QCOMPARE(icon.pixel(1, 0), qRgb(64, 64, 64));
        QCOMPARE(icon.pixel(0, 1), qRgb(64, 64, 64));
    }

    void largestFrameIsTakenThoughOthersAreDamaged() {
        const QByteArray good = bitmapFrame(24, QByteArray(96 + 16, '\0'));
        const QByteArray bytes = ico({QByteArray(50, '\x55'), good});
        const ImageHeader header = readImageHeader(write("damaged.ico", bytes));
        QCOMPARE(QSize(header.width, header.height), QSize(8, 4));
        QCOMPARE(toPdfImage(write("damaged.ico", bytes)).width, 8);
    }

    void anIconThatLacksItsMaskIsTakenAndNamed() {
        const QByteArray rows = randomBytes(96 + 16); // 8 x 4 pixels of 24 bits, and their mask.
        const QByteArray good = ico({bitmapFrame(24, rows)});
        QCOMPARE(warningsOf(toPdfImage(write("whole.ico", good))), QStringList());
        QCOMPARE(warningsOf(toPdfImage(write("cut.ico", good.chopped(1)))),
                 QStringList(u"picture-damaged: The picture is cut off: its transparency could not "
                             "be read"_s));
    }

    void pngFrameKeepsItsOwnRows() {
        const QByteArray png = bytesOf(imageFile(u"colour.png"_s));
        const QByteArray small = bitmapFrame(24, QByteArray(96 + 16, '\0'));
        const PdfImage image = toPdfImage(write("png.ico", ico({small, png})));
        QCOMPARE(image.embeddedAs, EmbeddedAs::OwnBytes);
        QVERIFY(png.contains("IDAT" + dataOf(image)));
    }

    void framesBehindTheHundredthAreNotLookedAt() {
        const QByteArray small = bitmapFrame(24, QByteArray(96 + 16, '\0'));
        const QByteArray large = bytesOf(imageFile(u"colour.png"_s));
        QList<QByteArray> frames(99, small);
        const ImageHeader header =
            readImageHeader(write("hundred.ico", ico(frames + QList{large})));
        QCOMPARE(header.width, 24);
        frames.append(small);
        QCOMPARE(readImageHeader(write("more.ico", ico(frames + QList{large}))).width, 8);
    }

  private:
    QTemporaryDir m_folder;

    /// A PNG file of 16 pixels a side that Qt writes.
    static QByteArray pngOf(QImage::Format format, const QColor &color) {
        QImage picture(16, 16, format);
        if (format == QImage::Format_Indexed8) {
            picture.setColorTable({color.rgb()});
        }
        picture.fill(format == QImage::Format_Indexed8 ? 0U : color.rgba());
        QByteArray bytes;
        QBuffer buffer(&bytes);
        picture.save(&buffer, "png");
        return bytes;
    }

    QString write(const char *name, const QByteArray &bytes) {
        return writeFile(m_folder.filePath(QString::fromLatin1(name)), bytes);
    }
};

FOLIOFORGE_TEST(IconTest)
#include "IconTest.moc"
