// SPDX-License-Identifier: Apache-2.0

// The string toolkit with any bytes: nothing crashes, and what converts survives the way back.

#include "FuzzSupport.h"
#include "strings/StringToolkit.h"

#include <algorithm>
#include <clocale>
#include <cstring>
#include <vector>

using namespace folioforge;
using namespace folioforge::fuzz;

namespace {

std::string upToZero(const std::string &bytes) {
    return bytes.substr(0, bytes.find('\0'));
}

void convertAsUtf8(const std::string &bytes) {
    const std::wstring unchanged(1, L'\x110000'); // No conversion gives what is no character.
    std::wstring wide = unchanged;
    utf8string_to_wstring(bytes, wide);
    const QString text = string_to_nsstring(bytes);
    require(text.isNull() == (wide == unchanged));
    if (text.isNull()) {
        return;
    }
    std::string back;
    wstring_to_utf8string(wide, back);
    require(back == bytes);
    require(wstring_to_nsstring(wide) == text);
    std::string cut;
    NSStringToSTLString(text, cut);
    require(cut == upToZero(bytes));
}

void convertAsWide(const std::wstring &wide) {
    const std::string unchanged = "\xFF";
    std::string bytes = unchanged;
    wstring_to_utf8string(wide, bytes);
    if (bytes != unchanged) {
        std::wstring back;
        utf8string_to_wstring(bytes, back);
        require(back == wide);
    }
    const std::int32_t needed = WideCharToMultiBytes(wide.c_str(), nullptr, 0);
    std::vector<char> buffer(static_cast<std::size_t>(std::max(needed, 1)));
    WideCharToMultiBytes(wide.c_str(), buffer.data(), needed - 1);
    WideStringToMultiBytesString(wide, bytes);
    require(bytes.size() <= 2 * wide.size() + 1);
}

void convertInTheLocale(const std::string &bytes) {
    std::wstring wide;
    MultiBytesToWideChar(bytes.c_str(), wide, static_cast<std::int32_t>(bytes.size()));
    MultiBytesStringToWideString(bytes, wide);
    require(std::strcmp(std::setlocale(LC_ALL, nullptr), "C") == 0);
    std::string name = upToZero(bytes);
    _strupr(name.data());
    require(FindBoldString(name.c_str()) == FindBoldString(bytes.c_str()));
    require(FindItalicString(name.c_str()) == FindItalicString(bytes.c_str()));
}

} // namespace

FUZZ_TARGET(StringToolkit) {
    const std::string narrow(bytes.begin(), bytes.end());
    std::wstring wide(bytes.size() / sizeof(wchar_t), L'\0');
    if (!wide.empty()) {
        std::memcpy(wide.data(), bytes.data(), wide.size() * sizeof(wchar_t));
    }
    for (const char *locale : {"C", "C.UTF-8"}) {
        std::setlocale(LC_ALL, locale);
        convertAsUtf8(narrow);
        convertAsWide(wide);
        convertInTheLocale(narrow);
    }
}
