#pragma once

#include "image/Decoder.h"

namespace folioforge {

/// The decoder of PNG (ISO 15948).
Decoder pngDecoder();

} // namespace folioforge
