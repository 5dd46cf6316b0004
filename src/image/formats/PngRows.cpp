// SPDX-License-Identifier: Apache-2.0

#include "image/formats/PngMetadata.h"

#include "error/Error.h"
#include "image/Deflate.h"
#include "image/PictureDamage.h"
#include "image/RowFilter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

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
        throw Error(u"The PNG file is damaged"_s);
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

} // namespace

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
