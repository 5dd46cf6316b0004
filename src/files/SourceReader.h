#pragma once

#include "files/SourceFile.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <optional>
#include <span>

namespace folioforge {

/// Reads any number of source files through one descriptor: the file read last stays open until
/// another one is asked for.
class SourceReader {
  public:
    explicit SourceReader(SystemCalls &calls = SystemCalls::system())
        : m_calls(calls) {}
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
    /// Throws that Error where there was one.
    void requireNoFailure() const;

    /// Closes the open file, if any, and forgets what failed.
    void beginAnew();
    /// Closes the open file, if any. Throws Error when it changed while it was read.
    void finish();
    /// Closes the open file, if any, whatever became of it.
    void closeFile();

  private:
    void finishFile();
    void openFile(const FileVersion &file);
    /// Does `step`, and keeps the Error that it throws.
    template<typename Step> auto keepingFailure(const Step &step);
    std::size_t readThroughWindow(qint64 offset, std::span<char> target);

    SystemCalls &m_calls;
    std::optional<SourceFile> m_open;
    QByteArray m_window; ///< Bytes of the open file from m_windowStart on.
    qint64 m_windowStart = 0;
    QByteArray m_view; ///< Kept for the next view(): large blocks are dear to get from the system.
    std::optional<QString> m_failure;
};

} // namespace folioforge
