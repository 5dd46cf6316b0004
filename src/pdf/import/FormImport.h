// SPDX-License-Identifier: Apache-2.0

#pragma once

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
    bool needsAppearances = false;
};

ImportedForm importForm(QPDF &source, ObjectCopier &copier);

} // namespace folioforge
