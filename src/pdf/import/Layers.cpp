// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/Layers.h"

#include "pdf/import/Entries.h"
#include "pdf/import/ObjectCopier.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <iterator>
#include <set>

namespace folioforge {

namespace {

/// The groups that are hidden when the document opens.
std::vector<QPDFObjectHandle> hiddenLayers(const QPDFObjectHandle &layers,
                                           const QPDFObjectHandle &configuration,
                                           ObjectCopier &copier) {
    if (!entry(configuration, "/BaseState").isNameAndEquals("/OFF")) {
        return copier.copyItems(entry(configuration, "/OFF"));
    }
    std::set<QPDFObjGen> shown;
    for (const auto &group : items(entry(configuration, "/ON"))) {
        shown.insert(group.getObjGen());
    }
    std::vector<QPDFObjectHandle> hidden;
    for (const auto &group : items(entry(layers, "/OCGs"))) {
        if (!shown.contains(group.getObjGen())) {
            hidden.push_back(copier.copy(group));
        }
    }
    return hidden;
}

} // namespace

ImportedLayers importLayers(QPDF &source, ObjectCopier &copier, ImportScope scope) {
    const auto layers = source.getRoot().getKey("/OCProperties");
    const auto configuration = entry(layers, "/D");
    ImportedLayers imported;
    imported.groups = copier.copyItems(entry(layers, "/OCGs"));
    imported.off = hiddenLayers(layers, configuration, copier);
    imported.locked = copier.copyItems(entry(configuration, "/Locked"));
    imported.order = copier.copyItems(entry(configuration, "/Order"));
    imported.radioGroups = copier.copyItems(entry(configuration, "/RBGroups"));
    imported.automaticStates = copier.copyItems(entry(configuration, "/AS"));
    if (scope == ImportScope::WholeDocument) {
        imported.whole = copier.copy(layers);
    }
    return imported;
}

std::size_t countLayerSettings(const QPDFObjectHandle &layers) {
    const auto differs = [&](const char *key, const char *usual) {
        auto value = entry(entry(layers, "/D"), key);
        return value.isNull() || value.isNameAndEquals(usual) ? 0U : 1U;
    };
    return items(entry(layers, "/Configs")).size() + differs("/ListMode", "/AllPages") +
           differs("/Intent", "/View");
}

void LayerMerger::add(const ImportedLayers &imported) {
    std::ranges::copy_if(imported.groups, std::back_inserter(m_layers.groups), isEntry);
    std::ranges::copy_if(imported.off, std::back_inserter(m_layers.off), isEntry);
    std::ranges::copy(imported.locked, std::back_inserter(m_layers.locked));
    std::ranges::copy(imported.order, std::back_inserter(m_layers.order));
    std::ranges::copy(imported.radioGroups, std::back_inserter(m_layers.radioGroups));
    std::ranges::copy(imported.automaticStates, std::back_inserter(m_layers.automaticStates));
    m_layers.whole = imported.whole;
}

void LayerMerger::finish(QPDF &document) const {
    if (QPDFObjectHandle(m_layers.whole).isDictionary()) {
        document.getRoot().replaceKey("/OCProperties", m_layers.whole);
        return;
    }
    if (m_layers.groups.empty()) {
        return;
    }
    auto configuration = QPDFObjectHandle::newDictionary();
    putItems(configuration, "/OFF", m_layers.off);
    putItems(configuration, "/Locked", m_layers.locked);
    putItems(configuration, "/Order", m_layers.order);
    putItems(configuration, "/RBGroups", m_layers.radioGroups);
    putItems(configuration, "/AS", m_layers.automaticStates);
    auto layers = QPDFObjectHandle::newDictionary();
    putItems(layers, "/OCGs", m_layers.groups);
    layers.replaceKey("/D", configuration);
    document.getRoot().replaceKey("/OCProperties", document.makeIndirectObject(layers));
}

} // namespace folioforge
