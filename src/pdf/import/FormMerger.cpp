// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/FormMerger.h"

#include "pdf/import/Entries.h"

#include <qpdf/BufferInputSource.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFTokenizer.hh>

#include <memory>
#include <vector>

namespace folioforge {

namespace {

using Renames = std::map<std::string, std::string>;
using CategoryRenames = std::map<std::string, Renames>; ///< By category, such as /Font.

/// The category of the resource that an operator of a default appearance names; empty for none.
std::string categoryOf(const std::string &operation) {
    static const std::map<std::string, std::string> kCategories{
        {"Tf", "/Font"},       {"gs", "/ExtGState"}, {"cs", "/ColorSpace"},
        {"CS", "/ColorSpace"}, {"scn", "/Pattern"},  {"SCN", "/Pattern"}};
    const auto found = kCategories.find(operation);
    return found == kCategories.end() ? std::string() : found->second;
}

std::string renamed(const QPDFTokenizer::Token &name, const Renames &renames) {
    const auto found = renames.find(name.getValue());
    return found == renames.end() ? name.getRawValue()
                                  : QPDFObjectHandle::newName(found->second).unparse();
}

/// A default appearance, such as "/Helv 12 Tf 0 g", with the names of its resources renamed. Only
/// the operator behind a name tells its category.
std::string renamedAppearance(const std::string &appearance, const CategoryRenames &renames) {
    const auto input = std::make_shared<BufferInputSource>("default appearance", appearance);
    QPDFTokenizer tokenizer;
    tokenizer.allowEOF();
    tokenizer.includeIgnorable();
    std::string result;
    std::vector<QPDFTokenizer::Token> operands;
    const auto flush = [&](const Renames &ofOperator) {
        for (const auto &operand : operands) {
            const bool name = operand.getType() == QPDFTokenizer::tt_name;
            result += name ? renamed(operand, ofOperator) : operand.getRawValue();
        }
        operands.clear();
    };
    for (auto token = tokenizer.readToken(input, {}, true);
         token.getType() != QPDFTokenizer::tt_eof; token = tokenizer.readToken(input, {}, true)) {
        operands.push_back(token);
        if (token.getType() == QPDFTokenizer::tt_word) {
            const auto ofOperator = renames.find(categoryOf(token.getValue()));
            flush(ofOperator == renames.end() ? Renames() : ofOperator->second);
        }
    }
    flush({});
    return result;
}

/// Renames in the default appearances of a field and all fields under it.
void renameInAppearances(const QPDFObjectHandle &root, const CategoryRenames &renames) {
    std::vector<QPDFObjectHandle> pending{root};
    std::set<QPDFObjGen> visited;
    while (!pending.empty()) {
        auto field = pending.back();
        pending.pop_back();
        if (!field.isDictionary() || !visited.insert(field.getObjGen()).second) {
            continue;
        }
        auto appearance = field.getKey("/DA");
        if (appearance.isString()) {
            field.replaceKey("/DA", QPDFObjectHandle::newString(
                                        renamedAppearance(appearance.getStringValue(), renames)));
        }
        const auto kids = items(field.getKey("/Kids"));
        pending.insert(pending.end(), kids.begin(), kids.end());
    }
}

/// Gives a field the defaults of its form, which in the merged one would hold for the fields of all
/// sources.
void keepDefaults(QPDFObjectHandle field, const ImportedForm &form) {
    const auto keep = [&field](const char *key, QPDFObjectHandle value) {
        if (!value.isNull() && !field.hasKey(key)) {
            field.replaceKey(key, value);
        }
    };
    keep("/DA", form.defaultAppearance);
    keep("/Q", form.alignment);
}

/// `name` or, when that is taken, the name with the next number. `numbers` keeps the last number of
/// each name, since thousands of forms may have the same names.
template<typename Taken>
std::string freeName(const std::string &name, std::map<std::string, int> &numbers,
                     const Taken &isTaken) {
    std::string candidate = name;
    while (isTaken(candidate)) {
        int &number = numbers.try_emplace(name, 1).first->second;
        candidate = name + "_" + std::to_string(++number);
    }
    return candidate;
}

} // namespace

void FormMerger::renameField(QPDFObjectHandle field, Renames &renames) {
    auto name = field.getKey("/T");
    if (!name.isString()) {
        return;
    }
    const std::string text = name.getUTF8Value();
    // Two fields of one name in one source are one field to its readers, and stay so.
    auto renamed = renames.find(text);
    if (renamed == renames.end()) {
        const auto unique = freeName(text, m_nameNumbers, [&](const std::string &candidate) {
            return m_names.contains(candidate);
        });
        renamed = renames.emplace(text, unique).first;
    }
    if (renamed->second != text) {
        field.replaceKey("/T", QPDFObjectHandle::newUnicodeString(renamed->second));
    }
}

FormMerger::CategoryRenames FormMerger::addResources(QPDFObjectHandle resources) {
    CategoryRenames renames;
    if (!resources.isDictionary()) {
        return renames;
    }
    for (auto &[category, members] : resources.getDictAsMap()) {
        if (!members.isDictionary()) {
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

void FormMerger::add(const ImportedForm &form) {
    Renames names;
    const CategoryRenames resources = addResources(form.resources);
    for (const auto &field : form.fields) {
        if (!isEntry(field)) {
            continue;
        }
        m_form.fields.push_back(field);
        keepDefaults(field, form);
        renameField(field, names);
        if (!resources.empty()) {
            renameInAppearances(field, resources);
        }
    }
    for (const auto &[name, unique] : names) {
        m_names.insert(unique);
    }
    m_form.calculationOrder.insert(m_form.calculationOrder.end(), form.calculationOrder.begin(),
                                   form.calculationOrder.end());
    m_form.needsAppearances |= form.needsAppearances;
}

void FormMerger::finish(QPDF &document) {
    if (m_form.fields.empty()) {
        return;
    }
    auto form = QPDFObjectHandle::newDictionary();
    putItems(form, "/Fields", m_form.fields);
    putItems(form, "/CO", m_form.calculationOrder);
    if (m_form.needsAppearances) {
        form.replaceKey("/NeedAppearances", QPDFObjectHandle::newBool(true));
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
