// SPDX-License-Identifier: Apache-2.0

#include "image/formats/ArgbImage.h"

#include <QHash>

#include <algorithm>
#include <optional>
#include <utility>

namespace folioforge {

namespace {

constexpr int alphaOf(Argb color) {
    return static_cast<int>(color >> 24);
}

constexpr char redOf(Argb color) {
    return static_cast<char>(color >> 16 & 0xFF);
}

constexpr char greenOf(Argb color) {
    return static_cast<char>(color >> 8 & 0xFF);
}

constexpr char blueOf(Argb color) {
    return static_cast<char>(color & 0xFF);
}

bool isOpaque(const std::vector<Argb> &colors) {
    return std::ranges::all_of(colors, [](Argb color) { return alphaOf(color) == 0xFF; });
}

bool isGray(const std::vector<Argb> &colors) {
    return std::ranges::all_of(colors, [](Argb color) {
        return redOf(color) == greenOf(color) && greenOf(color) == blueOf(color);
    });
}

/// `color(c)` for the colour c of each index, `missing` where there is none.
template<typename Sample>
QByteArray samplesOf(const IndexedImage &image, char missing, const Sample &sample) {
    QByteArray samples = image.indexes;
    for (char &value : samples) {
        const auto index = static_cast<uchar>(value);
        value = index < image.colors.size() ? sample(image.colors[index]) : missing;
    }
    return samples;
}

/// The image by numbers where it has no more than 256 colours; nothing where there are more.
std::optional<IndexedImage> withPalette(const ArgbImage &image) {
    const Argb opacity = image.hasAlpha ? 0 : kOpaque;
    IndexedImage indexed{
        image.width, image.height, allocateRows(image.height, image.width), {}, image.iccProfile};
    QHash<Argb, uchar> numbers;
    auto *target = reinterpret_cast<uchar *>(indexed.indexes.data());
    for (int y = 0; y < image.height; ++y) {
        const Argb *source = image.row(y);
        for (int x = 0; x < image.width; ++x, ++target) {
            if (x > 0 && source[x] == source[x - 1]) {
                *target = target[-1];
                continue;
            }
            const Argb color = source[x] | opacity;
            auto number = numbers.constFind(color);
            if (number == numbers.constEnd()) {
                if (indexed.colors.size() == 256) {
                    return std::nullopt;
                }
                number = numbers.insert(color, static_cast<uchar>(indexed.colors.size()));
                indexed.colors.push_back(color);
            }
            *target = *number;
        }
    }
    return indexed;
}

} // namespace

bool ArgbImage::isVisible() const {
    return std::ranges::any_of(pixels, [](Argb color) { return alphaOf(color) != 0; });
}

Raster rasterOf(IndexedImage &&image) {
    Raster raster;
    raster.width = image.width;
    raster.height = image.height;
    if (!isOpaque(image.colors)) {
        raster.alpha = AlphaPlane{8, samplesOf(image, '\xFF', [](Argb color) {
                                      return static_cast<char>(alphaOf(color));
                                  })};
    }
    raster.iccProfile = image.iccProfile;
    if (image.iccProfile.isEmpty() && isGray(image.colors)) {
        raster.color = ImageColor::Gray;
        raster.samples = samplesOf(image, '\0', redOf);
        return raster;
    }
    raster.color = ImageColor::Indexed;
    raster.samples = std::move(image.indexes);
    for (const Argb color : image.colors) {
        raster.palette.append(redOf(color)).append(greenOf(color)).append(blueOf(color));
    }
    return raster;
}

Raster rasterOf(const ArgbImage &image) {
    if (auto indexed = withPalette(image)) {
        return rasterOf(std::move(*indexed));
    }
    Raster raster;
    raster.width = image.width;
    raster.height = image.height;
    raster.color = ImageColor::Rgb;
    raster.iccProfile = image.iccProfile;
    raster.samples = allocateRows(raster.height, raster.stride());
    char *color = raster.samples.data();
    for (const Argb pixel : image.pixels) {
        *color++ = redOf(pixel);
        *color++ = greenOf(pixel);
        *color++ = blueOf(pixel);
    }
    if (image.hasAlpha) {
        raster.alpha = AlphaPlane{8, allocateRows(raster.height, raster.width)};
        std::ranges::transform(image.pixels, raster.alpha->samples.begin(),
                               [](Argb pixel) { return static_cast<char>(alphaOf(pixel)); });
    }
    return raster;
}

} // namespace folioforge
