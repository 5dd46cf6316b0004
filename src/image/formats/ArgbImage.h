// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/Raster.h"

#include <QByteArray>

#include <vector>

namespace folioforge {

/// A colour with its opacity in the highest byte, then red, green and blue.
using Argb = quint32;

inline constexpr Argb kOpaque = 0xFF000000U;

/// The colour of these three channels, opaque.
constexpr Argb argb(int red, int green, int blue) {
    return kOpaque | static_cast<Argb>(red) << 16 | static_cast<Argb>(green) << 8 |
           static_cast<Argb>(blue);
}

/// Pixels that each have a colour of their own, rows from the top.
struct ArgbImage {
    int width = 0;
    int height = 0;
    bool hasAlpha = false; ///< Otherwise the opacity of the pixels does not count.
    std::vector<Argb> pixels;
    QByteArray iccProfile = {}; ///< Of RGB; with one no picture becomes grey.

    /// The pixels of row `y`.
    [[nodiscard]] Argb *row(int y) { return pixels.data() + qsizetype(y) * width; }
    [[nodiscard]] const Argb *row(int y) const { return pixels.data() + qsizetype(y) * width; }
    /// Whether a pixel has any opacity: some writers leave it zero throughout.
    [[nodiscard]] bool isVisible() const;
};

/// Pixels that are numbers of colours, a byte each, rows from the top. A number without a colour is
/// opaque black.
struct IndexedImage {
    int width = 0;
    int height = 0;
    QByteArray indexes;
    std::vector<Argb> colors; ///< 256 at most.
    QByteArray iccProfile = {};
};

/// The image with a palette, or as grey where all its colours are and no profile says what they
/// mean.
Raster rasterOf(IndexedImage &&image);

/// The image with a palette or as grey where it has no more than 256 colours, else in full colour.
Raster rasterOf(const ArgbImage &image);

} // namespace folioforge
