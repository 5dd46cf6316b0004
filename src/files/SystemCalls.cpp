// SPDX-License-Identifier: Apache-2.0

#include "files/SystemCalls.h"

#include "error/Reasons.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

namespace folioforge {

Error systemError(const QString &what, int reason) {
    return Error(Reasons::tr("%1: %2").arg(what, QString::fromLocal8Bit(std::strerror(reason))));
}

int SystemCalls::open(const char *path, int flags, mode_t mode) {
    return ::open(path, flags, mode);
}

int SystemCalls::openAnonymous([[maybe_unused]] const char *folder, [[maybe_unused]] mode_t mode) {
#ifdef O_TMPFILE
    return ::open(folder, O_TMPFILE | O_RDWR | O_CLOEXEC, mode);
#else
    errno = EOPNOTSUPP;
    return -1;
#endif
}

ssize_t SystemCalls::write(int fd, const void *data, std::size_t size) {
    return ::write(fd, data, size);
}

ssize_t SystemCalls::pread(int fd, void *data, std::size_t size, off_t offset) {
    return ::pread(fd, data, size, offset);
}

ssize_t SystemCalls::pwrite(int fd, const void *data, std::size_t size, off_t offset) {
    return ::pwrite(fd, data, size, offset);
}

int SystemCalls::ftruncate(int fd, off_t size) {
    return ::ftruncate(fd, size);
}

int SystemCalls::fsync(int fd) {
    return ::fsync(fd);
}

int SystemCalls::fchmod(int fd, mode_t mode) {
    return ::fchmod(fd, mode);
}

int SystemCalls::close(int fd) {
    return ::close(fd);
}

int SystemCalls::linkAnonymous(int fd, const char *path) {
    const std::string source = "/proc/self/fd/" + std::to_string(fd);
    return ::linkat(AT_FDCWD, source.c_str(), AT_FDCWD, path, AT_SYMLINK_FOLLOW);
}

int SystemCalls::renameExclusive(const char *from, const char *to) {
#if defined(__linux__) && defined(RENAME_NOREPLACE)
    return ::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE);
#elif defined(__APPLE__)
    return ::renamex_np(from, to, RENAME_EXCL);
#else
    errno = ENOSYS;
    return -1;
#endif
}

int SystemCalls::link(const char *from, const char *to) {
    return ::link(from, to);
}

int SystemCalls::rename(const char *from, const char *to) {
    return ::rename(from, to);
}

int SystemCalls::unlink(const char *path) {
    return ::unlink(path);
}

SystemCalls &SystemCalls::system() {
    static SystemCalls calls;
    return calls;
}

ssize_t StoppableCalls::write(int fd, const void *data, std::size_t size) {
    return mayMoveBytes() ? m_calls.write(fd, data, size) : -1;
}

ssize_t StoppableCalls::pread(int fd, void *data, std::size_t size, off_t offset) {
    return mayMoveBytes() ? m_calls.pread(fd, data, size, offset) : -1;
}

ssize_t StoppableCalls::pwrite(int fd, const void *data, std::size_t size, off_t offset) {
    return mayMoveBytes() ? m_calls.pwrite(fd, data, size, offset) : -1;
}

int StoppableCalls::fsync(int fd) {
    return mayMoveBytes() ? m_calls.fsync(fd) : -1;
}

int StoppableCalls::open(const char *path, int flags, mode_t mode) {
    return m_calls.open(path, flags, mode);
}

int StoppableCalls::openAnonymous(const char *folder, mode_t mode) {
    return m_calls.openAnonymous(folder, mode);
}

int StoppableCalls::ftruncate(int fd, off_t size) {
    return m_calls.ftruncate(fd, size);
}

int StoppableCalls::fchmod(int fd, mode_t mode) {
    return m_calls.fchmod(fd, mode);
}

int StoppableCalls::close(int fd) {
    return m_calls.close(fd);
}

int StoppableCalls::linkAnonymous(int fd, const char *path) {
    return m_calls.linkAnonymous(fd, path);
}

int StoppableCalls::renameExclusive(const char *from, const char *to) {
    return m_calls.renameExclusive(from, to);
}

int StoppableCalls::link(const char *from, const char *to) {
    return m_calls.link(from, to);
}

int StoppableCalls::rename(const char *from, const char *to) {
    return m_calls.rename(from, to);
}

int StoppableCalls::unlink(const char *path) {
    return m_calls.unlink(path);
}

bool StoppableCalls::mayMoveBytes() const {
    if (m_stop.stop_requested()) {
        errno = ECANCELED;
        return false;
    }
    return true;
}

} // namespace folioforge
