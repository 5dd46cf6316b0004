// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/tags/DrawnTags.h"
#include "pdf/writing/DocumentWriter.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <span>
#include <string>
#include <vector>

namespace folioforge {

/// The element of a source, in a document whose first page from it is at `firstPage`, from 0.
struct DrawnDocument {
    int firstPage = 0;
    QPDFObjectHandle element;
};

/// The structure of pages that were drawn, as far as it is made of objects of the library: each
/// stands for one that is written in its place.
struct DrawnStructure {
    QPDFObjectHandle root; ///< Of the structure tree.
    std::vector<DrawnDocument> documents;
    QPDFObjectHandle parents; ///< A node of the parent tree.
    long long keys = 0;       ///< Those of the node are the ones below.
    std::string language;     ///< A language tag (BCP 47).
};

/// Makes those objects in `document`.
DrawnStructure makeStructure(QPDF &document, const DrawnTags &tags, const std::string &language);

/// Writes the elements of pages that were drawn (ISO 32000-1, 14.7): one for each source, with its
/// paragraphs and pictures. `pages` are all of the document.
void writeElements(const DrawnTags &tags, const DrawnStructure &structure,
                   std::span<const QPDFObjectHandle> pages, const NumberOf &numberOf,
                   ObjectStreams &streams);

} // namespace folioforge
