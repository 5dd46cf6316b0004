// SPDX-License-Identifier: Apache-2.0

#include "image/formats/LinearLight.h"
#include "image/formats/Tiff.h"

#include <QFloat16>
#include <QtEndian>

namespace folioforge {

namespace {

/// Reads single samples of any depth from rows.
class SampleReader {
  public:
    SampleReader(const std::vector<TiffPlane> &planes, const TiffShape &shape, ImageColor color)
        : m_planes(planes)
        , m_shape(shape)
        , m_isSigned(shape.sampleFormat == SAMPLEFORMAT_INT && color != ImageColor::Lab) {}

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
        return m_isSigned ? value ^ (1U << (m_shape.bits - 1)) : value;
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
    bool m_isSigned;
};

} // namespace

void unpackTiffSamples(const std::vector<TiffPlane> &planes, const TiffShape &shape,
                       const TiffAlpha &alpha, Raster &raster) {
    raster.bits = shape.bits <= 8 ? 8 : 16;
    const int colors = channelCount(raster.color);
    raster.samples = allocateRows(raster.height, raster.stride());
    if (alpha.index >= 0) {
        raster.alpha = AlphaPlane{
            raster.bits, allocateRows(raster.height, rowBytes(raster.width, 1, raster.bits))};
    }
    const SampleReader reader(planes, shape, raster.color);
    qsizetype pixel = 0;
    for (int y = 0; y < raster.height; ++y) {
        for (int x = 0; x < raster.width; ++x, ++pixel) {
            for (int c = 0; c < colors; ++c) {
                putSample(raster.samples, pixel * colors + c, reader.sample(x, y, c), raster.bits);
            }
            if (alpha.index >= 0) {
                putSample(raster.alpha->samples, pixel, reader.sample(x, y, alpha.index),
                          raster.bits);
            }
        }
    }
    // Numbers of colours are multiplied by nothing.
    if (alpha.associated && raster.color != ImageColor::Indexed) {
        unpremultiply(raster);
    }
}

} // namespace folioforge
