// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Tiff.h"

#include "image/Bytes.h"

#include <QSet>

#include <algorithm>

namespace folioforge {

namespace {

/// Reads directories as far as their first tags, which say what a page is for, and the place of the
/// next: libtiff would read each with all its numbers.
class DirectoryWalk {
  public:
    explicit DirectoryWalk(const FileView &file)
        : m_file(file)
        , m_isBigEndian(file.read(0, 1) == "M")
        , m_isBigTiff(number<quint16>(2) == 43) {}

    [[nodiscard]] qint64 first() const { return m_isBigTiff ? offsetAt(8) : offsetAt(4); }

    /// The place of the directory after the one at `at`; 0 behind the last.
    [[nodiscard]] qint64 next(qint64 at) const {
        return offsetAt(at + countBytes() + entries(at) * entryBytes());
    }

    /// Whether the directory holds a page, not a smaller copy or a mask of one.
    [[nodiscard]] bool isPage(qint64 at) const {
        constexpr quint32 kSmallerOrMask = FILETYPE_REDUCEDIMAGE | FILETYPE_MASK;
        // Tags stand in the order of their numbers, and these are the lowest.
        for (qint64 i = 0; i < std::min<qint64>(entries(at), 2); ++i) {
            const qint64 entry = at + countBytes() + i * entryBytes();
            const qint64 value = entry + (m_isBigTiff ? 12 : 8);
            const auto tag = number<quint16>(entry);
            if ((tag == TIFFTAG_SUBFILETYPE && (number<quint32>(value) & kSmallerOrMask) != 0) ||
                (tag == TIFFTAG_OSUBFILETYPE && number<quint16>(value) == OFILETYPE_REDUCEDIMAGE)) {
                return false;
            }
        }
        return true;
    }

  private:
    [[nodiscard]] qint64 countBytes() const { return m_isBigTiff ? 8 : 2; }
    [[nodiscard]] qint64 entryBytes() const { return m_isBigTiff ? 20 : 12; }

    template<typename T> [[nodiscard]] T number(qint64 at) const {
        const QByteArray bytes = m_file.readExactly(at, sizeof(T));
        return m_isBigEndian ? bigEndianAt<T>(bytes, 0) : littleEndianAt<T>(bytes, 0);
    }
    [[nodiscard]] qint64 offsetAt(qint64 at) const {
        return m_isBigTiff ? static_cast<qint64>(number<quint64>(at)) : number<quint32>(at);
    }
    [[nodiscard]] qint64 entries(qint64 at) const {
        const auto count = m_isBigTiff ? number<quint64>(at) : number<quint16>(at);
        // More than there can be would overflow the sums; behind the file's end it is an error.
        return static_cast<qint64>(std::min<quint64>(count, static_cast<quint64>(m_file.size())));
    }

    const FileView &m_file;
    bool m_isBigEndian;
    bool m_isBigTiff;
};

} // namespace

TiffPages findTiffPages(const FileView &file) {
    constexpr qsizetype kMaxPages = 65535; // libtiff counts no further.
    TiffPages found{{0}, false};
    try {
        const DirectoryWalk walk(file);
        QSet<qint64> seen = {walk.first()};
        for (qint64 at = walk.next(walk.first()); at != 0 && seen.size() < kMaxPages;
             at = walk.next(at)) {
            if (seen.contains(at)) {
                break; // A chain that leads back to itself has no further page.
            }
            seen.insert(at);
            if (walk.isPage(at)) {
                found.directories.push_back(at);
            }
        }
    } catch (const Error &) {
        found.isCutOff = true;
    }
    return found;
}

} // namespace folioforge
