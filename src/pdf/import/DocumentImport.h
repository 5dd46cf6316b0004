#pragma once

#include "pdf/import/ImportedDocument.h"
#include "pdf/import/ObjectCopier.h"

class QPDF;

namespace folioforge {

/// Copies the pages of `source` into `target` with all that belongs to them. Nothing of it is part
/// of the target document yet. `known` holds the streams that the same file brought before.
ImportedDocument importDocument(QPDF &source, QPDF &target, ObjectCopier::Streams &known);

} // namespace folioforge
