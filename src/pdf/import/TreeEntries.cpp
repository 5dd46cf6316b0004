// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/TreeEntries.h"

#include "pdf/import/Entries.h"

#include <set>

namespace folioforge {

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
        const auto leaf = items(node.getKey(leafKey));
        for (std::size_t i = 0; i + 1 < leaf.size(); i += 2) {
            entries.emplace_back(leaf[i], leaf[i + 1]);
        }
        const auto kids = items(node.getKey("/Kids"));
        pending.insert(pending.end(), kids.rbegin(), kids.rend());
    }
    return entries;
}

} // namespace folioforge
