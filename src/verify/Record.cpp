// SPDX-License-Identifier: Apache-2.0

#include "verify/Record.h"

namespace folioforge {

ImageRecord recordOf(const PdfImage &image) {
    ImageRecord record;
    record.width = image.width;
    record.height = image.height;
    record.bitsPerComponent = image.bitsPerComponent;
    record.color = image.color;
    record.filter = image.filter;
    record.isOwnBytes = image.embeddedAs == EmbeddedAs::OwnBytes;
    record.isPlainRgb = image.isPlainRgb;
    record.isPredicted = image.predictor > 1;
    record.ccittK = image.ccittK;
    record.ccittBlackIs1 = image.ccittBlackIs1;
    if (!image.iccProfile.isEmpty()) {
        record.profile = checksumOf(image.iccProfile);
    }
    record.palette = image.palette;
    record.decode = image.decode;
    if (!image.slices.empty()) {
        record.source = image.source->version();
        record.slices = image.slices;
    } else if (image.unpacked) {
        record.isUnpacked = true;
        record.hasFilteredRows = image.hasFilteredRows;
        record.checksum = *image.unpacked;
    } else {
        record.checksum = checksumOf(image.data);
    }
    if (image.softMask) {
        record.softMask = std::make_shared<const ImageRecord>(recordOf(*image.softMask));
    }
    return record;
}

} // namespace folioforge
