// SPDX-License-Identifier: Apache-2.0

#include "image/formats/JpegSegments.h"

#include "image/Bytes.h"

#include <algorithm>
#include <array>

namespace folioforge {

namespace {

constexpr qint64 kWindow = 16384;

bool hasNoLength(uchar marker) {
    return marker == Tem || (marker >= Rst0 && marker <= Eoi);
}

bool isRestart(uchar marker) {
    return marker >= Rst0 && marker <= Rst7;
}

/// How far coded data were passed.
struct Passed {
    qsizetype bytes = 0;
    bool isEnd = false; ///< A marker follows that ends them.
};

Passed passPiece(QByteArrayView piece, JpegSegment &scan) {
    for (qsizetype at = piece.indexOf('\xFF'); at >= 0; at = piece.indexOf('\xFF', at)) {
        if (at + 1 == piece.size()) {
            return {at, false};
        }
        const auto code = static_cast<uchar>(piece[at + 1]);
        if (isRestart(code)) {
            scan.restartsInOrder &= code == Rst0 + scan.restarts % 8;
            ++scan.restarts;
        } else if (code != 0 && code != 0xFF) {
            return {at, true};
        }
        at += code == 0xFF ? 1 : 2; // A zero marks data, and fill bytes may precede a marker.
    }
    return {piece.size(), false};
}

/// Shorter than a sector of a disk, longer than what a picture may hold.
constexpr qsizetype kZeros = 64;

/// Whether `data` has a stretch of zeros twice as long as that.
bool hasZeroStretch(QByteArrayView data) {
    for (qsizetype at = 0; at + kZeros <= data.size(); at += kZeros) {
        if (std::ranges::all_of(data.sliced(at, kZeros), [](char byte) { return byte == 0; })) {
            return true;
        }
    }
    return false;
}

/// The number of the last restart marker in `data`; -1 where there is none.
int lastRestartIn(QByteArrayView data) {
    for (qsizetype at = data.size() - 2; at >= 0; --at) {
        const auto code = static_cast<uchar>(data[at + 1]);
        if (data[at] == '\xFF' && isRestart(code)) {
            return code - Rst0;
        }
    }
    return -1;
}

} // namespace

QByteArrayView JpegSegments::bytes(qint64 at, qint64 length) {
    if (at < m_start || at + length > m_start + m_window.size()) {
        m_start = at;
        m_window = m_file.read(at, std::max(length, kWindow));
    }
    const QByteArrayView window(m_window);
    return window.sliced(at - m_start, std::min(length, m_start + window.size() - at));
}

/// Steps to the last 0xFF before the next marker code; false where the file has none.
bool JpegSegments::findMarker() {
    qint64 stray = m_at;
    for (QByteArrayView two = bytes(m_at, 2); two.size() == 2; two = bytes(m_at, 2)) {
        const auto code = static_cast<uchar>(two[1]);
        if (static_cast<uchar>(two[0]) != 0xFF || code == 0) {
            ++m_at;
        } else if (code == 0xFF) {
            // Any number of fill bytes may stand before a marker.
            if (m_at == stray) {
                ++stray;
            }
            ++m_at;
        } else {
            if (m_at > stray) {
                m_strays.push_back({stray, m_at - stray});
            }
            return true;
        }
    }
    return false;
}

void JpegSegments::restart() {
    m_at = kFirst;
    m_strays.clear();
}

std::optional<JpegSegment> JpegSegments::next() {
    if (!findMarker()) {
        return std::nullopt;
    }
    constexpr qint64 kLead = 4; // The marker and the length, which counts its own two bytes.
    const QByteArrayView lead = bytes(m_at, kLead);
    JpegSegment segment;
    segment.marker = static_cast<uchar>(lead[1]);
    segment.at = m_at;
    segment.end = m_at + 2;
    if (!hasNoLength(segment.marker)) {
        if (lead.size() < kLead) {
            return std::nullopt;
        }
        const auto length = std::max<qint64>(bigEndianAt<quint16>(lead, 2), 2);
        segment.end = m_at + 2 + length;
        segment.content = bytes(m_at + kLead, length - 2);
        if (segment.content.size() < length - 2) {
            return std::nullopt;
        }
    }
    m_at = segment.end;
    return segment;
}

void JpegSegments::passCodedData(JpegSegment &scan) {
    constexpr qint64 kPiece = 1 << 18;
    Passed passed;
    do {
        const QByteArray piece = m_file.read(m_at, kPiece);
        passed = passPiece(piece, scan);
        scan.hasZeros |= hasZeroStretch(QByteArrayView(piece).first(passed.bytes));
        m_at += passed.bytes;
    } while (!passed.isEnd && passed.bytes > 0);
    scan.codedBytes = m_at - scan.end;
    scan.end = m_at;
}

void JpegSegments::probeCodedData(JpegSegment &scan, qint64 end, bool hasRestarts) {
    constexpr qint64 kStep = 1 << 17; // Each look costs a call of the system.
    constexpr qint64 kLastPiece = 1 << 15;
    std::array<uchar, kZeros> piece{};
    for (qint64 at = scan.end; at + kZeros <= end && !scan.hasZeros; at += kStep) {
        scan.hasZeros = m_file.readInto(at, piece) == kZeros && hasZeroStretch(piece);
    }
    if (hasRestarts) {
        const qint64 last = std::max(scan.end, end - kLastPiece);
        scan.lastRestart = lastRestartIn(m_file.read(last, end - last));
    }
    scan.codedBytes = end - scan.end;
    scan.end = m_at = end;
}

bool isNamedRgb(const JpegFrame &frame) {
    return std::ranges::equal(frame.components, QByteArrayView("RGB"), {}, &JpegComponent::id,
                              [](char id) { return static_cast<uchar>(id); });
}

bool isFrameHeader(uchar marker) {
    return marker >= Sof0 && marker <= Sof15 && marker != Dht && marker != JpgReserved &&
           marker != Dac;
}

bool isJpegMetadata(const JpegSegment &segment) {
    switch (segment.marker) {
    case App0:
        return !segment.content.startsWith(QByteArrayView("JFIF\0", 5));
    case App2:
        return !segment.content.startsWith(QByteArrayView("ICC_PROFILE\0", 12));
    case App14:
        return !segment.content.startsWith("Adobe");
    default:
        return (segment.marker >= App0 && segment.marker <= App15) || segment.marker == Com;
    }
}

JpegFrame readJpegFrame(const JpegSegment &segment) {
    const QByteArrayView content = segment.content;
    constexpr qsizetype kLead = 6;
    constexpr qsizetype kComponent = 3;
    JpegFrame frame;
    frame.process = segment.marker;
    frame.precision = bigEndianAt<uchar>(content, 0);
    frame.height = bigEndianAt<quint16>(content, 1);
    frame.width = bigEndianAt<quint16>(content, 3);
    const int count = bigEndianAt<uchar>(content, 5);
    for (int i = 0; i < count; ++i) {
        const qsizetype at = kLead + i * kComponent;
        const auto sampling = bigEndianAt<uchar>(content, at + 1);
        frame.components.push_back({bigEndianAt<uchar>(content, at), sampling >> 4, sampling & 0x0F,
                                    bigEndianAt<uchar>(content, at + 2)});
    }
    return frame;
}

} // namespace folioforge
