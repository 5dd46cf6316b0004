#include "compress/Containers.h"

#include <vector>

namespace folioforge {

namespace {

void addDirect(QPDFObjectHandle item, std::vector<QPDFObjectHandle> &open) {
    if (!item.isIndirect() && (item.isArray() || item.isDictionary())) {
        open.push_back(item);
    }
}

/// The arrays and dictionaries directly within one.
void addInner(QPDFObjectHandle container, std::vector<QPDFObjectHandle> &open) {
    if (container.isArray()) {
        for (const QPDFObjectHandle &item : container.aitems()) {
            addDirect(item, open);
        }
    } else {
        for (const auto &[key, item] : container.ditems()) {
            addDirect(item, open);
        }
    }
}

} // namespace

void visitContainers(QPDF &document, const std::function<void(QPDFObjectHandle)> &visit) {
    std::vector<QPDFObjectHandle> open;
    for (QPDFObjectHandle &object : document.getAllObjects()) {
        QPDFObjectHandle whole = object.isStream() ? object.getDict() : object;
        if (whole.isArray() || whole.isDictionary()) {
            open.push_back(whole);
        }
        while (!open.empty()) {
            const QPDFObjectHandle container = open.back();
            open.pop_back();
            visit(container);
            addInner(container, open);
        }
    }
}

} // namespace folioforge
