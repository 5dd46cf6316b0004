// SPDX-License-Identifier: Apache-2.0

#include "files/SourceReader.h"

#include "error/Error.h"
#include "error/Reasons.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include <sys/resource.h>

namespace folioforge {

namespace {

constexpr qint64 kWindowSize = 64 << 10;
constexpr qint64 kWindowAlignment = 16 << 10;

/// A part of the descriptors that the system allows: the rest of the program needs some too.
std::size_t maxKeptFiles() {
    constexpr rlim_t kShare = 4;
    constexpr rlim_t kMaxKept = 256;
    rlimit limit{};
    return ::getrlimit(RLIMIT_NOFILE, &limit) == 0 ? std::min(limit.rlim_cur / kShare, kMaxKept)
                                                   : 0;
}

} // namespace

SourceReader::SourceReader(SystemCalls &calls)
    : m_calls(calls)
    , m_maxKept(maxKeptFiles()) {}

void SourceReader::leaveFile() {
    m_open.reset();
    m_window = {};
}

void SourceReader::keepOpen(std::shared_ptr<const SourceFile> file) {
    if (m_kept.size() < m_maxKept && !keptFile(file->version())) {
        m_kept.push_back(std::move(file));
    }
}

std::shared_ptr<const SourceFile> SourceReader::keptFile(const FileVersion &version) const {
    const auto kept = std::ranges::find(m_kept, version, &SourceFile::version);
    return kept != m_kept.end() ? *kept : nullptr;
}

void SourceReader::handOverTo(std::shared_ptr<SourceReader> other) {
    for (auto &file : m_kept) {
        other->keepOpen(std::move(file));
    }
    m_kept.clear();
    leaveFile();
    m_other = std::move(other);
}

void SourceReader::beginAnew() {
    leaveFile();
    m_failure.reset();
}

void SourceReader::requireNoFailure() const {
    if (m_failure) {
        throw Error(*m_failure);
    }
}

void SourceReader::fail(const QString &reason) {
    if (m_other) {
        m_other->fail(reason);
    }
    leaveFile();
    if (!m_failure) {
        m_failure = reason;
    }
    throw Error(reason);
}

void SourceReader::finishFile() {
    if (m_open) {
        m_open->requireUnchanged();
        leaveFile();
    }
}

void SourceReader::openFile(const FileVersion &file) {
    if (m_open && m_open->version() == file) {
        return;
    }
    finishFile();
    m_open = keptFile(file);
    if (m_open) {
        m_open->requireUnchanged();
        return;
    }
    m_open = std::make_shared<const SourceFile>(SourceFile::open(file.path, m_calls));
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
        fail(error.reason());
    }
}

std::size_t SourceReader::read(const FileVersion &file, qint64 offset, std::span<char> target) {
    if (m_other) {
        return m_other->read(file, offset, target);
    }
    return keepingFailure([&] {
        openFile(file);
        constexpr std::size_t kLargeRead = kWindowSize - kWindowAlignment;
        return target.size() >= kLargeRead
                   ? static_cast<std::size_t>(m_open->readAt(offset, target))
                   : readThroughWindow(offset, target);
    });
}

void SourceReader::finish() {
    keepingFailure([&] {
        const auto file = m_open;
        finishFile();
        if (file) {
            keepOpen(file);
        }
    });
}

std::span<const char> SourceReader::view(const FileVersion &file, qint64 offset, qint64 size) {
    if (m_view.size() < size) {
        m_view = QByteArray(size, Qt::Uninitialized);
    }
    const std::span<char> target(m_view.data(), static_cast<std::size_t>(size));
    if (read(file, offset, target) != target.size()) {
        fail(Reasons::tr("The file %1 ended too early").arg(file.path));
    }
    return target;
}

} // namespace folioforge
