// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/PictureDamage.h"
#include "image/formats/ArgbImage.h"

#include <algorithm>
#include <span>

namespace folioforge {

namespace {

enum ImageType : uchar { Mapped = 1, TrueColor = 2, BlackAndWhite = 3, RunLength = 8 };

constexpr qint64 kHeaderBytes = 18;
constexpr int kRightToLeft = 0x10;
constexpr int kTopToBottom = 0x20;

/// The header (Truevision TGA 2.0, field numbers 1 to 5).
struct TgaHeader {
    int width = 0;
    int height = 0;
    int type = 0; ///< Without the run-length bit.
    bool runLength = false;
    int pixelBits = 0;
    int alphaBits = 0;
    int descriptor = 0;
    int mapFirst = 0;
    int mapLength = 0;
    int mapEntryBits = 0;
    qint64 mapOffset = 0;
    qint64 dataOffset = 0;

    [[nodiscard]] int pixelBytes() const { return (pixelBits + 7) / 8; }
    [[nodiscard]] int mapEntryBytes() const { return (mapEntryBits + 7) / 8; }
};

bool isColorDepth(int bits) {
    return bits == 15 || bits == 16 || bits == 24 || bits == 32;
}

void requireKnown(const TgaHeader &tga) {
    const bool isMapKnown = isColorDepth(tga.mapEntryBits) || tga.mapEntryBits == 8;
    const bool isOneBit = tga.pixelBits == 1 && !tga.runLength; // Rows padded to whole bytes.
    const bool known =
        tga.type == Mapped
            ? (tga.pixelBits == 8 || tga.pixelBits == 16) && isMapKnown && tga.mapLength > 0
        : tga.type == TrueColor
            ? isColorDepth(tga.pixelBits)
            : tga.type == BlackAndWhite && (tga.pixelBits == 8 || tga.pixelBits == 16 || isOneBit);
    if (!known || tga.width == 0 || tga.height == 0) {
        throw Error(Reasons::tr("The file is no TGA image that can be read"));
    }
}

TgaHeader readTgaHeader(const FileView &file) {
    const QByteArray head = file.readExactly(0, kHeaderBytes);
    TgaHeader tga;
    const auto byteAt = [&](int at) { return int(bigEndianAt<uchar>(head, at)); };
    tga.type = byteAt(2) & ~RunLength;
    tga.runLength = (byteAt(2) & RunLength) != 0;
    tga.mapFirst = littleEndianAt<quint16>(head, 3);
    tga.mapLength = byteAt(1) == 1 ? littleEndianAt<quint16>(head, 5) : 0;
    tga.mapEntryBits = byteAt(7);
    tga.width = littleEndianAt<quint16>(head, 12);
    tga.height = littleEndianAt<quint16>(head, 14);
    tga.pixelBits = byteAt(16);
    tga.descriptor = byteAt(17);
    tga.alphaBits = tga.descriptor & 0x0F;
    tga.mapOffset = kHeaderBytes + byteAt(0);
    tga.dataOffset = tga.mapOffset + qint64(tga.mapLength) * tga.mapEntryBytes();
    requireKnown(tga);
    return tga;
}

/// Run-length packets: a count byte, high bit for one pixel repeated. A packet may run over the end
/// of a row. Gives what the file has of `size` bytes.
QByteArray expandRuns(QByteArrayView packed, qsizetype size, int pixelBytes) {
    QByteArray out(size, Qt::Uninitialized);
    char *const target = out.data();
    qsizetype done = 0;
    qsizetype at = 0;
    while (done < size && at < packed.size()) {
        const int count = bigEndianAt<uchar>(packed, at++);
        const qsizetype pixels = (count & 0x7F) + 1;
        const bool repeated = (count & 0x80) != 0;
        const qsizetype source =
            std::min(repeated ? pixelBytes : pixels * pixelBytes, packed.size() - at);
        if (repeated && source < pixelBytes) {
            break;
        }
        const qsizetype wanted = std::min(repeated ? pixels * pixelBytes : source, size - done);
        const char *const pixel = packed.data() + at;
        for (qsizetype i = 0; i < wanted; i += source) {
            std::copy_n(pixel, std::min(source, wanted - i), target + done + i);
        }
        at += source;
        done += wanted;
    }
    out.truncate(done);
    return out;
}

/// Pixels of a bit each as bytes.
QByteArray expandBits(const QByteArray &rows, const TgaHeader &tga) {
    const qsizetype stride = rowBytes(tga.width, 1, 1);
    QByteArray pixels;
    for (qsizetype at = 0; at + stride <= rows.size(); at += stride) {
        const auto *row = reinterpret_cast<const uchar *>(rows.constData()) + at;
        for (int x = 0; x < tga.width; ++x) {
            pixels.append(packedSample(row, x, 1) == 1 ? '\xFF' : '\0');
        }
    }
    return pixels;
}

/// As many of the pixels' bytes as the file has.
QByteArray readPixels(const FileView &file, const TgaHeader &tga) {
    const qint64 size = qint64(tga.width) * tga.height * tga.pixelBytes();
    // 128 pixels of a run take one byte and a pixel. Of a file that was cut off, what is there is
    // shown.
    requirePlausible(size, file.size(), 128);
    if (tga.pixelBits == 1) {
        return expandBits(file.read(tga.dataOffset, tga.height * rowBytes(tga.width, 1, 1)), tga);
    }
    if (!tga.runLength) {
        return file.read(tga.dataOffset, size);
    }
    return expandRuns(file.read(tga.dataOffset, file.size()), size, tga.pixelBytes());
}

/// A colour as the file stores it: blue, green, red and opacity, or five bits of each. The fourth
/// byte is opacity though the header declares none: few writers of 32 bits do.
Argb colorAt(const uchar *bytes, int bits, int alphaBits) {
    if (bits == 8) {
        return argb(bytes[0], bytes[0], bytes[0]);
    }
    if (bits == 15 || bits == 16) {
        const int value = bytes[0] | (bytes[1] << 8);
        const auto wide = [](int five) { return (five << 3) | (five >> 2); };
        const bool isOpaque = alphaBits == 0 || bits == 15 || (value & 0x8000) != 0;
        const Argb color =
            argb(wide((value >> 10) & 31), wide((value >> 5) & 31), wide(value & 31));
        return isOpaque ? color : color & ~kOpaque;
    }
    const Argb color = argb(bytes[2], bytes[1], bytes[0]);
    return bits == 32 ? (color & ~kOpaque) | Argb(bytes[3]) << 24 : color;
}

std::vector<Argb> readColorMap(const FileView &file, const TgaHeader &tga) {
    const int step = tga.mapEntryBytes();
    const QByteArray bytes = file.readExactly(tga.mapOffset, qint64(tga.mapLength) * step);
    const auto *entry = reinterpret_cast<const uchar *>(bytes.constData());
    std::vector<Argb> map(static_cast<size_t>(tga.mapLength));
    for (Argb &color : map) {
        color = colorAt(entry, tga.mapEntryBits, tga.alphaBits);
        entry += step;
    }
    return map;
}

/// Calls draw(source, y) for each row as the file stores it and its place from the top.
template<typename Draw>
void forEachRow(const QByteArray &pixels, const TgaHeader &tga, const Draw &draw) {
    const auto *source = reinterpret_cast<const uchar *>(pixels.constData());
    const bool isFromTop = (tga.descriptor & kTopToBottom) != 0;
    for (int row = 0; row < tga.height; ++row, source += qint64(tga.width) * tga.pixelBytes()) {
        draw(source, isFromTop ? row : tga.height - 1 - row);
    }
}

/// Turns a row round that the file stores from right to left.
template<typename Pixel> void turnRow(std::span<Pixel> row, const TgaHeader &tga) {
    if ((tga.descriptor & kRightToLeft) != 0) {
        std::ranges::reverse(row);
    }
}

Raster readGray(const QByteArray &pixels, const TgaHeader &tga) {
    const int step = tga.pixelBytes();
    Raster raster;
    raster.width = tga.width;
    raster.height = tga.height;
    raster.color = ImageColor::Gray;
    raster.samples = allocateRows(raster.height, raster.stride());
    if (step == 2) {
        raster.alpha = AlphaPlane{8, allocateRows(raster.height, raster.width)};
    }
    const auto take = [&](QByteArray &plane, const uchar *source, int y) {
        const std::span row(plane.data() + qint64(y) * tga.width, static_cast<size_t>(tga.width));
        for (char &sample : row) {
            sample = static_cast<char>(*source);
            source += step;
        }
        turnRow(row, tga);
    };
    forEachRow(pixels, tga, [&](const uchar *source, int y) {
        take(raster.samples, source, y);
        if (raster.alpha) {
            take(raster.alpha->samples, source + 1, y);
        }
    });
    return raster;
}

/// Numbers of colours that the map lacks are black.
Argb mappedColor(const uchar *source, const TgaHeader &tga, const std::vector<Argb> &map) {
    const int number = tga.pixelBytes() == 1 ? source[0] : source[0] | (source[1] << 8);
    const int index = number - tga.mapFirst;
    return index >= 0 && index < int(map.size()) ? map[static_cast<size_t>(index)] : kOpaque;
}

ArgbImage readColor(const QByteArray &pixels, const TgaHeader &tga, const std::vector<Argb> &map) {
    ArgbImage image{tga.width, tga.height, true, {}};
    image.pixels.resize(static_cast<size_t>(tga.width) * static_cast<size_t>(tga.height));
    forEachRow(pixels, tga, [&](const uchar *source, int y) {
        const std::span row(image.row(y), static_cast<size_t>(tga.width));
        for (Argb &pixel : row) {
            pixel = tga.type == Mapped ? mappedColor(source, tga, map)
                                       : colorAt(source, tga.pixelBits, tga.alphaBits);
            source += tga.pixelBytes();
        }
        turnRow(row, tga);
    });
    return image;
}

/// Some writers have room for opacity and leave it zero throughout: such a picture is opaque.
Raster readRaster(const FileView &file, const QByteArray &pixels, const TgaHeader &tga) {
    if (tga.type == BlackAndWhite) {
        Raster raster = readGray(pixels, tga);
        if (raster.alpha && raster.alpha->samples.count('\0') == raster.alpha->samples.size()) {
            raster.alpha.reset();
        }
        return raster;
    }
    ArgbImage image =
        readColor(pixels, tga, tga.type == Mapped ? readColorMap(file, tga) : std::vector<Argb>());
    image.hasAlpha = image.isVisible();
    return rasterOf(image);
}

/// The format has neither density nor orientation.
ImageHeader imageHeaderOf(const TgaHeader &tga) {
    ImageHeader header;
    header.width = tga.width;
    header.height = tga.height;
    return checkedHeader(header);
}

ImageHeader readHeader(const FileView &file) {
    return imageHeaderOf(readTgaHeader(file));
}

PdfImage toPdfImage(const FileView &file) {
    const TgaHeader tga = readTgaHeader(file);
    const ImageHeader header = imageHeaderOf(tga);
    const qint64 row = qint64(tga.width) * tga.pixelBytes();
    QByteArray pixels = readPixels(file, tga);
    const qint64 missing = tga.height - pixels.size() / row;
    if (missing == tga.height) {
        throw fileEndsTooEarly();
    }
    pixels.resize(row * tga.height, '\0');
    PdfImage image = encodeRaster(readRaster(file, pixels, tga), header);
    if (missing > 0) {
        image.warnings.push_back(cutOffPicture(missing, tga.height));
    }
    return image;
}

} // namespace

ImageFormat tgaFormat() {
    // The signature of version 2 stands at the end of the file, and version 1 has none.
    return {ImageKind::Tga, {QLatin1StringView("tga")}, nullptr, readHeader, toPdfImage};
}

} // namespace folioforge
