// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "pdf/import/ObjectCopier.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QtGlobal>

#include <map>
#include <string>
#include <vector>

class QPDF;

namespace folioforge {

/// The interactive form of a source document, copied.
struct ImportedForm {
    std::vector<QPDFObjectHandle> fields;           ///< The roots of the field tree.
    std::vector<QPDFObjectHandle> calculationOrder; ///< Fields in the order of their calculation.
    QPDFObjectHandle resources;                     ///< Default resources; null where none.
    bool needsAppearances = false;
};

/// The optional content (layers) of a source document, copied.
struct ImportedLayers {
    std::vector<QPDFObjectHandle> groups;          ///< /OCGs
    std::vector<QPDFObjectHandle> off;             ///< /OFF: hidden when the document opens.
    std::vector<QPDFObjectHandle> locked;          ///< /Locked
    std::vector<QPDFObjectHandle> order;           ///< /Order
    std::vector<QPDFObjectHandle> radioGroups;     ///< /RBGroups
    std::vector<QPDFObjectHandle> automaticStates; ///< /AS
};

/// What one source document brings, copied into the target but not yet in its catalog.
struct ImportedDocument {
    std::vector<QPDFObjectHandle> pages;
    std::vector<QPDFObjectHandle> bookmarks; ///< The items of the first level.
    /// Page labels by the index of their first page in the source; null for pages without one.
    std::map<long long, QPDFObjectHandle> pageLabels;
    ImportedForm form;
    ImportedLayers layers;
    std::string pdfVersion;
    qsizetype longestStream = 0; ///< Bytes, as the source says.
    Warnings warnings;           ///< What of the document is not copied.
};

/// Copies the pages of `source` into `target` with all that belongs to them, but puts nothing into
/// its catalog. `shared` holds the streams that earlier imports of the same file brought; new ones
/// are added. Throws what libqpdf throws.
ImportedDocument importDocument(QPDF &source, QPDF &target, SharedStreams &shared);

} // namespace folioforge
