// SPDX-License-Identifier: Apache-2.0

#include "verify/TextTrace.h"

#include <cmath>

namespace folioforge {

bool TextTrace::matches(const TextTrace &other) const {
    // Moves are written in hundred thousandths of a point, and a row that is off by less than half
    // a thousandth is not moved.
    constexpr double kOfARow = 0.0006;
    constexpr double kOfAGlyph = 0.00001;
    constexpr double kOfAPage = 0.005;
    const double weights = 0.5 * rows * (rows + 1.0);
    const auto isNear = [](double left, double right, double tolerance) {
        return std::abs(left - right) <= tolerance;
    };
    return characters == other.characters && units == other.units && rows == other.rows &&
           isNear(across, other.across, kOfARow * weights + kOfAPage) &&
           isNear(down, other.down, kOfARow * weights + kOfAPage) &&
           isNear(advance, other.advance, kOfAGlyph * units + kOfAPage);
}

void TextTracer::addText(QStringView text) {
    constexpr std::size_t kLongestPage = 1 << 27; // A small file may repeat a long text.
    if (m_text.size() < kLongestPage) {
        m_text.append(text.utf16(), static_cast<std::size_t>(text.size()));
    }
}

void TextTracer::beginRow(double x, double y) {
    constexpr double kSmallestMove = 0.000005;
    if (m_trace.rows > 0 && std::abs(x - m_x) < kSmallestMove &&
        std::abs(y - m_y) < kSmallestMove) {
        return;
    }
    ++m_trace.rows;
    m_trace.across += m_trace.rows * x;
    m_trace.down += m_trace.rows * y;
    m_x = x;
    m_y = y;
}

TextTrace TextTracer::finish() {
    TextTrace done = m_trace;
    done.units = static_cast<qint32>(m_text.size());
    done.characters = checksumOf(
        QByteArrayView(reinterpret_cast<const char *>(m_text.data()), 2 * std::ssize(m_text)));
    m_trace = {};
    m_text.clear();
    return done;
}

} // namespace folioforge
