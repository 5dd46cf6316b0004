// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// Components of a colour space whose samples may be averaged; 0 for others.
int plainComponents(QPDFObjectHandle space);

/// Whether samples of `space` are places in a table of colours (ISO 32000-1, 8.6.6.3).
bool isOfTable(QPDFObjectHandle space);

/// The space of the colours in its table, null where that is missing; `space` itself where it has
/// no table.
QPDFObjectHandle colorsOf(QPDFObjectHandle space);

} // namespace folioforge
