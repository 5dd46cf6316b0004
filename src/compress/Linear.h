#pragma once

#include <compare>

#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// The part of a transformation that sets sizes: [a b c d] of a PDF matrix (ISO 32000-1, 8.3.4).
struct Linear {
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;

    /// This transformation, then `next`. What multiplies to no number is infinitely large.
    [[nodiscard]] Linear then(const Linear &next) const;
    auto operator<=>(const Linear &) const = default;
};

/// [a b c d] of a matrix array; the identity where `array` is none.
Linear linearOf(QPDFObjectHandle array);

} // namespace folioforge
