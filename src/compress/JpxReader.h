// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/PlanarImage.h"

#include <string_view>

namespace folioforge {

/// Who says what the components of a JPEG 2000 image mean: the document or the image data.
enum class JpxColor { OfDocument, OfData };

/// Decodes a JPEG 2000 image, a file or a bare codestream, to no less than `scale` (0 to 1) of its
/// width x height by leaving out its finest resolutions. The planes are of one size. Throws Error
/// when the data is damaged or of a kind that is not handled: opacity, components of different
/// sizes, more than 16 bits, other than 1, 3 or 4 components, and under JpxColor::OfData all but
/// plain grey and sRGB.
PlanarImage decodeJpx(std::string_view data, int width, int height, double scale, JpxColor color);

} // namespace folioforge
