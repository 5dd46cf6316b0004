// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "files/SourceFile.h"
#include "image/Raster.h"

namespace folioforge {

/// The pixels of a JPEG file, which may be damaged.
struct JpegPixels {
    Raster raster;     ///< Grey, RGB or CMYK as the file stores it; rows that are lost are plain.
    Warnings warnings; ///< What of the picture could not be read.
};

/// Decodes what can be decoded of a JPEG file of 8 bits a sample. Throws Error where that is
/// nothing.
JpegPixels decodeJpeg(const FileView &file);

} // namespace folioforge
