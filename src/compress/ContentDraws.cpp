// SPDX-License-Identifier: Apache-2.0

#include "compress/ContentDraws.h"

#include <cmath>
#include <limits>

namespace folioforge {

Matrix2x2 Matrix2x2::then(const Matrix2x2 &next) const {
    const Matrix2x2 product{a * next.a + b * next.c, a * next.b + b * next.d,
                            c * next.a + d * next.c, c * next.b + d * next.d};
    const double sum = product.a + product.b + product.c + product.d;
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    return std::isnan(sum) ? Matrix2x2{kInfinity, 0, 0, kInfinity} : product;
}

Matrix2x2 matrixOf(QPDFObjectHandle array) {
    Matrix2x2 matrix;
    if (!array.isArray() || array.getArrayNItems() != 6) {
        return matrix;
    }
    double *const parts[] = {&matrix.a, &matrix.b, &matrix.c, &matrix.d};
    for (int i = 0; i < 4; ++i) {
        QPDFObjectHandle item = array.getArrayItem(i);
        if (!item.isNumber()) {
            return {};
        }
        *parts[i] = item.getNumericValue();
    }
    return matrix;
}

void ContentDraws::add(QPDFObjGen image, const Matrix2x2 &matrix) {
    std::set<Matrix2x2> &sizes = images[image];
    if (sizes.size() < kMaxSizes) {
        sizes.insert(matrix);
    } else if (!sizes.contains(matrix)) {
        unclear.insert(image);
    }
}

void ContentDraws::add(const ContentDraws &inner, const Matrix2x2 &matrix) {
    for (const auto &[image, sizes] : inner.images) {
        for (const Matrix2x2 &size : sizes) {
            add(image, size.then(matrix));
        }
    }
    unclear.insert(inner.unclear.begin(), inner.unclear.end());
}

void ContentDraws::addUnclear(const ContentDraws &inner) {
    for (const auto &[image, sizes] : inner.images) {
        unclear.insert(image);
    }
    unclear.insert(inner.unclear.begin(), inner.unclear.end());
}

} // namespace folioforge
