// SPDX-License-Identifier: Apache-2.0

// Stands in for Heif.cpp where the program is built without libheif.

#include "image/formats/Formats.h"
#include "image/formats/MissingFormat.h"
#include "image/formats/Signatures.h"

namespace folioforge {

ImageFormat heifFormat() {
    return MissingFormat<ImageKind::Heif>::of(
        {QLatin1StringView("heic"), QLatin1StringView("heif"), QLatin1StringView("avif")}, isHeif);
}

} // namespace folioforge
