// SPDX-License-Identifier: Apache-2.0

// The readers of one image format with any bytes: an image in order, alone and as one of all that
// the file has, or a reason, and not a word printed.

#include "FuzzSupport.h"
#include "image/ImageHeader.h"
#include "image/LimitedPicture.h"
#include "image/PdfImage.h"
#include "image/description/Description.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::fuzz;

namespace {

constexpr qint64 kMaxPixels = 1 << 22; // Enough to find faults, few enough to go on.
constexpr qsizetype kMaxDescription = 8001;

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

/// Every page and frame; a large one ends it.
void requireAllInOrder(const QString &path, qint64 fileSize) {
    constexpr int kMax = 100;
    int number = 0;
    refuses([&] {
        forEachPicture(path, SystemCalls::system(), SourceMetadata::Strip, [&](PdfImage image) {
            requireInOrder(image, fileSize);
            if (++number == kMax || qint64(image.width) * image.height > kMaxPixels) {
                throw Error(u"Enough"_s);
            }
        });
    });
}

/// As the oldest standard for archives asks.
void requireLimited(PdfImage image, qint64 fileSize) {
    refuses([&] {
        const QString reason = limit(image, {false, false, 8, 2});
        requireInOrder(image, fileSize);
        require(!reason.isEmpty() || (!image.softMask && image.bitsPerComponent <= 8 &&
                                      image.filter != ImageFilter::Jpx));
    });
}

/// The file's name decides where the bytes do not tell their format.
void readAs(ImageKind kind, const QString &extension, Bytes bytes) {
    refuseMessages();
    const MemoryFile file(extension, bytes);
    refuses([&] {
        const ImageHeader header = readImageHeader(file.path());
        if (header.kind == kind && qint64(header.width) * header.height <= kMaxPixels) {
            PdfImage picture = toPdfImage(file.path());
            requireInOrder(picture, static_cast<qint64>(bytes.size()));
            requireLimited(std::move(picture), static_cast<qint64>(bytes.size()));
            requireAllInOrder(file.path(), static_cast<qint64>(bytes.size()));
            require(ownDescription(file.path()).size() <= kMaxDescription);
        }
    });
}

} // namespace

FUZZ_TARGET(Bmp) {
    readAs(ImageKind::Bmp, u"bmp"_s, bytes);
}

FUZZ_TARGET(Exr) {
    readAs(ImageKind::Exr, u"exr"_s, bytes);
}

FUZZ_TARGET(Gif) {
    readAs(ImageKind::Gif, u"gif"_s, bytes);
}

FUZZ_TARGET(Heif) {
    readAs(ImageKind::Heif, u"heic"_s, bytes);
}

FUZZ_TARGET(Icns) {
    readAs(ImageKind::Icns, u"icns"_s, bytes);
}

FUZZ_TARGET(Ico) {
    readAs(ImageKind::Ico, u"ico"_s, bytes);
}

FUZZ_TARGET(Jpeg) {
    readAs(ImageKind::Jpeg, u"jpeg"_s, bytes);
}

FUZZ_TARGET(Jpeg2000) {
    readAs(ImageKind::Jpeg2000, u"jpeg2000"_s, bytes);
}

FUZZ_TARGET(JpegXl) {
    readAs(ImageKind::JpegXl, u"jxl"_s, bytes);
}

FUZZ_TARGET(Png) {
    readAs(ImageKind::Png, u"png"_s, bytes);
}

FUZZ_TARGET(Psd) {
    readAs(ImageKind::Psd, u"psd"_s, bytes);
}

FUZZ_TARGET(Tga) {
    readAs(ImageKind::Tga, u"tga"_s, bytes);
}

FUZZ_TARGET(Tiff) {
    readAs(ImageKind::Tiff, u"tiff"_s, bytes);
}

FUZZ_TARGET(Webp) {
    readAs(ImageKind::Webp, u"webp"_s, bytes);
}
