// SPDX-License-Identifier: Apache-2.0

#include "image/Exif.h"

#include "image/Bytes.h"

namespace folioforge {

namespace {

enum Tag : quint16 { Orientation = 274, XResolution = 282, YResolution = 283, Unit = 296 };

constexpr quint16 kCentimetre = 3;
constexpr double kCentimetresPerInch = 2.54;
constexpr qsizetype kEntryBytes = 12;

/// The block's numbers in the byte order that its first two bytes name.
class TiffNumbers {
  public:
    explicit TiffNumbers(QByteArrayView block)
        : m_block(block)
        , m_littleEndian(block.startsWith("II")) {}

    [[nodiscard]] quint16 half(qsizetype at) const {
        return m_littleEndian ? littleEndianAt<quint16>(m_block, at)
                              : bigEndianAt<quint16>(m_block, at);
    }
    [[nodiscard]] quint32 word(qsizetype at) const {
        return m_littleEndian ? littleEndianAt<quint32>(m_block, at)
                              : bigEndianAt<quint32>(m_block, at);
    }
    [[nodiscard]] double rational(qsizetype at) const {
        const quint32 denominator = word(at + 4);
        return denominator == 0 ? 0 : double(word(at)) / denominator;
    }

  private:
    QByteArrayView m_block;
    bool m_littleEndian;
};

void readDirectory(const TiffNumbers &numbers, ExifMetadata &metadata, quint16 &unit) {
    const qsizetype directory = numbers.word(4);
    const int count = numbers.half(directory);
    for (int i = 0; i < count; ++i) {
        const qsizetype entry = directory + 2 + i * kEntryBytes;
        switch (numbers.half(entry)) {
        case Orientation:
            metadata.orientation = numbers.half(entry + 8);
            break;
        case XResolution:
            metadata.horizontalDpi = numbers.rational(numbers.word(entry + 8));
            break;
        case YResolution:
            metadata.verticalDpi = numbers.rational(numbers.word(entry + 8));
            break;
        case Unit:
            unit = numbers.half(entry + 8);
            break;
        default:
            break;
        }
    }
}

} // namespace

ExifMetadata readExifItem(QByteArrayView item) {
    constexpr qsizetype kCount = 4;
    if (item.size() < kCount) {
        return {};
    }
    const qsizetype before = bigEndianAt<quint32>(item, 0);
    return readExif(item.sliced(std::min(kCount + before, item.size())));
}

ExifMetadata readExif(QByteArrayView block) {
    ExifMetadata metadata;
    if (!block.startsWith("II") && !block.startsWith("MM")) {
        return metadata;
    }
    quint16 unit = 2;
    try {
        readDirectory(TiffNumbers(block), metadata, unit);
    } catch (const Error &) {
        // A truncated block is no reason to refuse the picture: what precedes the cut is used.
    }
    if (unit == kCentimetre) {
        metadata.horizontalDpi *= kCentimetresPerInch;
        metadata.verticalDpi *= kCentimetresPerInch;
    }
    return metadata;
}

} // namespace folioforge
