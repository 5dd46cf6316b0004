// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/PieceInput.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <stdexcept>

namespace folioforge {

qpdf_offset_t PieceInput::findAndSkipNextEOL() {
    constexpr std::string_view kLineEnds = "\r\n";
    std::array<char, 1024> bytes{};
    bool isLineEnd = false;
    qint64 lineEnd = 0;
    while (true) {
        const std::string_view piece = pieceAt(m_position, bytes);
        if (piece.empty()) {
            m_position = std::max(m_position, m_end);
            return isLineEnd ? lineEnd : m_position;
        }
        const auto found =
            isLineEnd ? piece.find_first_not_of(kLineEnds) : piece.find_first_of(kLineEnds);
        m_position += static_cast<qint64>(std::min(found, piece.size()));
        if (found == std::string_view::npos) {
            continue;
        }
        if (isLineEnd) {
            return lineEnd;
        }
        isLineEnd = true;
        lineEnd = m_position;
    }
}

void PieceInput::seek(qpdf_offset_t offset, int whence) {
    const qint64 base = whence == SEEK_SET ? 0 : whence == SEEK_END ? m_end : m_position;
    if (offset < -base) {
        throw std::runtime_error("seek before the beginning of the file");
    }
    // A length that the file claims may lead anywhere. Whatever is beyond the end is the end, where
    // the library finds that the length is wrong.
    m_position = offset > m_end - base ? m_end : base + offset;
}

size_t PieceInput::read(char *target, size_t length) {
    last_offset = m_position;
    size_t got = 0;
    while (got < length) {
        const auto piece = pieceAt(m_position, {target + got, length - got});
        if (piece.empty()) {
            break;
        }
        const size_t size = std::min(piece.size(), length - got);
        if (piece.data() != target + got) {
            std::copy_n(piece.data(), size, target + got);
        }
        got += size;
        m_position += static_cast<qint64>(size);
    }
    return got;
}

void PieceInput::unreadCh([[maybe_unused]] char ch) {
    m_position = std::max<qint64>(0, m_position - 1);
}

} // namespace folioforge
