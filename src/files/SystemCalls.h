// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Error.h"

#include <sys/types.h>

#include <cerrno>
#include <cstddef>
#include <stop_token>
#include <utility>

namespace folioforge {

/// The system calls through which output files are made and what goes into them is read: one seam
/// where tests let them fail. Each behaves like the call of its name: -1 and errno on failure.
class SystemCalls {
  public:
    virtual ~SystemCalls() = default;

    virtual int open(const char *path, int flags, mode_t mode);
    /// A file without a name in `folder`; EOPNOTSUPP where the system or file system has none.
    virtual int openAnonymous(const char *folder, mode_t mode);
    virtual ssize_t write(int fd, const void *data, std::size_t size);
    virtual ssize_t pread(int fd, void *data, std::size_t size, off_t offset);
    virtual ssize_t pwrite(int fd, const void *data, std::size_t size, off_t offset);
    virtual int ftruncate(int fd, off_t size);
    virtual int fsync(int fd);
    virtual int fchmod(int fd, mode_t mode);
    virtual int close(int fd);
    /// Gives the file behind `fd` the name `path`; EEXIST when the name is taken.
    virtual int linkAnonymous(int fd, const char *path);
    /// Renames without replacing; EEXIST when the name is taken, ENOSYS, EINVAL or EOPNOTSUPP where
    /// that cannot be asked for.
    virtual int renameExclusive(const char *from, const char *to);
    virtual int link(const char *from, const char *to);
    virtual int rename(const char *from, const char *to);
    virtual int unlink(const char *path);

    /// The calls of the running system.
    static SystemCalls &system();
};

/// The calls of another that move no more bytes once a stop is requested: they then fail with
/// ECANCELED, so that a long read or write ends as it does on a disk that was unplugged, and the
/// caller cleans up as it does then.
class StoppableCalls final : public SystemCalls {
  public:
    StoppableCalls(SystemCalls &calls, std::stop_token stop)
        : m_calls(calls)
        , m_stop(std::move(stop)) {}

    ssize_t write(int fd, const void *data, std::size_t size) override;
    ssize_t pread(int fd, void *data, std::size_t size, off_t offset) override;
    ssize_t pwrite(int fd, const void *data, std::size_t size, off_t offset) override;
    int fsync(int fd) override;

    int open(const char *path, int flags, mode_t mode) override;
    int openAnonymous(const char *folder, mode_t mode) override;
    int ftruncate(int fd, off_t size) override;
    int fchmod(int fd, mode_t mode) override;
    int close(int fd) override;
    int linkAnonymous(int fd, const char *path) override;
    int renameExclusive(const char *from, const char *to) override;
    int link(const char *from, const char *to) override;
    int rename(const char *from, const char *to) override;
    int unlink(const char *path) override;

  private:
    /// False and ECANCELED once a stop is requested.
    [[nodiscard]] bool mayMoveBytes() const;

    SystemCalls &m_calls;
    std::stop_token m_stop;
};

/// That `what` failed and why: "Cannot open the file: Permission denied".
Error systemError(const QString &what, int reason = errno);

/// The result of `call`, which is made again as long as a signal interrupts it.
template<typename Call> auto uninterrupted(const Call &call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

} // namespace folioforge
