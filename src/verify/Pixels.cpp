// SPDX-License-Identifier: Apache-2.0

#include "verify/Pixels.h"

#include "error/Error.h"
#include "image/Bytes.h"
#include "image/formats/Jpeg2000.h"
#include "pdf/BoundedBuffer.h"
#include "pdf/ColorSpaces.h"
#include "pdf/import/Entries.h"
#include "verify/Group4Reading.h"

#include <qpdf/Buffer.hh>
#include <qpdf/Pl_DCT.hh>

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>
#include <string_view>
#include <vector>

namespace folioforge {
namespace {

using Object = QPDFObjectHandle;

/// The samples of an image as they stand in its data.
struct RawImage {
    int width = 0;
    int height = 0;
    int bits = 8;
    int channels = 1;
    std::string samples;

    [[nodiscard]] qint64 stride() const { return (qint64(width) * channels * bits + 7) / 8; }
    [[nodiscard]] bool isPossible() const {
        const bool hasBits = bits == 1 || bits == 2 || bits == 4 || bits == 8 || bits == 16;
        return width > 0 && height > 0 && hasBits && channels > 0 &&
               stride() <= kMaxPixelBytes / height;
    }
    /// From 0 to the most that its bits can hold.
    [[nodiscard]] int sample(int x, int y, int channel) const {
        const qint64 index = qint64(x) * channels + channel;
        const auto *row = reinterpret_cast<const uchar *>(samples.data()) + y * stride();
        return bits == 16 ? row[2 * index] << 8 | row[2 * index + 1]
                          : packedSample(row, index, bits);
    }
};

int numberIn(const Object &dictionary, const char *key, int usual) {
    Object number = entry(dictionary, key);
    return number.isInteger() ? number.getIntValueAsInt() : usual;
}

/// How many samples a pixel has in this space; 0 for one that is not known.
int channelsIn(const Object &space) {
    const auto parts = items(space);
    Object kind = parts.empty() ? space : parts.front();
    return isOfTable(space) ? 1 : kind.isNameAndEquals("/Lab") ? 3 : plainComponents(space);
}

/// The entry of a stream for its last filter, or for its only one.
Object lastOf(const Object &dictionary, const char *key) {
    const Object stated = entry(dictionary, key);
    const auto all = items(stated);
    return all.empty() ? stated : all.back();
}

bool isOf(const Object &dictionary, const char *filter) {
    return lastOf(dictionary, "/Filter").isNameAndEquals(filter);
}

/// Whether the components of a JPEG are its colours unless its own marker says otherwise (ISO
/// 32000-1, 7.4.8).
bool isUntransformed(const Object &dictionary) {
    return isOf(dictionary, "/DCTDecode") &&
           numberIn(lastOf(dictionary, "/DecodeParms"), "/ColorTransform", 1) == 0;
}

/// Decodes such a JPEG. The library knows nothing of the parameter, but of the marker by which
/// Adobe says the same: it is put in front, where one in the file takes its place.
void decodeUntransformed(Object image, Pipeline &target) {
    constexpr std::string_view kStart("\xFF\xD8", 2);
    constexpr std::string_view kMarker("\xFF\xEE\0\x0E"
                                       "Adobe\0\x64\0\0\0\0\0",
                                       16);
    std::string jpeg;
    BoundedBuffer data(jpeg, static_cast<std::size_t>(kMaxPixelBytes));
    image.pipeStreamData(&data, nullptr, 0, qpdf_dl_specialized, true);
    Pl_DCT decoder("untransformed", &target);
    decoder.writeString(jpeg.starts_with(kStart) ? jpeg.insert(kStart.size(), kMarker) : jpeg);
    decoder.finish();
}

/// Decodes the data of an image. False where that cannot be.
bool decode(Object image, Pipeline &target) {
    if (isUntransformed(image.getDict())) {
        try {
            decodeUntransformed(image, target);
            return true;
        } catch (const std::bad_alloc &) {
            throw;
        } catch (const std::exception &) {
            return false;
        }
    }
    bool isUnpacked = false;
    return image.pipeStreamData(&target, &isUnpacked, 0, qpdf_dl_all, true) && isUnpacked;
}

/// Channels of colour alone, as the codestream has them.
std::optional<RawImage> jpxImage(Object image) {
    const auto data = image.getRawStreamData();
    const FileView file(QByteArray(reinterpret_cast<const char *>(data->getBuffer()),
                                   static_cast<qsizetype>(data->getSize())));
    try {
        const Jpeg2000Metadata metadata = readJpeg2000Metadata(file);
        const Raster raster =
            decodeJpeg2000(file, metadata, readJpeg2000Structure(file, metadata)).raster;
        return RawImage{raster.width, raster.height, raster.bits, channelCount(raster.color),
                        raster.samples.toStdString()};
    } catch (const Error &) {
        return std::nullopt;
    }
}

std::optional<RawImage> rawImage(Object image) {
    const Object dictionary = image.getDict();
    RawImage raw;
    if (!entry(dictionary, "/Subtype").isNameAndEquals("/Image")) {
        return std::nullopt;
    }
    raw.width = numberIn(dictionary, "/Width", 0);
    raw.height = numberIn(dictionary, "/Height", 0);
    const bool isStencil = isTrue(entry(dictionary, "/ImageMask"));
    raw.bits = isStencil ? 1 : numberIn(dictionary, "/BitsPerComponent", 0);
    raw.channels = isStencil ? 1 : channelsIn(entry(dictionary, "/ColorSpace"));
    if (isOf(dictionary, "/JPXDecode")) {
        auto coded = jpxImage(image);
        const bool isAsStated = coded && coded->width == raw.width && coded->height == raw.height;
        return isAsStated ? std::move(coded) : std::nullopt;
    }
    if (!raw.isPossible()) {
        return std::nullopt;
    }
    if (isOf(dictionary, "/CCITTFaxDecode")) {
        raw.samples = group4Rows(image, raw.width, raw.height);
    } else {
        BoundedBuffer target(raw.samples, static_cast<std::size_t>(kMaxPixelBytes));
        if (!decode(image, target)) {
            return std::nullopt;
        }
    }
    const bool isWhole = static_cast<qint64>(raw.samples.size()) >= raw.stride() * raw.height;
    return isWhole ? std::optional(std::move(raw)) : std::nullopt;
}

/// The 8-bit value of each sample of a channel, by its number.
std::vector<unsigned char> valuesOf(const RawImage &raw, const Object &decode, int channel) {
    const auto limits = items(decode);
    const auto at = static_cast<std::size_t>(channel) * 2;
    const bool isInverted =
        limits.size() > at + 1 && Object(limits[at]).isNumber() &&
        Object(limits[at + 1]).isNumber() &&
        Object(limits[at]).getNumericValue() > Object(limits[at + 1]).getNumericValue();
    const int most = (1 << raw.bits) - 1;
    constexpr int kFull = 255;
    std::vector<unsigned char> values(static_cast<std::size_t>(most) + 1);
    for (int i = 0; i <= most; ++i) {
        const int value = (i * kFull + most / 2) / most;
        values[static_cast<std::size_t>(i)] =
            static_cast<unsigned char>(isInverted ? kFull - value : value);
    }
    return values;
}

/// The colours of a palette one after another; empty where it cannot be read.
std::string paletteOf(Object lookup) {
    constexpr std::size_t kLargest = std::size_t{4} * 256;
    return lookup.isStream()   ? boundedData(lookup, kLargest).value_or(std::string())
           : lookup.isString() ? lookup.getStringValue()
                               : std::string();
}

std::optional<Pixels> lookedUp(const RawImage &raw, const std::vector<Object> &space) {
    constexpr std::size_t kParts = 4;
    constexpr int kMaxColor = 255;
    if (space.size() != kParts || !Object(space[2]).isInteger()) {
        return std::nullopt;
    }
    Pixels pixels{raw.width, raw.height, channelsIn(space[1]), {}};
    const std::string palette = paletteOf(space[3]);
    const auto last = Object(space[2]).getIntValue();
    // There are readers that show nothing with a palette that is too short.
    if (pixels.channels == 0 || last < 0 || last > kMaxColor ||
        std::ssize(palette) < (last + 1) * pixels.channels) {
        return std::nullopt;
    }
    pixels.samples.reserve(qsizetype(raw.width) * raw.height * pixels.channels);
    for (int y = 0; y < raw.height; ++y) {
        for (int x = 0; x < raw.width; ++x) {
            const int color = std::min(raw.sample(x, y, 0), static_cast<int>(last));
            pixels.samples.append(palette.data() + qsizetype(color) * pixels.channels,
                                  pixels.channels);
        }
    }
    return pixels;
}

} // namespace

std::optional<Pixels> pixelsOf(QPDFObjectHandle image) {
    const auto raw = rawImage(image);
    if (!raw) {
        return std::nullopt;
    }
    const Object space = entry(image.getDict(), "/ColorSpace");
    if (isOfTable(space)) {
        return lookedUp(*raw, items(space));
    }
    std::vector<std::vector<unsigned char>> values;
    values.reserve(static_cast<std::size_t>(raw->channels));
    for (int channel = 0; channel < raw->channels; ++channel) {
        values.push_back(valuesOf(*raw, entry(image.getDict(), "/Decode"), channel));
    }
    Pixels pixels{raw->width, raw->height, raw->channels, {}};
    pixels.samples.resize(qsizetype(raw->width) * raw->height * raw->channels);
    auto *sample = reinterpret_cast<unsigned char *>(pixels.samples.data());
    for (int y = 0; y < raw->height; ++y) {
        for (int x = 0; x < raw->width; ++x) {
            for (int channel = 0; channel < raw->channels; ++channel) {
                const auto value = static_cast<std::size_t>(raw->sample(x, y, channel));
                *sample++ = values[static_cast<std::size_t>(channel)][value];
            }
        }
    }
    return pixels;
}

Pixels reduced(const Pixels &pixels, int width, int height) {
    Pixels small{width, height, pixels.channels, {}};
    small.samples.resize(qsizetype(width) * height * pixels.channels);
    const auto *source = reinterpret_cast<const unsigned char *>(pixels.samples.constData());
    auto *target = reinterpret_cast<unsigned char *>(small.samples.data());
    for (int y = 0; y < height; ++y) {
        const qint64 top = qint64(y) * pixels.height / height;
        const qint64 bottom = std::max(top + 1, qint64(y + 1) * pixels.height / height);
        for (int x = 0; x < width; ++x) {
            const qint64 left = qint64(x) * pixels.width / width;
            const qint64 right = std::max(left + 1, qint64(x + 1) * pixels.width / width);
            for (int channel = 0; channel < pixels.channels; ++channel) {
                qint64 sum = 0;
                for (qint64 row = top; row < bottom; ++row) {
                    for (qint64 column = left; column < right; ++column) {
                        sum += source[(row * pixels.width + column) * pixels.channels + channel];
                    }
                }
                const qint64 count = (bottom - top) * (right - left);
                *target++ = static_cast<unsigned char>((sum + count / 2) / count);
            }
        }
    }
    return small;
}

Pixels inGrey(const Pixels &pixels) {
    constexpr int kInks = 4;
    if (pixels.channels != 3 && pixels.channels != kInks) {
        return pixels;
    }
    const bool isOfInks = pixels.channels == kInks;
    Pixels grey{pixels.width, pixels.height, 1, {}};
    grey.samples.resize(pixels.samples.size() / pixels.channels);
    const auto *source = reinterpret_cast<const unsigned char *>(pixels.samples.constData());
    for (char &sample : grey.samples) {
        constexpr int kRed = 299;
        constexpr int kGreen = 587;
        constexpr int kBlue = 114;
        constexpr int kWhole = 1000;
        constexpr int kWhite = 255;
        const int sum = (kRed * source[0] + kGreen * source[1] + kBlue * source[2]) / kWhole;
        // Inks take light away, black from all of it.
        sample = static_cast<char>(isOfInks ? std::max(0, kWhite - sum - source[3]) : sum);
        source += pixels.channels;
    }
    return grey;
}

bool isReduced(const Pixels &found, const Pixels &source, bool mayBeGrey) {
    const bool isGrey = mayBeGrey && found.channels == 1 && source.channels > 1;
    const bool isSmaller = found.width <= source.width && found.height <= source.height;
    if (!isSmaller || (!isGrey && found.channels != source.channels)) {
        return false;
    }
    // JPEG keeps colours at half the size, and of grain its mean.
    const int width = (found.width + 1) / 2;
    const int height = (found.height + 1) / 2;
    return likeness(reduced(found, width, height),
                    reduced(isGrey ? inGrey(source) : source, width, height)) >= kLeastLikeness;
}

bool areAlike(const QPDFObjectHandle &source, const QPDFObjectHandle &image, bool mayBeGrey) {
    const auto wanted = pixelsOf(source);
    const auto found = wanted ? pixelsOf(image) : std::nullopt;
    return found && isReduced(*found, *wanted, mayBeGrey);
}

double likeness(const Pixels &one, const Pixels &other) {
    constexpr double kFull = 255;
    constexpr double kDecibels = 10;
    if (one.samples == other.samples) {
        return std::numeric_limits<double>::infinity();
    }
    const qsizetype count = std::min(one.samples.size(), other.samples.size());
    qint64 squares = 0;
    for (qsizetype i = 0; i < count; ++i) {
        const int difference = static_cast<unsigned char>(one.samples[i]) -
                               static_cast<unsigned char>(other.samples[i]);
        squares += qint64(difference) * difference;
    }
    return count == 0 ? 0
                      : kDecibels * std::log10(kFull * kFull * static_cast<double>(count) /
                                               static_cast<double>(std::max<qint64>(squares, 1)));
}

} // namespace folioforge
