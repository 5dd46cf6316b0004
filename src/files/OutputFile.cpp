// SPDX-License-Identifier: Apache-2.0

#include "files/OutputFile.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "files/PartFiles.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace folioforge {

namespace {

constexpr std::size_t kBufferSize = 1 << 18;

constexpr mode_t kNewFileMode = 0666;
constexpr mode_t kOwnerMode = S_IRUSR | S_IWUSR;

constexpr const char *kNotCreated = QT_TRANSLATE_NOOP("Reasons", "Cannot create a file in %1");
constexpr const char *kNotWritten = QT_TRANSLATE_NOOP("Reasons", "Cannot write a file in %1");
constexpr const char *kNotReadBack = QT_TRANSLATE_NOOP("Reasons", "Cannot read back a file in %1");
constexpr const char *kNotFlushed = QT_TRANSLATE_NOOP("Reasons", "Cannot flush a file in %1");
constexpr const char *kNotNamed = QT_TRANSLATE_NOOP("Reasons", "Cannot name a file in %1");

bool isNoNamelessFile(int error) {
    return error == EOPNOTSUPP || error == EISDIR || error == EINVAL || error == ENOENT ||
           error == ENOSYS;
}

bool isNoFlush(int error) {
    return error == EINVAL || error == EOPNOTSUPP || error == ENOTSUP || error == ENOSYS;
}

bool canLinkByDescriptor(int fd) {
    const std::string path = "/proc/self/fd/" + std::to_string(fd);
    return ::access(path.c_str(), F_OK) == 0;
}

} // namespace

OutputFile::OutputFile(const QString &path, SystemCalls &calls, Readers readers)
    : m_calls(calls)
    , m_newMode(readers == Readers::OwnerAlone ? kOwnerMode : kNewFileMode) {
    const QFileInfo info(path);
    m_folder = QFile::encodeName(info.path()).toStdString();
    m_file = FileDescriptor(
        uninterrupted([&] { return m_calls.openAnonymous(m_folder.c_str(), m_newMode); }), m_calls);
    if (m_file.isOpen() && !canLinkByDescriptor(m_file.get())) {
        m_file.close();
        errno = EOPNOTSUPP;
    }
    if (!m_file.isOpen()) {
        if (!isNoNamelessFile(errno)) {
            fail(kNotCreated);
        }
        openNamed(QFile::encodeName(info.fileName()));
    }
    m_buffer.reserve(kBufferSize);
}

OutputFile::~OutputFile() {
    m_file.close();
    if (m_part) {
        m_calls.unlink(m_part->path().c_str());
    }
}

void OutputFile::fail(const char *what) const {
    const int reason = errno;
    throw systemError(Reasons::tr(what).arg(QFile::decodeName(m_folder.c_str())), reason);
}

void OutputFile::openNamed(const QByteArray &fileName) {
    constexpr int kAttempts = 16;
    bool opened = false;
    for (int attempt = 0; !opened && attempt < kAttempts; ++attempt) {
        opened = openPart(partPath(m_folder, fileName));
    }
    if (!opened) {
        fail(kNotCreated);
    }
    // The mode of the empty file shows the umask. Until the file is complete, only its owner may
    // read it.
    struct stat status = {};
    constexpr mode_t kPermissionBits = 07777;
    m_mode = ::fstat(m_file.get(), &status) == 0 ? status.st_mode & kPermissionBits : kOwnerMode;
    // File systems without permissions refuse this; their files keep the mode of the mount.
    m_calls.fchmod(m_file.get(), kOwnerMode);
}

/// False when the caller shall try another name: this one is taken, or another process removed the
/// file as abandoned before it was locked.
bool OutputFile::openPart(const std::string &path) {
    auto part = std::make_unique<PartFile>(path);
    constexpr int kFlags = O_CREAT | O_EXCL | O_NOFOLLOW | O_RDWR | O_CLOEXEC;
    m_file = FileDescriptor(
        uninterrupted([&] { return m_calls.open(path.c_str(), kFlags, m_newMode); }), m_calls);
    if (!m_file.isOpen() && errno == EEXIST) {
        return false;
    }
    if (!m_file.isOpen()) {
        fail(kNotCreated);
    }
    if (!lockPart(m_file.get()) || isRemoved(m_file.get())) {
        m_file.close();
        errno = EBUSY;
        return false;
    }
    m_part = std::move(part);
    return true;
}

void OutputFile::append(std::span<const char> bytes) {
    if (!m_file.write(bytes)) {
        fail(kNotWritten);
    }
}

void OutputFile::drain() {
    if (!m_buffer.empty()) { // Several may read a file that is finished.
        append(m_buffer);
        m_buffer.clear();
    }
}

void OutputFile::write(std::span<const char> bytes) {
    if (m_buffer.size() + bytes.size() > kBufferSize) {
        drain();
    }
    if (bytes.size() >= kBufferSize) {
        append(bytes);
    } else {
        m_buffer.append(bytes.data(), bytes.size());
    }
    m_size += static_cast<qint64>(bytes.size());
}

qint64 OutputFile::readInto(qint64 offset, std::span<char> target) {
    drain();
    const qint64 got = m_file.readAt(offset, target);
    if (got < 0) {
        fail(kNotReadBack);
    }
    return got;
}

Warnings OutputFile::finish(Flush flush) {
    drain();
    if (m_part && m_calls.fchmod(m_file.get(), m_mode) != 0 && errno != EPERM && errno != ENOTSUP) {
        fail(kNotWritten);
    }
    if (flush == Flush::Never || uninterrupted([&] { return m_calls.fsync(m_file.get()); }) == 0) {
        return {};
    }
    if (!isNoFlush(errno)) {
        fail(kNotFlushed);
    }
    return {
        {WarningCode::NotFlushed, Reasons::tr("The file system cannot flush files to the disk")}};
}

bool OutputFile::renamePart(const char *path) {
    const char *part = m_part->path().c_str();
    if (m_calls.renameExclusive(part, path) == 0) {
        return true;
    }
    if (errno != ENOSYS && errno != EINVAL && errno != EOPNOTSUPP) {
        return false;
    }
    if (m_calls.link(part, path) == 0) {
        m_calls.unlink(part);
        return true;
    }
    if (errno == EEXIST) {
        return false;
    }
    // The file system has neither call: take the name with an empty file and replace that one.
    FileDescriptor held(
        m_calls.open(path, O_CREAT | O_EXCL | O_NOFOLLOW | O_WRONLY | O_CLOEXEC, kOwnerMode),
        m_calls);
    if (!held.isOpen()) {
        return false;
    }
    held.close();
    if (m_calls.rename(part, path) == 0) {
        return true;
    }
    const int reason = errno;
    m_calls.unlink(path);
    errno = reason;
    return false;
}

bool OutputFile::givePublicName(const char *path) {
    return m_part ? renamePart(path) : m_calls.linkAnonymous(m_file.get(), path) == 0;
}

OutputFile::Published OutputFile::publish(const QString &path, Flush flush) {
    const QByteArray name = QFile::encodeName(path);
    if (!givePublicName(name.constData())) {
        if (errno == EEXIST) {
            return Published::NameTaken;
        }
        fail(kNotNamed);
    }
    m_part.reset();
    try {
        closeFile();
    } catch (const Error &) {
        m_calls.unlink(name.constData());
        throw;
    }
    if (flush == Flush::Always) {
        syncFolder();
    }
    return Published::Yes;
}

void OutputFile::linkAsPart(const QByteArray &fileName) {
    auto part = std::make_unique<PartFile>(partPath(m_folder, fileName));
    lockPart(m_file.get());
    if (m_calls.linkAnonymous(m_file.get(), part->path().c_str()) != 0) {
        fail(kNotNamed);
    }
    m_part = std::move(part);
}

void OutputFile::replace(const QString &path, Flush flush) {
    if (!m_part) {
        linkAsPart(QFile::encodeName(QFileInfo(path).fileName()));
    }
    // Some file systems report failed writes only when the file is closed. A copy of the descriptor
    // keeps the lock.
    const FileDescriptor lock(::fcntl(m_file.get(), F_DUPFD_CLOEXEC, 0));
    closeFile();
    if (m_calls.rename(m_part->path().c_str(), QFile::encodeName(path).constData()) != 0) {
        fail(kNotNamed);
    }
    m_part.reset();
    if (flush == Flush::Always) {
        syncFolder();
    }
}

void OutputFile::closeFile() {
    if (!m_file.close() && errno != EINTR) {
        fail(kNotWritten);
    }
}

void OutputFile::syncFolder() {
    // The document is complete under its name by now. Where a folder cannot be flushed, as on many
    // network file systems, nothing better can be done.
    const FileDescriptor folder(
        m_calls.open(m_folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0), m_calls);
    if (folder.isOpen()) {
        m_calls.fsync(folder.get());
    }
}

} // namespace folioforge
