// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/FieldRenames.h"

#include "pdf/import/Entries.h"
#include "pdf/import/FieldTree.h"
#include "pdf/import/SourceNames.h"

#include <qpdf/BufferInputSource.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFTokenizer.hh>

#include <algorithm>
#include <array>
#include <memory>

namespace folioforge {

namespace {

/// Where actions name fields: those that submit and reset, and those that hide.
constexpr std::array kFieldKeys{"/Fields", "/T"};

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

/// The full name of a field, such as "address.city", with the name at its top renamed.
QPDFObjectHandle renamedField(QPDFObjectHandle name, const Renames &renames) {
    if (!name.isString()) {
        return name;
    }
    const std::string text = shortened(name).getUTF8Value();
    // A damaged form may have a name with a dot.
    const auto top = renames.contains(text) ? text.size() : std::min(text.find('.'), text.size());
    const auto found = renames.find(text.substr(0, top));
    return found == renames.end()
               ? name
               : QPDFObjectHandle::newUnicodeString(found->second + text.substr(top));
}

using Replaced = std::map<QPDFObjGen, QPDFObjectHandle>; ///< New objects by the old.

/// What `make` gives in the place of `object`, which many may share: once for all of them.
template<typename Make>
QPDFObjectHandle replacing(QPDFObjectHandle object, Replaced &replaced, const Make &make) {
    if (!object.isIndirect()) {
        return make(object);
    }
    const auto [known, isNew] = replaced.try_emplace(object.getObjGen());
    if (isNew) {
        known->second = object.getOwningQPDF()->makeIndirectObject(make(object));
    }
    return known->second;
}

QPDFObjectHandle renamedFields(const QPDFObjectHandle &array, const Renames &renames) {
    auto fields = items(array);
    for (auto &field : fields) {
        field = renamedField(field, renames);
    }
    return QPDFObjectHandle::newArray(fields);
}

} // namespace

bool namesFields(const Dictionary &action) {
    static constexpr std::array kKinds{"/SubmitForm", "/ResetForm", "/Hide"};
    const auto kind = action.find("/S");
    return kind != action.end() && std::ranges::any_of(kKinds, [&](const char *name) {
               return QPDFObjectHandle(kind->second).isNameAndEquals(name);
           });
}

void renameInAppearances(const std::vector<QPDFObjectHandle> &roots,
                         const CategoryRenames &renames) {
    if (renames.empty()) {
        return;
    }
    Replaced replaced;
    visitFields(roots, [&](QPDFObjectHandle field) {
        auto appearance = field.getKey("/DA");
        if (appearance.isString()) {
            field.replaceKey("/DA", replacing(appearance, replaced, [&](QPDFObjectHandle old) {
                                 return QPDFObjectHandle::newString(
                                     renamedAppearance(old.getStringValue(), renames));
                             }));
        }
        return true;
    });
}

void renameInActions(const std::vector<QPDFObjectHandle> &actions, const Renames &renames) {
    if (renames.empty()) {
        return;
    }
    Replaced arrays;
    for (QPDFObjectHandle action : actions) {
        for (const char *key : kFieldKeys) {
            auto named = action.getKey(key);
            if (named.isArray()) {
                action.replaceKey(key, replacing(named, arrays, [&](const QPDFObjectHandle &old) {
                                      return renamedFields(old, renames);
                                  }));
            } else if (named.isString()) {
                action.replaceKey(key, renamedField(named, renames));
            }
        }
    }
}

} // namespace folioforge
