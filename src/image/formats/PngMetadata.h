// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"
#include "image/PdfImage.h"
#include "image/Raster.h"
#include "image/formats/Interlaced.h"

#include <QByteArray>

#include <algorithm>
#include <vector>

namespace folioforge {

/// What the chunks of a PNG file say (ISO 15948), and where its rows are.
struct PngMetadata {
    enum ColorType : uchar { Gray = 0, Rgb = 2, Palette = 3, GrayAlpha = 4, RgbAlpha = 6 };

    ImageHeader header;
    int bits = 0;
    uchar colorType = 0;
    bool interlaced = false;
    QByteArray palette;
    QByteArray transparency; ///< The tRNS chunk.
    QByteArray iccProfile;
    std::vector<FileSlice> data; ///< The IDAT chunks, from the start of the view.
    bool isWhole = true;         ///< No chunk of rows is damaged or missing.
    bool isFaulty = false;       ///< A chunk that says what the rows mean is damaged.
    qint64 frames = 0;           ///< Of an animation beside the picture.

    [[nodiscard]] int channels() const {
        switch (colorType) {
        case Rgb:
            return 3;
        case GrayAlpha:
            return 2;
        case RgbAlpha:
            return 4;
        default:
            return 1;
        }
    }
    [[nodiscard]] bool hasAlphaChannel() const {
        return colorType == GrayAlpha || colorType == RgbAlpha;
    }
    [[nodiscard]] ImageColor color() const {
        return colorType == Palette       ? ImageColor::Indexed
               : (colorType & Rgb) == Rgb ? ImageColor::Rgb
                                          : ImageColor::Gray;
    }
    [[nodiscard]] qsizetype stride() const { return rowBytes(header.width, channels(), bits); }
    /// How the rows of an interlaced file stand in it.
    [[nodiscard]] InterlacedShape shape() const {
        return {header.width, header.height, channels() * bits};
    }
    [[nodiscard]] int pixelBytes() const { return std::max(channels() * bits / 8, 1); }
};

/// What the chunks are read for: their checksums count for pixels alone.
enum class PngReading { Header, Pixels };

/// Reads all chunks. Throws Error where the file holds no picture.
PngMetadata readPngMetadata(const FileView &file, PngReading reading);

/// Whether chunks of rows seem to be missing of a file whose chunks are whole, not interlaced. A
/// look at their sizes alone: the rows are not unpacked.
bool mayLackPngRows(const FileView &file, const PngMetadata &metadata);

/// The `size` bytes of the filtered rows, each behind the number of its filter. Of damaged rows it
/// gives what can be unpacked, zeros for the rest, and adds what is said of them. Throws Error
/// where no row can be.
QByteArray inflatePngRows(const FileView &file, const PngMetadata &metadata, qsizetype size,
                          Warnings &warnings);

} // namespace folioforge
