// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace folioforge {

/// Reads any number of source files with few descriptors. The file that is read stays open until
/// another one is asked for; as many as the system's limit allows stay open after that, and the
/// others are opened again when they are read again.
class SourceReader {
  public:
    explicit SourceReader(SystemCalls &calls = SystemCalls::system());
    SourceReader(const SourceReader &) = delete;
    SourceReader &operator=(const SourceReader &) = delete;

    /// Reads at `offset` until `target` is full or the file ends; returns the number of bytes.
    /// Throws Error when the file cannot be read or is not the version `file`.
    std::size_t read(const FileVersion &file, qint64 offset, std::span<char> target);

    /// The `size` bytes at `offset`, valid until the next call. Throws Error, also when the file
    /// ends before them.
    std::span<const char> view(const FileVersion &file, qint64 offset, qint64 size);

    /// The first Error of read() since beginAnew(), which a library on the way may have taken for
    /// damage.
    [[nodiscard]] const std::optional<QString> &failure() const { return m_failure; }
    /// Throws an Error of that reason, as if the file could not be read.
    [[noreturn]] void fail(const QString &reason);
    /// Throws that Error where there was one.
    void requireNoFailure() const;

    /// Keeps `file` open for later reads, unless too many are open already.
    void keepOpen(std::shared_ptr<const SourceFile> file);
    /// Leaves all reading to `other`, with the files that are open: ask `other` what failed.
    void handOverTo(std::shared_ptr<SourceReader> other);
    /// Leaves the file that is read, whatever became of it, and forgets what failed.
    void beginAnew();
    /// Leaves the file that is read, if any, and keeps it open for later reads. Throws Error when
    /// it changed while it was read.
    void finish();

  private:
    void leaveFile();
    void finishFile();
    [[nodiscard]] std::shared_ptr<const SourceFile> keptFile(const FileVersion &version) const;
    void openFile(const FileVersion &file);
    /// Does `step`, and keeps the Error that it throws.
    template<typename Step> auto keepingFailure(const Step &step);
    std::size_t readThroughWindow(qint64 offset, std::span<char> target);

    SystemCalls &m_calls;
    std::size_t m_maxKept;
    std::shared_ptr<const SourceFile> m_open;              ///< The file that is read.
    std::vector<std::shared_ptr<const SourceFile>> m_kept; ///< Files that stay open.
    QByteArray m_window; ///< Bytes of the open file from m_windowStart on.
    qint64 m_windowStart = 0;
    QByteArray m_view; ///< Kept for the next view(): large blocks are dear to get from the system.
    std::optional<QString> m_failure;
    std::shared_ptr<SourceReader> m_other; ///< Null while this one reads itself.
};

} // namespace folioforge
