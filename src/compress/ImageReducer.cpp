// SPDX-License-Identifier: Apache-2.0

#include "compress/ImageReducer.h"

#include "compress/Group4.h"
#include "compress/ImageColors.h"
#include "compress/JpxReader.h"
#include "compress/PlanarImage.h"
#include "compress/Resampler.h"
#include "compress/StreamFilters.h"
#include "compress/jpeg/JpegReader.h"
#include "compress/jpeg/JpegWriter.h"
#include "error/Error.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <numeric>
#include <utility>
#include <variant>
#include <vector>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// A decoder's eighth up to this many times too large is taken as it is: sampling down by so
/// little costs sharpness and saves nearly nothing.
constexpr double kCloseEnough = 1.06;

/// A JPEG whose own quality is not above the wanted one by this much is not worth the loss of a
/// second generation.
constexpr int kQualityGain = 8;

struct Size {
    int width = 0;
    int height = 0;
};

Size scaled(const ImageJob &job) {
    const auto side = [&job](int pixels) {
        return std::max(1, static_cast<int>(std::ceil(pixels * job.scale - 1e-6)));
    };
    return {side(job.width), side(job.height)};
}

Error wrongSize() {
    return Error(u"the data is of another size than the image says"_s);
}

Error lessData() {
    return Error(u"less data than the image's size needs"_s);
}

Reduction notSmaller() {
    return {std::nullopt, u"would not get smaller"_s};
}

int eighthsFor(double scale) {
    return std::clamp(static_cast<int>(std::ceil(scale * 8 / kCloseEnough)), 1, 8);
}

/// A decoded picture, in JPEG's own form, at the wanted size or above.
struct Decoded {
    PlanarImage image;
    bool keepsPixels = false; ///< It is drawn and is to be grey alone.
};

/// That, or the reason why the picture stays as it is.
using Decoding = std::variant<Decoded, QString>;

Decoding decodeJpeg(const ImageJob &job, const std::string &data) {
    JpegReader reader(data, job.colorTransform);
    if (reader.width() != job.width || reader.height() != job.height ||
        reader.components() != job.components) {
        throw wrongSize();
    }
    if (job.scale >= 1 && job.grey.empty() && reader.quality() < job.jpegQuality + kQualityGain) {
        return u"already a JPEG of no higher quality"_s;
    }
    return Decoded{reader.decode(eighthsFor(job.scale))};
}

PlanarImage decodeJpx(const ImageJob &job, const std::string &data) {
    const auto color = job.components == 0 ? JpxColor::OfData : JpxColor::OfDocument;
    PlanarImage image = decodeJpx(data, job.width, job.height, job.scale, color);
    if (job.components != 0 && image.components() != job.components) {
        throw wrongSize();
    }
    toJpegColor(image);
    return image;
}

void unpackPalette(const ImageJob &job, const std::string &data, PlanarImage &image) {
    const std::size_t components = image.planes.size();
    const std::size_t colors = job.palette.size() / components;
    for (std::size_t c = 0; c < components; ++c) {
        std::uint8_t *out = image.planes[c].row(0);
        for (std::size_t i = 0; i < image.planes[c].size(); ++i) {
            const std::size_t index =
                std::min<std::size_t>(static_cast<unsigned char>(data[i]), colors - 1);
            out[i] = static_cast<std::uint8_t>(job.palette[index * components + c]);
        }
    }
}

PlanarImage unpackSamples(const ImageJob &job, const std::string &data) {
    const std::size_t stored = job.palette.empty() ? static_cast<std::size_t>(job.components) : 1;
    // Of 16 bits the upper eight come first.
    const std::size_t step = stored * static_cast<std::size_t>(job.bitsPerComponent) / 8;
    PlanarImage image(job.width, job.height);
    if (data.size() / step < static_cast<std::size_t>(job.width) * job.height) {
        throw lessData();
    }
    image.addPlanes(job.components);
    if (!job.palette.empty()) {
        unpackPalette(job, data, image);
        return image;
    }
    for (std::size_t c = 0; c < stored; ++c) {
        std::uint8_t *out = image.planes[c].row(0);
        const char *in = data.data() + c * step / stored;
        for (std::size_t i = 0; i < image.planes[c].size(); ++i) {
            out[i] = static_cast<std::uint8_t>(in[i * step]);
        }
    }
    return image;
}

/// How many pixels of a row equal both their left and their upper neighbour.
int equalNeighbours(const PlanarImage &image, int y, std::vector<std::uint8_t> &isEqual) {
    std::fill(isEqual.begin(), isEqual.end(), 1);
    for (const Plane &plane : image.planes) {
        const std::uint8_t *row = plane.row(y);
        const std::uint8_t *above = plane.row(y - 1);
        for (std::size_t x = 1; x < isEqual.size(); ++x) {
            isEqual[x] &= static_cast<std::uint8_t>((row[x] == row[x - 1]) & (row[x] == above[x]));
        }
    }
    return std::accumulate(isEqual.begin() + 1, isEqual.end(), 0);
}

/// Whether most pixels equal both their left and their upper neighbour, which the noise of a photo
/// never allows.
bool looksDrawn(const PlanarImage &image) {
    qint64 seen = 0;
    qint64 equal = 0;
    constexpr int kRowStep = 4;
    std::vector<std::uint8_t> isEqual(static_cast<std::size_t>(image.width));
    for (int y = 1; y < image.height; y += kRowStep) {
        seen += image.width - 1;
        equal += equalNeighbours(image, y, isEqual);
    }
    return equal * 2 > seen;
}

Decoding decodeSamples(const ImageJob &job, const std::string &data) {
    PlanarImage image = unpackSamples(job, data);
    const bool isDrawn =
        job.purpose == ImagePurpose::Photo && job.lineArt == LineArt::Keep && looksDrawn(image);
    if (isDrawn && job.grey.empty()) {
        return u"line art"_s;
    }
    toJpegColor(image);
    return Decoded{std::move(image), isDrawn};
}

/// `data` is without lossless filters.
Decoding decode(const ImageJob &job, const std::string &data) {
    switch (job.codec) {
    case ImageCodec::Jpeg:
        return decodeJpeg(job, data);
    case ImageCodec::Jpx:
        return Decoded{decodeJpx(job, data)};
    case ImageCodec::Samples:
        break;
    }
    return decodeSamples(job, data);
}

/// The data without lossless filters; `samples` is how many bytes the image has.
std::string withoutFilters(const ImageJob &job, std::size_t samples) {
    constexpr std::size_t kSlack = 4096;
    const std::size_t maxBytes = std::max(samples, job.data.size()) + kSlack;
    return decodeLossless(job.data, job.filter, job.parameters, maxBytes);
}

Decoding decode(const ImageJob &job) {
    if (job.filter.empty()) {
        return decode(job, job.data);
    }
    const std::size_t samples = static_cast<std::size_t>(job.width) * job.height *
                                static_cast<std::size_t>(job.components) *
                                static_cast<std::size_t>(job.bitsPerComponent) / 8;
    return decode(job, withoutFilters(job, samples));
}

/// Brought to the wanted size, or left at that of the decoder where this is near enough.
PlanarImage sampledDown(PlanarImage image, Size wanted) {
    if (image.width <= wanted.width * kCloseEnough + 1) {
        wanted = {image.width, image.height};
    }
    return resample(std::move(image), wanted.width, wanted.height);
}

Reduction reduceBilevel(const ImageJob &job) {
    constexpr std::size_t kBits = 8;
    const std::size_t size = (static_cast<std::size_t>(job.width) + kBits - 1) / kBits *
                             static_cast<std::size_t>(job.height);
    std::string rows = job.filter.empty() ? job.data : withoutFilters(job, size);
    if (rows.size() < size) {
        throw lessData();
    }
    rows.resize(size);
    Group4 encoded = encodeGroup4(std::move(rows), job.width, job.height);
    if (encoded.data.size() >= job.data.size()) {
        return notSmaller();
    }
    return {ReducedImage{std::move(encoded.data), job.width, job.height, 1, ReducedForm::Group4,
                         encoded.blackIs1},
            {}};
}

Reduction reducePicture(const ImageJob &job) {
    Decoding decoding = decode(job);
    if (auto *reason = std::get_if<QString>(&decoding)) {
        return {std::nullopt, std::move(*reason)};
    }
    auto &[image, keepsPixels] = std::get<Decoded>(decoding);
    if (!keepsPixels) {
        image = sampledDown(std::move(image), scaled(job));
    }
    const bool wasColored = image.components() > 1;
    if (!job.grey.empty() && wasColored) {
        toGrey(image, job.isInverted);
    }
    const bool asFlate =
        keepsPixels || (job.purpose == ImagePurpose::SoftMask && job.codec == ImageCodec::Samples);
    ReducedImage reduced{
        asFlate ? encodeFlate(image.planes[0]) : encodeJpeg(image, job.jpegQuality), image.width,
        image.height, image.components(), asFlate ? ReducedForm::Flate : ReducedForm::Jpeg};
    const bool isForSize = job.grey.empty() || !wasColored;
    if (isForSize && reduced.data.size() >= job.data.size()) {
        return notSmaller();
    }
    return {std::move(reduced), {}};
}

} // namespace

Reduction reduceImage(const ImageJob &job) noexcept {
    try {
        return job.purpose == ImagePurpose::Bilevel ? reduceBilevel(job) : reducePicture(job);
    } catch (const Error &error) {
        return {std::nullopt, error.reason()};
    } catch (const std::bad_alloc &) {
        return {std::nullopt, u"too large for the memory"_s};
    } catch (const std::exception &error) {
        return {std::nullopt, QString::fromUtf8(error.what())};
    }
}

} // namespace folioforge
