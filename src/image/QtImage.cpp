#include "image/QtImage.h"

#include "image/Bytes.h"

#include <QBuffer>
#include <QHash>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <bit>

namespace folioforge {

namespace {

constexpr double kMetresPerInch = 0.0254;
constexpr qint64 kPixelsAt = 10; ///< Where a bitmap says where its pixels begin.
constexpr qint64 kFileHeaderBytes = 14;
constexpr quint32 kNewHeader = 40; ///< The first of a bitmap's headers to know of density.

/// Qt refuses images over 128 MB unless told: the bound on pixels is this project's, four bytes
/// for each.
void setAllocationLimit() {
    constexpr qint64 kMegabyte = 1 << 20;
    QImageReader::setAllocationLimit(static_cast<int>(kMaxImagePixels * 4 / kMegabyte) + 1);
}

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
        throw Error(QStringLiteral("The file is no bitmap"));
    }
    const auto headerSize = littleEndianAt<quint32>(head, kFileHeaderBytes);
    if (headerSize == kOldHeader) {
        header.width = littleEndianAt<quint16>(head, 18);
        header.height = littleEndianAt<quint16>(head, 20);
        return header;
    }
    header.width = littleEndianAt<qint32>(head, 18);
    // A negative height means rows from the top.
    header.height = static_cast<int>(
        std::min<qint64>(std::abs(qint64(littleEndianAt<qint32>(head, 22))), 0x7FFFFFFF));
    if (headerSize >= kNewHeader) {
        header.horizontalDpi = littleEndianAt<qint32>(head, 38) * kMetresPerInch;
        header.verticalDpi = littleEndianAt<qint32>(head, 42) * kMetresPerInch;
    }
    return header;
}

bool isGif(QByteArrayView head) {
    return head.startsWith("GIF87a") || head.startsWith("GIF89a");
}

/// Where the first image of a GIF file begins: behind the colours and the extensions.
qsizetype firstFrameOf(QByteArrayView gif) {
    const auto byteAt = [gif](qsizetype at) { return littleEndianAt<quint8>(gif, at); };
    const int flags = byteAt(10);
    qsizetype at = 13 + ((flags & 0x80) != 0 ? qsizetype{6} << (flags & 7) : 0);
    while (byteAt(at) == '!') {
        at += 2;
        while (byteAt(at) != 0) {
            at += 1 + byteAt(at);
        }
        ++at;
    }
    if (byteAt(at) != ',') {
        throw Error(QStringLiteral("The file holds no image"));
    }
    return at;
}

ImageHeader readGifHeader(const FileView &file) {
    constexpr qint64 kFarthestFrame = 1 << 20;
    const QByteArray head = file.readExactly(0, 10);
    ImageHeader header;
    header.width = littleEndianAt<quint16>(head, 6);
    header.height = littleEndianAt<quint16>(head, 8);
    if (header.width == 0 || header.height == 0) {
        // The first image gives what the screen leaves open.
        const QByteArray start = file.read(0, kFarthestFrame);
        const qsizetype frame = firstFrameOf(start);
        const auto side = [&](int field) { return littleEndianAt<quint16>(start, frame + field); };
        header.width = header.width == 0 ? side(1) + side(5) : header.width;
        header.height = header.height == 0 ? side(3) + side(7) : header.height;
    }
    return header;
}

/// The first frame of the image file `bytes`.
QImage readWithQt(QByteArray bytes, const char *format) {
    setAllocationLimit();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoTransform(false);
    QImage image = reader.read();
    if (image.isNull()) {
        throw Error(QStringLiteral("The image cannot be read: %1").arg(reader.errorString()));
    }
    return image;
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
        throw Error(QStringLiteral("The file ends too early"));
    }
}

/// Qt prints a warning for each colour of a table that is too long.
void requirePlausibleColors(const FileView &file) {
    constexpr int kMostTableBits = 8;
    const QByteArray head = file.read(0, 54);
    const int bits = littleEndianAt<quint16>(head, 28);
    if (littleEndianAt<quint32>(head, kFileHeaderBytes) >= kNewHeader && bits <= kMostTableBits &&
        littleEndianAt<quint32>(head, 46) > 1U << bits) {
        throw Error(QStringLiteral("The bitmap has more colours than its pixels can name"));
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

EncodedImage encodeBitmap(const FileView &file) {
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
    return encodeRaster(rasterOf(image));
}

EncodedImage encodeGif(const FileView &file) {
    constexpr qint64 kLzwRatio = 3000;
    const ImageHeader header = readGifHeader(file);
    requirePlausible(qint64(header.width) * header.height, file.size(), kLzwRatio);
    return encodeRaster(rasterOf(readWithQt(file.readExactly(0, file.size()), "gif")));
}

/// Rows of a QImage are padded to four bytes; a PDF's are not.
QByteArray packedRows(const QImage &image, qsizetype stride) {
    QByteArray rows(image.height() * stride, Qt::Uninitialized);
    for (int y = 0; y < image.height(); ++y) {
        std::copy_n(image.constScanLine(y), stride, rows.data() + y * stride);
    }
    return rows;
}

bool isOpaque(const QList<QRgb> &colors) {
    return std::ranges::all_of(colors, [](QRgb color) { return qAlpha(color) == 0xFF; });
}

bool isGray(const QList<QRgb> &colors) {
    return std::ranges::all_of(colors, [](QRgb color) {
        return qRed(color) == qGreen(color) && qGreen(color) == qBlue(color);
    });
}

AlphaPlane paletteAlpha(const QByteArray &indexes, const QList<QRgb> &colors) {
    AlphaPlane plane{8, indexes};
    for (char &value : plane.samples) {
        const auto index = static_cast<uchar>(value);
        value = static_cast<char>(index < colors.size() ? qAlpha(colors.at(index)) : 0xFF);
    }
    return plane;
}

void takeIndexed(const QImage &image, Raster &raster) {
    const QList<QRgb> colors = image.colorTable();
    raster.samples = packedRows(image, image.width());
    if (!isOpaque(colors)) {
        raster.alpha = paletteAlpha(raster.samples, colors);
    }
    if (isGray(colors)) {
        raster.color = ImageColor::Gray;
        for (char &value : raster.samples) {
            const auto index = static_cast<uchar>(value);
            value = static_cast<char>(index < colors.size() ? qRed(colors.at(index)) : 0);
        }
        return;
    }
    raster.color = ImageColor::Indexed;
    for (const QRgb color : colors) {
        raster.palette.append(static_cast<char>(qRed(color)));
        raster.palette.append(static_cast<char>(qGreen(color)));
        raster.palette.append(static_cast<char>(qBlue(color)));
    }
}

/// One bit where it is black and white; false where the two colours are others.
bool takeBilevel(const QImage &image, Raster &raster) {
    const QImage mono = image.convertToFormat(QImage::Format_Mono);
    const QList<QRgb> colors = mono.colorTable();
    constexpr QRgb kBlack = qRgb(0, 0, 0);
    constexpr QRgb kWhite = qRgb(255, 255, 255);
    const bool blackFirst = colors == QList<QRgb>{kBlack, kWhite};
    if (!blackFirst && colors != QList<QRgb>{kWhite, kBlack}) {
        return false;
    }
    raster.bits = 1;
    raster.color = ImageColor::Gray;
    raster.samples = packedRows(mono, rowBytes(mono.width(), 1, 1));
    if (!blackFirst) {
        raster.decode = {1, 0};
    }
    return true;
}

void takeGray(const QImage &image, Raster &raster) {
    const bool deep = image.format() == QImage::Format_Grayscale16;
    raster.color = ImageColor::Gray;
    raster.bits = deep ? 16 : 8;
    raster.samples = packedRows(image, raster.stride());
    if (deep) {
        auto *samples = reinterpret_cast<quint16 *>(raster.samples.data());
        qToBigEndian<quint16>(samples, raster.samples.size() / 2, samples);
    }
}

/// The image with a palette where it has no more than 256 colours: Qt reads some files that have
/// one (GIF, icons) into full colour. Null where there are more.
QImage withPalette(const QImage &image) {
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    QImage indexed(argb.size(), QImage::Format_Indexed8);
    QHash<QRgb, uchar> numbers;
    QList<QRgb> colors;
    for (int y = 0; y < argb.height(); ++y) {
        const auto *source = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        uchar *target = indexed.scanLine(y);
        for (int x = 0; x < argb.width(); ++x) {
            if (x > 0 && source[x] == source[x - 1]) {
                target[x] = target[x - 1];
                continue;
            }
            auto number = numbers.constFind(source[x]);
            if (number == numbers.constEnd()) {
                if (colors.size() == 256) {
                    return {};
                }
                number = numbers.insert(source[x], static_cast<uchar>(colors.size()));
                colors.append(source[x]);
            }
            target[x] = *number;
        }
    }
    indexed.setColorTable(colors);
    return indexed;
}

void takeColor(const QImage &image, Raster &raster) {
    if (const QImage indexed = withPalette(image); !indexed.isNull()) {
        takeIndexed(indexed, raster);
        return;
    }
    raster.color = ImageColor::Rgb;
    if (!image.hasAlphaChannel()) {
        raster.samples = packedRows(image.convertToFormat(QImage::Format_RGB888), raster.stride());
        return;
    }
    const QImage rgba = image.convertToFormat(QImage::Format_RGBA8888);
    raster.samples = allocateRows(raster.height, raster.stride());
    raster.alpha = AlphaPlane{8, allocateRows(raster.height, raster.width)};
    char *color = raster.samples.data();
    char *alpha = raster.alpha->samples.data();
    for (int y = 0; y < rgba.height(); ++y) {
        const uchar *source = rgba.constScanLine(y);
        for (int x = 0; x < rgba.width(); ++x, source += 4) {
            color = std::copy_n(source, 3, color);
            *alpha++ = static_cast<char>(source[3]);
        }
    }
}

} // namespace

Raster rasterOf(const QImage &image) {
    Raster raster;
    raster.width = image.width();
    raster.height = image.height();
    const bool mono =
        image.format() == QImage::Format_Mono || image.format() == QImage::Format_MonoLSB;
    if (mono && takeBilevel(image, raster)) {
        return raster;
    }
    if (mono) {
        takeIndexed(image.convertToFormat(QImage::Format_Indexed8), raster);
    } else if (image.format() == QImage::Format_Indexed8) {
        takeIndexed(image, raster);
    } else if (image.format() == QImage::Format_Grayscale8 ||
               image.format() == QImage::Format_Grayscale16) {
        takeGray(image, raster);
    } else {
        takeColor(image, raster);
    }
    return raster;
}

Decoder bmpDecoder() {
    return {ImageFormat::Bmp, {QLatin1StringView("bmp")}, isBitmap, readBitmapHeader, encodeBitmap};
}

Decoder gifDecoder() {
    return {ImageFormat::Gif, {QLatin1StringView("gif")}, isGif, readGifHeader, encodeGif};
}

} // namespace folioforge
