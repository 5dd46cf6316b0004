// SPDX-License-Identifier: Apache-2.0

#include "pdf/fonts/CodeTable.h"

namespace folioforge {

std::optional<std::uint16_t> CodeTable::nextCode(QStringView text) {
    constexpr char16_t kFirstAscii = 0x20;
    constexpr char16_t kLastAscii = 0x7E;
    if (text.size() == 1 && text[0] >= kFirstAscii && text[0] <= kLastAscii) {
        return text[0].unicode();
    }
    if (m_nextOneByte <= kLastOneByte) {
        return m_nextOneByte++;
    }
    if (m_nextTwoByte <= kLastTwoByte) {
        return static_cast<std::uint16_t>(m_nextTwoByte++);
    }
    return std::nullopt;
}

std::optional<std::uint16_t> CodeTable::add(std::uint16_t glyph, const QString &text) {
    const auto code = nextCode(text);
    if (code) {
        m_entries.push_back({*code, glyph, text});
    }
    return code;
}

bool CodeTable::addAt(std::uint16_t code, std::uint16_t glyph, const QString &text) {
    if (!m_taken.insert(code).second) {
        return false;
    }
    m_entries.push_back({code, glyph, text});
    return true;
}

} // namespace folioforge
