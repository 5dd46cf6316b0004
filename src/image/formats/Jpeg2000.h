// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"
#include "image/ImageHeader.h"
#include "image/Raster.h"

#include <QByteArray>

namespace folioforge {

/// What a JPEG 2000 file says before its codestream (ITU-T T.800, annexes A and I).
struct Jpeg2000Metadata {
    ImageHeader header;
    bool isCodestream = false; ///< No JP2 boxes around the codestream.
    int components = 0;
    int bitsField =
        0; ///< Bits of a component less one, high bit for signed; 255 where they differ.
    bool hasPalette = false;
    bool isYcc = false;      ///< Enumerated colour space sYCC.
    int enumeratedColor = 0; ///< 16 sRGB, 17 grey, 18 sYCC, 12 CMYK; 0 for none.
    int alphaChannel = -1;   ///< The decoded channel that holds the opacity; -1 for none.
    bool isPremultiplied = false;
    QByteArray iccProfile;

    /// How many channels of colour there can be: four where there are inks, else three.
    [[nodiscard]] int maxColors() const;
    /// Whether a PDF cannot show the file as it is, because of a channel that is no colour.
    [[nodiscard]] bool needsDecoding() const;
};

/// Reads the boxes, or the size marker of a bare codestream. Throws Error.
Jpeg2000Metadata readJpeg2000Metadata(const FileView &file);

/// Decodes the file, its opacity apart from its colour. Throws Error.
Raster decodeJpeg2000(const FileView &file, const Jpeg2000Metadata &metadata);

} // namespace folioforge
