#pragma once

#include "image/Decoder.h"
#include "image/Raster.h"

#include <QImage>

namespace folioforge {

/// The decoder of Windows and OS/2 bitmaps.
Decoder bmpDecoder();
/// The decoder of GIF (89a): the first frame.
Decoder gifDecoder();

/// The pixels of a Qt image in the fewest bits that hold them all: one bit, palette, grey or
/// colour, with its transparency.
Raster rasterOf(const QImage &image);

} // namespace folioforge
