#include "compress/FilterChains.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <qpdf/QPDF.hh>

namespace folioforge {

namespace {

bool isCompression(QPDFObjectHandle filter) {
    constexpr std::array<std::string_view, 6> kNames{
        "/FlateDecode", "/Fl", "/LZWDecode", "/LZW", "/RunLengthDecode", "/RL"};
    return filter.isName() &&
           std::find(kNames.begin(), kNames.end(), filter.getName()) != kNames.end();
}

} // namespace

void keepFilterChains(QPDF &document) {
    for (QPDFObjectHandle &object : document.getAllObjects()) {
        if (!object.isStream()) {
            continue;
        }
        QPDFObjectHandle filter = object.getDict().getKey("/Filter");
        const auto filters =
            filter.isArray() ? filter.getArrayAsVector() : std::vector<QPDFObjectHandle>();
        if (std::count_if(filters.begin(), filters.end(), isCompression) > 1) {
            object.setFilterOnWrite(false);
        }
    }
}

} // namespace folioforge
