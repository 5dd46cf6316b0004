// SPDX-License-Identifier: Apache-2.0

#include "files/FileDescriptor.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace folioforge {

namespace {

/// Larger writes make the kernel look for large runs of memory for its cache. On a virtual machine
/// those are often not backed yet, and the same bytes then take three times as long.
constexpr std::size_t kWriteSize = 128 << 10;

/// Calls `step` with what is left of `bytes` until nothing is; false and errno when it fails.
template<typename Step> bool writeAll(std::span<const char> bytes, const Step &step) {
    while (!bytes.empty()) {
        const ssize_t written = uninterrupted([&] { return step(bytes); });
        if (written == 0) {
            errno = ENOSPC;
        }
        if (written <= 0) {
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

} // namespace

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept {
    if (this != &other) {
        close();
        m_calls = other.m_calls;
        m_fd = std::exchange(other.m_fd, -1);
    }
    return *this;
}

bool FileDescriptor::close() {
    return !isOpen() || m_calls->close(std::exchange(m_fd, -1)) == 0;
}

qint64 FileDescriptor::readAt(qint64 at, std::span<char> target) const {
    qint64 done = 0;
    while (!target.empty()) {
        const ssize_t got = uninterrupted(
            [&] { return m_calls->pread(m_fd, target.data(), target.size(), at + done); });
        if (got < 0) {
            return -1;
        }
        if (got == 0) {
            break;
        }
        done += got;
        target = target.subspan(static_cast<std::size_t>(got));
    }
    return done;
}

bool FileDescriptor::writeAt(qint64 at, std::span<const char> bytes) const {
    const char *start = bytes.data();
    return writeAll(bytes, [&](std::span<const char> rest) {
        return m_calls->pwrite(m_fd, rest.data(), rest.size(), at + (rest.data() - start));
    });
}

bool FileDescriptor::write(std::span<const char> bytes) const {
    return writeAll(bytes, [&](std::span<const char> rest) {
        return m_calls->write(m_fd, rest.data(), std::min(rest.size(), kWriteSize));
    });
}

} // namespace folioforge
