// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/Deflate.h"
#include "pdf/tags/CrossReferences.h"

#include <QByteArray>

#include <array>
#include <string_view>

class Pipeline;

namespace folioforge {

class StreamCipher;

/// Writes objects as text into object streams (ISO 32000-1, 7.5.7) behind those of the library, so
/// that a document may have more of them than memory has room for.
class ObjectStreams {
  public:
    /// What is alike stands in streams of its own.
    enum Kind { Elements, Lists };

    /// Objects go to `file`, which has `offset` bytes, and their places to `references`. A null
    /// `cipher` means none.
    ObjectStreams(Pipeline &file, qint64 offset, CrossReferences &references,
                  const StreamCipher *cipher);

    /// A number that no object has.
    int newNumber() { return m_next++; }
    /// Adds an object under a new number, or in place of one of the library.
    void add(Kind kind, int number, std::string_view object);
    /// Writes what is left and, behind it, the cross-reference stream.
    void finish();

  private:
    /// A stream that is being filled.
    struct Stream {
        int number = 0;
        int count = 0;      ///< Of its objects.
        QByteArray places;  ///< The number and the place of each, in rows.
        QByteArray objects; ///< In rows.
    };

    void writeStream(Kind kind);
    void write(const QByteArray &bytes);

    Pipeline &m_file;
    qint64 m_offset;
    CrossReferences &m_references;
    const StreamCipher *m_cipher;
    Deflater m_deflater{DeflateEffort::Fastest};
    int m_next;
    std::array<Stream, 2> m_streams; ///< By kind.
};

} // namespace folioforge
