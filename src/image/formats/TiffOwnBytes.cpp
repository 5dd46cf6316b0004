// SPDX-License-Identifier: Apache-2.0

#include "image/IccProfile.h"
#include "image/formats/JpegSegments.h"
#include "image/formats/Tiff.h"

#include <QtEndian>

namespace folioforge {

namespace {

/// One strip or tile is what a PDF holds; more than one would each start anew.
bool isOnePiece(const TiffFile &tiff) {
    return (TIFFIsTiled(tiff.handle()) != 0 ? TIFFNumberOfTiles(tiff.handle())
                                            : TIFFNumberOfStrips(tiff.handle())) == 1;
}

bool isPlainGroup4(const TiffFile &tiff, const TiffShape &shape) {
    uint32_t options = 0;
    TIFFGetField(tiff.handle(), TIFFTAG_GROUP4OPTIONS, &options);
    return shape.compression == COMPRESSION_CCITTFAX4 && shape.bits == 1 && shape.samples == 1 &&
           (shape.photometric == PHOTOMETRIC_MINISWHITE ||
            shape.photometric == PHOTOMETRIC_MINISBLACK) &&
           TIFFIsTiled(tiff.handle()) == 0 && options == 0;
}

QByteArray withBitsReversed(QByteArray bytes) {
    TIFFReverseBits(reinterpret_cast<uint8_t *>(bytes.data()), bytes.size());
    return bytes;
}

FileView onlyPiece(const TiffFile &tiff) {
    return tiff.file().part(static_cast<qint64>(TIFFGetStrileOffset(tiff.handle(), 0)),
                            static_cast<qint64>(TIFFGetStrileByteCount(tiff.handle(), 0)));
}

PdfImage describe(const TiffShape &shape, const Raster &raster, ImageFilter filter) {
    PdfImage image;
    image.width = shape.width;
    image.height = shape.height;
    image.bitsPerComponent = shape.bits;
    image.color = raster.color;
    image.filter = filter;
    image.embeddedAs = EmbeddedAs::OwnBytes;
    return image;
}

PdfImage ownGroup4Data(const TiffFile &tiff, const TiffShape &shape, const Raster &raster) {
    PdfImage image = describe(shape, raster, ImageFilter::CcittFax);
    image.ccittK = -1;
    // The runs that fax calls black are the 1 bits: white where 0 is black.
    image.ccittBlackIs1 = shape.photometric == PHOTOMETRIC_MINISBLACK;
    const FileView strip = onlyPiece(tiff);
    if (tiff.number(TIFFTAG_FILLORDER, FILLORDER_MSB2LSB) == FILLORDER_LSB2MSB) {
        image.data = withBitsReversed(strip.readExactly(0, strip.size()));
    } else {
        image.slices = {{strip.offset(), strip.size()}};
    }
    return image;
}

constexpr qsizetype kMarkerBytes = 2;

/// The tables that pieces of JPEG data share (TIFF Technical Note 2), without the markers around
/// them; nothing where they hold anything else.
std::optional<QByteArray> jpegTables(const TiffFile &tiff) {
    uint32_t size = 0;
    const void *bytes = nullptr;
    if (TIFFGetField(tiff.handle(), TIFFTAG_JPEGTABLES, &size, &bytes) != 1 || size == 0) {
        return QByteArray();
    }
    const QByteArray all(static_cast<const char *>(bytes), static_cast<qsizetype>(size));
    if (!all.startsWith("\xFF\xD8") || !all.endsWith("\xFF\xD9") || size < 2 * kMarkerBytes) {
        return std::nullopt;
    }
    const QByteArray tables = all.sliced(kMarkerBytes).chopped(kMarkerBytes);
    for (qsizetype at = 0; at < tables.size();) {
        const bool hasHeader = at + 2 * kMarkerBytes <= tables.size() && tables[at] == '\xFF';
        const auto marker = static_cast<uchar>(hasHeader ? tables[at + 1] : '\0');
        if (marker != Dqt && marker != Dht) {
            return std::nullopt;
        }
        at += kMarkerBytes + qFromBigEndian<quint16>(tables.constData() + at + kMarkerBytes);
    }
    return tables;
}

/// Whether a PDF reader takes the components for the colours that the TIFF says they are.
bool saysItsColors(const JpegFrame &frame, int photometric) {
    switch (photometric) {
    case PHOTOMETRIC_MINISWHITE:
    case PHOTOMETRIC_MINISBLACK:
        return frame.components.size() == 1;
    case PHOTOMETRIC_YCBCR:
        return frame.components.size() == 3 && !isNamedRgb(frame);
    case PHOTOMETRIC_RGB:
        return isNamedRgb(frame);
    case PHOTOMETRIC_SEPARATED:
        return frame.components.size() == 4;
    default:
        return false;
    }
}

/// Whether the piece is a picture of this shape that holds nothing but tables beside it.
bool isPlainJpegPicture(const FileView &piece, const TiffShape &shape) {
    if (piece.read(0, kMarkerBytes) != "\xFF\xD8") {
        return false;
    }
    bool hasFrame = false;
    JpegSegments segments(piece);
    while (const auto segment = segments.next()) {
        if (segment->marker == Sos) {
            return hasFrame;
        }
        if (isFrameHeader(segment->marker)) {
            const JpegFrame frame = readJpegFrame(*segment);
            hasFrame = !hasFrame && frame.process <= Sof2 && frame.width == shape.width &&
                       frame.height == shape.height && saysItsColors(frame, shape.photometric);
            if (!hasFrame) {
                return false;
            }
        } else if (segment->marker != Dqt && segment->marker != Dht && segment->marker != Dri) {
            return false;
        }
    }
    return false;
}

std::optional<PdfImage> ownJpegData(const TiffFile &tiff, const TiffShape &shape,
                                    const Raster &raster) {
    const FileView piece = onlyPiece(tiff);
    const auto tables = jpegTables(tiff);
    if (!tables || !isPlainJpegPicture(piece, shape)) {
        return std::nullopt;
    }
    PdfImage image = describe(shape, raster, ImageFilter::Dct);
    image.iccProfile = fittingProfile(raster.iccProfile, raster.color);
    image.decode = raster.decode;
    image.isPlainRgb = shape.photometric == PHOTOMETRIC_RGB;
    const QByteArray bytes = piece.readExactly(0, piece.size());
    image.data = bytes.first(kMarkerBytes) + *tables + bytes.sliced(kMarkerBytes);
    return image;
}

} // namespace

std::optional<PdfImage> ownTiffBytes(const TiffFile &tiff, const TiffShape &shape,
                                     const Raster &raster) {
    if (!isOnePiece(tiff)) {
        return std::nullopt;
    }
    if (isPlainGroup4(tiff, shape)) {
        return ownGroup4Data(tiff, shape, raster);
    }
    const bool isJpeg = shape.compression == COMPRESSION_JPEG && shape.bits == 8 &&
                        shape.samples == channelCount(raster.color);
    return isJpeg ? ownJpegData(tiff, shape, raster) : std::nullopt;
}

} // namespace folioforge
