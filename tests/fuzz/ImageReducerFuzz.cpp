// SPDX-License-Identifier: Apache-2.0

// One image stream with any bytes: it is reduced or left with a reason, and what is made is
// smaller, or grey.

#include "FuzzSupport.h"
#include "compress/ImageReducer.h"

#include <algorithm>
#include <array>

using namespace folioforge;
using namespace folioforge::fuzz;

namespace {

constexpr std::size_t kHeadBytes = 8;

/// The first bytes say what the document would say about the image, the others are its stream.
ImageJob jobOf(Bytes data) {
    static const std::array<std::string, 4> filters{"", "[/FlateDecode]", "[/LZWDecode]",
                                                    "[/ASCII85Decode /RunLengthDecode]"};
    ImageJob job;
    job.codec = static_cast<ImageCodec>(data[0] % 3);
    job.filter = filters[data[0] / 3 % filters.size()];
    job.parameters = job.filter.empty() ? std::string()
                     : data[1] & 8      ? "[<< /Predictor 15 /Colors 3 /Columns 16 >> null]"
                                        : "[null null]";
    job.width = data[2] + 1;
    job.height = data[3] + 1;
    job.components = std::array{1, 3, 4, 0}[data[1] & 3];
    if (job.codec != ImageCodec::Jpx) {
        job.components = std::max(job.components, 1);
    }
    job.bitsPerComponent = data[1] & 4 ? 16 : 8;
    if (data[1] & 16 && job.codec == ImageCodec::Samples) {
        job.palette = std::string(static_cast<std::size_t>(job.components) * (data[6] + 1), 'p');
        job.bitsPerComponent = 8;
    }
    if (data[1] & 32) {
        job.colorTransform = data[1] >> 6 & 1;
    }
    job.scale = std::max(1, static_cast<int>(data[4])) / 255.0;
    job.jpegQuality = data[5] % 100 + 1;
    job.purpose = data[7] & 1 && job.components == 1 ? ImagePurpose::SoftMask : ImagePurpose::Photo;
    job.lineArt = data[7] & 2 ? LineArt::Keep : LineArt::Reduce;
    if (data[7] & 4 && job.components != 1) {
        job.grey = "/DeviceGray";
        job.isInverted = (data[7] & 8) != 0;
    }
    if (data[7] & 16) {
        job.purpose = ImagePurpose::Bilevel;
    }
    job.data.assign(data.begin() + kHeadBytes, data.end());
    return job;
}

} // namespace

FUZZ_TARGET(ImageReducer) {
    if (bytes.size() < kHeadBytes) {
        return;
    }
    const ImageJob job = jobOf(bytes);
    const Reduction reduction = reduceImage(job);
    if (!reduction.image) {
        require(!reduction.reason.isEmpty());
    } else if (job.grey.empty()) {
        require(reduction.image->data.size() < job.data.size());
    } else {
        require(reduction.image->components == 1);
    }
}
