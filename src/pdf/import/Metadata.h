// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "pdf/DocumentParts.h"
#include "pdf/XmpPacket.h"
#include "pdf/import/ImportOptions.h"

#include <QString>

#include <optional>
#include <vector>

class QPDF;

namespace folioforge {

/// The metadata of a source: its XMP packet and what that claims.
struct ImportedMetadata {
    QString packet;        ///< Well formed; empty where there is none or it does not stay.
    Claims claims;         ///< Those that the document that is made keeps.
    bool isLeft = false;   ///< There is a packet that says something and does not stay.
    QString notForArchive; ///< Why the standard for archives is not kept; empty where it is.
};

/// Reads the metadata, which stays where the source is all of the document. To be called before
/// pages are copied.
ImportedMetadata readMetadata(QPDF &source, ImportScope scope);

/// Takes away the claims that the document that is made does not keep, and names them; what the
/// options ask to be kept is held against the claim instead. `parts` and `warnings` are what is
/// known of the copy.
Warnings dropBrokenClaims(ImportedMetadata &metadata, const ImportOptions &options,
                          const DocumentParts &parts, const Warnings &warnings);

/// Brings the packet into line with `info` and the claims and writes it into the catalog.
void putMetadata(QPDF &document, const ImportedMetadata &metadata, const DocumentInfo &info);

} // namespace folioforge
