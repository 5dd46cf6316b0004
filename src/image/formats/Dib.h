// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"
#include "image/formats/ArgbImage.h"

#include <array>

namespace folioforge {

/// The header of a device-independent bitmap, which BMP files and Windows icons hold: of OS/2 (12,
/// 16 and 64 bytes), of Windows 3 (40), with masks of the colours (52 and 56) and of its versions 4
/// and 5 (108 and 124; [MS-WMF] 2.2.2.3 to 2.2.2.5).
struct DibHeader {
    enum Compression : quint32 { Plain = 0, Runs8 = 1, Runs4 = 2, Masks = 3 };

    quint32 size = 0; ///< Bytes of the header.
    int width = 0;
    int height = 0;
    bool isTopDown = false; ///< Rows from the top, where the file states a negative height.
    int planes = 1;
    int bits = 0; ///< Of a pixel.
    quint32 compression = Plain;
    double horizontalDpi = 0; ///< Pixels per inch; 0 where the header has no density.
    double verticalDpi = 0;
    quint32 colorsUsed = 0;            ///< Colours in the table; 0 for as many as there can be.
    std::array<quint32, 4> masks = {}; ///< The bits of red, green, blue and opacity; 0 for none.

    /// Colours in the table, or as many as pixels of `bits` bits can name where that is fewer.
    [[nodiscard]] int colorCount() const;
    /// Byte behind the header, the masks that may follow it and the table of colours.
    [[nodiscard]] qint64 endOfColors() const;
    /// Bytes of a row, which is padded to four.
    [[nodiscard]] qint64 stride() const { return (qint64(width) * bits + 31) / 32 * 4; }
    /// Whether pixels of these bits in this compression can be read.
    [[nodiscard]] bool hasKnownPixels() const;
};

/// Reads the header at the start of `dib`. Throws Error when it ends early.
DibHeader readDibHeader(const FileView &dib);

/// The table of colours, opaque. Throws Error when it ends early.
std::vector<Argb> readDibColors(const FileView &dib, const DibHeader &header);

/// How many rows of an uncompressed bitmap, the first at byte `at`, stand behind the end of `dib`.
qint64 missingDibRows(const FileView &dib, const DibHeader &header, qint64 at);

/// The stored rows of an uncompressed bitmap of which the first stands at byte `at`. Rows behind
/// the end of `dib` are zeros.
QByteArray readDibRows(const FileView &dib, const DibHeader &header, qint64 at);

/// The row of readDibRows() that is number `y` from the top.
const uchar *dibRow(const QByteArray &rows, const DibHeader &header, int y);

/// The pixels of a bitmap of 1, 4 or 8 bits a pixel.
struct IndexedDib {
    IndexedImage image;
    qint64 missingRows = 0; ///< That the file has no data for.
    bool hasGaps = false;   ///< Runs leave out pixels.
};

/// The pixels at byte `at` of a bitmap of 1, 4 or 8 bits a pixel. What runs leave out is colour 0.
IndexedDib readIndexedDib(const FileView &dib, const DibHeader &header, qint64 at);

/// The pixels at byte `at` of a bitmap of 16 bits a pixel or more. Opacity counts where the header
/// has a mask for it.
ArgbImage readColorDib(const FileView &dib, const DibHeader &header, qint64 at);

} // namespace folioforge
