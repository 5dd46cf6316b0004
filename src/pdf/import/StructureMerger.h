// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/ImportOptions.h"
#include "pdf/import/StructureImport.h"
#include "pdf/tags/StructureElements.h"

#include <cstddef>
#include <optional>
#include <vector>

class QPDF;

namespace folioforge {

/// Merges the structure trees of several documents into one: an element for each document under one
/// root, with roles, classes and identifiers that keep their meaning. The tree of a document that
/// is the only source stays as it was.
class StructureMerger {
  public:
    /// `pages` is the number of pages of the document, `firstPage` its place in the one that is
    /// made, from 0.
    void add(const ImportedStructure &structure, std::size_t pages, ImportScope scope,
             int firstPage);
    /// Adds the structure of `pages` that were drawn.
    void add(const DrawnStructure &structure, std::size_t pages);
    /// Writes the tree into the catalog where there is one. The document is marked as tagged where
    /// all its `pages` come from documents that are.
    void finish(QPDF &document, std::size_t pages);

  private:
    QPDFObjectHandle markInfo(std::size_t pages) const;
    std::vector<QPDFObjectHandle> topElements(QPDF &document) const;

    std::vector<ImportedStructure> m_trees;
    std::vector<int> m_firstPages; ///< Of each tree.
    std::optional<DrawnStructure> m_drawn;
    QPDFObjectHandle m_wholeMarkInfo = QPDFObjectHandle::newNull(); ///< Of the only source.
    ImportScope m_scope = ImportScope::OneOfSeveral;
    std::size_t m_markedPages = 0;
};

} // namespace folioforge
