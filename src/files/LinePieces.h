// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"

#include <QByteArray>

namespace folioforge {

/// Reads a file of lines a piece at a time. Each piece but the last ends with a line feed.
class LinePieces {
  public:
    /// How long a piece is in bytes, where lines are not longer.
    static constexpr qint64 kUsual = 1 << 18;

    explicit LinePieces(SourceFile file)
        : m_file(std::move(file)) {}

    /// The next piece, empty at the end of the file. Throws Error when the system cannot read or,
    /// at the end, when the file has changed since it was opened.
    QByteArray next();
    [[nodiscard]] bool isAtBegin() const { return m_at == 0; }
    [[nodiscard]] bool isAtEnd() const { return m_isAtEnd; }
    /// The next piece is the first one again.
    void rewind();
    [[nodiscard]] const SourceFile &file() const { return m_file; }

  private:
    [[nodiscard]] qint64 wanted(qint64 read) const;

    SourceFile m_file;
    qint64 m_at = 0;   ///< So many bytes of the file were read.
    QByteArray m_rest; ///< Of them, those behind the pieces so far.
    bool m_isAtEnd = false;
};

} // namespace folioforge
