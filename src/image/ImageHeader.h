// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QSizeF>
#include <QString>

namespace folioforge {

enum class ImageKind {
    Jpeg,
    Jpeg2000,
    Png,
    Tiff,
    Bmp,
    Gif,
    Ico,
    Icns,
    Exr,
    Tga,
    Psd,
    Webp,
    Heif, ///< HEIC and AVIF.
    JpegXl
};

/// Images above this many pixels are refused, so that a small file cannot claim the machine's
/// memory.
inline constexpr qint64 kMaxImagePixels = 500'000'000;

/// Many formats state their density in pixels per metre.
inline constexpr double kMetresPerInch = 0.0254;

/// What the header of an image file says; no pixel is decoded to learn it.
struct ImageHeader {
    ImageKind kind = ImageKind::Png;
    int width = 0;             ///< Stored pixels, before orientation.
    int height = 0;            ///< Stored pixels, before orientation.
    int orientation = 1;       ///< EXIF orientation 1 to 8; anything else in the file counts as 1.
    double horizontalDpi = 0;  ///< Pixels per inch along the stored rows; 0 where not stated.
    double verticalDpi = 0;    ///< Pixels per inch from row to row; 0 where not stated.
    bool statesDensity = true; ///< Else the two are what is taken for it.

    bool operator==(const ImageHeader &) const = default;

    /// Size in points (1/72 inch) as displayed: orientations 5 to 8 exchange the sides. A picture
    /// that states no density has `unstatedDpi` pixels per inch, or where that is 0 the usual 72.
    [[nodiscard]] QSizeF sizeInPoints(int unstatedDpi = 0) const;
};

/// `header` with 72 pixels per inch where its density is absurd and orientation 1 where its own
/// does not exist. Throws Error where it has no pixels or more than kMaxImagePixels.
ImageHeader checkedHeader(ImageHeader header);

/// Reads the header of the image file at `path`. Throws Error when the file is no image that can be
/// read or exceeds kMaxImagePixels.
ImageHeader readImageHeader(const QString &path);

} // namespace folioforge
