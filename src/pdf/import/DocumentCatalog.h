// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/import/DocumentImport.h"
#include "pdf/import/FormMerger.h"
#include "pdf/import/Language.h"
#include "pdf/import/SourceNames.h"
#include "pdf/import/StructureMerger.h"
#include "pdf/writing/DocumentWriter.h"

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

class QPDF;

namespace folioforge {

/// The catalog of the document that is being made, collected page by page and source by source.
/// What belongs to a source as a whole is merged by topic, each in a file of its own.
class DocumentCatalog {
  public:
    void addPage(const QPDFObjectHandle &page);
    /// Keeps the document for finish(). Gives its warnings and what of it is changed because of the
    /// ones before it. Where this throws, truncatePages() leaves the catalog as it was.
    Warnings addDocument(ImportedDocument imported);

    /// A bookmark called `title` that leads to the page at `page`, from 0; those of a document that
    /// begins there stand under it. To be called in the order of the pages.
    void addBookmark(const QString &title, int page) { m_bookmarks.addPage(title, page); }

    /// Removes the pages after the first `count`, and the documents that brought them. Names that
    /// they have taken stay taken.
    void truncatePages(int count);

    [[nodiscard]] std::span<const QPDFObjectHandle> pages() const { return m_pages; }
    [[nodiscard]] int pageCount() const { return static_cast<int>(m_pages.size()); }
    /// In which form the document is to be written; known when it is finished.
    [[nodiscard]] DocumentForm form() const;

    /// Attaches a file specification to the document, which goes with the page at `page`, from 0.
    void addFile(const QPDFObjectHandle &file, int page) { m_files.push_back({page, file}); }
    /// Lets the document say that it keeps the standard for archives of `claims`, with
    /// `outputIntent` where no source has one. To be called before finish().
    void claimArchive(Claims claims, const QPDFObjectHandle &outputIntent);
    /// What the first output intent of a source says of the colours; none without one.
    [[nodiscard]] const ImportedOutputIntents *outputIntents() const;

    /// The names that the documents added so far have taken.
    [[nodiscard]] const TakenNames &names() const { return m_names; }

    /// The document says that it keeps PDF/UA-1, and that its language is this one where its
    /// sources do not agree on another.
    void claimAccessible(const std::string &language);

    /// Writes the page tree and every topic, with `info`, which is written already, in the
    /// metadata. A null `drawn` means that pages which were drawn are not tagged. Call it once.
    void finish(QPDF &document, const DocumentInfo &info, const DrawnStructure *drawn = nullptr);
    /// What sources brought that could not be for the whole document; known when it is finished.
    [[nodiscard]] std::vector<PartKind> leftInTheEnd() const;

  private:
    struct Added {
        int firstPage;
        ImportedDocument document;
    };

    struct AttachedFile {
        int page;
        QPDFObjectHandle file;
    };

    void keepAccessible(QPDF &document);
    void merge(const ImportedDocument &imported, int firstPage, QPDF &document);
    void attachFiles();

    std::vector<QPDFObjectHandle> m_pages;
    std::vector<AttachedFile> m_files;
    std::vector<Added> m_documents; ///< Merged in the end, so that one that fails leaves nothing.
    StructureMerger m_structure;
    BookmarkMerger m_bookmarks;
    PageLabelMerger m_pageLabels;
    FormMerger m_forms;
    LayerMerger m_layers;
    DestinationMerger m_destinations;
    NameTreeMerger m_nameTrees;
    AttachmentMerger m_attachments;
    ThreadMerger m_threads;
    TakenNames m_names;
    LanguageMerger m_language;
    ImportedCatalogParts m_parts;
    Dictionary m_furtherInfo;
    OutputIntentMerger m_outputIntents;
    std::size_t m_importedPages = 0;
    ImportedMetadata m_metadata;
    std::optional<Claims> m_archive;         ///< That the document is to make.
    std::optional<std::string> m_accessible; ///< The language of a document that keeps PDF/UA.
    PDFVersion m_version;                    ///< The highest of the sources.
};

} // namespace folioforge
