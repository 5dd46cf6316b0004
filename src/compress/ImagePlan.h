// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/CompressionPass.h"
#include "compress/ImageReducer.h"
#include "compress/ImageUses.h"
#include "compress/QuartzFilter.h"

#include <vector>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// An image of the document that is to be reduced; `job.data` is still empty.
struct PlannedImage {
    QPDFObjectHandle stream;
    int page = 0; ///< The first page that draws it, from 1.
    ImageJob job;
};

struct ImagePlan {
    std::vector<PlannedImage> planned; ///< In the order of the pages.
    std::vector<KeptImage> kept;
};

/// Decides for each image from its dictionary and its largest use whether to reduce it and to what
/// size. A soft mask is planned with its image, by the image's use.
ImagePlan planImages(QPDF &document, const std::vector<ImageUse> &uses, const QuartzFilter &filter);

/// Leaves the images alone whose colours only their own data define. Reduced they would have those
/// of a device, which PDF/A allows under conditions only.
void keepColorsOfData(ImagePlan &plan);

} // namespace folioforge
