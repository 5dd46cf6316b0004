// SPDX-License-Identifier: Apache-2.0

#include "image/Raster.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "files/Checksum.h"
#include "image/Deflate.h"
#include "image/IccProfile.h"
#include "image/Parallel.h"
#include "image/RowFilter.h"
#include "image/formats/CcittFax.h"

#include <QtEndian>

#include <algorithm>
#include <future>

namespace folioforge {

namespace {

/// How the samples are best compressed.
struct CompressionPlan {
    bool filtered = false;
    DeflateEffort effort = DeflateEffort::Full;
};

/// Some runs of rows from all over the picture: a filter looks at the row above.
QByteArray sampleRows(const Raster &raster) {
    constexpr qsizetype kRuns = 4;
    constexpr qsizetype kRunBytes = 1 << 16;
    const qsizetype stride = raster.stride();
    const qsizetype rows =
        std::min<qsizetype>(std::max<qsizetype>(kRunBytes / stride, 2), raster.height);
    QByteArray sample;
    for (qsizetype run = 0; run < kRuns; ++run) {
        const qsizetype first = (raster.height - rows) * (2 * run + 1) / (2 * kRuns);
        sample += QByteArrayView(raster.samples).sliced(first * stride, rows * stride);
    }
    return sample;
}

int pixelBytesOf(const Raster &raster) {
    return channelCount(raster.color) * raster.bits / 8;
}

/// Row filters predict a sample from its neighbours. That does not help with samples below eight
/// bits, with palette numbers, nor with a scanner's noise on flat paper, which a trial on some rows
/// finds.
CompressionPlan planFor(const Raster &raster) {
    if (raster.bits < 8 || raster.color == ImageColor::Indexed) {
        return {};
    }
    constexpr qsizetype kWorthATrial = 1 << 20;
    if (raster.samples.size() < kWorthATrial) {
        return {true, DeflateEffort::Full};
    }
    const QByteArray sample = sampleRows(raster);
    const qsizetype plain = deflateBytes(sample, DeflateEffort::Faster).size();
    const qsizetype filtered =
        deflateBytes(filterRows(sample, raster.stride(), pixelBytesOf(raster)),
                     DeflateEffort::Faster)
            .size();
    constexpr double kNoisyRatio = 0.4; // Of the compressed size to the whole.
    const bool isFiltered = filtered < plain;
    if (double(std::min(plain, filtered)) <= kNoisyRatio * double(sample.size())) {
        return {isFiltered, DeflateEffort::Full};
    }
    return {isFiltered, isFiltered ? DeflateEffort::Fast : DeflateEffort::Faster};
}

void compressSamples(const Raster &raster, PdfImage &image) {
    const CompressionPlan plan = planFor(raster);
    image.unpacked = checksumOf(raster.samples);
    if (plan.filtered) {
        image.predictor = 15;
        image.data = deflateBytes(filterRows(raster.samples, raster.stride(), pixelBytesOf(raster)),
                                  plan.effort);
        return;
    }
    image.data = deflateBytes(raster.samples, plan.effort);
    if (raster.bits == 1) {
        QByteArray fax = encodeGroup4(raster.samples, raster.width, raster.height);
        if (!fax.isEmpty() && fax.size() < image.data.size()) {
            image.data = std::move(fax);
            image.filter = ImageFilter::CcittFax;
            image.ccittK = -1;
            image.ccittBlackIs1 = true;
        }
    }
}

/// Whether `isWanted` holds for each sample of the plane.
template<typename Sample, typename IsWanted>
bool areAll(const QByteArray &samples, const IsWanted &isWanted) {
    const auto *values = reinterpret_cast<const Sample *>(samples.constData());
    return std::all_of(values, values + samples.size() / qsizetype(sizeof(Sample)), isWanted);
}

template<typename Sample> bool isOpaque(const QByteArray &samples) {
    return areAll<Sample>(samples,
                          [](Sample value) { return value == std::numeric_limits<Sample>::max(); });
}

template<typename Sample> bool isAllOrNothing(const QByteArray &samples) {
    return areAll<Sample>(samples, [](Sample value) {
        return value == 0 || value == std::numeric_limits<Sample>::max();
    });
}

bool isOpaque(const AlphaPlane &alpha) {
    return alpha.bits == 16 ? isOpaque<quint16>(alpha.samples) : isOpaque<uchar>(alpha.samples);
}

bool isAllOrNothing(const AlphaPlane &alpha) {
    return alpha.bits == 16 ? isAllOrNothing<quint16>(alpha.samples)
                            : isAllOrNothing<uchar>(alpha.samples);
}

/// Opacity that is all or nothing, one bit a pixel.
QByteArray packedAlpha(const AlphaPlane &alpha, int width, int height) {
    const qsizetype stride = rowBytes(width, 1, 1);
    QByteArray packed = allocateRows(height, stride);
    const int step = alpha.bits / 8;
    const char *source = alpha.samples.constData();
    for (int y = 0; y < height; ++y) {
        auto *row = reinterpret_cast<uchar *>(packed.data()) + y * stride;
        for (int x = 0; x < width; ++x, source += step) {
            if (*source != 0) {
                row[x / 8] |= static_cast<uchar>(0x80U >> (x % 8));
            }
        }
    }
    return packed;
}

template<typename Sample> void divideByAlpha(Raster &raster) {
    constexpr quint32 kFull = std::numeric_limits<Sample>::max();
    const int channels = channelCount(raster.color);
    auto *color = reinterpret_cast<uchar *>(raster.samples.data());
    const auto *alpha = reinterpret_cast<const uchar *>(raster.alpha->samples.constData());
    const qint64 pixels = qint64(raster.width) * raster.height;
    for (qint64 i = 0; i < pixels; ++i) {
        const quint32 opacity = qFromBigEndian<Sample>(alpha + i * qint64(sizeof(Sample)));
        if (opacity == 0 || opacity == kFull) {
            continue;
        }
        uchar *pixel = color + i * channels * qint64(sizeof(Sample));
        for (int c = 0; c < channels; ++c) {
            uchar *sample = pixel + c * qint64(sizeof(Sample));
            const quint32 value = qFromBigEndian<Sample>(sample);
            const quint32 straight = std::min((value * kFull + opacity / 2) / opacity, kFull);
            qToBigEndian<Sample>(static_cast<Sample>(straight), sample);
        }
    }
}

} // namespace

int channelCount(ImageColor color) {
    switch (color) {
    case ImageColor::Gray:
    case ImageColor::Indexed:
        return 1;
    case ImageColor::Cmyk:
        return 4;
    default:
        return 3;
    }
}

qsizetype rowBytes(int width, int channels, int bits) {
    return (qsizetype(width) * channels * bits + 7) / 8;
}

qsizetype Raster::stride() const {
    return rowBytes(width, channelCount(color), bits);
}

QByteArray allocateRows(int height, qsizetype stride) {
    return QByteArray(height * stride, '\0');
}

void requirePlausible(qint64 raw, qint64 compressed, qint64 ratio) {
    // A small image may be mostly header; only a large one costs much memory.
    constexpr qint64 kSmallImage = 1 << 20;
    if (raw > kSmallImage && compressed < raw / ratio) {
        throw Error(Reasons::tr("The file is too short for the image its header describes"));
    }
}

void requirePlausibleArea(const ImageHeader &header, qint64 compressed) {
    constexpr qint64 kAlwaysPlausible = 100'000'000;
    constexpr qint64 kMaxPacked = 4000;
    const qint64 pixels = qint64(header.width) * header.height;
    if (pixels > kAlwaysPlausible) {
        requirePlausible(3 * pixels, compressed, kMaxPacked);
    }
}

bool isPlain(const Raster &raster, int guessed) {
    const qsizetype pixel = qsizetype(channelCount(raster.color)) * raster.bits / 8;
    const char *const last = raster.samples.constData() + raster.samples.size() - pixel;
    for (int y = 0; y < raster.height; ++y) {
        const char *const row = raster.samples.constData() + y * raster.stride();
        for (int x = y < guessed ? guessed : 0; x < raster.width; ++x) {
            if (!std::equal(last, last + pixel, row + x * pixel)) {
                return false;
            }
        }
    }
    return true;
}

void unpremultiply(Raster &raster) {
    if (!raster.alpha || raster.alpha->bits != raster.bits) {
        return;
    }
    if (raster.bits == 16) {
        divideByAlpha<quint16>(raster);
    } else if (raster.bits == 8) {
        divideByAlpha<uchar>(raster);
    }
}

std::unique_ptr<PdfImage> encodeAlpha(const AlphaPlane &alpha, int width, int height) {
    if (isOpaque(alpha)) {
        return nullptr;
    }
    Raster plane;
    plane.width = width;
    plane.height = height;
    plane.color = ImageColor::Gray;
    if (isAllOrNothing(alpha)) {
        plane.bits = 1;
        plane.samples = packedAlpha(alpha, width, height);
    } else {
        plane.bits = alpha.bits;
        plane.samples = alpha.samples;
    }
    return std::make_unique<PdfImage>(encodeRaster(std::move(plane)));
}

PdfImage encodeRaster(Raster raster, const ImageHeader &header) {
    std::future<std::unique_ptr<PdfImage>> mask;
    if (raster.alpha) {
        mask = runAsync(raster.samples.size(), [&raster] {
            return encodeAlpha(*raster.alpha, raster.width, raster.height);
        });
    }
    PdfImage image;
    image.header = header;
    image.width = raster.width;
    image.height = raster.height;
    image.bitsPerComponent = raster.bits;
    image.color = raster.color;
    image.iccProfile = fittingProfile(raster.iccProfile, raster.color);
    image.palette = raster.palette;
    image.decode = raster.decode;
    compressSamples(raster, image);
    if (mask.valid()) {
        image.softMask = mask.get();
    }
    return image;
}

} // namespace folioforge
