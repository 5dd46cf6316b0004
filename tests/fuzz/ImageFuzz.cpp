// The readers of one image format, FOLIOFORGE_FUZZED_FORMAT, with any bytes: an image in order or a
// reason, and not a word printed.

#include "FuzzSupport.h"
#include "image/EncodedImage.h"
#include "image/ImageHeader.h"

#include <algorithm>

using namespace folioforge;
using namespace folioforge::fuzz;

namespace {

constexpr ImageFormat kFormat = ImageFormat::FOLIOFORGE_FUZZED_FORMAT;
constexpr qint64 kMostPixels = 1 << 22; // Enough to find faults, few enough to go on.

void requireInOrder(const EncodedImage &image, qint64 fileSize) {
    require(image.width > 0 && image.height > 0);
    require(image.data.isEmpty() != image.slices.empty());
    require(image.palette.size() <= 768 && image.palette.size() % 3 == 0);
    require(image.color != ImageColor::Indexed || !image.palette.isEmpty());
    require(std::ranges::all_of(image.slices, [&](const FileSlice &slice) {
        return slice.offset >= 0 && slice.length >= 0 && slice.offset + slice.length <= fileSize;
    }));
    if (image.softMask) {
        require(image.softMask->width == image.width && image.softMask->height == image.height);
        requireInOrder(*image.softMask, fileSize);
    }
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    refuseMessages();
    // The name decides where the bytes are not plain about their format.
    const MemoryFile file(QStringLiteral(FOLIOFORGE_FUZZED_EXTENSION), {data, size});
    refuses([&] {
        const ImageHeader header = readImageHeader(file.path());
        if (header.format == kFormat && qint64(header.width) * header.height <= kMostPixels) {
            requireInOrder(encodeImage(file.path()), static_cast<qint64>(size));
        }
    });
    return 0;
}
