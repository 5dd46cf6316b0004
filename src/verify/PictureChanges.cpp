// SPDX-License-Identifier: Apache-2.0

#include "verify/PictureChanges.h"

#include "pdf/ColorSpaces.h"
#include "pdf/import/Entries.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace folioforge {
namespace {

using Object = QPDFObjectHandle;

constexpr std::array<std::string_view, 5> kSampleKeys{"/Width", "/Height", "/BitsPerComponent",
                                                      "/Decode", "/SMaskInData"};

bool hasSame(const Object &source, const Object &written, std::string_view key) {
    const std::string name(key);
    return entry(source, name).unparseResolved() == entry(written, name).unparseResolved();
}

long long opacityInData(const Object &dictionary) {
    Object stated = entry(dictionary, "/SMaskInData");
    return stated.isInteger() ? stated.getIntValue() : 0;
}

} // namespace

ColorChange colorChangeOf(QPDFObjectHandle source, QPDFObjectHandle written, bool mayBeGrey) {
    const bool isGrey = !written.isNull() && plainComponents(colorsOf(written)) == 1;
    if (mayBeGrey && isGrey && plainComponents(colorsOf(source)) != 1) {
        return ColorChange::Grey;
    }
    if (source.isNull() &&
        (written.isNameAndEquals("/DeviceGray") || written.isNameAndEquals("/DeviceRGB"))) {
        return ColorChange::Device;
    }
    return isOfTable(source) && !isOfTable(written) ? ColorChange::Base : ColorChange::None;
}

bool isOfSamples(const std::string &key) {
    return key == "/ColorSpace" || std::ranges::find(kSampleKeys, key) != kSampleKeys.end();
}

bool haveSameSamples(QPDFObjectHandle source, QPDFObjectHandle written) {
    return std::ranges::all_of(kSampleKeys,
                               [&](auto key) { return hasSame(source, written, key); });
}

bool isReadAlike(const QPDFObjectHandle &source, QPDFObjectHandle written, ColorChange change) {
    const bool isTurnedBack = change == ColorChange::Grey && !written.hasKey("/Decode");
    return (isTurnedBack || hasSame(source, written, "/Decode")) &&
           opacityInData(source) == opacityInData(written);
}

} // namespace folioforge
