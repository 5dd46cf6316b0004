#include "compress/jpeg/CoefficientCode.h"

#include <utility>

namespace folioforge {

namespace {

constexpr int kStepBits = HuffmanCode::kShortBits;
constexpr int kSizeMask = 15; ///< The lower half of a symbol; the upper is the run of zeros before.
constexpr unsigned kZerosRun = 15;
constexpr unsigned kEndOfBlock = 128; ///< A run that leads beyond every block.

/// What comes next where nothing does.
constexpr unsigned kDone = DCTSIZE2;
constexpr unsigned kWrong = DCTSIZE2 + 1;

/// Where the coefficients of the zigzag sequence (ITU-T T.81, figure A.6) stand in a block; those
/// beyond its end, in the place that nobody reads.
constexpr auto kPlaces = [] {
    std::array<std::uint8_t, 256> places{};
    places.fill(DCTSIZE2);
    std::size_t next = 0;
    for (int diagonal = 0; diagonal < 2 * DCTSIZE - 1; ++diagonal) {
        for (int i = 0; i <= diagonal; ++i) {
            const int row = diagonal % 2 == 0 ? diagonal - i : i;
            const int column = diagonal - row;
            if (row < DCTSIZE && column < DCTSIZE) {
                places[next++] = static_cast<std::uint8_t>(row * DCTSIZE + column);
            }
        }
    }
    return places;
}();

unsigned runOf(HuffmanSymbol symbol) {
    const unsigned run = symbol.value >> 4;
    return (symbol.value & kSizeMask) != 0 || run == kZerosRun ? run : kEndOfBlock;
}

} // namespace

CoefficientCode::CoefficientCode(HuffmanCode code)
    : m_code(std::move(code)) {
    m_steps.reserve(1 << kStepBits);
    for (unsigned index = 0; index < 1 << kStepBits; ++index) {
        m_steps.push_back(stepFor(index));
    }
}

/// What the bits of `index` give; nothing where they do not hold the first coefficient to its end.
CoefficientCode::Step CoefficientCode::stepFor(unsigned index) const {
    constexpr int kMaxSmall = 7; ///< The size of values that fit into eight bits.
    Step step;
    std::size_t found = 0;
    int used = 0;
    unsigned next = 0;
    while (!step.endsBlock && used < kStepBits) {
        const std::uint64_t bits = std::uint64_t(index) << (64 - kStepBits + used);
        const HuffmanSymbol symbol = m_code.symbol(bits);
        const int size = symbol.value & kSizeMask;
        const unsigned run = runOf(symbol);
        if (symbol.bits == 0 || used + symbol.bits + size > kStepBits || size > kMaxSmall ||
            (size != 0 && found == step.coefficients.size()) ||
            (run < kEndOfBlock && next + run + 1 >= DCTSIZE2)) {
            break;
        }
        used += symbol.bits + size;
        step.endsBlock = run == kEndOfBlock;
        if (size != 0) {
            step.coefficients[found++] = {
                static_cast<std::int8_t>(signedValue(bits << symbol.bits, size)),
                static_cast<std::uint8_t>(next + run)};
        }
        next += step.endsBlock ? 0 : run + 1;
    }
    if (used != 0) {
        step.bits = used & 0x7f;
        step.advance = static_cast<std::uint8_t>(next);
    }
    return step;
}

/// Reads one coefficient and returns the number of the next, or kDone, or more where something is
/// wrong.
unsigned CoefficientCode::readOne(BitReader &in, unsigned next, CoefficientBlock &block) const {
    const HuffmanSymbol symbol = m_code.symbol(in.bits());
    if (symbol.bits == 0) {
        return kWrong;
    }
    in.skip(symbol.bits);
    const unsigned place = next + runOf(symbol);
    if (place >= kEndOfBlock) {
        return kDone;
    }
    const int size = symbol.value & kSizeMask;
    block[kPlaces[place]] = static_cast<std::int16_t>(signedValue(in.bits(), size));
    in.skip(size);
    return place + 1;
}

bool CoefficientCode::read(BitReader &in, CoefficientBlock &block) const {
    constexpr int kStepsOfOneFill = 4;
    unsigned next = 1;
    while (next < kDone) {
        in.fill();
        for (int i = 0; i < kStepsOfOneFill; ++i) {
            const Step step = m_steps[in.bits() >> (64 - kStepBits)];
            // At the end of a block, what follows in the step may be the next block's.
            if (next + step.advance >= kDone) {
                in.fill();
                next = readOne(in, next, block);
                break;
            }
            for (const Step::Coefficient &coefficient : step.coefficients) {
                block[kPlaces[next + coefficient.offset]] = coefficient.value;
            }
            in.skip(step.bits);
            if (step.endsBlock) {
                return true;
            }
            next += step.advance;
        }
    }
    return next == kDone;
}

} // namespace folioforge
