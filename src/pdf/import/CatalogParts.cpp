// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/CatalogParts.h"

#include "pdf/import/Entries.h"
#include "pdf/import/ImportOptions.h"
#include "pdf/import/ObjectCopier.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>
#include <string_view>

namespace folioforge {

namespace {

/// Whether an entry belongs to another topic, is written anew or holds for the original file alone,
/// as usage rights and what confirms signatures do.
bool belongsElsewhere(std::string_view key) {
    static constexpr std::array<std::string_view, 19> kKeys{
        "/Type",           "/Pages",      "/Version",
        "/Outlines",       "/PageLabels", "/AcroForm",
        "/NeedsRendering", "/Metadata",   "/MarkInfo",
        "/StructTreeRoot", "/Names",      "/Dests",
        "/Threads",        "/AF",         "/Collection",
        "/Perms",          "/DSS",        "/OCProperties",
        "/OutputIntents"};
    return std::ranges::find(kKeys, key) != kKeys.end();
}

bool saysHowToOpen(std::string_view key) {
    static constexpr std::array<std::string_view, 4> kKeys{"/OpenAction", "/ViewerPreferences",
                                                           "/PageMode", "/PageLayout"};
    return std::ranges::find(kKeys, key) != kKeys.end();
}

/// Whether an entry is one of those of which nothing else here knows, and says something. The
/// language is counted for itself, declared extensions go into the version.
bool isFurther(std::string_view key, QPDFObjectHandle value) {
    static constexpr std::array<std::string_view, 4> kKnown{"/AA", "/URI", "/Lang", "/Extensions"};
    const bool isEmpty = value.isNull() || (value.isDictionary() && value.getKeys().empty()) ||
                         (value.isArray() && value.getArrayNItems() == 0);
    return !isEmpty && !belongsElsewhere(key) && !saysHowToOpen(key) &&
           std::ranges::find(kKnown, key) == kKnown.end();
}

/// Whether an entry stays: of several sources, how readers open the first.
bool isCarried(std::string_view key, const ImportOptions &options) {
    if (options.scope == ImportScope::OneOfSeveral) {
        return options.firstPage == 0 && saysHowToOpen(key);
    }
    return !belongsElsewhere(key);
}

/// What runs when the document is opened, printed or closed. An action that only shows a page is
/// none.
std::size_t countScripts(const ImportedCatalogParts &parts) {
    auto actions = valueOf(parts, "/AA");
    auto opening = valueOf(parts, "/OpenAction");
    const bool runs = opening.isDictionary() && !entry(opening, "/S").isNameAndEquals("/GoTo");
    return (actions.isDictionary() ? actions.getKeys().size() : 0) + (runs ? 1 : 0);
}

} // namespace

ImportedCatalogParts importCatalogParts(QPDF &source, ObjectCopier &copier,
                                        const ImportOptions &options) {
    ImportedCatalogParts parts;
    for (const auto &[key, value] : source.getRoot().getDictAsMap()) {
        if (!isCarried(key, options)) {
            continue;
        }
        const bool shows = key == "/OpenAction" && !QPDFObjectHandle(value).isDictionary();
        auto copied = shows ? copier.copyDestination(value) : copier.copy(value);
        if (!copied.isNull()) {
            parts.emplace(key, copied);
        }
    }
    return parts;
}

ImportedCatalogParts catalogPartsLeft(QPDF &source, const ImportOptions &options) {
    auto parts = source.getRoot().getDictAsMap();
    std::erase_if(parts, [&](const auto &part) { return isCarried(part.first, options); });
    return parts;
}

PartCounts countCatalogParts(const ImportedCatalogParts &parts) {
    PartCounts counts;
    addParts(counts, PartKind::Scripts, countScripts(parts));
    addParts(counts, PartKind::BaseAddress,
             entry(valueOf(parts, "/URI"), "/Base").isNull() ? 0 : 1);
    addParts(counts, PartKind::FurtherEntries,
             static_cast<std::size_t>(std::ranges::count_if(
                 parts, [](const auto &part) { return isFurther(part.first, part.second); })));
    return counts;
}

void putCatalogParts(QPDF &document, const ImportedCatalogParts &parts) {
    auto catalog = document.getRoot();
    for (const auto &[key, value] : parts) {
        catalog.replaceKey(key, value);
    }
}

} // namespace folioforge
