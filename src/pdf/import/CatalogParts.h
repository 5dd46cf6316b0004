// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/DocumentParts.h"
#include "pdf/import/LeftParts.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <string>

class QPDF;

namespace folioforge {

class ObjectCopier;

/// Entries of a source's catalog that stay what they are, copied, by key.
using ImportedCatalogParts = std::map<std::string, QPDFObjectHandle>;

/// What belongs to the document as a whole and to no other topic, such as how readers show it,
/// output intents and what other programs keep there. A source that is one of several brings none.
ImportedCatalogParts importCatalogParts(QPDF &source, ObjectCopier &copier, ImportScope scope);

/// Counts those of the entries, of a source or a copy, that reports name.
PartCounts countCatalogParts(const ImportedCatalogParts &parts);

/// Writes the entries into the catalog of `document`.
void putCatalogParts(QPDF &document, const ImportedCatalogParts &parts);

} // namespace folioforge
