// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <cstddef>
#include <map>
#include <utility>
#include <vector>

class QPDF;

namespace folioforge {

class ObjectCopier;

/// The page labels of a source document (ISO 32000-1, 12.4.2), copied, by the index of their first
/// page; null for pages without one.
using ImportedPageLabels = std::map<long long, QPDFObjectHandle>;

/// `positions` are those in the source, from 0, of the pages that are taken.
ImportedPageLabels importPageLabels(QPDF &source, const std::vector<std::size_t> &positions,
                                    ObjectCopier &copier);

/// The page labels of the document that is made. Pages that bring none are numbered by their
/// position.
class PageLabelMerger {
  public:
    /// The page at `index` is drawn and has no label.
    void addPage(int index);
    /// The pages from `firstPage` on come from a source.
    void add(const ImportedPageLabels &imported, int firstPage);
    /// Forgets the pages from `count` on.
    void truncatePages(int count);
    void finish(QPDF &document) const;

  private:
    /// Index of a page and the label dictionary from there on; null for plain numbers.
    std::vector<std::pair<long long, QPDFObjectHandle>> m_labels;
};

} // namespace folioforge
