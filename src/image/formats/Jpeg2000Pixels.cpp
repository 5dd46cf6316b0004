// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Jpeg2000.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "image/Parallel.h"
#include "image/PictureDamage.h"
#include "image/formats/OpenJpeg.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace folioforge {

namespace {

Error damagedFile() {
    return Error(Reasons::tr("The JPEG 2000 file is damaged"));
}

/// The file with all samples decoded; nothing where they are damaged.
std::optional<OpenJpegPicture> decode(const FileView &file, const Jpeg2000Metadata &metadata,
                                      const Jpeg2000Structure &structure, bool mayLackData) {
    auto picture = openJpeg2000(file, metadata, structure);
    if (!picture) {
        throw damagedFile();
    }
    if (mayLackData) {
        picture->allowGaps();
    }
    const ImageHeader &header = metadata.header;
    if (qint64(header.width) * header.height * metadata.components >= kWorthAThread) {
        picture->useAllCores();
    }
    if (!picture->decode()) {
        return std::nullopt;
    }
    for (int c = 0; c < picture->componentCount(); ++c) {
        if (picture->component(c).samples.empty()) {
            return std::nullopt;
        }
    }
    return picture;
}

/// What the structure of a file that is not whole says of the loss.
Warning lossOf(const Jpeg2000Structure &structure) {
    if (structure.tiles > 1 && structure.missingTiles > 0) {
        return cutOffPicture(
            structure.missingTiles, structure.tiles,
            QT_TRANSLATE_NOOP("Reasons",
                              "The picture is cut off: %1 % of its tiles could not be read"));
    }
    return structure.cutBytes > 0
               ? cutOffPicture(
                     structure.cutBytes, structure.cutOf,
                     QT_TRANSLATE_NOOP(
                         "Reasons", "The picture is cut off: %1 % of its data could not be read"))
               : faultyPicture();
}

/// A decoded component as samples of 8 or 16 bits.
class Component {
  public:
    Component(const Jpeg2000Component &component, int bits, int width, int height)
        : m_component(component)
        , m_offset(component.isSigned ? 1LL << (component.bits - 1) : 0)
        , m_maxValue((1LL << component.bits) - 1)
        , m_scale((1LL << bits) - 1)
        , m_width(width)
        , m_height(height) {}

    /// The sample at a pixel of the whole image; a smaller component is stretched.
    [[nodiscard]] int at(int x, int y) const {
        const auto column = qint64(x) * m_component.width / m_width;
        const auto row = qint64(y) * m_component.height / m_height;
        const auto index = static_cast<size_t>(row * m_component.width + column);
        const qint64 value =
            std::clamp<qint64>(m_component.samples[index] + m_offset, 0, m_maxValue);
        return static_cast<int>((value * m_scale + m_maxValue / 2) / m_maxValue);
    }

  private:
    Jpeg2000Component m_component;
    qint64 m_offset;
    qint64 m_maxValue;
    qint64 m_scale;
    int m_width;
    int m_height;
};

/// sYCC (IEC 61966-2-1, annex F) to RGB.
void convertFromYcc(std::array<int, 4> &pixel, int maxValue) {
    const int middle = (maxValue + 1) / 2;
    const double y = pixel[0];
    const double cb = pixel[1] - middle;
    const double cr = pixel[2] - middle;
    const auto cut = [maxValue](double v) {
        return std::clamp(static_cast<int>(std::lround(v)), 0, maxValue);
    };
    pixel = {cut(y + 1.402 * cr), cut(y - 0.344136 * cb - 0.714136 * cr), cut(y + 1.772 * cb),
             pixel[3]};
}

/// Which components are colour, in order, and how many of them a PDF shows.
std::vector<int> colorComponents(int count, const Jpeg2000Metadata &metadata) {
    std::vector<int> colors;
    for (int c = 0; c < count; ++c) {
        if (c != metadata.alphaChannel) {
            colors.push_back(c);
        }
    }
    const auto maxColors = static_cast<size_t>(metadata.maxColors());
    colors.resize(colors.size() >= maxColors ? maxColors : 1);
    return colors;
}

/// A raster for these components, without its pixels.
Raster rasterFor(const OpenJpegPicture &picture, const Jpeg2000Metadata &metadata,
                 const std::vector<int> &colors) {
    int precision = 0;
    for (const int c : colors) {
        precision = std::max(precision, picture.component(c).bits);
    }
    Raster raster;
    raster.width = metadata.header.width;
    raster.height = metadata.header.height;
    raster.bits = precision > 8 ? 16 : 8;
    raster.color = colors.size() == 1   ? ImageColor::Gray
                   : colors.size() == 3 ? ImageColor::Rgb
                                        : ImageColor::Cmyk;
    raster.iccProfile = metadata.iccProfile;
    raster.samples = allocateRows(raster.height, raster.stride());
    if (metadata.alphaChannel >= 0 && metadata.alphaChannel < picture.componentCount()) {
        raster.alpha = AlphaPlane{
            raster.bits, allocateRows(raster.height, rowBytes(raster.width, 1, raster.bits))};
    }
    return raster;
}

/// Fills the pixels from `sources`: the colours, then the opacity where the raster has one.
void fillPixels(Raster &raster, const std::vector<Component> &sources, bool isYcc) {
    const size_t count = sources.size() - (raster.alpha ? 1 : 0);
    qsizetype pixel = 0;
    for (int y = 0; y < raster.height; ++y) {
        for (int x = 0; x < raster.width; ++x, ++pixel) {
            std::array<int, 4> values = {};
            for (size_t c = 0; c < count; ++c) {
                values[c] = sources[c].at(x, y);
            }
            if (isYcc && count == 3) {
                convertFromYcc(values, (1 << raster.bits) - 1);
            }
            for (size_t c = 0; c < count; ++c) {
                putSample(raster.samples, pixel * qsizetype(count) + qsizetype(c), values[c],
                          raster.bits);
            }
            if (raster.alpha) {
                putSample(raster.alpha->samples, pixel, sources.back().at(x, y), raster.bits);
            }
        }
    }
}

/// A channel that nothing calls opacity is none where it would hide the whole picture.
void dropImpossibleOpacity(Raster &raster) {
    if (raster.alpha && raster.alpha->samples.count('\0') == raster.alpha->samples.size()) {
        raster.alpha.reset();
    }
}

Raster rasterOf(const OpenJpegPicture &picture, const Jpeg2000Metadata &metadata) {
    std::vector<int> components = colorComponents(picture.componentCount(), metadata);
    Raster raster = rasterFor(picture, metadata, components);
    if (raster.alpha) {
        components.push_back(metadata.alphaChannel);
    }
    std::vector<Component> sources;
    sources.reserve(components.size());
    for (const int c : components) {
        sources.emplace_back(picture.component(c), raster.bits, raster.width, raster.height);
    }
    fillPixels(raster, sources, metadata.isYcc);
    if (metadata.guessesAlpha) {
        dropImpossibleOpacity(raster);
    }
    if (metadata.isPremultiplied) {
        unpremultiply(raster);
    }
    return raster;
}

} // namespace

std::optional<OpenJpegPicture> openJpeg2000(const FileView &file, const Jpeg2000Metadata &metadata,
                                            const Jpeg2000Structure &structure) {
    // A codestream that goes astray ends there for the library, which would reject all of it.
    const qint64 end = metadata.codestreamAt + structure.readable;
    const bool isAstray = structure.readable < metadata.codestreamBytes;
    const auto read = [&file, end, isAstray](qint64 at, std::span<uchar> target) -> qint64 {
        if (!isAstray) {
            return file.readInto(at, target);
        }
        constexpr std::array<uchar, 2> kEndMarker{0xFF, 0xD9};
        const qint64 before = std::clamp<qint64>(end - at, 0, qint64(target.size()));
        qint64 got = file.readInto(at, target.first(static_cast<size_t>(before)));
        for (qint64 i = at + got - end; i >= 0 && i < 2 && got < qint64(target.size()); ++i) {
            target[static_cast<size_t>(got++)] = kEndMarker.at(static_cast<size_t>(i));
        }
        return got;
    };
    auto picture =
        OpenJpegPicture::open({read, isAstray ? end + 2 : file.size()}, metadata.isCodestream);
    // The codestream may claim another size than the box that was checked.
    const bool isSame = picture && picture->width() == metadata.header.width &&
                        picture->height() == metadata.header.height;
    return isSame ? std::move(picture) : std::nullopt;
}

Jpeg2000Pixels decodeJpeg2000(const FileView &file, const Jpeg2000Metadata &metadata,
                              const Jpeg2000Structure &structure) {
    // The library holds four bytes for every sample: a short file must not cost gigabytes.
    const qint64 pixels = qint64(metadata.header.width) * metadata.header.height;
    requirePlausible(pixels * metadata.components, file.size(), 4000);
    auto picture = decode(file, metadata, structure, !structure.isWhole);
    Warnings warnings;
    if (structure.lacksData()) {
        warnings.push_back(lossOf(structure));
    } else if (!picture) {
        picture = decode(file, metadata, structure, true);
        warnings.push_back(faultyPicture());
    }
    if (!picture) {
        throw damagedFile();
    }
    Jpeg2000Pixels result{rasterOf(*picture, metadata), std::move(warnings)};
    if (!result.warnings.empty() && isPlain(result.raster)) {
        throw damagedFile();
    }
    return result;
}

} // namespace folioforge
