// SPDX-License-Identifier: Apache-2.0

// Stands in for Exr.cpp where the program is built without OpenEXR.

#include "image/formats/Formats.h"
#include "image/formats/MissingFormat.h"
#include "image/formats/Signatures.h"

namespace folioforge {

ImageFormat exrFormat() {
    return MissingFormat<ImageKind::Exr>::of({QLatin1StringView("exr")}, isExr);
}

} // namespace folioforge
