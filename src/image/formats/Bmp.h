#pragma once

#include "image/Decoder.h"

namespace folioforge {

/// The decoder of Windows and OS/2 bitmaps.
Decoder bmpDecoder();

} // namespace folioforge
