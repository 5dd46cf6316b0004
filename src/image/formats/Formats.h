// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/ImageFormat.h"

namespace folioforge {

ImageFormat bmpFormat();      ///< Windows and OS/2 bitmaps.
ImageFormat exrFormat();      ///< OpenEXR.
ImageFormat gifFormat();      ///< GIF; its first picture, or all.
ImageFormat heifFormat();     ///< HEIC and AVIF; the primary picture, or all.
ImageFormat icnsFormat();     ///< Macintosh icons; their largest picture, of these the deepest.
ImageFormat icoFormat();      ///< Windows icons; their largest picture, of these the deepest.
ImageFormat jpegFormat();     ///< JPEG, whose own bytes go into the PDF.
ImageFormat jpeg2000Format(); ///< JPEG 2000, in boxes or as a bare codestream.
ImageFormat jpegXlFormat();   ///< JPEG XL; its first frame, or all, or the JPEG that it was.
ImageFormat pngFormat();      ///< PNG, whose own rows go into the PDF where they can.
ImageFormat psdFormat();      ///< Photoshop; the merged image.
ImageFormat tgaFormat();      ///< Truevision TGA.
ImageFormat tiffFormat();     ///< TIFF; its first page, or all.
ImageFormat webpFormat();     ///< WebP; its first frame, or all.

/// Bits of a pixel of the PNG file with these first bytes. Throws Error.
int pngPixelBits(QByteArrayView head);

} // namespace folioforge
