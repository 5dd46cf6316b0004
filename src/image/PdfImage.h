// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "files/SourceFile.h"
#include "image/ImageHeader.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace folioforge {

/// A run of bytes of a source file that goes into the PDF as it is.
struct FileSlice {
    qint64 offset = 0; ///< Bytes from the start of the file.
    qint64 length = 0; ///< Bytes.
};

/// The bytes of all slices.
qint64 sizeOf(const std::vector<FileSlice> &slices);

/// What is left of `slices` without `parts`, both in order.
std::vector<FileSlice> slicesWithout(const std::vector<FileSlice> &slices,
                                     const std::vector<FileSlice> &parts);

/// Filter of an encoded image's data, in the PDF's terms (ISO 32000-1, 7.4).
enum class ImageFilter { Flate, Dct, Jpx, CcittFax };

enum class ImageColor { Gray, Rgb, Cmyk, Lab, Indexed, FromJpx };

/// How a source image reaches the PDF, for the report.
enum class EmbeddedAs { OwnBytes, Recompressed };

/// An image in the form in which a PDF holds it: compressed samples and what is needed to read
/// them.
struct PdfImage {
    ImageHeader header; ///< What the same reading of the file says of it; none in a soft mask.
    int width = 0;      ///< Pixels.
    int height = 0;     ///< Pixels.
    int bitsPerComponent = 8; ///< 1, 2, 4, 8 or 16; not written for JPX.
    ImageColor color = ImageColor::Rgb;
    ImageFilter filter = ImageFilter::Flate;
    EmbeddedAs embeddedAs = EmbeddedAs::Recompressed;

    QByteArray iccProfile;      ///< ICC profile of the samples, or of the palette; empty for none.
    QByteArray palette;         ///< RGB triples for ImageColor::Indexed.
    std::vector<double> decode; ///< The Decode array; empty for the default.

    int predictor = 1;          ///< Flate: 1 none, 15 PNG rows (with colors and bitsPerComponent).
    int ccittK = -1;            ///< CCITT: K parameter.
    bool ccittBlackIs1 = false; ///< CCITT: BlackIs1 parameter.
    bool isPlainRgb = false;    ///< DCT: the samples are RGB though the data does not say so.

    /// The compressed data: either in `data`, or slices of `source` in this order.
    QByteArray data;
    /// checksumOf() what was compressed, taken before it was, where that was done here: the
    /// samples, or with `hasFilteredRows` the rows with their filter numbers.
    std::optional<quint64> unpacked;
    bool hasFilteredRows = false; ///< `unpacked` is of rows that the file had filtered.
    std::vector<FileSlice> slices;
    /// The file of the slices, still open; null where there are none.
    std::shared_ptr<const SourceFile> source;

    Warnings warnings; ///< What of the file is not in the picture.

    /// Opacity of each pixel as a grey image; none for an opaque image.
    std::unique_ptr<PdfImage> softMask;
};

/// What becomes of that in a file's own bytes which no reader needs to show the picture: Exif with
/// the place of a photo, XMP, comments. Orientation and density count in either case.
enum class SourceMetadata { Keep, Strip };

/// Reads the image at `path` and puts it into the form in which a PDF holds it: the file's own
/// compressed bytes where a PDF can hold them, else decoded and compressed losslessly. Throws
/// Error when the file cannot be read or decoded.
PdfImage toPdfImage(const QString &path, SystemCalls &calls = SystemCalls::system(),
                    SourceMetadata metadata = SourceMetadata::Keep);

/// Gives each page of a TIFF, each picture of a HEIC or AVIF and each frame of a GIF, WebP or JPEG
/// XL, as a viewer shows it, to `take` in that order, of other files what toPdfImage() gives. The
/// pictures have no warnings; they are returned, with the number of the page where there are
/// several. A page that cannot be read is left out and named. Throws Error when none can be read,
/// and what `take` throws.
Warnings forEachPicture(const QString &path, SystemCalls &calls, SourceMetadata metadata,
                        const std::function<void(PdfImage)> &take);

} // namespace folioforge
