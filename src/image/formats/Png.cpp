// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "files/Checksum.h"
#include "image/Bytes.h"
#include "image/Deflate.h"
#include "image/IccProfile.h"
#include "image/MorePictures.h"
#include "image/Parallel.h"
#include "image/PictureDamage.h"
#include "image/Raster.h"
#include "image/RowFilter.h"
#include "image/description/DescriptionBlocks.h"
#include "image/formats/Interlaced.h"
#include "image/formats/PngMetadata.h"

#include <future>

namespace folioforge {

namespace {

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
    const auto splitOne = metadata.colorType == PngMetadata::RgbAlpha
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
             metadata.colorType != PngMetadata::Palette && i + 2 <= metadata.transparency.size();
             i += 2) {
            m_key.push_back(bigEndianAt<quint16>(metadata.transparency, i));
        }
    }

    [[nodiscard]] uchar opacity(const uchar *row, int x) const {
        if (m_metadata.colorType == PngMetadata::Palette) {
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

/// Makes `rows`, filtered as the file has them, the data of `image`.
void compressRows(const QByteArray &rows, PdfImage &image) {
    image.unpacked = checksumOf(rows);
    image.hasFilteredRows = true;
    image.data = deflateBytes(rows);
}

/// Rows without an opacity channel: the file's own compressed data where it is whole, with a soft
/// mask where a tRNS chunk makes some transparent.
PdfImage withOwnRows(const FileView &file, const PngMetadata &metadata) {
    PdfImage image = describe(metadata);
    QByteArray rows;
    if (!metadata.isWhole || !metadata.transparency.isEmpty() || mayLackPngRows(file, metadata)) {
        const qsizetype size = metadata.header.height * (metadata.stride() + 1);
        rows = inflatePngRows(file, metadata, size, image.warnings);
    }
    if (metadata.isWhole && image.warnings.empty()) {
        image.embeddedAs = EmbeddedAs::OwnBytes;
        for (const FileSlice &slice : metadata.data) {
            image.slices.push_back({file.offset() + slice.offset, slice.length});
        }
    } else {
        compressRows(rows, image);
    }
    if (!metadata.transparency.isEmpty()) {
        rows =
            unfilterRows(std::move(rows), image.height, metadata.stride(), metadata.pixelBytes());
        image.softMask = encodeAlpha(transparencyOf(rows, metadata), image.width, image.height);
    }
    return image;
}

PdfImage withSplitRows(const FileView &file, const PngMetadata &metadata) {
    PdfImage image = describe(metadata);
    SplitRows split =
        splitRows(inflatePngRows(file, metadata, metadata.header.height * (metadata.stride() + 1),
                                 image.warnings),
                  metadata);
    auto mask = runAsync(split.color.size(), [&] {
        AlphaPlane plane{metadata.bits, {}};
        plane.samples = unfilterRows(std::move(split.alpha), image.height,
                                     rowBytes(image.width, 1, metadata.bits), metadata.bits / 8);
        return encodeAlpha(plane, image.width, image.height);
    });
    compressRows(split.color, image);
    image.softMask = mask.get();
    return image;
}

PdfImage withInterlacedRows(const FileView &file, const PngMetadata &metadata) {
    const InterlacedShape shape = metadata.shape();
    Warnings warnings;
    const QByteArray filtered = inflatePngRows(file, metadata, interlacedBytes(shape), warnings);
    const bool isDamaged = !warnings.empty();
    QByteArray rows =
        deinterlace(filtered, shape, isDamaged ? UnknownFilters::None : UnknownFilters::Refused);
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
    PdfImage image = encodeRaster(std::move(raster), metadata.header);
    image.warnings = std::move(warnings);
    return image;
}

bool recognises(QByteArrayView head) {
    return head.startsWith("\x89PNG\r\n\x1A\n");
}

ImageHeader readHeader(const FileView &file) {
    return readPngMetadata(file, PngReading::Header).header;
}

PdfImage toPdfImage(const FileView &file) {
    const PngMetadata metadata = readPngMetadata(file, PngReading::Pixels);
    PdfImage image = metadata.interlaced          ? withInterlacedRows(file, metadata)
                     : metadata.hasAlphaChannel() ? withSplitRows(file, metadata)
                                                  : withOwnRows(file, metadata);
    if (metadata.isFaulty) {
        image.warnings.push_back(faultyPicture());
    }
    addMorePictures(image.warnings, metadata.frames, kFurtherFrames);
    return image;
}

} // namespace

ImageFormat pngFormat() {
    return {ImageKind::Png, {QLatin1StringView("png")},
            recognises,     readHeader,
            toPdfImage,     nullptr,
            nullptr,        addPngBlocks};
}

} // namespace folioforge
