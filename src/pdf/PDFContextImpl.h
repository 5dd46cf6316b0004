// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/PDFContext.h"

#include "files/SourceReader.h"
#include "pdf/PageDrawer.h"
#include "pdf/PageSizes.h"
#include "pdf/StreamData.h"
#include "pdf/archive/ArchiveRules.h"
#include "pdf/import/DocumentCatalog.h"
#include "pdf/import/SharedStreams.h"
#include "pdf/import/SourcesAhead.h"
#include "pdf/tags/DrawnTags.h"
#include "pdf/tags/StructureElements.h"

#include <qpdf/QPDF.hh>

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace folioforge {

/// What a context holds, defined by topic: PDFContext.cpp draws pages, PDFContextSources.cpp adds
/// source documents, PDFContextClose.cpp finishes and writes the document.
class PDFContext::Impl {
  public:
    Impl(QString path, Settings settings);

    void beginPage(const QRectF &mediaBox);
    using Look = std::function<void(const PdfImage &)>;
    void drawImage(const QRectF &rect, PdfImage image, int orientation, const QString &description,
                   const Look &look);
    void endPage() { m_catalog.addPage(m_pages.endPage(pageCount())); }
    void drawArtifact(int page, const std::function<void()> &draw);
    QDateTime creationDate();
    AddedDocument addDocument(const QString &sourcePath, const PageChoice &choice);
    CloseResult close(const std::function<QString()> &nextPath, const Inspection &inspect);
    void addBookmark(const QString &title, int page) { m_catalog.addBookmark(title, page); }
    void waitForPages() { m_streams.waitForPages(); }
    [[nodiscard]] Mark mark() const { return {pageCount(), m_streams.stored()}; }
    void rollBack(const Mark &mark);
    PageDrawer &pages() { return m_pages; }
    DrawnTags *tags() { return m_settings.tags ? &m_tags : nullptr; }
    [[nodiscard]] int pageCount() const { return m_catalog.pageCount(); }
    [[nodiscard]] QSizeF pageSize(int index) const {
        return sizeOfPage(m_catalog.pages()[static_cast<std::size_t>(index)]);
    }
    void attachSource(const SourceOriginal &source, const Mark &mark);
    void attachData(const QString &name, const QByteArray &type, const QByteArray &data);
    [[nodiscard]] Warnings checkPagesAfter(int count);

  private:
    [[nodiscard]] bool isAccessible() const {
        return m_settings.tags && m_settings.tags->accessible;
    }
    void keepStandards(ImportedDocument &imported, bool isEncrypted);
    void finishDocument();
    CloseResult publish(OutputFile &file, const std::function<QString()> &nextPath);

    QString m_path;
    Settings m_settings;
    QPDF m_document;
    std::shared_ptr<SourceReader> m_reader = std::make_shared<SourceReader>(m_settings.calls);
    StreamData m_streams{m_document, m_reader, m_settings.calls};
    DocumentCatalog m_catalog;
    std::optional<ArchiveRules> m_archive; ///< Where a standard is kept.
    DrawnTags m_tags;
    std::optional<DrawnStructure> m_drawn; ///< Nothing where no page that was drawn is tagged.
    PageDrawer m_pages{m_document, m_streams, tags()};
    std::map<std::string, SharedStreams> m_sourceStreams; ///< By source file.
    SourcesAhead m_sourcesAhead{m_settings.sources, m_settings.inputPasswords, m_settings.calls};
};

} // namespace folioforge
