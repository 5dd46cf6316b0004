// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "files/FileDescriptor.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <span>
#include <string>

namespace folioforge {

class PartFile;

/// Whether a finished document is flushed to the disk before it gets its name.
enum class Flush { Always, Never };

/// A file that gets its name only when it is complete, and that replaces no other file.
///
/// While it is written it has no name, where the file system supports that, so that nothing is left
/// even when the process is killed. Elsewhere it is a part file in the same folder that only its
/// owner can read. When it is destroyed before it is published, it is removed.
class OutputFile {
  public:
    enum class Published { Yes, NameTaken };
    /// Who may read the finished file.
    enum class Readers { AsUmaskSays, OwnerAlone };

    /// A file to be published in the folder of `path`. Throws Error when it cannot be created.
    explicit OutputFile(const QString &path, SystemCalls &calls = SystemCalls::system(),
                        Readers readers = Readers::AsUmaskSays);
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    /// Appends bytes. Throws Error when they cannot be written.
    void write(std::span<const char> bytes);
    /// Reads at `offset` until `target` is full or the file ends; returns the number of bytes.
    /// Throws Error. Several threads may read at once when it is finished; before, reading brings
    /// appended bytes to the file.
    qint64 readInto(qint64 offset, std::span<char> target);
    /// Bytes appended so far.
    [[nodiscard]] qint64 size() const { return m_size; }

    /// Brings the bytes to the file, and with Flush::Always to the disk. A file system that has no
    /// flush is no failure but a warning. Throws Error.
    Warnings finish(Flush flush);
    /// Gives the finished file its name `path`, in the folder it was made for. Throws Error when
    /// that fails for another reason than the name being taken.
    Published publish(const QString &path, Flush flush);
    /// Replaces the file `path`, in the folder it was made for, by the finished file in one step:
    /// at every moment `path` is one of the two, complete. Throws Error and leaves the old file as
    /// it was.
    void replace(const QString &path, Flush flush);

  private:
    void openNamed(const QByteArray &fileName);
    bool openPart(const std::string &path);
    void linkAsPart(const QByteArray &fileName);
    void append(std::span<const char> bytes);
    void drain();
    bool givePublicName(const char *path);
    bool renamePart(const char *path);
    void closeFile();
    void syncFolder();
    /// Throws Error: `what` with the folder for %1, and the reason in errno.
    [[noreturn]] void fail(const char *what) const;

    SystemCalls &m_calls;
    std::string m_folder;
    FileDescriptor m_file;
    mode_t m_newMode;  ///< The mode asked for, before the user's umask.
    mode_t m_mode = 0; ///< The mode of the finished part file.
    std::unique_ptr<PartFile> m_part;
    std::string m_buffer;
    qint64 m_size = 0;
};

} // namespace folioforge
