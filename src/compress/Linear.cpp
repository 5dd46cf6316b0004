#include "compress/Linear.h"

#include <cmath>
#include <limits>

namespace folioforge {

Linear Linear::then(const Linear &next) const {
    const Linear product{a * next.a + b * next.c, a * next.b + b * next.d, c * next.a + d * next.c,
                         c * next.b + d * next.d};
    const double sum = product.a + product.b + product.c + product.d;
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    return std::isnan(sum) ? Linear{kInfinity, 0, 0, kInfinity} : product;
}

Linear linearOf(QPDFObjectHandle array) {
    Linear linear;
    if (!array.isArray() || array.getArrayNItems() != 6) {
        return linear;
    }
    double *const parts[] = {&linear.a, &linear.b, &linear.c, &linear.d};
    for (int i = 0; i < 4; ++i) {
        QPDFObjectHandle item = array.getArrayItem(i);
        if (!item.isNumber()) {
            return {};
        }
        *parts[i] = item.getNumericValue();
    }
    return linear;
}

} // namespace folioforge
