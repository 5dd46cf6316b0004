#pragma once

#include "convert/compress/SampleGrid.h"

namespace folioforge {

/// `source` sampled down to width x height pixels, neither above its own: averaged by whole factors
/// while more than twice too large, then brought to the exact size by a Lanczos kernel.
SampleGrid resample(const SampleGrid &source, int width, int height);

} // namespace folioforge
