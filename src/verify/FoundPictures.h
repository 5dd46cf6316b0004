// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/PdfImage.h"
#include "verify/Verification.h"

#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// Whether the pixels of `image`, an image of a PDF, can tell whether it is a picture of a file.
bool hasTellingPixels(QPDFObjectHandle image, const VerifyOptions &options);

/// By what such an image is shown to be `source`, which is read from its file again. Throws what
/// libqpdf throws.
PageProof proofByPixels(QPDFObjectHandle image, const PdfImage &source,
                        const VerifyOptions &options);

} // namespace folioforge
