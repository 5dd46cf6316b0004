// SPDX-License-Identifier: Apache-2.0

#include "convert/SourceType.h"

namespace folioforge {

QByteArray mimeTypeOf(ImageKind kind) {
    switch (kind) {
    case ImageKind::Jpeg:
        return "image/jpeg";
    case ImageKind::Jpeg2000:
        return "image/jp2";
    case ImageKind::Png:
        return "image/png";
    case ImageKind::Tiff:
        return "image/tiff";
    case ImageKind::Bmp:
        return "image/bmp";
    case ImageKind::Gif:
        return "image/gif";
    case ImageKind::Ico:
        return "image/vnd.microsoft.icon";
    case ImageKind::Icns:
        return "image/x-icns";
    case ImageKind::Exr:
        return "image/x-exr";
    case ImageKind::Tga:
        return "image/x-tga";
    case ImageKind::Psd:
        return "image/vnd.adobe.photoshop";
    case ImageKind::Webp:
        return "image/webp";
    case ImageKind::Heif:
        return "image/heif";
    case ImageKind::JpegXl:
        return "image/jxl";
    }
    return "application/octet-stream";
}

} // namespace folioforge
