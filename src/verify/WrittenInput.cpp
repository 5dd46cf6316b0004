// SPDX-License-Identifier: Apache-2.0

#include "verify/WrittenInput.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <string_view>

namespace folioforge {

WrittenInput::WrittenInput(std::string name, qint64 size, ReadBytes readBytes)
    : m_name(std::move(name))
    , m_size(size)
    , m_readBytes(std::move(readBytes)) {}

std::span<const char> WrittenInput::bytesHere() {
    constexpr qint64 kWindow = 1 << 16;
    const qint64 end = m_windowStart + std::ssize(m_window);
    if (m_position < m_windowStart || m_position >= end) {
        m_window.resize(
            static_cast<std::size_t>(std::clamp<qint64>(m_size - m_position, 0, kWindow)));
        m_windowStart = m_position;
        m_window.resize(static_cast<std::size_t>(m_readBytes(m_position, m_window)));
    }
    return std::span<const char>(m_window).subspan(
        static_cast<std::size_t>(m_position - m_windowStart));
}

qpdf_offset_t WrittenInput::findAndSkipNextEOL() {
    constexpr std::string_view kLineEnds = "\r\n";
    bool isLineEnd = false;
    qint64 lineEnd = 0;
    while (true) {
        const auto here = bytesHere();
        if (here.empty()) {
            return isLineEnd ? lineEnd : m_position;
        }
        const std::string_view piece(here.data(), here.size());
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

void WrittenInput::seek(qpdf_offset_t offset, int whence) {
    const qint64 base = whence == SEEK_SET ? 0 : whence == SEEK_END ? m_size : m_position;
    if (offset < -base) {
        throw std::runtime_error("seek before the beginning of the file");
    }
    m_position = offset > m_size - base ? m_size : base + offset;
}

size_t WrittenInput::read(char *target, size_t length) {
    last_offset = m_position;
    size_t got = 0;
    while (got < length) {
        constexpr size_t kLarge = 1 << 16;
        if (length - got >= kLarge) { // Data of streams need no window.
            const qint64 size = m_readBytes(m_position, {target + got, length - got});
            m_position += size;
            return got + static_cast<size_t>(size);
        }
        const auto here = bytesHere();
        if (here.empty()) {
            break;
        }
        const size_t size = std::min(here.size(), length - got);
        std::copy_n(here.data(), size, target + got);
        got += size;
        m_position += static_cast<qint64>(size);
    }
    return got;
}

void WrittenInput::unreadCh([[maybe_unused]] char ch) {
    m_position = std::max<qint64>(0, m_position - 1);
}

} // namespace folioforge
