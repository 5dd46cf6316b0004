#include "convert/compress/ImageReducer.h"

#include "convert/compress/JpegCodec.h"
#include "convert/compress/JpxReader.h"
#include "convert/compress/LosslessCodec.h"
#include "convert/compress/Resampler.h"
#include "convert/compress/SampleGrid.h"
#include "error/Error.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <new>

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
    return Error(QStringLiteral("the data is of another size than the image says"));
}

int eighthsFor(double scale) {
    return std::clamp(static_cast<int>(std::ceil(scale * 8 / kCloseEnough)), 1, 8);
}

SampleGrid decodeJpeg(const ImageJob &job, const std::string &data) {
    JpegReader reader(data, job.colorTransform);
    if (reader.width() != job.width || reader.height() != job.height ||
        reader.components() != job.components) {
        throw wrongSize();
    }
    if (job.scale >= 1 && reader.quality() < job.jpegQuality + kQualityGain) {
        throw Error(QStringLiteral("already a JPEG of no higher quality"));
    }
    return reader.decode(eighthsFor(job.scale));
}

SampleGrid unpackSamples(const ImageJob &job, const std::string &data) {
    const std::size_t stored = job.palette.empty() ? static_cast<std::size_t>(job.components) : 1;
    const std::size_t bytes = static_cast<std::size_t>(job.bitsPerComponent) / 8;
    const std::size_t pixels = static_cast<std::size_t>(job.width) * job.height;
    if (data.size() < pixels * stored * bytes) {
        throw Error(QStringLiteral("less data than the image's size needs"));
    }
    SampleGrid grid{job.width, job.height, plainKind(job.components), {}};
    grid.allocate();
    if (!job.palette.empty()) {
        const std::size_t colours = job.palette.size() / grid.components();
        std::uint8_t *out = grid.samples.data();
        for (std::size_t i = 0; i < pixels; ++i, out += grid.components()) {
            const std::size_t index =
                std::min<std::size_t>(static_cast<unsigned char>(data[i]), colours - 1);
            std::memcpy(out, job.palette.data() + index * grid.components(), grid.components());
        }
    } else if (bytes == 1) {
        std::memcpy(grid.samples.data(), data.data(), grid.samples.size());
    } else {
        for (std::size_t i = 0; i < grid.samples.size(); ++i) {
            grid.samples[i] = static_cast<std::uint8_t>(data[i * bytes]);
        }
    }
    return grid;
}

/// Whether most pixels equal both their left and their upper neighbour, which the noise of a photo
/// never allows.
bool looksDrawn(const SampleGrid &grid) {
    const std::size_t pixel = grid.components();
    std::size_t seen = 0;
    std::size_t equal = 0;
    constexpr int kRowStep = 4;
    for (int y = 1; y < grid.height; y += kRowStep) {
        const std::uint8_t *row = grid.row(y);
        const std::uint8_t *above = grid.row(y - 1);
        for (std::size_t i = pixel; i < grid.rowBytes(); i += pixel) {
            ++seen;
            equal += std::memcmp(row + i, row + i - pixel, pixel) == 0 &&
                     std::memcmp(row + i, above + i, pixel) == 0;
        }
    }
    return equal * 2 > seen;
}

SampleGrid decode(const ImageJob &job) {
    constexpr std::size_t kSlack = 4096;
    const std::size_t samples = static_cast<std::size_t>(job.width) * job.height *
                                static_cast<std::size_t>(job.components) *
                                static_cast<std::size_t>(job.bitsPerComponent) / 8;
    const std::size_t most = std::max(samples, job.data.size()) + kSlack;
    const std::string data = decodeLossless(job.data, job.filter, job.parameters, most);
    switch (job.codec) {
    case ImageCodec::Jpeg:
        return decodeJpeg(job, data);
    case ImageCodec::Jpx: {
        const auto colour = job.components == 0 ? JpxColour::OfData : JpxColour::OfDocument;
        SampleGrid grid = decodeJpx(data, job.width, job.height, job.scale, colour);
        if (job.components != 0 && grid.components() != job.components) {
            throw wrongSize();
        }
        return grid;
    }
    default:
        break;
    }
    SampleGrid grid = unpackSamples(job, data);
    if (job.purpose == ImagePurpose::Photo && job.lineArt == LineArt::Keep && looksDrawn(grid)) {
        throw Error(QStringLiteral("line art"));
    }
    return grid;
}

/// Whether the grid, as decoded, is near enough to the wanted size.
bool closeEnough(const SampleGrid &grid, Size wanted) {
    return grid.width <= wanted.width * kCloseEnough + 1;
}

Reduction reduce(const ImageJob &job) {
    SampleGrid grid = decode(job);
    const Size wanted = scaled(job);
    if (!closeEnough(grid, wanted)) {
        grid = resample(grid, wanted.width, wanted.height);
    }
    const bool asFlate = job.purpose == ImagePurpose::SoftMask && job.codec == ImageCodec::Samples;
    ReducedImage image{asFlate ? encodeFlate(grid) : encodeJpeg(grid, job.jpegQuality), grid.width,
                       grid.height, grid.components(),
                       asFlate ? ReducedForm::Flate : ReducedForm::Jpeg};
    if (image.data.size() >= job.data.size()) {
        return {std::nullopt, QStringLiteral("would not get smaller")};
    }
    return {std::move(image), {}};
}

} // namespace

Reduction reduceImage(const ImageJob &job) noexcept {
    try {
        return reduce(job);
    } catch (const Error &error) {
        return {std::nullopt, error.reason()};
    } catch (const std::bad_alloc &) {
        return {std::nullopt, QStringLiteral("too large for the memory")};
    } catch (const std::exception &error) {
        return {std::nullopt, QString::fromUtf8(error.what())};
    }
}

} // namespace folioforge
