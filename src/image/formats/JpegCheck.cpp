// SPDX-License-Identifier: Apache-2.0

#include "image/formats/JpegCheck.h"

#include "image/Bytes.h"

#include <algorithm>

namespace folioforge {

namespace {

/// Which coefficients a scan of a progressive frame holds, and which of their bits.
struct ScanPass {
    int first = 0;
    int last = 0;
    int high = 0; ///< The lowest bit of the pass before; 0 for none.
    int low = 0;

    ScanPass(QByteArrayView content, qsizetype at)
        : first(bigEndianAt<uchar>(content, at))
        , last(bigEndianAt<uchar>(content, at + 1))
        , high(bigEndianAt<uchar>(content, at + 2) >> 4)
        , low(bigEndianAt<uchar>(content, at + 2) & 0x0F) {}

    /// ITU-T T.81, G.1.1.1.
    [[nodiscard]] bool isInOrder(int components) const {
        constexpr int kLastCoefficient = 63;
        constexpr int kMaxBits = 13;
        const bool isBand =
            first == 0 ? last == 0 : last >= first && last <= kLastCoefficient && components == 1;
        return isBand && low <= kMaxBits && (high == 0 || low == high - 1);
    }
};

} // namespace

bool JpegCheck::isComplete() const {
    return !m_isSeen.empty() && std::ranges::find(m_isSeen, false) == m_isSeen.end();
}

bool JpegCheck::isOnlyScan(const JpegSegment &scan) const {
    return m_frame.process != Sof2 &&
           bigEndianAt<uchar>(scan.content, 0) == m_frame.components.size();
}

bool JpegCheck::accept(const JpegSegment &segment) {
    switch (segment.marker) {
    case Dqt:
        return acceptQuantization(segment.content);
    case Dht:
        return acceptHuffman(segment.content);
    case Dri:
        m_interval = bigEndianAt<quint16>(segment.content, 0);
        return segment.content.size() == 2;
    case Sos:
        return acceptScan(segment);
    case Com:
        return true;
    default:
        return isFrameHeader(segment.marker) ? acceptFrame(segment)
                                             : segment.marker >= App0 && segment.marker <= App15;
    }
}

bool JpegCheck::acceptFrame(const JpegSegment &segment) {
    const bool isFirst = m_frame.process == 0;
    m_frame = readJpegFrame(segment);
    const auto bytes = 6 + 3 * static_cast<qsizetype>(m_frame.components.size());
    m_isSeen.assign(m_frame.components.size(), false);
    for (const JpegComponent &component : m_frame.components) {
        m_maxHorizontal = std::max(m_maxHorizontal, component.horizontalSampling);
        m_maxVertical = std::max(m_maxVertical, component.verticalSampling);
    }
    // Decoders know whole ratios of sampling alone.
    constexpr int kMaxSampling = 4;
    return isFirst && segment.content.size() == bytes &&
           std::ranges::all_of(m_frame.components, [&](const JpegComponent &component) {
               return component.horizontalSampling > 0 &&
                      component.horizontalSampling <= kMaxSampling &&
                      component.verticalSampling > 0 &&
                      component.verticalSampling <= kMaxSampling &&
                      m_maxHorizontal % component.horizontalSampling == 0 &&
                      m_maxVertical % component.verticalSampling == 0 &&
                      component.quantization < kTables;
           });
}

bool JpegCheck::acceptQuantization(QByteArrayView tables) {
    while (!tables.isEmpty()) {
        const auto lead = bigEndianAt<uchar>(tables, 0);
        const qsizetype bytes = 1 + 64 * (lead >> 4 == 0 ? 1 : 2);
        const int number = lead & 0x0F;
        if (tables.size() < bytes || number >= kTables) {
            return false;
        }
        m_quantization.at(static_cast<size_t>(number)) = true;
        tables = tables.sliced(bytes);
    }
    return true;
}

bool JpegCheck::acceptHuffman(QByteArrayView tables) {
    constexpr int kLengths = 16; // Bits of the longest code.
    while (!tables.isEmpty()) {
        const auto lead = bigEndianAt<uchar>(tables, 0);
        const int number = lead & 0x0F;
        const int kind = lead >> 4; // 0 DC, 1 AC.
        int symbols = 0;
        bool fits = true;
        for (int bits = 1, code = 0; bits <= kLengths; ++bits) {
            const auto count = bigEndianAt<uchar>(tables, bits);
            symbols += count;
            code = (code << 1) + count;
            fits = fits && code <= 1 << bits;
        }
        const qsizetype bytes = 1 + kLengths + symbols;
        if (number >= kTables || kind > 1 || !fits || symbols > 256 || tables.size() < bytes) {
            return false;
        }
        // A first coefficient is stated in 15 bits at most.
        if (kind == 0 && std::ranges::any_of(tables.sliced(1 + kLengths, symbols), [](char bits) {
                return static_cast<uchar>(bits) > 15;
            })) {
            return false;
        }
        m_huffman.at(static_cast<size_t>(kind)).at(static_cast<size_t>(number)) = true;
        if (kind == 1) {
            m_endIsZeros.at(static_cast<size_t>(number)) =
                bigEndianAt<uchar>(tables, 1 + kLengths) == 0;
        }
        tables = tables.sliced(bytes);
    }
    return true;
}

bool JpegCheck::hasTables(size_t member, uchar selectors, bool needsDc, bool needsAc) const {
    const size_t dc = selectors >> 4;
    const size_t ac = selectors & 0x0F;
    return m_quantization.at(static_cast<size_t>(m_frame.components[member].quantization)) &&
           dc < kTables && ac < kTables && (!needsDc || m_huffman[0].at(dc)) &&
           (!needsAc || m_huffman[1].at(ac));
}

bool JpegCheck::acceptScan(const JpegSegment &scan) {
    const QByteArrayView content = scan.content;
    const int count = bigEndianAt<uchar>(content, 0);
    const ScanPass pass(content, 1 + 2 * count);
    const bool isProgressive = m_frame.process == Sof2;
    if (count == 0 || content.size() != 4 + 2 * count ||
        (isProgressive && !pass.isInOrder(count))) {
        return false;
    }
    const bool isDc = pass.first == 0;
    const bool isFirstPass = isDc && pass.high == 0;
    std::vector<size_t> members;
    for (int i = 0; i < count; ++i) {
        const auto id = bigEndianAt<uchar>(content, 1 + 2 * i);
        const auto found = std::ranges::find(m_frame.components, id, &JpegComponent::id);
        if (found == m_frame.components.end()) {
            return false;
        }
        members.push_back(static_cast<size_t>(found - m_frame.components.begin()));
        if (!hasTables(members.back(), bigEndianAt<uchar>(content, 2 + 2 * i),
                       isProgressive ? isFirstPass : true, isProgressive ? !isDc : true)) {
            return false;
        }
        m_isSeen[members.back()] = m_isSeen[members.back()] || !isProgressive || isFirstPass;
    }
    m_isDoubtful = m_isDoubtful || (scan.hasZeros && !isProgressive && !mayBeZeros(content));
    return acceptCodedData(scan, members, !isProgressive || isFirstPass);
}

/// Whether blocks of one colour may be stored as nothing but zeros.
bool JpegCheck::mayBeZeros(QByteArrayView scan) const {
    constexpr int kAc = 0x0F;
    for (int i = 0; i < bigEndianAt<uchar>(scan, 0); ++i) {
        if (!m_endIsZeros.at(bigEndianAt<uchar>(scan, 2 + 2 * i) & kAc)) {
            return false;
        }
    }
    return true;
}

bool JpegCheck::acceptCodedData(const JpegSegment &scan, const std::vector<size_t> &members,
                                bool isFirstPass) const {
    constexpr int kSide = 8; // Samples of a block.
    const auto parts = [](qint64 length, qint64 part) { return (length + part - 1) / part; };
    qint64 units = 0; // Between which restart markers may stand.
    qint64 blocks = 0;
    if (members.size() == 1) {
        const JpegComponent &only = m_frame.components[members.front()];
        units =
            parts(parts(qint64(m_frame.width) * only.horizontalSampling, m_maxHorizontal), kSide) *
            parts(parts(qint64(m_frame.height) * only.verticalSampling, m_maxVertical), kSide);
        blocks = units;
    } else {
        units = parts(m_frame.width, qint64(kSide) * m_maxHorizontal) *
                parts(m_frame.height, qint64(kSide) * m_maxVertical);
        for (const size_t member : members) {
            blocks += units * m_frame.components[member].horizontalSampling *
                      m_frame.components[member].verticalSampling;
        }
    }
    const qint64 restarts = m_interval > 0 && units > 0 ? (units - 1) / m_interval : 0;
    // A block takes a code for its first coefficient, and in one pass another for the rest.
    const qint64 leastBits = !isFirstPass ? 1 : m_frame.process == Sof2 ? blocks : 2 * blocks;
    if (scan.codedBytes < parts(leastBits, 8)) {
        return false;
    }
    if (m_isThrifty) {
        return scan.lastRestart < 0 || scan.lastRestart == (restarts - 1) % 8;
    }
    return scan.restartsInOrder && scan.restarts >= restarts &&
           (m_interval > 0 || scan.restarts == 0);
}

} // namespace folioforge
