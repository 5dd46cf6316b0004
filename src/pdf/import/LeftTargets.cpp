// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/LeftTargets.h"

#include "pdf/import/Entries.h"
#include "pdf/import/SourceNames.h"
#include "pdf/import/TreeEntries.h"

#include <qpdf/QPDF.hh>

namespace folioforge {

LeftTargets::LeftTargets(const std::vector<SourcePage> &all, const std::vector<SourcePage> &kept)
    : m_all(all) {
    for (const auto &[page, inherited] : all) {
        m_pages.insert(page.getObjGen());
    }
    for (const auto &[page, inherited] : kept) {
        m_pages.erase(page.getObjGen());
    }
}

bool LeftTargets::contains(const QPDFObjectHandle &page) const {
    return page.isIndirect() && m_pages.contains(page.getObjGen());
}

bool LeftTargets::leads(QPDFObjectHandle destination) const {
    if (destination.isName()) {
        return m_names.contains(destination.getName());
    }
    if (destination.isString()) {
        return m_strings.contains(destination.getStringValue());
    }
    if (destination.isDictionary()) {
        destination = destination.getKey("/D");
    }
    if (!destination.isArray() || destination.getArrayNItems() == 0) {
        return false;
    }
    auto page = destination.getArrayItem(0);
    if (!page.isInteger()) {
        return contains(page);
    }
    const auto number = page.getIntValue();
    return number >= 0 && number < static_cast<long long>(m_all.size()) &&
           contains(m_all[static_cast<std::size_t>(number)].page);
}

bool LeftTargets::jumps(const QPDFObjectHandle &holder) const {
    const auto action = entry(holder, "/A");
    return leads(entry(holder, "/Dest")) ||
           (entry(action, "/S").isNameAndEquals("/GoTo") && leads(entry(action, "/D")));
}

std::size_t LeftTargets::removeNames(QPDF &source) {
    auto dictionary = source.getRoot().getKey("/Dests");
    for (const auto &[name, destination] :
         dictionary.isDictionary() ? dictionary.getDictAsMap() : Dictionary()) {
        if (leads(destination)) {
            m_names.insert(name);
        }
    }
    for (const auto &name : m_names) {
        dictionary.removeKey(name);
    }
    auto names = source.getRoot().getKey("/Names");
    TreeEntries kept = readNameTree(entry(names, kDestinations));
    std::erase_if(kept, [&](const auto &named) {
        const bool goes = leads(named.second);
        if (goes) {
            m_strings.insert(QPDFObjectHandle(named.first).getStringValue());
        }
        return goes;
    });
    if (!m_strings.empty()) {
        names.replaceKey(kDestinations, buildTree(source, kept, "/Names"));
    }
    return m_names.size() + m_strings.size();
}

} // namespace folioforge
