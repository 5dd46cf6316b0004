// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <string>

namespace folioforge {

/// What the compression pass may make of the colour space of an image.
enum class ColorChange {
    None,   ///< It stays what it is.
    Base,   ///< Samples that were places in a table are its colours.
    Device, ///< Colours that only the data defined are those of a device.
    Grey    ///< Without colour, it is another.
};

/// What became of the colour space `source` in `written`.
ColorChange colorChangeOf(QPDFObjectHandle source, QPDFObjectHandle written, bool mayBeGrey);

/// Whether `key` of an image tells what its samples are, which the pass may change with them.
bool isOfSamples(const std::string &key);

/// Whether two images, by their dictionaries, have samples of the same kind but for their colour
/// space.
bool haveSameSamples(QPDFObjectHandle source, QPDFObjectHandle written);

/// Whether `written` says of samples that were made anew what `source` says of its own: what they
/// stand for, and whether there is opacity in them.
bool isReadAlike(const QPDFObjectHandle &source, QPDFObjectHandle written, ColorChange change);

} // namespace folioforge
