#pragma once

#include "compress/PlanarImage.h"

#include <cstdio>
#include <optional>

#include <jpeglib.h>

namespace folioforge {

/// The picture whose header `codec` has just read, from memory, at `eighths`/8 of its size; its
/// planes are as the file keeps them, those of colour smaller where they are. Takes nothing from
/// `codec`. Nothing for more than half the size, for all but the common kind of file (baseline, all
/// components in one scan, colour at no less than half the size) and for data with the least fault:
/// libjpeg is to judge those.
std::optional<PlanarImage> readReducedScan(const jpeg_decompress_struct &codec, int eighths);

} // namespace folioforge
