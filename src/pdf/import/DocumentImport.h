// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "pdf/DocumentParts.h"
#include "pdf/import/Attachments.h"
#include "pdf/import/Bookmarks.h"
#include "pdf/import/CatalogParts.h"
#include "pdf/import/Destinations.h"
#include "pdf/import/Entries.h"
#include "pdf/import/FormImport.h"
#include "pdf/import/ImportOptions.h"
#include "pdf/import/Layers.h"
#include "pdf/import/Metadata.h"
#include "pdf/import/NameTrees.h"
#include "pdf/import/OutputIntents.h"
#include "pdf/import/PageLabels.h"
#include "pdf/import/SharedStreams.h"
#include "pdf/import/SourceNames.h"
#include "pdf/import/StructureImport.h"
#include "pdf/import/Threads.h"

#include <qpdf/PDFVersion.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <QtGlobal>

#include <vector>

class QPDF;

namespace folioforge {

/// What one source document brings, copied into the target but not yet in its catalog.
struct ImportedDocument {
    ImportScope scope = ImportScope::OneOfSeveral;
    std::vector<QPDFObjectHandle> pages;
    ImportedStructure structure;
    ImportedBookmarks bookmarks;
    ImportedPageLabels pageLabels;
    ImportedForm form;
    ImportedLayers layers;
    ImportedCatalogParts catalogParts;
    ImportedOutputIntents outputIntents;
    Destinations destinations;
    ImportedNameTrees nameTrees;
    NamedObjects furtherNames;
    Dictionary furtherInfo;
    ImportedAttachments attachments;
    ImportedThreads threads;
    GivenNames names;
    ImportedMetadata metadata;
    PDFVersion version;
    DocumentParts parts;
    Warnings warnings; ///< What of the document is not copied.
};

/// Copies the pages of `source` into `target` with all that belongs to them, but puts nothing into
/// its catalog. `shared` holds the streams that earlier imports of the same file brought; new ones
/// are added. `names` tells names apart from those of earlier imports. Throws what libqpdf throws.
ImportedDocument importDocument(QPDF &source, QPDF &target, SharedStreams &shared,
                                SourceNames &names, const ImportOptions &options);

} // namespace folioforge
