#include "pdf/OutputFile.h"

#include "error/Error.h"
#include "pdf/PartFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace folioforge {

namespace {

constexpr std::size_t kBufferSize = 1 << 20;
/// Larger writes make the kernel look for large runs of memory for its cache. On a virtual machine
/// those are often not backed yet, and the same bytes then take three times as long.
constexpr std::size_t kWriteSize = 128 << 10;

[[noreturn]] void fail(const QString &what) {
    throw Error(QStringLiteral("%1: %2").arg(what, QString::fromLocal8Bit(std::strerror(errno))));
}

bool isNoNamelessFile(int error) {
    return error == EOPNOTSUPP || error == EISDIR || error == EINVAL || error == ENOENT ||
           error == ENOSYS;
}

bool canLinkByDescriptor(int fd) {
    const std::string path = "/proc/self/fd/" + std::to_string(fd);
    return ::access(path.c_str(), F_OK) == 0;
}

/// ".NAME.RANDOM.folioforge-part", with the name cut at a character so that the whole fits the 255
/// bytes of a file name.
QByteArray partName(const QByteArray &fileName) {
    constexpr qsizetype kMaxName = 255;
    QByteArray ending = QByteArray::number(QRandomGenerator::system()->generate64(), 36);
    ending = "." + ending + ".folioforge-part";
    QByteArray stem = fileName.left(kMaxName - 1 - ending.size());
    if (stem.size() < fileName.size()) {
        const auto isContinuation = [](char byte) {
            return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
        };
        while (!stem.isEmpty() && isContinuation(fileName.at(stem.size()))) {
            stem.chop(1);
        }
    }
    return "." + stem + ending;
}

} // namespace

OutputFile::OutputFile(const QString &path, SystemCalls &calls)
    : m_calls(calls) {
    const QFileInfo info(path);
    m_folder = QFile::encodeName(info.path()).toStdString();
    constexpr mode_t kNewFileMode = 0666;
    m_fd = m_calls.openAnonymous(m_folder.c_str(), kNewFileMode);
    if (m_fd >= 0 && !canLinkByDescriptor(m_fd)) {
        m_calls.close(m_fd);
        m_fd = -1;
        errno = EOPNOTSUPP;
    }
    if (m_fd < 0) {
        if (!isNoNamelessFile(errno)) {
            fail(QStringLiteral("Cannot create the output file"));
        }
        openNamed(QFile::encodeName(info.fileName()));
    }
    m_buffer.reserve(kBufferSize);
}

OutputFile::~OutputFile() {
    if (m_fd >= 0) {
        m_calls.close(m_fd);
    }
    if (m_part) {
        m_calls.unlink(m_part->path().c_str());
    }
}

void OutputFile::openNamed(const QByteArray &fileName) {
    constexpr int kAttempts = 16;
    constexpr mode_t kNewFileMode = 0666;
    constexpr mode_t kPermissionBits = 07777;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        auto part = std::make_unique<PartFile>(m_folder + "/" + partName(fileName).toStdString());
        m_fd = m_calls.open(part->path().c_str(),
                            O_CREAT | O_EXCL | O_NOFOLLOW | O_RDWR | O_CLOEXEC, kNewFileMode);
        if (m_fd < 0 && errno == EEXIST) {
            continue;
        }
        if (m_fd < 0) {
            fail(QStringLiteral("Cannot create the output file"));
        }
        m_part = std::move(part);
        // The empty file tells which mode the umask leaves; until it is whole it is the owner's.
        struct stat status {};
        if (::fstat(m_fd, &status) != 0) {
            fail(QStringLiteral("Cannot create the output file"));
        }
        m_mode = status.st_mode & kPermissionBits;
        // File systems without permissions refuse; their files have the mount's mode then as now.
        m_calls.fchmod(m_fd, S_IRUSR | S_IWUSR);
        return;
    }
    fail(QStringLiteral("Cannot create the output file"));
}

void OutputFile::writeAll(const char *data, std::size_t size) {
    while (size > 0) {
        const ssize_t written = m_calls.write(m_fd, data, std::min(size, kWriteSize));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written == 0) {
            errno = ENOSPC;
        }
        if (written <= 0) {
            fail(QStringLiteral("Cannot write the output file"));
        }
        data += written;
        size -= static_cast<std::size_t>(written);
    }
}

void OutputFile::drain() {
    writeAll(m_buffer.data(), m_buffer.size());
    m_buffer.clear();
}

void OutputFile::write(std::span<const char> bytes) {
    if (m_buffer.size() + bytes.size() > kBufferSize) {
        drain();
    }
    if (bytes.size() >= kBufferSize) {
        writeAll(bytes.data(), bytes.size());
    } else {
        m_buffer.append(bytes.data(), bytes.size());
    }
    m_size += static_cast<qint64>(bytes.size());
}

QByteArray OutputFile::read(qint64 offset, qint64 size) {
    drain();
    QByteArray bytes(size, Qt::Uninitialized);
    const ssize_t got = m_calls.pread(m_fd, bytes.data(), static_cast<std::size_t>(size), offset);
    if (got < 0) {
        fail(QStringLiteral("Cannot read the output file back"));
    }
    bytes.truncate(got);
    return bytes;
}

void OutputFile::overwrite(qint64 offset, const QByteArray &bytes) {
    drain();
    const auto size = static_cast<std::size_t>(bytes.size());
    if (m_calls.pwrite(m_fd, bytes.constData(), size, offset) != bytes.size()) {
        fail(QStringLiteral("Cannot write the output file"));
    }
}

void OutputFile::finish(Flush flush) {
    drain();
    if (m_part && m_calls.fchmod(m_fd, m_mode) != 0 && errno != EPERM && errno != ENOTSUP) {
        fail(QStringLiteral("Cannot write the output file"));
    }
    if (flush == Flush::Always && m_calls.fsync(m_fd) != 0) {
        fail(QStringLiteral("Cannot write the output file to the disk"));
    }
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
    // Neither is known here: hold the name with a file of our own, then replace that one.
    const int held =
        m_calls.open(path, O_CREAT | O_EXCL | O_NOFOLLOW | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (held < 0) {
        return false;
    }
    m_calls.close(held);
    if (m_calls.rename(part, path) == 0) {
        return true;
    }
    const int reason = errno;
    m_calls.unlink(path);
    errno = reason;
    return false;
}

bool OutputFile::givePublicName(const char *path) {
    return m_part ? renamePart(path) : m_calls.linkAnonymous(m_fd, path) == 0;
}

OutputFile::Published OutputFile::publish(const QString &path, Flush flush) {
    const QByteArray name = QFile::encodeName(path);
    if (!givePublicName(name.constData())) {
        if (errno == EEXIST) {
            return Published::NameTaken;
        }
        fail(QStringLiteral("Cannot give the output file its name"));
    }
    m_part.reset();
    const int fd = std::exchange(m_fd, -1);
    if (m_calls.close(fd) != 0 && errno != EINTR) {
        const int reason = errno;
        m_calls.unlink(name.constData());
        errno = reason;
        fail(QStringLiteral("Cannot write the output file"));
    }
    if (flush == Flush::Always) {
        syncFolder();
    }
    return Published::Yes;
}

void OutputFile::syncFolder() {
    // The document stands whole under its name by now; where a folder cannot be flushed (many
    // network file systems) nothing better can be done.
    const int folder = m_calls.open(m_folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    if (folder >= 0) {
        m_calls.fsync(folder);
        m_calls.close(folder);
    }
}

} // namespace folioforge
