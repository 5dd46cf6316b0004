// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/DocumentParts.h"
#include "pdf/import/Entries.h"

class QPDF;

namespace folioforge {

class ObjectCopier;
struct ImportOptions;

/// Entries of a source's catalog that stay what they are, copied, by key.
using ImportedCatalogParts = Dictionary;

/// What belongs to the document as a whole and to no other topic, such as how readers show it,
/// its language and what other programs keep there. Of several sources the one that begins the
/// document brings how readers open it.
ImportedCatalogParts importCatalogParts(QPDF &source, ObjectCopier &copier,
                                        const ImportOptions &options);

/// The entries of the source that importCatalogParts() leaves, and those of other topics.
ImportedCatalogParts catalogPartsLeft(QPDF &source, const ImportOptions &options);

/// Counts those of the entries, of a source or a copy, that reports name.
PartCounts countCatalogParts(const ImportedCatalogParts &parts);

/// Writes the entries into the catalog of `document`.
void putCatalogParts(QPDF &document, const ImportedCatalogParts &parts);

} // namespace folioforge
