// SPDX-License-Identifier: Apache-2.0

#include "convert/ImagePlacement.h"

#include <algorithm>

namespace folioforge {

ImagePlacement placeImage(QSizeF imageSize, const PageSetup &setup) {
    const PageMargins &margins = setup.margins;
    const auto horizontal = static_cast<double>(margins.left + margins.right);
    const auto vertical = static_cast<double>(margins.top + margins.bottom);

    QSizeF page = imageSize + QSizeF(horizontal, vertical);
    float scale = 1;
    if (setup.sizeMode == ImagePageCustom) {
        page = getImagePageSize(setup);
        scale = std::min(static_cast<float>((page.width() - horizontal) / imageSize.width()),
                         static_cast<float>((page.height() - vertical) / imageSize.height()));
    }
    const float width = static_cast<float>(imageSize.width()) * scale;
    const float height = static_cast<float>(imageSize.height()) * scale;
    const QPointF corner(
        (page.width() - horizontal - width) * 0.5 + static_cast<double>(margins.left),
        (page.height() - vertical - height) * 0.5 + static_cast<double>(margins.bottom));
    return {page, QRectF(corner, QSizeF(width, height))};
}

} // namespace folioforge
