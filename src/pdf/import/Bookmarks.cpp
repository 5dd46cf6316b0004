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

std::vector<QPDFObjectHandle> bookmarksUnder(QPDF &source, const QPDFObjectHandle &parent,
                                             std::set<QPDFObjGen> &visited) {
    std::vector<QPDFObjectHandle> found;
    auto holder = parent;
    for (const char *key = "/First";; key = "/Next") {
        auto item = entry(holder, key);
        if (!item.isDictionary() || !isFirstVisit(item, visited)) {
            return found;
        }
        if (!item.isIndirect()) {
            item = source.makeIndirectObject(item);
            holder.replaceKey(key, item);
        }
        found.push_back(item);
        holder = item;
    }
}

void putBookmarksUnder(QPDFObjectHandle parent, const std::vector<QPDFObjectHandle> &items) {
    if (items.empty()) {
        for (const char *key : {"/First", "/Last", "/Count"}) {
            parent.removeKey(key);
        }
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
    lines = std::min(lines, kMaxLines);
    auto count = parent.getKey("/Count");
    const bool isClosed = count.isInteger() && count.getIntValue() < 0;
    parent.replaceKey("/First", items.front());
    parent.replaceKey("/Last", items.back());
    parent.replaceKey("/Count", QPDFObjectHandle::newInteger(isClosed ? -lines : lines));
}

ImportedBookmarks importBookmarks(QPDF &source, ObjectCopier &copier) {
    ImportedBookmarks bookmarks;
    std::set<QPDFObjGen> visited;
    for (const auto &item : bookmarksUnder(source, source.getRoot().getKey("/Outlines"), visited)) {
        bookmarks.push_back(copier.copy(item));
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
            putBookmarksUnder(item, found->second);
        }
        top.push_back(item);
    }
    if (!top.empty()) {
        auto outline =
            document.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Outlines >>"));
        putBookmarksUnder(outline, top);
        document.getRoot().replaceKey("/Outlines", outline);
    }
}

} // namespace folioforge
