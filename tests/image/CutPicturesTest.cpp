// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "support/TestUnit.h"

#include "error/Error.h"
#include "support/Files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <ImfRgbaFile.h>
#include <tiffio.h>

#include <functional>
#include <memory>
#include <random>
#include <vector>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Pictures that end too early or were changed: what is shown is as it was, or words say that it is
/// not.

namespace {

constexpr int kWidth = 40;
constexpr int kHeight = 30;

/// A picture whose rows all differ, none of one colour.
QImage pattern(QImage::Format format) {
    QImage picture(kWidth, kHeight, QImage::Format_ARGB32);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            picture.setPixel(x, y, qRgba(1 + x * 6, 1 + y * 8, 1 + (x * 7 + y * 13) % 254, 255));
        }
    }
    return picture.convertToFormat(format);
}

QByteArray tga(int bits, bool isPacked) {
    const QImage picture = pattern(QImage::Format_ARGB32);
    QByteArray bytes = QByteArray::fromHex(isPacked ? "00000a" : "000002") + QByteArray(9, '\0');
    bytes.append(kWidth).append('\0').append(kHeight).append('\0');
    bytes.append(static_cast<char>(bits)).append('\x20');
    for (int y = 0; y < kHeight; ++y) {
        const auto *row = reinterpret_cast<const char *>(picture.constScanLine(y));
        if (isPacked) {
            bytes.append(kWidth - 1); // As they are.
        }
        for (int x = 0; x < kWidth; ++x) {
            bytes.append(row + x * 4, bits / 8);
        }
    }
    return bytes;
}

QByteArray bitmap(QImage::Format format) {
    const QTemporaryDir folder;
    pattern(format).save(folder.filePath(u"picture.bmp"_s));
    return bytesOf(folder.filePath(u"picture.bmp"_s));
}

QByteArray bitmapOfRuns() {
    QByteArray bytes = bitmap(QImage::Format_Indexed8);
    const auto at = qFromLittleEndian<quint32>(bytes.constData() + 10);
    QByteArray runs;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            runs.append('\1').append(bytes[at + y * kWidth + x]);
        }
        runs.append(2, '\0');
    }
    bytes[30] = 1; // Runs of bytes.
    return bytes.first(at) + runs + QByteArray("\0\1", 2);
}

QByteArray exr() {
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath(u"picture.exr"_s));
    {
        std::vector<Imf::Rgba> pixels;
        pixels.reserve(kWidth * kHeight);
        for (int i = 0; i < kWidth * kHeight; ++i) {
            pixels.emplace_back(0.001F * float(i % 1000), 0.5F, 0.25F);
        }
        Imf::RgbaOutputFile file(path.constData(), kWidth, kHeight, Imf::WRITE_RGB, 1,
                                 Imath::V2f(0, 0), 1, Imf::INCREASING_Y, Imf::ZIPS_COMPRESSION);
        file.setFrameBuffer(pixels.data(), 1, kWidth);
        file.writePixels(kHeight);
    }
    return bytesOf(QString::fromLocal8Bit(path));
}

struct CloseTiff {
    void operator()(TIFF *tif) const { TIFFClose(tif); }
};

/// A TIFF file whose directory stands before its one strip, so that a cut takes pixels alone.
QByteArray tiff(int compression, int bits, int samples, int predictor) {
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath(u"picture.tif"_s));
    const std::unique_ptr<TIFF, CloseTiff> tif(TIFFOpen(path.constData(), "wl"));
    TIFFDeferStrileArrayWriting(tif.get());
    TIFFSetField(tif.get(), TIFFTAG_IMAGEWIDTH, kWidth);
    TIFFSetField(tif.get(), TIFFTAG_IMAGELENGTH, kHeight);
    TIFFSetField(tif.get(), TIFFTAG_ROWSPERSTRIP, kHeight);
    TIFFSetField(tif.get(), TIFFTAG_BITSPERSAMPLE, bits);
    TIFFSetField(tif.get(), TIFFTAG_SAMPLESPERPIXEL, samples);
    TIFFSetField(tif.get(), TIFFTAG_COMPRESSION, compression);
    TIFFSetField(tif.get(), TIFFTAG_PHOTOMETRIC,
                 samples == 3 ? PHOTOMETRIC_RGB : PHOTOMETRIC_MINISWHITE);
    TIFFSetField(tif.get(), TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    if (predictor != PREDICTOR_NONE) {
        TIFFSetField(tif.get(), TIFFTAG_PREDICTOR, predictor);
    }
    TIFFWriteCheck(tif.get(), 0, "test");
    TIFFWriteDirectory(tif.get());
    TIFFSetDirectory(tif.get(), 0);
    const QImage picture = pattern(samples == 3 ? QImage::Format_RGB888 : QImage::Format_Mono);
    QByteArray rows;
    for (int y = 0; y < kHeight; ++y) {
        rows.append(reinterpret_cast<const char *>(picture.constScanLine(y)),
                    TIFFScanlineSize(tif.get()));
    }
    TIFFWriteEncodedStrip(tif.get(), 0, rows.data(), rows.size());
    TIFFForceStrileArrayWriting(tif.get());
    TIFFFlush(tif.get());
    return bytesOf(QString::fromLocal8Bit(path));
}

struct Picture {
    QString name;
    QByteArray bytes;
};

std::vector<Picture> pictures() {
    std::vector<Picture> all;
    for (const QString &name : QDir(imageFile({})).entryList(QDir::Files, QDir::Name)) {
        // JPEG and JPEG 2000 have a test of their own.
        if (!name.endsWith(u".jpg") && !name.contains(u"jp2")) {
            all.push_back({name, bytesOf(imageFile(name))});
        }
    }
    all.push_back({u"colour.tga"_s, tga(24, false)});
    all.push_back({u"opacity.tga"_s, tga(32, false)});
    all.push_back({u"packed.tga"_s, tga(24, true)});
    all.push_back({u"colour.bmp"_s, bitmap(QImage::Format_RGB888)});
    all.push_back({u"palette.bmp"_s, bitmap(QImage::Format_Indexed8)});
    all.push_back({u"mono.bmp"_s, bitmap(QImage::Format_Mono)});
    all.push_back({u"runs.bmp"_s, bitmapOfRuns()});
    all.push_back({u"light.exr"_s, exr()});
    all.push_back({u"raw.tif"_s, tiff(COMPRESSION_NONE, 8, 3, PREDICTOR_NONE)});
    all.push_back({u"lzw.tif"_s, tiff(COMPRESSION_LZW, 8, 3, PREDICTOR_HORIZONTAL)});
    all.push_back({u"zip.tif"_s, tiff(COMPRESSION_ADOBE_DEFLATE, 8, 3, PREDICTOR_HORIZONTAL)});
    all.push_back({u"packbits.tif"_s, tiff(COMPRESSION_PACKBITS, 8, 3, PREDICTOR_NONE)});
    all.push_back({u"g3.tif"_s, tiff(COMPRESSION_CCITTFAX3, 1, 1, PREDICTOR_NONE)});
    all.push_back({u"g4.tif"_s, tiff(COMPRESSION_CCITTFAX4, 1, 1, PREDICTOR_NONE)});
    return all;
}

/// Colour and opacity of every pixel as they are seen; empty where only a viewer could tell.
QByteArray seen(const PdfImage &image) {
    if (image.color == ImageColor::Cmyk || image.color == ImageColor::Lab) {
        return unzipped(image.data);
    }
    return rgbRows(image) + (image.softMask ? rgbRows(*image.softMask) : QByteArray());
}

bool saysDamaged(const PdfImage &image) {
    return warningsOf(image).join(u'\n').contains(u"picture-damaged: "_s);
}

} // namespace

class CutPicturesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void cutPictureIsAsBeforeOrSaysSo_data() { addPictures(); }

    void cutPictureIsAsBeforeOrSaysSo() {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, bytes);
        std::mt19937 random(20240301); // The same cuts in every run.
        for (int round = 0; round < 10; ++round) {
            const auto length = static_cast<qsizetype>(random() % bytes.size());
            requireSameOrWords(name, bytes, bytes.first(length), QString::number(length));
        }
    }

    /// Only PNG and group 4 data tell every change of a byte.
    void changedPictureIsAsBeforeOrSaysSo_data() {
        addPictures(
            [](const QString &name) { return name.endsWith(u".png") || name.endsWith(u"g4.tif"); });
    }

    void changedPictureIsAsBeforeOrSaysSo() {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, bytes);
        std::mt19937 random(20240302);
        for (int round = 0; round < 10; ++round) {
            QByteArray changed = bytes;
            // The directory of a TIFF file has no check of its own: the strip follows it.
            const qsizetype first = name.endsWith(u".tif") ? 200 : 0;
            const qsizetype at = first + static_cast<qsizetype>(random() % (bytes.size() - first));
            changed[at] = static_cast<char>(changed[at] ^ (1 << random() % 8));
            requireSameOrWords(name, bytes, changed, QString::number(at));
        }
    }

    void rowsBeforeTheCutAreShown_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        // Of these each row is as long as the other, or is compressed alone.
        for (const Picture &picture : pictures()) {
            for (const char *name : {"colour.tga", "opacity.tga", "packed.tga", "raw.tif"}) {
                if (picture.name == QLatin1StringView(name)) {
                    QTest::newRow(name) << picture.name << picture.bytes;
                }
            }
        }
    }

    void rowsBeforeTheCutAreShown() {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, bytes);
        const qsizetype row = bytes.size() / kHeight; // A little more than a row's bytes.
        const PdfImage whole = toPdfImage(write(name, bytes));
        const PdfImage cut = toPdfImage(write(name, bytes.chopped(12 * row - row / 2)));
        QCOMPARE(rgbRows(cut).first(18 * 3 * kWidth), rgbRows(whole).first(18 * 3 * kWidth));
        QCOMPARE(warningsOf(cut), QStringList(u"picture-damaged: The picture is cut off: 40 % of "
                                              u"its rows could not be read"_s));
    }

    void compressedRowsBeforeTheCutAreShown_data() {
        addPictures([](const QString &name) {
            return name == u"lzw.tif" || name == u"zip.tif" || name == u"packbits.tif" ||
                   name == u"g3.tif" || name == u"g4.tif" || name == u"light.exr" ||
                   name == u"colour.png" || name == u"translucent.png" || name == u"colour.psd" ||
                   name == u"runs.bmp";
        });
    }

    void compressedRowsBeforeTheCutAreShown() {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, bytes);
        const PdfImage whole = toPdfImage(write(name, bytes));
        const PdfImage cut = toPdfImage(write(name, bytes.first(bytes.size() * 9 / 10)));
        const QByteArray there = seen(cut);
        const QByteArray all = seen(whole);
        QCOMPARE(there.size(), all.size());
        QVERIFY(saysDamaged(cut));
        const auto [one, other] = std::mismatch(there.begin(), there.end(), all.begin());
        if (!name.endsWith(u".bmp")) { // Which begins with its last row.
            QVERIFY(one - there.begin() > there.size() / 4);
        }
    }

    void thePassesOfAnInterlacedPictureBeforeTheCutAreShown_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("bytes");
        QTest::newRow("colour") << u"colour-interlaced.png"_s << 150;
        QTest::newRow("opacity") << u"translucent-interlaced.png"_s << 170;
    }

    void thePassesOfAnInterlacedPictureBeforeTheCutAreShown() {
        QFETCH(const QString, name);
        QFETCH(const int, bytes);
        const QByteArray all = bytesOf(imageFile(name));
        const PdfImage whole = toPdfImage(write(name, all));
        const PdfImage cut = toPdfImage(write(name, all.first(bytes)));
        QVERIFY(saysDamaged(cut));
        const QByteArray expected = rgbRows(whole);
        const QByteArray shown = rgbRows(cut);
        QCOMPARE(shown.size(), expected.size());
        for (int x = 0; x < whole.width; x += 8) { // The first row of the first pass.
            QCOMPARE(shown.mid(3 * x, 3), expected.mid(3 * x, 3));
        }
    }

  private:
    QTemporaryDir m_folder;
    int m_files = 0;

    static void addPictures(const std::function<bool(const QString &)> &isWanted = nullptr) {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        for (const Picture &picture : pictures()) {
            if (!isWanted || isWanted(picture.name)) {
                QTest::newRow(qPrintable(picture.name)) << picture.name << picture.bytes;
            }
        }
    }

    QString write(const QString &name, const QByteArray &bytes) {
        return writeFile(m_folder.filePath(QString::number(++m_files) + name), bytes);
    }

    void requireSameOrWords(const QString &name, const QByteArray &bytes, const QByteArray &damaged,
                            const QString &note = {}) {
        const PdfImage whole = toPdfImage(write(name, bytes));
        QVERIFY2(!saysDamaged(whole), qPrintable(warningsOf(whole).join(u'\n')));
        try {
            const PdfImage image = toPdfImage(write(name, damaged));
            QVERIFY2(saysDamaged(image) || seen(image) == seen(whole), qPrintable(note));
        } catch (const Error &error) {
            QVERIFY(!error.reason().isEmpty());
        }
    }
};

FOLIOFORGE_TEST(CutPicturesTest)
#include "CutPicturesTest.moc"
