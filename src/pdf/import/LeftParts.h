// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"

class QPDF;

namespace folioforge {

/// What a source document is to the document that is made.
enum class ImportScope {
    WholeDocument, ///< All of it.
    OneOfSeveral   ///< A part of it.
};

/// Names in one warning what `source` has beside its pages and does not get into the document that
/// is made; no warning where there is nothing that anybody would miss. To be called before pages
/// are copied.
Warnings namePartsLeft(QPDF &source, ImportScope scope);

} // namespace folioforge
