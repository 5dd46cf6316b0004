// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Tiff.h"

#include <algorithm>
#include <cstring>

namespace folioforge {

namespace {

constexpr char kUnwritten = '\xFF';

bool isUnwritten(const char *row, qsizetype stride) {
    return std::all_of(row, row + stride, [](char byte) { return byte == kUnwritten; });
}

/// JPEG data comes out as RGB rather than YCbCr; a setting of each handle.
void chooseJpegColor(const TiffFile &tiff, const TiffShape &shape) {
    if (shape.compression == COMPRESSION_JPEG && shape.photometric == PHOTOMETRIC_YCBCR) {
        TIFFSetField(tiff.handle(), TIFFTAG_JPEGCOLORMODE, JPEGCOLORMODE_RGB);
    }
}

} // namespace

TiffReader::TiffReader(const TiffFile &tiff, const TiffShape &shape, int plane)
    : m_shape(shape)
    , m_plane(plane)
    , m_tiff(tiff.file(), tiff.directory()) {
    chooseJpegColor(m_tiff, shape);
}

bool TiffReader::isFax() const {
    return m_shape.compression == COMPRESSION_CCITTRLE ||
           m_shape.compression == COMPRESSION_CCITTRLEW ||
           m_shape.compression == COMPRESSION_CCITTFAX3 ||
           m_shape.compression == COMPRESSION_CCITTFAX4;
}

/// Of fax data and JPEG libtiff decodes what it can and only warns; of the rest it warns of what
/// does no harm.
int TiffReader::complaints(const TiffFile &tiff) const {
    const bool warns = isFax() || m_shape.compression == COMPRESSION_JPEG;
    return tiff.errors() + (warns ? tiff.warnings() : 0);
}

/// Of a picture that is larger than its directory has strips or tiles for, libtiff reads the rest
/// from the beginning of the file.
bool TiffReader::isInFile(uint32_t number) const {
    return TIFFGetStrileOffset(m_tiff.handle(), number) != 0;
}

void TiffReader::readStrip(int y, int rows, qsizetype stride, char *target) {
    m_damage.all += rows;
    const tmsize_t size = rows * stride;
    const uint32_t number =
        TIFFComputeStrip(m_tiff.handle(), static_cast<uint32_t>(y), static_cast<uint16_t>(m_plane));
    // Fax data may end early without a complaint: the last row is then as it was.
    std::memset(target, isFax() ? kUnwritten : 0, static_cast<size_t>(size));
    if (!isInFile(number)) {
        std::memset(target, 0, static_cast<size_t>(size));
        m_damage.missing += rows;
        return;
    }
    const int before = complaints(m_tiff);
    const bool isRead = TIFFReadEncodedStrip(m_tiff.handle(), number, target, size) >= 0;
    if (!isRead || complaints(m_tiff) != before ||
        (isFax() && isUnwritten(target + size - stride, stride))) {
        rescueStrip(y, rows, stride, target);
    }
}

/// Decodes row after row as long as that succeeds; gives their number.
int TiffReader::readRows(const TiffFile &tiff, int y, int rows, qsizetype stride, char *target) {
    const int before = complaints(tiff);
    for (int row = 0; row < rows; ++row) {
        if (TIFFReadScanline(tiff.handle(), target + row * stride, static_cast<uint32_t>(y + row),
                             static_cast<uint16_t>(m_plane)) < 0) {
            return row;
        }
        // A row of group 4 builds on the one before: none behind a fault is right.
        if (complaints(tiff) != before && m_shape.compression == COMPRESSION_CCITTFAX4) {
            return row;
        }
    }
    m_damage.isFaulty = m_damage.isFaulty || complaints(tiff) != before;
    return rows;
}

/// Whether rows have the same pixels. Of fax data libtiff leaves the bits behind the last pixel as
/// they were.
bool TiffReader::isSameRow(const char *one, const char *other, qsizetype stride) const {
    constexpr int kByteBits = 8;
    const int behind = isFax() ? static_cast<int>(stride * kByteBits - m_shape.width) : 0;
    return behind < kByteBits && std::memcmp(one, other, static_cast<size_t>(stride - 1)) == 0 &&
           ((one[stride - 1] ^ other[stride - 1]) & (0xFF << behind)) == 0;
}

/// libtiff reads no strip that the file does not hold to its end. What bytes stand behind the end
/// makes no difference to the rows before it, and to these alone.
void TiffReader::rescueStrip(int y, int rows, qsizetype stride, char *target) {
    if (!m_padded) {
        m_padded = std::make_unique<TiffFile>(m_tiff.file(), m_tiff.directory(), '\0');
        m_paddedOtherwise = std::make_unique<TiffFile>(m_tiff.file(), m_tiff.directory(), '\xFF');
        chooseJpegColor(*m_padded, m_shape);
        chooseJpegColor(*m_paddedOtherwise, m_shape);
    }
    std::memset(target, 0, static_cast<size_t>(rows * stride));
    QByteArray other(rows * stride, kUnwritten);
    const int read = std::min(readRows(*m_padded, y, rows, stride, target),
                              readRows(*m_paddedOtherwise, y, rows, stride, other.data()));
    int same = 0;
    while (same < read &&
           isSameRow(target + same * stride, other.constData() + same * stride, stride)) {
        ++same;
    }
    std::memset(target + same * stride, 0, static_cast<size_t>((rows - same) * stride));
    m_damage.missing += rows - same;
}

void TiffReader::readTile(qint64 x, qint64 y, tmsize_t size, char *target) {
    m_damage.all += 1;
    const uint32_t number =
        TIFFComputeTile(m_tiff.handle(), static_cast<uint32_t>(x), static_cast<uint32_t>(y), 0,
                        static_cast<uint16_t>(m_plane));
    const int before = complaints(m_tiff);
    if (!isInFile(number) || TIFFReadEncodedTile(m_tiff.handle(), number, target, size) < 0) {
        std::memset(target, 0, static_cast<size_t>(size));
        m_damage.missing += 1;
    } else {
        m_damage.isFaulty = m_damage.isFaulty || complaints(m_tiff) != before;
    }
}

} // namespace folioforge
