// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/Deflate.h"
#include "pdf/tags/CrossReferences.h"

#include <QByteArray>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class Pipeline;

namespace folioforge {

class StreamCipher;

/// Writes objects as text into object streams (ISO 32000-1, 7.5.7) behind those of the library, so
/// that a document may have more of them than memory has room for.
class ObjectStreams {
  public:
    /// Objects go to `file`, which has `offset` bytes, and their places to `references`. A null
    /// `cipher` means none.
    ObjectStreams(Pipeline &file, qint64 offset, CrossReferences &references,
                  const StreamCipher *cipher);

    /// A number that no object has.
    int newNumber() { return m_next++; }
    /// Adds an object under a new number, or in place of one of the library.
    void add(int number, std::string_view object);
    /// To be called where what belongs together ends: the objects so far may become a stream.
    void mayBreak();
    /// Writes what is left and, behind it, the cross-reference stream.
    void finish();

  private:
    void writeStream();
    void write(const QByteArray &bytes);

    Pipeline &m_file;
    qint64 m_offset;
    CrossReferences &m_references;
    const StreamCipher *m_cipher;
    Deflater m_deflater{DeflateEffort::Full};
    int m_next;
    int m_stream = 0;      ///< The number of the stream that is being filled.
    std::string m_objects; ///< Of that stream.
    std::string m_places;  ///< Number and place of each.
    int m_count = 0;
};

} // namespace folioforge
