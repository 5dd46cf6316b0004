// SPDX-License-Identifier: Apache-2.0

#include "image/formats/PngMetadata.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/Deflate.h"
#include "image/Exif.h"
#include "image/formats/Chunks.h"
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

/// Whether the chunk is there and as its checksum says.
bool isIntact(const FileView &file, const Chunk &chunk) {
    constexpr qint64 kType = 4;
    constexpr qint64 kChecksum = 4;
    const QByteArray all = file.read(chunk.at - kType, kType + chunk.length + kChecksum);
    return all.size() == kType + chunk.length + kChecksum &&
           libdeflate_crc32(0, all.constData(), static_cast<size_t>(kType + chunk.length)) ==
               bigEndianAt<quint32>(all, kType + chunk.length);
}

void takeChunk(const FileView &file, const Chunk &chunk, PngReading reading,
               PngMetadata &metadata) {
    if (reading == PngReading::Pixels && !isIntact(file, chunk)) {
        // A chunk of an unknown type may be one of rows whose type is damaged.
        if (isMetadata(chunk.type)) {
            metadata.isFaulty = true;
        } else {
            metadata.isWhole = false;
        }
    }
    const qint64 there = std::min(chunk.length, file.size() - chunk.at);
    if (chunk.type == "IDAT") {
        metadata.data.push_back({chunk.at, there});
    } else if (isMetadata(chunk.type) && there == chunk.length) {
        readChunk(chunk.type, file.readExactly(chunk.at, chunk.length), metadata);
    }
}

} // namespace

PngMetadata readPngMetadata(const FileView &file, PngReading reading) {
    PngMetadata metadata;
    // Some writers put the orientation behind the rows, so all chunks are read.
    bool ended = false;
    PngChunks chunks(file);
    while (const auto chunk = chunks.next()) {
        takeChunk(file, *chunk, reading, metadata);
        ended = chunk->type == "IEND";
    }
    metadata.isWhole = metadata.isWhole && ended;
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
