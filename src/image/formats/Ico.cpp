// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/PictureDamage.h"
#include "image/formats/Dib.h"
#include "image/formats/IconPictures.h"

#include <algorithm>
#include <optional>

namespace folioforge {

namespace {

/// A frame: a PNG file, or a bitmap without a file header whose height counts its colours and,
/// below them, a bit for each pixel that is not there.
struct Frame {
    ImageHeader header;
    int bits = 0;
    FileView content;
    std::optional<DibHeader> bitmap; ///< None for a PNG file.
};

Frame frameOf(const FileView &content) {
    const QByteArray head = content.read(0, kSniffedBytes);
    if (pngFormat().recognises(head)) {
        return {pngFormat().readHeader(content), pngPixelBits(head), content, std::nullopt};
    }
    constexpr quint32 kMinHeader = 40;
    DibHeader bitmap = readDibHeader(content);
    bitmap.height /= 2;
    if (bitmap.size < kMinHeader || bitmap.compression != DibHeader::Plain || bitmap.isTopDown ||
        !bitmap.hasKnownPixels()) {
        throw Error(Reasons::tr("The icon's picture is of an unknown kind"));
    }
    ImageHeader header;
    header.width = bitmap.width;
    header.height = bitmap.height;
    return {checkedHeader(header), bitmap.bits, content, bitmap};
}

/// The frame to show, and what is said of the others.
struct Choice {
    Frame frame;
    Warnings warnings;
};

Choice largestFrame(const FileView &file) {
    constexpr qint64 kDirectory = 6;
    constexpr qint64 kEntryBytes = 16;
    // The largest icons hold some 30 frames. All of a hostile one's may lie in one another, and
    // each is read to its end.
    constexpr int kMaxFrames = 100;
    const int stated = littleEndianAt<quint16>(file.readExactly(0, kDirectory), 4);
    const int count = std::min(stated, kMaxFrames);
    const QByteArray entries = file.read(kDirectory, count * kEntryBytes);
    LargestPicture<Frame> largest;
    for (qsizetype at = 0; at + kEntryBytes <= entries.size(); at += kEntryBytes) {
        const qint64 start = littleEndianAt<quint32>(entries, at + 12);
        largest.offer(
            [&] { return std::optional(frameOf(file.part(start, file.size() - start))); });
    }
    return {largest.picture(), otherPictures(stated, count - largest.readable())};
}

/// Opacity of all or nothing by the bits below the colours; full where the file ends before them.
void applyMask(const FileView &content, DibHeader mask, qint64 at, ArgbImage &picture) {
    mask.bits = 1;
    const bool isThere = at + mask.stride() * mask.height <= content.size();
    const QByteArray rows = isThere ? readDibRows(content, mask, at) : QByteArray();
    for (int y = 0; y < picture.height; ++y) {
        Argb *row = picture.row(y);
        for (int x = 0; x < picture.width; ++x) {
            const bool isOut = isThere && packedSample(dibRow(rows, mask, y), x, 1) == 1;
            row[x] = isOut ? row[x] & ~kOpaque : row[x] | kOpaque;
        }
    }
}

ArgbImage argbOf(const IndexedImage &image) {
    ArgbImage picture{image.width, image.height, true, {}};
    for (const char value : image.indexes) {
        const auto index = static_cast<uchar>(value);
        picture.pixels.push_back(index < image.colors.size() ? image.colors[index] : kOpaque);
    }
    return picture;
}

ArgbImage readBitmap(const FileView &content, DibHeader bitmap) {
    const qint64 at = bitmap.endOfColors();
    const qint64 end = at + bitmap.stride() * bitmap.height;
    bitmap.masks[3] = bitmap.bits == 32 ? kOpaque : 0;
    ArgbImage picture = bitmap.bits > 8 ? readColorDib(content, bitmap, at)
                                        : argbOf(readIndexedDib(content, bitmap, at).image);
    picture.hasAlpha = true;
    if (bitmap.bits < 32 || !picture.isVisible()) {
        applyMask(content, bitmap, end, picture);
    }
    return picture;
}

bool recognises(QByteArrayView head) {
    // Cursors begin with 0 0 2 0, as TGA files do, and are not recognised.
    return head.startsWith(QByteArrayView("\0\0\1\0", 4));
}

ImageHeader readHeader(const FileView &file) {
    return largestFrame(file).frame.header;
}

/// Whether the file ends before the mask of a bitmap whose pixels hold no opacity.
bool lacksMask(const FileView &content, DibHeader bitmap) {
    constexpr int kBitsWithOpacity = 32;
    if (bitmap.bits == kBitsWithOpacity) {
        return false;
    }
    const qint64 end = bitmap.endOfColors() + bitmap.stride() * bitmap.height;
    bitmap.bits = 1;
    return end + bitmap.stride() * bitmap.height > content.size();
}

PdfImage imageOf(const Frame &frame) {
    if (!frame.bitmap) {
        return pngFormat().toPdfImage(frame.content);
    }
    const DibHeader &bitmap = *frame.bitmap;
    const qint64 missing = missingDibRows(frame.content, bitmap, bitmap.endOfColors());
    if (missing == bitmap.height) {
        throw fileEndsTooEarly();
    }
    requirePlausible(bitmap.stride() * bitmap.height, frame.content.size(), 64);
    PdfImage image = encodeRaster(rasterOf(readBitmap(frame.content, bitmap)), frame.header);
    if (missing > 0) {
        image.warnings.push_back(cutOffPicture(missing, bitmap.height));
    } else if (lacksMask(frame.content, bitmap)) {
        image.warnings.push_back(withoutMask());
    }
    return image;
}

PdfImage toPdfImage(const FileView &file) {
    const auto [frame, warnings] = largestFrame(file);
    PdfImage image = imageOf(frame);
    image.warnings.insert(image.warnings.end(), warnings.begin(), warnings.end());
    return image;
}

} // namespace

ImageFormat icoFormat() {
    return {ImageKind::Ico, {QLatin1StringView("ico")}, recognises, readHeader, toPdfImage};
}

} // namespace folioforge
