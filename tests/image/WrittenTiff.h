// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QFile>
#include <QSize>
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

/// A picture of one strip of `data` at `path`, which is given back; `setUp` adds what it needs.
template<typename SetUp>
QString writeStrip(const QString &path, QSize size, QByteArray data, const SetUp &setUp,
                   const char *mode = "w") {
    const auto tif = openTiff(path, mode);
    TIFFSetField(tif.get(), TIFFTAG_IMAGEWIDTH, size.width());
    TIFFSetField(tif.get(), TIFFTAG_IMAGELENGTH, size.height());
    TIFFSetField(tif.get(), TIFFTAG_ROWSPERSTRIP, size.height());
    TIFFSetField(tif.get(), TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    TIFFSetField(tif.get(), TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    setUp(tif.get());
    TIFFWriteRawStrip(tif.get(), 0, data.data(), data.size());
    return path;
}

} // namespace folioforge::test
