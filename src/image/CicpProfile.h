// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"

#include <QByteArray>

#include <array>

namespace folioforge {

/// Colours by numbers instead of a profile (ITU-T H.273).
struct CicpColor {
    /// Where red, green, blue and white lie in the diagram of colours (CIE 1931): x and y of each.
    std::array<std::array<double, 2>, 4> points;
    int primaries = 1; ///< The number that stands for the points; 1 for those of sRGB.
    int transfer = 13; ///< The number of the curve from light to samples; 13 for that of sRGB.
};

/// The ICC profile of RGB samples of such colours; empty for those of sRGB, for points of
/// which nothing is known, and for colours that no matrix gives. Curves of television count as that
/// of sRGB, as on screens, and so do curves of which nothing is known.
QByteArray profileOf(const CicpColor &color);

/// Adds a warning where samples of the curve of this number tell of light brighter than white.
void warnOfHighRange(int transfer, Warnings &warnings);

} // namespace folioforge
