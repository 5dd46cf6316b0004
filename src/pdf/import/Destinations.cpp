// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/Destinations.h"

#include "pdf/import/Entries.h"
#include "pdf/import/ObjectCopier.h"
#include "pdf/import/SourceNames.h"

#include <qpdf/QPDF.hh>

namespace folioforge {

namespace {

Destinations readDestinations(QPDF &source) {
    const auto root = source.getRoot();
    Destinations destinations;
    auto dictionary = entry(root, "/Dests");
    if (dictionary.isDictionary()) {
        destinations.dictionary = dictionary.getDictAsMap();
    }
    destinations.tree = readNameTree(entry(entry(root, "/Names"), kDestinations));
    return destinations;
}

void declare(const Destinations &destinations, SourceNames &names) {
    std::vector<QPDFObjectHandle> own;
    for (const auto &[name, destination] : destinations.dictionary) {
        own.push_back(QPDFObjectHandle::newName(name));
    }
    for (const auto &[name, destination] : destinations.tree) {
        own.push_back(name);
    }
    names.declare(kDestinations, own);
}

} // namespace

Destinations importDestinations(QPDF &source, SourceNames &names, ObjectCopier &copier) {
    const Destinations read = readDestinations(source);
    declare(read, names);
    Destinations imported;
    for (const auto &[name, destination] : read.dictionary) {
        const auto renamed = names.renamed(kDestinations, QPDFObjectHandle::newName(name));
        imported.dictionary.emplace(QPDFObjectHandle(renamed).getName(),
                                    copier.copyDestination(destination));
    }
    for (const auto &[name, destination] : read.tree) {
        imported.tree.emplace_back(names.nextKey(kDestinations, name),
                                   copier.copyDestination(destination));
    }
    return imported;
}

void DestinationMerger::add(const Destinations &imported) {
    m_dictionary.insert(imported.dictionary.begin(), imported.dictionary.end());
    addNames(m_tree, imported.tree);
}

void DestinationMerger::finish(QPDF &document) {
    if (!m_dictionary.empty() && !m_tree.empty()) {
        // Some readers look into one of both alone, whatever a link says.
        NamedObjects names;
        for (const auto &[name, destination] : m_tree) {
            if (name.find('\0') == std::string::npos) { // Which a name cannot hold.
                names.emplace('/' + name, destination);
            }
        }
        for (const auto &[name, destination] : m_dictionary) {
            m_tree.emplace(name.substr(1), destination);
        }
        m_dictionary.merge(names);
    }
    if (!m_dictionary.empty()) {
        document.getRoot().replaceKey(
            "/Dests", document.makeIndirectObject(QPDFObjectHandle::newDictionary(m_dictionary)));
    }
    putNameTree(document, kDestinations, m_tree);
}

} // namespace folioforge
