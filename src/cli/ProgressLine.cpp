// SPDX-License-Identifier: Apache-2.0

#include "cli/ProgressLine.h"

#include "files/Printable.h"

#include <QList>

#include <algorithm>
#include <cmath>

#include <unistd.h>
#include <wchar.h>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// The columns that `character` takes on a terminal. The C library is asked because the shell and
/// most terminals ask it, too; what it does not know may be as wide as any.
int columnsOf(char32_t character) {
    constexpr int kMax = 2;
    const int columns = ::wcwidth(static_cast<wchar_t>(character));
    return columns < 0 ? kMax : columns;
}

/// The end of `text` that has room in `maxColumns` columns.
QString lastColumns(const QString &text, int maxColumns) {
    const auto characters = text.toUcs4();
    qsizetype units = 0;
    qsizetype kept = 0;
    int columns = 0;
    for (qsizetype at = characters.size() - 1; at >= 0; --at) {
        const int wide = columnsOf(characters[at]);
        columns += wide;
        if (columns > maxColumns) {
            break;
        }
        units += QChar::requiresSurrogates(characters[at]) ? 2 : 1;
        if (wide > 0) { // Marks stay with the character that they stand on.
            kept = units;
        }
    }
    return text.right(kept);
}

} // namespace

ProgressLine::ProgressLine(Console &console, ProgressMode mode, const std::vector<QString> &names)
    : m_console(console)
    , m_enabled(mode == ProgressMode::Always ||
                (mode == ProgressMode::Auto && ::isatty(STDERR_FILENO) == 1))
    , m_names(names) {}

void ProgressLine::beginPDF(std::size_t first) {
    m_first = first;
    m_current = first;
    m_value = 0;
    show();
}

void ProgressLine::finish() {
    if (m_enabled) {
        m_console.showProgress(QString());
    }
}

void ProgressLine::progressChanged(float value) {
    m_value = value;
    show();
}

void ProgressLine::entryDone(std::size_t index) {
    m_current = std::min(m_first + index + 1, m_names.size() - 1);
}

void ProgressLine::show() {
    if (!m_enabled || m_names.empty()) {
        return;
    }
    // The line must not wrap, or it could not be taken away again.
    constexpr int kMaxNameLength = 48;
    constexpr float kPercent = 100;
    m_console.showProgress(u"%1 of %2  %3 %  %4"_s.arg(m_current + 1)
                               .arg(m_names.size())
                               .arg(static_cast<int>(std::lround(m_value * kPercent / m_full)))
                               .arg(lastColumns(printable(m_names[m_current]), kMaxNameLength)));
}

} // namespace folioforge
