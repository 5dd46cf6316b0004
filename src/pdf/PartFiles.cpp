#include "pdf/PartFiles.h"

#include <QFile>
#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <filesystem>
#include <utility>

namespace folioforge {

namespace {

constexpr std::string_view kEnding = ".folioforge-part";

// One file is written at a time; the room to spare is for programs that run several engines. A
// signal handler may only touch lock-free atomics, so this cannot be a container.
std::array<std::atomic<const char *>, 16> partPaths{};
static_assert(std::atomic<const char *>::is_always_lock_free);

bool isPartName(const std::string &name) {
    return name.starts_with('.') && name.ends_with(kEnding);
}

/// A descriptor of the part at `path`; -1 where that cannot be had. Some network file systems lock
/// only what is open for writing, which a folder never is.
int openPart(const char *path) {
    constexpr int kFlags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const int fd = ::open(path, O_RDWR | kFlags);
    return fd >= 0 || errno != EISDIR ? fd : ::open(path, O_RDONLY | O_DIRECTORY | kFlags);
}

/// Unlike lockPart(), sure of it: where locks are unknown nothing counts as abandoned.
bool isAbandoned(int fd) {
    struct stat status {};
    return ::fstat(fd, &status) == 0 && status.st_uid == ::geteuid() &&
           (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode)) &&
           ::flock(fd, LOCK_EX | LOCK_NB) == 0;
}

void removeIfAbandoned(const std::filesystem::path &path) {
    const int fd = openPart(path.c_str());
    if (fd < 0) {
        return;
    }
    if (isAbandoned(fd)) {
        std::error_code failure;
        std::filesystem::remove_all(path, failure);
    }
    ::close(fd);
}

} // namespace

std::string partPath(const std::string &folder, const QByteArray &name) {
    constexpr qsizetype kMaxName = 255;
    QByteArray ending = QByteArray::number(QRandomGenerator::system()->generate64(), 36);
    ending = "." + ending + QByteArray(kEnding.data(), kEnding.size());
    QByteArray stem = name.left(kMaxName - 1 - ending.size());
    if (stem.size() < name.size()) {
        const auto isContinuation = [](char byte) {
            return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
        };
        while (!stem.isEmpty() && isContinuation(name.at(stem.size()))) {
            stem.chop(1);
        }
    }
    return folder + "/." + (stem + ending).toStdString();
}

bool lockPart(int fd) {
    return ::flock(fd, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool isRemoved(int fd) {
    struct stat status {};
    return ::fstat(fd, &status) == 0 && status.st_nlink == 0;
}

void removeAbandonedParts(const QString &folder) {
    std::error_code failure;
    std::filesystem::directory_iterator entry(QFile::encodeName(folder).toStdString(), failure);
    while (!failure && entry != std::filesystem::directory_iterator()) {
        if (isPartName(entry->path().filename().string())) {
            removeIfAbandoned(entry->path());
        }
        entry.increment(failure);
    }
}

PartFile::PartFile(std::string path)
    : m_path(std::move(path)) {
    for (auto &slot : partPaths) {
        const char *expected = nullptr;
        if (slot.compare_exchange_strong(expected, m_path.c_str())) {
            return;
        }
    }
}

PartFile::~PartFile() {
    for (auto &slot : partPaths) {
        const char *expected = m_path.c_str();
        if (slot.compare_exchange_strong(expected, nullptr)) {
            return;
        }
    }
}

void removePartFiles() noexcept {
    for (auto &slot : partPaths) {
        if (const char *path = slot.load()) {
            ::unlink(path);
        }
    }
    for (auto &slot : partPaths) {
        if (const char *path = slot.load()) {
            ::rmdir(path);
        }
    }
}

} // namespace folioforge
