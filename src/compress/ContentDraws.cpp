#include "compress/ContentDraws.h"

namespace folioforge {

void ContentDraws::add(QPDFObjGen image, const Linear &matrix) {
    std::set<Linear> &sizes = images[image];
    if (sizes.size() < kMaxSizes) {
        sizes.insert(matrix);
    } else if (!sizes.contains(matrix)) {
        unclear.insert(image);
    }
}

void ContentDraws::add(const ContentDraws &inner, const Linear &matrix) {
    for (const auto &[image, sizes] : inner.images) {
        for (const Linear &size : sizes) {
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
