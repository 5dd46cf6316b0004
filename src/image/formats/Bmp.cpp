// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/PictureDamage.h"
#include "image/formats/Dib.h"

#include <algorithm>
#include <array>

namespace folioforge {

namespace {

constexpr qint64 kFileHeaderBytes = 14;
constexpr qint64 kPixelsAt = 10; ///< Where the file says where its pixels begin.

bool isHeaderSize(quint32 size) {
    constexpr std::array<quint32, 8> kSizes = {12, 16, 40, 52, 56, 64, 108, 124};
    return std::ranges::find(kSizes, size) != kSizes.end();
}

bool recognises(QByteArrayView head) {
    // Two letters are a weak signature: the size of the header behind them makes it a strong one.
    return head.size() >= 26 && head.startsWith("BM") &&
           isHeaderSize(littleEndianAt<quint32>(head, kFileHeaderBytes));
}

FileView dibOf(const FileView &file) {
    if (file.read(0, 2) != "BM") {
        throw Error(Reasons::tr("The file is no bitmap"));
    }
    return file.part(kFileHeaderBytes, file.size() - kFileHeaderBytes);
}

ImageHeader imageHeaderOf(const DibHeader &dib) {
    ImageHeader header;
    header.width = dib.width;
    header.height = dib.height;
    header.horizontalDpi = dib.horizontalDpi;
    header.verticalDpi = dib.verticalDpi;
    return checkedHeader(header);
}

ImageHeader readHeader(const FileView &file) {
    return imageHeaderOf(readDibHeader(dibOf(file)));
}

void requireReadable(const FileView &file, const DibHeader &dib) {
    constexpr qint64 kRunRatio = 2040; // A bit a pixel packed, or 255 pixels for two bytes.
    requirePlausible(qint64(dib.width) * dib.height, file.size(), kRunRatio);
    if (!isHeaderSize(dib.size) || dib.planes != 1 || !dib.hasKnownPixels()) {
        throw Error(Reasons::tr("The bitmap is of an unknown kind"));
    }
    if (dib.bits <= 8 && dib.colorsUsed > 1U << dib.bits) {
        throw Error(Reasons::tr("The bitmap has more colours than its pixels can name"));
    }
}

/// Where the pixels begin, from the start of the bitmap's header. A file may not know where.
qint64 pixelsOf(const FileView &file, const DibHeader &dib) {
    const qint64 stated = littleEndianAt<qint32>(file.readExactly(0, kFileHeaderBytes), kPixelsAt);
    const qint64 at = std::max(stated - kFileHeaderBytes, dib.endOfColors());
    if (kFileHeaderBytes + at >= file.size()) {
        throw fileEndsTooEarly();
    }
    return at;
}

/// One bit a pixel as grey: 0 is white, whichever of black and white is the first colour.
Raster blackAndWhite(const QByteArray &rows, const DibHeader &dib, bool isWhiteFirst) {
    Raster raster;
    raster.width = dib.width;
    raster.height = dib.height;
    raster.bits = 1;
    raster.color = ImageColor::Gray;
    raster.decode = {1, 0};
    raster.samples = allocateRows(raster.height, raster.stride());
    for (int y = 0; y < dib.height; ++y) {
        const uchar *row = dibRow(rows, dib, y);
        std::transform(row, row + raster.stride(), raster.samples.data() + y * raster.stride(),
                       [&](uchar bits) { return static_cast<char>(isWhiteFirst ? bits : ~bits); });
    }
    return raster;
}

/// A picture and how many of its rows the file lacks.
struct Pixels {
    Raster raster;
    qint64 missingRows = 0;
    bool hasGaps = false;
};

Pixels readPixels(const FileView &file, const FileView &content, const DibHeader &dib) {
    const qint64 at = pixelsOf(file, dib);
    const qint64 missing = missingDibRows(content, dib, at);
    if (dib.bits > 8) {
        ArgbImage picture = readColorDib(content, dib, at);
        picture.hasAlpha = picture.hasAlpha && picture.isVisible();
        return {rasterOf(picture), missing};
    }
    if (dib.bits == 1) {
        constexpr Argb kWhite = 0xFFFFFFFF;
        const std::vector<Argb> colors = readDibColors(content, dib);
        if (colors == std::vector{kOpaque, kWhite} || colors == std::vector{kWhite, kOpaque}) {
            return {blackAndWhite(readDibRows(content, dib, at), dib, colors[0] == kWhite),
                    missing};
        }
    }
    IndexedDib indexed = readIndexedDib(content, dib, at);
    return {rasterOf(std::move(indexed.image)), indexed.missingRows, indexed.hasGaps};
}

PdfImage toPdfImage(const FileView &file) {
    const FileView content = dibOf(file);
    const DibHeader dib = readDibHeader(content);
    const ImageHeader header = imageHeaderOf(dib);
    requireReadable(file, dib);
    Pixels pixels = readPixels(file, content, dib);
    if (pixels.missingRows >= dib.height) {
        throw fileEndsTooEarly();
    }
    PdfImage image = encodeRaster(std::move(pixels.raster), header);
    if (pixels.missingRows > 0) {
        image.warnings.push_back(cutOffPicture(pixels.missingRows, dib.height));
    } else if (pixels.hasGaps) {
        image.warnings.push_back(
            {WarningCode::PictureDamaged,
             Reasons::tr("Pixels that the file leaves out have its first colour")});
    }
    return image;
}

} // namespace

ImageFormat bmpFormat() {
    return {ImageKind::Bmp, {QLatin1StringView("bmp")}, recognises, readHeader, toPdfImage};
}

} // namespace folioforge
