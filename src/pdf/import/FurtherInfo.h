// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/Entries.h"

#include <cstddef>

class QPDF;

namespace folioforge {

/// The entries of the document information of `source` that no run writes anew (ISO 32000-1,
/// 14.3.3), such as a version of PDF/X or what a program's users enter.
Dictionary furtherInfo(QPDF &source);

/// How many of them somebody would miss: programs say there what they are, too.
std::size_t countFurtherInfo(const Dictionary &info);

/// Adds copies of them to the document information of `document`, which is written.
void putFurtherInfo(QPDF &document, const Dictionary &info);

} // namespace folioforge
