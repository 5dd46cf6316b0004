#pragma once

#include "files/SystemCalls.h"

#include <stop_token>
#include <utility>

namespace folioforge {

/// The calls of another that move no more bytes once a stop is requested: they then fail with
/// ECANCELED, so that a long read or write ends as it does on a disk that was unplugged, and what
/// clears up after that clears up here.
class StoppableCalls final : public SystemCalls {
  public:
    StoppableCalls(SystemCalls &calls, std::stop_token stop)
        : m_calls(calls)
        , m_stop(std::move(stop)) {}

    ssize_t write(int fd, const void *data, std::size_t size) override {
        return goesOn() ? m_calls.write(fd, data, size) : -1;
    }
    ssize_t pread(int fd, void *data, std::size_t size, off_t offset) override {
        return goesOn() ? m_calls.pread(fd, data, size, offset) : -1;
    }
    ssize_t pwrite(int fd, const void *data, std::size_t size, off_t offset) override {
        return goesOn() ? m_calls.pwrite(fd, data, size, offset) : -1;
    }
    int fsync(int fd) override { return goesOn() ? m_calls.fsync(fd) : -1; }

    int open(const char *path, int flags, mode_t mode) override {
        return m_calls.open(path, flags, mode);
    }
    int openAnonymous(const char *folder, mode_t mode) override {
        return m_calls.openAnonymous(folder, mode);
    }
    int fchmod(int fd, mode_t mode) override { return m_calls.fchmod(fd, mode); }
    int close(int fd) override { return m_calls.close(fd); }
    int linkAnonymous(int fd, const char *path) override { return m_calls.linkAnonymous(fd, path); }
    int renameExclusive(const char *from, const char *to) override {
        return m_calls.renameExclusive(from, to);
    }
    int link(const char *from, const char *to) override { return m_calls.link(from, to); }
    int rename(const char *from, const char *to) override { return m_calls.rename(from, to); }
    int unlink(const char *path) override { return m_calls.unlink(path); }

  private:
    [[nodiscard]] bool goesOn() const {
        if (m_stop.stop_requested()) {
            errno = ECANCELED;
            return false;
        }
        return true;
    }

    SystemCalls &m_calls;
    std::stop_token m_stop;
};

} // namespace folioforge
