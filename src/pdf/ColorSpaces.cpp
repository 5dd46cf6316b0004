// SPDX-License-Identifier: Apache-2.0

#include "pdf/ColorSpaces.h"

#include <string>

namespace folioforge {

int plainComponents(QPDFObjectHandle space) {
    QPDFObjectHandle family = space;
    if (space.isArray() && space.getArrayNItems() > 0) {
        family = space.getArrayItem(0);
    }
    if (!family.isName()) {
        return 0;
    }
    const std::string name = family.getName();
    if (name == "/DeviceGray" || name == "/CalGray") {
        return 1;
    }
    if (name == "/DeviceRGB" || name == "/CalRGB") {
        return 3;
    }
    if (name == "/DeviceCMYK") {
        return 4;
    }
    if (name == "/ICCBased" && space.isArray() && space.getArrayNItems() > 1 &&
        space.getArrayItem(1).isStream()) {
        QPDFObjectHandle count = space.getArrayItem(1).getDict().getKey("/N");
        const int components = count.isInteger() ? count.getIntValueAsInt() : 0;
        return components == 1 || components == 3 || components == 4 ? components : 0;
    }
    return 0;
}

bool isOfTable(QPDFObjectHandle space) {
    return space.isArray() && space.getArrayNItems() > 0 &&
           space.getArrayItem(0).isNameAndEquals("/Indexed");
}

QPDFObjectHandle colorsOf(QPDFObjectHandle space) {
    if (!isOfTable(space)) {
        return space;
    }
    return space.getArrayNItems() > 1 ? space.getArrayItem(1) : QPDFObjectHandle::newNull();
}

} // namespace folioforge
