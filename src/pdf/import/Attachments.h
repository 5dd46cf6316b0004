// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/Entries.h"
#include "pdf/import/ImportOptions.h"
#include "pdf/import/TreeEntries.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <cstddef>
#include <vector>

class QPDF;

namespace folioforge {

class ObjectCopier;
class SourceNames;

/// What a source has of files beside those of its name tree, copied.
struct ImportedAttachments {
    std::vector<QPDFObjectHandle> associated; ///< /AF of the catalog (ISO 32000-2, 14.13).
    std::vector<QPDFObjectHandle> ofParts;    ///< Those of pages, annotations, elements...
    /// /Collection; null where there is none or the document becomes a part of another.
    QPDFObjectHandle portfolio = QPDFObjectHandle::newNull();
};

/// Whether a page, an annotation or another part of a document has files of its own.
bool hasFiles(const Dictionary &part);
/// The files of `parts`, copied. To be called when they are filled.
std::vector<QPDFObjectHandle> filesOf(const std::vector<QPDFObjectHandle> &parts);

ImportedAttachments importAttachments(QPDF &source, ObjectCopier &copier, ImportScope scope);

/// How many files are embedded, of `tree`, the copied name tree, and of `attachments`. To be called
/// when the copies are filled.
std::size_t countFiles(const TreeEntries &tree, const ImportedAttachments &attachments);

/// Tells the names apart under which the attached files are saved. As countFiles().
void tellFilesApart(const TreeEntries &tree, const ImportedAttachments &attachments,
                    SourceNames &names);

/// The files that belong to the document that is made: those of its sources, in their order.
class AttachmentMerger {
  public:
    void add(const ImportedAttachments &imported);
    void finish(QPDF &document) const;

  private:
    ImportedAttachments m_attachments;
};

} // namespace folioforge
