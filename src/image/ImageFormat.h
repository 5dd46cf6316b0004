#pragma once

#include "files/ImageFile.h"
#include "image/ImageHeader.h"
#include "image/PdfImage.h"

#include <QByteArrayView>
#include <QLatin1StringView>

#include <vector>

namespace folioforge {

/// One image format: how its files are recognised and the two ways to read them. A new format is
/// one source file, one function in formats/Formats.h and one row of the table in ImageFormat.cpp.
struct ImageFormat {
    ImageKind kind;
    /// Lower-case extensions that stand for the format where the bytes do not tell it.
    std::vector<QLatin1StringView> extensions;
    /// Whether the first bytes of a file (at most kSniffedBytes) are those of this format; null for
    /// a format without a signature.
    bool (*recognises)(QByteArrayView head);
    /// Reads the header alone. Density and orientation come as the file states them (0 density
    /// where it states none). Throws Error.
    ImageHeader (*readHeader)(const FileView &file);
    /// Reads the image. Throws Error.
    PdfImage (*toPdfImage)(const FileView &file);
};

/// Bytes at the start of a file by which formats recognise it.
inline constexpr qint64 kSniffedBytes = 64;

/// The format of the file: by content where a format recognises it, by the extension of its name
/// otherwise. Throws Error when neither tells.
const ImageFormat &formatOf(const FileView &file);

} // namespace folioforge
