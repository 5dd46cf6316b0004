// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "verify/ReadBytes.h"

class QPDF;

namespace folioforge {

/// Throws Error where an object in a file of `size` bytes, which `document` has read, has a
/// vertical tab between its words: libqpdf takes one for white space, the format does not (ISO
/// 32000-1, 7.2.2), so that other readers read other words.
void requireCommonSpaces(QPDF &document, const ReadBytes &readBytes, qint64 size);

} // namespace folioforge
