// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"

#include <QByteArray>

#include <optional>

namespace folioforge {

/// A named run of bytes of a file.
struct Chunk {
    QByteArray type;   ///< Four bytes.
    qint64 at = 0;     ///< Where its content begins.
    qint64 length = 0; ///< Of its content, as it states: the file may end before.
};

/// Walks through the chunks of a PNG file (ISO 15948, 5.3).
class PngChunks {
  public:
    explicit PngChunks(const FileView &file)
        : m_file(file) {}

    /// The next chunk; nothing behind IEND, and where the file ends before one.
    std::optional<Chunk> next();

  private:
    const FileView &m_file;
    qint64 m_at = 8; ///< Behind the signature.
};

/// Walks through the chunks of a WebP file, as many as any sound one has.
class WebpChunks {
  public:
    explicit WebpChunks(const FileView &file)
        : m_file(file) {}

    /// The next chunk; nothing where the file ends before one.
    std::optional<Chunk> next();

  private:
    const FileView &m_file;
    qint64 m_at = 12; ///< Behind "RIFF", the file's length and "WEBP".
    int m_count = 0;
};

} // namespace folioforge
