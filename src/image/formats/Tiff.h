// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"
#include "image/Raster.h"

#include <tiffio.h>

#include <memory>
#include <optional>
#include <vector>

namespace folioforge {

/// What is wrong with a TIFF file, in words, by what libtiff says of it.
QString tiffReason(const QString &message);

/// A TIFF file opened with libtiff over a view: it reads by position, prints nothing, and keeps
/// the first message of an error.
class TiffFile {
  public:
    /// Opens the directory at byte `directory`, the first one where that is 0; throws Error when it
    /// cannot be read. With `padding`, as many of these bytes as are asked for stand behind the end
    /// of the file.
    explicit TiffFile(const FileView &file, qint64 directory = 0,
                      std::optional<char> padding = std::nullopt);

    [[nodiscard]] TIFF *handle() const { return m_handle.get(); }
    [[nodiscard]] const FileView &file() const { return m_state->file; }
    [[nodiscard]] qint64 directory() const { return m_directory; }

    /// The value of a tag of 16 bits, `missing` where it is absent and has no default.
    [[nodiscard]] int number(uint32_t tag, int missing) const;
    /// How often libtiff has reported an error, or a warning, since the file was opened.
    [[nodiscard]] int errors() const { return m_state->errors; }
    [[nodiscard]] int warnings() const { return m_state->warnings; }
    /// Throws the Error that libtiff reported first.
    [[noreturn]] void fail() const;

  private:
    struct State {
        FileView file;
        std::optional<char> padding;
        qint64 at = 0;
        QString message;
        int errors = 0;
        int warnings = 0;
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
    static int countWarning(TIFF *tif, void *data, const char *module, const char *format,
                            va_list arguments);

    std::unique_ptr<State> m_state; ///< libtiff holds its address.
    std::unique_ptr<TIFF, Close> m_handle;
    qint64 m_directory;
};

/// How a directory lays out its samples (TIFF 6.0).
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

/// What of the pixels could not be decoded.
struct TiffDamage {
    qint64 missing = 0; ///< Rows or tiles that are not there, of `all`.
    qint64 all = 0;
    bool isFaulty = false; ///< What is there may be wrong.

    [[nodiscard]] bool isNone() const { return missing == 0 && !isFaulty; }
    void add(const TiffDamage &other) {
        missing += other.missing;
        all += other.all;
        isFaulty = isFaulty || other.isFaulty;
    }
};

/// Reads strips and tiles of one plane, as much of each as there is; the rest is zeros. A reader
/// holds the state of one decoder: each thread needs its own.
class TiffReader {
  public:
    /// Reads the directory of `tiff` through a handle of its own.
    TiffReader(const TiffFile &tiff, const TiffShape &shape, int plane);

    /// Decodes the strip of `rows` rows of `stride` bytes that begins with row `y`.
    void readStrip(int y, int rows, qsizetype stride, char *target);
    /// Decodes the tile of `size` bytes at this pixel.
    void readTile(qint64 x, qint64 y, tmsize_t size, char *target);

    [[nodiscard]] const TiffFile &tiff() const { return m_tiff; }
    /// What of the strips and tiles read so far is not there.
    [[nodiscard]] const TiffDamage &damage() const { return m_damage; }

  private:
    [[nodiscard]] bool isFax() const;
    [[nodiscard]] bool isInFile(uint32_t number) const;
    [[nodiscard]] int complaints(const TiffFile &tiff) const;
    int readRows(const TiffFile &tiff, int y, int rows, qsizetype stride, char *target);
    [[nodiscard]] bool isSameRow(const char *one, const char *other, qsizetype stride) const;
    void rescueStrip(int y, int rows, qsizetype stride, char *target);

    TiffShape m_shape;
    int m_plane;
    TiffFile m_tiff;
    TiffDamage m_damage;
    std::unique_ptr<TiffFile> m_padded; ///< Two that do not end, made when something is missing.
    std::unique_ptr<TiffFile> m_paddedOtherwise;
};

/// Throws Error where the file's strips or tiles are too short for `raw` bytes of pixels, or
/// compressed in a way that libtiff cannot undo.
void requireEnoughData(const TiffFile &tiff, const TiffShape &shape, qint64 raw);

/// Decompresses all planes, strips on several threads. Throws Error, before it allocates anything
/// where the file is too short for its pixels, and where nothing can be decoded.
std::vector<TiffPlane> readTiffPlanes(const TiffFile &tiff, const TiffShape &shape,
                                      TiffDamage &damage);

/// Where the opacity stands among a pixel's samples, and whether it multiplies the colours.
struct TiffAlpha {
    int index = -1;
    bool associated = false;
};

/// Brings samples of any depth, of the colours of `raster` and of `alpha`, into 8 bits where the
/// file has at most 8, and into 16 otherwise.
void unpackTiffSamples(const std::vector<TiffPlane> &planes, const TiffShape &shape,
                       const TiffAlpha &alpha, Raster &raster);

/// Reads the pixels by libtiff's own conversion to eight-bit RGB. Throws Error.
void readTiffAsRgb(const TiffFile &tiff, const TiffShape &shape, Raster &raster,
                   TiffDamage &damage);

/// Where the directories of a file's pages stand: the first one and those behind it that are no
/// smaller copies or masks of a page.
struct TiffPages {
    std::vector<qint64> directories; ///< Bytes from the start of the file; 0 for the first.
    bool isCutOff = false;           ///< A further page is named and cannot be found.
};

TiffPages findTiffPages(const FileView &file);

/// Decodes the directory. Throws Error.
Raster decodeTiff(const TiffFile &tiff, const TiffShape &shape, TiffDamage &damage);

/// The data of a directory that go into a PDF as they are: Group 4 and JPEG in one piece. Nothing
/// for others. `raster` is what they were decoded to, without a fault.
std::optional<PdfImage> ownTiffBytes(const TiffFile &tiff, const TiffShape &shape,
                                     const Raster &raster);

} // namespace folioforge
