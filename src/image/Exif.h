// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArrayView>

namespace folioforge {

/// What an EXIF block says of an image's first directory (EXIF 2.32, 4.6.4).
struct ExifMetadata {
    int orientation = 1;
    double horizontalDpi = 0; ///< Pixels per inch; 0 where the block states none.
    double verticalDpi = 0;
};

/// Reads an EXIF block, which is a TIFF structure without pixels. A damaged block gives what could
/// be read of it.
ExifMetadata readExif(QByteArrayView block);

} // namespace folioforge
