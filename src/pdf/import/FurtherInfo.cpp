// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/FurtherInfo.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>

namespace folioforge {

namespace {

bool saysSomething(const std::string &key, QPDFObjectHandle value) {
    if (key.starts_with("/PTEX.")) {
        return false; // The programs of TeX and their versions.
    }
    const bool isUsual = key == "/Trapped" && !value.isNameAndEquals("/True");
    const bool isEmpty = value.isNull() || (value.isString() && value.getStringValue().empty());
    return !isUsual && !isEmpty;
}

} // namespace

Dictionary furtherInfo(QPDF &source) {
    static constexpr std::array kWritten{"/Title",   "/Author",   "/Subject",      "/Keywords",
                                         "/Creator", "/Producer", "/CreationDate", "/ModDate"};
    auto info = source.getTrailer().getKey("/Info");
    Dictionary further = info.isDictionary() ? info.getDictAsMap() : Dictionary();
    for (const char *key : kWritten) {
        further.erase(key);
    }
    return further;
}

std::size_t countFurtherInfo(const Dictionary &info) {
    return static_cast<std::size_t>(std::ranges::count_if(
        info, [](const auto &entry) { return saysSomething(entry.first, entry.second); }));
}

void putFurtherInfo(QPDF &document, const Dictionary &info) {
    auto written = document.getTrailer().getKey("/Info");
    for (const auto &[key, value] : info) {
        written.replaceKey(key, value);
    }
}

} // namespace folioforge
