// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/TreeEntries.h"

#include <set>

namespace folioforge {

namespace {

std::vector<QPDFObjectHandle> itemsOf(QPDFObjectHandle node, const char *key) {
    auto array = node.getKey(key);
    return array.isArray() ? array.getArrayAsVector() : std::vector<QPDFObjectHandle>();
}

} // namespace

std::vector<std::pair<QPDFObjectHandle, QPDFObjectHandle>>
readTreeEntries(const QPDFObjectHandle &root, const char *leafKey) {
    std::vector<std::pair<QPDFObjectHandle, QPDFObjectHandle>> entries;
    std::vector<QPDFObjectHandle> pending{root};
    std::set<QPDFObjGen> visited;
    while (!pending.empty()) {
        auto node = pending.back();
        pending.pop_back();
        if (!node.isDictionary() ||
            (node.isIndirect() && !visited.insert(node.getObjGen()).second)) {
            continue;
        }
        const auto leaf = itemsOf(node, leafKey);
        for (std::size_t i = 0; i + 1 < leaf.size(); i += 2) {
            entries.emplace_back(leaf[i], leaf[i + 1]);
        }
        const auto kids = itemsOf(node, "/Kids");
        pending.insert(pending.end(), kids.rbegin(), kids.rend());
    }
    return entries;
}

} // namespace folioforge
