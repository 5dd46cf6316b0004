#include "image/PdfImage.h"

#include "image/ImageFormat.h"

namespace folioforge {

PdfImage toPdfImage(const QString &path) {
    return readImageFile(path, [](const SourceFile &file, const ImageFormat &format) {
        PdfImage image = format.toPdfImage(file.view());
        file.requireUnchanged();
        image.header.kind = format.kind;
        image.source = file.version();
        return image;
    });
}

} // namespace folioforge
