// SPDX-License-Identifier: Apache-2.0

#include "image/PdfImage.h"

#include "image/ImageFormat.h"

namespace folioforge {

namespace {

void leaveOut(const std::vector<FileSlice> &parts, PdfImage &image) {
    image.slices = slicesWithout(image.slices, parts);
    // A copy of the file's bytes begins as the file does.
    for (auto part = parts.rbegin(); part != parts.rend() && !image.data.isEmpty(); ++part) {
        image.data.remove(part->offset, part->length);
    }
}

} // namespace

std::vector<FileSlice> slicesWithout(const std::vector<FileSlice> &slices,
                                     const std::vector<FileSlice> &parts) {
    std::vector<FileSlice> left;
    for (const FileSlice &slice : slices) {
        qint64 at = slice.offset;
        const qint64 end = at + slice.length;
        const auto keepUpTo = [&](qint64 next) {
            if (next > at) {
                left.push_back({at, next - at});
            }
        };
        for (const FileSlice &part : parts) {
            if (part.offset + part.length > at && part.offset < end) {
                keepUpTo(part.offset);
                at = part.offset + part.length;
            }
        }
        keepUpTo(end);
    }
    return left;
}

PdfImage toPdfImage(const QString &path, SystemCalls &calls, SourceMetadata metadata) {
    return readImageFile(path, calls, [metadata](const auto &file, const ImageFormat &format) {
        PdfImage image = format.toPdfImage(file->view());
        if (metadata == SourceMetadata::Strip && image.embeddedAs == EmbeddedAs::OwnBytes &&
            format.metadata != nullptr) {
            leaveOut(format.metadata(file->view()), image);
        }
        file->requireUnchanged();
        image.header.kind = format.kind;
        if (!image.slices.empty()) {
            image.source = file;
        }
        return image;
    });
}

} // namespace folioforge
