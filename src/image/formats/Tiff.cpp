// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "error/Reasons.h"
#include "image/MorePictures.h"
#include "image/PictureDamage.h"
#include "image/description/DescriptionBlocks.h"
#include "image/formats/Tiff.h"

#include <utility>

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

constexpr const char *kLostPage =
    QT_TRANSLATE_NOOP("Reasons", "The file names a further page that cannot be read");

/// The page of one directory.
PdfImage pageOf(const TiffFile &tiff) {
    const TiffShape shape = readTiffShape(tiff);
    const ImageHeader header = imageHeaderOf(tiff, shape);
    TiffDamage damage;
    Raster raster = decodeTiff(tiff, shape, damage);
    // The file's own data are kept where all of the rows could be decoded.
    auto own = damage.isNone() ? ownTiffBytes(tiff, shape, raster) : std::nullopt;
    PdfImage image = own ? std::move(*own) : encodeRaster(std::move(raster), header);
    image.header = header;
    if (damage.missing > 0) {
        image.warnings.push_back(cutOffPicture(damage.missing, damage.all));
    } else if (damage.isFaulty) {
        image.warnings.push_back(faultyPicture());
    }
    return image;
}

PdfImage toPdfImage(const FileView &file) {
    PdfImage image = pageOf(TiffFile(file));
    const TiffPages pages = findTiffPages(file);
    if (pages.isCutOff) {
        image.warnings.push_back({WarningCode::PictureDamaged, Reasons::tr(kLostPage)});
    }
    addMorePictures(image.warnings, static_cast<qint64>(pages.directories.size()) - 1,
                    kFurtherPages);
    return image;
}

class TiffPageReader : public PictureReader {
  public:
    explicit TiffPageReader(const FileView &file)
        : m_file(file)
        , m_pages(findTiffPages(file)) {}

    std::optional<PdfImage> next() override {
        if (m_next < m_pages.directories.size()) {
            return pageOf(TiffFile(m_file, m_pages.directories[m_next++]));
        }
        if (std::exchange(m_pages.isCutOff, false)) {
            throw Error(Reasons::tr(kLostPage));
        }
        return std::nullopt;
    }

  private:
    FileView m_file;
    TiffPages m_pages;
    std::size_t m_next = 0;
};

std::unique_ptr<PictureReader> readAll(const FileView &file) {
    return std::make_unique<TiffPageReader>(file);
}

} // namespace

ImageFormat tiffFormat() {
    return {ImageKind::Tiff, {QLatin1StringView("tif"), QLatin1StringView("tiff")},
            recognises,      readHeader,
            toPdfImage,      nullptr,
            readAll,         addTiffBlocks};
}

} // namespace folioforge
