// SPDX-License-Identifier: Apache-2.0

#include "convert/ImagePlacement.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace folioforge {

namespace {

/// A square image leaves an automatic page as it is given.
QSizeF turned(QSizeF page, QSizeF image, PageOrientation orientation) {
    const bool isWide = page.width() > page.height();
    bool wantsWide = isWide;
    if (orientation == PageOrientation::Auto && image.width() != image.height()) {
        wantsWide = image.width() > image.height();
    } else if (orientation != PageOrientation::Auto && orientation != PageOrientation::AsGiven) {
        wantsWide = orientation == PageOrientation::Landscape;
    }
    return isWide == wantsWide ? page : page.transposed();
}

float scaleOf(QSizeF image, QSizeF space, ImageFit fit) {
    const auto horizontal = static_cast<float>(space.width() / image.width());
    const auto vertical = static_cast<float>(space.height() / image.height());
    switch (fit) {
    case ImageFit::Fill:
        return std::max(horizontal, vertical);
    case ImageFit::Shrink:
        return std::min({horizontal, vertical, 1.0F});
    default:
        return std::min(horizontal, vertical);
    }
}

} // namespace

std::vector<PageSetup> pagesOfImages(const PageSetup &setup, PageOrientation orientation) {
    const QSizeF given = getImagePageSize(setup);
    bool staysSo = false;
    bool turns = false;
    for (const QSizeF image : {QSizeF(2, 1), QSizeF(1, 2)}) {
        const bool isSame = turned(given, image, orientation) == given;
        staysSo = staysSo || isSame;
        turns = turns || !isSame;
    }
    std::vector<PageSetup> pages;
    if (staysSo) {
        pages.push_back(setup);
    }
    if (turns) {
        pages.push_back(setup);
        std::swap(pages.back().customWidth, pages.back().customHeight);
    }
    return pages;
}

ImagePlacement placeImage(QSizeF imageSize, const PageSetup &setup, const ImageLayout &layout) {
    const PageMargins &margins = setup.margins;
    const auto horizontal = static_cast<double>(margins.left + margins.right);
    const auto vertical = static_cast<double>(margins.top + margins.bottom);

    QSizeF page = imageSize + QSizeF(horizontal, vertical);
    float scale = 1;
    if (setup.sizeMode == ImagePageCustom) {
        page = turned(getImagePageSize(setup), imageSize, layout.orientation);
        scale = scaleOf(imageSize, page - QSizeF(horizontal, vertical), layout.fit);
    }
    const float width = static_cast<float>(imageSize.width()) * scale;
    const float height = static_cast<float>(imageSize.height()) * scale;
    const QPointF origin(static_cast<double>(margins.left), static_cast<double>(margins.bottom));
    const QPointF corner((page.width() - horizontal - width) * 0.5 + origin.x(),
                         (page.height() - vertical - height) * 0.5 + origin.y());
    return {page, QRectF(corner, QSizeF(width, height)),
            QRectF(origin, page - QSizeF(horizontal, vertical))};
}

} // namespace folioforge
