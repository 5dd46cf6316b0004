#pragma once

#include "image/Decoder.h"

namespace folioforge {

/// The decoder of TIFF 6.0 with its usual extensions, first directory.
Decoder tiffDecoder();

} // namespace folioforge
