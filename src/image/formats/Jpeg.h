#pragma once

#include "image/Decoder.h"

namespace folioforge {

/// The decoder of JPEG (ITU-T T.81), which goes into the PDF as its own bytes.
Decoder jpegDecoder();

} // namespace folioforge
