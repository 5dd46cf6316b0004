#pragma once

#include "files/ImageFile.h"
#include "image/ImageHeader.h"
#include "image/PdfImage.h"

#include <QByteArrayView>
#include <QLatin1StringView>

#include <vector>

namespace folioforge {

/// One image format: how its files are recognised and the two ways to read them. A new format is
/// one pair of files and one row of the table in Sniffer.cpp.
struct Decoder {
    ImageFormat format;
    /// Lower-case extensions that stand for the format when the bytes do not say.
    std::vector<QLatin1StringView> extensions;
    /// Whether the first bytes of a file (at most kSniffedBytes) are plainly this format; null for
    /// a format without a signature.
    bool (*recognises)(QByteArrayView head);
    /// Reads the header alone. Density and orientation come as the file states them (0 density
    /// where it states none); the caller puts them right. Throws Error.
    ImageHeader (*readHeader)(const FileView &file);
    /// Reads the image. Throws Error.
    PdfImage (*encode)(const FileView &file);
};

/// Bytes at the start of a file from which its format is told.
inline constexpr qint64 kSniffedBytes = 64;

} // namespace folioforge
