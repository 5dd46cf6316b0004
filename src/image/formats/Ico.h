#pragma once

#include "image/Decoder.h"

namespace folioforge {

/// The decoder of Windows icons: the largest frame, the deepest of equals.
Decoder icoDecoder();

} // namespace folioforge
