// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace folioforge {

/// What a dictionary holds.
using Dictionary = std::map<std::string, QPDFObjectHandle>;

/// The value of `key`; null where there is none.
inline QPDFObjectHandle valueOf(const Dictionary &dictionary, const std::string &key) {
    const auto found = dictionary.find(key);
    return found == dictionary.end() ? QPDFObjectHandle::newNull() : found->second;
}

/// The value of `key`; null where there is none or `dictionary` is no dictionary.
inline QPDFObjectHandle entry(QPDFObjectHandle dictionary, const std::string &key) {
    return dictionary.isDictionary() ? dictionary.getKey(key) : QPDFObjectHandle::newNull();
}

/// What a page has under "/Annots"; null where it has nothing, as most do: a value that is missing
/// takes the library long to make.
inline QPDFObjectHandle annotationsOf(QPDFObjectHandle page) {
    return page.hasKey("/Annots") ? page.getKey("/Annots") : QPDFObjectHandle::newNull();
}

/// What an array holds; nothing where `array` is none.
inline std::vector<QPDFObjectHandle> items(QPDFObjectHandle array) {
    return array.isArray() ? array.getArrayAsVector() : std::vector<QPDFObjectHandle>();
}

/// What an array of one holds; else the object itself, as a filter or its parameters may stand.
inline QPDFObjectHandle onlyItem(QPDFObjectHandle object) {
    return object.isArray() && object.getArrayNItems() == 1 ? object.getArrayItem(0) : object;
}

/// Whether `object` comes for the first time, which `visited` remembers. What is not indirect has
/// no name to know it by; it lies within something that has.
inline bool isFirstVisit(const QPDFObjectHandle &object, std::set<QPDFObjGen> &visited) {
    return !object.isIndirect() || visited.insert(object.getObjGen()).second;
}

/// Whether `text` is a version of PDF such as "2.0".
inline bool isVersion(std::string_view text) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return text.size() == 3 && isDigit(text[0]) && text[1] == '.' && isDigit(text[2]);
}

inline bool isTrue(QPDFObjectHandle object) {
    return object.isBool() && object.getBoolValue();
}

/// Writes an array of `members` under `key` where there are any.
inline void putItems(QPDFObjectHandle dictionary, const std::string &key,
                     const std::vector<QPDFObjectHandle> &members) {
    if (!members.empty()) {
        dictionary.replaceKey(key, QPDFObjectHandle::newArray(members));
    }
}

/// Removes those of `objects` from the array under `key`, if `holder` has one.
inline void removeItems(QPDFObjectHandle holder, const std::string &key,
                        const std::set<QPDFObjGen> &objects) {
    auto members = items(entry(holder, key));
    if (std::erase_if(members, [&](const QPDFObjectHandle &member) {
            return objects.contains(member.getObjGen());
        }) > 0) {
        holder.replaceKey(key, QPDFObjectHandle::newArray(members));
    }
}

/// Whether a copied object may be a bookmark, a field or a layer: a damaged source may have
/// anything in their place, pages included.
inline bool isEntry(QPDFObjectHandle object) {
    return object.isDictionary() && !object.isDictionaryOfType("/Page");
}

} // namespace folioforge
