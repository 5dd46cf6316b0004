// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <vector>

class QPDF;

namespace folioforge {

class ObjectCopier;

/// The bookmarks of the first level of a source document (ISO 32000-1, 12.3.3), copied with those
/// under them.
using ImportedBookmarks = std::vector<QPDFObjectHandle>;

ImportedBookmarks importBookmarks(QPDF &source, ObjectCopier &copier);

/// The outline of the document that is made: the bookmarks of its sources, one source after
/// another.
class BookmarkMerger {
  public:
    void add(const ImportedBookmarks &imported);
    void finish(QPDF &document) const;

  private:
    ImportedBookmarks m_items;
};

} // namespace folioforge
