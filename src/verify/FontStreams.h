// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <string>

namespace folioforge {

/// The CMap in `stream` without its filters. Throws Error where it is damaged or too long.
std::string characterMapIn(const QPDFObjectHandle &stream);

/// Throws Error where what draws the glyphs of a simple font or of a descendant is damaged.
void requireWholeProgram(const QPDFObjectHandle &font);

/// Whether all streams of a composite font are deflated and say nothing that those of fonts
/// embedded here do not.
bool hasPlainStreams(const QPDFObjectHandle &font);

} // namespace folioforge
