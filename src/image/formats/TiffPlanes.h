#pragma once

#include "image/formats/TiffPixels.h"

namespace folioforge {

/// The decompressed rows of one plane, of all samples where they are interleaved. 16-bit samples
/// and wider are in the machine's byte order, as libtiff gives them.
struct TiffPlane {
    QByteArray rows;
    qsizetype stride = 0;
};

/// Throws Error where the file's strips or tiles are too short for `raw` bytes of pixels.
void requireEnoughData(const TiffFile &tiff, const TiffShape &shape, qint64 raw);

/// Decompresses all planes, strips on several threads. Throws Error, before it allocates anything
/// where the file is too short for its pixels.
std::vector<TiffPlane> readTiffPlanes(const TiffFile &tiff, const TiffShape &shape);

} // namespace folioforge
