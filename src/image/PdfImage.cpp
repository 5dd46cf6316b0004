// SPDX-License-Identifier: Apache-2.0

#include "image/PdfImage.h"

#include "image/ImageFormat.h"

namespace folioforge {

PdfImage toPdfImage(const QString &path, SystemCalls &calls) {
    return readImageFile(path, calls, [](const auto &file, const ImageFormat &format) {
        PdfImage image = format.toPdfImage(file->view());
        file->requireUnchanged();
        image.header.kind = format.kind;
        if (!image.slices.empty()) {
            image.source = file;
        }
        return image;
    });
}

} // namespace folioforge
