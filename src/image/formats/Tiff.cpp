// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "image/PictureDamage.h"
#include "image/formats/Tiff.h"

#include <array>

namespace folioforge {

namespace {

constexpr double kCentimetresPerInch = 2.54;

bool recognises(QByteArrayView head) {
    return head.startsWith(QByteArrayView("II*\0", 4)) ||
           head.startsWith(QByteArrayView("MM\0*", 4)) ||
           head.startsWith(QByteArrayView("II+\0", 4)) ||
           head.startsWith(QByteArrayView("MM\0+", 4));
}

double density(const TiffFile &tiff, uint32_t tag) {
    float value = 0;
    if (TIFFGetField(tiff.handle(), tag, &value) != 1) {
        return 0;
    }
    switch (tiff.number(TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH)) {
    case RESUNIT_INCH:
        return double(value);
    case RESUNIT_CENTIMETER:
        return double(value) * kCentimetresPerInch;
    default:
        return 0; // Without a unit the numbers are only a proportion.
    }
}

ImageHeader imageHeaderOf(const TiffFile &tiff, const TiffShape &shape) {
    ImageHeader header;
    header.width = shape.width;
    header.height = shape.height;
    header.orientation = tiff.number(TIFFTAG_ORIENTATION, 1);
    header.horizontalDpi = density(tiff, TIFFTAG_XRESOLUTION);
    header.verticalDpi = density(tiff, TIFFTAG_YRESOLUTION);
    return checkedHeader(header);
}

ImageHeader readHeader(const FileView &file) {
    const TiffFile tiff(file);
    return imageHeaderOf(tiff, readTiffShape(tiff));
}

/// One strip of group 4 is what a PDF holds; more than one would each start anew.
bool isPlainGroup4(const TiffFile &tiff, const TiffShape &shape) {
    uint32_t options = 0;
    TIFFGetField(tiff.handle(), TIFFTAG_GROUP4OPTIONS, &options);
    return shape.compression == COMPRESSION_CCITTFAX4 && shape.bits == 1 && shape.samples == 1 &&
           (shape.photometric == PHOTOMETRIC_MINISWHITE ||
            shape.photometric == PHOTOMETRIC_MINISBLACK) &&
           TIFFIsTiled(tiff.handle()) == 0 && TIFFNumberOfStrips(tiff.handle()) == 1 &&
           options == 0;
}

QByteArray withBitsReversed(QByteArray bytes) {
    TIFFReverseBits(reinterpret_cast<uint8_t *>(bytes.data()), bytes.size());
    return bytes;
}

PdfImage ownGroup4Data(const FileView &file, const TiffFile &tiff, const TiffShape &shape) {
    PdfImage image;
    image.width = shape.width;
    image.height = shape.height;
    image.bitsPerComponent = 1;
    image.color = ImageColor::Gray;
    image.filter = ImageFilter::CcittFax;
    image.embeddedAs = EmbeddedAs::OwnBytes;
    image.ccittK = -1;
    // The runs that fax calls black are the 1 bits: white where 0 is black.
    image.ccittBlackIs1 = shape.photometric == PHOTOMETRIC_MINISBLACK;
    const FileView strip = file.part(static_cast<qint64>(TIFFGetStrileOffset(tiff.handle(), 0)),
                                     static_cast<qint64>(TIFFGetStrileByteCount(tiff.handle(), 0)));
    if (tiff.number(TIFFTAG_FILLORDER, FILLORDER_MSB2LSB) == FILLORDER_LSB2MSB) {
        image.data = withBitsReversed(strip.readExactly(0, strip.size()));
    } else {
        image.slices = {{strip.offset(), strip.size()}};
    }
    return image;
}

PdfImage toPdfImage(const FileView &file) {
    const TiffFile tiff(file);
    const TiffShape shape = readTiffShape(tiff);
    const ImageHeader header = imageHeaderOf(tiff, shape);
    TiffDamage damage;
    Raster raster = decodeTiff(tiff, shape, damage);
    // Group 4 data is kept where all of its rows could be decoded.
    PdfImage image = damage.isNone() && isPlainGroup4(tiff, shape)
                         ? ownGroup4Data(file, tiff, shape)
                         : encodeRaster(std::move(raster), header);
    image.header = header;
    if (damage.missing > 0) {
        image.warnings.push_back(cutOffPicture(damage.missing, damage.all));
    } else if (damage.isFaulty) {
        image.warnings.push_back(faultyPicture());
    }
    addFurtherPages(file, image.warnings);
    return image;
}

} // namespace

ImageFormat tiffFormat() {
    return {ImageKind::Tiff,
            {QLatin1StringView("tif"), QLatin1StringView("tiff")},
            recognises,
            readHeader,
            toPdfImage};
}

} // namespace folioforge
