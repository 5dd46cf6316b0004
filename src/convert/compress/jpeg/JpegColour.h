#pragma once

#include "convert/compress/PlanarImage.h"

namespace folioforge {

/// Turns plain components into those that JPEG keeps (ITU-T T.871, 7): RGB into YCbCr, CMYK into
/// YCCK, which is YCbCr of the inverted first three inks. Grey stays. All planes are of one size.
void toJpegColour(PlanarImage &image);

} // namespace folioforge
