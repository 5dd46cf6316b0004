// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/PageTree.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "pdf/import/Entries.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>
#include <set>
#include <span>

namespace folioforge {

namespace {

constexpr std::array kInheritedKeys{"/Resources", "/MediaBox", "/CropBox", "/Rotate"};

/// Whether a node of the tree that has no kids is a page. Some pages lack their type or have a
/// wrong one.
bool isPage(QPDFObjectHandle node) {
    if (!node.isDictionary()) {
        return false;
    }
    auto type = node.getKey("/Type");
    return !type.isName() || type.isNameAndEquals("/Page") || node.hasKey("/Contents");
}

/// Walks a page tree without recursion: a tree may be deeper than a thread's stack.
class PageTreeWalk {
  public:
    explicit PageTreeWalk(const QPDFObjectHandle &root) { expand(root, InheritedValues()); }

    SourcePages pages() {
        while (!m_pending.empty()) {
            const SourcePage next = std::move(m_pending.back());
            m_pending.pop_back();
            QPDFObjectHandle object = next.page;
            if (object.isDictionary() && object.hasKey("/Kids")) {
                expand(object, *next.inherited);
            } else if (isPage(object)) {
                m_found.pages.push_back(next);
            } else {
                m_found.unreadable.push_back(m_found.pages.size());
            }
        }
        return std::move(m_found);
    }

  private:
    void requireNew(const QPDFObjectHandle &object) {
        if (!isFirstVisit(object, m_visited)) {
            throw Error(Reasons::tr("The page tree contains itself"));
        }
    }

    /// Pushes the kids of `node`, the first one on top.
    void expand(QPDFObjectHandle node, const InheritedValues &fromAbove) {
        requireNew(node);
        const auto inherited = std::make_shared<InheritedValues>(fromAbove);
        for (const char *key : kInheritedKeys) {
            if (node.hasKey(key)) {
                (*inherited)[key] = {m_inheritedCount++, node.getKey(key)};
            }
        }
        auto kids = node.getKey("/Kids");
        requireNew(kids); // It may hold nodes that lead to it again.
        const auto below = items(kids);
        std::for_each(below.rbegin(), below.rend(), [&](const QPDFObjectHandle &kid) {
            m_pending.push_back({kid, inherited});
        });
        // Marks the node as a part of the tree, which is not copied.
        node.replaceKey("/Type", QPDFObjectHandle::newName("/Pages"));
    }

    std::set<QPDFObjGen> m_visited;
    std::vector<SourcePage> m_pending; ///< Nodes and pages; the next one is the last.
    SourcePages m_found;
    int m_inheritedCount = 0;
};

/// The root of the tree. Some catalogs name a node in its middle.
QPDFObjectHandle rootOf(QPDFObjectHandle node) {
    std::set<QPDFObjGen> visited;
    while (visited.insert(node.getObjGen()).second && node.getKey("/Parent").isDictionary()) {
        node = node.getKey("/Parent");
    }
    return node;
}

struct PageNode {
    QPDFObjectHandle object;
    long long pages = 0;
};

constexpr std::size_t kMaxKids = 32;

/// Makes `children` the kids of `parent`. Returns the number of their pages.
long long adopt(QPDFObjectHandle parent, std::span<PageNode> children) {
    auto kids = QPDFObjectHandle::newArray();
    long long count = 0;
    for (PageNode &child : children) {
        child.object.replaceKey("/Parent", parent);
        kids.appendItem(child.object);
        count += child.pages;
    }
    parent.replaceKey("/Kids", kids);
    parent.replaceKey("/Count", QPDFObjectHandle::newInteger(count));
    return count;
}

std::vector<PageNode> groupedPages(QPDF &document, std::vector<PageNode> nodes) {
    std::vector<PageNode> parents;
    for (std::size_t start = 0; start < nodes.size(); start += kMaxKids) {
        auto parent = document.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Pages >>"));
        const auto length = std::min(kMaxKids, nodes.size() - start);
        const auto pages = adopt(parent, std::span(nodes).subspan(start, length));
        parents.push_back({parent, pages});
    }
    return parents;
}

} // namespace

SourcePages readSourcePages(QPDF &source) {
    auto root = source.getRoot().getKey("/Pages");
    if (!root.isDictionary()) {
        throw Error(Reasons::tr("The document has no page tree"));
    }
    root = rootOf(root);
    SourcePages found = PageTreeWalk(root).pages();
    auto count = root.getKey("/Count");
    if (count.isInteger()) {
        found.stated = count.getIntValue();
    }
    return found;
}

void buildPageTree(QPDF &document, const std::vector<QPDFObjectHandle> &pages) {
    std::vector<PageNode> nodes;
    nodes.reserve(pages.size());
    for (const auto &page : pages) {
        nodes.push_back({page, 1});
    }
    while (nodes.size() > kMaxKids) {
        nodes = groupedPages(document, std::move(nodes));
    }
    adopt(document.getRoot().getKey("/Pages"), nodes);
}

} // namespace folioforge
