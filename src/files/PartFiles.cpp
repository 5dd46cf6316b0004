// SPDX-License-Identifier: Apache-2.0

#include "files/PartFiles.h"

#include <QRandomGenerator>

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <mutex>
#include <thread>
#include <utility>

namespace folioforge {

namespace {

// The parts of this process, the newest first. Writers hold the mutex; a signal handler, which may
// not wait, finds the list whole at any moment.
std::atomic<PartFile *> newestPart{nullptr};
static_assert(std::atomic<PartFile *>::is_always_lock_free);
std::mutex partsMutex;

// The number of signal handlers, on any thread, that go through the list now. While there is one,
// no part may be destroyed, because the handler may be using it.
std::atomic<int> activeHandlers{0};
static_assert(std::atomic<int>::is_always_lock_free);

} // namespace

std::string partPath(const std::string &folder, const QByteArray &name) {
    constexpr qsizetype kMaxName = 255;
    QByteArray ending = QByteArray::number(QRandomGenerator::system()->generate64(), 36);
    ending = "." + ending + QByteArray(kPartEnding.data(), kPartEnding.size());
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
    struct stat status = {};
    return ::fstat(fd, &status) == 0 && status.st_nlink == 0;
}

PartFile::PartFile(std::string path)
    : m_path(std::move(path)) {
    const std::scoped_lock lock(partsMutex);
    m_older = newestPart.load();
    newestPart = this;
}

PartFile::~PartFile() {
    const std::scoped_lock lock(partsMutex);
    std::atomic<PartFile *> *place = &newestPart;
    while (*place != this) {
        place = &place->load()->m_older;
    }
    *place = m_older.load();
    while (activeHandlers != 0) {
        std::this_thread::yield();
    }
}

TemporaryFile::~TemporaryFile() {
    ::unlink(path().c_str());
}

void removePartFiles() noexcept {
    ++activeHandlers;
    // The files in a folder are newer than the folder and go first, so that it is empty then.
    for (const PartFile *part = newestPart; part; part = part->m_older) {
        const char *path = part->m_path.c_str();
        if (::unlink(path) != 0) {
            ::rmdir(path);
        }
    }
    --activeHandlers;
}

} // namespace folioforge
