// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/PlanarImage.h"

namespace folioforge {

/// A picture in JPEG's own form brought to width x height pixels, neither above its own, with its
/// planes of colour at half of that, rounded up: averaged by whole factors while more than twice
/// too large, then brought to the exact size by a Lanczos kernel.
PlanarImage resample(PlanarImage image, int width, int height);

} // namespace folioforge
