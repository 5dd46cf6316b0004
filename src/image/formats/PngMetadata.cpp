// SPDX-License-Identifier: Apache-2.0

#include "image/formats/PngMetadata.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/Deflate.h"
#include "image/Exif.h"
#include "image/formats/Formats.h"

#include <libdeflate.h>

namespace folioforge {

namespace {

constexpr qint64 kSignatureBytes = 8;
constexpr qsizetype kMaxPaletteBytes = qsizetype{3} * 256;

void readImageHeaderChunk(QByteArrayView chunk, PngMetadata &metadata) {
    const auto width = bigEndianAt<quint32>(chunk, 0);
    const auto height = bigEndianAt<quint32>(chunk, 4);
    constexpr quint32 kMax = 0x7FFFFFFF;
    metadata.header.width = static_cast<int>(std::min(width, kMax));
    metadata.header.height = static_cast<int>(std::min(height, kMax));
    metadata.bits = bigEndianAt<uchar>(chunk, 8);
    metadata.colorType = bigEndianAt<uchar>(chunk, 9);
    metadata.interlaced = bigEndianAt<uchar>(chunk, 12) != 0;
    const bool smallDepth = metadata.bits == 1 || metadata.bits == 2 || metadata.bits == 4;
    const bool valid =
        metadata.colorType == PngMetadata::Gray
            ? smallDepth || metadata.bits == 8 || metadata.bits == 16
        : metadata.colorType == PngMetadata::Palette
            ? smallDepth || metadata.bits == 8
            : (metadata.colorType == PngMetadata::Rgb || metadata.hasAlphaChannel()) &&
                  (metadata.bits == 8 || metadata.bits == 16);
    if (!valid) {
        throw Error(Reasons::tr("The PNG file is damaged"));
    }
}

void readDensity(QByteArrayView chunk, PngMetadata &metadata) {
    if (bigEndianAt<uchar>(chunk, 8) == 1) {
        metadata.header.horizontalDpi = bigEndianAt<quint32>(chunk, 0) * kMetresPerInch;
        metadata.header.verticalDpi = bigEndianAt<quint32>(chunk, 4) * kMetresPerInch;
    }
}

void readProfile(QByteArrayView chunk, PngMetadata &metadata) {
    constexpr qsizetype kMaxProfileBytes = 1 << 25;
    const qsizetype nameEnd = chunk.indexOf('\0');
    if (nameEnd < 0 || nameEnd + 2 > chunk.size()) {
        return;
    }
    try {
        metadata.iccProfile = inflateUpTo(chunk.sliced(nameEnd + 2), kMaxProfileBytes);
    } catch (const Error &) {
        metadata.iccProfile.clear(); // A damaged profile is no reason to refuse the picture.
    }
}

void readChunk(QByteArrayView type, QByteArrayView chunk, PngMetadata &metadata) {
    if (type == "IHDR") {
        readImageHeaderChunk(chunk, metadata);
    } else if (type == "PLTE") {
        metadata.palette = chunk.toByteArray();
    } else if (type == "tRNS") {
        metadata.transparency = chunk.toByteArray();
    } else if (type == "pHYs" && chunk.size() >= 9) {
        readDensity(chunk, metadata);
    } else if (type == "iCCP") {
        readProfile(chunk, metadata);
    } else if (type == "acTL") {
        metadata.frames += bigEndianAt<quint32>(chunk, 0);
    } else if (type == "fcTL" && metadata.data.empty()) {
        metadata.frames -= 1; // Its first frame is the picture.
    } else if (type == "eXIf") {
        metadata.header.orientation = readExif(chunk).orientation;
    }
}

bool isMetadata(QByteArrayView type) {
    for (const char *name : {"IHDR", "PLTE", "tRNS", "pHYs", "iCCP", "eXIf", "acTL", "fcTL"}) {
        if (type == name) {
            return true;
        }
    }
    return false;
}

constexpr qint64 kLead = 8; ///< Length and type of a chunk.
constexpr qint64 kChecksum = 4;

/// Whether the chunk at byte `at` is there and as its checksum says.
bool isIntact(const FileView &file, qint64 at, qint64 length) {
    const QByteArray all = file.read(at + 4, 4 + length + kChecksum);
    return all.size() == 4 + length + kChecksum &&
           libdeflate_crc32(0, all.constData(), static_cast<size_t>(4 + length)) ==
               bigEndianAt<quint32>(all, 4 + length);
}

/// Reads the chunk at byte `at` and returns the place of the next.
qint64 readChunkAt(const FileView &file, qint64 at, PngReading reading, PngMetadata &metadata) {
    const QByteArray lead = file.read(at, kLead);
    if (lead.size() < kLead) {
        metadata.isWhole = false;
        metadata.ended = true;
        return at;
    }
    const qint64 length = bigEndianAt<quint32>(lead, 0);
    const qint64 there = std::min(length, file.size() - at - kLead);
    const QByteArray type = lead.sliced(4);
    if (reading == PngReading::Pixels && !isIntact(file, at, length)) {
        // A chunk of an unknown type may be one of rows whose type is damaged.
        if (isMetadata(type)) {
            metadata.isFaulty = true;
        } else {
            metadata.isWhole = false;
        }
    }
    if (type == "IDAT") {
        metadata.data.push_back({at + kLead, there});
    } else if (isMetadata(type) && there == length) {
        readChunk(type, file.readExactly(at + kLead, length), metadata);
    }
    metadata.ended = type == "IEND";
    return at + kLead + length + kChecksum;
}

} // namespace

PngMetadata readPngMetadata(const FileView &file, PngReading reading) {
    PngMetadata metadata;
    // Some writers put the orientation behind the rows, so all chunks are read.
    for (qint64 at = kSignatureBytes; !metadata.ended;) {
        at = readChunkAt(file, at, reading, metadata);
    }
    if (metadata.bits == 0 || metadata.data.empty()) {
        throw Error(Reasons::tr("The PNG file holds no picture"));
    }
    if (metadata.colorType == PngMetadata::Palette &&
        (metadata.palette.isEmpty() || metadata.palette.size() % 3 != 0 ||
         metadata.palette.size() > kMaxPaletteBytes)) {
        throw Error(Reasons::tr("The PNG file has no palette"));
    }
    metadata.header = checkedHeader(metadata.header);
    return metadata;
}

int pngPixelBits(QByteArrayView head) {
    constexpr qsizetype kHeaderChunkAt = kSignatureBytes + 8;
    PngMetadata metadata;
    readImageHeaderChunk(head.sliced(std::min(head.size(), kHeaderChunkAt)), metadata);
    return metadata.bits * metadata.channels();
}

} // namespace folioforge
