#include "image/formats/Formats.h"

#include "image/Bytes.h"
#include "image/formats/QtImage.h"

#include <algorithm>
#include <array>
#include <optional>
#include <tuple>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

/// What a frame says of itself: a PNG file, or a bitmap without a file header whose height counts
/// its colours and, below them, a bit for each pixel that is not there.
struct Frame {
    ImageHeader header;
    int bits = 0;
    bool isPng = false;
    FileView content;

    [[nodiscard]] std::tuple<qint64, int> rank() const {
        return {qint64(header.width) * header.height, bits};
    }
};

constexpr qint64 kBitmapHeader = 40;

Frame frameOf(const FileView &content) {
    if (pngFormat().recognises(content.read(0, kSniffedBytes))) {
        constexpr int kDeeperThanBitmaps = 64;
        return {pngFormat().readHeader(content), kDeeperThanBitmaps, true, content};
    }
    const QByteArray head = content.readExactly(0, kBitmapHeader);
    Frame frame{{}, littleEndianAt<quint16>(head, 14), false, content};
    frame.header.width = littleEndianAt<qint32>(head, 4);
    frame.header.height = littleEndianAt<qint32>(head, 8) / 2;
    const bool isPlain =
        littleEndianAt<quint32>(head, 0) >= kBitmapHeader && littleEndianAt<quint32>(head, 16) == 0;
    constexpr std::array<int, 6> kDepths = {1, 4, 8, 16, 24, 32};
    if (!isPlain || std::ranges::find(kDepths, frame.bits) == kDepths.end() ||
        frame.header.width <= 0 || frame.header.height <= 0) {
        throw Error(u"The icon's picture is of an unknown kind"_s);
    }
    frame.header = checkedHeader(frame.header);
    return frame;
}

Frame largestFrame(const FileView &file) {
    constexpr qint64 kDirectory = 6;
    constexpr qint64 kEntryBytes = 16;
    // The largest icons hold some 30 frames. All of a hostile one's may lie in one another, and
    // each is read to its end.
    constexpr int kMaxFrames = 100;
    const int stated = littleEndianAt<quint16>(file.readExactly(0, kDirectory), 4);
    const int count = std::min(stated, kMaxFrames);
    const QByteArray entries = file.read(kDirectory, count * kEntryBytes);
    std::optional<Frame> largest;
    for (qsizetype at = 0; at + kEntryBytes <= entries.size(); at += kEntryBytes) {
        const qint64 start = littleEndianAt<quint32>(entries, at + 12);
        try {
            const Frame frame = frameOf(file.part(start, file.size() - start));
            if (!largest || frame.rank() > largest->rank()) {
                largest = frame;
            }
        } catch (const Error &) {
            // A damaged frame leaves the others.
        }
    }
    if (!largest) {
        throw Error(u"The icon file holds no picture that can be read"_s);
    }
    return *largest;
}

/// Rows from the bottom up, each padded to four bytes.
class BottomUpRows {
  public:
    BottomUpRows(const FileView &content, qint64 at, const ImageHeader &header, int bits)
        : m_stride((qint64(header.width) * bits + 31) / 32 * 4)
        , m_height(header.height)
        , m_end(at + m_stride * m_height)
        , m_bytes(content.read(at, m_stride * m_height)) {}

    [[nodiscard]] bool areThere() const { return m_bytes.size() == m_stride * m_height; }
    [[nodiscard]] qint64 end() const { return m_end; }
    [[nodiscard]] const uchar *row(int y) const {
        return reinterpret_cast<const uchar *>(m_bytes.constData()) + (m_height - 1 - y) * m_stride;
    }

  private:
    qint64 m_stride;
    qint64 m_height;
    qint64 m_end;
    QByteArray m_bytes;
};

QList<QRgb> paletteOf(const Frame &frame) {
    QList<QRgb> colors;
    if (frame.bits > 8) {
        return colors;
    }
    const QByteArray head = frame.content.readExactly(0, kBitmapHeader);
    const qint64 most = 1LL << frame.bits;
    const qint64 stated = littleEndianAt<quint32>(head, 32);
    const qint64 count = stated == 0 ? most : std::min(stated, most);
    const QByteArray bytes = frame.content.readExactly(littleEndianAt<quint32>(head, 0), 4 * count);
    for (qint64 i = 0; i < count; ++i) {
        colors.append(littleEndianAt<quint32>(bytes, 4 * i) | 0xFF000000U);
    }
    return colors;
}

/// The colour of a pixel, its opacity as the file has it.
QRgb colorAt(const uchar *row, int x, int bits, const QList<QRgb> &palette) {
    switch (bits) {
    case 32:
        return qFromLittleEndian<quint32>(row + 4 * qsizetype(x));
    case 24:
        row += 3 * qsizetype(x);
        return qRgb(row[2], row[1], row[0]);
    case 16: {
        const int value = qFromLittleEndian<quint16>(row + 2 * qsizetype(x));
        const auto wide = [](int five) { return five << 3 | five >> 2; };
        return qRgb(wide(value >> 10 & 31), wide(value >> 5 & 31), wide(value & 31));
    }
    default:
        return palette.value(packedSample(row, x, bits), qRgb(0, 0, 0));
    }
}

bool hasOpacity(const QImage &picture) {
    for (int y = 0; y < picture.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        if (std::any_of(row, row + picture.width(),
                        [](QRgb color) { return qAlpha(color) != 0; })) {
            return true;
        }
    }
    return false;
}

/// Opacity of all or nothing by the bits below the colours; full where the file ends before them.
void applyMask(const BottomUpRows &mask, QImage &picture) {
    for (int y = 0; y < picture.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const bool isOut = mask.areThere() && (mask.row(y)[x / 8] >> (7 - x % 8) & 1) != 0;
            row[x] = isOut ? row[x] & 0xFFFFFFU : row[x] | 0xFF000000U;
        }
    }
}

QImage readBitmap(const Frame &frame) {
    const QList<QRgb> palette = paletteOf(frame);
    const QByteArray head = frame.content.readExactly(0, kBitmapHeader);
    const qint64 start = qint64(littleEndianAt<quint32>(head, 0)) + 4 * palette.size();
    const BottomUpRows rows(frame.content, start, frame.header, frame.bits);
    if (!rows.areThere()) {
        throw Error(u"The file ends too early"_s);
    }
    QImage picture =
        granted(QImage(frame.header.width, frame.header.height, QImage::Format_ARGB32));
    for (int y = 0; y < picture.height(); ++y) {
        auto *target = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            target[x] = colorAt(rows.row(y), x, frame.bits, palette);
        }
    }
    if (frame.bits < 32 || !hasOpacity(picture)) {
        applyMask(BottomUpRows(frame.content, rows.end(), frame.header, 1), picture);
    }
    return picture;
}

bool recognises(QByteArrayView head) {
    // Cursors begin with 0 0 2 0, but so do TGA files, which are no less plain about it.
    return head.startsWith(QByteArrayView("\0\0\1\0", 4));
}

ImageHeader readHeader(const FileView &file) {
    return largestFrame(file).header;
}

PdfImage toPdfImage(const FileView &file) {
    const Frame frame = largestFrame(file);
    return frame.isPng ? pngFormat().toPdfImage(frame.content)
                       : encodeRaster(rasterOf(readBitmap(frame)), frame.header);
}

} // namespace

ImageFormat icoFormat() {
    return {ImageKind::Ico, {QLatin1StringView("ico")}, recognises, readHeader, toPdfImage};
}

} // namespace folioforge
