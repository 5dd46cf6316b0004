// SPDX-License-Identifier: Apache-2.0

#include "verify/FontStreams.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "pdf/import/Entries.h"
#include "verify/StreamSums.h"
#include "verify/Unpacking.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace folioforge {
namespace {

/// The bytes of a stream without its filters. Throws Error where they are damaged.
qint64 wholeBytes(const QPDFObjectHandle &stream) {
    if (const auto sum = sumOf(stream, Unpacking::Samples)) {
        return sum->bytes;
    }
    throw Error(Reasons::tr("a font is damaged"));
}

bool isDeflatedAlone(QPDFObjectHandle stream) {
    static constexpr std::array<std::string_view, 7> kKeys{
        "/Filter", "/Length", "/Length1", "/Subtype", "/CMapName", "/Type", "/CIDSystemInfo"};
    const auto keys = stream.getDict().getKeys();
    return stream.getDict().getKey("/Filter").isNameAndEquals("/FlateDecode") &&
           std::ranges::all_of(keys, [](const std::string &key) {
               return std::ranges::find(kKeys, key) != kKeys.end();
           });
}

} // namespace

std::string characterMapIn(const QPDFObjectHandle &stream) {
    constexpr std::size_t kMaxLength = 64 << 20;
    if (auto text = unpacked(stream, kMaxLength)) {
        return std::move(*text);
    }
    throw Error(Reasons::tr("a font is damaged"));
}

void requireWholeProgram(const QPDFObjectHandle &font) {
    const auto descriptor = entry(font, "/FontDescriptor");
    for (const char *key : {"/FontFile", "/FontFile2", "/FontFile3"}) {
        QPDFObjectHandle program = entry(descriptor, key);
        if (!program.isStream()) {
            continue;
        }
        const qint64 bytes = wholeBytes(program);
        const bool isTrueType = key == std::string_view("/FontFile2");
        QPDFObjectHandle stated = program.getDict().getKey("/Length1");
        QPDFObjectHandle kind = program.getDict().getKey("/Subtype");
        const bool hasKind = kind.isNameAndEquals("/CIDFontType0C") ||
                             kind.isNameAndEquals("/Type1C") || kind.isNameAndEquals("/OpenType");
        if ((isTrueType && stated.isInteger() && stated.getIntValue() != bytes) ||
            (key == std::string_view("/FontFile3") && !hasKind)) {
            throw Error(Reasons::tr("a font is damaged"));
        }
    }
    if (const auto map = entry(font, "/CIDToGIDMap"); QPDFObjectHandle(map).isStream()) {
        wholeBytes(map);
    }
}

bool hasPlainStreams(const QPDFObjectHandle &font) {
    const auto descendants = items(entry(font, "/DescendantFonts"));
    const auto descendant = descendants.empty() ? QPDFObjectHandle::newNull() : descendants.front();
    const auto descriptor = entry(descendant, "/FontDescriptor");
    std::vector<QPDFObjectHandle> parts{
        entry(font, "/Encoding"), entry(font, "/ToUnicode"), entry(descendant, "/CIDToGIDMap"),
        entry(descriptor, "/FontFile2"), entry(descriptor, "/FontFile3")};
    return std::ranges::all_of(
        parts, [](QPDFObjectHandle part) { return !part.isStream() || isDeflatedAlone(part); });
}

} // namespace folioforge
