// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

namespace folioforge {

/// An image in the seven passes of Adam7 (ISO 15948, 8.2).
struct InterlacedShape {
    int width = 0;
    int height = 0;
    int pixelBits = 8; ///< Of all channels together.
};

/// Bytes of all passes, with the filter number before each row.
qsizetype interlacedBytes(const InterlacedShape &shape);

/// Bytes of the first row of the first pass, with its filter number.
qsizetype firstRowBytes(const InterlacedShape &shape);

/// What a row is taken for whose filter does not exist: damaged, or not filtered.
enum class UnknownFilters { Refused, None };

/// Undoes the filters of the passes and gives the rows of the whole image, each after the number 0
/// (no filter). `filtered` has interlacedBytes() bytes. Throws Error on a damaged row.
QByteArray deinterlace(const QByteArray &filtered, const InterlacedShape &shape,
                       UnknownFilters unknown);

} // namespace folioforge
