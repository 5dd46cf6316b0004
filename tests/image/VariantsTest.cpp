// SPDX-License-Identifier: Apache-2.0

#include "DecodedImage.h"
#include "support/CmykJpeg.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QTest>
#include <QtEndian>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Pictures of every depth, compression and layout that other programs write:
/// what comes out is what one of these programs reads.

namespace {

/// Each sample of packed rows, which no PNG file can hold, in eight bits.
QByteArray unpacked(const PdfImage &image, int channels) {
    const QByteArray rows = unzipped(image.data);
    const int bits = image.bitsPerComponent;
    const qsizetype stride = (qsizetype(image.width) * channels * bits + 7) / 8;
    const int full = (1 << bits) - 1;
    QByteArray samples;
    for (int y = 0; y < image.height; ++y) {
        for (qsizetype i = 0; i < qsizetype(image.width) * channels; ++i) {
            const int byte = static_cast<uchar>(rows[y * stride + i * bits / 8]);
            const auto shift = static_cast<int>(8 - bits - i * bits % 8);
            samples.append(static_cast<char>((byte >> shift & full) * 255 / full));
        }
    }
    return samples;
}

/// Four inks of each pixel, which a PNG file of four channels holds where they are whole bytes.
QByteArray inksOf(const PdfImage &image) {
    if (image.filter == ImageFilter::Dct) {
        return samplesOfCmykJpeg(dataOf(image));
    }
    if (image.bitsPerComponent < 8) {
        return unpacked(image, 4);
    }
    QByteArray header(13, '\0');
    qToBigEndian(quint32(image.width), header.data());
    qToBigEndian(quint32(image.height), header.data() + 4);
    header[8] = static_cast<char>(image.bitsPerComponent);
    header[9] = 6;
    const QByteArray png = QByteArray("\x89PNG\r\n\x1A\n", 8) + pngChunk("IHDR", header) +
                           pngChunk("IDAT", image.data) + pngChunk("IEND", {});
    const QImage picture = QImage::fromData(png, "png").convertToFormat(QImage::Format_RGBA8888);
    return {reinterpret_cast<const char *>(picture.constBits()), picture.sizeInBytes()};
}

/// Red, green and blue of inks, as programs without profiles mix them.
QByteArray rgbOfInks(const PdfImage &image) {
    QByteArray rows;
    const QByteArray inks = inksOf(image);
    for (qsizetype at = 0; at < inks.size(); at += 4) {
        const auto paper = [&](int ink) {
            const int sample = static_cast<uchar>(inks[at + ink]);
            return image.decode.empty() ? 255 - sample : sample;
        };
        for (const int ink : {0, 1, 2}) {
            rows.append(static_cast<char>(paper(ink) * paper(3) / 255));
        }
    }
    return rows;
}

/// The colours of a palette of two whose numbers are fax data.
QByteArray rgbOfTwoColors(const PdfImage &image) {
    QByteArray rows;
    const QByteArray numbers = rgbRows(image);
    for (qsizetype at = 0; at < numbers.size(); at += 3) {
        rows += image.palette.sliced(numbers[at] == '\0' ? 0 : 3, 3);
    }
    return rows;
}

/// Red, green and blue of each pixel.
QByteArray rgb(const PdfImage &image) {
    if (image.color == ImageColor::Cmyk) {
        return rgbOfInks(image);
    }
    if (image.color == ImageColor::Indexed && image.filter == ImageFilter::CcittFax) {
        return rgbOfTwoColors(image);
    }
    const bool isPacked = image.color == ImageColor::Rgb && image.bitsPerComponent < 8;
    return isPacked ? unpacked(image, 3) : rgbRows(image);
}

/// Red, green, blue and opacity of each pixel.
QByteArray rgba(const PdfImage &image) {
    const QByteArray color = rgb(image);
    const QByteArray opacity = image.softMask ? rgbRows(*image.softMask) : QByteArray();
    QByteArray pixels;
    for (qsizetype at = 0; at + 3 <= color.size(); at += 3) {
        pixels += color.sliced(at, 3);
        pixels += opacity.isEmpty() ? '\xFF' : opacity[at];
    }
    return pixels;
}

/// The first pixel that differs, in words; empty where none does by more than
/// rounding.
QString difference(const QByteArray &ours, const QByteArray &theirs) {
    constexpr int kRounding = 3;
    if (ours.size() != theirs.size()) {
        return u"%1 bytes, not %2"_s.arg(ours.size()).arg(theirs.size());
    }
    for (qsizetype at = 0; at < ours.size(); at += 4) {
        const bool isSeen = theirs[at + 3] != 0 || ours[at + 3] != 0;
        for (int c = 0; c < 4 && isSeen; ++c) {
            if (std::abs(static_cast<uchar>(ours[at + c]) - static_cast<uchar>(theirs[at + c])) >
                kRounding) {
                return u"pixel %1: %2, not %3"_s.arg(at / 4).arg(
                    QString::fromLatin1(ours.sliced(at, 4).toHex()),
                    QString::fromLatin1(theirs.sliced(at, 4).toHex()));
            }
        }
    }
    return {};
}

/// Files of which our reading is right and others' is not, or that are refused.
bool isLeftOut(const QString &name) {
    const QStringList patterns = {
        u"gm-*Matte*.tif"_s,             // No meaning is stated for the last sample: no opacity.
        u"*-sample-format-ieeefp.tif"_s, // There are no floating-point numbers of 8 bits.
        u"gm-ColorSeparation-*.tif"_s,   // Inks that lack what the black one gives.
        u"magick-*Matte-white-*.tif"_s,  // Samples that do not follow the stated meaning of 0.
        u"magick-*Matte-depth1-*.tif"_s, // So are these.
        u"magick-*Matte-ARGB*.bmp"_s,    // Opacity of a few bits, which others read as none.
        u"magick-*Matte-*-15.tga"_s,     // So is this.
        u"magick-Palette-RLE-*.psd"_s,   // Rows of 16 bits in a file that states 8.
        u"magick-PaletteMatte-*.psd"_s,  // Two channels are stated, and one is there.
        u"magick-p?.psd"_s,              // Rows of 1 or 2 bits in a file that states 8.
        u"magick-p16.psd"_s,             // Rows of 4.
        u"pillow-mono-tga_rle-*.tga"_s,  // 32 bytes that mean nothing before each row of 5.
        u"pillow-*a.jp2"_s,              // Opacity of which no box tells.
        u"*-float24.tif"_s,              // Refused.
        u"*Matte-ycbcr.tif"_s,           // Refused: brightness and colours with opacity.
        u"gm-Palette-bits-per-sample-*.tif"_s, // Refused: palettes of more than 256 colours.
        // Opacity multiplies colours, and a palette has none to multiply.
        u"magick-PaletteMatte-assoc-*.tif"_s,
    };
    return std::ranges::any_of(patterns,
                               [&](const QString &pattern) { return QDir::match(pattern, name); });
}

} // namespace

class VariantsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void pictureIsAsAnotherProgramReadsIt() {
        const QStringList names = m_folder.entryList(QDir::Files, QDir::Name);
        int compared = 0;
        int comparedWithBoth = 0;
        QStringList faults;
        for (const QString &name : names) {
            const QList<QByteArray> readings = readingsOf(name);
            if (!readings.isEmpty() && !isLeftOut(name)) {
                const QString fault = faultOf(name, readings);
                ++compared;
                comparedWithBoth += readings.size() > 1 ? 1 : 0;
                if (!fault.isEmpty()) {
                    faults += name + u": "_s + fault;
                }
            }
        }
        for (const QString &fault : std::as_const(faults)) {
            qWarning("%s", qPrintable(fault));
        }
        QVERIFY(faults.isEmpty());
        QVERIFY2(compared >= 600, qPrintable(QString::number(compared)));
        // Fewer mean that a program has ended before it read them all.
        QVERIFY2(comparedWithBoth >= compared * 3 / 4,
                 qPrintable(u"%1 of %2"_s.arg(comparedWithBoth).arg(compared)));
    }

  private:
    const QDir m_folder{madeBy(u"make-variants"_s)};

    [[nodiscard]] QList<QByteArray> readingsOf(const QString &name) const {
        QList<QByteArray> readings;
        for (const char *program : {".pillow", ".magick"}) {
            const QByteArray pixels = bytesOf(m_folder.filePath(name + QLatin1StringView(program)));
            if (!pixels.isEmpty()) {
                readings += pixels;
            }
        }
        return readings;
    }

    QString faultOf(const QString &name, const QList<QByteArray> &readings) const {
        const QString path = m_folder.filePath(name);
        QString reason = refusalOf(path);
        if (!reason.isEmpty()) {
            return reason;
        }
        const PdfImage image = toPdfImage(path);
        if (image.filter == ImageFilter::Jpx) {
            return {};
        }
        QStringList faults;
        // Where programs disagree, the picture that the file was made of decides.
        const QByteArray source = bytesOf(m_folder.filePath(name + u".source"_s));
        for (const QByteArray &reading : readings + QList{source}) {
            faults += difference(rgba(image), reading);
        }
        return faults.contains(QString()) ? QString() : faults.join(u"; "_s);
    }
};

FOLIOFORGE_TEST(VariantsTest)
#include "VariantsTest.moc"
