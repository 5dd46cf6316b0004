#include "pdf/fonts/CffCharset.h"

#include <stdexcept>

namespace folioforge {
namespace {

/// Reads big-endian numbers; passing the end throws, which readCffCids turns into "nothing".
class Reader {
  public:
    Reader(QByteArrayView data, std::size_t position)
        : m_data(data)
        , m_position(position) {}

    std::uint32_t number(unsigned bytes) {
        std::uint32_t value = 0;
        for (; bytes > 0; --bytes) {
            value = value << 8 | byteAt(m_position++);
        }
        return value;
    }
    [[nodiscard]] std::size_t position() const { return m_position; }
    void moveTo(std::size_t position) { m_position = position; }
    [[nodiscard]] bool before(std::size_t end) const { return m_position < end; }

  private:
    [[nodiscard]] std::uint8_t byteAt(std::size_t position) const {
        if (position >= static_cast<std::size_t>(m_data.size())) {
            throw std::out_of_range("CFF");
        }
        return static_cast<std::uint8_t>(m_data[static_cast<qsizetype>(position)]);
    }

    QByteArrayView m_data;
    std::size_t m_position = 0;
};

struct Index {
    std::uint32_t count = 0;
    std::size_t firstBegin = 0;
    std::size_t firstEnd = 0;
    std::size_t end = 0;
};

Index readIndex(QByteArrayView table, std::size_t position) {
    Reader reader(table, position);
    Index index;
    index.count = reader.number(2);
    if (index.count == 0) {
        index.end = reader.position();
        return index;
    }
    const unsigned offsetSize = reader.number(1);
    const std::size_t offsets = reader.position();
    const std::size_t origin = offsets + (index.count + std::size_t{1}) * offsetSize - 1;
    index.firstBegin = origin + reader.number(offsetSize);
    index.firstEnd = origin + reader.number(offsetSize);
    reader.moveTo(offsets + std::size_t{index.count} * offsetSize);
    index.end = origin + reader.number(offsetSize);
    return index;
}

/// What the Top DICT says of the glyphs.
struct TopDict {
    bool cidKeyed = false;
    std::size_t charset = 0;
    std::size_t charStrings = 0;
};

TopDict readTopDict(QByteArrayView table, const Index &index) {
    constexpr std::uint32_t kEscape = 12;
    constexpr std::uint32_t kCharset = 15;
    constexpr std::uint32_t kCharStrings = 17;
    constexpr std::uint32_t kRos = kEscape << 8 | 30;
    TopDict dict;
    std::uint32_t operand = 0;
    Reader reader(table, index.firstBegin);
    while (reader.before(index.firstEnd)) {
        std::uint32_t byte = reader.number(1);
        if (byte == 28) {
            operand = reader.number(2);
        } else if (byte == 29) {
            operand = reader.number(4);
        } else if (byte == 30) { // A real number ends with a nibble of 15.
            do {
                byte = reader.number(1);
            } while ((byte & 0x0FU) != 0x0FU && byte >> 4 != 0x0FU);
        } else if (byte >= 32 && byte <= 246) {
            operand = byte - 139;
        } else if (byte >= 247 && byte <= 250) {
            operand = (byte - 247) * 256 + reader.number(1) + 108;
        } else if (byte >= 251) {
            reader.number(1); // Negative, so no offset.
        } else {
            const std::uint32_t code = byte == kEscape ? kEscape << 8 | reader.number(1) : byte;
            dict.cidKeyed = dict.cidKeyed || code == kRos;
            dict.charset = code == kCharset ? operand : dict.charset;
            dict.charStrings = code == kCharStrings ? operand : dict.charStrings;
        }
    }
    return dict;
}

std::vector<std::uint16_t> readCharset(QByteArrayView table, std::size_t position,
                                       std::uint32_t glyphs) {
    std::vector<std::uint16_t> cids{0};
    Reader reader(table, position);
    const std::uint32_t format = reader.number(1);
    while (cids.size() < glyphs) {
        const std::uint32_t first = reader.number(2);
        const std::uint32_t more = format == 0 ? 0 : reader.number(format);
        for (std::uint32_t i = 0; i <= more && cids.size() < glyphs; ++i) {
            cids.push_back(static_cast<std::uint16_t>(first + i));
        }
    }
    return cids;
}

} // namespace

std::optional<std::vector<std::uint16_t>> readCffCids(QByteArrayView table) {
    try {
        const std::size_t headerSize = Reader(table, 2).number(1);
        const Index names = readIndex(table, headerSize);
        const TopDict dict = readTopDict(table, readIndex(table, names.end));
        if (!dict.cidKeyed) {
            return std::nullopt;
        }
        const std::uint32_t glyphs = readIndex(table, dict.charStrings).count;
        constexpr std::size_t kPredefinedCharsets = 3;
        if (dict.charset >= kPredefinedCharsets) {
            return readCharset(table, dict.charset, glyphs);
        }
        std::vector<std::uint16_t> identity(glyphs);
        for (std::uint32_t i = 0; i < glyphs; ++i) {
            identity[i] = static_cast<std::uint16_t>(i);
        }
        return identity;
    } catch (const std::out_of_range &) {
        return std::nullopt;
    }
}

} // namespace folioforge
