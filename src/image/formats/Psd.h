#pragma once

#include "image/Decoder.h"

namespace folioforge {

/// The decoder of Photoshop documents (PSD and PSB): the merged image.
Decoder psdDecoder();

} // namespace folioforge
