// SPDX-License-Identifier: Apache-2.0

// Stands in for Webp.cpp where the program is built without libwebp.

#include "image/formats/Formats.h"
#include "image/formats/MissingFormat.h"
#include "image/formats/Signatures.h"

namespace folioforge {

ImageFormat webpFormat() {
    return MissingFormat<ImageKind::Webp>::of({QLatin1StringView("webp")}, isWebp);
}

} // namespace folioforge
