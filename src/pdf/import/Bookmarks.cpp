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

/// Makes `items` what is under `parent`.
void putUnder(QPDFObjectHandle parent, const ImportedBookmarks &items) {
    if (items.empty()) {
        return;
    }
    long long lines = 0;
    for (std::size_t i = 0; i < items.size(); ++i) {
        QPDFObjectHandle item = items[i];
        const bool last = i + 1 == items.size();
        lines += visibleLines(item);
        item.replaceKey("/Parent", parent);
        item.replaceKey("/Prev", i == 0 ? QPDFObjectHandle::newNull() : items[i - 1]);
        item.replaceKey("/Next", last ? QPDFObjectHandle::newNull() : items[i + 1]);
    }
    parent.replaceKey("/First", items.front());
    parent.replaceKey("/Last", items.back());
    parent.replaceKey("/Count", QPDFObjectHandle::newInteger(std::min(lines, kMaxLines)));
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

void BookmarkMerger::add(const ImportedBookmarks &imported, int firstPage) {
    std::ranges::copy_if(imported, std::back_inserter(m_items[firstPage]), isEntry);
}

void BookmarkMerger::finish(QPDF &document, std::span<const QPDFObjectHandle> pages) const {
    ImportedBookmarks top;
    if (m_pages.empty()) {
        for (const auto &[page, items] : m_items) {
            std::ranges::copy(items, std::back_inserter(top));
        }
    }
    for (const auto &[page, title] : m_pages) {
        auto item = document.makeIndirectObject(QPDFObjectHandle::newDictionary());
        item.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(title.toStdString()));
        item.replaceKey("/Dest", QPDFObjectHandle::newArray({pages[static_cast<std::size_t>(page)],
                                                             QPDFObjectHandle::newName("/Fit")}));
        if (const auto found = m_items.find(page); found != m_items.end()) {
            putUnder(item, found->second);
        }
        top.push_back(item);
    }
    if (!top.empty()) {
        auto outline =
            document.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Outlines >>"));
        putUnder(outline, top);
        document.getRoot().replaceKey("/Outlines", outline);
    }
}

} // namespace folioforge
