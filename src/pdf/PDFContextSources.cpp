// SPDX-License-Identifier: Apache-2.0

#include "pdf/PDFContextImpl.h"

#include "error/Reasons.h"
#include "pdf/DocumentInfo.h"
#include "pdf/QpdfErrors.h"
#include "pdf/archive/SourceAttachment.h"
#include "pdf/import/DocumentImport.h"
#include "pdf/import/SourceDocument.h"

#include <algorithm>
#include <utility>

namespace folioforge {

namespace {

Warning protectionLeft(bool hasOther) {
    return {WarningCode::ProtectionLeft,
            hasOther ? Reasons::tr("The document is protected, and the PDF made of it has the "
                                   "protection that was asked for instead")
                     : Reasons::tr("The document is protected, and the PDF made of it is not")};
}

Warning tagsUnchecked() {
    return {WarningCode::TagsUnchecked,
            Reasons::tr("Whether its tags are what PDF/UA asks for is not looked at")};
}

void leaveBookmarks(ImportedDocument &imported) {
    imported.bookmarks.clear();
    const auto bookmarks = imported.parts.carried.extract(PartKind::Bookmarks);
    addParts(imported.parts.left, PartKind::Bookmarks, bookmarks ? bookmarks.mapped() : 0);
}

} // namespace

/// Lets a source in only where the standards that the document keeps allow it. Throws Error.
void PDFContext::Impl::keepStandards(ImportedDocument &imported, bool isEncrypted) {
    if (m_archive) {
        m_archive->keepSource(imported, isEncrypted, m_catalog.outputIntents(), pageCount());
    }
    if (isAccessible() && (!imported.structure.marked || imported.structure.kids.empty())) {
        throw Error(Reasons::tr("It has no structure tags, which PDF/UA asks for"));
    }
}

void PDFContext::Impl::attachSource(const SourceOriginal &source, const Mark &mark) {
    m_catalog.addFile(
        m_document.makeIndirectObject(sourceAttachment(source, m_streams, m_settings.calls)),
        mark.pages);
}

void PDFContext::Impl::attachData(const QString &name, const QByteArray &type,
                                  const QByteArray &data) {
    m_catalog.addFile(m_document.makeIndirectObject(dataAttachment(name, type, data, m_streams)),
                      0);
}

AddedDocument PDFContext::Impl::addDocument(const QString &sourcePath, const PageChoice &choice) {
    return translateQpdfErrors([&] {
        m_reader->beginAnew(); // A source that failed may have left its file open.
        const FileVersion file = FileVersion::of(sourcePath);
        const std::string key = file.key();
        std::unique_ptr<QPDF> source;
        if (choice.range.isEmpty()) {
            source = m_sourcesAhead.take(file, m_reader);
        }
        if (!source) {
            source = openSourceDocument(file, m_reader, m_settings.inputPasswords);
        }
        // A copy, so that an import that fails leaves no stream to the next one.
        SharedStreams &known = m_sourceStreams[key];
        SharedStreams streams = known;
        SourceNames names(m_catalog.names(), sourcePath);
        ImportOptions options{m_settings.oneSource ? ImportScope::WholeDocument
                                                   : ImportScope::OneOfSeveral,
                              m_settings.info,
                              m_settings.encryption != nullptr,
                              choice,
                              pageCount(),
                              m_archive ? std::optional(m_archive->level()) : std::nullopt};
        ImportedDocument imported = withAllObjects(*source, *m_reader, [&] {
            if (m_settings.keepInfo) {
                takeMissingInfo(options.info, *source);
            }
            return importDocument(*source, m_document, streams, names, options);
        });
        m_reader->finish();
        keepStandards(imported, source->isEncrypted());
        if (!m_settings.sourceBookmarks) {
            leaveBookmarks(imported);
        }
        AddedDocument added{static_cast<int>(imported.pages.size()), {}, imported.parts};
        added.warnings = m_catalog.addDocument(std::move(imported));
        if (isAccessible()) {
            added.warnings.push_back(tagsUnchecked());
        }
        if (source->isEncrypted()) {
            added.warnings.push_back(protectionLeft(m_settings.encryption != nullptr));
        }
        // From here on nothing fails, so that all of the document is added or nothing.
        known = std::move(streams);
        if (added.pages > 0) {
            m_settings.info = options.info;
            m_settings.keepInfo = false;
        }
        m_sourcesAhead.free(std::move(source));
        return added;
    });
}

} // namespace folioforge
