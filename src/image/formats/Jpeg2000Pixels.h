#pragma once

#include "image/Raster.h"
#include "image/formats/Jpeg2000Metadata.h"

namespace folioforge {

/// Decodes a JPEG 2000 file, its opacity apart from its colour. Throws Error.
Raster decodeJpeg2000(const FileView &file, const Jpeg2000Metadata &metadata);

} // namespace folioforge
