// SPDX-License-Identifier: Apache-2.0

#include "image/formats/ChannelRows.h"

#include <QtEndian>

#include <algorithm>

namespace folioforge {

namespace {

/// A sample of more than 8 bits as one of 16.
quint16 widened(quint16 sample, int bits) {
    return static_cast<quint16>(sample << (16 - bits) | sample >> (2 * bits - 16));
}

/// Stores `count` samples and goes past them.
void store(const uchar *&source, char *&target, int count, int bits) {
    if (bits == 8) {
        target = std::copy_n(source, count, target);
        source += count;
        return;
    }
    for (int i = 0; i < count; ++i, source += 2, target += 2) {
        qToBigEndian(widened(qFromBigEndian<quint16>(source), bits), target);
    }
}

} // namespace

void storeChannels(const ChannelRows &rows, Raster &raster) {
    const int colors = channelCount(raster.color);
    raster.samples = allocateRows(raster.height, raster.stride());
    if (rows.hasAlpha) {
        raster.alpha = AlphaPlane{
            raster.bits, allocateRows(raster.height, rowBytes(raster.width, 1, raster.bits))};
    }
    char *color = raster.samples.data();
    char *alpha = rows.hasAlpha ? raster.alpha->samples.data() : nullptr;
    for (int y = 0; y < raster.height; ++y) {
        const uchar *source = rows.bytes + y * rows.stride;
        if (!rows.hasAlpha) {
            store(source, color, raster.width * colors, rows.bits);
            continue;
        }
        for (int x = 0; x < raster.width; ++x) {
            store(source, color, colors, rows.bits);
            store(source, alpha, 1, rows.bits);
        }
    }
}

} // namespace folioforge
