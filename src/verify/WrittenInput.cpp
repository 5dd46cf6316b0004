// SPDX-License-Identifier: Apache-2.0

#include "verify/WrittenInput.h"

#include <utility>

namespace folioforge {
namespace {

constexpr std::size_t kInputWindow = 1 << 16; // The library asks for few bytes at a time.

} // namespace

WrittenInput::WrittenInput(std::string name, qint64 size, ReadBytes readBytes)
    : PieceInput(std::move(name))
    , m_readBytes(std::move(readBytes))
    , m_window(m_readBytes, kInputWindow) {
    m_end = size;
}

std::string_view WrittenInput::pieceAt(qint64 position, std::span<char> room) {
    // Data of streams need no window.
    return room.size() < kInputWindow
               ? m_window.at(position)
               : std::string_view(room.data(),
                                  static_cast<std::size_t>(m_readBytes(position, room)));
}

} // namespace folioforge
