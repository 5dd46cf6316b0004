#pragma once

#include "compress/PlanarImage.h"

#include <cstdio>

#include <jpeglib.h>

namespace folioforge {

/// Whether the components are light or inks, which JPEG can keep as well.
inline bool isPlain(J_COLOR_SPACE space) {
    return space == JCS_RGB || space == JCS_CMYK;
}

/// Turns plain components into those that JPEG keeps (ITU-T T.871, 7): RGB into YCbCr, CMYK into
/// YCCK, which is YCbCr of the inverted first three inks. Grey stays. All planes are of one size.
void toJpegColor(PlanarImage &image);

} // namespace folioforge
