// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"
#include "image/Raster.h"

#include <tiffio.h>

#include <memory>
#include <vector>

namespace folioforge {

/// A TIFF file opened with libtiff over a view: it reads by position, prints nothing, and keeps
/// the first message of an error.
class TiffFile {
  public:
    /// Opens the first directory; throws Error when it cannot be read.
    explicit TiffFile(const FileView &file);

    [[nodiscard]] TIFF *handle() const { return m_handle.get(); }
    [[nodiscard]] const FileView &file() const { return m_state->file; }

    /// The value of a tag of 16 bits, `missing` where it is absent and has no default.
    [[nodiscard]] int number(uint32_t tag, int missing) const;
    /// Throws the Error that libtiff reported last.
    [[noreturn]] void fail() const;

  private:
    struct State {
        FileView file;
        qint64 at = 0;
        QString message;
    };
    struct Close {
        void operator()(TIFF *tif) const { TIFFClose(tif); }
    };

    static tmsize_t read(thandle_t handle, void *target, tmsize_t size);
    static tmsize_t refuseWrite(thandle_t handle, void *source, tmsize_t size);
    static toff_t seek(thandle_t handle, toff_t offset, int whence);
    static int close(thandle_t handle);
    static toff_t size(thandle_t handle);
    static int keepMessage(TIFF *tif, void *data, const char *module, const char *format,
                           va_list arguments);
    static int ignoreMessage(TIFF *tif, void *data, const char *module, const char *format,
                             va_list arguments);

    std::unique_ptr<State> m_state; ///< libtiff holds its address.
    std::unique_ptr<TIFF, Close> m_handle;
};

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

/// Adds what the file holds behind its first page, which is left out: smaller copies and masks of
/// a page do not count.
void addFurtherPages(const FileView &file, Warnings &warnings);

/// Decodes the first directory. Throws Error.
Raster decodeTiff(const TiffFile &tiff, const TiffShape &shape);

} // namespace folioforge
