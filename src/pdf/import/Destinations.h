// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/TreeEntries.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <string>

class QPDF;

namespace folioforge {

class ObjectCopier;
class SourceNames;

/// The named destinations of a document (ISO 32000-1, 12.3.2.3).
struct Destinations {
    std::map<std::string, QPDFObjectHandle> dictionary; ///< /Dests of the catalog, by name.
    TreeEntries tree;                                   ///< /Dests of its /Names.
};

/// Copies the destinations of `source` and declares their names. To be called before anything is
/// copied that refers to one.
Destinations importDestinations(QPDF &source, SourceNames &names, ObjectCopier &copier);

/// The named destinations of the document that is made: those of all sources.
class DestinationMerger {
  public:
    void add(const Destinations &imported);
    void finish(QPDF &document);

  private:
    NamedObjects m_dictionary; ///< By name.
    NamedObjects m_tree;       ///< By the bytes of the string.
};

} // namespace folioforge
