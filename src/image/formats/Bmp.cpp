#include "image/formats/Formats.h"

#include "image/Bytes.h"
#include "image/formats/QtImage.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

constexpr double kMetresPerInch = 0.0254;
constexpr qint64 kPixelsAt = 10; ///< Where a bitmap says where its pixels begin.
constexpr qint64 kFileHeaderBytes = 14;
constexpr quint32 kNewHeader = 40; ///< The first of a bitmap's headers to know of density.

bool isBitmap(QByteArrayView head) {
    // Two letters are a weak signature: the sizes of the known headers make it plain.
    constexpr std::array<quint32, 8> kHeaderSizes = {12, 16, 40, 52, 56, 64, 108, 124};
    return head.size() >= 26 && head.startsWith("BM") &&
           std::ranges::find(kHeaderSizes, littleEndianAt<quint32>(head, kFileHeaderBytes)) !=
               kHeaderSizes.end();
}

ImageHeader readBitmapHeader(const FileView &file) {
    constexpr quint32 kOldHeader = 12;
    const QByteArray head = file.read(0, 54);
    ImageHeader header;
    if (!head.startsWith("BM")) {
        throw Error(u"The file is no bitmap"_s);
    }
    const auto headerSize = littleEndianAt<quint32>(head, kFileHeaderBytes);
    if (headerSize == kOldHeader) {
        header.width = littleEndianAt<quint16>(head, 18);
        header.height = littleEndianAt<quint16>(head, 20);
        return checkedHeader(header);
    }
    header.width = littleEndianAt<qint32>(head, 18);
    // A negative height means rows from the top.
    header.height = static_cast<int>(
        std::min<qint64>(std::abs(qint64(littleEndianAt<qint32>(head, 22))), 0x7FFFFFFF));
    if (headerSize >= kNewHeader) {
        header.horizontalDpi = littleEndianAt<qint32>(head, 38) * kMetresPerInch;
        header.verticalDpi = littleEndianAt<qint32>(head, 42) * kMetresPerInch;
    }
    return checkedHeader(header);
}

/// Zeros make a header that Qt does not know one that it knows: it reads neither the shortest of
/// OS/2 nor those that end with the masks of the colours.
void makeHeaderKnown(QByteArray &bitmap) {
    constexpr std::array<quint32, 3> kUnknown = {16, 52, 56};
    constexpr quint32 kKnown = 108;
    const auto size = littleEndianAt<quint32>(bitmap, kFileHeaderBytes);
    if (std::ranges::find(kUnknown, size) == kUnknown.end()) {
        return;
    }
    const quint32 pixels = littleEndianAt<quint32>(bitmap, kPixelsAt) + kKnown - size;
    bitmap.insert(kFileHeaderBytes + size, kKnown - size, '\0');
    qToLittleEndian(kKnown, bitmap.data() + kFileHeaderBytes);
    qToLittleEndian(pixels, bitmap.data() + kPixelsAt);
}

/// Qt takes the pixels from wherever it stands when they, or the header before them, should lie
/// behind the end of the file.
void requirePixelsInside(const FileView &file) {
    const QByteArray head = file.readExactly(0, kFileHeaderBytes + 4);
    const qint64 headersEnd = kFileHeaderBytes + littleEndianAt<quint32>(head, kFileHeaderBytes);
    const qint64 pixels = littleEndianAt<qint32>(head, kPixelsAt);
    if (std::max(headersEnd, pixels) >= file.size()) {
        throw Error(u"The file ends too early"_s);
    }
}

/// Qt prints a warning for each colour of a table that is too long.
void requirePlausibleColors(const FileView &file) {
    constexpr int kMaxTableBits = 8;
    const QByteArray head = file.read(0, 54);
    const int bits = littleEndianAt<quint16>(head, 28);
    if (littleEndianAt<quint32>(head, kFileHeaderBytes) >= kNewHeader && bits <= kMaxTableBits &&
        littleEndianAt<quint32>(head, 46) > 1U << bits) {
        throw Error(u"The bitmap has more colours than its pixels can name"_s);
    }
}

/// The bits that pixels have of red, green, blue and opacity; 8 or none where they are whole bytes.
std::array<int, 4> channelBits(QByteArrayView bitmap) {
    constexpr quint32 kWithOpacity = 56;
    constexpr qsizetype kMasksAt = 54;
    const auto bits = littleEndianAt<quint16>(bitmap, 28);
    const auto headerSize = littleEndianAt<quint32>(bitmap, kFileHeaderBytes);
    if (headerSize < kNewHeader || bits < 16) {
        return {};
    }
    if (littleEndianAt<quint32>(bitmap, 30) == 0) {
        return bits == 16 ? std::array{5, 5, 5, 0} : std::array<int, 4>();
    }
    std::array<int, 4> counts = {};
    for (qsizetype i = 0; i < (headerSize < kWithOpacity ? 3 : 4); ++i) {
        counts[i] = std::popcount(littleEndianAt<quint32>(bitmap, kMasksAt + 4 * i));
    }
    return counts;
}

/// Each value of a byte whose low bits Qt left zero, spread over the whole range.
std::array<uchar, 256> widened(int bits) {
    std::array<uchar, 256> values = {};
    const int most = (1 << bits) - 1;
    for (int value = 0; value < 256; ++value) {
        const int stored = value >> (8 - bits);
        values[value] = static_cast<uchar>((stored * 255 + most / 2) / most);
    }
    return values;
}

/// Fills the low bits of channels of fewer than eight: Qt leaves them zero, which makes white grey.
void widenChannels(QImage &image, const std::array<int, 4> &channels) {
    constexpr std::array<int, 4> kShifts = {16, 8, 0, 24};
    for (std::size_t channel = 0; channel < channels.size(); ++channel) {
        if (channels[channel] == 0 || channels[channel] >= 8) {
            continue;
        }
        const auto values = widened(channels[channel]);
        const int shift = kShifts[channel];
        for (int y = 0; y < image.height(); ++y) {
            auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
            for (int x = 0; x < image.width(); ++x) {
                const QRgb wide = values[(row[x] >> shift) & 0xFF];
                row[x] = (row[x] & ~(0xFFU << shift)) | (wide << shift);
            }
        }
    }
}

PdfImage encodeBitmap(const FileView &file) {
    constexpr qint64 kRunRatio = 2040; // A bit a pixel packed, or 255 pixels for two bytes.
    const ImageHeader header = readBitmapHeader(file);
    requirePlausible(qint64(header.width) * header.height, file.size(), kRunRatio);
    requirePixelsInside(file);
    requirePlausibleColors(file);
    QByteArray bytes = file.readExactly(0, file.size());
    makeHeaderKnown(bytes);
    const auto channels = channelBits(bytes);
    QImage image = readWithQt(std::move(bytes), "bmp");
    widenChannels(image, channels);
    return encodeRaster(rasterOf(image), header);
}

} // namespace

ImageFormat bmpFormat() {
    return {ImageKind::Bmp, {QLatin1StringView("bmp")}, isBitmap, readBitmapHeader, encodeBitmap};
}

} // namespace folioforge
