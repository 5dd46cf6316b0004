// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/TiffDirectory.h"

#include <QByteArrayView>

namespace folioforge {

/// What an EXIF block says of an image's first directory (EXIF 2.32, 4.6.4).
struct ExifMetadata {
    int orientation = 1;
    double horizontalDpi = 0; ///< Pixels per inch; 0 where the block states none.
    double verticalDpi = 0;
};

/// What stands before an EXIF block in a JPEG, and where other programs take it along.
inline constexpr QByteArrayView kExifLead("Exif\0\0", 6);

/// Reads an EXIF block, which is a TIFF structure without pixels. A damaged block gives what could
/// be read of it.
ExifMetadata readExif(QByteArrayView block);

/// The directory of an EXIF block, which must outlive it. Throws Error where it has none.
TiffDirectory exifDirectory(QByteArrayView block);

/// The EXIF block in an item of a container, which begins with the number of bytes that stand
/// before its block (ISO 23008-12, A.2.1).
QByteArrayView exifBlockOf(QByteArrayView item);

} // namespace folioforge
