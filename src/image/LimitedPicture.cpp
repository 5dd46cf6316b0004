// SPDX-License-Identifier: Apache-2.0

#include "image/LimitedPicture.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/Deflate.h"
#include "image/IccProfile.h"
#include "image/OldProfile.h"
#include "image/PictureDamage.h"
#include "image/Raster.h"
#include "image/RowFilter.h"
#include "image/formats/CcittFax.h"
#include "image/formats/Jpeg2000.h"
#include "image/formats/JpegPixels.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace folioforge {

namespace {

/// The compressed data, wherever they are.
FileView viewOf(const PdfImage &image) {
    if (image.slices.size() == 1) {
        return {*image.source, image.slices.front().offset, image.slices.front().length};
    }
    QByteArray bytes = image.data;
    for (const FileSlice &slice : image.slices) {
        bytes += image.source->view().readExactly(slice.offset, slice.length);
    }
    return FileView(bytes);
}

/// The samples of an image whose data are deflated; what is damaged adds a warning.
QByteArray inflated(const PdfImage &image, qsizetype stride, Warnings &warnings) {
    const bool isFiltered = image.predictor > 1;
    const qsizetype row = stride + (isFiltered ? 1 : 0);
    const FileView view = viewOf(image);
    InflatedPart part = inflatePartly(view.readExactly(0, view.size()), row * image.height);
    if (part.isFaulty || part.bytes.size() < row * image.height) {
        warnings.push_back(faultyPicture());
        part.bytes.resize(row * image.height, '\0');
    }
    if (!isFiltered) {
        return part.bytes;
    }
    dropUnknownFilters(part.bytes, row);
    return unfilterRows(std::move(part.bytes), image.height, stride,
                        std::max(channelCount(image.color) * image.bitsPerComponent / 8, 1));
}

/// The pixels of an image that is not JPEG 2000, without its opacity.
Raster rasterOf(const PdfImage &image, Warnings &warnings) {
    Raster raster;
    if (image.filter == ImageFilter::Dct) {
        JpegPixels pixels = decodeJpeg(viewOf(image));
        std::ranges::move(pixels.warnings, std::back_inserter(warnings));
        raster = std::move(pixels.raster);
    } else {
        raster.width = image.width;
        raster.height = image.height;
        raster.bits = image.bitsPerComponent;
        raster.color = image.color;
        raster.palette = image.palette;
        const FileView view = viewOf(image);
        raster.samples =
            image.filter == ImageFilter::CcittFax
                ? decodeGroup4(view.readExactly(0, view.size()), image.width, image.height)
                : inflated(image, raster.stride(), warnings);
    }
    raster.iccProfile = image.iccProfile;
    raster.decode = image.decode;
    return raster;
}

int sampleAt(const Raster &raster, const uchar *row, qsizetype index) {
    return raster.bits == 16 ? qFromBigEndian<quint16>(row + 2 * index)
                             : packedSample(row, index, raster.bits);
}

const uchar *rowAt(const Raster &raster, int y) {
    return reinterpret_cast<const uchar *>(raster.samples.constData()) + y * raster.stride();
}

/// The same picture with samples of 8 or 16 bits, at most `mostBits`, and without a palette.
Raster unpacked(const Raster &packed, int mostBits) {
    const bool isIndexed = packed.color == ImageColor::Indexed;
    Raster raster = packed;
    raster.bits = packed.bits == 16 && !isIndexed ? mostBits : 8;
    raster.color = isIndexed ? ImageColor::Rgb : packed.color;
    raster.palette.clear();
    raster.samples = allocateRows(raster.height, raster.stride());
    const int full = (1 << packed.bits) - 1;
    const int most = (1 << raster.bits) - 1;
    // What lies behind the palette has its last colour, as readers show it.
    const QByteArray palette = packed.palette.size() < 3 ? QByteArray(3, '\0') : packed.palette;
    const auto lastColor = static_cast<int>(palette.size() / 3 - 1);
    const qsizetype rowSamples = qsizetype(packed.width) * channelCount(packed.color);
    qsizetype at = 0;
    for (int y = 0; y < packed.height; ++y) {
        for (qsizetype i = 0; i < rowSamples; ++i) {
            const int sample = sampleAt(packed, rowAt(packed, y), i);
            for (int c = 0; isIndexed && c < 3; ++c) {
                const qsizetype entry = qsizetype(std::min(sample, lastColor)) * 3 + c;
                putSample(raster.samples, at++, uchar(palette[entry]), raster.bits);
            }
            if (!isIndexed) {
                const auto value = (qint64(sample) * most + full / 2) / full;
                putSample(raster.samples, at++, static_cast<int>(value), raster.bits);
            }
        }
    }
    return raster;
}

/// What stands for white in each channel of a picture of 8 or 16 bits.
std::array<int, 4> whiteOf(const Raster &raster) {
    const int most = (1 << raster.bits) - 1;
    const bool isInverted = raster.decode.size() > 1 && raster.decode[0] > raster.decode[1];
    if (raster.color == ImageColor::Lab) {
        return {most, (most + 1) / 2, (most + 1) / 2, 0};
    }
    const int white = (raster.color == ImageColor::Cmyk) == isInverted ? most : 0;
    return {white, white, white, white};
}

/// Lays the picture, of 8 or 16 bits, on white paper.
void blend(Raster &raster, const Raster &mask) {
    const std::array<int, 4> white = whiteOf(raster);
    const int channels = channelCount(raster.color);
    const qint64 full = (1 << mask.bits) - 1;
    qsizetype at = 0;
    for (int y = 0; y < raster.height; ++y) {
        const uchar *opacities =
            rowAt(mask, static_cast<int>(qint64(y) * mask.height / raster.height));
        for (int x = 0; x < raster.width; ++x) {
            const qint64 opacity = sampleAt(mask, opacities, qint64(x) * mask.width / raster.width);
            for (int c = 0; c < channels; ++c, ++at) {
                const qint64 color = sampleAt(
                    raster, reinterpret_cast<const uchar *>(raster.samples.constData()), at);
                const qint64 paper = white.at(static_cast<size_t>(c));
                const qint64 value = (color * opacity + paper * (full - opacity) + full / 2) / full;
                putSample(raster.samples, at, static_cast<int>(value), raster.bits);
            }
        }
    }
}

/// `raster` in place of the pixels of `image`.
PdfImage withPixels(const PdfImage &image, Raster raster, Warnings warnings) {
    PdfImage made = encodeRaster(std::move(raster), image.header);
    made.warnings = std::move(warnings);
    if (image.source) {
        image.source->requireUnchanged();
    }
    return made;
}

PdfImage decodedJpeg2000(const PdfImage &image, const FileView &file,
                         const Jpeg2000Metadata &metadata) {
    Jpeg2000Pixels pixels = decodeJpeg2000(file, metadata, readJpeg2000Structure(file, metadata));
    Warnings warnings = image.warnings;
    std::ranges::move(pixels.warnings, std::back_inserter(warnings));
    return withPixels(image, std::move(pixels.raster), std::move(warnings));
}

/// The colour that the data have by their own description, grey or RGB for nothing said; nothing
/// where a PDF knows none like it without them.
std::optional<ImageColor> statedColor(const Jpeg2000Metadata &metadata) {
    constexpr int kInks = 12;
    constexpr int kSrgb = 16;
    constexpr int kGray = 17;
    const int color = metadata.enumeratedColor;
    if (metadata.components == 1 && (color == 0 || color == kGray)) {
        return ImageColor::Gray;
    }
    if (metadata.components == 3 && (color == 0 || color == kSrgb)) {
        return ImageColor::Rgb;
    }
    return metadata.components == 4 && color == kInks ? std::optional(ImageColor::Cmyk)
                                                      : std::nullopt;
}

QString limitJpeg2000(PdfImage &image, const PictureLimits &limits) {
    const FileView file = viewOf(image);
    const Jpeg2000Metadata metadata = readJpeg2000Metadata(file);
    const bool isPlain = !metadata.hasPalette && !metadata.isYcc &&
                         metadata.bitsField != Jpeg2000Metadata::kBitsDiffer;
    if (!limits.jpeg2000 || !isPlain) {
        image = decodedJpeg2000(image, file, metadata);
    } else if (image.color == ImageColor::FromJpx) {
        const auto color = statedColor(metadata);
        if (!color) {
            return Reasons::tr("its colours are of a kind that only JPEG 2000 knows");
        }
        image.color = *color;
    }
    return {};
}

/// Makes the pixels anew without opacity and with few enough bits, where they are not so already.
void limitPixels(PdfImage &image, const PictureLimits &limits) {
    const bool isBlended = image.softMask && !limits.opacity;
    const bool isTooFine =
        image.filter != ImageFilter::Jpx && image.bitsPerComponent > limits.mostBits;
    if (!isBlended && !isTooFine) {
        return;
    }
    Warnings warnings = image.warnings;
    Raster raster = unpacked(rasterOf(image, warnings), limits.mostBits);
    std::unique_ptr<PdfImage> mask = std::move(image.softMask);
    if (isBlended) {
        blend(raster, rasterOf(*mask, warnings));
        mask.reset();
        warnings.push_back(
            {WarningCode::OpacityBlended,
             Reasons::tr("The picture is partly transparent, and is laid on white")});
    }
    if (isTooFine) {
        warnings.push_back({WarningCode::ColorsDiffer,
                            Reasons::tr("The picture has 16 bits a colour, and is kept with 8")});
    }
    image = withPixels(image, std::move(raster), std::move(warnings));
    image.softMask = std::move(mask);
}

QString limitProfile(PdfImage &image, const PictureLimits &limits) {
    const int version = versionOfProfile(image.iccProfile);
    if (version <= limits.profileVersion) {
        return {};
    }
    constexpr int kNewest = 4;
    const auto older = version <= kNewest ? asVersion2(image.iccProfile) : std::nullopt;
    if (!older) {
        return Reasons::tr("its colour profile is of version %1").arg(version);
    }
    image.iccProfile = *older;
    return {};
}

} // namespace

QString limit(PdfImage &image, const PictureLimits &limits) {
    QString reason = image.filter == ImageFilter::Jpx ? limitJpeg2000(image, limits) : QString();
    if (!reason.isEmpty()) {
        return reason;
    }
    limitPixels(image, limits);
    return limitProfile(image, limits);
}

} // namespace folioforge
