// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/FormMerger.h"

#include "error/Reasons.h"
#include "pdf/import/Entries.h"
#include "pdf/import/FieldTree.h"
#include "pdf/import/FreeName.h"
#include "pdf/import/SourceNames.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <set>
#include <utility>
#include <vector>

namespace folioforge {

namespace {

/// Whether resources are of a kind that readers know: one of ISO 32000-1, table 33, or the
/// "/Encoding" that forms have beside them by custom.
bool isCategory(const std::string &name) {
    static constexpr std::array kCategories{"/Font",    "/XObject",   "/ColorSpace", "/Pattern",
                                            "/Shading", "/ExtGState", "/Properties", "/Encoding"};
    return std::ranges::find(kCategories, name) != kCategories.end();
}

/// Gives fields the defaults of their form, which in the merged one would hold for the fields of
/// all sources.
void keepDefaults(const ImportedForm &form, QPDF &document) {
    constexpr std::size_t kShort = 100;
    QPDFObjectHandle appearance = form.defaultAppearance;
    QPDFObjectHandle alignment = form.alignment;
    if (appearance.isString() && appearance.getStringValue().size() > kShort) {
        // Any number of fields may get it.
        appearance = document.makeIndirectObject(appearance.shallowCopy());
    }
    for (QPDFObjectHandle field : form.fields) {
        if (appearance.isString() && !field.hasKey("/DA")) {
            field.replaceKey("/DA", appearance);
        }
        if (alignment.isInteger() && !field.hasKey("/Q")) {
            field.replaceKey("/Q", alignment);
        }
    }
}

/// The topmost fields that have a name, by it. A field without one adds nothing to the names of the
/// fields under it.
std::vector<std::pair<std::string, QPDFObjectHandle>>
namedFields(const std::vector<QPDFObjectHandle> &roots) {
    std::vector<std::pair<std::string, QPDFObjectHandle>> fields;
    visitFields(roots, [&](QPDFObjectHandle field) {
        auto name = field.getKey("/T");
        if (name.isString()) {
            fields.emplace_back(shortened(name).getUTF8Value(), field);
        }
        return !name.isString();
    });
    return fields;
}

Warning fieldsRenamed(const Renames &names) {
    const auto &[name, unique] = *names.begin();
    const auto shown = [](const std::string &text) {
        constexpr qsizetype kMaxLength = 60;
        return QString::fromStdString(text).left(kMaxLength);
    };
    const QString text =
        names.size() == 1
            ? Reasons::tr("1 form field is renamed, since another document has one of its name: "
                          "\"%1\" is now \"%2\"; scripts are left as they are")
            : Reasons::tr("%n form fields are renamed, since another document has fields of their "
                          "names, such as \"%1\" is now \"%2\"; scripts are left as they are",
                          nullptr, static_cast<int>(names.size()));
    return {WarningCode::FieldsRenamed, text.arg(shown(name), shown(unique))};
}

} // namespace

Renames FormMerger::renameFields(const ImportedForm &form) {
    const auto named = namedFields(form.fields);
    std::set<std::string> own;
    for (const auto &[name, field] : named) {
        own.insert(name);
    }
    Renames names;
    for (auto [name, field] : named) {
        // Two fields of one name in one source are one field to its readers, and stay so.
        auto unique = names.find(name);
        if (unique == names.end()) {
            const auto isTaken = [&, &text = name](const std::string &candidate) {
                return m_names.contains(candidate) ||
                       (candidate != text && own.contains(candidate));
            };
            unique = names.emplace(name, freeName(name, m_nameNumbers, isTaken)).first;
        }
        if (unique->second != name) {
            field.replaceKey("/T", QPDFObjectHandle::newUnicodeString(unique->second));
        }
    }
    for (const auto &[name, unique] : names) {
        m_names.insert(unique);
    }
    std::erase_if(names, [](const auto &name) { return name.first == name.second; });
    return names;
}

CategoryRenames FormMerger::addResources(QPDFObjectHandle resources) {
    CategoryRenames renames;
    if (!resources.isDictionary()) {
        return renames;
    }
    std::set<QPDFObjGen> visited;
    for (auto &[category, members] : resources.getDictAsMap()) {
        // A small file may have one large table under any number of names of its own.
        if (!members.isDictionary() || (!isCategory(category) && !isFirstVisit(members, visited))) {
            continue;
        }
        auto &known = m_resources[category];
        auto &numbers = m_resourceNumbers[category];
        QPDFObjectHandle dictionary = members;
        for (const auto &[name, object] : dictionary.getDictAsMap()) {
            const auto unique =
                freeName(name, numbers, [&, &member = object](const std::string &candidate) {
                    const auto taken = known.find(candidate);
                    return taken != known.end() &&
                           !(member.isIndirect() && taken->second.isSameObjectAs(member));
                });
            known.emplace(unique, object);
            if (unique != name) {
                renames[category].emplace(name, unique);
            }
        }
    }
    return renames;
}

Warnings FormMerger::tellFieldsApart(ImportedForm &form) {
    std::erase_if(form.fields, std::not_fn(isEntry));
    const Renames names = renameFields(form);
    renameInActions(form.actions, names);
    return names.empty() ? Warnings() : Warnings{fieldsRenamed(names)};
}

void FormMerger::add(const ImportedForm &form, QPDF &document) {
    const CategoryRenames resources = addResources(form.resources);
    keepDefaults(form, document);
    renameInAppearances(form.fields, resources);
    std::ranges::copy(form.fields, std::back_inserter(m_form.fields));
    std::ranges::copy_if(form.calculationOrder, std::back_inserter(m_form.calculationOrder),
                         isEntry);
    m_form.needsAppearances |= form.needsAppearances;
    m_form.hasSignatureFields |= form.hasSignatureFields;
}

void FormMerger::finish(QPDF &document) {
    if (m_form.fields.empty() && m_resources.empty()) {
        return;
    }
    for (auto &field : m_form.fields) {
        if (!field.isIndirect()) {
            field = document.makeIndirectObject(field);
        }
    }
    auto form = QPDFObjectHandle::newDictionary();
    form.replaceKey("/Fields", QPDFObjectHandle::newArray(m_form.fields)); // Also of none.
    putItems(form, "/CO", m_form.calculationOrder);
    if (m_form.needsAppearances) {
        form.replaceKey("/NeedAppearances", QPDFObjectHandle::newBool(true));
    }
    if (m_form.hasSignatureFields) {
        form.replaceKey("/SigFlags", QPDFObjectHandle::newInteger(1));
    }
    if (!m_resources.empty()) {
        auto resources = QPDFObjectHandle::newDictionary();
        for (const auto &[category, members] : m_resources) {
            resources.replaceKey(category, QPDFObjectHandle::newDictionary(members));
        }
        form.replaceKey("/DR", resources);
    }
    document.getRoot().replaceKey("/AcroForm", document.makeIndirectObject(form));
}

} // namespace folioforge
