// SPDX-License-Identifier: Apache-2.0

#include "image/ImageHeader.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "image/ImageFormat.h"

#include <cmath>

namespace folioforge {

namespace {

/// Pixels per inch that a picture may have; the rest are mistakes of writers: 0, 1 for "unknown",
/// 0.000015, units taken for one another.
constexpr double kMinDpi = 5;
constexpr double kMaxDpi = 25400;
constexpr double kDefaultDpi = 72;

bool isSaneDensity(double dpi) {
    return dpi >= kMinDpi && dpi <= kMaxDpi; // False for NaN.
}

/// PNG and BMP count in whole pixels per metre, which no usual density is: 72 per inch is stored as
/// 2835 and read back as 72.009. A density as near to a whole number as that unit can come is it.
double roundedToWhole(double dpi) {
    constexpr double kHalfPixelPerMetre = 0.5 * kMetresPerInch;
    const double whole = std::round(dpi);
    return std::abs(dpi - whole) <= kHalfPixelPerMetre ? whole : dpi;
}

} // namespace

ImageHeader checkedHeader(ImageHeader header) {
    if (header.width <= 0 || header.height <= 0) {
        throw Error(Reasons::tr("The image has no pixels"));
    }
    if (qint64(header.width) * header.height > kMaxImagePixels) {
        throw Error(Reasons::tr("The image is too large (%1 x %2 pixels)")
                        .arg(header.width)
                        .arg(header.height));
    }
    if (header.orientation < 1 || header.orientation > 8) {
        header.orientation = 1;
    }
    header.statesDensity = isSaneDensity(header.horizontalDpi) && isSaneDensity(header.verticalDpi);
    if (!header.statesDensity) {
        header.horizontalDpi = kDefaultDpi;
        header.verticalDpi = kDefaultDpi;
    }
    header.horizontalDpi = roundedToWhole(header.horizontalDpi);
    header.verticalDpi = roundedToWhole(header.verticalDpi);
    return header;
}

QSizeF ImageHeader::sizeInPoints(int unstatedDpi) const {
    constexpr double kPointsPerInch = 72;
    const bool isGiven = !statesDensity && unstatedDpi > 0;
    const QSizeF stored(width * kPointsPerInch / (isGiven ? unstatedDpi : horizontalDpi),
                        height * kPointsPerInch / (isGiven ? unstatedDpi : verticalDpi));
    return orientation >= 5 ? stored.transposed() : stored;
}

ImageHeader readImageHeader(const QString &path) {
    return readImageFile(path, SystemCalls::system(),
                         [](const auto &file, const ImageFormat &format) {
                             ImageHeader header = format.readHeader(file->view());
                             header.kind = format.kind;
                             return header;
                         });
}

} // namespace folioforge
