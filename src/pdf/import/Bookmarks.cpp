// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/Bookmarks.h"

#include "pdf/import/Entries.h"
#include "pdf/import/ObjectCopier.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <set>

namespace folioforge {

namespace {

/// The largest integer that every reader takes (ISO 32000-1, annex C). No true outline has more
/// lines.
constexpr long long kMaxLines = std::numeric_limits<std::int32_t>::max();

/// The lines of the outline that an item shows: its own and, when it is open, those under it.
long long visibleLines(QPDFObjectHandle item) {
    auto count = item.getKey("/Count");
    return 1 + (count.isInteger() ? std::clamp(count.getIntValue(), 0LL, kMaxLines) : 0);
}

} // namespace

ImportedBookmarks importBookmarks(QPDF &source, ObjectCopier &copier) {
    ImportedBookmarks bookmarks;
    std::set<QPDFObjGen> visited;
    auto holder = source.getRoot().getKey("/Outlines");
    auto item = entry(holder, "/First");
    for (const char *key = "/First"; item.isDictionary(); key = "/Next") {
        if (!item.isIndirect()) {
            // One that stands in another is made an object of its own, as it has to be.
            item = source.makeIndirectObject(item);
            holder.replaceKey(key, item);
        }
        if (!visited.insert(item.getObjGen()).second) {
            break;
        }
        bookmarks.push_back(copier.copy(item));
        holder = item;
        item = item.getKey("/Next");
    }
    return bookmarks;
}

void BookmarkMerger::add(const ImportedBookmarks &imported) {
    std::ranges::copy_if(imported, std::back_inserter(m_items), isEntry);
}

void BookmarkMerger::finish(QPDF &document) const {
    if (m_items.empty()) {
        return;
    }
    auto outline = document.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Outlines >>"));
    long long lines = 0;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        QPDFObjectHandle item = m_items[i];
        const bool last = i + 1 == m_items.size();
        lines += visibleLines(item);
        item.replaceKey("/Parent", outline);
        item.replaceKey("/Prev", i == 0 ? QPDFObjectHandle::newNull() : m_items[i - 1]);
        item.replaceKey("/Next", last ? QPDFObjectHandle::newNull() : m_items[i + 1]);
    }
    outline.replaceKey("/First", m_items.front());
    outline.replaceKey("/Last", m_items.back());
    outline.replaceKey("/Count", QPDFObjectHandle::newInteger(std::min(lines, kMaxLines)));
    document.getRoot().replaceKey("/Outlines", outline);
}

} // namespace folioforge
