// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QRectF>

namespace folioforge {

/// The transformation [a b c d e f]: a point (x, y) goes to (ax + cy + e, bx + dy + f)
/// (ISO 32000-1, 8.3.4).
struct Matrix {
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;
    double e = 0;
    double f = 0;
};

/// The matrix that draws an image's unit square into `rect` (points, origin lower left) as its EXIF
/// orientation says (Exif 2.32, tag 0x0112); any value but 1 to 8 counts as 1.
Matrix orientedMatrix(const QRectF &rect, int orientation);

} // namespace folioforge
