// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QFile>
#include <QString>

#include <tiffio.h>

#include <memory>

namespace folioforge::test {

struct CloseTiff {
    void operator()(TIFF *tif) const { TIFFClose(tif); }
};

/// A TIFF file that libtiff reads or writes, by its mode.
inline std::unique_ptr<TIFF, CloseTiff> openTiff(const QString &path, const char *mode) {
    return std::unique_ptr<TIFF, CloseTiff>(TIFFOpen(QFile::encodeName(path).constData(), mode));
}

inline void setSamples(TIFF *tif, int samples, int bits, int photometric) {
    TIFFSetField(tif, TIFFTAG_SAMPLESPERPIXEL, samples);
    TIFFSetField(tif, TIFFTAG_BITSPERSAMPLE, bits);
    TIFFSetField(tif, TIFFTAG_PHOTOMETRIC, photometric);
}

} // namespace folioforge::test
