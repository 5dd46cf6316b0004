// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/Dangling.h"

#include <algorithm>
#include <array>

namespace folioforge {

namespace {

/// A null that is written in a dictionary.
QPDFObjectHandle writtenNull() {
    return QPDFObjectHandle::parse("<< /Null null >>").getKey("/Null");
}

/// A null that is written in an array of so many that the library keeps it in another form.
QPDFObjectHandle nullOfMany() {
    constexpr int kMany = 1000;
    std::string array = "[";
    for (int i = 0; i < kMany; ++i) {
        array += "null ";
    }
    return QPDFObjectHandle::parse(array + ']').getArrayItem(0);
}

/// libqpdf 11 keeps a reference that leads nowhere. libqpdf 12 makes it a null of its own, whereas
/// it has one null for all that are written, and a new one for each that is asked for and not held.
template<typename Get> bool leadsNowhere(const Get &get) {
    static const std::array written{writtenNull(), nullOfMany()};
    static const bool isOneForAll = written.front().isSameObjectAs(writtenNull());
    QPDFObjectHandle object = get();
    if (!object.isNull() || object.isIndirect()) {
        return object.isNull();
    }
    const auto isObject = [&](const QPDFObjectHandle &known) {
        return object.isSameObjectAs(known);
    };
    return isOneForAll && isObject(get()) && std::ranges::none_of(written, isObject);
}

} // namespace

bool isDangling(QPDFObjectHandle dictionary, const std::string &key) {
    return leadsNowhere([&] { return dictionary.getKey(key); });
}

bool isDangling(QPDFObjectHandle array, int index) {
    return leadsNowhere([&] { return array.getArrayItem(index); });
}

bool hasDanglingItems(QPDFObjectHandle array) {
    const int size = array.isArray() ? array.getArrayNItems() : 0;
    for (int i = 0; i < size; ++i) {
        if (isDangling(array, i)) {
            return true;
        }
    }
    return false;
}

} // namespace folioforge
