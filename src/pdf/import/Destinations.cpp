// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/Destinations.h"

#include "pdf/import/TreeEntries.h"

#include <qpdf/QPDF.hh>

namespace folioforge {

Destinations::Destinations(QPDF &source)
    : m_source(source) {}

void Destinations::readNames() {
    m_names.emplace();
    auto root = m_source.getRoot();
    auto old = root.getKey("/Dests");
    if (old.isDictionary()) {
        for (const auto &[name, destination] : old.getDictAsMap()) {
            m_names->emplace(name.substr(1), destination);
        }
    }
    auto names = root.getKey("/Names");
    if (!names.isDictionary()) {
        return;
    }
    for (auto &[name, destination] : readTreeEntries(names.getKey("/Dests"), "/Names")) {
        if (name.isString()) {
            m_names->emplace(name.getUTF8Value(), destination);
        }
    }
}

QPDFObjectHandle Destinations::find(const std::string &name) {
    if (!m_names) {
        readNames();
    }
    const auto found = m_names->find(name);
    return found == m_names->end() ? QPDFObjectHandle::newNull() : found->second;
}

QPDFObjectHandle Destinations::resolve(const QPDFObjectHandle &destination) {
    QPDFObjectHandle target = destination;
    if (target.isName()) {
        target = find(target.getName().substr(1));
    } else if (target.isString()) {
        target = find(target.getUTF8Value());
    }
    if (target.isDictionary()) {
        target = target.getKey("/D");
    }
    return target.isArray() ? target : QPDFObjectHandle::newNull();
}

} // namespace folioforge
