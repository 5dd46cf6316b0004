#pragma once

#include "image/Raster.h"
#include "image/formats/TiffFile.h"

namespace folioforge {

/// How the first directory lays out its samples (TIFF 6.0).
struct TiffShape {
    int width = 0;
    int height = 0;
    int bits = 1;
    int samples = 1; ///< Of a pixel, extra ones included.
    int photometric = PHOTOMETRIC_MINISBLACK;
    int planar = PLANARCONFIG_CONTIG;
    int compression = COMPRESSION_NONE;
    int sampleFormat = SAMPLEFORMAT_UINT;
};

TiffShape readTiffShape(const TiffFile &tiff);

/// Decodes the first directory. Throws Error.
Raster decodeTiff(const TiffFile &tiff, const TiffShape &shape);

} // namespace folioforge
