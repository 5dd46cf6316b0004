// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Formats.h"

#include "error/Reasons.h"
#include "image/Bytes.h"
#include "image/PictureDamage.h"
#include "image/Raster.h"
#include "image/description/DescriptionBlocks.h"
#include "image/formats/LinearLight.h"
#include "image/formats/PsdMetadata.h"

#include <bit>
#include <cstring>

namespace folioforge {

namespace {

/// Reads the rows of the merged image's planes one after the other.
class PlaneReader {
  public:
    PlaneReader(const FileView &file, const PsdMetadata &metadata)
        : m_file(file)
        , m_metadata(metadata)
        , m_rowBytes(rowBytes(metadata.header.width, 1, metadata.depth))
        , m_at(metadata.pixelsOffset) {
        const auto compression = bigEndianAt<quint16>(file.readExactly(m_at, 2), 0);
        m_at += 2;
        if (compression > 1) {
            throw Error(Reasons::tr("The Photoshop file's compression is unknown"));
        }
        const qint64 rows = qint64(metadata.channels) * metadata.header.height;
        m_packed = compression == 1;
        if (m_packed) {
            const int width = metadata.isBig ? 4 : 2;
            m_counts = file.readExactly(m_at, rows * width);
            m_at += m_counts.size();
        }
        // PackBits makes 128 bytes of two. Of a file that was cut off, what is there is shown.
        requirePlausible(rows * m_rowBytes, file.size() - m_at, 64);
    }

    /// The next row, filled up with `missing` where the file has ended.
    QByteArray nextRow(char missing) {
        const qint64 length = m_packed ? packedBytes(m_row) : m_rowBytes;
        ++m_row;
        const QByteArray bytes = m_file.read(m_at, length);
        m_at += length;
        QByteArray row = m_packed ? unpackBits(bytes) : bytes;
        m_missing += row.size() < m_rowBytes ? 1 : 0;
        row.resize(m_rowBytes, missing);
        return row;
    }

    /// How many of the rows read so far are not whole.
    [[nodiscard]] qint64 missingRows() const { return m_missing; }
    [[nodiscard]] qint64 rows() const { return m_row; }

  private:
    [[nodiscard]] qint64 packedBytes(qint64 row) const {
        return m_metadata.isBig ? qint64(bigEndianAt<quint32>(m_counts, 4 * row))
                                : qint64(bigEndianAt<quint16>(m_counts, 2 * row));
    }

    [[nodiscard]] QByteArray unpackBits(QByteArrayView packed) const {
        QByteArray row;
        row.reserve(m_rowBytes);
        for (qsizetype at = 0; at < packed.size() && row.size() < m_rowBytes;) {
            constexpr int kNothing = 0x80; // Below it bytes as they are, above it one repeated.
            const int lead = bigEndianAt<uchar>(packed, at++);
            if (lead < kNothing) {
                const auto length = std::min<qsizetype>(lead + 1, packed.size() - at);
                row.append(packed.sliced(at, length));
                at += length;
            } else if (lead > kNothing && at < packed.size()) {
                row.append(257 - lead, packed[at++]);
            }
        }
        row.truncate(m_rowBytes);
        return row;
    }

    const FileView &m_file;
    const PsdMetadata &m_metadata;
    qsizetype m_rowBytes;
    qint64 m_at;
    qint64 m_row = 0;
    qint64 m_missing = 0;
    bool m_packed = false;
    QByteArray m_counts;
};

/// Where one plane's samples go in interleaved rows.
struct PlaneTarget {
    QByteArray *samples;
    int channel;
    int channels;
    bool isLight; ///< Linear light where the file has 32 bits, not a fraction such as opacity.
    char missing; ///< What stands for bytes that the file lacks.
};

void placeRow(const QByteArray &row, int y, const PsdMetadata &metadata,
              const PlaneTarget &target) {
    const qsizetype width = metadata.header.width;
    const qsizetype bytes = metadata.sampleBits() / 8;
    const qsizetype step = target.channels * bytes;
    auto *out = reinterpret_cast<uchar *>(target.samples->data()) + y * width * step +
                target.channel * bytes;
    const auto *in = reinterpret_cast<const uchar *>(row.constData());
    for (qsizetype x = 0; x < width; ++x, out += step) {
        if (metadata.depth == 32) {
            const auto value = std::bit_cast<float>(qFromBigEndian<quint32>(in + 4 * x));
            qToBigEndian(target.isLight ? srgbFromLinear(value) : sampleFromFraction(value), out);
        } else {
            std::memcpy(out, in + x * bytes, static_cast<size_t>(bytes));
        }
    }
}

void readPlane(PlaneReader &reader, const PsdMetadata &metadata, const PlaneTarget &target) {
    for (int y = 0; y < metadata.header.height; ++y) {
        placeRow(reader.nextRow(target.missing), y, metadata, target);
    }
}

/// The pixels of a merged image that may have been composited on white.
template<typename Sample> class WhiteMatte {
  public:
    explicit WhiteMatte(Raster &raster)
        : m_color(reinterpret_cast<uchar *>(raster.samples.data()))
        , m_alpha(reinterpret_cast<const uchar *>(raster.alpha->samples.constData()))
        , m_samples(qint64(raster.width) * raster.height * channelCount(raster.color))
        , m_channels(channelCount(raster.color)) {}

    /// Whether every colour could be one laid on white: a pixel of little opacity is then bright.
    [[nodiscard]] bool isThere() const {
        constexpr qint64 kRounding = kFull / 100;
        for (qint64 i = 0; i < m_samples; ++i) {
            if (ink(i) > opacity(i) + kRounding) {
                return false;
            }
        }
        return true;
    }

    void remove() {
        for (qint64 i = 0; i < m_samples; ++i) {
            if (opacity(i) > 0 && opacity(i) < kFull) {
                const qint64 straight = std::max<qint64>(kFull - ink(i) * kFull / opacity(i), 0);
                qToBigEndian(static_cast<Sample>(straight), m_color + i * kBytes);
            }
        }
    }

  private:
    static constexpr qint64 kFull = std::numeric_limits<Sample>::max();
    static constexpr qint64 kBytes = sizeof(Sample);

    [[nodiscard]] qint64 ink(qint64 i) const {
        return kFull - qFromBigEndian<Sample>(m_color + i * kBytes);
    }
    [[nodiscard]] qint64 opacity(qint64 i) const {
        return qFromBigEndian<Sample>(m_alpha + i / m_channels * kBytes);
    }

    uchar *m_color;
    const uchar *m_alpha;
    qint64 m_samples;
    int m_channels;
};

/// Photoshop composites the merged image on white before it writes it; without the white it has the
/// colours that a soft mask needs. Other programs write the colours as they are.
template<typename Sample> void removeWhiteMatte(Raster &raster) {
    WhiteMatte<Sample> matte(raster);
    if (matte.isThere()) {
        matte.remove();
    }
}

void readPlanes(PlaneReader &reader, const PsdMetadata &metadata, Raster &raster) {
    // What the file lacks has no ink, and full opacity; a number of four bytes that is full is
    // 0x7F.
    const char full = metadata.depth == 32 ? '\x7F' : '\xFF';
    const char missing = raster.color == ImageColor::Cmyk ? full : '\0';
    raster.samples = allocateRows(raster.height, raster.stride());
    if (metadata.depth == 1) {
        for (int y = 0; y < raster.height; ++y) {
            raster.samples.replace(y * raster.stride(), raster.stride(), reader.nextRow(missing));
        }
        return;
    }
    const int channels = channelCount(raster.color);
    const bool isLight = raster.color == ImageColor::Gray || raster.color == ImageColor::Rgb;
    for (int c = 0; c < channels; ++c) {
        readPlane(reader, metadata, {&raster.samples, c, channels, isLight, missing});
    }
    if (metadata.alpha != PsdAlpha::None) {
        raster.alpha = AlphaPlane{
            raster.bits, allocateRows(raster.height, rowBytes(raster.width, 1, raster.bits))};
        readPlane(reader, metadata, {&raster.alpha->samples, 0, 1, false, full});
    }
}

/// Whether every pixel is as the first, as in a merged image that its program left out.
bool isBlank(const Raster &raster) {
    const qsizetype pixel = channelCount(raster.color) * raster.bits / 8;
    const QByteArrayView samples(raster.samples);
    return samples.first(samples.size() - pixel) == samples.sliced(pixel) &&
           (!raster.alpha || raster.alpha->samples.count(raster.alpha->samples.front()) ==
                                 raster.alpha->samples.size());
}

/// Reads the pixels and says how many rows the file lacks.
Warnings readSamples(const FileView &file, const PsdMetadata &metadata, Raster &raster) {
    PlaneReader reader(file, metadata); // Which refuses a short file before there is memory for it.
    readPlanes(reader, metadata, raster);
    if (reader.missingRows() == reader.rows()) {
        throw fileEndsTooEarly();
    }
    if (metadata.statesNoMergedImage && metadata.hasLayers && raster.bits >= 8 && isBlank(raster)) {
        throw Error(Reasons::tr("The Photoshop file holds its layers alone: save it with maximized "
                                "compatibility, which adds the picture they make"));
    }
    if (reader.missingRows() > 0) {
        return {cutOffPicture(reader.missingRows(), reader.rows())};
    }
    return {};
}

/// Palettes hold all reds, then all greens, then all blues.
QByteArray interleavedPalette(const QByteArray &planes) {
    constexpr qsizetype kColors = 256;
    if (planes.size() < 3 * kColors) {
        throw Error(Reasons::tr("The Photoshop file has no palette"));
    }
    QByteArray palette;
    for (qsizetype i = 0; i < kColors; ++i) {
        for (qsizetype plane = 0; plane < 3; ++plane) {
            palette.append(planes.at(plane * kColors + i));
        }
    }
    return palette;
}

void applyTransparentIndex(const PsdMetadata &metadata, Raster &raster) {
    if (metadata.transparentIndex < 0) {
        return;
    }
    raster.alpha = AlphaPlane{8, raster.samples};
    for (char &value : raster.alpha->samples) {
        value = static_cast<uchar>(value) == metadata.transparentIndex ? '\0' : '\xFF';
    }
}

bool recognises(QByteArrayView head) {
    return head.startsWith(QByteArrayView("8BPS\0", 5));
}

ImageHeader readHeader(const FileView &file) {
    return readPsdMetadata(file).header;
}

PdfImage toPdfImage(const FileView &file) {
    const PsdMetadata metadata = readPsdMetadata(file);
    Raster raster;
    raster.width = metadata.header.width;
    raster.height = metadata.header.height;
    raster.bits = metadata.sampleBits();
    raster.color = metadata.color;
    if (metadata.depth != 32) {
        raster.iccProfile = metadata.iccProfile; // Linear light becomes sRGB above.
    }
    if (metadata.color == ImageColor::Cmyk) {
        raster.decode = {1, 0, 1, 0, 1, 0, 1, 0}; // Full ink is stored as 0.
    } else if (metadata.depth == 1) {
        raster.decode = {1, 0}; // 1 is black.
    } else if (metadata.color == ImageColor::Indexed) {
        raster.palette = interleavedPalette(metadata.colorModeData);
    }
    const Warnings warnings = readSamples(file, metadata, raster);
    if (metadata.alpha == PsdAlpha::OnWhite && metadata.color != ImageColor::Cmyk &&
        metadata.color != ImageColor::Lab) {
        raster.bits == 16 ? removeWhiteMatte<quint16>(raster) : removeWhiteMatte<uchar>(raster);
    }
    applyTransparentIndex(metadata, raster);
    PdfImage image = encodeRaster(std::move(raster), metadata.header);
    image.warnings = warnings;
    return image;
}

} // namespace

ImageFormat psdFormat() {
    return {ImageKind::Psd, {QLatin1StringView("psd")},
            recognises,     readHeader,
            toPdfImage,     nullptr,
            nullptr,        addPsdBlocks};
}

} // namespace folioforge
