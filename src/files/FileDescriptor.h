// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SystemCalls.h"

#include <QtGlobal>

#include <span>
#include <utility>

namespace folioforge {

/// An open file, closed with this object. Its functions report failure as the system does, through
/// errno, so that the caller chooses the words.
class FileDescriptor {
  public:
    FileDescriptor() = default;
    /// Takes `fd`, a result of open(): -1 for a file that is not open.
    explicit FileDescriptor(int fd, SystemCalls &calls = SystemCalls::system())
        : m_calls(&calls)
        , m_fd(fd) {}
    FileDescriptor(FileDescriptor &&other) noexcept
        : m_calls(other.m_calls)
        , m_fd(std::exchange(other.m_fd, -1)) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept;
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    ~FileDescriptor() { close(); }

    [[nodiscard]] bool isOpen() const { return m_fd >= 0; }
    /// The number of the descriptor; -1 when the file is not open.
    [[nodiscard]] int get() const { return m_fd; }
    /// Leaves the file to somebody else, who closes it.
    void release() { m_fd = -1; }
    /// Closes the file, if it is open. False when the system reports an error.
    bool close();

    /// Reads from byte `at` on until `target` is full or the file ends; returns the number of
    /// bytes, -1 on failure. Safe to call from several threads at once.
    [[nodiscard]] qint64 readAt(qint64 at, std::span<char> target) const;
    /// Writes all of `bytes` from byte `at` on. False on failure.
    [[nodiscard]] bool writeAt(qint64 at, std::span<const char> bytes) const;
    /// Writes all of `bytes` at the current position. False on failure.
    [[nodiscard]] bool write(std::span<const char> bytes) const;

  private:
    SystemCalls *m_calls = &SystemCalls::system();
    int m_fd = -1;
};

} // namespace folioforge
