// SPDX-License-Identifier: Apache-2.0

#include "verify/ComparedDocument.h"

#include "pdf/import/Entries.h"
#include "pdf/import/SourceNames.h"
#include "pdf/import/TreeEntries.h"

namespace folioforge {

ComparedDocument::ComparedDocument(QPDF &document)
    : m_document(document)
    , m_pages(readSourcePages(document).pages) {}

QPDFObjectHandle ComparedDocument::valueOf(const SourcePage &page, const std::string &key) {
    auto own = entry(page.page, key);
    if (!own.isNull() || !page.inherited) {
        return own;
    }
    const auto inherited = page.inherited->find(key);
    return inherited == page.inherited->end() ? own : inherited->second.value;
}

QPDFObjectHandle ComparedDocument::destinationCalled(const std::string &name) {
    if (!m_destinations) {
        m_destinations.emplace();
        const auto root = m_document.getRoot();
        const auto old = entry(root, "/Dests");
        if (QPDFObjectHandle(old).isDictionary()) {
            for (const auto &[key, value] : QPDFObjectHandle(old).getDictAsMap()) {
                m_destinations->emplace(key.substr(1), value);
            }
        }
        for (const auto &[key, value] : readNameTree(entry(entry(root, "/Names"), kDestinations))) {
            m_destinations->emplace(nameText(key), value);
        }
    }
    const auto found = m_destinations->find(name);
    return found == m_destinations->end() ? QPDFObjectHandle::newNull() : found->second;
}

bool ComparedDocument::needsAppearances() const {
    return isTrue(entry(entry(m_document.getRoot(), "/AcroForm"), "/NeedAppearances"));
}

QPDFObjectHandle ComparedDocument::fieldFont(const std::string &name) const {
    const auto form = entry(m_document.getRoot(), "/AcroForm");
    return entry(entry(entry(form, "/DR"), "/Font"), name);
}

bool ComparedDocument::isHidden(const QPDFObjectHandle &group) {
    if (!m_layers) {
        m_layers = Layers();
        const auto shown = entry(entry(m_document.getRoot(), "/OCProperties"), "/D");
        m_layers->areOff = entry(shown, "/BaseState").isNameAndEquals("/OFF");
        for (const auto &other : items(entry(shown, m_layers->areOff ? "/ON" : "/OFF"))) {
            m_layers->others.insert(other.getObjGen());
        }
    }
    return m_layers->areOff != m_layers->others.contains(group.getObjGen());
}

QPDFObjectHandle ComparedDocument::destination(QPDFObjectHandle named) {
    if (named.isName() || named.isString()) {
        named = destinationCalled(nameText(named));
    }
    if (named.isDictionary()) {
        named = named.getKey("/D");
    }
    return named.isArray() ? named : QPDFObjectHandle::newNull();
}

} // namespace folioforge
