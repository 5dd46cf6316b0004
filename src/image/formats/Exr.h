#pragma once

#include "image/Decoder.h"

namespace folioforge {

/// The decoder of OpenEXR, first part.
Decoder exrDecoder();

} // namespace folioforge
