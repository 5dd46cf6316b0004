#pragma once

#include <QRectF>
#include <QTransform>

namespace folioforge {

/// The matrix that draws an image's unit square into `rect` (points, origin lower left) as its EXIF
/// orientation says (Exif 2.32, tag 0x0112); any value but 1 to 8 counts as 1.
QTransform orientedMatrix(const QRectF &rect, int orientation);

} // namespace folioforge
