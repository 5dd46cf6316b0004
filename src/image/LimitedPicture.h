// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/PdfImage.h"

namespace folioforge {

/// What the pictures of a document may have, where it keeps a standard.
struct PictureLimits {
    bool opacity = true;
    bool jpeg2000 = true;
    int mostBits = 16;      ///< Of a sample, 8 or 16.
    int profileVersion = 4; ///< The highest of ICC profiles, 2 or 4.
};

/// Brings `image` within `limits`: opacity is blended onto white, JPEG 2000 is decoded where it
/// must be, else the document and not the data says which colours it has. What changes is added to
/// its warnings. Returns why it cannot be kept within them, as the end of a sentence behind
/// "since"; empty where it can. Throws Error where it cannot be read.
QString limit(PdfImage &image, const PictureLimits &limits);

} // namespace folioforge
