// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SystemCalls.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace folioforge::test {

/// The running system, save for the calls that a test lets fail.
class FaultyCalls final : public SystemCalls {
  public:
    /// What happens to one call, counted from 1.
    struct Fault {
        int call = 0;  ///< 0 for none.
        int error = 0; ///< Its errno; 0 for a call that moves fewer bytes than it was asked to.
        bool lasting = false;        ///< All later calls fail too, as on a disk that was unplugged.
        std::function<void()> first; ///< Done before the call, which then does what it can.
        bool filling = false;        ///< The call itself still moves some bytes.
    };

    std::map<std::string, int> failing; ///< The errno of calls that always fail, by name.
    Fault fault;
    /// Bytes that files take which are written in any order, as on a disk that is full then.
    off_t room = std::numeric_limits<off_t>::max();

    /// The calls so far.
    [[nodiscard]] int count() const { return m_count; }
    /// Those of them that moved bytes.
    [[nodiscard]] int moves() const { return m_moves; }
    /// The size of the file that was cut last.
    [[nodiscard]] off_t sizeOfCut() const { return m_sizeOfCut; }
    /// Whether the fault befell a call that removes a file, which then has to stay.
    [[nodiscard]] bool keptFiles() const { return m_keptFiles; }

    int open(const char *path, int flags, mode_t mode) override {
        return begins("open") ? SystemCalls::open(path, flags, mode) : -1;
    }
    int openAnonymous(const char *folder, mode_t mode) override {
        return begins("openAnonymous") ? SystemCalls::openAnonymous(folder, mode) : -1;
    }
    ssize_t write(int fd, const void *data, std::size_t size) override {
        const std::lock_guard lock(*m_turn);
        return begins("write") ? SystemCalls::write(fd, data, moved(size)) : -1;
    }
    ssize_t pread(int fd, void *data, std::size_t size, off_t offset) override {
        const std::lock_guard lock(*m_turn);
        return begins("pread") ? SystemCalls::pread(fd, data, moved(size), offset) : -1;
    }
    ssize_t pwrite(int fd, const void *data, std::size_t size, off_t offset) override {
        const std::lock_guard lock(*m_turn);
        if (!begins("pwrite")) {
            return -1;
        }
        if (offset >= room) {
            errno = ENOSPC;
            return -1;
        }
        size = std::min(moved(size), static_cast<std::size_t>(room - offset));
        return SystemCalls::pwrite(fd, data, size, offset);
    }
    int ftruncate(int fd, off_t size) override {
        if (!begins("ftruncate")) {
            return -1;
        }
        const int result = SystemCalls::ftruncate(fd, size);
        struct stat status = {};
        m_sizeOfCut = ::fstat(fd, &status) == 0 ? status.st_size : -1;
        return result;
    }
    /// Nothing is brought to the disk: a test loses nothing when the power fails.
    int fsync(int) override { return begins("fsync") ? 0 : -1; }
    int fchmod(int fd, mode_t mode) override {
        return begins("fchmod") ? SystemCalls::fchmod(fd, mode) : -1;
    }
    int close(int fd) override {
        const bool goesWell = begins("close");
        const int reason = errno;
        const int result = SystemCalls::close(fd);
        errno = reason;
        return goesWell ? result : -1;
    }
    int linkAnonymous(int fd, const char *path) override {
        return begins("linkAnonymous") ? SystemCalls::linkAnonymous(fd, path) : -1;
    }
    int renameExclusive(const char *from, const char *to) override {
        return begins("renameExclusive") ? SystemCalls::renameExclusive(from, to) : -1;
    }
    int link(const char *from, const char *to) override {
        return begins("link") ? SystemCalls::link(from, to) : -1;
    }
    int rename(const char *from, const char *to) override {
        return begins("rename") ? SystemCalls::rename(from, to) : -1;
    }
    int unlink(const char *path) override {
        if (begins("unlink")) {
            return SystemCalls::unlink(path);
        }
        m_keptFiles = true;
        return -1;
    }

  private:
    bool begins(const char *call) {
        const std::lock_guard lock(*m_turn);
        ++m_count;
        const bool befalls =
            fault.call > 0 && (fault.lasting ? m_count >= fault.call : m_count == fault.call);
        if (befalls && fault.first) {
            fault.first();
        }
        if (const auto known = failing.find(call); known != failing.end()) {
            errno = known->second;
            return false;
        }
        const bool fails = befalls && !fault.first;
        m_isShort = fails && (fault.error == 0 || (fault.filling && m_count == fault.call));
        errno = fails ? fault.error : 0;
        return !fails || m_isShort;
    }
    std::size_t moved(std::size_t size) {
        ++m_moves;
        return m_isShort ? std::max<std::size_t>(size / 2, 1) : size;
    }

    std::unique_ptr<std::recursive_mutex> m_turn =
        std::make_unique<std::recursive_mutex>(); ///< A document is written while its sources are
                                                  ///< read.
    int m_count = 0;
    int m_moves = 0;
    off_t m_sizeOfCut = -1;
    bool m_isShort = false;
    bool m_keptFiles = false;
};

} // namespace folioforge::test
