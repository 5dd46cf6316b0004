// SPDX-License-Identifier: Apache-2.0

#include "image/formats/Chunks.h"

#include "image/Bytes.h"

namespace folioforge {

namespace {

constexpr qint64 kLead = 8; ///< Length and type.

} // namespace

std::optional<Chunk> PngChunks::next() {
    constexpr qint64 kChecksum = 4;
    const QByteArray lead = m_file.read(m_at, kLead);
    if (lead.size() < kLead) {
        return std::nullopt;
    }
    const Chunk chunk{lead.sliced(4), m_at + kLead, bigEndianAt<quint32>(lead, 0)};
    m_at = chunk.type == "IEND" ? m_file.size() : chunk.at + chunk.length + kChecksum;
    return chunk;
}

std::optional<Chunk> WebpChunks::next() {
    constexpr int kMaxChunks = 100'000;
    const QByteArray lead = m_count < kMaxChunks ? m_file.read(m_at, kLead) : QByteArray();
    if (lead.size() < kLead) {
        return std::nullopt;
    }
    const Chunk chunk{lead.first(4), m_at + kLead, littleEndianAt<quint32>(lead, 4)};
    m_at = chunk.at + chunk.length + chunk.length % 2;
    ++m_count;
    return chunk;
}

} // namespace folioforge
