#pragma once

#include <cstdint>

#include <QtEndian>

namespace folioforge {

/// Reads bits, the most significant of each byte first. Knows no end: whoever reads sees to it that
/// kPadding bytes stand behind the data and looks now and then where the reader is.
class BitReader {
  public:
    /// What fill() may read beyond the place where it is.
    static constexpr int kPadding = 8;

    explicit BitReader(const std::uint8_t *data)
        : m_next(data) {}

    /// Sees to it that at least 56 bits can be looked at. Without a branch: bits below the count
    /// are already the true next ones, so that the same ones may be put over them, and setting the
    /// count's upper bits adds as many whole bytes as were taken.
    void fill() {
        m_bits |= qFromBigEndian<std::uint64_t>(m_next) >> m_count;
        m_next += (63 - m_count) >> 3;
        m_count |= 56;
    }
    /// The next bits from the top, as many as fill() gave and were not skipped since.
    [[nodiscard]] std::uint64_t bits() const { return m_bits; }
    void skip(int count) {
        m_bits <<= count;
        m_count -= count;
    }
    /// Behind the last byte that a bit was taken of.
    [[nodiscard]] const std::uint8_t *position() const { return m_next - m_count / 8; }

  private:
    const std::uint8_t *m_next;
    std::uint64_t m_bits = 0;
    int m_count = 0;
};

} // namespace folioforge
