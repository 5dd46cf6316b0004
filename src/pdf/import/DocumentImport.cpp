// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/DocumentImport.h"

#include "pdf/import/ContentCheck.h"
#include "pdf/import/Entries.h"
#include "pdf/import/LeftParts.h"
#include "pdf/import/SourceDamage.h"
#include "pdf/import/TreeEntries.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

bool isTrue(QPDFObjectHandle object) {
    return object.isBool() && object.getBoolValue();
}

std::vector<QPDFObjectHandle> copies(ObjectCopier &copier, const QPDFObjectHandle &array) {
    std::vector<QPDFObjectHandle> result;
    for (auto item : items(array)) {
        if (!item.isNull()) {
            result.push_back(copier.copy(item));
        }
    }
    return result;
}

std::vector<QPDFObjectHandle> importBookmarks(QPDF &source, ObjectCopier &copier) {
    std::vector<QPDFObjectHandle> bookmarks;
    std::set<QPDFObjGen> visited;
    auto item = entry(source.getRoot().getKey("/Outlines"), "/First");
    while (item.isDictionary() && item.isIndirect() && visited.insert(item.getObjGen()).second) {
        bookmarks.push_back(copier.copy(item));
        item = item.getKey("/Next");
    }
    return bookmarks;
}

ImportedForm importForm(QPDF &source, ObjectCopier &copier) {
    const auto form = source.getRoot().getKey("/AcroForm");
    ImportedForm imported;
    for (auto field : items(entry(form, "/Fields"))) {
        if (field.isIndirect() && field.isDictionary()) {
            imported.fields.push_back(copier.copy(field));
        }
    }
    imported.calculationOrder = copies(copier, entry(form, "/CO"));
    imported.resources = copier.copy(entry(form, "/DR"));
    imported.needsAppearances = isTrue(entry(form, "/NeedAppearances"));
    return imported;
}

/// Removes what is no bookmark, field or layer: a damaged source may have anything there, pages
/// included.
void keepOnlyEntries(std::vector<QPDFObjectHandle> &objects) {
    std::erase_if(objects, [](QPDFObjectHandle object) {
        return !object.isDictionary() || object.isDictionaryOfType("/Page");
    });
}

/// Copies the defaults of the source's form into its fields: in the merged form they would hold for
/// the fields of all sources.
void keepFormDefaults(QPDF &source, const ImportedForm &form, ObjectCopier &copier) {
    const auto defaults = source.getRoot().getKey("/AcroForm");
    for (const char *key : {"/DA", "/Q"}) {
        auto value = entry(defaults, key);
        if (value.isNull()) {
            continue;
        }
        for (auto field : form.fields) {
            if (!field.hasKey(key)) {
                field.replaceKey(key, copier.copy(value));
            }
        }
    }
}

/// The groups that are hidden when the document opens.
std::vector<QPDFObjectHandle> hiddenLayers(const QPDFObjectHandle &layers,
                                           const QPDFObjectHandle &configuration,
                                           ObjectCopier &copier) {
    if (!entry(configuration, "/BaseState").isNameAndEquals("/OFF")) {
        return copies(copier, entry(configuration, "/OFF"));
    }
    std::set<QPDFObjGen> shown;
    for (const auto &group : items(entry(configuration, "/ON"))) {
        shown.insert(group.getObjGen());
    }
    std::vector<QPDFObjectHandle> hidden;
    for (const auto &group : items(entry(layers, "/OCGs"))) {
        if (!shown.contains(group.getObjGen())) {
            hidden.push_back(copier.copy(group));
        }
    }
    return hidden;
}

ImportedLayers importLayers(QPDF &source, ObjectCopier &copier) {
    const auto layers = source.getRoot().getKey("/OCProperties");
    const auto configuration = entry(layers, "/D");
    ImportedLayers imported;
    imported.groups = copies(copier, entry(layers, "/OCGs"));
    imported.off = hiddenLayers(layers, configuration, copier);
    imported.locked = copies(copier, entry(configuration, "/Locked"));
    imported.order = copies(copier, entry(configuration, "/Order"));
    imported.radioGroups = copies(copier, entry(configuration, "/RBGroups"));
    imported.automaticStates = copies(copier, entry(configuration, "/AS"));
    return imported;
}

/// Page labels by page index. Pages before the first label have none.
std::map<long long, QPDFObjectHandle> importPageLabels(QPDF &source, long long pages,
                                                       ObjectCopier &copier) {
    std::map<long long, QPDFObjectHandle> labels;
    const auto tree = source.getRoot().getKey("/PageLabels");
    for (auto &[index, label] : readTreeEntries(tree, "/Nums")) {
        const auto page = index.isInteger() ? index.getIntValue() : -1;
        if (page >= 0 && page < pages && label.isDictionary()) {
            labels.emplace(page, copier.copy(label));
        }
    }
    if (!labels.empty()) {
        labels.emplace(0, QPDFObjectHandle::newNull());
    }
    return labels;
}

Warning signaturesRemoved(int count) {
    return {WarningCode::SignatureRemoved,
            count == 1
                ? u"1 signature is left out, since it holds for the original file alone"_s
                : u"%1 signatures are left out, since they hold for the original file alone"_s.arg(
                      count)};
}

} // namespace

ImportedDocument importDocument(QPDF &source, QPDF &target, SharedStreams &shared) {
    shared.beginCopy(source);
    ObjectCopier copier(source, target, shared);
    ImportedDocument imported;
    imported.warnings = namePartsLeft(source);
    const SourcePages found = readSourcePages(source);
    ContentCheck contents(source, found.pages);
    imported.pages = copier.copyPages(found.pages);
    imported.bookmarks = importBookmarks(source, copier);
    imported.form = importForm(source, copier);
    imported.layers = importLayers(source, copier);
    const auto pages = static_cast<long long>(imported.pages.size());
    imported.pageLabels = importPageLabels(source, pages, copier);
    copier.run();
    if (copier.signaturesLeftOut() > 0) {
        imported.warnings.push_back(signaturesRemoved(copier.signaturesLeftOut()));
    }
    imported.longestStream = copier.longestStream();
    for (auto *objects : {&imported.bookmarks, &imported.form.fields, &imported.layers.groups,
                          &imported.layers.off}) {
        keepOnlyEntries(*objects);
    }
    keepFormDefaults(source, imported.form, copier);
    imported.pdfVersion = source.getPDFVersion();
    if (imported.pages.empty()) {
        imported.warnings.push_back({WarningCode::PdfWithoutPages, u"The document has no pages"_s});
    }
    for (const Warnings &damage :
         {missingPages(found), damagedPages(contents.damagedPages()), repairs(source)}) {
        std::ranges::copy(damage, std::back_inserter(imported.warnings));
    }
    return imported;
}

} // namespace folioforge
