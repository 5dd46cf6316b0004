// SPDX-License-Identifier: Apache-2.0

#include "pdf/archive/NamedLayers.h"

#include "pdf/import/Entries.h"

#include <qpdf/QPDF.hh>

#include <set>
#include <vector>

namespace folioforge {

namespace {

/// The groups that a list of layers, which has lists in it, leads to.
std::set<QPDFObjGen> listedGroups(const QPDFObjectHandle &order) {
    std::set<QPDFObjGen> groups;
    std::set<QPDFObjGen> visited;
    std::vector<QPDFObjectHandle> pending{order};
    while (!pending.empty()) {
        QPDFObjectHandle next = pending.back();
        pending.pop_back();
        if (next.isDictionary()) {
            groups.insert(next.getObjGen());
        } else if (next.isArray() && isFirstVisit(next, visited)) {
            for (const auto &item : items(next)) {
                pending.push_back(item);
            }
        }
    }
    return groups;
}

} // namespace

void nameLayers(QPDF &document) {
    auto layers = document.getRoot().getKey("/OCProperties");
    if (!layers.isDictionary() || !layers.getKey("/D").isDictionary()) {
        return;
    }
    auto settings = layers.getKey("/D");
    if (!settings.getKey("/Name").isString()) {
        settings.replaceKey("/Name", QPDFObjectHandle::newString("Layers"));
    }
    auto order = QPDFObjectHandle::newArray(items(settings.getKey("/Order")));
    const std::set<QPDFObjGen> listed = listedGroups(order);
    for (const auto &group : items(layers.getKey("/OCGs"))) {
        if (!listed.contains(group.getObjGen())) {
            order.appendItem(group);
        }
    }
    settings.replaceKey("/Order", order);
}

} // namespace folioforge
