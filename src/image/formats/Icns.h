#pragma once

#include "image/Decoder.h"

namespace folioforge {

/// The decoder of Apple icon files: the largest entry.
Decoder icnsDecoder();

} // namespace folioforge
