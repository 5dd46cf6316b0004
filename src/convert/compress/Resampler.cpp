#include "convert/compress/Resampler.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace folioforge {

namespace {

constexpr int kWeightBits = 14;
constexpr double kLobes = 3;

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

/// Where one target position takes its samples from: `weights` from the position `first` on.
struct Taps {
    int first = 0;
    std::vector<std::int32_t> weights;
};

Taps tapsAt(int target, int from, double ratio) {
    const double centre = (target + 0.5) * ratio - 0.5;
    const double reach = kLobes * ratio;
    const int first = std::max(0, static_cast<int>(std::ceil(centre - reach)));
    const int last = std::min(from - 1, static_cast<int>(std::floor(centre + reach)));
    std::vector<double> weights;
    double sum = 0;
    for (int i = first; i <= last; ++i) {
        weights.push_back(lanczos((i - centre) / ratio));
        sum += weights.back();
    }
    Taps taps{first, {}};
    std::int32_t left = 1 << kWeightBits;
    for (const double weight : weights) {
        taps.weights.push_back(
            static_cast<std::int32_t>(std::lround(weight / sum * (1 << kWeightBits))));
        left -= taps.weights.back();
    }
    // What rounding lost goes to the middle, so that flat areas keep their value.
    taps.weights[taps.weights.size() / 2] += left;
    return taps;
}

std::vector<Taps> tapsFor(int from, int to) {
    std::vector<Taps> taps;
    taps.reserve(static_cast<std::size_t>(to));
    for (int i = 0; i < to; ++i) {
        taps.push_back(tapsAt(i, from, static_cast<double>(from) / to));
    }
    return taps;
}

void mixRows(const SampleGrid &source, const Taps &taps, std::vector<std::int32_t> &sums,
             std::vector<std::uint8_t> &mixed) {
    std::fill(sums.begin(), sums.end(), 0);
    for (std::size_t i = 0; i < taps.weights.size(); ++i) {
        const std::uint8_t *row = source.row(taps.first + static_cast<int>(i));
        const std::int32_t weight = taps.weights[i];
        for (std::size_t x = 0; x < sums.size(); ++x) {
            sums[x] += weight * row[x];
        }
    }
    std::transform(sums.begin(), sums.end(), mixed.begin(), toByte);
}

template<int Components>
void mixColumns(const std::vector<std::uint8_t> &row, const std::vector<Taps> &taps,
                std::uint8_t *out) {
    for (const Taps &tap : taps) {
        std::int32_t sums[Components] = {};
        const std::uint8_t *in = row.data() + static_cast<std::size_t>(tap.first) * Components;
        for (const std::int32_t weight : tap.weights) {
            for (int c = 0; c < Components; ++c) {
                sums[c] += weight * in[c];
            }
            in += Components;
        }
        for (int c = 0; c < Components; ++c) {
            *out++ = toByte(sums[c]);
        }
    }
}

SampleGrid lanczosTo(const SampleGrid &source, int width, int height) {
    SampleGrid target{width, height, source.kind, {}};
    target.allocate();
    const std::vector<Taps> columns = tapsFor(source.width, width);
    const std::vector<Taps> rows = tapsFor(source.height, height);
    std::vector<std::int32_t> sums(source.rowBytes());
    std::vector<std::uint8_t> mixed(source.rowBytes());
    for (int y = 0; y < height; ++y) {
        mixRows(source, rows[static_cast<std::size_t>(y)], sums, mixed);
        switch (source.components()) {
        case 1:
            mixColumns<1>(mixed, columns, target.row(y));
            break;
        case 3:
            mixColumns<3>(mixed, columns, target.row(y));
            break;
        default:
            mixColumns<4>(mixed, columns, target.row(y));
        }
    }
    return target;
}

/// Averages squares of factor x factor pixels; a rest at the right and lower edge joins the last
/// square's row or column of its own.
SampleGrid averaged(const SampleGrid &source, int factor) {
    SampleGrid target{(source.width + factor - 1) / factor,
                      (source.height + factor - 1) / factor,
                      source.kind,
                      {}};
    target.allocate();
    const int components = source.components();
    std::vector<std::uint32_t> sums(target.rowBytes());
    for (int y = 0; y < target.height; ++y) {
        const int top = y * factor;
        const int rows = std::min(factor, source.height - top);
        std::fill(sums.begin(), sums.end(), 0);
        for (int line = top; line < top + rows; ++line) {
            const std::uint8_t *in = source.row(line);
            for (int x = 0; x < source.width; ++x) {
                std::uint32_t *sum =
                    sums.data() + static_cast<std::ptrdiff_t>(x / factor) * components;
                for (int c = 0; c < components; ++c) {
                    sum[c] += *in++;
                }
            }
        }
        std::uint8_t *out = target.row(y);
        for (int x = 0; x < target.width; ++x) {
            const auto area =
                static_cast<std::uint32_t>(std::min(factor, source.width - x * factor) * rows);
            for (int c = 0; c < components; ++c, ++out) {
                *out = static_cast<std::uint8_t>((sums[out - target.row(y)] + area / 2) / area);
            }
        }
    }
    return target;
}

} // namespace

SampleGrid resample(const SampleGrid &source, int width, int height) {
    if (width == source.width && height == source.height) {
        return source;
    }
    const int factor = std::min(source.width / width, source.height / height) / 2;
    if (factor > 1) {
        return lanczosTo(averaged(source, factor), width, height);
    }
    return lanczosTo(source, width, height);
}

} // namespace folioforge
