// SPDX-License-Identifier: Apache-2.0

#include "files/LinePieces.h"

#include <algorithm>
#include <span>
#include <utility>

namespace folioforge {

/// How many bytes to ask for where `read` bytes hold no end of a line: one more than the file has
/// left tells its end. Some file systems (procfs) give 0 as the size of every file.
qint64 LinePieces::wanted(qint64 read) const {
    const qint64 left = m_file.version().size - m_at;
    const qint64 usual = std::max(kUsual, read);
    return left < 0 ? usual : std::min(usual, left + 1);
}

QByteArray LinePieces::next() {
    QByteArray piece = std::exchange(m_rest, {});
    qsizetype end = 0;
    while (end == 0 && !m_isAtEnd) {
        const qsizetype before = piece.size();
        piece.resize(before + wanted(before));
        const auto target = std::span(piece.data(), static_cast<std::size_t>(piece.size()));
        const qint64 got = m_file.readAt(m_at, target.subspan(static_cast<std::size_t>(before)));
        m_at += got;
        m_isAtEnd = before + got < piece.size();
        piece.truncate(before + got);
        const qsizetype feed = QByteArrayView(piece).sliced(before).lastIndexOf('\n');
        end = m_isAtEnd ? piece.size() : feed < 0 ? 0 : before + feed + 1;
    }
    if (m_isAtEnd) {
        m_file.requireUnchanged();
    }
    m_rest = piece.sliced(end);
    piece.truncate(end);
    return piece;
}

void LinePieces::rewind() {
    m_at = 0;
    m_rest.clear();
    m_isAtEnd = false;
}

} // namespace folioforge
