// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"

class QPDF;

namespace folioforge {

/// Names in one warning what `source` has beside its pages and does not get into the document that
/// is made; no warning where there is nothing that anybody would miss. To be called before pages
/// are copied.
Warnings namePartsLeft(QPDF &source);

} // namespace folioforge
