#pragma once

#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <vector>

#include <jpeglib.h>

namespace folioforge {

/// What a code stands for, and its length; a length of 0 means there is no such code.
struct HuffmanSymbol {
    std::uint8_t value = 0;
    std::uint8_t bits = 0;
};

/// One Huffman table of a JPEG file, for reading (ITU-T T.81, C.2).
class HuffmanCode {
  public:
    /// Symbols of so many bits at most are found by one look.
    static constexpr int kShortBits = 11;

    static constexpr int kMaxCodeLength = 16;

    /// Nothing where there is no table, where it has more codes than their lengths allow (one of
    /// ones alone is never allowed) or a value above `largest`.
    static std::optional<HuffmanCode> of(const JHUFF_TBL *table, int largest);

    /// The symbol whose code `bits` begin with at the top.
    [[nodiscard]] HuffmanSymbol symbol(std::uint64_t bits) const {
        const HuffmanSymbol found = m_short[bits >> (64 - kShortBits)];
        return found.bits != 0 ? found : longSymbol(bits);
    }

  private:
    explicit HuffmanCode(const JHUFF_TBL &table);
    [[nodiscard]] HuffmanSymbol longSymbol(std::uint64_t bits) const;
    void add(unsigned code, HuffmanSymbol symbol);

    std::vector<HuffmanSymbol> m_short;
    std::vector<std::uint8_t> m_values; ///< In the order of their codes.
    /// Of each length: behind its last code, and how far its codes are from their place in
    /// m_values.
    std::array<unsigned, kMaxCodeLength + 1> m_end{};
    std::array<unsigned, kMaxCodeLength + 1> m_distance{};
};

/// Bits of a coefficient's value at most.
constexpr int kMaxSize = 15;

/// Bits that a coefficient takes at most: its code and its value.
constexpr int kMaxCoefficientBits = HuffmanCode::kMaxCodeLength + kMaxSize;

/// The signed value that the `size` bits at the top of `bits` stand for (ITU-T T.81, F.2.2.1).
inline int signedValue(std::uint64_t bits, int size) {
    const int value = static_cast<int>(bits >> 1 >> (63 - size));
    const int ifNegative = ~static_cast<int>(static_cast<std::int64_t>(bits) >> 63);
    return value + (ifNegative & (1 - (1 << size)));
}

} // namespace folioforge
