#pragma once

#include "image/Raster.h"

#include <QImage>

namespace folioforge {

/// The first frame of the image file `bytes`, which is in the `format` of Qt's name. Throws Error
/// when it cannot be read.
QImage readWithQt(QByteArray bytes, const char *format);

/// `image`; throws std::bad_alloc where it is null, as Qt makes it when it gets no memory.
QImage granted(QImage image);

/// The pixels of a Qt image in the fewest bits that hold them all: one bit, palette, grey or
/// colour, with its transparency.
Raster rasterOf(const QImage &image);

} // namespace folioforge
