// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/SourceInput.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <stdexcept>
#include <string_view>

namespace folioforge {

namespace {

/// More than the bytes at the end in which the library looks for "startxref".
constexpr qint64 kBlanksThatHideTheTable = 2048;

} // namespace

SourceInput::SourceInput(FileVersion file, std::shared_ptr<SourceReader> reader, Table table)
    : m_file(std::move(file))
    , m_reader(std::move(reader))
    , m_end(m_file.size + (table == Table::Hidden ? kBlanksThatHideTheTable : 0))
    , m_name(m_file.path.toStdString()) {}

qpdf_offset_t SourceInput::findAndSkipNextEOL() {
    constexpr std::string_view kLineEnds = "\r\n";
    std::array<char, 1024> chunk{};
    while (true) {
        const auto got = m_reader->read(m_file, m_position, chunk);
        const std::string_view text(chunk.data(), got);
        if (text.empty()) {
            m_position = std::max(m_position, m_end);
            return m_position;
        }
        const auto found = text.find_first_of(kLineEnds);
        if (found == std::string_view::npos) {
            m_position += static_cast<qint64>(got);
            continue;
        }
        const qint64 lineEnd = m_position + static_cast<qint64>(found);
        m_position = lineEnd;
        char ch = 0;
        while (m_reader->read(m_file, m_position, {&ch, 1}) == 1 &&
               kLineEnds.find(ch) != std::string_view::npos) {
            ++m_position;
        }
        return lineEnd;
    }
}

std::string const &SourceInput::getName() const {
    return m_name;
}

qpdf_offset_t SourceInput::tell() {
    return m_position;
}

void SourceInput::seek(qpdf_offset_t offset, int whence) {
    const qint64 base = whence == SEEK_SET ? 0 : whence == SEEK_END ? m_end : m_position;
    if (offset < -base) {
        throw std::runtime_error("seek before the beginning of the file");
    }
    // A length that the file claims may lead anywhere. Whatever is beyond the end is the end, where
    // the library finds that the length is wrong.
    m_position = offset > m_end - base ? m_end : base + offset;
}

void SourceInput::rewind() {
    m_position = 0;
}

size_t SourceInput::read(char *target, size_t length) {
    last_offset = m_position;
    size_t got = m_reader->read(m_file, m_position, {target, length});
    m_position += static_cast<qint64>(got);
    for (; got < length && m_position < m_end; ++got, ++m_position) {
        target[got] = ' ';
    }
    if (got == 0 && length > 0) {
        // The library takes the end of the file from here.
        last_offset = std::min(m_position, m_end);
    }
    return got;
}

void SourceInput::unreadCh([[maybe_unused]] char ch) {
    m_position = std::max<qint64>(0, m_position - 1);
}

} // namespace folioforge
