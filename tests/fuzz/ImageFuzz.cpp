// The readers of one image format with any bytes: an image in order or a reason, and not a word
// printed.

#include "FuzzSupport.h"
#include "FuzzedFormat.h"
#include "image/ImageHeader.h"
#include "image/PdfImage.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

using namespace folioforge;
using namespace folioforge::fuzz;

namespace {

constexpr std::array kFormats{
    std::pair("bmp", ImageKind::Bmp),           std::pair("exr", ImageKind::Exr),
    std::pair("gif", ImageKind::Gif),           std::pair("icns", ImageKind::Icns),
    std::pair("ico", ImageKind::Ico),           std::pair("jpeg", ImageKind::Jpeg),
    std::pair("jpeg2000", ImageKind::Jpeg2000), std::pair("png", ImageKind::Png),
    std::pair("psd", ImageKind::Psd),           std::pair("tga", ImageKind::Tga),
    std::pair("tiff", ImageKind::Tiff)};

constexpr qint64 kMaxPixels = 1 << 22; // Enough to find faults, few enough to go on.

ImageKind fuzzedKind() {
    const auto found = std::ranges::find_if(kFormats, [](const auto &format) {
        return format.first == std::string_view(kFuzzedExtension);
    });
    require(found != kFormats.end());
    return found->second;
}

void requireInOrder(const PdfImage &image, qint64 fileSize) {
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
    static const ImageKind kind = fuzzedKind();
    refuseMessages();
    // The name decides where the bytes are not plain about their format.
    const MemoryFile file(QString::fromLatin1(kFuzzedExtension), {data, size});
    refuses([&] {
        const ImageHeader header = readImageHeader(file.path());
        if (header.kind == kind && qint64(header.width) * header.height <= kMaxPixels) {
            requireInOrder(toPdfImage(file.path()), static_cast<qint64>(size));
        }
    });
    return 0;
}
