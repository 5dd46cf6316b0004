#include "pdf/import/PageTree.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <span>

namespace folioforge {

namespace {

struct Node {
    QPDFObjectHandle object;
    long long pages = 0;
};

constexpr std::size_t kFanOut = 32;

/// Makes `children` the children of `parent` and returns how many pages they hold.
long long adopt(QPDFObjectHandle parent, std::span<Node> children) {
    auto kids = QPDFObjectHandle::newArray();
    long long count = 0;
    for (Node &child : children) {
        child.object.replaceKey("/Parent", parent);
        kids.appendItem(child.object);
        count += child.pages;
    }
    parent.replaceKey("/Kids", kids);
    parent.replaceKey("/Count", QPDFObjectHandle::newInteger(count));
    return count;
}

std::vector<Node> grouped(QPDF &document, std::vector<Node> nodes) {
    std::vector<Node> parents;
    for (std::size_t start = 0; start < nodes.size(); start += kFanOut) {
        auto parent = document.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Pages >>"));
        const auto length = std::min(kFanOut, nodes.size() - start);
        const auto pages = adopt(parent, std::span(nodes).subspan(start, length));
        parents.push_back({parent, pages});
    }
    return parents;
}

} // namespace

void buildPageTree(QPDF &document, const std::vector<QPDFObjectHandle> &pages) {
    std::vector<Node> nodes;
    nodes.reserve(pages.size());
    for (const auto &page : pages) {
        nodes.push_back({page, 1});
    }
    while (nodes.size() > kFanOut) {
        nodes = grouped(document, std::move(nodes));
    }
    adopt(document.getRoot().getKey("/Pages"), nodes);
}

} // namespace folioforge
