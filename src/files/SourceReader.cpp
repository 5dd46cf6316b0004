#include "files/SourceReader.h"

#include "error/Error.h"

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

constexpr qint64 kWindowSize = 64 << 10;
constexpr qint64 kWindowAlignment = 16 << 10;

} // namespace

void SourceReader::closeFile() {
    m_open.reset();
    m_window = {};
}

void SourceReader::beginAnew() {
    closeFile();
    m_failure.reset();
}

void SourceReader::requireNoFailure() const {
    if (m_failure) {
        throw Error(*m_failure);
    }
}

void SourceReader::finishFile() {
    if (m_open) {
        m_open->requireUnchanged();
        closeFile();
    }
}

void SourceReader::openFile(const FileVersion &file) {
    if (m_open && m_open->version() == file) {
        return;
    }
    finishFile();
    m_open = SourceFile::open(file.path, m_calls);
    if (m_open->version() != file) {
        throwFileChanged(file.path);
    }
}

std::size_t SourceReader::readThroughWindow(qint64 offset, std::span<char> target) {
    const auto wanted =
        std::min(static_cast<qint64>(target.size()), m_open->version().size - offset);
    if (wanted <= 0) {
        return 0;
    }
    if (offset < m_windowStart || offset + wanted > m_windowStart + m_window.size()) {
        m_windowStart = offset / kWindowAlignment * kWindowAlignment;
        m_window.resize(kWindowSize);
        m_window.truncate(m_open->readAt(m_windowStart, {m_window.data(), kWindowSize}));
    }
    const qint64 available = std::min(wanted, m_windowStart + m_window.size() - offset);
    if (available <= 0) {
        return 0;
    }
    std::memcpy(target.data(), m_window.constData() + (offset - m_windowStart),
                static_cast<std::size_t>(available));
    return static_cast<std::size_t>(available);
}

template<typename Step> auto SourceReader::keepingFailure(const Step &step) {
    try {
        return step();
    } catch (const Error &error) {
        closeFile();
        if (!m_failure) {
            m_failure = error.reason();
        }
        throw;
    }
}

std::size_t SourceReader::read(const FileVersion &file, qint64 offset, std::span<char> target) {
    return keepingFailure([&] {
        openFile(file);
        constexpr std::size_t kLargeRead = kWindowSize - kWindowAlignment;
        return target.size() >= kLargeRead
                   ? static_cast<std::size_t>(m_open->readAt(offset, target))
                   : readThroughWindow(offset, target);
    });
}

void SourceReader::finish() {
    keepingFailure([&] { finishFile(); });
}

std::span<const char> SourceReader::view(const FileVersion &file, qint64 offset, qint64 size) {
    if (m_view.size() < size) {
        m_view = QByteArray(size, Qt::Uninitialized);
    }
    const std::span<char> target(m_view.data(), static_cast<std::size_t>(size));
    if (read(file, offset, target) != target.size()) {
        m_failure = u"The file %1 ended too early"_s.arg(file.path);
        throw Error(*m_failure);
    }
    return target;
}

} // namespace folioforge
