// SPDX-License-Identifier: Apache-2.0

// Stands in for JpegXl.cpp where the program is built without libjxl.

#include "image/formats/Formats.h"
#include "image/formats/MissingFormat.h"
#include "image/formats/Signatures.h"

namespace folioforge {

ImageFormat jpegXlFormat() {
    return MissingFormat<ImageKind::JpegXl>::of({QLatin1StringView("jxl")}, isJpegXl);
}

} // namespace folioforge
