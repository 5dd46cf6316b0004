// SPDX-License-Identifier: Apache-2.0

#include "pdf/fonts/CodeTable.h"

namespace folioforge {

std::optional<std::uint16_t> CodeTable::nextCode(char32_t character) {
    constexpr char32_t kFirstAscii = 0x20;
    constexpr char32_t kLastAscii = 0x7E;
    if (character >= kFirstAscii && character <= kLastAscii) {
        return static_cast<std::uint16_t>(character);
    }
    if (m_nextOneByte <= kLastOneByte) {
        return m_nextOneByte++;
    }
    if (m_nextTwoByte <= kLastTwoByte) {
        return static_cast<std::uint16_t>(m_nextTwoByte++);
    }
    return std::nullopt;
}

std::optional<std::uint16_t> CodeTable::add(std::uint16_t glyph, char32_t character) {
    const auto code = nextCode(character);
    if (code) {
        m_entries.push_back({*code, glyph, character});
    }
    return code;
}

bool CodeTable::addAt(std::uint16_t code, std::uint16_t glyph, char32_t character) {
    if (!m_taken.insert(code).second) {
        return false;
    }
    m_entries.push_back({code, glyph, character});
    return true;
}

} // namespace folioforge
