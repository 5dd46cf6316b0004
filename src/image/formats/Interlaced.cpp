// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Interlaced.h"

#include "image/Raster.h"
#include "image/RowFilter.h"

#include <algorithm>
#include <array>
#include <utility>

namespace folioforge {

namespace {

/// The grid of pixels that one pass fills.
struct Pass {
    int left;
    int top;
    int stepX;
    int stepY;

    [[nodiscard]] int columns(int width) const { return (width - left + stepX - 1) / stepX; }
    [[nodiscard]] int rows(int height) const { return (height - top + stepY - 1) / stepY; }
};

constexpr std::array<Pass, 7> kPasses = {{{0, 0, 8, 8},
                                          {4, 0, 8, 8},
                                          {0, 4, 4, 8},
                                          {2, 0, 4, 4},
                                          {0, 2, 2, 4},
                                          {1, 0, 2, 2},
                                          {0, 1, 1, 2}}};

qsizetype passBytes(const Pass &pass, const InterlacedShape &shape) {
    const int columns = pass.columns(shape.width);
    return columns == 0 ? 0 : pass.rows(shape.height) * (1 + rowBytes(columns, 1, shape.pixelBits));
}

void copyPixel(const uchar *source, qsizetype from, uchar *target, qsizetype to, int bits) {
    if (bits >= 8) {
        const qsizetype bytes = bits / 8;
        std::copy_n(source + from * bytes, bytes, target + to * bytes);
        return;
    }
    const qsizetype perByte = 8 / bits;
    const auto shift = [&](qsizetype index) { return 8 - bits - int(index % perByte) * bits; };
    const int value = (source[from / perByte] >> shift(from)) & ((1 << bits) - 1);
    target[to / perByte] |= static_cast<uchar>(value << shift(to));
}

} // namespace

qsizetype interlacedBytes(const InterlacedShape &shape) {
    qsizetype sum = 0;
    for (const Pass &pass : kPasses) {
        sum += passBytes(pass, shape);
    }
    return sum;
}

qsizetype firstRowBytes(const InterlacedShape &shape) {
    return 1 + rowBytes(kPasses.front().columns(shape.width), 1, shape.pixelBits);
}

QByteArray deinterlace(const QByteArray &filtered, const InterlacedShape &shape,
                       UnknownFilters unknown) {
    const qsizetype stride = 1 + rowBytes(shape.width, 1, shape.pixelBits);
    QByteArray out = allocateRows(shape.height, stride);
    qsizetype at = 0;
    for (const Pass &pass : kPasses) {
        const int columns = pass.columns(shape.width);
        const int rows = pass.rows(shape.height);
        const qsizetype passStride = rowBytes(columns, 1, shape.pixelBits);
        const qsizetype bytes = passBytes(pass, shape);
        QByteArray own = filtered.mid(at, bytes);
        if (unknown == UnknownFilters::None) {
            dropUnknownFilters(own, 1 + passStride);
        }
        const QByteArray plain = unfilterRows(std::move(own), bytes == 0 ? 0 : rows, passStride,
                                              std::max(shape.pixelBits / 8, 1));
        at += bytes;
        for (int y = 0; bytes > 0 && y < rows; ++y) {
            const auto *source =
                reinterpret_cast<const uchar *>(plain.constData()) + y * passStride;
            auto *target = reinterpret_cast<uchar *>(out.data()) +
                           (pass.top + qsizetype(y) * pass.stepY) * stride + 1;
            for (int x = 0; x < columns; ++x) {
                copyPixel(source, x, target, pass.left + qsizetype(x) * pass.stepX,
                          shape.pixelBits);
            }
        }
    }
    return out;
}

} // namespace folioforge
