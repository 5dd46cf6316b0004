// SPDX-License-Identifier: Apache-2.0

#include "pdf/OrientedMatrix.h"

namespace folioforge {

Matrix orientedMatrix(const QRectF &rect, int orientation) {
    const double x = rect.x();
    const double y = rect.y();
    const double w = rect.width();
    const double h = rect.height();
    switch (orientation) {
    case 2:
        return {-w, 0, 0, h, x + w, y};
    case 3:
        return {-w, 0, 0, -h, x + w, y + h};
    case 4:
        return {w, 0, 0, -h, x, y + h};
    case 5:
        return {0, -h, -w, 0, x + w, y + h};
    case 6:
        return {0, -h, w, 0, x, y + h};
    case 7:
        return {0, h, w, 0, x, y};
    case 8:
        return {0, h, -w, 0, x + w, y};
    default:
        return {w, 0, 0, h, x, y};
    }
}

} // namespace folioforge
