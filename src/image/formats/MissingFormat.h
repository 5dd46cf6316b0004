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
    [[noreturn]] static void refuse() {
        if constexpr (kKind == ImageKind::Heif) {
            throw Error(Reasons::tr(
                "This program was built without the means to read HEIC and AVIF files"));
        }
        throw Error(
            Reasons::tr("This program was built without the means to read %1 files").arg(name()));
    }
    static QLatin1StringView name() {
        switch (kKind) {
        case ImageKind::Exr:
            return QLatin1StringView("EXR");
        case ImageKind::JpegXl:
            return QLatin1StringView("JPEG XL");
        default:
            return QLatin1StringView("WebP");
        }
    }
    static ImageHeader readHeader(const FileView & /*file*/) { refuse(); }
    static PdfImage toPdfImage(const FileView & /*file*/) { refuse(); }
};

} // namespace folioforge
