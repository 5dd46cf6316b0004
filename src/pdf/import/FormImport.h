// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/PageTree.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <vector>

class QPDF;

namespace folioforge {

class ObjectCopier;

/// The interactive form of a source document (ISO 32000-1, 12.7), copied.
struct ImportedForm {
    std::vector<QPDFObjectHandle> fields;           ///< The roots of the field tree.
    std::vector<QPDFObjectHandle> calculationOrder; ///< Fields in the order of their calculation.
    QPDFObjectHandle resources;                     ///< Default resources; null where none.
    QPDFObjectHandle defaultAppearance;             ///< /DA of the whole form; null where none.
    QPDFObjectHandle alignment;                     ///< /Q of the whole form; null where none.
    std::vector<QPDFObjectHandle> actions;          ///< They may name fields by their text.
    bool needsAppearances = false;
    bool hasSignatureFields = false;
};

/// Fields of widgets on `pages` that the form does not list are listed in the copy.
ImportedForm importForm(QPDF &source, const std::vector<SourcePage> &pages, ObjectCopier &copier);

/// Whether the pages of `source` are made by a program that fills forms in (dynamic XFA). What
/// stands in the file is a page that asks for such a program; a form that was drawn has more.
bool isDynamicForm(QPDF &source);

} // namespace folioforge
