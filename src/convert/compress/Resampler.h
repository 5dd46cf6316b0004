#pragma once

#include "convert/compress/Raster.h"

namespace folioforge {

/// `source` sampled down to width x height pixels, neither above its own: averaged by whole factors
/// while more than twice too large, then brought to the exact size by a Lanczos kernel.
Raster resample(const Raster &source, int width, int height);

} // namespace folioforge
