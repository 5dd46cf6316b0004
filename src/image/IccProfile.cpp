// SPDX-License-Identifier: Apache-2.0

#include "image/IccProfile.h"

#include "image/Bytes.h"

namespace folioforge {

namespace {

constexpr qsizetype kHeaderBytes = 128;

QByteArrayView colorSpaceSignature(ImageColor color) {
    switch (color) {
    case ImageColor::Gray:
        return "GRAY";
    case ImageColor::Rgb:
    case ImageColor::Indexed:
        return "RGB ";
    case ImageColor::Cmyk:
        return "CMYK";
    case ImageColor::Lab:
    case ImageColor::FromJpx:
        break;
    }
    return {};
}

} // namespace

QByteArray fittingProfile(const QByteArray &profile, ImageColor color) {
    const QByteArrayView expected = colorSpaceSignature(color);
    if (expected.isEmpty() || profile.size() < kHeaderBytes) {
        return {};
    }
    const auto length = static_cast<qsizetype>(bigEndianAt<quint32>(profile, 0));
    const QByteArrayView view(profile);
    if (length < kHeaderBytes || length > profile.size() || view.sliced(36, 4) != "acsp" ||
        view.sliced(16, 4) != expected) {
        return {};
    }
    // A device link or a named colour profile holds no source colour space a PDF may use.
    const QByteArrayView profileClass = view.sliced(12, 4);
    if (profileClass == "link" || profileClass == "nmcl" || profileClass == "abst") {
        return {};
    }
    return profile.first(length);
}

} // namespace folioforge
