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
    auto roots = items(form.getKey("/Fields"));
    const auto unlisted = unlistedFields(kept, roots);
    roots.insert(roots.end(), unlisted.begin(), unlisted.end());
    auto holder = QPDFObjectHandle::newDictionary();
    holder.replaceKey("/Kids", QPDFObjectHandle::newArray(roots));
    std::set<QPDFObjGen> lists;
    const auto kidsOf = [&lists](const auto &field) {
        const auto kids = entry(field, "/Kids");
        return isFirstVisit(kids, lists) ? items(kids) : std::vector<QPDFObjectHandle>();
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
