// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "image/Bytes.h"
#include "image/Deflate.h"
#include "image/Exif.h"
#include "image/IccProfile.h"
#include "image/MorePictures.h"
#include "image/Parallel.h"
#include "image/Raster.h"
#include "image/RowFilter.h"
#include "image/formats/Interlaced.h"

#include <libdeflate.h>

#include <future>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

enum ColorType : uchar { Gray = 0, Rgb = 2, Palette = 3, GrayAlpha = 4, RgbAlpha = 6 };

constexpr qint64 kSignatureBytes = 8;
constexpr double kMetresPerInch = 0.0254;
/// No deflate stream is smaller than its data by more than this.
constexpr qint64 kDeflateRatio = 1040;
constexpr qsizetype kMaxPaletteBytes = qsizetype{3} * 256;

struct PngMetadata {
    ImageHeader header;
    int bits = 0;
    uchar colorType = 0;
    bool interlaced = false;
    QByteArray palette;
    QByteArray transparency; ///< The tRNS chunk.
    QByteArray iccProfile;
    std::vector<FileSlice> data; ///< The IDAT chunks, from the start of the view.
    bool ended = false;          ///< The chunks were read up to IEND.
    qint64 frames = 0;           ///< Of an animation beside the picture.

    [[nodiscard]] int channels() const {
        switch (colorType) {
        case Rgb:
            return 3;
        case GrayAlpha:
            return 2;
        case RgbAlpha:
            return 4;
        default:
            return 1;
        }
    }
    [[nodiscard]] bool hasAlphaChannel() const {
        return colorType == GrayAlpha || colorType == RgbAlpha;
    }
    [[nodiscard]] ImageColor color() const {
        return colorType == Palette       ? ImageColor::Indexed
               : (colorType & Rgb) == Rgb ? ImageColor::Rgb
                                          : ImageColor::Gray;
    }
    [[nodiscard]] qsizetype stride() const { return rowBytes(header.width, channels(), bits); }
    [[nodiscard]] int pixelBytes() const { return std::max(channels() * bits / 8, 1); }
};

void readImageHeaderChunk(QByteArrayView chunk, PngMetadata &metadata) {
    const auto width = bigEndianAt<quint32>(chunk, 0);
    const auto height = bigEndianAt<quint32>(chunk, 4);
    constexpr quint32 kMax = 0x7FFFFFFF;
    metadata.header.width = static_cast<int>(std::min(width, kMax));
    metadata.header.height = static_cast<int>(std::min(height, kMax));
    metadata.bits = bigEndianAt<uchar>(chunk, 8);
    metadata.colorType = bigEndianAt<uchar>(chunk, 9);
    metadata.interlaced = bigEndianAt<uchar>(chunk, 12) != 0;
    const bool smallDepth = metadata.bits == 1 || metadata.bits == 2 || metadata.bits == 4;
    const bool valid = metadata.colorType == Gray
                           ? smallDepth || metadata.bits == 8 || metadata.bits == 16
                       : metadata.colorType == Palette
                           ? smallDepth || metadata.bits == 8
                           : (metadata.colorType == Rgb || metadata.hasAlphaChannel()) &&
                                 (metadata.bits == 8 || metadata.bits == 16);
    if (!valid) {
        throw Error(u"The PNG file is damaged"_s);
    }
}

void readDensity(QByteArrayView chunk, PngMetadata &metadata) {
    if (bigEndianAt<uchar>(chunk, 8) == 1) {
        metadata.header.horizontalDpi = bigEndianAt<quint32>(chunk, 0) * kMetresPerInch;
        metadata.header.verticalDpi = bigEndianAt<quint32>(chunk, 4) * kMetresPerInch;
    }
}

void readProfile(QByteArrayView chunk, PngMetadata &metadata) {
    constexpr qsizetype kMaxProfileBytes = 1 << 25;
    const qsizetype nameEnd = chunk.indexOf('\0');
    if (nameEnd < 0 || nameEnd + 2 > chunk.size()) {
        return;
    }
    try {
        metadata.iccProfile = inflateUpTo(chunk.sliced(nameEnd + 2), kMaxProfileBytes);
    } catch (const Error &) {
        metadata.iccProfile.clear(); // A damaged profile is no reason to refuse the picture.
    }
}

enum class Reading { Header, Pixels };

void readChunk(QByteArrayView type, QByteArrayView chunk, PngMetadata &metadata) {
    if (type == "IHDR") {
        readImageHeaderChunk(chunk, metadata);
    } else if (type == "PLTE") {
        metadata.palette = chunk.toByteArray();
    } else if (type == "tRNS") {
        metadata.transparency = chunk.toByteArray();
    } else if (type == "pHYs" && chunk.size() >= 9) {
        readDensity(chunk, metadata);
    } else if (type == "iCCP") {
        readProfile(chunk, metadata);
    } else if (type == "acTL") {
        metadata.frames += bigEndianAt<quint32>(chunk, 0);
    } else if (type == "fcTL" && metadata.data.empty()) {
        metadata.frames -= 1; // Its first frame is the picture.
    } else if (type == "eXIf") {
        metadata.header.orientation = readExif(chunk).orientation;
    }
}

bool isMetadata(QByteArrayView type) {
    for (const char *name : {"IHDR", "PLTE", "tRNS", "pHYs", "iCCP", "eXIf", "acTL", "fcTL"}) {
        if (type == name) {
            return true;
        }
    }
    return false;
}

void requireIntact(QByteArrayView typeAndData, quint32 stated) {
    if (libdeflate_crc32(0, typeAndData.data(), static_cast<size_t>(typeAndData.size())) !=
        stated) {
        throw Error(u"The PNG file is damaged"_s);
    }
}

/// Reads the chunk at byte `at` and returns the place of the next.
qint64 readChunkAt(const FileView &file, qint64 at, Reading reading, PngMetadata &metadata) {
    constexpr qint64 kLead = 8;
    constexpr qint64 kChecksum = 4;
    const QByteArray lead = file.readExactly(at, kLead);
    const qint64 length = bigEndianAt<quint32>(lead, 0);
    const QByteArray type = lead.sliced(4);
    if (type == "IDAT") {
        if (reading == Reading::Pixels) {
            const QByteArray all = file.readExactly(at + 4, 4 + length + kChecksum);
            requireIntact(QByteArrayView(all).chopped(kChecksum),
                          bigEndianAt<quint32>(all, 4 + length));
        }
        metadata.data.push_back({at + kLead, length});
    } else if (isMetadata(type)) {
        readChunk(type, file.readExactly(at + kLead, length), metadata);
    }
    metadata.ended = type == "IEND";
    return at + kLead + length + kChecksum;
}

PngMetadata readMetadata(const FileView &file, Reading reading) {
    PngMetadata metadata;
    // Some writers put the orientation behind the rows, so all chunks are read.
    for (qint64 at = kSignatureBytes; !metadata.ended;) {
        at = readChunkAt(file, at, reading, metadata);
    }
    if (metadata.bits == 0 || metadata.data.empty()) {
        throw Error(u"The PNG file holds no picture"_s);
    }
    if (metadata.colorType == Palette &&
        (metadata.palette.isEmpty() || metadata.palette.size() % 3 != 0 ||
         metadata.palette.size() > kMaxPaletteBytes)) {
        throw Error(u"The PNG file has no palette"_s);
    }
    metadata.header = checkedHeader(metadata.header);
    return metadata;
}

/// The filtered rows, each behind the number of its filter.
QByteArray inflateRows(const FileView &file, const PngMetadata &metadata, qsizetype size) {
    qint64 total = 0;
    for (const FileSlice &slice : metadata.data) {
        total += slice.length;
    }
    requirePlausible(size, total, kDeflateRatio);
    QByteArray compressed;
    compressed.reserve(total);
    for (const FileSlice &slice : metadata.data) {
        compressed += file.readExactly(slice.offset, slice.length);
    }
    return inflateBytes(compressed, size);
}

/// Colour and opacity of filtered rows. PNG's filters work on each channel alone, so the filtered
/// bytes are split as they are, and the colour keeps its filters.
struct SplitRows {
    QByteArray color;
    QByteArray alpha;
};

template<int kColorBytes, int kAlphaBytes>
void splitRow(const uchar *source, int width, uchar *color, uchar *alpha) {
    *color++ = *source;
    *alpha++ = *source++;
    for (int x = 0; x < width; ++x) {
        for (int i = 0; i < kColorBytes; ++i) {
            *color++ = *source++;
        }
        for (int i = 0; i < kAlphaBytes; ++i) {
            *alpha++ = *source++;
        }
    }
}

SplitRows splitRows(const QByteArray &filtered, const PngMetadata &metadata) {
    const int width = metadata.header.width;
    const int height = metadata.header.height;
    const qsizetype colorStride = 1 + rowBytes(width, metadata.channels() - 1, metadata.bits);
    const qsizetype alphaStride = 1 + rowBytes(width, 1, metadata.bits);
    SplitRows split{QByteArray(height * colorStride, Qt::Uninitialized),
                    QByteArray(height * alphaStride, Qt::Uninitialized)};
    const auto splitOne = metadata.colorType == RgbAlpha
                              ? (metadata.bits == 8 ? splitRow<3, 1> : splitRow<6, 2>)
                              : (metadata.bits == 8 ? splitRow<1, 1> : splitRow<2, 2>);
    const auto *source = reinterpret_cast<const uchar *>(filtered.constData());
    auto *color = reinterpret_cast<uchar *>(split.color.data());
    auto *alpha = reinterpret_cast<uchar *>(split.alpha.data());
    for (qsizetype y = 0; y < height; ++y) {
        splitOne(source + y * (metadata.stride() + 1), width, color + y * colorStride,
                 alpha + y * alphaStride);
    }
    return split;
}

/// The opacity of each pixel of unfiltered rows by a tRNS chunk: of palette entries, or one colour
/// that is transparent.
class TransparencyTable {
  public:
    explicit TransparencyTable(const PngMetadata &metadata)
        : m_metadata(metadata) {
        for (qsizetype i = 0;
             metadata.colorType != Palette && i + 2 <= metadata.transparency.size(); i += 2) {
            m_key.push_back(bigEndianAt<quint16>(metadata.transparency, i));
        }
    }

    [[nodiscard]] uchar opacity(const uchar *row, int x) const {
        if (m_metadata.colorType == Palette) {
            const int index = sample(row, x);
            return index < m_metadata.transparency.size()
                       ? static_cast<uchar>(m_metadata.transparency.at(index))
                       : uchar(0xFF);
        }
        const int channels = m_metadata.channels();
        for (int c = 0; c < channels; ++c) {
            if (c >= int(m_key.size()) || sample(row, x * channels + c) != m_key[size_t(c)]) {
                return 0xFF;
            }
        }
        return 0;
    }

  private:
    [[nodiscard]] int sample(const uchar *row, int index) const {
        return m_metadata.bits == 16 ? qFromBigEndian<quint16>(row + 2 * qsizetype(index))
                                     : packedSample(row, index, m_metadata.bits);
    }

    const PngMetadata &m_metadata;
    std::vector<int> m_key;
};

AlphaPlane transparencyOf(const QByteArray &rows, const PngMetadata &metadata) {
    const int width = metadata.header.width;
    AlphaPlane plane{8, allocateRows(metadata.header.height, width)};
    const TransparencyTable table(metadata);
    auto *target = reinterpret_cast<uchar *>(plane.samples.data());
    for (int y = 0; y < metadata.header.height; ++y) {
        const auto *row = reinterpret_cast<const uchar *>(rows.constData()) + y * metadata.stride();
        for (int x = 0; x < width; ++x) {
            *target++ = table.opacity(row, x);
        }
    }
    return plane;
}

PdfImage describe(const PngMetadata &metadata) {
    PdfImage image;
    image.header = metadata.header;
    image.width = metadata.header.width;
    image.height = metadata.header.height;
    image.bitsPerComponent = metadata.bits;
    image.color = metadata.color();
    image.palette = image.color == ImageColor::Indexed ? metadata.palette : QByteArray();
    image.iccProfile = fittingProfile(metadata.iccProfile, image.color);
    image.filter = ImageFilter::Flate;
    image.predictor = 15;
    return image;
}

/// The file's own compressed rows, with a soft mask where a tRNS chunk makes some transparent.
PdfImage withOwnRows(const FileView &file, const PngMetadata &metadata) {
    PdfImage image = describe(metadata);
    image.embeddedAs = EmbeddedAs::OwnBytes;
    for (const FileSlice &slice : metadata.data) {
        image.slices.push_back({file.offset() + slice.offset, slice.length});
    }
    if (!metadata.transparency.isEmpty()) {
        const int height = metadata.header.height;
        const QByteArray rows =
            unfilterRows(inflateRows(file, metadata, height * (metadata.stride() + 1)), height,
                         metadata.stride(), metadata.pixelBytes());
        image.softMask = encodeAlpha(transparencyOf(rows, metadata), image.width, height);
    }
    return image;
}

PdfImage withSplitRows(const FileView &file, const PngMetadata &metadata) {
    PdfImage image = describe(metadata);
    SplitRows split = splitRows(
        inflateRows(file, metadata, metadata.header.height * (metadata.stride() + 1)), metadata);
    auto mask = runAsync(split.color.size(), [&] {
        AlphaPlane plane{metadata.bits, {}};
        plane.samples = unfilterRows(std::move(split.alpha), image.height,
                                     rowBytes(image.width, 1, metadata.bits), metadata.bits / 8);
        return encodeAlpha(plane, image.width, image.height);
    });
    image.data = deflateBytes(split.color);
    image.softMask = mask.get();
    return image;
}

PdfImage withInterlacedRows(const FileView &file, const PngMetadata &metadata) {
    const InterlacedShape shape{metadata.header.width, metadata.header.height,
                                metadata.channels() * metadata.bits};
    QByteArray rows = deinterlace(inflateRows(file, metadata, interlacedBytes(shape)), shape);
    Raster raster;
    raster.width = metadata.header.width;
    raster.height = metadata.header.height;
    raster.bits = metadata.bits;
    raster.color = metadata.color();
    raster.palette = metadata.palette;
    raster.iccProfile = metadata.iccProfile;
    if (metadata.hasAlphaChannel()) {
        SplitRows split = splitRows(rows, metadata);
        const qsizetype alphaStride = rowBytes(raster.width, 1, raster.bits);
        raster.samples = unfilterRows(std::move(split.color), raster.height, raster.stride(), 1);
        raster.alpha = AlphaPlane{
            raster.bits, unfilterRows(std::move(split.alpha), raster.height, alphaStride, 1)};
    } else {
        raster.samples = unfilterRows(std::move(rows), raster.height, raster.stride(), 1);
        if (!metadata.transparency.isEmpty()) {
            raster.alpha = transparencyOf(raster.samples, metadata);
        }
    }
    return encodeRaster(std::move(raster), metadata.header);
}

bool recognises(QByteArrayView head) {
    return head.startsWith("\x89PNG\r\n\x1A\n");
}

ImageHeader readHeader(const FileView &file) {
    return readMetadata(file, Reading::Header).header;
}

PdfImage toPdfImage(const FileView &file) {
    const PngMetadata metadata = readMetadata(file, Reading::Pixels);
    PdfImage image = metadata.interlaced          ? withInterlacedRows(file, metadata)
                     : metadata.hasAlphaChannel() ? withSplitRows(file, metadata)
                                                  : withOwnRows(file, metadata);
    addMorePictures(image.warnings, metadata.frames, QLatin1StringView("frame"));
    return image;
}

} // namespace

int pngPixelBits(QByteArrayView head) {
    constexpr qsizetype kHeaderChunkAt = kSignatureBytes + 8;
    PngMetadata metadata;
    readImageHeaderChunk(head.sliced(std::min(head.size(), kHeaderChunkAt)), metadata);
    return metadata.bits * metadata.channels();
}

ImageFormat pngFormat() {
    return {ImageKind::Png, {QLatin1StringView("png")}, recognises, readHeader, toPdfImage};
}

} // namespace folioforge
