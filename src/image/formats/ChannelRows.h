// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/Raster.h"

namespace folioforge {

/// Rows of a decoder in which the samples of each pixel stand side by side, that of opacity last.
struct ChannelRows {
    const uchar *bytes = nullptr;
    qsizetype stride = 0; ///< Bytes from one row to the next.
    int bits = 8;         ///< Of a sample: 8, or 9 to 16 in two bytes, the high one first.
    bool hasAlpha = false;
};

/// Stores the samples, with their opacity, in `raster`, which has its size and colour and as many
/// bits, 8 or 16; fewer than 16 are spread over all 16.
void storeChannels(const ChannelRows &rows, Raster &raster);

} // namespace folioforge
