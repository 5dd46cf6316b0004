// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Tiff.h"

#include "error/Error.h"
#include "error/Reasons.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace folioforge {

namespace {

ImageColor colorOf(const TiffShape &shape) {
    switch (shape.photometric) {
    case PHOTOMETRIC_MINISWHITE:
    case PHOTOMETRIC_MINISBLACK:
        return ImageColor::Gray;
    case PHOTOMETRIC_PALETTE:
        return ImageColor::Indexed;
    case PHOTOMETRIC_SEPARATED:
        return ImageColor::Cmyk;
    case PHOTOMETRIC_CIELAB:
    case PHOTOMETRIC_ICCLAB:
        return ImageColor::Lab;
    default:
        return ImageColor::Rgb;
    }
}

/// Whether the samples are those of a PDF once they are unpacked; the rest (subsampled or
/// logarithmic colour) goes through libtiff's own conversion to RGB.
bool hasSamplesOfPdf(const TiffFile &tiff, const TiffShape &shape) {
    if (shape.samples < channelCount(colorOf(shape)) || shape.bits < 1) {
        return false;
    }
    const bool isFloat = shape.sampleFormat == SAMPLEFORMAT_IEEEFP;
    const bool isDepthOfNumbers = shape.bits <= 16 || shape.bits == 32 ||
                                  (shape.bits == 24 && !isFloat) || (shape.bits == 64 && isFloat);
    switch (shape.photometric) {
    case PHOTOMETRIC_PALETTE:
        return shape.bits <= 8;
    case PHOTOMETRIC_SEPARATED:
        return isDepthOfNumbers && tiff.number(TIFFTAG_INKSET, INKSET_CMYK) == INKSET_CMYK;
    case PHOTOMETRIC_CIELAB:
    case PHOTOMETRIC_ICCLAB:
        return shape.bits == 8 || shape.bits == 16;
    case PHOTOMETRIC_YCBCR:
        return shape.compression == COMPRESSION_JPEG && shape.bits == 8;
    case PHOTOMETRIC_MINISWHITE:
    case PHOTOMETRIC_MINISBLACK:
    case PHOTOMETRIC_RGB:
        return isDepthOfNumbers;
    default:
        return false;
    }
}

bool isPdfDepth(int bits) {
    return bits == 1 || bits == 2 || bits == 4 || bits == 8 || bits == 16;
}

/// The file's rows as they are, in the byte order of a PDF.
void takeRows(TiffPlane &plane, const TiffShape &shape, Raster &raster) {
    raster.bits = shape.bits;
    raster.samples = std::move(plane.rows);
    if (shape.bits == 16) {
        auto *samples = reinterpret_cast<quint16 *>(raster.samples.data());
        qToBigEndian<quint16>(samples, raster.samples.size() / 2, samples);
    }
}

QByteArray paletteOf(const TiffFile &tiff, int bits) {
    std::array<const uint16_t *, 3> maps = {};
    if (TIFFGetField(tiff.handle(), TIFFTAG_COLORMAP, &maps[0], &maps[1], &maps[2]) != 1) {
        throw Error(Reasons::tr("The TIFF file has no palette"));
    }
    const int colors = 1 << std::min(bits, 8);
    // Some writers put 8-bit colours where 16-bit ones belong.
    const bool wide = std::ranges::any_of(maps, [&](const uint16_t *map) {
        return std::any_of(map, map + colors, [](uint16_t value) { return value > 0xFF; });
    });
    QByteArray palette;
    for (int i = 0; i < colors; ++i) {
        for (const uint16_t *map : maps) {
            palette.append(static_cast<char>(wide ? map[i] >> 8 : map[i]));
        }
    }
    return palette;
}

/// TIFF counts a and b from zero in two's complement, a PDF from -128 up.
void shiftLabAxes(Raster &raster) {
    const qsizetype bytes = raster.bits / 8;
    for (qsizetype at = 0; at + 3 * bytes <= raster.samples.size(); at += 3 * bytes) {
        for (const int axis : {1, 2}) {
            char &high = raster.samples.data()[at + axis * bytes];
            high = static_cast<char>(high ^ '\x80');
        }
    }
}

QByteArray profileOf(const TiffFile &tiff) {
    uint32_t size = 0;
    const void *bytes = nullptr;
    if (TIFFGetField(tiff.handle(), TIFFTAG_ICCPROFILE, &size, &bytes) != 1) {
        return {};
    }
    return {static_cast<const char *>(bytes), static_cast<qsizetype>(size)};
}

TiffAlpha alphaSampleOf(const TiffFile &tiff, int colors, int samples) {
    uint16_t count = 0;
    const uint16_t *kinds = nullptr;
    if (TIFFGetField(tiff.handle(), TIFFTAG_EXTRASAMPLES, &count, &kinds) != 1) {
        return {};
    }
    for (int i = 0; i < count && colors + i < samples; ++i) {
        if (kinds[i] == EXTRASAMPLE_ASSOCALPHA || kinds[i] == EXTRASAMPLE_UNASSALPHA) {
            return {colors + i, kinds[i] == EXTRASAMPLE_ASSOCALPHA};
        }
    }
    return {};
}

void readSamples(const TiffFile &tiff, const TiffShape &shape, Raster &raster, TiffDamage &damage) {
    std::vector<TiffPlane> planes = readTiffPlanes(tiff, shape, damage);
    raster.color = colorOf(shape);
    const int colors = channelCount(raster.color);
    const TiffAlpha alpha = alphaSampleOf(tiff, colors, shape.samples);
    if (planes.size() == 1 && shape.samples == colors && isPdfDepth(shape.bits) &&
        shape.sampleFormat == SAMPLEFORMAT_UINT) {
        takeRows(planes.front(), shape, raster);
    } else {
        unpackTiffSamples(planes, shape, alpha, raster);
    }
    if (raster.color == ImageColor::Indexed) {
        raster.palette = paletteOf(tiff, shape.bits);
    } else if (shape.photometric == PHOTOMETRIC_MINISWHITE) {
        raster.decode = {1, 0};
    } else if (shape.photometric == PHOTOMETRIC_CIELAB) {
        shiftLabAxes(raster);
        if (raster.bits == 16) {
            // The axes count in 256ths: full is a little short of 128, not 127.
            constexpr double kMax = 127 + 255.0 / 256;
            raster.decode = {0, 100, -128, kMax, -128, kMax};
        }
    }
}

} // namespace

TiffShape readTiffShape(const TiffFile &tiff) {
    TiffShape shape;
    uint32_t width = 0;
    uint32_t height = 0;
    TIFFGetField(tiff.handle(), TIFFTAG_IMAGEWIDTH, &width);
    TIFFGetField(tiff.handle(), TIFFTAG_IMAGELENGTH, &height);
    constexpr uint32_t kMax = 0x7FFFFFFF;
    shape.width = static_cast<int>(std::min(width, kMax));
    shape.height = static_cast<int>(std::min(height, kMax));
    shape.bits = tiff.number(TIFFTAG_BITSPERSAMPLE, 1);
    shape.samples = std::max(tiff.number(TIFFTAG_SAMPLESPERPIXEL, 1), 1);
    shape.compression = tiff.number(TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    shape.planar = shape.samples > 1 ? tiff.number(TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG)
                                     : PLANARCONFIG_CONTIG;
    shape.photometric = tiff.number(TIFFTAG_PHOTOMETRIC,
                                    shape.samples >= 3 ? PHOTOMETRIC_RGB : PHOTOMETRIC_MINISBLACK);
    shape.sampleFormat = tiff.number(TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_UINT);
    if (shape.sampleFormat == SAMPLEFORMAT_VOID) {
        shape.sampleFormat = SAMPLEFORMAT_UINT;
    }
    return shape;
}

Raster decodeTiff(const TiffFile &tiff, const TiffShape &shape, TiffDamage &damage) {
    Raster raster;
    raster.width = shape.width;
    raster.height = shape.height;
    raster.iccProfile = profileOf(tiff);
    if (hasSamplesOfPdf(tiff, shape)) {
        readSamples(tiff, shape, raster, damage);
    } else {
        readTiffAsRgb(tiff, shape, raster, damage);
    }
    return raster;
}

} // namespace folioforge
