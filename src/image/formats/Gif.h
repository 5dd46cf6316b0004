#pragma once

#include "image/Decoder.h"

namespace folioforge {

/// The decoder of GIF (89a): the first frame.
Decoder gifDecoder();

} // namespace folioforge
