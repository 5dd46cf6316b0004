// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Tiff.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "image/Parallel.h"

#include <algorithm>
#include <cstring>
#include <mutex>

namespace folioforge {

namespace {

/// The ratio that no data of a compression exceeds.
qint64 maxRatio(int compression) {
    switch (compression) {
    case COMPRESSION_NONE: // Of a file that was cut off, what is there is shown.
    case COMPRESSION_PACKBITS:
        return 64;
    case COMPRESSION_ADOBE_DEFLATE:
    case COMPRESSION_DEFLATE:
        return 1040;
    case COMPRESSION_LZW:
        return 3000;
    default: // Fax data may give a whole row for a bit, but has one bit a pixel.
        return 100'000;
    }
}

void readStrips(const TiffFile &tiff, const TiffShape &shape, int plane, TiffPlane &target,
                TiffDamage &damage) {
    uint32_t rowsPerStrip = 0;
    TIFFGetFieldDefaulted(tiff.handle(), TIFFTAG_ROWSPERSTRIP, &rowsPerStrip);
    const int step = static_cast<int>(std::clamp<uint32_t>(rowsPerStrip, 1, shape.height));
    const int strips = (shape.height + step - 1) / step;
    char *rows = target.rows.data();
    std::mutex mutex;
    forEachBand(strips, step * target.stride, [&](int first, int end) {
        TiffReader reader(tiff, shape, plane);
        for (int y = first * step; y < std::min(end * step, shape.height); y += step) {
            reader.readStrip(y, std::min(step, shape.height - y), target.stride,
                             rows + y * target.stride);
        }
        const std::scoped_lock lock(mutex);
        damage.add(reader.damage());
    });
}

void readTiles(const TiffFile &tiff, const TiffShape &shape, int plane, TiffPlane &target,
               TiffDamage &damage) {
    TiffReader reader(tiff, shape, plane);
    TIFF *tif = reader.tiff().handle();
    uint32_t tileWidth = 0;
    uint32_t tileHeight = 0;
    TIFFGetField(tif, TIFFTAG_TILEWIDTH, &tileWidth);
    TIFFGetField(tif, TIFFTAG_TILELENGTH, &tileHeight);
    const tmsize_t tileRow = TIFFTileRowSize(tif);
    const tmsize_t tileSize = TIFFTileSize(tif);
    if (tileWidth == 0 || tileHeight == 0 || tileRow <= 0 || tileSize <= 0 ||
        tileSize > qint64(kMaxImagePixels) * 8) {
        tiff.fail();
    }
    QByteArray tile = allocateRows(1, tileSize);
    for (qint64 y = 0; y < shape.height; y += tileHeight) {
        for (qint64 x = 0; x < shape.width; x += tileWidth) {
            reader.readTile(x, y, tileSize, tile.data());
            const qsizetype left = x / tileWidth * tileRow;
            const qsizetype bytes = std::min<qsizetype>(tileRow, target.stride - left);
            const qint64 rows = std::min<qint64>(tileHeight, shape.height - y);
            for (qint64 row = 0; bytes > 0 && row < rows; ++row) {
                std::memcpy(target.rows.data() + (y + row) * target.stride + left,
                            tile.constData() + row * tileRow, static_cast<size_t>(bytes));
            }
        }
    }
    damage.add(reader.damage());
}

} // namespace

void requireEnoughData(const TiffFile &tiff, const TiffShape &shape, qint64 raw) {
    if (TIFFIsCODECConfigured(static_cast<uint16_t>(shape.compression)) == 0) {
        throw Error(Reasons::tr("The TIFF file cannot be read: its compression is not supported"));
    }
    const bool tiled = TIFFIsTiled(tiff.handle()) != 0;
    const uint32_t count =
        tiled ? TIFFNumberOfTiles(tiff.handle()) : TIFFNumberOfStrips(tiff.handle());
    const qint64 fileSize = tiff.file().size();
    qint64 compressed = 0;
    // A file has room for no more strips than it has bytes.
    for (uint32_t i = 0; i < std::min<qint64>(count, fileSize); ++i) {
        const auto bytes = TIFFGetStrileByteCount(tiff.handle(), i);
        compressed += static_cast<qint64>(std::min<quint64>(bytes, static_cast<quint64>(fileSize)));
    }
    requirePlausible(raw, compressed, maxRatio(shape.compression));
}

std::vector<TiffPlane> readTiffPlanes(const TiffFile &tiff, const TiffShape &shape,
                                      TiffDamage &damage) {
    const bool separate = shape.planar == PLANARCONFIG_SEPARATE;
    const int planes = separate ? shape.samples : 1;
    const qsizetype stride = rowBytes(shape.width, separate ? 1 : shape.samples, shape.bits);
    requireEnoughData(tiff, shape, qint64(planes) * stride * shape.height);
    if (TIFFIsTiled(tiff.handle()) == 0 &&
        TIFFScanlineSize(TiffReader(tiff, shape, 0).tiff().handle()) != stride) {
        tiff.fail(); // Subsampled rows have another form, which decodeTiff() keeps from here.
    }
    std::vector<TiffPlane> result;
    for (int plane = 0; plane < planes; ++plane) {
        TiffPlane target{allocateRows(shape.height, stride), stride};
        if (TIFFIsTiled(tiff.handle()) != 0) {
            readTiles(tiff, shape, plane, target, damage);
        } else {
            readStrips(tiff, shape, plane, target, damage);
        }
        result.push_back(std::move(target));
    }
    if (damage.missing == damage.all) {
        tiff.fail();
    }
    return result;
}

} // namespace folioforge
