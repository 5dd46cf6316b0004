// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/PageSetup.h"

#include <QRectF>
#include <QSizeF>

#include <vector>

namespace folioforge {

/// Which way a page of a fixed size lies.
enum class PageOrientation {
    AsGiven,
    Auto, ///< As its image does.
    Portrait,
    Landscape
};

/// How an image takes the space inside the margins of a page of a fixed size.
enum class ImageFit {
    Within, ///< As large as it goes in whole.
    Shrink, ///< As that, but never enlarged.
    Fill    ///< So large that no space is left; what lies outside is not shown.
};

/// What beside the page setup decides where an image stands.
struct ImageLayout {
    PageOrientation orientation = PageOrientation::AsGiven;
    ImageFit fit = ImageFit::Within;
    int unstatedDpi = 0; ///< Pixels per inch of images that state none; 0 for the usual ones.
};

/// Where an image stands on its page; points, origin at the page's lower left corner.
struct ImagePlacement {
    QSizeF page;
    QRectF image;
    QRectF space; ///< Inside the margins. Nothing of the image is shown beyond it.

    bool operator==(const ImagePlacement &) const = default;
};

/// `setup` with the page of a fixed size lying each way in which an image may turn it, beginning
/// with the given one; `setup` alone where the page follows its image.
std::vector<PageSetup> pagesOfImages(const PageSetup &setup, PageOrientation orientation);

/// Puts an image of `imageSize` points on its page, centred in the space inside the margins. On a
/// custom page it takes that space as `layout` says, by default as far as its proportions allow,
/// enlarged where it is small; any other page takes its size from the image, unscaled, and the
/// margins around it. The scale and the drawn size are single-precision numbers.
ImagePlacement placeImage(QSizeF imageSize, const PageSetup &setup, const ImageLayout &layout = {});

} // namespace folioforge
