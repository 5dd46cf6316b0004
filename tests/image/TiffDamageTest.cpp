// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "WrittenTiff.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>

#include <vector>

#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

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

/// TIFF files that lack something, or seem to.
class TiffDamageTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

  private Q_SLOTS:
    void shortDataIsRefused() {
        const QString file =
            writeStrip(path(u"picture.tif"_s), {20000, 20000}, QByteArray(2000, 'x'),
                       [](TIFF *tif) { setSamples(tif, 3, 8, PHOTOMETRIC_YCBCR); });
        QCOMPARE(refusalOf(file), u"The file is too short for the image its header describes"_s);
    }

    void aTextThatShouldLieFarBehindTheEndTakesNoMemory() {
        QByteArray bytes("II*\0\x08\0\0\0\x0A\0", 10);
        const auto add = [&bytes](const std::vector<quint32> &tag) {
            const QByteArray numbers(reinterpret_cast<const char *>(tag.data()),
                                     qsizetype(tag.size() * sizeof(quint32)));
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
        const PdfImage image = toPdfImage(writeFile(path(u"text.tif"_s), bytes));
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
        const PdfImage image = toPdfImage(writeFile(path(u"tall.tif"_s), bytes));
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
        const PdfImage image =
            toPdfImage(writeStrip(path(u"picture.tif"_s), {10, 2}, data, [](TIFF *tif) {
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
        const PdfImage image =
            toPdfImage(writeStrip(path(u"picture.tif"_s), {8, 8}, data, [](TIFF *tif) {
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
        const QString file = writeFile(path(u"wrong.tif"_s), bytes);
        QCOMPARE(refusalOf(file), u"The TIFF file cannot be read: "_s + words);
    }
};

FOLIOFORGE_TEST(TiffDamageTest)
#include "TiffDamageTest.moc"
