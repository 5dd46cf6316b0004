// SPDX-License-Identifier: Apache-2.0

#include "compress/PlanarImage.h"

namespace folioforge {

namespace {

constexpr int kBits = 16;

/// A factor in units of 2^-kBits, rounded.
constexpr int fixed(double value) {
    constexpr int kTwice = 2 << kBits;
    return (static_cast<int>(value * kTwice) + 1) / 2;
}

/// `inversion` is 255 for inks and 0 for light.
void convertRow(std::uint8_t *first, std::uint8_t *second, std::uint8_t *third, int width,
                int inversion) {
    constexpr int kHalf = 1 << (kBits - 1);
    constexpr int kMiddle = (128 << kBits) + kHalf - 1;
    for (int x = 0; x < width; ++x) {
        const int red = first[x] ^ inversion;
        const int green = second[x] ^ inversion;
        const int blue = third[x] ^ inversion;
        first[x] = static_cast<std::uint8_t>(
            (fixed(.299) * red + fixed(.587) * green + fixed(.114) * blue + kHalf) >> kBits);
        second[x] = static_cast<std::uint8_t>(
            (kHalf * blue - fixed(.168735892) * red - fixed(.331264108) * green + kMiddle) >>
            kBits);
        third[x] = static_cast<std::uint8_t>(
            (kHalf * red - fixed(.418687589) * green - fixed(.081312411) * blue + kMiddle) >>
            kBits);
    }
}

} // namespace

void toJpegColor(PlanarImage &image) {
    if (image.components() < 3) {
        return;
    }
    constexpr int kAllBits = 255;
    const int inversion = image.components() == 4 ? kAllBits : 0;
    for (int y = 0; y < image.height; ++y) {
        convertRow(image.planes[0].row(y), image.planes[1].row(y), image.planes[2].row(y),
                   image.width, inversion);
    }
}

} // namespace folioforge
