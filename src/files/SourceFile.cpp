// SPDX-License-Identifier: Apache-2.0

#include "files/SourceFile.h"

#include "error/Reasons.h"

#include <QFile>

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace folioforge {

namespace {

[[noreturn]] void failToOpen() {
    const int reason = errno; // Translating may set it.
    throw systemError(Reasons::tr("Cannot open the file"), reason);
}

[[noreturn]] void failToRead() {
    const int reason = errno;
    throw systemError(Reasons::tr("Cannot read the file"), reason);
}

FileVersion versionOf(const QString &path, const struct stat &status) {
    if (!S_ISREG(status.st_mode)) {
        throw Error(Reasons::tr("It is not a regular file"));
    }
    const timespec time = modifiedAt(status);
    return {path, status.st_size, qint64{time.tv_sec}, qint64{time.tv_nsec}};
}

FileVersion versionOf(const QString &path, const FileDescriptor &descriptor) {
    struct stat status = {};
    if (::fstat(descriptor.get(), &status) != 0) {
        failToRead();
    }
    return versionOf(path, status);
}

} // namespace

timespec modifiedAt(const struct stat &status) {
#ifdef __APPLE__
    return status.st_mtimespec;
#else
    return status.st_mtim;
#endif
}

Error fileEndsTooEarly() {
    return Error(Reasons::tr("The file ends too early"));
}

void throwFileChanged(const QString &path) {
    throw Error(Reasons::tr("The file %1 was changed while it was being converted").arg(path));
}

FileVersion FileVersion::of(const QString &path) {
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        failToOpen();
    }
    return versionOf(path, status);
}

QDateTime FileVersion::modified() const {
    constexpr qint64 kNanosOfAMillisecond = 1'000'000;
    return QDateTime::fromSecsSinceEpoch(modifiedSeconds)
        .addMSecs(modifiedNanos / kNanosOfAMillisecond);
}

std::string FileVersion::key() const {
    return path.toStdString() + '\0' + std::to_string(size) + ' ' +
           std::to_string(modifiedSeconds) + ' ' + std::to_string(modifiedNanos);
}

SourceFile::SourceFile(FileDescriptor descriptor, FileVersion version)
    : m_descriptor(std::move(descriptor))
    , m_version(std::move(version)) {}

SourceFile SourceFile::open(const QString &path, SystemCalls &calls) {
    FileVersion::of(path);
    // Another file may take the name now. Without O_NONBLOCK a pipe would make the program wait.
    constexpr int kFlags = O_RDONLY | O_NONBLOCK | O_CLOEXEC;
    const QByteArray name = QFile::encodeName(path);
    FileDescriptor descriptor(
        uninterrupted([&] { return calls.open(name.constData(), kFlags, 0); }), calls);
    if (!descriptor.isOpen()) {
        failToOpen();
    }
    FileVersion version = versionOf(path, descriptor);
    return {std::move(descriptor), std::move(version)};
}

void SourceFile::requireUnchanged() const {
    if (versionOf(m_version.path, m_descriptor) != m_version) {
        throwFileChanged(m_version.path);
    }
}

qint64 SourceFile::readAt(qint64 at, std::span<char> target) const {
    const qint64 got = m_descriptor.readAt(at, target);
    if (got < 0) {
        *m_failure = errno;
        failToRead();
    }
    return got;
}

void SourceFile::requireNoFailure() const {
    if (const int failure = *m_failure) {
        errno = failure;
        failToRead();
    }
}

QByteArray SourceFile::readAll() const {
    constexpr qint64 kStep = 64 << 10;
    QByteArray bytes;
    qint64 got = 0;
    // To the end, wherever it is: some file systems (procfs) give 0 as the size of every file.
    while (got == bytes.size()) {
        bytes.resize(std::max(m_version.size + 1, got + kStep));
        got += readAt(got, std::span<char>(bytes.data(), static_cast<std::size_t>(bytes.size()))
                               .subspan(static_cast<std::size_t>(got)));
    }
    bytes.truncate(got);
    requireUnchanged();
    return bytes;
}

FileView SourceFile::view() const {
    return {*this, 0, m_version.size};
}

FileView::FileView(const SourceFile &file, qint64 offset, qint64 size)
    : m_file(&file)
    , m_offset(offset)
    , m_size(size) {}

FileView::FileView(QByteArray bytes)
    : m_bytes(std::move(bytes))
    , m_size(m_bytes.size()) {}

qint64 FileView::readAt(qint64 at, std::span<char> target) const {
    if (m_file != nullptr) {
        return m_file->readAt(m_offset + at, target);
    }
    std::copy_n(m_bytes.cbegin() + m_offset + at, target.size(), target.begin());
    return static_cast<qint64>(target.size());
}

qint64 FileView::readInto(qint64 at, std::span<uchar> target) const {
    if (at < 0 || at >= m_size) {
        return 0;
    }
    const auto wanted = std::min<qint64>(static_cast<qint64>(target.size()), m_size - at);
    return readAt(at, {reinterpret_cast<char *>(target.data()), static_cast<std::size_t>(wanted)});
}

QByteArray FileView::read(qint64 at, qint64 length) const {
    if (at < 0 || at >= m_size || length <= 0) {
        return {};
    }
    QByteArray bytes(std::min(length, m_size - at), Qt::Uninitialized);
    bytes.truncate(readAt(at, {bytes.data(), static_cast<std::size_t>(bytes.size())}));
    return bytes;
}

QByteArray FileView::readExactly(qint64 at, qint64 length) const {
    QByteArray bytes = read(at, length);
    if (bytes.size() != length) {
        throw fileEndsTooEarly();
    }
    return bytes;
}

FileView FileView::part(qint64 at, qint64 length) const {
    if (at < 0 || length < 0 || at > m_size || length > m_size - at) {
        throw fileEndsTooEarly();
    }
    FileView view = *this;
    view.m_offset += at;
    view.m_size = length;
    return view;
}

} // namespace folioforge
