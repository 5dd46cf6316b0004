// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "files/LinePieces.h"

#include <QString>
#include <QStringView>

#include <optional>
#include <utility>

namespace folioforge {

/// Throws Error unless the file at `path` can be read as a text: a regular file of up to 2 GB that
/// this user may read. The file is not opened.
void requireReadableText(const QString &path);

/// The text of a text file, read a piece at a time: a text may have more than memory has room for.
class SourceText {
  public:
    /// A text that is in memory.
    explicit SourceText(QString text, Warnings warnings = {})
        : m_text(std::move(text))
        , m_warnings(std::move(warnings)) {}

    /// The text of the file at `path`, read through `calls`; a byte order mark is not part of it.
    /// Without an `encoding`, as decodeText() takes it, it is UTF-8, and bytes that are not give no
    /// text and a warning; with one it is read at once. Throws Error when the file cannot be read,
    /// is not of the encoding that was asked for, or memory has no room for it.
    static SourceText open(const QString &path, SystemCalls &calls = SystemCalls::system(),
                           const QString &encoding = {});

    /// What was lost in reading.
    [[nodiscard]] const Warnings &warnings() const { return m_warnings; }
    /// The next piece of the text, as TextPieces has it. Throws Error when the file cannot be read
    /// further or has changed.
    QStringView next();
    /// All that follows; a null string when the file could not be read as UTF-8.
    QString rest();

  private:
    explicit SourceText(LinePieces lines)
        : m_lines(std::move(lines)) {}

    static SourceText inUtf8(LinePieces lines);

    QString m_text;                    ///< What is not given yet of a text in memory.
    std::optional<LinePieces> m_lines; ///< Of another one.
    QString m_given;                   ///< The last piece.
    Warnings m_warnings;
};

} // namespace folioforge
