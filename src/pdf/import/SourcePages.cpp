#include "pdf/import/SourcePages.h"

#include "error/Error.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>
#include <set>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

constexpr std::array kInheritedKeys{"/Resources", "/MediaBox", "/CropBox", "/Rotate"};

/// Walks a page tree with a stack of its own: a tree may be deeper than a thread's stack.
class PageTreeWalk {
  public:
    explicit PageTreeWalk(const QPDFObjectHandle &root) { expand(root, InheritedValues()); }

    std::vector<SourcePage> pages() {
        while (!m_pending.empty()) {
            const SourcePage next = std::move(m_pending.back());
            m_pending.pop_back();
            QPDFObjectHandle object = next.page;
            if (object.hasKey("/Kids")) {
                expand(object, *next.inherited);
            } else {
                m_pages.push_back(next);
            }
        }
        return std::move(m_pages);
    }

  private:
    /// Puts the kids of `node` where they are taken from next, the first one first.
    void expand(QPDFObjectHandle node, const InheritedValues &fromAbove) {
        if (node.isIndirect() && !m_visited.insert(node.getObjGen()).second) {
            throw Error(u"The page tree contains itself"_s);
        }
        const auto inherited = std::make_shared<InheritedValues>(fromAbove);
        for (const char *key : kInheritedKeys) {
            if (node.hasKey(key)) {
                (*inherited)[key] = {m_inheritedCount++, node.getKey(key)};
            }
        }
        auto kids = node.getKey("/Kids");
        const auto items =
            kids.isArray() ? kids.getArrayAsVector() : std::vector<QPDFObjectHandle>();
        std::for_each(items.rbegin(), items.rend(), [&](QPDFObjectHandle kid) {
            if (kid.isDictionary()) {
                m_pending.push_back({kid, inherited});
            }
        });
        // Whatever refers to the node now knows it for a part of the tree.
        node.replaceKey("/Type", QPDFObjectHandle::newName("/Pages"));
    }

    std::set<QPDFObjGen> m_visited;
    std::vector<SourcePage> m_pending; ///< Nodes and pages; the next one stands last.
    std::vector<SourcePage> m_pages;
    int m_inheritedCount = 0;
};

/// Some catalogs name a node in the midst of the tree.
QPDFObjectHandle topOf(QPDFObjectHandle node) {
    std::set<QPDFObjGen> visited;
    while (visited.insert(node.getObjGen()).second && node.getKey("/Parent").isDictionary()) {
        node = node.getKey("/Parent");
    }
    return node;
}

} // namespace

std::vector<SourcePage> readSourcePages(QPDF &source) {
    auto root = source.getRoot().getKey("/Pages");
    if (!root.isDictionary()) {
        throw Error(u"The document has no page tree"_s);
    }
    return PageTreeWalk(topOf(root)).pages();
}

} // namespace folioforge
