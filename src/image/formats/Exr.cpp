// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "image/MorePictures.h"
#include "image/PictureDamage.h"
#include "image/Raster.h"
#include "image/formats/LinearLight.h"
#include "image/formats/Signatures.h"

#include <ImfChannelList.h>
#include <ImfFrameBuffer.h>
#include <ImfHeader.h>
#include <ImfIO.h>
#include <ImfInputFile.h>
#include <ImfMultiPartInputFile.h>
#include <ImfRgbaFile.h>
#include <ImfStandardAttributes.h>

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace folioforge {

namespace {

/// A view as OpenEXR reads files. What it throws passes through OpenEXR, which is C++.
class ExrStream : public Imf::IStream {
  public:
    explicit ExrStream(FileView file)
        : Imf::IStream("image")
        , m_file(std::move(file)) {}

    bool read(char target[], int size) override {
        const qint64 got = m_file.readInto(
            m_at, {reinterpret_cast<uchar *>(target), static_cast<size_t>(std::max(size, 0))});
        if (got != size) {
            throw fileEndsTooEarly();
        }
        m_at += got;
        return m_at < m_file.size();
    }
    uint64_t tellg() override { return static_cast<uint64_t>(m_at); }
    void seekg(uint64_t at) override { m_at = static_cast<qint64>(at); }

  private:
    FileView m_file;
    qint64 m_at = 0;
};

/// Runs `work`, the exceptions of OpenEXR becoming Error.
template<typename Work> auto reading(const Work &work) {
    try {
        return work();
    } catch (const Error &) {
        throw;
    } catch (const std::bad_alloc &) {
        throw;
    } catch (const std::exception &failure) {
        throw Error(Reasons::tr("The EXR file cannot be read: %1")
                        .arg(QString::fromUtf8(failure.what()).simplified()));
    }
}

ImageHeader headerOf(const Imf::Header &exr) {
    const Imath::Box2i &window = exr.dataWindow();
    ImageHeader header;
    const auto extent = [](int first, int last) {
        return static_cast<int>(std::min<qint64>(qint64(last) - first + 1, 0x7FFFFFFF));
    };
    header.width = extent(window.min.x, window.max.x);
    header.height = extent(window.min.y, window.max.y);
    if (Imf::hasXDensity(exr)) {
        header.horizontalDpi = double(Imf::xDensity(exr));
        // Tall pixels lie closer together along a row than the rows do to each other.
        header.verticalDpi = header.horizontalDpi * double(exr.pixelAspectRatio());
    }
    return checkedHeader(header);
}

ImageHeader readHeader(const FileView &file) {
    return reading([&] {
        ExrStream stream(file);
        const Imf::InputFile input(stream);
        return headerOf(input.header());
    });
}

/// Rows of floating-point samples, interleaved: grey or three colours, then opacity.
struct LightRows {
    std::vector<float> samples;
    int channels = 0;
};

constexpr int kRowsAtOnce = 64;

/// Light becomes samples of sRGB, the opacity that multiplies it in the file taken out first.
void storeRows(const LightRows &light, int first, int count, Raster &raster) {
    const int colors = channelCount(raster.color);
    auto *color = reinterpret_cast<uchar *>(raster.samples.data()) + first * raster.stride();
    auto *alpha = raster.alpha ? reinterpret_cast<uchar *>(raster.alpha->samples.data()) +
                                     2 * qsizetype(first) * raster.width
                               : nullptr;
    const float *source = light.samples.data();
    for (qsizetype i = 0; i < qsizetype(count) * raster.width; ++i, source += light.channels) {
        const float opacity = alpha != nullptr ? source[colors] : 1.0F;
        const float scale = opacity > 0 && opacity < 1 ? 1 / opacity : 1.0F;
        for (int c = 0; c < colors; ++c, color += 2) {
            qToBigEndian(srgbFromLinear(source[c] * scale), color);
        }
        if (alpha != nullptr) {
            qToBigEndian(sampleFromFraction(opacity), alpha);
            alpha += 2;
        }
    }
}

/// Where a channel's samples go; those of a colour that the file lacks are 0.
Imf::Slice sliceOf(LightRows &light, int channel, const Imath::Box2i &window, int firstRow) {
    const size_t pixel = sizeof(float) * static_cast<size_t>(light.channels);
    const size_t row = pixel * static_cast<size_t>(window.max.x - window.min.x + 1);
    // OpenEXR counts from the origin of its coordinates, wherever the window lies.
    char *base = reinterpret_cast<char *>(light.samples.data() + channel) -
                 window.min.x * static_cast<ptrdiff_t>(pixel) -
                 firstRow * static_cast<ptrdiff_t>(row);
    return {Imf::FLOAT, base, pixel, row, 1, 1, 0.0};
}

/// Reads rows into the buffer that is set; what cannot be read leaves zeros and counts. OpenEXR
/// keeps several rows in one block, of which the first may be whole where the next is not.
qint64 readRows(Imf::InputFile &input, int first, int count) {
    try {
        input.readPixels(first, first + count - 1);
        return 0;
    } catch (const std::bad_alloc &) {
        throw;
    } catch (const std::exception &) {
        if (count == 1) {
            return 1;
        }
    }
    qint64 missing = 0;
    for (int row = first; row < first + count; ++row) {
        missing += readRows(input, row, 1);
    }
    return missing;
}

/// Gives how many rows cannot be read.
qint64 readPlainChannels(Imf::InputFile &input, const std::vector<const char *> &names,
                         Raster &raster) {
    const Imath::Box2i window = input.header().dataWindow();
    LightRows light;
    light.channels = static_cast<int>(names.size());
    light.samples.resize(static_cast<size_t>(raster.width) * names.size() * kRowsAtOnce);
    qint64 missing = 0;
    for (int first = 0; first < raster.height; first += kRowsAtOnce) {
        std::ranges::fill(light.samples, 0.0F);
        const int count = std::min(kRowsAtOnce, raster.height - first);
        Imf::FrameBuffer buffer;
        for (int c = 0; c < light.channels; ++c) {
            buffer.insert(names[static_cast<size_t>(c)],
                          sliceOf(light, c, window, window.min.y + first));
        }
        input.setFrameBuffer(buffer);
        missing += readRows(input, window.min.y + first, count);
        storeRows(light, first, count, raster);
    }
    return missing;
}

/// Luminance with chroma at half the resolution, which only OpenEXR's own interface puts together.
void readLuminanceChroma(const FileView &file, Raster &raster) {
    ExrStream stream(file);
    Imf::RgbaInputFile input(stream);
    const Imath::Box2i window = input.dataWindow();
    std::vector<Imf::Rgba> row(static_cast<size_t>(raster.width));
    LightRows light;
    light.channels = raster.alpha ? 4 : 3;
    light.samples.resize(row.size() * static_cast<size_t>(light.channels));
    for (int y = 0; y < raster.height; ++y) {
        input.setFrameBuffer(row.data() - window.min.x, 1, 0); // Every row into the same place.
        input.readPixels(window.min.y + y);
        float *target = light.samples.data();
        for (const Imf::Rgba &pixel : row) {
            *target++ = pixel.r;
            *target++ = pixel.g;
            *target++ = pixel.b;
            if (raster.alpha) {
                *target++ = pixel.a;
            }
        }
        storeRows(light, y, 1, raster);
    }
}

/// A picture and how many of its rows cannot be read.
struct Pixels {
    Raster raster;
    qint64 missingRows = 0;
};

Pixels readPixels(const FileView &file, Imf::InputFile &input, const ImageHeader &header) {
    const Imf::ChannelList &channels = input.header().channels();
    const auto has = [&](const char *name) { return channels.findChannel(name) != nullptr; };
    const bool isChroma = has("RY") && has("BY");
    const bool isColor = isChroma || has("R") || has("G") || has("B");
    if (!isColor && !has("Y")) {
        throw Error(Reasons::tr("The EXR file has no channels of colour or brightness"));
    }
    Raster raster;
    raster.width = header.width;
    raster.height = header.height;
    raster.bits = 16;
    raster.color = isColor ? ImageColor::Rgb : ImageColor::Gray;
    // A block of flat colour shrinks to a few hundredths of a percent.
    requirePlausible(qint64(raster.height) * raster.stride(), file.size(), 4000);
    raster.samples = allocateRows(raster.height, raster.stride());
    if (has("A")) {
        raster.alpha = AlphaPlane{16, allocateRows(raster.height, rowBytes(raster.width, 1, 16))};
    }
    if (isChroma) {
        readLuminanceChroma(file, raster);
        return {std::move(raster)};
    }
    std::vector<const char *> names = isColor ? std::vector{"R", "G", "B"} : std::vector{"Y"};
    if (raster.alpha) {
        names.push_back("A");
    }
    const qint64 missing = readPlainChannels(input, names, raster);
    if (missing == raster.height) {
        throw Error(Reasons::tr("The EXR file is damaged: none of its rows can be read"));
    }
    return {std::move(raster), missing};
}

int partsOf(const FileView &file) {
    return reading([&] {
        ExrStream stream(file);
        return Imf::MultiPartInputFile(stream).parts();
    });
}

PdfImage toPdfImage(const FileView &file) {
    ImageHeader header;
    Pixels pixels = reading([&] {
        ExrStream stream(file);
        Imf::InputFile input(stream);
        header = headerOf(input.header());
        return readPixels(file, input, header);
    });
    PdfImage image = encodeRaster(std::move(pixels.raster), header);
    if (pixels.missingRows > 0) {
        image.warnings.push_back(cutOffPicture(pixels.missingRows, header.height));
    }
    addMorePictures(image.warnings, partsOf(file) - 1, kFurtherParts);
    return image;
}

} // namespace

ImageFormat exrFormat() {
    return {ImageKind::Exr, {QLatin1StringView("exr")}, isExr, readHeader, toPdfImage};
}

} // namespace folioforge
