// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "image/formats/JpegSegments.h"

#include <QByteArrayView>

#include <array>
#include <vector>

namespace folioforge {

/// Checks the segments of a Huffman-coded file in their order. Each function is false, or throws
/// Error, where what it is given is not in order.
class JpegCheck {
  public:
    /// A thrifty check knows nothing of restart markers.
    explicit JpegCheck(bool isThrifty)
        : m_isThrifty(isThrifty) {}

    bool accept(const JpegSegment &segment);
    /// Whether every component has been given a scan.
    [[nodiscard]] bool isComplete() const;

    /// Whether the scan holds all components in one pass, so that no other can follow.
    [[nodiscard]] bool isOnlyScan(const JpegSegment &scan) const;
    /// Whether restart markers stand in the scans to come.
    [[nodiscard]] bool hasRestarts() const { return m_interval > 0; }
    /// Whether coded data so far have a stretch of zeros that no picture is likely to have.
    [[nodiscard]] bool isDoubtful() const { return m_isDoubtful; }

  private:
    static constexpr int kTables = 4; // Of each kind.

    bool acceptFrame(const JpegSegment &segment);
    bool acceptQuantization(QByteArrayView tables);
    bool acceptHuffman(QByteArrayView tables);
    bool acceptScan(const JpegSegment &scan);
    bool acceptCodedData(const JpegSegment &scan, const std::vector<size_t> &members,
                         bool isFirstPass) const;
    [[nodiscard]] bool mayBeZeros(QByteArrayView scan) const;
    [[nodiscard]] bool hasTables(size_t member, uchar selectors, bool needsDc, bool needsAc) const;

    bool m_isThrifty;
    JpegFrame m_frame;
    int m_maxHorizontal = 1; // The largest sampling factors.
    int m_maxVertical = 1;
    qint64 m_interval = 0; // Between restart markers.
    bool m_isDoubtful = false;
    std::vector<bool> m_isSeen;
    std::array<bool, kTables> m_quantization = {};
    std::array<std::array<bool, kTables>, 2> m_huffman = {};
    /// Whether the code of a table that is all zeros ends a block.
    std::array<bool, kTables> m_endIsZeros = {};
};

} // namespace folioforge
