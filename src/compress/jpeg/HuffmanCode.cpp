#include "compress/jpeg/HuffmanCode.h"

#include <algorithm>
#include <span>

namespace folioforge {

std::optional<HuffmanCode> HuffmanCode::of(const JHUFF_TBL *table, int largest) {
    if (!table) {
        return std::nullopt;
    }
    unsigned room = 1;
    std::size_t count = 0;
    for (int length = 1; length <= kMaxCodeLength; ++length) {
        if (table->bits[length] >= 2 * room) {
            return std::nullopt;
        }
        room = 2 * room - table->bits[length];
        count += table->bits[length];
    }
    const std::span values(table->huffval);
    const bool isInOrder =
        count <= values.size() &&
        std::ranges::all_of(values.first(count), [&](int value) { return value <= largest; });
    return isInOrder ? std::optional(HuffmanCode(*table)) : std::nullopt;
}

HuffmanCode::HuffmanCode(const JHUFF_TBL &table)
    : m_short(1 << kShortBits) {
    unsigned code = 0;
    for (int length = 1; length <= kMaxCodeLength; ++length) {
        const auto index = static_cast<std::size_t>(length);
        m_distance[index] = code - static_cast<unsigned>(m_values.size());
        for (int i = 0; i < table.bits[length]; ++i) {
            const UINT8 value = table.huffval[m_values.size()];
            m_values.push_back(value);
            add(code++, {value, static_cast<std::uint8_t>(length)});
        }
        m_end[index] = code;
        code <<= 1;
    }
}

void HuffmanCode::add(unsigned code, HuffmanSymbol symbol) {
    if (symbol.bits > kShortBits) {
        return;
    }
    const int free = kShortBits - symbol.bits;
    std::fill_n(&m_short[std::size_t(code) << free], 1 << free, symbol);
}

HuffmanSymbol HuffmanCode::longSymbol(std::uint64_t bits) const {
    for (int length = kShortBits + 1; length <= kMaxCodeLength; ++length) {
        const auto index = static_cast<std::size_t>(length);
        const auto code = static_cast<unsigned>(bits >> (64 - length));
        if (code < m_end[index]) {
            return {m_values[code - m_distance[index]], static_cast<std::uint8_t>(length)};
        }
    }
    return {};
}

} // namespace folioforge
