// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <compare>
#include <cstddef>
#include <map>
#include <set>

#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// The part of a transformation that sets sizes: [a b c d] of a PDF matrix (ISO 32000-1, 8.3.4).
struct Matrix2x2 {
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;

    /// This transformation, then `next`. What multiplies to no number is infinitely large.
    [[nodiscard]] Matrix2x2 then(const Matrix2x2 &next) const;
    // NOLINTNEXTLINE(modernize-use-nullptr): the check takes the 0 of a comparison for a pointer
    auto operator<=>(const Matrix2x2 &) const = default;
};

/// [a b c d] of a matrix array; the identity where `array` is none.
Matrix2x2 matrixOf(QPDFObjectHandle array);

/// What one piece of content draws: images under transformations into its own space.
struct ContentDraws {
    /// More different sizes of one object than this are not followed.
    static constexpr std::size_t kMaxSizes = 64;

    std::map<QPDFObjGen, std::set<Matrix2x2>> images;
    std::set<QPDFObjGen> unclear; ///< Images whose size could not be followed.

    /// Adds `image` drawn under `matrix`; too many different sizes make it unclear.
    void add(QPDFObjGen image, const Matrix2x2 &matrix);
    /// Adds all that `inner` draws, drawn under `matrix`.
    void add(const ContentDraws &inner, const Matrix2x2 &matrix);
    /// Adds all that `inner` draws, at sizes that cannot be told.
    void addUnclear(const ContentDraws &inner);
};

} // namespace folioforge
