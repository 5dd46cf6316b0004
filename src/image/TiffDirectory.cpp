// SPDX-License-Identifier: Apache-2.0

#include "image/TiffDirectory.h"

#include "image/Bytes.h"

namespace folioforge {

namespace {

constexpr qsizetype kEntry = 12;
constexpr qsizetype kValue = 8; ///< In an entry.

template<typename T> T numberAt(bool littleEndian, const QByteArray &bytes, qsizetype at) {
    return littleEndian ? littleEndianAt<T>(bytes, at) : bigEndianAt<T>(bytes, at);
}

} // namespace

TiffDirectory::TiffDirectory(const FileView &file)
    : m_file(file) {
    const QByteArray head = file.readExactly(0, 8);
    m_littleEndian = head.startsWith("II");
    if (!m_littleEndian && !head.startsWith("MM")) {
        throw fileEndsTooEarly();
    }
    const qint64 at = numberAt<quint32>(m_littleEndian, head, 4);
    const auto count = numberAt<quint16>(m_littleEndian, file.readExactly(at, 2), 0);
    m_entries = file.read(at + 2, count * kEntry);
}

std::optional<quint16> TiffDirectory::number(quint16 tag) const {
    const auto entry = find(tag);
    return entry ? std::optional(half(*entry + kValue)) : std::nullopt;
}

double TiffDirectory::fraction(quint16 tag) const {
    const auto entry = find(tag);
    const QByteArray value = entry ? m_file.read(word(*entry + kValue), 8) : QByteArray();
    if (value.size() < 8) {
        return 0;
    }
    const auto denominator = numberAt<quint32>(m_littleEndian, value, 4);
    return denominator == 0 ? 0 : numberAt<quint32>(m_littleEndian, value, 0) / double(denominator);
}

QByteArray TiffDirectory::bytes(quint16 tag, qint64 limit) const {
    constexpr quint16 kLong = 4; // Some writers keep bytes in words.
    const auto entry = find(tag);
    if (!entry) {
        return {};
    }
    const qint64 length = word(*entry + 4) * (half(*entry + 2) == kLong ? qint64(4) : qint64(1));
    const qint64 at = word(*entry + kValue);
    if (length <= 4) {
        return m_entries.sliced(*entry + kValue, length);
    }
    return length <= std::min(limit, m_file.size() - at) ? m_file.read(at, length) : QByteArray();
}

quint16 TiffDirectory::half(qsizetype at) const {
    return numberAt<quint16>(m_littleEndian, m_entries, at);
}

quint32 TiffDirectory::word(qsizetype at) const {
    return numberAt<quint32>(m_littleEndian, m_entries, at);
}

std::optional<qsizetype> TiffDirectory::find(quint16 tag) const {
    for (qsizetype entry = 0; entry + kEntry <= m_entries.size(); entry += kEntry) {
        if (half(entry) == tag) {
            return entry;
        }
    }
    return std::nullopt;
}

} // namespace folioforge
