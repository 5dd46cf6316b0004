// SPDX-License-Identifier: Apache-2.0

#include "image/formats/PngMetadata.h"

#include "error/Error.h"
#include "image/Deflate.h"
#include "image/PictureDamage.h"

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

/// Damaged rows may claim a filter that does not exist; they then have none.
void dropUnknownFilters(QByteArray &filtered, qsizetype rowBytes) {
    constexpr char kMaxFilter = 4;
    for (qsizetype at = 0; at < filtered.size(); at += rowBytes) {
        if (filtered[at] < 0 || filtered[at] > kMaxFilter) {
            filtered[at] = '\0';
        }
    }
}

/// As many of the filtered rows as can be unpacked, zeros for the rest, and what is said of them.
QByteArray inflateDamagedRows(const QByteArray &compressed, const PngMetadata &metadata,
                              qsizetype size, Warnings &warnings) {
    auto [rows, isFaulty] = inflatePartly(compressed, size);
    const qint64 height = metadata.header.height;
    const qint64 missing =
        rows.size() == size ? 0 : std::max<qint64>(height - rows.size() / (size / height), 1);
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
