// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/FormImport.h"

#include "pdf/import/Entries.h"
#include "pdf/import/ObjectCopier.h"

#include <qpdf/QPDF.hh>

namespace folioforge {

namespace {

bool isTrue(QPDFObjectHandle object) {
    return object.isBool() && object.getBoolValue();
}

} // namespace

ImportedForm importForm(QPDF &source, ObjectCopier &copier) {
    const auto form = source.getRoot().getKey("/AcroForm");
    ImportedForm imported;
    for (auto field : items(entry(form, "/Fields"))) {
        if (field.isIndirect() && field.isDictionary()) {
            imported.fields.push_back(copier.copy(field));
        }
    }
    imported.calculationOrder = copier.copyItems(entry(form, "/CO"));
    imported.resources = copier.copy(entry(form, "/DR"));
    imported.defaultAppearance = copier.copy(entry(form, "/DA"));
    imported.alignment = copier.copy(entry(form, "/Q"));
    imported.needsAppearances = isTrue(entry(form, "/NeedAppearances"));
    return imported;
}

} // namespace folioforge
