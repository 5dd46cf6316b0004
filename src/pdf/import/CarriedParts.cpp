// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/CarriedParts.h"

#include "pdf/import/DocumentImport.h"
#include "pdf/import/Entries.h"
#include "pdf/import/FieldTree.h"
#include "pdf/import/FurtherInfo.h"
#include "pdf/import/Language.h"

#include <algorithm>
#include <map>
#include <set>
#include <vector>

namespace folioforge {

namespace {

using Objects = std::vector<QPDFObjectHandle>;

/// Counts those of `open` and of what `next` gives for each that `counts` says are to be counted.
/// An object that is reached twice is taken once.
template<typename Next, typename Counts>
std::size_t countReached(Objects open, Next &&next, Counts &&counts) {
    std::set<QPDFObjGen> visited;
    std::size_t number = 0;
    while (!open.empty()) {
        const QPDFObjectHandle object = open.back();
        open.pop_back();
        if (!isEntry(object) || !isFirstVisit(object, visited)) {
            continue;
        }
        number += counts(object) ? 1 : 0;
        const Objects found = next(object);
        open.insert(open.end(), found.begin(), found.end());
    }
    return number;
}

std::size_t countBookmarks(const ImportedBookmarks &bookmarks) {
    return countReached(
        bookmarks,
        [](const QPDFObjectHandle &item) {
            return Objects{entry(item, "/First"), entry(item, "/Next")};
        },
        [](const QPDFObjectHandle &) { return true; });
}

bool hasNamedItems(const QPDFObjectHandle &kids) {
    return std::ranges::any_of(
        items(kids), [](const QPDFObjectHandle &kid) { return entry(kid, "/T").isString(); });
}

/// The fields that have no fields under them. What is under a field and has no name are its
/// widgets.
std::size_t countFields(const Objects &roots) {
    std::map<QPDFObjGen, bool> groups; // By the kids, which damaged fields may share.
    std::size_t number = 0;
    visitFields(roots, [&](const QPDFObjectHandle &field) {
        const auto kids = entry(field, "/Kids");
        const auto known = groups.find(kids.getObjGen());
        const bool group = known != groups.end() ? known->second : hasNamedItems(kids);
        if (kids.isIndirect()) {
            groups.emplace(kids.getObjGen(), group);
        }
        number += group || !isEntry(field) ? 0 : 1;
        return group;
    });
    return number;
}

/// `counted` holds the lists of annotations that other pages share.
void addAnnotations(PartCounts &parts, const QPDFObjectHandle &page,
                    std::set<QPDFObjGen> &counted) {
    const auto annotations = annotationsOf(page);
    if (!isFirstVisit(annotations, counted)) {
        return;
    }
    for (const auto &annotation : items(annotations)) {
        auto subtype = entry(annotation, "/Subtype");
        const bool belongsToAnother =
            subtype.isNameAndEquals("/Widget") || subtype.isNameAndEquals("/Popup");
        if (subtype.isName() && !belongsToAnother) {
            addParts(parts,
                     subtype.isNameAndEquals("/Link") ? PartKind::Links : PartKind::Annotations, 1);
        }
    }
}

void addNamedParts(PartCounts &parts, const ImportedDocument &imported) {
    const auto entriesOf = [&](const char *tree) {
        const auto found = imported.nameTrees.find(tree);
        return found == imported.nameTrees.end() ? TreeEntries() : found->second;
    };
    addParts(parts, PartKind::Attachments,
             countFiles(entriesOf(kAttachments), imported.attachments));
    addParts(parts, PartKind::Portfolio, isEntry(imported.attachments.portfolio) ? 1 : 0);
    addParts(parts, PartKind::Scripts, entriesOf(kScripts).size());
    addParts(parts, PartKind::PageTemplates, entriesOf(kTemplates).size());
    addParts(parts, PartKind::ArticleThreads, imported.threads.size());
    addParts(parts, PartKind::Destinations,
             imported.destinations.dictionary.size() + imported.destinations.tree.size());
    addParts(parts, PartKind::FurtherNames, imported.furtherNames.size());
    addParts(parts, PartKind::RenamedNames, imported.names.renamed);
}

} // namespace

PartCounts countCarried(const ImportedDocument &imported) {
    PartCounts parts;
    if (imported.pages.empty()) {
        return parts; // Then the document brings nothing.
    }
    std::set<QPDFObjGen> counted;
    for (const auto &page : imported.pages) {
        addAnnotations(parts, page, counted);
    }
    addParts(parts, PartKind::StructureElements, imported.structure.elements);
    addParts(parts, PartKind::Bookmarks, countBookmarks(imported.bookmarks));
    addParts(parts, PartKind::PageLabels,
             static_cast<std::size_t>(std::ranges::count_if(
                 imported.pageLabels, [](auto label) { return !label.second.isNull(); })));
    addParts(parts, PartKind::Fields, countFields(imported.form.fields));
    addParts(parts, PartKind::Layers,
             static_cast<std::size_t>(std::ranges::count_if(imported.layers.groups, isEntry)));
    addParts(parts, PartKind::LayerSettings, countLayerSettings(imported.layers.whole));
    addNamedParts(parts, imported);
    addParts(parts, PartKind::OutputIntents, imported.outputIntents.intents.size());
    addParts(parts, PartKind::Metadata, imported.metadata.packet.isEmpty() ? 0 : 1);
    addParts(parts, PartKind::Language, saysLanguageAlone(imported.structure) ? 1 : 0);
    addParts(parts, PartKind::Properties, countFurtherInfo(imported.furtherInfo));
    for (const auto &[kind, count] : countCatalogParts(imported.catalogParts)) {
        addParts(parts, kind, count);
    }
    return parts;
}

} // namespace folioforge
