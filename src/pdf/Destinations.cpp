#include "pdf/Destinations.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFNameTreeObjectHelper.hh>

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
    auto tree = names.isDictionary() ? names.getKey("/Dests") : QPDFObjectHandle::newNull();
    if (!tree.isDictionary()) {
        return;
    }
    try {
        QPDFNameTreeObjectHelper helper(tree, m_source, false);
        for (const auto &[name, destination] : helper) {
            m_names->emplace(name, destination);
        }
    } catch (const std::exception &) {
        // A damaged name tree costs the links that need it, not the document.
        return;
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
