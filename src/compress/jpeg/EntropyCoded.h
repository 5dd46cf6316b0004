#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace folioforge {

/// The entropy-coded data of a JPEG scan, one restart interval after the other (ITU-T T.81,
/// F.1.2.3): the bytes between markers, without those stuffed in behind each 0xff.
class EntropyCoded {
  public:
    /// No interval yet. Zeros stand behind the bytes of each, as many as `padding`.
    EntropyCoded(std::span<const std::uint8_t> data, std::size_t padding);

    /// Goes on to the next interval. False where the data ends without a marker.
    bool next();
    [[nodiscard]] const std::uint8_t *begin() const { return m_bytes.data(); }
    [[nodiscard]] const std::uint8_t *end() const { return m_bytes.data() + m_size; }
    /// The marker behind the interval.
    [[nodiscard]] int marker() const { return m_marker; }

  private:
    std::span<const std::uint8_t> m_rest;
    std::size_t m_padding;
    std::vector<std::uint8_t> m_bytes;
    std::size_t m_size = 0;
    int m_marker = 0;
};

} // namespace folioforge
