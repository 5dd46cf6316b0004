// SPDX-License-Identifier: Apache-2.0

#include "verify/ImportChanges.h"

#include "pdf/import/Entries.h"
#include "verify/ContentLexer.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace folioforge {
namespace {

using Object = QPDFObjectHandle;

bool isOneOf(const Object &name, std::initializer_list<const char *> known) {
    return std::ranges::any_of(known,
                               [&](const char *one) { return Object(name).isNameAndEquals(one); });
}

bool isKeyOfParentTree(const Object &dictionary, const std::string &key) {
    return (key == "/StructParent" || key == "/StructParents") &&
           (Object(entry(dictionary, "/Subtype")).isName() ||
            Object(entry(dictionary, "/Type")).isNameAndEquals("/Page"));
}

/// What may become of an entry of an action (ISO 32000-1, 12.6.4).
ImportChange changeOfAction(const Object &action, const Object &kind, const std::string &key) {
    if (key == "/D" && isOneOf(kind, {"/GoTo"})) {
        return ImportChange::Destination;
    }
    const bool isOwn = !Object(action).hasKey("/F");
    if (key == "/SD" || (key == "/D" && isOwn && isOneOf(kind, {"/Thread"})) ||
        (key == "/T" && isOwn && isOneOf(kind, {"/GoToE"}))) {
        return ImportChange::Free;
    }
    const bool namesFields = isOneOf(kind, {"/SubmitForm", "/ResetForm", "/Hide"});
    return namesFields && (key == "/Fields" || key == "/T") ? ImportChange::Name
                                                            : ImportChange::None;
}

/// Where a name may be extended: a field's full name behind its first part, a file's before its
/// extension.
std::string_view stemOf(std::string_view name) {
    const auto first = name.find('.');
    return name.substr(0, std::min(first, name.size()));
}

bool isSameText(Object source, Object written) {
    if (!source.isString() || !written.isString()) {
        return source.unparse() == written.unparse();
    }
    const std::string left = nameText(source);
    const std::string right = nameText(written);
    return left == right || right.starts_with(stemOf(left));
}

} // namespace

bool isGoTo(const QPDFObjectHandle &action) {
    return entry(action, "/S").isNameAndEquals("/GoTo");
}

bool isField(QPDFObjectHandle dictionary) {
    return dictionary.hasKey("/FT") || entry(dictionary, "/Subtype").isNameAndEquals("/Widget") ||
           (dictionary.hasKey("/Kids") && !dictionary.hasKey("/Type")) ||
           (dictionary.hasKey("/T") && !dictionary.hasKey("/Subtype"));
}

ImportChange changeOf(QPDFObjectHandle dictionary, const std::string &key) {
    if (key == "/Dest") {
        return ImportChange::Destination;
    }
    if (isKeyOfParentTree(dictionary, key) || (key == "/SE" && dictionary.hasKey("/Title"))) {
        return ImportChange::Free;
    }
    if (Object kind = entry(dictionary, "/S"); kind.isName()) {
        return changeOfAction(dictionary, kind, key);
    }
    if ((key == "/F" || key == "/UF") && dictionary.hasKey("/EF")) {
        return ImportChange::Name;
    }
    if (!isField(dictionary)) {
        return ImportChange::None;
    }
    return key == "/T"      ? ImportChange::Name
           : key == "/DA"   ? ImportChange::Appearance
           : key == "/Kids" ? ImportChange::Pruned
                            : ImportChange::None;
}

bool staysInItsDocument(QPDFObjectHandle object) {
    if (!object.isDictionary()) {
        return false;
    }
    const bool isSignature = object.hasKey("/ByteRange") && object.hasKey("/Contents");
    return isSignature || isOneOf(object.getKey("/Type"), {"/Pages", "/Page", "/Catalog",
                                                           "/StructTreeRoot", "/StructElem"});
}

bool isRenamed(QPDFObjectHandle source, const QPDFObjectHandle &written) {
    if (!source.isArray()) {
        return isSameText(source, written);
    }
    return std::ranges::equal(items(source), items(written), [](Object left, Object right) {
        return left.isDictionary() ? right.isDictionary() : isSameText(left, right);
    });
}

std::string fontIn(QPDFObjectHandle appearance) {
    if (!appearance.isString()) {
        return {};
    }
    const std::string text = appearance.getStringValue();
    ContentLexer tokens(text);
    ContentToken token;
    std::string name;
    std::string font;
    while (tokens.next(token)) {
        if (token.kind == ContentToken::Kind::Name) {
            name = token.text;
        } else if (token.kind == ContentToken::Kind::Word && token.text == "Tf") {
            font = name;
        }
    }
    return font;
}

bool isSameAppearance(QPDFObjectHandle source, QPDFObjectHandle written) {
    if (!source.isString() || !written.isString()) {
        return source.unparseResolved() == written.unparseResolved();
    }
    const std::string left = source.getStringValue();
    const std::string right = written.getStringValue();
    if (left == right) {
        return true;
    }
    ContentLexer leftTokens(left);
    ContentLexer rightTokens(right);
    ContentToken one;
    ContentToken other;
    while (leftTokens.next(one)) {
        if (!rightTokens.next(other) || one.kind != other.kind) {
            return false;
        }
        const bool isNumber = one.kind == ContentToken::Kind::Number;
        const bool isSame = isNumber ? one.number == other.number : one.text == other.text;
        if (!isSame && one.kind != ContentToken::Kind::Name) {
            return false;
        }
    }
    return !rightTokens.next(other);
}

} // namespace folioforge
