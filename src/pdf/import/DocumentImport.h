#pragma once

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
    bool hasSignatures = false;
};

/// The optional content (layers) of a source document, copied.
struct ImportedLayers {
    std::vector<QPDFObjectHandle> groups;
    std::vector<QPDFObjectHandle> off;
    std::vector<QPDFObjectHandle> locked;
    std::vector<QPDFObjectHandle> order;
    std::vector<QPDFObjectHandle> radioGroups;
    std::vector<QPDFObjectHandle> automaticStates;
};

/// All that one source document brings, copied into the target but not yet part of it.
struct ImportedDocument {
    std::vector<QPDFObjectHandle> pages;
    std::vector<QPDFObjectHandle> bookmarks; ///< The items of the first level.
    /// Page labels by the index of their first page, counted from this document's first; null for
    /// pages without one.
    std::map<long long, QPDFObjectHandle> pageLabels;
    ImportedForm form;
    ImportedLayers layers;
    std::string pdfVersion;
    qsizetype longestStream = 0; ///< Bytes, as the document says.
};

/// Copies the pages of `source` into `target` with all that belongs to them. Nothing of it is part
/// of the target document yet. `known` holds the streams that the same file brought before.
ImportedDocument importDocument(QPDF &source, QPDF &target, ObjectCopier::Streams &known);

} // namespace folioforge
