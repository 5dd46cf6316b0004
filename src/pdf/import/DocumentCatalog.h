// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/DocumentImport.h"
#include "pdf/import/FormMerger.h"

#include <span>
#include <string>
#include <utility>
#include <vector>

class QPDF;

namespace folioforge {

/// The catalog of the document that is being made: pages, bookmarks, form, layers and page labels,
/// collected page by page and source by source.
class DocumentCatalog {
  public:
    void addPage(const QPDFObjectHandle &page);
    void addDocument(const ImportedDocument &imported);

    /// Removes the pages that addPage() added after the first `count`.
    void truncatePages(int count);

    [[nodiscard]] std::span<const QPDFObjectHandle> pages() const { return m_pages; }
    [[nodiscard]] int pageCount() const { return static_cast<int>(m_pages.size()); }
    /// The highest PDF version of the sources, at least 1.7.
    [[nodiscard]] const std::string &pdfVersion() const { return m_pdfVersion; }

    /// Writes page tree, bookmarks, form, layers and page labels. Call it once.
    void finish(QPDF &document);

  private:
    void addPageLabels(const ImportedDocument &imported);
    void finishBookmarks(QPDF &document);
    void finishLayers(QPDF &document) const;
    void finishPageLabels(QPDF &document) const;

    std::vector<QPDFObjectHandle> m_pages;
    std::vector<QPDFObjectHandle> m_bookmarks;
    /// Index of a page and the label dictionary from there on; null for plain numbers.
    std::vector<std::pair<long long, QPDFObjectHandle>> m_pageLabels;
    bool m_hasPageLabels = false;
    FormMerger m_forms;
    ImportedLayers m_layers;
    std::string m_pdfVersion = "1.7";
};

} // namespace folioforge
