// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Tiff.h"

#include "error/Error.h"

#include <algorithm>

namespace folioforge {

namespace {

struct EndRgbaImage {
    void operator()(TIFFRGBAImage *image) const { TIFFRGBAImageEnd(image); }
};

/// What is missing of pixels that libtiff could not all read: those have neither colour nor
/// opacity.
TiffDamage damageOf(const QByteArray &packed, int height) {
    const qsizetype stride = packed.size() / height;
    TiffDamage damage{0, height, false};
    for (int y = 0; y < height; ++y) {
        const QByteArrayView row = QByteArrayView(packed).sliced(y * stride, stride);
        damage.missing += std::ranges::all_of(row, [](char byte) { return byte == 0; }) ? 1 : 0;
    }
    damage.isFaulty = damage.missing == 0;
    return damage;
}

} // namespace

void readTiffAsRgb(const TiffFile &tiff, const TiffShape &shape, Raster &raster,
                   TiffDamage &damage) {
    requireEnoughData(tiff, shape, qint64(raster.width) * raster.height);
    constexpr int kGoOn = 0; // Where a strip cannot be read.
    char message[1024] = "";
    TIFFRGBAImage image = {};
    if (TIFFRGBAImageOK(tiff.handle(), message) == 0 ||
        TIFFRGBAImageBegin(&image, tiff.handle(), kGoOn, message) == 0) {
        throw Error(tiffReason(QString::fromUtf8(message)));
    }
    const std::unique_ptr<TIFFRGBAImage, EndRgbaImage> end(&image);
    image.req_orientation = image.orientation; // The page turns the picture, not the pixels.
    QByteArray packed = allocateRows(raster.height, qsizetype(raster.width) * 4);
    auto *pixels = reinterpret_cast<uint32_t *>(packed.data());
    const int before = tiff.errors();
    if (TIFFRGBAImageGet(&image, pixels, static_cast<uint32_t>(raster.width),
                         static_cast<uint32_t>(raster.height)) == 0) {
        tiff.fail();
    }
    if (tiff.errors() != before) {
        damage = damageOf(packed, raster.height);
    }
    if (damage.missing == raster.height) {
        tiff.fail();
    }
    raster.bits = 8;
    raster.color = ImageColor::Rgb;
    raster.samples = allocateRows(raster.height, raster.stride());
    if (image.alpha != 0) {
        raster.alpha = AlphaPlane{8, allocateRows(raster.height, raster.width)};
    }
    auto *color = reinterpret_cast<uchar *>(raster.samples.data());
    for (qint64 i = 0; i < qint64(raster.width) * raster.height; ++i) {
        *color++ = static_cast<uchar>(TIFFGetR(pixels[i]));
        *color++ = static_cast<uchar>(TIFFGetG(pixels[i]));
        *color++ = static_cast<uchar>(TIFFGetB(pixels[i]));
        if (raster.alpha) {
            raster.alpha->samples.data()[i] = static_cast<char>(TIFFGetA(pixels[i]));
        }
    }
    unpremultiply(raster);
}

} // namespace folioforge
