// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/FieldTree.h"

#include "pdf/import/Entries.h"

#include <set>

namespace folioforge {

namespace {

/// The field at the top of `widget`; null where that was visited before or nothing on the way says
/// what kind of field it is.
QPDFObjectHandle rootOf(const QPDFObjectHandle &widget, std::set<QPDFObjGen> &visited) {
    bool hasType = false;
    for (auto field = widget; field.isIndirect() && isFirstVisit(field, visited);) {
        hasType = hasType || field.getKey("/FT").isName();
        auto parent = field.getKey("/Parent");
        if (!parent.isDictionary()) {
            return hasType ? field : QPDFObjectHandle::newNull();
        }
        field = parent;
    }
    return QPDFObjectHandle::newNull();
}

} // namespace

void visitFields(const std::vector<QPDFObjectHandle> &roots,
                 const std::function<bool(QPDFObjectHandle)> &visit) {
    std::vector<QPDFObjectHandle> pending(roots.rbegin(), roots.rend());
    std::set<QPDFObjGen> visited;
    while (!pending.empty()) {
        auto field = pending.back();
        pending.pop_back();
        if (!field.isDictionary() || !isFirstVisit(field, visited) || !visit(field)) {
            continue;
        }
        auto kids = field.getKey("/Kids");
        if (isFirstVisit(kids, visited)) {
            const auto fields = items(kids);
            pending.insert(pending.end(), fields.rbegin(), fields.rend());
        }
    }
}

std::vector<QPDFObjectHandle> unlistedFields(const std::vector<SourcePage> &pages,
                                             const std::vector<QPDFObjectHandle> &listed) {
    std::set<QPDFObjGen> visited;
    visitFields(listed, [&](const QPDFObjectHandle &field) {
        isFirstVisit(field, visited);
        return true;
    });
    std::vector<QPDFObjectHandle> unlisted;
    for (const auto &[page, inherited] : pages) {
        const auto annotations = annotationsOf(page);
        if (!isFirstVisit(annotations, visited)) {
            continue;
        }
        for (const auto &annotation : items(annotations)) {
            if (entry(annotation, "/Subtype").isNameAndEquals("/Widget")) {
                auto root = rootOf(annotation, visited);
                if (!root.isNull()) {
                    unlisted.push_back(root);
                }
            }
        }
    }
    return unlisted;
}

} // namespace folioforge
