// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/Entries.h"
#include "pdf/import/FieldTree.h"
#include "pdf/import/LeftTopics.h"
#include "pdf/import/PrunedTree.h"

#include <qpdf/QPDF.hh>

#include <algorithm>

namespace folioforge {

std::size_t removeFieldsOf(const std::set<QPDFObjGen> &annotations, QPDF &source,
                           const std::vector<SourcePage> &kept) {
    auto form = source.getRoot().getKey("/AcroForm");
    if (!form.isDictionary()) {
        return 0;
    }
    const auto fields = form.getKey("/Fields");
    auto roots = items(fields);
    const auto unlisted = unlistedFields(kept, roots);
    roots.insert(roots.end(), unlisted.begin(), unlisted.end());
    auto holder = QPDFObjectHandle::newDictionary();
    holder.replaceKey("/Kids", QPDFObjectHandle::newArray(roots));
    // A field of the list may name the list as its kids, and would be put under itself.
    std::set<QPDFObjGen> lists{fields.getObjGen()};
    const auto kidsOf = [&lists](QPDFObjectHandle field) {
        const auto kids = entry(field, "/Kids");
        if (isFirstVisit(kids, lists)) {
            return items(kids);
        }
        field.removeKey("/Kids"); // They stay where they came first, or go from there.
        return std::vector<QPDFObjectHandle>();
    };
    auto nodes = readTree(
        holder, kidsOf, [&](const auto &field) { return annotations.contains(field.getObjGen()); });
    const auto gone = settleTree(
        nodes, [](const PrunedNode &node) { return !node.goes && !node.hadKids; },
        [](PrunedNode &node) {
            if (node.hadKids) {
                node.object.replaceKey("/Kids", QPDFObjectHandle::newArray(node.kept));
            }
        });
    form.replaceKey("/Fields", holder.getKey("/Kids"));
    std::set<QPDFObjGen> objects;
    for (const auto &field : gone) {
        objects.insert(field.getObjGen());
    }
    removeItems(form, "/CO", objects);
    return static_cast<std::size_t>(std::ranges::count_if(
        gone, [](const auto &field) { return entry(field, "/T").isString(); }));
}

} // namespace folioforge
