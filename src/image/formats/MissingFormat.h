// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Reasons.h"
#include "image/ImageFormat.h"

namespace folioforge {

/// What stands for a format in a program that is built without its library.
template<ImageKind kKind> class MissingFormat {
  public:
    /// A format that recognises its files and refuses them.
    static ImageFormat of(std::vector<QLatin1StringView> extensions,
                          bool (*recognises)(QByteArrayView head)) {
        return {kKind, std::move(extensions), recognises, readHeader, toPdfImage};
    }

  private:
    static QLatin1StringView name() {
        switch (kKind) {
        case ImageKind::Exr:
            return QLatin1StringView("EXR");
        case ImageKind::Heif:
            return QLatin1StringView("HEIC and AVIF");
        case ImageKind::JpegXl:
            return QLatin1StringView("JPEG XL");
        default:
            return QLatin1StringView("WebP");
        }
    }
    [[noreturn]] static void refuse() {
        throw Error(
            Reasons::tr("This program was built without the means to read %1 files").arg(name()));
    }
    static ImageHeader readHeader(const FileView & /*file*/) { refuse(); }
    static PdfImage toPdfImage(const FileView & /*file*/) { refuse(); }
};

} // namespace folioforge
