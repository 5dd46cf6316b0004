#include "compress/jpeg/BlockTransform.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace folioforge {

namespace {

// Loops over all four rows and columns at every size become vector instructions.
constexpr std::size_t kSide = BlockTransform::kMaxEighths;

/// Grey in the middle, where the samples' values are counted from, and half to round.
constexpr float kMiddle = 128.5F;
constexpr std::int16_t kWhite = 255;

float basis(std::size_t sample, std::size_t frequency, int points) {
    const auto turn = static_cast<double>((2 * sample + 1) * frequency) / (2 * points);
    return static_cast<float>(std::cos(turn * std::numbers::pi) *
                              (frequency == 0 ? 1 : std::numbers::sqrt2));
}

} // namespace

BlockTransform::BlockTransform(const JQUANT_TBL &steps, int eighths)
    : m_eighths(eighths) {
    // JPEG's coefficients belong to a basis whose first function is 1/8.
    constexpr float kScale = 1.0F / DCTSIZE;
    const auto points = static_cast<std::size_t>(eighths);
    for (std::size_t row = 0; row < points; ++row) {
        for (std::size_t column = 0; column < points; ++column) {
            m_steps[row * kSide + column] =
                kScale * static_cast<float>(steps.quantval[row * DCTSIZE + column]);
            m_basis[row * kSide + column] = basis(row, column, eighths);
        }
    }
}

/// The columns transformed and made rows.
BlockTransform::Square BlockTransform::transformed(const Square &values) const {
    Square sums;
    for (std::size_t sample = 0; sample < kSide; ++sample) {
        // The lowest frequency counts alike for every sample.
        std::copy_n(values.begin(), kSide, sums.begin() + sample * kSide);
        for (std::size_t frequency = 1; frequency < kSide; ++frequency) {
            for (std::size_t column = 0; column < kSide; ++column) {
                sums[sample * kSide + column] +=
                    m_basis[sample * kSide + frequency] * values[frequency * kSide + column];
            }
        }
    }
    Square turned;
    for (std::size_t row = 0; row < kSide; ++row) {
        for (std::size_t column = 0; column < kSide; ++column) {
            turned[row * kSide + column] = sums[column * kSide + row];
        }
    }
    return turned;
}

BlockTransform::Samples BlockTransform::samples(const CoefficientBlock &block) const {
    Square values;
    for (std::size_t row = 0; row < kSide; ++row) {
        for (std::size_t column = 0; column < kSide; ++column) {
            values[row * kSide + column] =
                m_steps[row * kSide + column] * static_cast<float>(block[row * DCTSIZE + column]);
        }
    }
    values = transformed(transformed(values));
    // No sum is beyond 32 bits; one beyond 16 comes from no picture and may become any grey.
    std::array<std::int16_t, kSide * kSide> whole;
    std::transform(values.begin(), values.end(), whole.begin(), [](float value) {
        return static_cast<std::int16_t>(static_cast<std::int32_t>(value + kMiddle));
    });
    Samples samples;
    std::transform(whole.begin(), whole.end(), samples.begin(), [](std::int16_t value) {
        return static_cast<std::uint8_t>(std::clamp<std::int16_t>(value, 0, kWhite));
    });
    return samples;
}

} // namespace folioforge
