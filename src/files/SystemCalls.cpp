#include "files/SystemCalls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>

namespace folioforge {

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

} // namespace folioforge
