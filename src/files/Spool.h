// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/FileDescriptor.h"

#include <QByteArray>
#include <QByteArrayView>

namespace folioforge {

/// A file without a name in the folder for temporary files, which no one else can open. Throws
/// Error.
FileDescriptor namelessFile(SystemCalls &calls);

/// Keeps data until the document is written: in memory while there is little of it, then in a file
/// without a name, which no one else can open and which is removed with this object.
class Spool {
  public:
    /// A place in the spool, in bytes.
    struct Place {
        qint64 offset = 0;
        qint64 length = 0;
    };

    explicit Spool(SystemCalls &calls = SystemCalls::system())
        : m_calls(calls) {}
    Spool(const Spool &) = delete;
    Spool &operator=(const Spool &) = delete;

    /// Keeps a copy of `data`. Throws Error when the temporary file cannot take it.
    Place add(QByteArrayView data);
    /// Bytes kept so far.
    [[nodiscard]] qint64 size() const { return m_fileSize + m_memory.size(); }
    /// Gives up what was added after the first `size` bytes, and the room on the disk that it took.
    void cutTo(qint64 size);
    /// The data at `place`, valid until the next call. Throws Error when it cannot be read back.
    [[nodiscard]] QByteArrayView at(Place place);

  private:
    void moveToFile(QByteArrayView data);
    void readWindow(Place place);

    SystemCalls &m_calls;
    QByteArray m_memory;   ///< What came after the part in the file.
    qint64 m_fileSize = 0; ///< Bytes of the spool that are in the file.
    FileDescriptor m_file;
    QByteArray m_window; ///< Bytes of the file from m_windowStart on.
    qint64 m_windowStart = 0;
};

} // namespace folioforge
