// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/PlanarImage.h"

#include <string>

namespace folioforge {

/// A picture in JPEG's own form, with its planes of colour at half the size, as a JPEG file of that
/// quality, 1 to 100, with Huffman tables made for it.
std::string encodeJpeg(const PlanarImage &image, int quality);

} // namespace folioforge
