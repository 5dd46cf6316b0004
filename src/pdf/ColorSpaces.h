// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

namespace folioforge {

/// Components of a colour space whose samples may be averaged; 0 for others.
int plainComponents(QPDFObjectHandle space);

} // namespace folioforge
