#include "cli/ProgressLine.h"

#include <algorithm>

#include <unistd.h>

namespace folioforge {

ProgressLine::ProgressLine(Console &console, ProgressMode mode, std::vector<QString> names)
    : m_console(console)
    , m_enabled(mode == ProgressMode::Always ||
                (mode == ProgressMode::Auto && ::isatty(STDERR_FILENO) == 1))
    , m_names(std::move(names)) {}

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

void ProgressLine::entryDone(std::size_t index, bool /*written*/) {
    m_current = std::min(m_first + index + 1, m_names.size() - 1);
}

void ProgressLine::show() {
    if (!m_enabled || m_names.empty()) {
        return;
    }
    // The line must not wrap, or it could not be taken away again.
    constexpr qsizetype kLongestName = 48;
    m_console.showProgress(QStringLiteral("%1 of %2  %3 %  %4")
                               .arg(m_current + 1)
                               .arg(m_names.size())
                               .arg(static_cast<int>(m_value))
                               .arg(m_names[m_current].right(kLongestName)));
}

} // namespace folioforge
