// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "compress/PlanarImage.h"

#include <string>

#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// Whether the samples of a colour space are places in a table of colours.
bool isIndexed(QPDFObjectHandle space);

/// The colours of such a table, as its base space has them; empty where they cannot be decoded.
std::string paletteOf(QPDFObjectHandle space);

/// Whether the samples stand for the contrary of what they are: the Decode array of an image with
/// so many components says that each goes from 1 to 0.
bool isInverted(QPDFObjectHandle dictionary, int components);

/// Whether the samples stand for what they are, or for the contrary.
bool isPlainDecode(QPDFObjectHandle dictionary, int components);

/// Whether the colours of the image are blended with one behind it, as its soft mask says.
bool isBlended(QPDFObjectHandle dictionary);

/// Whether the image has a table of colours, not of greys.
bool hasColorTable(QPDFObjectHandle dictionary);

/// Gives an image with a table of colours one of greys, in the space `grey` (PDF syntax), where its
/// base space is a plain one and the image is not blended. The samples stay.
void greyPalette(QPDFObjectHandle dictionary, const std::string &grey);

/// Leaves the brightness alone of a picture in colour, which is in JPEG's own form and whose first
/// plane has the picture's size. The samples of an `inverted` one stand for the contrary of what
/// they are; those of the result for what they are. Throws Error where the planes differ in size.
void toGrey(PlanarImage &image, bool inverted);

} // namespace folioforge
