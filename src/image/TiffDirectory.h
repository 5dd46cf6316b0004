// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "files/SourceFile.h"

#include <QByteArray>

#include <optional>

namespace folioforge {

/// The first directory of a TIFF file (TIFF 6.0, section 2), or of an EXIF block, which is one. Of
/// a directory that is cut off it has the entries before the cut, and of several entries with one
/// tag the first.
class TiffDirectory {
  public:
    /// Throws Error where `file` has no directory.
    explicit TiffDirectory(const FileView &file);

    /// The number in the entry with this tag; nothing where there is none.
    [[nodiscard]] std::optional<quint16> number(quint16 tag) const;
    /// The fraction to which the entry leads; 0 where there is none.
    [[nodiscard]] double fraction(quint16 tag) const;
    /// The bytes in the entry or to which it leads; empty where there are none, where they are more
    /// than `limit`, or where the file ends before them.
    [[nodiscard]] QByteArray bytes(quint16 tag, qint64 limit) const;

  private:
    [[nodiscard]] quint16 half(qsizetype at) const;
    [[nodiscard]] quint32 word(qsizetype at) const;
    [[nodiscard]] std::optional<qsizetype> find(quint16 tag) const;

    FileView m_file;
    QByteArray m_entries;
    bool m_littleEndian = false;
};

} // namespace folioforge
