#pragma once

#include "image/Decoder.h"

namespace folioforge {

/// The decoder of JPEG 2000 (ITU-T T.800): JP2 files and bare codestreams.
Decoder jpeg2000Decoder();

} // namespace folioforge
