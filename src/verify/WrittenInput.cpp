// SPDX-License-Identifier: Apache-2.0

#include "verify/WrittenInput.h"

#include <algorithm>
#include <utility>

namespace folioforge {

WrittenInput::WrittenInput(std::string name, qint64 size, ReadBytes readBytes)
    : PieceInput(std::move(name))
    , m_readBytes(std::move(readBytes)) {
    m_end = size;
}

std::string_view WrittenInput::pieceAt(qint64 position, std::span<char> room) {
    constexpr qint64 kWindow = 1 << 16;
    if (std::ssize(room) >= kWindow) { // Data of streams need no window.
        return {room.data(), static_cast<std::size_t>(m_readBytes(position, room))};
    }
    if (position < m_windowStart || position >= m_windowStart + std::ssize(m_window)) {
        m_window.resize(static_cast<std::size_t>(std::clamp<qint64>(m_end - position, 0, kWindow)));
        m_windowStart = position;
        m_window.resize(static_cast<std::size_t>(m_readBytes(position, m_window)));
    }
    return std::string_view(m_window.data(), m_window.size())
        .substr(static_cast<std::size_t>(position - m_windowStart));
}

} // namespace folioforge
