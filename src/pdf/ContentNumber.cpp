// SPDX-License-Identifier: Apache-2.0

#include "pdf/ContentNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace folioforge {

std::string numberText(double value, int decimals) {
    // Readers keep numbers in single precision. A larger one is a mistake, and its digits would not
    // fit into the buffer.
    constexpr double kLimit = 1e15;
    const double bounded = std::isfinite(value) ? std::clamp(value, -kLimit, kLimit) : 0.0;

    std::array<char, 32> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), bounded,
                                       std::chars_format::fixed, decimals);
    std::string digits(buffer.data(), written.ptr);
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.back() == '.') {
        digits.pop_back();
    }
    return digits == "-0" ? "0" : digits;
}

void appendNumber(std::string &content, double value) {
    content += numberText(value);
    content += ' ';
}

} // namespace folioforge
