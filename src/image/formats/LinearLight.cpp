#include "image/formats/LinearLight.h"

#include <cmath>

namespace folioforge {

quint16 sampleFromShare(float share) {
    if (!(share > 0)) { // Also for NaN.
        return 0;
    }
    return share >= 1 ? quint16(0xFFFF) : static_cast<quint16>(std::lround(share * 65535.0F));
}

quint16 srgbFromLinear(float light) {
    if (!(light > 0.0031308F)) {
        return sampleFromShare(light * 12.92F);
    }
    return light >= 1 ? quint16(0xFFFF)
                      : sampleFromShare(1.055F * std::pow(light, 1 / 2.4F) - 0.055F);
}

} // namespace folioforge
