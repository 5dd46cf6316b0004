// SPDX-License-Identifier: Apache-2.0

#include "compress/Resampler.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace folioforge {

namespace {

constexpr int kWeightBits = 14;
constexpr double kLobes = 3;
/// Weights come in groups of so many, for the sake of vector units.
constexpr int kGroup = 8;

double lanczos(double x) {
    if (std::abs(x) < 1e-9) {
        return 1;
    }
    if (std::abs(x) >= kLobes) {
        return 0;
    }
    const double angle = std::numbers::pi * x;
    return kLobes * std::sin(angle) * std::sin(angle / kLobes) / (angle * angle);
}

std::uint8_t toByte(std::int32_t sum) {
    const std::int32_t value = (sum + (1 << (kWeightBits - 1))) >> kWeightBits;
    return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

/// Where the positions of a target row or column take their samples from.
class Kernel {
  public:
    Kernel(int from, int to)
        : m_ratio(static_cast<double>(from) / to)
        , m_stretch(std::max(1.0, m_ratio))
        , m_from(from)
        , m_taps((2 * static_cast<int>(std::ceil(kLobes * m_stretch)) + kGroup) / kGroup * kGroup)
        , m_weights(static_cast<std::size_t>(to) * static_cast<std::size_t>(m_taps)) {
        for (int target = 0; target < to; ++target) {
            m_first.push_back(firstOf(target));
            setWeights(target);
        }
    }

    /// Weights of each position, a multiple of kGroup; those too many are 0.
    [[nodiscard]] int taps() const { return m_taps; }
    [[nodiscard]] int first(int target) const { return m_first[static_cast<std::size_t>(target)]; }
    [[nodiscard]] const std::int16_t *weights(int target) const {
        return m_weights.data() + static_cast<std::ptrdiff_t>(target) * m_taps;
    }

  private:
    [[nodiscard]] double centreOf(int target) const { return (target + 0.5) * m_ratio - 0.5; }
    [[nodiscard]] int firstOf(int target) const {
        return std::max(0, static_cast<int>(std::ceil(centreOf(target) - kLobes * m_stretch)));
    }

    void setWeights(int target) {
        const double centre = centreOf(target);
        const int first = firstOf(target);
        const int count = std::min(m_from - first, m_taps);
        std::vector<double> shares;
        double sum = 0;
        for (int i = 0; i < count; ++i) {
            shares.push_back(lanczos((first + i - centre) / m_stretch));
            sum += shares.back();
        }
        std::int16_t *weights = m_weights.data() + static_cast<std::ptrdiff_t>(target) * m_taps;
        int left = 1 << kWeightBits;
        for (int i = 0; i < count; ++i) {
            const double share = shares[static_cast<std::size_t>(i)] / sum;
            weights[i] = static_cast<std::int16_t>(std::lround(share * (1 << kWeightBits)));
            left -= weights[i];
        }
        // What rounding lost goes to the largest, so that flat areas keep their value.
        std::int16_t &largest = *std::max_element(weights, weights + count);
        largest = static_cast<std::int16_t>(largest + left);
    }

    double m_ratio;   ///< Source samples for one of the target.
    double m_stretch; ///< How much wider the kernel is than a source sample.
    int m_from;
    int m_taps;
    std::vector<int> m_first;
    std::vector<std::int16_t> m_weights;
};

/// Mixes the rows that count for row `y` of the target.
void mixRows(const Plane &source, const Kernel &kernel, int y, std::vector<std::int32_t> &sums,
             std::vector<std::int16_t> &mixed) {
    std::fill(sums.begin(), sums.end(), 1 << (kWeightBits - 1));
    const int first = kernel.first(y);
    const std::size_t width = sums.size();
    for (int i = 0; i < std::min(kernel.taps(), source.height() - first); ++i) {
        const std::int16_t weight = kernel.weights(y)[i];
        const std::uint8_t *row = source.row(first + i);
        if (weight != 0) {
            for (std::size_t x = 0; x < width; ++x) {
                sums[x] += weight * static_cast<std::int16_t>(row[x]);
            }
        }
    }
    for (std::size_t x = 0; x < width; ++x) {
        mixed[x] = static_cast<std::int16_t>(std::clamp(sums[x] >> kWeightBits, 0, 255));
    }
}

void mixColumns(const std::vector<std::int16_t> &mixed, const Kernel &kernel, Plane &target,
                int y) {
    std::uint8_t *out = target.row(y);
    const int groups = kernel.taps() / kGroup;
    for (int x = 0; x < target.width(); ++x) {
        const std::int16_t *weights = kernel.weights(x);
        const std::int16_t *in = mixed.data() + kernel.first(x);
        std::int32_t sum = 0;
        for (int i = 0; i < groups * kGroup; ++i) {
            sum += weights[i] * in[i];
        }
        out[x] = toByte(sum);
    }
}

Plane lanczosTo(const Plane &source, int width, int height) {
    Plane target(width, height);
    const Kernel columns(source.width(), width);
    const Kernel rows(source.height(), height);
    std::vector<std::int32_t> sums(static_cast<std::size_t>(source.width()));
    std::vector<std::int16_t> mixed(sums.size() + static_cast<std::size_t>(columns.taps()));
    for (int y = 0; y < height; ++y) {
        mixRows(source, rows, y, sums, mixed);
        mixColumns(mixed, columns, target, y);
    }
    return target;
}

/// Averages squares of factor x factor samples; a rest at the right and lower edge makes smaller
/// ones.
Plane averaged(const Plane &source, int factor) {
    Plane target((source.width() + factor - 1) / factor, (source.height() + factor - 1) / factor);
    std::vector<std::uint32_t> sums(static_cast<std::size_t>(target.width()));
    for (int y = 0; y < target.height(); ++y) {
        const int top = y * factor;
        const int rows = std::min(factor, source.height() - top);
        std::fill(sums.begin(), sums.end(), 0);
        for (int line = top; line < top + rows; ++line) {
            const std::uint8_t *in = source.row(line);
            for (int x = 0; x < source.width(); ++x) {
                sums[static_cast<std::size_t>(x / factor)] += in[x];
            }
        }
        std::uint8_t *out = target.row(y);
        for (int x = 0; x < target.width(); ++x) {
            const auto area =
                static_cast<std::uint32_t>(std::min(factor, source.width() - x * factor) * rows);
            out[x] =
                static_cast<std::uint8_t>((sums[static_cast<std::size_t>(x)] + area / 2) / area);
        }
    }
    return target;
}

/// The same for squares of two, which every picture with colour needs; an edge counts twice.
Plane halved(const Plane &source) {
    Plane target((source.width() + 1) / 2, (source.height() + 1) / 2);
    const int pairs = source.width() / 2;
    for (int y = 0; y < target.height(); ++y) {
        const std::uint8_t *upper = source.row(2 * y);
        const std::uint8_t *lower = source.row(std::min(2 * y + 1, source.height() - 1));
        std::uint8_t *out = target.row(y);
        for (int x = 0; x < pairs; ++x, upper += 2, lower += 2) {
            out[x] =
                static_cast<std::uint8_t>((upper[0] + upper[1] + lower[0] + lower[1] + 2) >> 2);
        }
        if (pairs < target.width()) {
            out[pairs] = static_cast<std::uint8_t>((*upper + *lower + 1) >> 1);
        }
    }
    return target;
}

Plane planeTo(Plane plane, int width, int height) {
    if (plane.width() == width && plane.height() == height) {
        return plane;
    }
    const int factor = std::min(plane.width() / width, plane.height() / height) / 2;
    return factor > 1 ? lanczosTo(averaged(plane, factor), width, height)
                      : lanczosTo(plane, width, height);
}

/// Colour needs no sharpness: on the way to half and less averages will do.
Plane colorTo(Plane plane, int width, int height) {
    const bool isTwice = (plane.width() + 1) / 2 >= width && (plane.height() + 1) / 2 >= height;
    return planeTo(isTwice ? halved(plane) : std::move(plane), width, height);
}

} // namespace

PlanarImage resample(PlanarImage image, int width, int height) {
    PlanarImage target(width, height);
    for (int i = 0; i < image.components(); ++i) {
        Plane &plane = image.planes[static_cast<std::size_t>(i)];
        target.planes.push_back(isColor(i, image.components())
                                    ? colorTo(std::move(plane), (width + 1) / 2, (height + 1) / 2)
                                    : planeTo(std::move(plane), width, height));
    }
    return target;
}

} // namespace folioforge
