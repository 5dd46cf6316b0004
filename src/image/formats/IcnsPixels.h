// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"
#include "image/Raster.h"

#include <optional>
#include <vector>

namespace folioforge {

/// One entry of an icon file: a type of four letters and its bytes.
struct IcnsEntry {
    QByteArray type;
    FileView content;
};

/// A kind of entry whose pixels are no file of their own.
struct ClassicIcon {
    const char *type;
    int width;
    int height;
    int bits;            ///< Of a pixel: 1, 4 and 8 by fixed palettes, 24, or 32 with opacity.
    const char *opacity; ///< The entry with eight bits of opacity a pixel.
    const char *outline; ///< The entry whose second half is a bit of opacity a pixel.
};

/// The classic kind of this type; none where it is another.
std::optional<ClassicIcon> classicIconOf(const QByteArray &type);

/// The pixels of an entry of this kind, with the opacity that another entry holds for it. Throws
/// Error when its data ends early.
Raster decodeClassicIcon(const ClassicIcon &icon, const FileView &content,
                         const std::vector<IcnsEntry> &entries);

} // namespace folioforge
