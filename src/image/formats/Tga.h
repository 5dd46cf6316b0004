#pragma once

#include "image/Decoder.h"

namespace folioforge {

/// The decoder of Truevision TGA 2.0.
Decoder tgaDecoder();

} // namespace folioforge
