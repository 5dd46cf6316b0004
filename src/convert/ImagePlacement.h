// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/PageSetup.h"

#include <QRectF>
#include <QSizeF>

namespace folioforge {

/// Where an image stands on its page; points, origin at the page's lower left corner.
struct ImagePlacement {
    QSizeF page;
    QRectF image;

    bool operator==(const ImagePlacement &) const = default;
};

/// Puts an image of `imageSize` points on its page, centred in the space inside the margins. On a
/// custom page it fills that space as far as its proportions allow, enlarged where it is small; any
/// other page takes its size from the image, unscaled, and the margins around it. The scale and the
/// drawn size are single-precision numbers.
ImagePlacement placeImage(QSizeF imageSize, const PageSetup &setup);

} // namespace folioforge
