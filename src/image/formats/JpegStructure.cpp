// SPDX-License-Identifier: Apache-2.0

#include "image/formats/JpegStructure.h"

#include "image/Bytes.h"

#include <algorithm>
#include <array>

namespace folioforge {

namespace {

constexpr int kTables = 4; // Of each kind.

/// Checks the segments of a Huffman-coded file in their order. Each function is false, or throws
/// Error, where what it is given is not in order.
class StructureCheck {
  public:
    /// A thrifty check knows nothing of restart markers.
    explicit StructureCheck(bool isThrifty)
        : m_isThrifty(isThrifty) {}

    bool accept(const JpegSegment &segment);
    /// Whether every component has been given a scan.
    [[nodiscard]] bool isComplete() const {
        return !m_isSeen.empty() && std::ranges::find(m_isSeen, false) == m_isSeen.end();
    }

    /// Whether the scan holds all components in one pass, so that no other can follow.
    [[nodiscard]] bool isOnlyScan(const JpegSegment &scan) const {
        return m_frame.process != Sof2 &&
               bigEndianAt<uchar>(scan.content, 0) == m_frame.components.size();
    }

  private:
    bool acceptFrame(const JpegSegment &segment);
    bool acceptQuantization(QByteArrayView tables);
    bool acceptHuffman(QByteArrayView tables);
    bool acceptScan(const JpegSegment &scan);
    bool acceptCodedData(const JpegSegment &scan, const std::vector<size_t> &members,
                         bool isFirstPass) const;
    [[nodiscard]] bool hasTables(size_t member, uchar selectors, bool needsDc, bool needsAc) const;

    bool m_isThrifty;
    JpegFrame m_frame;
    int m_across = 1; // The largest sampling factors.
    int m_down = 1;
    qint64 m_interval = 0; // Between restart markers.
    std::vector<bool> m_isSeen;
    std::array<bool, kTables> m_quantization = {};
    std::array<std::array<bool, kTables>, 2> m_huffman = {};
};

bool StructureCheck::accept(const JpegSegment &segment) {
    switch (segment.marker) {
    case Dqt:
        return acceptQuantization(segment.content);
    case Dht:
        return acceptHuffman(segment.content);
    case Dri:
        m_interval = bigEndianAt<quint16>(segment.content, 0);
        return true;
    case Sos:
        return acceptScan(segment);
    case Com:
        return true;
    default:
        return isFrameHeader(segment.marker) ? acceptFrame(segment)
                                             : segment.marker >= App0 && segment.marker <= App15;
    }
}

bool StructureCheck::acceptFrame(const JpegSegment &segment) {
    const bool isFirst = m_frame.process == 0;
    m_frame = readJpegFrame(segment);
    m_isSeen.assign(m_frame.components.size(), false);
    for (const JpegComponent &component : m_frame.components) {
        m_across = std::max(m_across, component.across);
        m_down = std::max(m_down, component.down);
    }
    // Decoders know whole ratios of sampling alone.
    constexpr int kMaxSampling = 4;
    return isFirst && std::ranges::all_of(m_frame.components, [&](const JpegComponent &component) {
               return component.across > 0 && component.across <= kMaxSampling &&
                      component.down > 0 && component.down <= kMaxSampling &&
                      m_across % component.across == 0 && m_down % component.down == 0 &&
                      component.quantization < kTables;
           });
}

bool StructureCheck::acceptQuantization(QByteArrayView tables) {
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

bool StructureCheck::acceptHuffman(QByteArrayView tables) {
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
        m_huffman.at(static_cast<size_t>(kind)).at(static_cast<size_t>(number)) = true;
        tables = tables.sliced(bytes);
    }
    return true;
}

bool StructureCheck::hasTables(size_t member, uchar selectors, bool needsDc, bool needsAc) const {
    const size_t dc = selectors >> 4;
    const size_t ac = selectors & 0x0F;
    return m_quantization.at(static_cast<size_t>(m_frame.components[member].quantization)) &&
           dc < kTables && ac < kTables && (!needsDc || m_huffman[0].at(dc)) &&
           (!needsAc || m_huffman[1].at(ac));
}

bool StructureCheck::acceptScan(const JpegSegment &scan) {
    const QByteArrayView content = scan.content;
    const int count = bigEndianAt<uchar>(content, 0);
    const qsizetype tail = 1 + 2 * count;
    const bool isDc = bigEndianAt<uchar>(content, tail) == 0; // The first coefficient.
    const bool isProgressive = m_frame.process == Sof2;
    const bool isFirstPass = isDc && (bigEndianAt<uchar>(content, tail + 2) >> 4) == 0;
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
    return count > 0 && acceptCodedData(scan, members, !isProgressive || isFirstPass);
}

bool StructureCheck::acceptCodedData(const JpegSegment &scan, const std::vector<size_t> &members,
                                     bool isFirstPass) const {
    constexpr int kSide = 8; // Samples of a block.
    const auto parts = [](qint64 length, qint64 part) { return (length + part - 1) / part; };
    qint64 units = 0; // Between which restart markers may stand.
    qint64 blocks = 0;
    if (members.size() == 1) {
        const JpegComponent &only = m_frame.components[members.front()];
        units = parts(parts(qint64(m_frame.width) * only.across, m_across), kSide) *
                parts(parts(qint64(m_frame.height) * only.down, m_down), kSide);
        blocks = units;
    } else {
        units = parts(m_frame.width, qint64(kSide) * m_across) *
                parts(m_frame.height, qint64(kSide) * m_down);
        for (const size_t member : members) {
            blocks += units * m_frame.components[member].across * m_frame.components[member].down;
        }
    }
    const qint64 restarts = m_interval > 0 && units > 0 ? (units - 1) / m_interval : 0;
    // A block takes a code for its first coefficient, and in one pass another for the rest.
    const qint64 leastBits = !isFirstPass ? 1 : m_frame.process == Sof2 ? blocks : 2 * blocks;
    if (scan.codedBytes < parts(leastBits, 8)) {
        return false;
    }
    return m_isThrifty || (scan.restartsInOrder && scan.restarts >= restarts &&
                           (m_interval > 0 || scan.restarts == 0));
}

/// Photos are large and mostly whole, and a cut one lacks its end: reading all bytes once more
/// would take a third of the time in which they are written.
bool isWorthWalking(const FileView &file) {
    constexpr qint64 kLarge = 1 << 20;
    return file.size() <= kLarge || file.read(file.size() - 2, 2) != "\xFF\xD9";
}

/// Walks to the marker that ends the file. Where that is known to stand at `thriftyEnd`, an only
/// scan is not passed; 0 where it is not known.
void passAll(JpegSegments &segments, qint64 thriftyEnd, JpegStructure &structure) {
    StructureCheck check(thriftyEnd > 0);
    while (auto segment = segments.next()) {
        if (segment->marker == Eoi) {
            structure.isWhole = check.isComplete();
            return;
        }
        if (segment->marker == Sos) {
            if (thriftyEnd > 0 && check.isOnlyScan(*segment)) {
                segment->codedBytes = thriftyEnd - segment->end;
                structure.isWhole = check.accept(*segment);
                return;
            }
            segments.passCodedData(*segment);
        }
        if (!check.accept(*segment)) {
            return;
        }
        if (isJpegMetadata(*segment)) {
            structure.metadata.push_back({segment->at, segment->end - segment->at});
        }
    }
    structure.lacksEnd = check.isComplete();
}

} // namespace

JpegStructure readJpegStructure(const FileView &file, JpegWalk walk) {
    JpegStructure structure;
    JpegSegments segments(file);
    try {
        const bool isThrifty = walk == JpegWalk::Thrifty && !isWorthWalking(file);
        passAll(segments, isThrifty ? file.size() - 2 : 0, structure);
    } catch (const Error &) {
        // A segment is too short: the file is not whole.
    }
    structure.strays = segments.strays();
    if (walk == JpegWalk::Whole && segments.position() < file.size()) {
        structure.metadata.push_back({segments.position(), file.size() - segments.position()});
    }
    return structure;
}

} // namespace folioforge
