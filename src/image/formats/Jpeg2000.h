// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"
#include "image/ImageHeader.h"
#include "image/Raster.h"
#include "image/formats/OpenJpeg.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace folioforge {

/// What a JPEG 2000 file says before its codestream (ITU-T T.800, annexes A and I).
struct Jpeg2000Metadata {
    ImageHeader header;
    bool isCodestream = false; ///< No JP2 boxes around the codestream.
    int components = 0;
    static constexpr int kBitsDiffer = 255;
    int bitsField = 0; ///< Bits of a component less one, high bit for signed, or kBitsDiffer.
    bool hasPalette = false;
    bool isYcc = false;      ///< Enumerated colour space sYCC.
    int enumeratedColor = 0; ///< 16 sRGB, 17 grey, 18 sYCC, 12 CMYK; 0 for none.
    int alphaChannel = -1;   ///< The decoded channel that holds the opacity; -1 for none.
    bool isPremultiplied = false;
    bool guessesAlpha = false; ///< Nothing says that alphaChannel is opacity.
    bool isReordered = false;  ///< Channels of colour are not stored in their order.
    qint64 codestreamAt = -1;  ///< Where the codestream begins; -1 for none.
    qint64 codestreamBytes = 0;
    QByteArray iccProfile;

    /// How many channels of colour there can be: four where there are inks, else three.
    [[nodiscard]] int maxColors() const;
    /// Whether a PDF cannot show the file as it is, because of a channel that is no colour, or
    /// because readers disagree about the order of its channels.
    [[nodiscard]] bool needsDecoding() const;
};

/// A box of a file.
struct Jpeg2000Box {
    QByteArray type; ///< Four bytes.
    qint64 at = 0;   ///< Where it begins.
    FileView content;
    qint64 next = 0; ///< Where the box after it begins.
};

/// Walks through the boxes of a file or of a box that holds others; a bare codestream has none.
class Jpeg2000Boxes {
  public:
    explicit Jpeg2000Boxes(const FileView &file);

    /// The next box; nothing behind the last. Throws Error where it is damaged.
    std::optional<Jpeg2000Box> next();

  private:
    const FileView &m_file;
    qint64 m_at;
};

/// Reads the boxes, or the size marker of a bare codestream. Throws Error.
Jpeg2000Metadata readJpeg2000Metadata(const FileView &file);

/// The boxes around the picture that say more than it needs: XML, and those of other programs.
std::vector<FileSlice> jpeg2000Extras(const FileView &file);

/// How a codestream is put together.
struct Jpeg2000Structure {
    /// From its start to its end marker every marker is in order, and each tile has all its parts.
    /// The data of the tiles are not decoded: flaws among them are not found.
    bool isWhole = false;
    bool isSubsampled = false; ///< A component has fewer samples than the picture has pixels.
    qint64 tiles = 0;
    qint64 missingTiles = 0; ///< Absent or cut off.
    qint64 cutBytes = 0;     ///< Missing of the tile part that is cut off, of `cutOf` bytes.
    qint64 cutOf = 0;
    qint64 readable = 0; ///< Bytes of the codestream up to where it goes astray.

    [[nodiscard]] bool lacksData() const { return tiles == 0 || missingTiles > 0; }
};

/// Walks from marker to marker; what stands between them is not read.
Jpeg2000Structure readJpeg2000Structure(const FileView &file, const Jpeg2000Metadata &metadata);

/// The pixels of a file, which may be damaged.
struct Jpeg2000Pixels {
    Raster raster;     ///< Opacity apart from the colour.
    Warnings warnings; ///< What of the picture could not be read.
};

/// The file with its header read by OpenJPEG; nothing where that cannot read it as this picture.
/// `file` must outlive it. Throws Error where the program was built without
/// OpenJPEG.
std::optional<OpenJpegPicture> openJpeg2000(const FileView &file, const Jpeg2000Metadata &metadata,
                                            const Jpeg2000Structure &structure);

/// Decodes what can be decoded of the file. Throws Error where that is nothing.
Jpeg2000Pixels decodeJpeg2000(const FileView &file, const Jpeg2000Metadata &metadata,
                              const Jpeg2000Structure &structure);

} // namespace folioforge
