// SPDX-License-Identifier: Apache-2.0

#include "image/formats/LinearLight.h"

#include <cmath>

namespace folioforge {

quint16 sampleFromFraction(float fraction) {
    if (!(fraction > 0)) { // Also for NaN.
        return 0;
    }
    return fraction >= 1 ? quint16(0xFFFF) : static_cast<quint16>(std::lround(fraction * 65535.0F));
}

quint16 srgbFromLinear(float light) {
    if (!(light > 0.0031308F)) {
        return sampleFromFraction(light * 12.92F);
    }
    return light >= 1 ? quint16(0xFFFF)
                      : sampleFromFraction(1.055F * std::pow(light, 1 / 2.4F) - 0.055F);
}

} // namespace folioforge
