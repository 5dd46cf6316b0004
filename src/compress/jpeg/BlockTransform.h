#pragma once

#include "compress/jpeg/CoefficientCode.h"

#include <array>
#include <cstdint>
#include <cstdio>

#include <jpeglib.h>

namespace folioforge {

/// Makes of a block's coefficients its picture at 1 to 4 eighths of the size: the inverse cosine
/// transform (ITU-T T.81, A.3.3) of as many points, from the lowest frequencies alone. Without the
/// higher ones nothing can alias.
class BlockTransform {
  public:
    static constexpr int kMaxEighths = 4;
    /// Rows of kMaxEighths samples; those beyond eighths() mean nothing.
    using Samples = std::array<std::uint8_t, kMaxEighths * kMaxEighths>;

    /// Steps of quantization are 255 at most, as in all baseline files.
    static constexpr int kMaxStep = 255;

    BlockTransform(const JQUANT_TBL &steps, int eighths);
    [[nodiscard]] int eighths() const { return m_eighths; }
    [[nodiscard]] Samples samples(const CoefficientBlock &block) const;

  private:
    using Square = std::array<float, kMaxEighths * kMaxEighths>;

    [[nodiscard]] Square transformed(const Square &values) const;

    int m_eighths;
    Square m_steps{}; ///< 0 for the frequencies left out.
    Square m_basis{}; ///< A row for each sample.
};

} // namespace folioforge
