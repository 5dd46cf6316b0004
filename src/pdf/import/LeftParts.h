// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "pdf/DocumentParts.h"

class QPDF;

namespace folioforge {

struct ImportOptions;

/// Counts what `source` has beside its pages and does not get into the document that is made;
/// nothing that nobody would miss. To be called before pages are copied.
PartCounts countLeft(QPDF &source, const ImportOptions &options);

/// Names in one warning what is left; no warning where there is nothing.
Warnings namePartsLeft(const PartCounts &left);

} // namespace folioforge
