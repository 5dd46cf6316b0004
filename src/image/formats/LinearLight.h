// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtGlobal>

namespace folioforge {

/// Linear light, 0 black to 1 white, as a 16-bit sample of sRGB (IEC 61966-2-1). Brighter than
/// white is white, NaN is black.
quint16 srgbFromLinear(float light);

/// A fraction from 0 to 1 as a 16-bit sample. Values outside are clipped, NaN is 0.
quint16 sampleFromFraction(float fraction);

} // namespace folioforge
