// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Dib.h"

#include "image/Bytes.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace folioforge {

namespace {

constexpr quint32 kOs2Header = 12;       ///< Shorter sides, and three bytes a colour.
constexpr quint32 kWindowsHeader = 40;   ///< The first to know of density.
constexpr quint32 kHeaderWithMasks = 52; ///< The first to hold masks; older ones have them behind.
constexpr quint32 kHeaderWithAlpha = 56; ///< The first to hold a mask of opacity.
constexpr qsizetype kMasksAt = 40;

void readOs2Fields(QByteArrayView bytes, DibHeader &header) {
    header.width = littleEndianAt<quint16>(bytes, 4);
    header.height = littleEndianAt<quint16>(bytes, 6);
    header.planes = littleEndianAt<quint16>(bytes, 8);
    header.bits = littleEndianAt<quint16>(bytes, 10);
}

void readWindowsFields(QByteArrayView bytes, DibHeader &header) {
    const qint64 height = littleEndianAt<qint32>(bytes, 8);
    header.width = littleEndianAt<qint32>(bytes, 4);
    header.height = static_cast<int>(std::min<qint64>(std::abs(height), 0x7FFFFFFF));
    header.isTopDown = height < 0;
    header.planes = littleEndianAt<quint16>(bytes, 12);
    header.bits = littleEndianAt<quint16>(bytes, 14);
    if (header.size >= kWindowsHeader) {
        header.compression = littleEndianAt<quint32>(bytes, 16);
        header.horizontalDpi = littleEndianAt<qint32>(bytes, 24) * kMetresPerInch;
        header.verticalDpi = littleEndianAt<qint32>(bytes, 28) * kMetresPerInch;
        header.colorsUsed = littleEndianAt<quint32>(bytes, 32);
    }
}

/// Masks behind a header that holds none.
bool hasMasksBehind(const DibHeader &header) {
    return header.compression == DibHeader::Masks &&
           (header.size < kHeaderWithMasks || header.size == 64);
}

void readMasks(const FileView &dib, DibHeader &header) {
    const bool isMasked = header.compression == DibHeader::Masks;
    const bool hasAlpha = header.size >= kHeaderWithAlpha && header.size != 64;
    const qint64 at = hasMasksBehind(header) ? qint64(header.size) : kMasksAt;
    if (isMasked) {
        const QByteArray bytes = dib.readExactly(at, 12);
        for (qsizetype i = 0; i < 3; ++i) {
            header.masks[i] = littleEndianAt<quint32>(bytes, 4 * i);
        }
    } else if (header.bits == 16) {
        header.masks = {0x7C00, 0x03E0, 0x001F, 0};
    } else {
        header.masks = {0xFF0000, 0x00FF00, 0x0000FF, 0};
    }
    if (hasAlpha) {
        const auto mask = littleEndianAt<quint32>(dib.readExactly(kMasksAt + 12, 4), 0);
        header.masks[3] = isMasked || (header.bits == 32 && mask == kOpaque) ? mask : 0;
    }
}

/// Takes the bits of a mask out of pixels, as eight bits.
class Channel {
  public:
    explicit Channel(quint32 mask)
        : m_mask(mask)
        , m_shift(mask == 0 ? 0 : std::countr_zero(mask))
        , m_scale(mask == 0 ? 0 : 255.0 / (mask >> m_shift)) {}

    [[nodiscard]] quint32 of(quint32 pixel) const {
        return static_cast<quint32>(std::lround(((pixel & m_mask) >> m_shift) * m_scale));
    }

  private:
    quint32 m_mask;
    int m_shift;
    double m_scale;
};

/// Makes pixels of a bitmap colours.
class PixelColors {
  public:
    explicit PixelColors(const std::array<quint32, 4> &masks)
        : m_mask(masks[0] | masks[1] | masks[2] | masks[3])
        , m_isArgb(masks[0] == 0xFF0000 && masks[1] == 0xFF00 && masks[2] == 0xFF &&
                   (masks[3] == 0 || masks[3] == kOpaque))
        , m_channels{Channel(masks[2]), Channel(masks[1]), Channel(masks[0]), Channel(masks[3])} {}

    [[nodiscard]] Argb of(quint32 pixel) const {
        if (m_isArgb) {
            return pixel & m_mask;
        }
        return m_channels[0].of(pixel) | m_channels[1].of(pixel) << 8 |
               m_channels[2].of(pixel) << 16 | m_channels[3].of(pixel) << 24;
    }

  private:
    quint32 m_mask;
    bool m_isArgb; ///< As nearly all are.
    std::array<Channel, 4> m_channels;
};

quint32 pixelAt(const uchar *row, qsizetype x, int bits) {
    switch (bits) {
    case 32:
        return qFromLittleEndian<quint32>(row + 4 * x);
    case 24:
        row += 3 * x;
        return row[0] | quint32(row[1]) << 8 | quint32(row[2]) << 16;
    default:
        return qFromLittleEndian<quint16>(row + 2 * x);
    }
}

/// Draws the runs of a bitmap of 4 or 8 bits a pixel: a count and a byte to repeat, or 0 and how
/// many bytes follow as they are, to an even number of them, or 0 and one of three signs.
class RunReader {
  public:
    RunReader(QByteArrayView bytes, int bits, IndexedImage &image)
        : m_bytes(bytes)
        , m_bits(bits)
        , m_image(image) {}

    /// Draws until the end of the picture or of the bytes; gives the rows that have no end.
    qint64 drawAll() {
        while (m_y < m_image.height && m_at + 2 <= m_bytes.size()) {
            const int count = next();
            const int value = next();
            if (count > 0) {
                draw(count, [&](int i) { return numberIn(value, i); });
            } else if (value > Jump) {
                drawAsTheyAre(value);
            } else if (value == Jump) {
                m_x += next();
                m_y += next();
            } else if (value == EndOfRow) {
                m_x = 0;
                ++m_y;
            } else {
                return 0; // The end of the picture.
            }
        }
        const int done = m_y + (m_x == m_image.width ? 1 : 0);
        return std::max(m_image.height - done, 0);
    }

    [[nodiscard]] bool leftOutPixels() const {
        return m_drawn < qint64(m_image.width) * m_image.height;
    }

  private:
    enum Sign { EndOfRow = 0, Jump = 2 };

    /// The next byte; 0 behind the end.
    int next() { return m_at < m_bytes.size() ? static_cast<uchar>(m_bytes[m_at++]) : 0; }

    /// Half number `i` of a byte that holds two pixels, or the byte.
    [[nodiscard]] int numberIn(int byte, int i) const {
        return m_bits == 8 ? byte : i % 2 == 0 ? byte >> 4 : byte & 0x0F;
    }

    void drawAsTheyAre(int count) {
        const qsizetype size = m_bits == 8 ? count : (count + 1) / 2;
        const QByteArrayView bytes = m_bytes.sliced(m_at, std::min(size, m_bytes.size() - m_at));
        m_at += std::min(size + size % 2, m_bytes.size() - m_at);
        draw(static_cast<int>(std::min<qsizetype>(count, bytes.size() * 8 / m_bits)),
             [&](int i) { return numberIn(static_cast<uchar>(bytes[i * m_bits / 8]), i); });
    }

    /// Draws `count` pixels; those behind the end of the row are lost.
    template<typename Number> void draw(int count, const Number &number) {
        const qsizetype row = qsizetype(m_image.height - 1 - m_y) * m_image.width;
        for (int i = 0; m_y < m_image.height && i < count && m_x + i < m_image.width; ++i) {
            m_image.indexes[row + m_x + i] = static_cast<char>(number(i));
            ++m_drawn;
        }
        m_x = std::min(m_x + count, m_image.width);
    }

    QByteArrayView m_bytes;
    int m_bits;
    IndexedImage &m_image;
    qsizetype m_at = 0;
    int m_x = 0;
    int m_y = 0;        ///< From the bottom.
    qint64 m_drawn = 0; ///< Pixels; none is drawn twice.
};

void turnOver(IndexedImage &image) {
    for (int y = 0; y < image.height / 2; ++y) {
        char *row = image.indexes.data() + qsizetype(y) * image.width;
        char *other = image.indexes.data() + qsizetype(image.height - 1 - y) * image.width;
        std::swap_ranges(row, row + image.width, other);
    }
}

} // namespace

int DibHeader::colorCount() const {
    const quint32 maxCount = bits > 8 ? 0 : 1U << bits;
    return static_cast<int>(colorsUsed == 0 ? maxCount : std::min(colorsUsed, maxCount));
}

qint64 DibHeader::endOfColors() const {
    constexpr qint64 kMasksBytes = 12;
    return size + (hasMasksBehind(*this) ? kMasksBytes : 0) +
           qint64(colorCount()) * (size == kOs2Header ? 3 : 4);
}

bool DibHeader::hasKnownPixels() const {
    const bool hasColors = bits == 16 || bits == 24 || bits == 32;
    switch (compression) {
    case Plain:
        return hasColors || bits == 1 || bits == 4 || bits == 8;
    case Runs8:
        return bits == 8;
    case Runs4:
        return bits == 4;
    case Masks:
        return bits == 16 || bits == 32;
    default:
        return false;
    }
}

DibHeader readDibHeader(const FileView &dib) {
    constexpr qint64 kFieldsBytes = 40;
    const QByteArray bytes = dib.read(0, kFieldsBytes);
    DibHeader header;
    header.size = littleEndianAt<quint32>(bytes, 0);
    if (header.size == kOs2Header) {
        readOs2Fields(bytes, header);
    } else {
        readWindowsFields(bytes, header);
    }
    readMasks(dib, header);
    return header;
}

std::vector<Argb> readDibColors(const FileView &dib, const DibHeader &header) {
    const int step = header.size == kOs2Header ? 3 : 4;
    const QByteArray bytes = dib.readExactly(header.size, qint64(header.colorCount()) * step);
    std::vector<Argb> colors;
    const auto *color = reinterpret_cast<const uchar *>(bytes.constData());
    for (int i = 0; i < header.colorCount(); ++i, color += step) {
        colors.push_back(argb(color[2], color[1], color[0]));
    }
    return colors;
}

qint64 missingDibRows(const FileView &dib, const DibHeader &header, qint64 at) {
    const qint64 there = std::max<qint64>(dib.size() - at, 0) / header.stride();
    return std::max<qint64>(header.height - there, 0);
}

QByteArray readDibRows(const FileView &dib, const DibHeader &header, qint64 at) {
    QByteArray rows = dib.read(at, header.stride() * header.height);
    rows.append(header.stride() * header.height - rows.size(), '\0');
    return rows;
}

const uchar *dibRow(const QByteArray &rows, const DibHeader &header, int y) {
    const qint64 stored = header.isTopDown ? y : header.height - 1 - y;
    return reinterpret_cast<const uchar *>(rows.constData()) + stored * header.stride();
}

IndexedDib readIndexedDib(const FileView &dib, const DibHeader &header, qint64 at) {
    IndexedImage image{header.width, header.height, allocateRows(header.height, header.width),
                       readDibColors(dib, header)};
    if (header.compression != DibHeader::Plain) {
        const QByteArray runs = dib.read(at, dib.size());
        RunReader reader(runs, header.bits, image);
        const qint64 missing = reader.drawAll();
        if (header.isTopDown) {
            turnOver(image);
        }
        return {image, missing, reader.leftOutPixels()};
    }
    const QByteArray rows = readDibRows(dib, header, at);
    char *target = image.indexes.data();
    for (int y = 0; y < header.height; ++y) {
        const uchar *row = dibRow(rows, header, y);
        for (int x = 0; x < header.width; ++x) {
            *target++ = static_cast<char>(packedSample(row, x, header.bits));
        }
    }
    return {image, missingDibRows(dib, header, at), false};
}

ArgbImage readColorDib(const FileView &dib, const DibHeader &header, qint64 at) {
    const QByteArray rows = readDibRows(dib, header, at);
    const PixelColors colors(header.masks);
    ArgbImage image{header.width, header.height, header.masks[3] != 0, {}};
    image.pixels.resize(static_cast<std::size_t>(header.width) * header.height);
    for (int y = 0; y < header.height; ++y) {
        const uchar *row = dibRow(rows, header, y);
        Argb *target = image.row(y);
        for (int x = 0; x < header.width; ++x) {
            target[x] = colors.of(pixelAt(row, x, header.bits));
        }
    }
    return image;
}

} // namespace folioforge
