#include "files/SourceReader.h"

#include "error/Error.h"
#include "files/ImageFile.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

constexpr qint64 kWindowSize = 64 << 10;
constexpr qint64 kWindowAlignment = 16 << 10;

[[noreturn]] void failToRead() {
    throw Error(u"Cannot read the file: %1"_s.arg(QString::fromLocal8Bit(std::strerror(errno))));
}

} // namespace

SourceFile SourceFile::examine(const QString &path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        failToRead();
    }
    if (!S_ISREG(status.st_mode)) {
        throw Error(u"This is not a regular file"_s);
    }
    return {path, status.st_size, folioforge::modifiedNanos(status)};
}

SourceReader::~SourceReader() {
    closeFile();
}

void SourceReader::closeFile() {
    if (m_fd >= 0) {
        ::close(m_fd);
        m_fd = -1;
    }
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

void SourceReader::requireUnchanged() const {
    struct stat status {};
    if (::fstat(m_fd, &status) != 0) {
        failToRead();
    }
    if (!S_ISREG(status.st_mode) || status.st_size != m_file.size ||
        modifiedNanos(status) != m_file.modifiedNanos) {
        throw Error(u"The file %1 was changed while it was being converted"_s.arg(m_file.path));
    }
}

void SourceReader::openFile(const SourceFile &file) {
    if (m_fd >= 0 && m_file == file) {
        return;
    }
    if (m_fd >= 0) {
        requireUnchanged();
    }
    closeFile();
    m_file = file;
    // Without O_NONBLOCK a pipe that took the file's place would make the program wait for ever.
    m_fd = ::open(QFile::encodeName(file.path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (m_fd < 0) {
        failToRead();
    }
    requireUnchanged();
}

std::size_t SourceReader::readFromDisk(qint64 offset, std::span<char> target) const {
    std::size_t done = 0;
    while (done < target.size()) {
        const ssize_t got = uninterrupted([&] {
            return m_calls.pread(m_fd, target.data() + done, target.size() - done,
                                 offset + static_cast<qint64>(done));
        });
        if (got < 0) {
            failToRead();
        }
        if (got == 0) {
            break;
        }
        done += static_cast<std::size_t>(got);
    }
    return done;
}

std::size_t SourceReader::readThroughWindow(qint64 offset, std::span<char> target) {
    const auto wanted = std::min(static_cast<qint64>(target.size()), m_file.size - offset);
    if (wanted <= 0) {
        return 0;
    }
    if (offset < m_windowStart || offset + wanted > m_windowStart + m_window.size()) {
        m_windowStart = offset / kWindowAlignment * kWindowAlignment;
        m_window.resize(kWindowSize);
        const auto got =
            readFromDisk(m_windowStart, {m_window.data(), static_cast<std::size_t>(kWindowSize)});
        m_window.truncate(static_cast<qsizetype>(got));
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

std::size_t SourceReader::read(const SourceFile &file, qint64 offset, std::span<char> target) {
    return keepingFailure([&] {
        openFile(file);
        constexpr std::size_t kLargeRead = kWindowSize - kWindowAlignment;
        return target.size() >= kLargeRead ? readFromDisk(offset, target)
                                           : readThroughWindow(offset, target);
    });
}

void SourceReader::finish() {
    keepingFailure([&] {
        if (m_fd >= 0) {
            requireUnchanged();
            closeFile();
        }
    });
}

std::span<const char> SourceReader::view(const SourceFile &file, qint64 offset, qint64 size) {
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
