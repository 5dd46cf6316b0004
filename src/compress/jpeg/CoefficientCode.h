#pragma once

#include "compress/jpeg/BitReader.h"
#include "compress/jpeg/HuffmanCode.h"

#include <array>
#include <cstdint>
#include <vector>

namespace folioforge {

/// The coefficients of a block as JPEG quantized them, in rows, the lowest frequencies first. One
/// place more takes what is written beyond the last.
using CoefficientBlock = std::array<std::int16_t, DCTSIZE2 + 1>;

/// The code of a block's coefficients but the first (ITU-T T.81, F.2.2.2), read several at a time:
/// in photos most take three or four bits.
class CoefficientCode {
  public:
    explicit CoefficientCode(HuffmanCode code);

    /// Reads the coefficients from the second on into `block`, whose other places must be 0. Fills
    /// `in` as needed, takes 31 bits at most for each coefficient. False where a code is none
    /// or leads beyond the block.
    bool read(BitReader &in, CoefficientBlock &block) const;

  private:
    /// Coefficients that one look gives. There is room for three; those that are not there have a
    /// place beyond every block.
    struct Step {
        struct Coefficient {
            std::int8_t value = 0;
            std::uint8_t offset = kNowhere; ///< From the coefficient that comes next.
        };
        std::uint8_t bits : 7 = 0;
        bool endsBlock : 1 = false;
        std::uint8_t advance = DCTSIZE2; ///< Coefficients passed.
        std::array<Coefficient, 3> coefficients;
    };
    static constexpr std::uint8_t kNowhere = 127;

    [[nodiscard]] Step stepFor(unsigned index) const;
    unsigned readOne(BitReader &in, unsigned next, CoefficientBlock &block) const;

    HuffmanCode m_code;
    std::vector<Step> m_steps;
};

} // namespace folioforge
