#include "image/ImageHeader.h"

#include "error/Error.h"
#include "image/Sniffer.h"

#include <new>

namespace folioforge {

namespace {

/// Pixels per inch that a picture may have; the rest are mistakes of writers: 0, 1 for "unknown",
/// 0.000015, units taken for one another.
constexpr double kLeastDpi = 5;
constexpr double kMostDpi = 25400;
constexpr double kDefaultDpi = 72;

bool isSaneDensity(double dpi) {
    return dpi >= kLeastDpi && dpi <= kMostDpi; // False for NaN.
}

ImageHeader checked(ImageHeader header, ImageFormat format) {
    header.format = format;
    if (header.width <= 0 || header.height <= 0) {
        throw Error(QStringLiteral("The image has no pixels"));
    }
    if (qint64(header.width) * header.height > kMaxImagePixels) {
        throw Error(QStringLiteral("The image is too large (%1 x %2 pixels)")
                        .arg(header.width)
                        .arg(header.height));
    }
    if (header.orientation < 1 || header.orientation > 8) {
        header.orientation = 1;
    }
    if (!isSaneDensity(header.horizontalDpi) || !isSaneDensity(header.verticalDpi)) {
        header.horizontalDpi = kDefaultDpi;
        header.verticalDpi = kDefaultDpi;
    }
    return header;
}

} // namespace

QSizeF ImageHeader::sizeInPoints() const {
    constexpr double kPointsPerInch = 72;
    const QSizeF stored(width * kPointsPerInch / horizontalDpi,
                        height * kPointsPerInch / verticalDpi);
    return orientation >= 5 ? stored.transposed() : stored;
}

ImageHeader readImageHeader(const QString &path) {
    const ImageFile file = ImageFile::open(path);
    const Decoder &decoder = decoderFor(file.view());
    return checked(decoder.readHeader(file.view()), decoder.format);
}

EncodedImage encodeImage(const QString &path) {
    const ImageFile file = ImageFile::open(path);
    const Decoder &decoder = decoderFor(file.view());
    checked(decoder.readHeader(file.view()), decoder.format);
    try {
        EncodedImage image = decoder.encode(file.view());
        image.sourcePath = path;
        image.sourceSize = file.size();
        return image;
    } catch (const std::bad_alloc &) {
        throw Error(QStringLiteral("There is not enough memory for the image"));
    }
}

} // namespace folioforge
