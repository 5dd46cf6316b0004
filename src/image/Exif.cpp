// SPDX-License-Identifier: Apache-2.0

#include "image/Exif.h"

#include "image/Bytes.h"

#include <algorithm>

namespace folioforge {

namespace {

enum Tag : quint16 { Orientation = 274, XResolution = 282, YResolution = 283, Unit = 296 };

constexpr quint16 kCentimetre = 3;
constexpr double kCentimetresPerInch = 2.54;

} // namespace

QByteArrayView exifBlockOf(QByteArrayView item) {
    constexpr qsizetype kCount = 4;
    if (item.size() < kCount) {
        return {};
    }
    const qsizetype before = bigEndianAt<quint32>(item, 0);
    return item.sliced(std::min(kCount + before, item.size()));
}

TiffDirectory exifDirectory(QByteArrayView block) {
    const auto tiff = block.startsWith(kExifLead) ? block.sliced(kExifLead.size()) : block;
    return TiffDirectory(FileView(QByteArray::fromRawData(tiff.data(), tiff.size())));
}

ExifMetadata readExif(QByteArrayView block) {
    ExifMetadata metadata;
    try {
        const TiffDirectory directory = exifDirectory(block);
        const double scale = directory.number(Unit) == kCentimetre ? kCentimetresPerInch : 1;
        metadata.orientation = directory.number(Orientation).value_or(1);
        metadata.horizontalDpi = scale * directory.fraction(XResolution);
        metadata.verticalDpi = scale * directory.fraction(YResolution);
    } catch (const Error &) {
        // A damaged block is no reason to refuse the picture.
    }
    return metadata;
}

} // namespace folioforge
