#include "image/PdfImage.h"

#include "image/ImageFormat.h"

namespace folioforge {

PdfImage toPdfImage(const QString &path) {
    return readImageFile(path, [](const ImageFile &file, const ImageFormat &format) {
        PdfImage image = format.toPdfImage(file.view());
        file.requireUnchanged();
        image.header.kind = format.kind;
        image.sourcePath = file.path();
        image.sourceSize = file.size();
        image.sourceModifiedNanos = file.modifiedNanos();
        return image;
    });
}

} // namespace folioforge
