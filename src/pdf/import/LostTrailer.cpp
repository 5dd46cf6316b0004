// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/LostTrailer.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string_view>

namespace folioforge {

namespace {

/// How far from the beginning of its object a catalog is looked for.
constexpr std::size_t kMaxObjectStart = 1 << 16;
constexpr std::size_t kPiece = 1 << 20;

constexpr std::string_view kBlanks{" \t\r\n\f\0", 6};
constexpr std::string_view kDigits = "0123456789";

/// Takes trailing characters of `set` off `text` and returns them.
std::string_view takeBack(std::string_view &text, std::string_view set) {
    const auto last = text.find_last_not_of(set);
    const auto length = last == std::string_view::npos ? 0 : last + 1;
    const std::string_view taken = text.substr(length);
    text.remove_suffix(taken.size());
    return taken;
}

/// "N G" of the object that is open at the end of `text`; empty where there is none.
std::string openObject(std::string_view text) {
    constexpr std::string_view kObject = "obj";
    const auto found = text.rfind(kObject);
    if (found == std::string_view::npos) {
        return {};
    }
    text = text.substr(0, found);
    takeBack(text, kBlanks);
    const std::string_view generation = takeBack(text, kDigits);
    takeBack(text, kBlanks);
    const std::string_view number = takeBack(text, kDigits);
    if (generation.empty() || number.empty()) {
        return {}; // Such as "endobj".
    }
    return std::string(number) + ' ' + std::string(generation);
}

/// What stands before the last `value` that `key` has in `text`; nothing where it has none.
std::optional<std::string_view> beforeLast(std::string_view text, std::string_view key,
                                           std::string_view value) {
    for (auto at = text.rfind(value); at != std::string_view::npos; at = text.rfind(value)) {
        text = text.substr(0, at);
        takeBack(text, kBlanks);
        if (text.ends_with(key)) {
            return text;
        }
    }
    return std::nullopt;
}

} // namespace

std::string lostTrailer(const FileVersion &file, SourceReader &reader) {
    std::string catalog;
    std::string text;
    for (qint64 offset = 0; offset < file.size;) {
        const std::size_t kept = std::min(text.size(), kMaxObjectStart);
        text.erase(0, text.size() - kept);
        text.resize(kept + kPiece);
        const auto got = reader.read(file, offset, std::span(text).subspan(kept));
        text.resize(kept + got);
        offset += static_cast<qint64>(kPiece);
        if (const auto before = beforeLast(text, "/Type", "/Catalog")) {
            catalog = openObject(*before);
        }
        if (beforeLast(text, "/Filter", "/Standard") ||
            beforeLast(text, "/Filter", "/Adobe.PubSec")) {
            return {};
        }
    }
    if (catalog.empty()) {
        return {};
    }
    return "\nendstream\nendobj\ntrailer\n<< /Root " + catalog + " R >>\n";
}

} // namespace folioforge
