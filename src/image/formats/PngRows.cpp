// SPDX-License-Identifier: Apache-2.0

#include "image/formats/PngMetadata.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/Deflate.h"
#include "image/PictureDamage.h"
#include "image/RowFilter.h"

#include <algorithm>

namespace folioforge {

namespace {

/// No deflate stream is smaller than its data by more than this.
constexpr qint64 kDeflateRatio = 1040;

QByteArray compressedRows(const FileView &file, const PngMetadata &metadata) {
    QByteArray compressed;
    for (const FileSlice &slice : metadata.data) {
        compressed += file.readExactly(slice.offset, slice.length);
    }
    return compressed;
}

/// How many of the picture's rows are not there, whole or in part, where `bytes` of `size` are. The
/// first row of an interlaced picture already shows something.
qint64 missingRows(const PngMetadata &metadata, qsizetype bytes, qsizetype size) {
    if (bytes == size) {
        return 0;
    }
    const qint64 height = metadata.header.height;
    const qint64 missing = std::max<qint64>(height - bytes / (size / height), 1);
    const bool shows = metadata.interlaced && bytes >= firstRowBytes(metadata.shape());
    return shows ? std::min(missing, std::max<qint64>(height - 1, 1)) : missing;
}

/// As many of the filtered rows as can be unpacked, zeros for the rest, and what is said of them.
QByteArray inflateDamagedRows(const QByteArray &compressed, const PngMetadata &metadata,
                              qsizetype size, Warnings &warnings) {
    auto [rows, isFaulty] = inflatePartly(compressed, size);
    const qint64 height = metadata.header.height;
    const qint64 missing = missingRows(metadata, rows.size(), size);
    if (missing >= height) {
        throw Error(Reasons::tr("The PNG file is damaged"));
    }
    if (missing > 0) {
        warnings.push_back(cutOffPicture(missing, height));
    }
    if (isFaulty) {
        warnings.push_back(faultyPicture());
    }
    rows.resize(size, '\0');
    if (!metadata.interlaced) {
        dropUnknownFilters(rows, metadata.stride() + 1);
    }
    return rows;
}

/// Whether `first` begins a zlib stream (RFC 1950, 2.2).
bool beginsZlib(QByteArrayView first) {
    constexpr int kDeflate = 8;
    constexpr int kMaxWindow = 7;
    constexpr int kDictionary = 0x20;
    const auto method = bigEndianAt<uchar>(first, 0);
    const auto flags = bigEndianAt<uchar>(first, 1);
    return (method & 0x0F) == kDeflate && method >> 4 <= kMaxWindow && (flags & kDictionary) == 0 &&
           (method << 8 | flags) % 31 == 0;
}

} // namespace

bool mayLackPngRows(const FileView &file, const PngMetadata &metadata) {
    qint64 bytes = 0;
    for (const FileSlice &slice : metadata.data) {
        bytes += slice.length;
    }
    const qint64 size = qint64(metadata.header.height) * (metadata.stride() + 1);
    if (bytes < size / kDeflateRatio || !beginsZlib(file.read(metadata.data.front().offset, 2))) {
        return true;
    }
    // Writers fill a buffer of a round size again and again, and the last time in part.
    constexpr qint64 kRound = 1024;
    const qint64 last = metadata.data.back().length;
    return last % kRound == 0 ||
           (metadata.data.size() > 1 && last == metadata.data[metadata.data.size() - 2].length);
}

QByteArray inflatePngRows(const FileView &file, const PngMetadata &metadata, qsizetype size,
                          Warnings &warnings) {
    const QByteArray compressed = compressedRows(file, metadata);
    requirePlausible(size, compressed.size(), kDeflateRatio);
    if (metadata.isWhole) {
        try {
            return inflateBytes(compressed, size);
        } catch (const Error &) {
            // The checksums of the chunks are right, and what they hold was damaged before.
        }
    }
    return inflateDamagedRows(compressed, metadata, size, warnings);
}

} // namespace folioforge
