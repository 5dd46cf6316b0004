#include "image/ImageHeader.h"

namespace folioforge {

QSizeF ImageHeader::sizeInPoints() const {
    constexpr double kPointsPerInch = 72;
    const QSizeF stored(width * kPointsPerInch / horizontalDpi,
                        height * kPointsPerInch / verticalDpi);
    return orientation >= 5 ? stored.transposed() : stored;
}

} // namespace folioforge
