// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace folioforge {

/// Holds the characters of pages against those of a text, whatever rows and pages they stand on:
/// blanks, control characters and such as show nothing do not count, and letters that only look
/// different, as ligatures do, are the same.
class TextMatch {
  public:
    explicit TextMatch(const QString &text)
        : m_left(charactersOf(text)) {}

    /// Takes the characters of the next page; false where they are not what comes next.
    bool take(const QString &page);
    /// Whether nothing of the text is left.
    [[nodiscard]] bool isDone() const { return m_at >= m_left.size(); }

    /// Those of `text` that count.
    static QString charactersOf(const QString &text);

  private:
    QString m_left;
    qsizetype m_at = 0;
};

} // namespace folioforge
