// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <QString>

#include <map>
#include <span>
#include <utility>
#include <vector>

class QPDF;

namespace folioforge {

class ObjectCopier;

/// The bookmarks of the first level of a source document (ISO 32000-1, 12.3.3), copied with those
/// under them.
using ImportedBookmarks = std::vector<QPDFObjectHandle>;

ImportedBookmarks importBookmarks(QPDF &source, ObjectCopier &copier);

/// The bookmarks one level under `parent`, a bookmark or the root of the outline, up to the first
/// that `visited` holds, which the others join. One that stands in another object is made one of
/// its own, as it has to be.
std::vector<QPDFObjectHandle> bookmarksUnder(QPDF &source, const QPDFObjectHandle &parent,
                                             std::set<QPDFObjGen> &visited);

/// Makes `items` what is under `parent`, which stays open or closed as it is.
void putBookmarksUnder(QPDFObjectHandle parent, const std::vector<QPDFObjectHandle> &items);

/// The outline of the document that is made: the bookmarks of its sources, one source after
/// another, each under the bookmark of its first page where there is one.
class BookmarkMerger {
  public:
    /// The bookmarks of the source whose first page stands at `firstPage`, from 0.
    void add(const ImportedBookmarks &imported, int firstPage);
    /// A bookmark called `title` that leads to the page at `page`, from 0. To be called in the
    /// order of the pages; then every source needs one.
    void addPage(const QString &title, int page) { m_pages.emplace_back(page, title); }
    void finish(QPDF &document, std::span<const QPDFObjectHandle> pages) const;

  private:
    std::map<int, ImportedBookmarks> m_items; ///< By the first page of their source.
    std::vector<std::pair<int, QString>> m_pages;
};

} // namespace folioforge
