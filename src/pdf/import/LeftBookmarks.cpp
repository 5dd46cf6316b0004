// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/Bookmarks.h"
#include "pdf/import/LeftTargets.h"
#include "pdf/import/LeftTopics.h"
#include "pdf/import/PrunedTree.h"

#include <qpdf/QPDF.hh>

namespace folioforge {

namespace {

/// One without a target and with others under it is there for these alone.
bool staysByItself(const PrunedNode &node) {
    auto item = node.object;
    return !node.goes && (!node.hadKids || item.hasKey("/Dest") || item.hasKey("/A"));
}

void writeBookmark(PrunedNode &node) {
    if (node.goes) { // It stays for those under it.
        node.object.removeKey("/Dest");
        node.object.removeKey("/A");
    }
    putBookmarksUnder(node.object, node.kept);
}

} // namespace

std::size_t removeBookmarksTo(const LeftTargets &left, QPDF &source) {
    auto root = source.getRoot().getKey("/Outlines");
    if (!root.isDictionary()) {
        return 0;
    }
    std::set<QPDFObjGen> listed;
    auto nodes = readTree(
        root, [&](const auto &parent) { return bookmarksUnder(source, parent, listed); },
        [&](const auto &item) { return left.jumps(item); });
    return settleTree(nodes, staysByItself, writeBookmark).size();
}

} // namespace folioforge
