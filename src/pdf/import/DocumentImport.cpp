// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/DocumentImport.h"

#include "error/Reasons.h"
#include "pdf/import/CarriedParts.h"
#include "pdf/import/ChosenPages.h"
#include "pdf/import/ContentCheck.h"
#include "pdf/import/Entries.h"
#include "pdf/import/FurtherInfo.h"
#include "pdf/import/LeftPages.h"
#include "pdf/import/LeftParts.h"
#include "pdf/import/MissingObjects.h"
#include "pdf/import/ObjectCopier.h"
#include "pdf/import/SourceDamage.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>

namespace folioforge {

namespace {

Warning signaturesRemoved(int count) {
    return {
        WarningCode::SignatureRemoved,
        count == 1
            ? Reasons::tr("1 signature is left out, since it holds for the original file alone")
            : Reasons::tr("%n signatures are left out, since they hold for the original file alone",
                          nullptr, count)};
}

/// A version such as "2.0"; 0.0 where `text` is none. The library's own reading of it takes as long
/// as copying a page.
PDFVersion versionFrom(std::string_view text, int extensionLevel) {
    if (!isVersion(text)) {
        return {};
    }
    return {text[0] - '0', text[2] - '0', extensionLevel};
}

/// That of the header, or the one that the catalog states where it is higher.
PDFVersion versionOf(QPDF &source) {
    PDFVersion version = versionFrom(source.getPDFVersion(), source.getExtensionLevel());
    auto stated = source.getRoot().getKey("/Version");
    if (stated.isName()) {
        version.updateIfGreater(versionFrom(stated.getName().substr(1), 0));
    }
    return version;
}

Warning structureDamaged(std::size_t count) {
    return {WarningCode::StructureDamaged,
            count == 1 ? Reasons::tr("1 structure tag is damaged and left out")
                       : Reasons::tr("%n structure tags are damaged and left out", nullptr,
                                     static_cast<int>(count))};
}

/// The copies of pages that the tree names again, each behind its first one.
std::vector<std::pair<QPDFObjectHandle, QPDFObjectHandle>>
repeatedPages(const std::vector<SourcePage> &pages, const std::vector<QPDFObjectHandle> &copies) {
    std::map<QPDFObjGen, std::size_t> first;
    std::vector<std::pair<QPDFObjectHandle, QPDFObjectHandle>> repeated;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const auto &page = pages[i].page;
        const auto [known, isNew] = first.try_emplace(page.getObjGen(), i);
        if (page.isIndirect() && !isNew) {
            repeated.emplace_back(copies[known->second], copies[i]);
        }
    }
    return repeated;
}

/// Copies the document topic by topic. Pages are made first, since everything refers to them. What
/// is referred to by name and what has a tree of its own comes before what refers to it: elements,
/// destinations and names before pages, bookmarks and fields.
void copyTopics(ImportedDocument &imported, QPDF &source, QPDF &target, const ChosenPages &chosen,
                SourceNames &names, const ImportOptions &options, ObjectCopier &copier) {
    const auto &pages = chosen.pages;
    copier.makePages(pages, options.firstPage, chosen.positions);
    imported.outputIntents = importOutputIntents(source, copier);
    imported.structure = importStructure(source, target, copier);
    imported.destinations = importDestinations(source, names, copier);
    imported.nameTrees = importNameTrees(source, names, copier);
    imported.pages = copier.fillPages(pages);
    if (!imported.structure.content.empty()) {
        imported.structure.repeatedPages = repeatedPages(pages, imported.pages);
    }
    imported.bookmarks = importBookmarks(source, copier);
    imported.pageLabels = importPageLabels(source, chosen.positions, copier);
    imported.form = importForm(source, pages, copier);
    imported.layers = importLayers(source, copier, imported.scope);
    imported.catalogParts = importCatalogParts(source, copier, options);
    if (imported.scope == ImportScope::WholeDocument) {
        for (const auto &[key, object] : furtherNames(source)) {
            imported.furtherNames.emplace(key, copier.copy(object));
        }
        for (const auto &[key, object] : furtherInfo(source)) {
            imported.furtherInfo.emplace(key, copier.copy(object));
        }
    }
    imported.attachments = importAttachments(source, copier, imported.scope);
    imported.threads = importThreads(source, copier);
    copier.run();
    turnPages(imported.pages, options.pages.turns);
    imported.form.actions = copier.fieldActions();
    imported.attachments.ofParts = filesOf(copier.fileHolders());
    tellFilesApart(imported.nameTrees[kAttachments], imported.attachments, names);
    imported.names = names.given();
}

/// Leaves out the pages that are not chosen and names what goes with them.
void leavePages(ImportedDocument &imported, QPDF &source, const SourcePages &found,
                const ChosenPages &chosen) {
    const PartCounts gone = removeLeftPages(source, found.pages, chosen.pages);
    for (const auto &[kind, count] : gone) {
        addParts(imported.parts.left, kind, count);
    }
    if (!gone.empty()) {
        imported.warnings.push_back(
            {WarningCode::PdfPartsLeft,
             Reasons::tr("Not carried over, as it belongs to pages that are left out: %1")
                 .arg(inWords(gone))});
    }
}

/// The damaged ones of the chosen pages, from 1, as the source counts them. What is known of a file
/// is kept in `known` where all of its pages are taken.
class DamageOfPages {
  public:
    DamageOfPages(QPDF &source, const ChosenPages &chosen, bool areAll,
                  std::optional<std::set<std::size_t>> &known)
        : m_positions(chosen.positions)
        , m_damaged(areAll ? known : m_own) {
        if (!m_damaged) {
            m_contents.emplace(source, chosen.pages);
            m_damaged = pagesThatLackObjects(chosen.pages);
        }
    }

    /// To be called when the pages are copied.
    std::set<std::size_t> finish() {
        if (m_contents) {
            m_damaged->merge(m_contents->damagedPages());
        }
        std::set<std::size_t> numbers;
        for (const std::size_t number : *m_damaged) {
            numbers.insert(m_positions.at(number - 1) + 1);
        }
        return numbers;
    }

  private:
    const std::vector<std::size_t> &m_positions;
    std::optional<std::set<std::size_t>> m_own;
    std::optional<std::set<std::size_t>> &m_damaged;
    std::optional<ContentCheck> m_contents;
};

/// Names what the copier left out and what of the structure is damaged.
void addLosses(ImportedDocument &imported, const ObjectCopier &copier) {
    if (copier.signaturesLeftOut() > 0) {
        addParts(imported.parts.left, PartKind::Signatures,
                 static_cast<std::size_t>(copier.signaturesLeftOut()));
        imported.warnings.push_back(signaturesRemoved(copier.signaturesLeftOut()));
    }
    if (imported.structure.damaged > 0) {
        addParts(imported.parts.left, PartKind::StructureElements, imported.structure.damaged);
        imported.warnings.push_back(structureDamaged(imported.structure.damaged));
    }
}

} // namespace

ImportedDocument importDocument(QPDF &source, QPDF &target, SharedStreams &shared,
                                SourceNames &names, const ImportOptions &options) {
    ObjectCopier copier(source, target, shared, names);
    ImportedDocument imported;
    imported.scope = options.scope;
    imported.metadata = readMetadata(source, options.scope);
    imported.parts.left = countLeft(source, options);
    addParts(imported.parts.left, PartKind::Metadata, imported.metadata.isLeft ? 1 : 0);
    imported.warnings = namePartsLeft(imported.parts.left);
    const SourcePages found = readSourcePages(source);
    shared.beginCopy(source, found.pages);
    const ChosenPages chosen = choosePages(found.pages, options.pages.range);
    const bool areAll = options.pages.range.isEmpty();
    DamageOfPages damage(source, chosen, areAll, shared.damagedPages);
    const Warnings missing = missingEntries(source);
    if (!areAll) {
        leavePages(imported, source, found, chosen);
    }
    copyTopics(imported, source, target, chosen, names, options, copier);
    addLosses(imported, copier);
    imported.parts.carried = countCarried(imported);
    imported.version = versionOf(source);
    if (imported.pages.empty()) {
        imported.warnings.push_back(
            {WarningCode::PdfWithoutPages, Reasons::tr("The document has no pages")});
    }
    for (const Warnings &damages :
         {missingPages(found), damagedPages(damage.finish()), missing, repairs(source)}) {
        std::ranges::copy(damages, std::back_inserter(imported.warnings));
    }
    std::ranges::copy(
        dropBrokenClaims(imported.metadata, options, imported.parts, imported.warnings),
        std::back_inserter(imported.warnings));
    return imported;
}

} // namespace folioforge
