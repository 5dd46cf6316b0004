#pragma once

#include "image/Decoder.h"

namespace folioforge {

/// The decoder of the file: by content where the bytes are plain about it, by the extension of its
/// name otherwise. Throws Error when neither tells.
const Decoder &decoderFor(const FileView &file);

} // namespace folioforge
