// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/DocumentImport.h"

#include "pdf/import/CarriedParts.h"
#include "pdf/import/ContentCheck.h"
#include "pdf/import/ObjectCopier.h"
#include "pdf/import/SourceDamage.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace folioforge {

namespace {

Warning signaturesRemoved(int count) {
    return {WarningCode::SignatureRemoved,
            count == 1
                ? u"1 signature is left out, since it holds for the original file alone"_s
                : u"%1 signatures are left out, since they hold for the original file alone"_s.arg(
                      count)};
}

} // namespace

ImportedDocument importDocument(QPDF &source, QPDF &target, SharedStreams &shared,
                                ImportScope scope) {
    shared.beginCopy(source);
    ObjectCopier copier(source, target, shared);
    ImportedDocument imported;
    imported.parts.left = countLeft(source, scope);
    imported.warnings = namePartsLeft(imported.parts.left);
    const SourcePages found = readSourcePages(source);
    ContentCheck contents(source, found.pages);
    imported.pages = copier.copyPages(found.pages);
    imported.bookmarks = importBookmarks(source, copier);
    imported.pageLabels = importPageLabels(source, imported.pages.size(), copier);
    imported.form = importForm(source, found.pages, copier);
    imported.layers = importLayers(source, copier);
    imported.catalogParts = importCatalogParts(source, copier, scope);
    copier.run();
    imported.form.actions = copier.fieldActions();
    if (copier.signaturesLeftOut() > 0) {
        addParts(imported.parts.left, PartKind::Signatures,
                 static_cast<std::size_t>(copier.signaturesLeftOut()));
        imported.warnings.push_back(signaturesRemoved(copier.signaturesLeftOut()));
    }
    imported.parts.carried = countCarried(imported);
    imported.longestStream = copier.longestStream();
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
