// SPDX-License-Identifier: Apache-2.0

#include "pdf/PDFContext.h"

#include "error/Reasons.h"
#include "files/OutputFile.h"
#include "pdf/DocumentInfo.h"
#include "pdf/DocumentWriter.h"
#include "pdf/PageDrawer.h"
#include "pdf/PageSizes.h"
#include "pdf/QpdfErrors.h"
#include "pdf/StreamData.h"
#include "pdf/archive/ArchiveRules.h"
#include "pdf/archive/SourceAttachment.h"
#include "pdf/import/DocumentCatalog.h"
#include "pdf/import/DocumentImport.h"
#include "pdf/import/SourceDocument.h"
#include "pdf/tags/DrawnTags.h"
#include "pdf/tags/StructureElements.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace folioforge {

namespace {

Warning protectionLeft(bool hasOther) {
    return {WarningCode::ProtectionLeft,
            hasOther ? Reasons::tr("The document is protected, and the PDF made of it has the "
                                   "protection that was asked for instead")
                     : Reasons::tr("The document is protected, and the PDF made of it is not")};
}

} // namespace

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
    [[nodiscard]] Warnings checkPagesAfter(int count);

  private:
    [[nodiscard]] bool isAccessible() const {
        return m_settings.tags && m_settings.tags->accessible;
    }
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
    qsizetype m_longestStream = 0; ///< Bytes, of those that the library copies by itself.
};

PDFContext::Impl::Impl(QString path, Settings settings)
    : m_path(std::move(path))
    , m_settings(std::move(settings)) {
    makeEmpty(m_document);
    if (m_settings.archive) {
        m_archive.emplace(*m_settings.archive);
    }
}

void PDFContext::Impl::beginPage(const QRectF &mediaBox) {
    if (m_archive) {
        m_archive->keepPage(mediaBox.size(), pageCount());
    }
    m_pages.beginPage(mediaBox);
}

void PDFContext::Impl::drawImage(const QRectF &rect, PdfImage image, int orientation,
                                 const QString &description, const Look &look) {
    if (m_archive) {
        m_archive->keepPicture(image, pageCount());
    }
    if (look) {
        look(image);
    }
    m_pages.drawImage(rect, image, orientation, description);
}

void PDFContext::Impl::attachSource(const SourceOriginal &source, const Mark &mark) {
    m_catalog.addFile(
        m_document.makeIndirectObject(sourceAttachment(source, m_streams, m_settings.calls)),
        mark.pages);
}

Warnings PDFContext::Impl::checkPagesAfter(int count) {
    Warnings warnings = checkPageSizes(m_catalog.pages().subspan(static_cast<std::size_t>(count)));
    if (m_archive) {
        std::ranges::move(m_archive->takeWarnings(), std::back_inserter(warnings));
    }
    return warnings;
}

void PDFContext::Impl::drawArtifact(int page, const std::function<void()> &draw) {
    const QPDFObjectHandle object = m_catalog.pages()[static_cast<std::size_t>(page)];
    m_pages.beginArtifact(object);
    draw();
    m_pages.endArtifact(object);
}

AddedDocument PDFContext::Impl::addDocument(const QString &sourcePath, const PageChoice &choice) {
    return translateQpdfErrors([&] {
        m_reader->beginAnew(); // A source that failed may have left its file open.
        const FileVersion file = FileVersion::of(sourcePath);
        const std::string key = file.key();
        const auto source = openSourceDocument(file, m_reader, m_settings.inputPasswords);
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
        if (m_archive) {
            m_archive->keepSource(imported, source->isEncrypted(), m_catalog.outputIntents(),
                                  pageCount());
        }
        if (isAccessible() && (!imported.structure.marked || imported.structure.kids.empty())) {
            throw Error(Reasons::tr("It has no structure tags, which PDF/UA asks for"));
        }
        if (!m_settings.sourceBookmarks) {
            imported.bookmarks.clear();
            const auto bookmarks = imported.parts.carried.extract(PartKind::Bookmarks);
            addParts(imported.parts.left, PartKind::Bookmarks, bookmarks ? bookmarks.mapped() : 0);
        }
        AddedDocument added{static_cast<int>(imported.pages.size()), {}, imported.parts};
        const qsizetype longest = std::min<qsizetype>(imported.longestStream, file.size);
        added.warnings = m_catalog.addDocument(std::move(imported));
        if (isAccessible()) {
            added.warnings.push_back(
                {WarningCode::TagsUnchecked,
                 Reasons::tr("Whether its tags are what PDF/UA asks for is not looked at")});
        }
        if (source->isEncrypted()) {
            added.warnings.push_back(protectionLeft(m_settings.encryption != nullptr));
        }
        // From here on nothing fails, so that all of the document is added or nothing.
        m_longestStream = std::max(m_longestStream, longest);
        known = std::move(streams);
        if (added.pages > 0) {
            m_settings.info = options.info;
            m_settings.keepInfo = false;
        }
        return added;
    });
}

void PDFContext::Impl::rollBack(const Mark &mark) {
    m_catalog.truncatePages(mark.pages);
    m_tags.truncatePages(mark.pages);
    if (m_archive) {
        m_archive->rollBack(mark.pages);
    }
    if (m_streams.rollBack(mark.stored)) {
        m_pages.forgetImages();
    }
}

QDateTime PDFContext::Impl::creationDate() {
    fixCreationDate(m_settings.info);
    return m_settings.info.created;
}

void PDFContext::Impl::finishDocument() {
    translateQpdfErrors([&] {
        if (m_archive && m_settings.encryption) {
            throw Error(Reasons::tr("A document for archives cannot be encrypted"));
        }
        FontRules fonts = m_archive ? m_archive->fontRules() : FontRules();
        fonts.allUnicode = fonts.allUnicode || isAccessible();
        m_pages.embedFonts(fonts);
        fixCreationDate(m_settings.info);
        const QString title = m_settings.tags ? m_settings.tags->title : QString();
        if (m_settings.info.title.isEmpty()) {
            m_settings.info.title = title;
        }
        if (m_archive && m_archive->areKept()) {
            m_archive->keepInfo(m_settings.info);
            m_catalog.claimArchive(claimsOf(m_archive->level()), srgbOutputIntent(m_streams));
        }
        writeDocumentInfo(m_document, m_settings.info);
        if (!m_tags.pages().empty()) {
            m_drawn = makeStructure(m_document, m_tags, m_settings.tags->language.toStdString());
        }
        if (isAccessible()) {
            m_catalog.claimAccessible(m_settings.tags->language.toStdString());
        }
        m_catalog.finish(m_document, m_settings.info, m_drawn ? &*m_drawn : nullptr);
        if (!title.isEmpty()) {
            showTitle(m_document);
        }
    });
}

CloseResult PDFContext::Impl::publish(OutputFile &file, const std::function<QString()> &nextPath) {
    // Each attempt fails only when another program has just taken the name.
    constexpr int kAttempts = 1000;
    QString path = m_path;
    if (m_settings.mayReplace) {
        file.replace(path, m_settings.flush);
        return {CloseResult::Status::Written, path, {}, {}};
    }
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (file.publish(path, m_settings.flush) == OutputFile::Published::Yes) {
            return {CloseResult::Status::Written, path, {}, {}};
        }
        if (!nextPath) {
            break;
        }
        path = nextPath();
    }
    return {CloseResult::Status::NameTaken, path, {}, {}};
}

CloseResult PDFContext::Impl::close(const std::function<QString()> &nextPath,
                                    const Inspection &inspect) {
    try {
        waitForPages();
        finishDocument();
        // From now on each source is read only if it is still the file that was examined.
        m_reader->beginAnew();
        OutputFile file(m_path, m_settings.calls);
        translateQpdfErrors([&] { requireRoomForStream(m_longestStream); });
        FurtherObjects elements;
        if (m_drawn) {
            elements = [this](const ObjectNumbers &numberOf, ObjectStreams &streams) {
                writeElements(m_tags, *m_drawn, m_catalog.pages(), numberOf, streams);
            };
        }
        const std::uint32_t checksum = writeDocument(m_document, file, m_settings.encryption.get(),
                                                     m_catalog.form(), elements);
        m_reader->finish();
        translateQpdfErrors([&] { requireAllObjects(m_document, *m_reader); });
        Warnings warnings = file.finish(m_settings.flush);
        if (inspect) {
            inspect(file, checksum);
        }
        CloseResult result = publish(file, nextPath);
        result.warnings = std::move(warnings);
        result.left = m_catalog.leftInTheEnd();
        if (m_archive && m_archive->areKept()) {
            result.archive = claimsOf(m_archive->level()).pdfAName();
        }
        return result;
    } catch (const Error &error) {
        return {CloseResult::Status::Failed, m_path, error.reason(), {}};
    }
}

PDFContext::PDFContext(QString path, Settings settings)
    : m_impl(std::make_unique<Impl>(std::move(path), std::move(settings))) {}

PDFContext::~PDFContext() = default;

void PDFContext::beginSource(const QString &name) {
    if (DrawnTags *tags = m_impl->tags()) {
        tags->beginSource(name);
    }
}

void PDFContext::beginParagraph() {
    if (DrawnTags *tags = m_impl->tags()) {
        tags->beginParagraph();
    }
}

void PDFContext::beginPage(const QRectF &mediaBox) {
    m_impl->beginPage(mediaBox);
}

void PDFContext::setRGBFillColor(double red, double green, double blue) {
    m_impl->pages().fill({red, green, blue});
}

void PDFContext::setFont(std::shared_ptr<const FontCascade> font, double size) {
    m_impl->pages().setFont(std::move(font), size);
}

void PDFContext::showGlyphsAtPoint(double x, double y, std::span<const Glyph> glyphs) {
    translateQpdfErrors([&] { m_impl->pages().showGlyphs(x, y, glyphs); });
}

void PDFContext::beginActualText(QStringView text) {
    m_impl->pages().beginActualText(text);
}

void PDFContext::endActualText() {
    m_impl->pages().endActualText();
}

void PDFContext::clipToRect(const QRectF &rect) {
    m_impl->pages().clipToRect(rect);
}

void PDFContext::drawImage(const QRectF &rect, PdfImage image, int orientation,
                           const QString &description,
                           const std::function<void(const PdfImage &)> &look) {
    translateQpdfErrors(
        [&] { m_impl->drawImage(rect, std::move(image), orientation, description, look); });
}

void PDFContext::endPage() {
    translateQpdfErrors([&] { m_impl->endPage(); });
}

void PDFContext::drawArtifact(int page, const std::function<void()> &draw) {
    translateQpdfErrors([&] { m_impl->drawArtifact(page, draw); });
}

QDateTime PDFContext::creationDate() {
    return m_impl->creationDate();
}

AddedDocument PDFContext::addDocument(const QString &sourcePath, const PageChoice &choice) {
    return m_impl->addDocument(sourcePath, choice);
}

void PDFContext::attachSource(const SourceOriginal &source, const Mark &mark) {
    translateQpdfErrors([&] { m_impl->attachSource(source, mark); });
}

Warnings PDFContext::checkPagesAfter(int count) {
    return translateQpdfErrors([&] { return m_impl->checkPagesAfter(count); });
}

QSizeF PDFContext::pageSize(int index) const {
    return m_impl->pageSize(index);
}

void PDFContext::addBookmark(const QString &title, int page) {
    m_impl->addBookmark(title, page);
}

int PDFContext::pageCount() const {
    return m_impl->pageCount();
}

void PDFContext::waitForPages() {
    translateQpdfErrors([&] { m_impl->waitForPages(); });
}

PDFContext::Mark PDFContext::mark() const {
    return m_impl->mark();
}

void PDFContext::rollBack(const Mark &mark) {
    m_impl->rollBack(mark);
}

CloseResult PDFContext::close(const std::function<QString()> &nextPath, const Inspection &inspect) {
    return m_impl->close(nextPath, inspect);
}

} // namespace folioforge
