// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/FormImport.h"

#include "pdf/import/Entries.h"
#include "pdf/import/FieldTree.h"
#include "pdf/import/ObjectCopier.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <vector>

namespace folioforge {

namespace {

/// The fields that the form of `source` lists.
std::vector<QPDFObjectHandle> listedFields(QPDF &source) {
    auto fields = items(entry(source.getRoot().getKey("/AcroForm"), "/Fields"));
    std::erase_if(fields, [](QPDFObjectHandle field) { return !field.isDictionary(); });
    return fields;
}

/// Whether the bit that tells of signature fields, the first of /SigFlags, is set.
bool saysSignatures(QPDFObjectHandle flags) {
    return flags.isInteger() && flags.getIntValue() % 2 != 0;
}

bool isOnePageWithoutWidgets(QPDF &source) {
    const auto found = readSourcePages(source).pages;
    return found.size() == 1 &&
           std::ranges::none_of(items(entry(found.front().page, "/Annots")), [](const auto &shown) {
               return entry(shown, "/Subtype").isNameAndEquals("/Widget");
           });
}

} // namespace

ImportedForm importForm(QPDF &source, const std::vector<SourcePage> &pages, ObjectCopier &copier) {
    const auto form = source.getRoot().getKey("/AcroForm");
    ImportedForm imported;
    const auto listed = listedFields(source);
    for (const auto &fields : {listed, unlistedFields(pages, listed)}) {
        for (const auto &field : fields) {
            imported.fields.push_back(copier.copy(field));
        }
    }
    imported.calculationOrder = copier.copyItems(entry(form, "/CO"));
    imported.resources = copier.copy(entry(form, "/DR"));
    imported.defaultAppearance = copier.copy(entry(form, "/DA"));
    imported.alignment = copier.copy(entry(form, "/Q"));
    imported.needsAppearances = isTrue(entry(form, "/NeedAppearances"));
    imported.hasSignatureFields = saysSignatures(entry(form, "/SigFlags"));
    return imported;
}

bool isDynamicForm(QPDF &source) {
    const auto catalog = source.getRoot();
    auto xfa = entry(entry(catalog, "/AcroForm"), "/XFA");
    const bool isThere = xfa.isStream() || !items(xfa).empty();
    return isThere && (isTrue(entry(catalog, "/NeedsRendering")) ||
                       (listedFields(source).empty() && isOnePageWithoutWidgets(source)));
}

} // namespace folioforge
