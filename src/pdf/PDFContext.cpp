// SPDX-License-Identifier: Apache-2.0

#include "pdf/PDFContextImpl.h"

#include "pdf/DocumentInfo.h"
#include "pdf/QpdfErrors.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace folioforge {

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

void PDFContext::attachData(const QString &name, const QByteArray &type, const QByteArray &data) {
    translateQpdfErrors([&] { m_impl->attachData(name, type, data); });
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
