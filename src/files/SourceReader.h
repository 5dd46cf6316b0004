#pragma once

#include "files/SystemCalls.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <memory>
#include <optional>
#include <span>

namespace folioforge {

/// A source file as it was when it was first seen.
struct SourceFile {
    QString path;
    qint64 size = 0;          ///< Bytes.
    qint64 modifiedNanos = 0; ///< Time of the last change, in nanoseconds since 1970.

    bool operator==(const SourceFile &) const = default;

    /// Looks at the file at `path`. Throws Error when it is no regular file that can be read.
    static SourceFile examine(const QString &path);
};

/// Reads any number of source files through one descriptor: the file read last stays open until
/// another one is asked for.
class SourceReader {
  public:
    explicit SourceReader(SystemCalls &calls = SystemCalls::system())
        : m_calls(calls) {}
    ~SourceReader();
    SourceReader(const SourceReader &) = delete;
    SourceReader &operator=(const SourceReader &) = delete;

    /// Reads at `offset` until `target` is full or the file ends; returns the number of bytes.
    /// Throws Error when the file cannot be read or is not the one that was examined.
    std::size_t read(const SourceFile &file, qint64 offset, std::span<char> target);

    /// The `size` bytes at `offset`, valid until the next call. Throws Error, also when the file
    /// ends before them.
    std::span<const char> view(const SourceFile &file, qint64 offset, qint64 size);

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
    void openFile(const SourceFile &file);
    void requireUnchanged() const;
    /// Does `step`, and keeps the Error that it throws.
    template<typename Step> auto keepingFailure(const Step &step);
    std::size_t readFromDisk(qint64 offset, std::span<char> target) const;
    std::size_t readThroughWindow(qint64 offset, std::span<char> target);

    SystemCalls &m_calls;
    SourceFile m_file;
    int m_fd = -1;
    QByteArray m_window; ///< Bytes of the open file from m_windowStart on.
    qint64 m_windowStart = 0;
    QByteArray m_view; ///< Kept for the next view(): large blocks are dear to get from the system.
    std::optional<QString> m_failure;
};

} // namespace folioforge
