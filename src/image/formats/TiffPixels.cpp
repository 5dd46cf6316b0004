// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Tiff.h"

#include "error/Error.h"
#include "image/formats/LinearLight.h"

#include <QFloat16>
#include <QtEndian>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

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

/// Where the opacity stands among a pixel's samples, and whether it multiplies the colours.
struct AlphaSample {
    int index = -1;
    bool associated = false;
};

AlphaSample alphaSampleOf(const TiffFile &tiff, int colors, int samples) {
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

/// Reads single samples of any depth from rows.
class SampleReader {
  public:
    SampleReader(const std::vector<TiffPlane> &planes, const TiffShape &shape)
        : m_planes(planes)
        , m_shape(shape) {}

    /// The sample in 8 bits where the file has at most 8, in 16 otherwise; palette numbers as they
    /// are.
    [[nodiscard]] int sample(int x, int y, int index) const {
        const bool separate = m_planes.size() > 1;
        const TiffPlane &plane = m_planes[separate ? static_cast<size_t>(index) : 0];
        const auto *row =
            reinterpret_cast<const uchar *>(plane.rows.constData()) + qsizetype(y) * plane.stride;
        const qsizetype place = separate ? x : qsizetype(x) * m_shape.samples + index;
        if (m_shape.sampleFormat == SAMPLEFORMAT_IEEEFP) {
            return sampleFromFraction(floatAt(row, place));
        }
        return scaled(integerAt(row, place));
    }

  private:
    [[nodiscard]] float floatAt(const uchar *row, qsizetype place) const {
        switch (m_shape.bits) {
        case 16:
            return float(qFromUnaligned<qfloat16>(row + place * 2));
        case 32:
            return qFromUnaligned<float>(row + place * 4);
        case 64:
            return static_cast<float>(qFromUnaligned<double>(row + place * 8));
        default:
            return 0;
        }
    }

    [[nodiscard]] quint32 integerAt(const uchar *row, qsizetype place) const {
        quint32 value = 0;
        if (m_shape.bits == 8) {
            value = row[place];
        } else if (m_shape.bits == 16) {
            value = qFromUnaligned<quint16>(row + place * 2);
        } else if (m_shape.bits == 32) {
            value = qFromUnaligned<quint32>(row + place * 4);
        } else if (m_shape.bits == 24 && QSysInfo::ByteOrder == QSysInfo::LittleEndian) {
            row += place * 3;
            value = row[0] | quint32(row[1]) << 8 | quint32(row[2]) << 16;
        } else {
            const qsizetype first = place * m_shape.bits;
            for (qsizetype bit = first; bit < first + m_shape.bits; ++bit) {
                value = (value << 1) | ((row[bit / 8] >> (7 - bit % 8)) & 1U);
            }
        }
        // Signed samples run from the darkest negative number to the brightest positive one.
        const bool isSigned =
            m_shape.sampleFormat == SAMPLEFORMAT_INT && colorOf(m_shape) != ImageColor::Lab;
        return isSigned ? value ^ (1U << (m_shape.bits - 1)) : value;
    }

    [[nodiscard]] int scaled(quint32 value) const {
        if (m_shape.photometric == PHOTOMETRIC_PALETTE || m_shape.bits == 8 || m_shape.bits == 16) {
            return static_cast<int>(value);
        }
        if (m_shape.bits > 16) {
            return static_cast<int>(value >> (m_shape.bits - 16));
        }
        const quint32 maxValue = (1U << m_shape.bits) - 1;
        const quint32 full = m_shape.bits < 8 ? 0xFF : 0xFFFF;
        return static_cast<int>((value * full + maxValue / 2) / maxValue);
    }

    const std::vector<TiffPlane> &m_planes;
    const TiffShape &m_shape;
};

void store(QByteArray &samples, qsizetype index, int value, int bits) {
    auto *bytes = reinterpret_cast<uchar *>(samples.data());
    if (bits == 16) {
        qToBigEndian(static_cast<quint16>(value), bytes + 2 * index);
    } else {
        bytes[index] = static_cast<uchar>(value);
    }
}

void unpackSamples(const std::vector<TiffPlane> &planes, const TiffShape &shape,
                   const AlphaSample &alpha, Raster &raster) {
    raster.bits = shape.bits <= 8 ? 8 : 16;
    const int colors = channelCount(raster.color);
    raster.samples = allocateRows(raster.height, raster.stride());
    if (alpha.index >= 0) {
        raster.alpha = AlphaPlane{
            raster.bits, allocateRows(raster.height, rowBytes(raster.width, 1, raster.bits))};
    }
    const SampleReader reader(planes, shape);
    qsizetype pixel = 0;
    for (int y = 0; y < raster.height; ++y) {
        for (int x = 0; x < raster.width; ++x, ++pixel) {
            for (int c = 0; c < colors; ++c) {
                store(raster.samples, pixel * colors + c, reader.sample(x, y, c), raster.bits);
            }
            if (alpha.index >= 0) {
                store(raster.alpha->samples, pixel, reader.sample(x, y, alpha.index), raster.bits);
            }
        }
    }
    // Numbers of colours are multiplied by nothing.
    if (alpha.associated && raster.color != ImageColor::Indexed) {
        unpremultiply(raster);
    }
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
        throw Error(u"The TIFF file has no palette"_s);
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

/// libtiff's own conversion to eight-bit RGB.
void readAsRgb(const TiffFile &tiff, const TiffShape &shape, Raster &raster, TiffDamage &damage) {
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

void readSamples(const TiffFile &tiff, const TiffShape &shape, Raster &raster, TiffDamage &damage) {
    std::vector<TiffPlane> planes = readTiffPlanes(tiff, shape, damage);
    raster.color = colorOf(shape);
    const int colors = channelCount(raster.color);
    const AlphaSample alpha = alphaSampleOf(tiff, colors, shape.samples);
    if (planes.size() == 1 && shape.samples == colors && isPdfDepth(shape.bits) &&
        shape.sampleFormat == SAMPLEFORMAT_UINT) {
        takeRows(planes.front(), shape, raster);
    } else {
        unpackSamples(planes, shape, alpha, raster);
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
        readAsRgb(tiff, shape, raster, damage);
    }
    return raster;
}

} // namespace folioforge
