// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/Entries.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <vector>

namespace folioforge {

/// A node of a tree of which branches go: the outline or that of the form fields.
struct PrunedNode {
    QPDFObjectHandle object;
    std::size_t parent;
    bool goes;
    bool hadKids = false;
    std::vector<QPDFObjectHandle> kept = {}; ///< Of what is under it.
};

/// The tree under `root`, each node before those under it. `kidsOf` gives what is under one, of a
/// list that several share only once; `goes` says whether one goes by itself.
template<typename KidsOf, typename Goes>
std::vector<PrunedNode> readTree(const QPDFObjectHandle &root, const KidsOf &kidsOf,
                                 const Goes &goes) {
    std::vector<PrunedNode> nodes{{root, 0, false}};
    std::set<QPDFObjGen> visited{root.getObjGen()};
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        for (auto kid : kidsOf(nodes[i].object)) {
            if (kid.isDictionary() && isFirstVisit(kid, visited)) {
                nodes[i].hadKids = true;
                nodes.push_back({kid, i, goes(kid)});
            }
        }
    }
    return nodes;
}

/// Calls `write` for each node that stays, with those under it that stay in `kept`, from the last
/// to the root; gives those that go. One stays where `stays` says so or something under it does.
template<typename Stays, typename Write>
std::vector<QPDFObjectHandle> settleTree(std::vector<PrunedNode> &nodes, const Stays &stays,
                                         const Write &write) {
    std::vector<QPDFObjectHandle> gone;
    for (std::size_t i = nodes.size(); i-- > 0;) {
        PrunedNode &node = nodes[i];
        std::ranges::reverse(node.kept);
        if (i > 0 && node.kept.empty() && !stays(node)) {
            gone.push_back(node.object);
            continue;
        }
        write(node);
        if (i > 0) {
            nodes[node.parent].kept.push_back(node.object);
        }
    }
    return gone;
}

} // namespace folioforge
