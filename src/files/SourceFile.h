// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Error.h"
#include "files/FileDescriptor.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <sys/stat.h>

#include <atomic>
#include <memory>
#include <span>
#include <string>

namespace folioforge {

/// When the file of `status` was last changed.
timespec modifiedAt(const struct stat &status);

/// A file as it was at one moment: what tells a changed file from an unchanged one.
struct FileVersion {
    QString path;
    qint64 size = 0;            ///< Bytes.
    qint64 modifiedSeconds = 0; ///< Time of the last change, in seconds since 1970,
    qint64 modifiedNanos = 0;   ///< and nanoseconds since that second.

    bool operator==(const FileVersion &) const = default;

    /// The file at `path` as it is now. Throws Error when it is no regular file or cannot be found.
    static FileVersion of(const QString &path);
    /// The time of the last change.
    [[nodiscard]] QDateTime modified() const;
    /// Bytes that are the same for equal versions alone.
    [[nodiscard]] std::string key() const;
};

class FileView;

/// A regular file open for reading. Pipes, devices and folders are refused before they are opened,
/// because opening or reading one may wait for ever.
class SourceFile {
  public:
    /// Opens the file at `path`. Throws Error when it is no regular file or cannot be opened.
    static SourceFile open(const QString &path, SystemCalls &calls = SystemCalls::system());

    /// The file as it was when it was opened.
    [[nodiscard]] const FileVersion &version() const { return m_version; }
    /// Throws Error when the file has changed since it was opened.
    void requireUnchanged() const;
    /// Throws Error when the system could not read the file once. Whoever takes an Error for damage
    /// of the file's contents asks this first.
    void requireNoFailure() const;

    /// Reads from byte `at` on until `target` is full or the file ends; returns the number of
    /// bytes. Throws Error when the system cannot read. Safe to call from several threads at once.
    [[nodiscard]] qint64 readAt(qint64 at, std::span<char> target) const;
    /// All bytes of the file. Throws Error when the system cannot read or the file has changed
    /// since it was opened.
    [[nodiscard]] QByteArray readAll() const;
    /// The whole file as a view, which must not outlive this object.
    [[nodiscard]] FileView view() const;

  private:
    SourceFile(FileDescriptor descriptor, FileVersion version);

    FileDescriptor m_descriptor;
    FileVersion m_version;
    /// The error number of a read that failed; 0 for none. Behind a pointer, so that files can
    /// move.
    std::unique_ptr<std::atomic<int>> m_failure = std::make_unique<std::atomic<int>>(0);
};

/// The Error for a file whose structure promises more bytes than it has.
Error fileEndsTooEarly();

/// Throws the Error for a file at `path` that changed while it was read.
[[noreturn]] void throwFileChanged(const QString &path);

/// A run of bytes of a source file, read piece by piece as a decoder asks for it. A decoder sees
/// only a view, so an image inside a container (an entry of an icon file) is read as a file is.
class FileView {
  public:
    FileView(const SourceFile &file, qint64 offset, qint64 size);
    /// A file that is in memory alone, without a path.
    explicit FileView(QByteArray bytes);

    [[nodiscard]] QString path() const {
        return m_file != nullptr ? m_file->version().path : QString();
    }
    /// Bytes from the start of the file to the start of this view.
    [[nodiscard]] qint64 offset() const { return m_offset; }
    /// Bytes in this view.
    [[nodiscard]] qint64 size() const { return m_size; }
    /// Up to `length` bytes from byte `at` of the view on; fewer at its end.
    [[nodiscard]] QByteArray read(qint64 at, qint64 length) const;
    /// Exactly `length` bytes from byte `at` of the view on; throws Error when the view ends first.
    [[nodiscard]] QByteArray readExactly(qint64 at, qint64 length) const;
    /// Fills `target` from byte `at` of the view on; returns the bytes read, fewer at its end.
    [[nodiscard]] qint64 readInto(qint64 at, std::span<uchar> target) const;
    /// The `length` bytes from byte `at` on as a view; throws Error when they are not all there.
    [[nodiscard]] FileView part(qint64 at, qint64 length) const;

  private:
    /// As SourceFile::readAt(), from byte `at` of the view on.
    [[nodiscard]] qint64 readAt(qint64 at, std::span<char> target) const;

    const SourceFile *m_file = nullptr; ///< Null where the bytes are in memory.
    QByteArray m_bytes;
    qint64 m_offset = 0;
    qint64 m_size;
};

} // namespace folioforge
