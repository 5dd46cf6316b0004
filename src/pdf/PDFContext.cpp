// SPDX-License-Identifier: Apache-2.0

#include "pdf/PDFContext.h"

#include "files/OutputFile.h"
#include "image/PdfImage.h"
#include "pdf/ContentNumber.h"
#include "pdf/DocumentInfo.h"
#include "pdf/DocumentWriter.h"
#include "pdf/ImageEmbedder.h"
#include "pdf/OrientedMatrix.h"
#include "pdf/PageSizes.h"
#include "pdf/QpdfErrors.h"
#include "pdf/StreamData.h"
#include "pdf/TextContent.h"
#include "pdf/fonts/FontEmbedder.h"
#include "pdf/import/DocumentCatalog.h"
#include "pdf/import/DocumentImport.h"
#include "pdf/import/SourceDocument.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace folioforge {

namespace {

using Resources = TextContent::Resources;

/// The page that is being drawn.
struct OpenPage {
    QRectF mediaBox;
    std::string content;
    Resources fonts;
    Resources images;
    std::optional<TextContent> text;   ///< Writes to `content` and `fonts`.
    std::array<double, 3> fillColor{}; ///< Black, as a page begins.

    void fill(const std::array<double, 3> &color) {
        if (color == fillColor) {
            return;
        }
        fillColor = color;
        for (const double value : color) {
            appendNumber(content, value);
        }
        content += "rg ";
    }
    /// To be called before anything but text is drawn.
    void endText() {
        if (text) {
            text->end();
        }
    }
};

QPDFObjectHandle boxArray(const QRectF &box) {
    auto array = QPDFObjectHandle::newArray();
    for (const double value : {box.left(), box.top(), box.right(), box.bottom()}) {
        std::string number;
        appendNumber(number, value);
        number.pop_back();
        array.appendItem(QPDFObjectHandle::newReal(number));
    }
    return array;
}

} // namespace

class PDFContext::Impl {
  public:
    Impl(QString path, Settings settings);

    void endPage();
    void drawImage(const QRectF &rect, const PdfImage &image, int orientation);
    AddedDocument addDocument(const QString &sourcePath);
    CloseResult close(const std::function<QString()> &nextPath);
    void waitForPages() { m_streams.waitForPages(); }
    [[nodiscard]] Mark mark() const { return {pageCount(), m_streams.stored()}; }
    void rollBack(const Mark &mark);
    void beginPage(const QRectF &mediaBox);
    void showGlyphs(double x, double y, std::span<const Glyph> glyphs);

    OpenPage page;
    std::shared_ptr<const FontCascade> font;
    double fontSize = 0;
    [[nodiscard]] int pageCount() const { return m_catalog.pageCount(); }
    [[nodiscard]] Warnings checkPagesAfter(int count) const {
        return checkPageSizes(m_catalog.pages().subspan(static_cast<std::size_t>(count)));
    }

  private:
    QPDFObjectHandle resources();
    QPDFObjectHandle mediaBox();
    FontEmbedder &embedder();
    void finishDocument();
    CloseResult publish(OutputFile &file, const std::function<QString()> &nextPath);

    QString m_path;
    Settings m_settings;
    QPDF m_document;
    std::shared_ptr<SourceReader> m_reader = std::make_shared<SourceReader>(m_settings.calls);
    StreamData m_streams{m_document, m_reader, m_settings.calls};
    DocumentCatalog m_catalog;
    ImageEmbedder m_images{m_document, m_streams};
    std::vector<std::unique_ptr<FontEmbedder>> m_fonts; ///< One for each cascade.
    QPDFObjectHandle m_pageType = QPDFObjectHandle::newName("/Page");
    QRectF m_lastBox;
    QPDFObjectHandle m_lastBoxArray; ///< Of m_lastBox.
    std::map<Resources, QPDFObjectHandle, bool (*)(const Resources &, const Resources &)>
        m_fontResources;
    std::map<std::string, SharedStreams> m_sourceStreams; ///< By source file.
    qsizetype m_longestStream = 0; ///< Bytes, of those that the library copies by itself.
};

namespace {

bool sameNamesFirst(const Resources &left, const Resources &right) {
    return std::ranges::lexicographical_compare(
        left, right, {}, [](const auto &member) { return member.first; },
        [](const auto &member) { return member.first; });
}

} // namespace

PDFContext::Impl::Impl(QString path, Settings settings)
    : m_path(std::move(path))
    , m_settings(std::move(settings))
    , m_fontResources(&sameNamesFirst) {
    m_document.emptyPDF();
    m_document.setSuppressWarnings(true);
}

QPDFObjectHandle PDFContext::Impl::resources() {
    if (page.images.empty()) {
        // Most pages of text use the same few fonts.
        auto &shared = m_fontResources[page.fonts];
        if (!shared.isInitialized()) {
            auto dictionary = QPDFObjectHandle::newDictionary();
            if (!page.fonts.empty()) {
                dictionary.replaceKey("/Font", QPDFObjectHandle::newDictionary(page.fonts));
            }
            shared = m_document.makeIndirectObject(dictionary);
        }
        return shared;
    }
    auto dictionary = QPDFObjectHandle::newDictionary();
    dictionary.replaceKey("/XObject", QPDFObjectHandle::newDictionary(page.images));
    if (!page.fonts.empty()) {
        dictionary.replaceKey("/Font", QPDFObjectHandle::newDictionary(page.fonts));
    }
    return dictionary;
}

/// The box of the page. Pages with the same box as the page before share its array.
QPDFObjectHandle PDFContext::Impl::mediaBox() {
    if (!m_lastBoxArray.isInitialized() || page.mediaBox != m_lastBox) {
        m_lastBox = page.mediaBox;
        m_lastBoxArray = boxArray(m_lastBox);
    }
    return m_lastBoxArray;
}

void PDFContext::Impl::beginPage(const QRectF &mediaBox) {
    page.text.reset();
    page.content.clear();
    page.fonts.clear();
    page.images.clear();
    page.fillColor = {};
    page.mediaBox = mediaBox;
}

FontEmbedder &PDFContext::Impl::embedder() {
    const auto known = std::ranges::find_if(
        m_fonts, [this](const auto &fonts) { return &fonts->cascade() == font.get(); });
    if (known != m_fonts.end()) {
        return **known;
    }
    return *m_fonts.emplace_back(std::make_unique<FontEmbedder>(
        m_document, m_streams, font, std::string(m_fonts.size() + 1, 'F')));
}

void PDFContext::Impl::showGlyphs(double x, double y, std::span<const Glyph> glyphs) {
    if (!font) {
        return;
    }
    if (!page.text) {
        page.text.emplace(page.content, page.fonts, embedder(), fontSize);
    }
    page.text->showGlyphs(x, y, glyphs);
}

void PDFContext::Impl::endPage() {
    page.endText();
    auto dictionary = QPDFObjectHandle::newDictionary();
    dictionary.replaceKey("/Type", m_pageType);
    dictionary.replaceKey("/MediaBox", mediaBox());
    dictionary.replaceKey("/Resources", resources());
    if (!page.content.empty()) {
        dictionary.replaceKey("/Contents", m_streams.pageContent(page.content));
    }
    m_catalog.addPage(m_document.makeIndirectObject(dictionary));
    beginPage({});
}

void PDFContext::Impl::drawImage(const QRectF &rect, const PdfImage &image, int orientation) {
    page.endText();
    const std::string name = "/Im" + std::to_string(page.images.size());
    page.images[name] = m_images.embed(image);
    const Matrix matrix = orientedMatrix(rect, orientation);
    page.content += "q ";
    for (const double value : {matrix.a, matrix.b, matrix.c, matrix.d, matrix.e, matrix.f}) {
        appendNumber(page.content, value);
    }
    page.content += "cm " + name + " Do Q\n";
}

AddedDocument PDFContext::Impl::addDocument(const QString &sourcePath) {
    return translateQpdfErrors([&] {
        m_reader->beginAnew(); // A source that failed may have left its file open.
        const FileVersion file = FileVersion::of(sourcePath);
        const std::string key = file.key();
        const auto source = openSourceDocument(file, m_reader);
        // A copy, so that an import that fails leaves no stream to the next one.
        SharedStreams &known = m_sourceStreams[key];
        SharedStreams streams = known;
        SourceNames names(m_catalog.names(), sourcePath);
        ImportOptions options{m_settings.oneSource ? ImportScope::WholeDocument
                                                   : ImportScope::OneOfSeveral,
                              m_settings.info, m_settings.encryption != nullptr, pageCount()};
        ImportedDocument imported = withAllObjects(*source, *m_reader, [&] {
            if (m_settings.keepInfo) {
                takeMissingInfo(options.info, *source);
            }
            return importDocument(*source, m_document, streams, names, options);
        });
        m_reader->finish();
        AddedDocument added{static_cast<int>(imported.pages.size()), {}, imported.parts};
        const qsizetype longest = std::min<qsizetype>(imported.longestStream, file.size);
        added.warnings = m_catalog.addDocument(std::move(imported));
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
    if (m_streams.rollBack(mark.stored)) {
        m_images.forget();
    }
}

void PDFContext::Impl::finishDocument() {
    translateQpdfErrors([&] {
        for (const auto &fonts : m_fonts) {
            fonts->embed();
        }
        fixCreationDate(m_settings.info);
        writeDocumentInfo(m_document, m_settings.info);
        m_catalog.finish(m_document, m_settings.info);
    });
}

CloseResult PDFContext::Impl::publish(OutputFile &file, const std::function<QString()> &nextPath) {
    // Each attempt fails only when another program has just taken the name.
    constexpr int kAttempts = 1000;
    QString path = m_path;
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

CloseResult PDFContext::Impl::close(const std::function<QString()> &nextPath) {
    try {
        waitForPages();
        finishDocument();
        // From now on each source is read only if it is still the file that was examined.
        m_reader->beginAnew();
        OutputFile file(m_path, m_settings.calls);
        translateQpdfErrors([&] { requireRoomForStream(m_longestStream); });
        writeDocument(m_document, file, m_settings.encryption.get(), m_catalog.form());
        m_reader->finish();
        translateQpdfErrors([&] { requireAllObjects(m_document, *m_reader); });
        Warnings warnings = file.finish(m_settings.flush);
        CloseResult result = publish(file, nextPath);
        result.warnings = std::move(warnings);
        result.left = m_catalog.leftInTheEnd();
        return result;
    } catch (const Error &error) {
        return {CloseResult::Status::Failed, m_path, error.reason(), {}};
    }
}

PDFContext::PDFContext(QString path, Settings settings)
    : m_impl(std::make_unique<Impl>(std::move(path), std::move(settings))) {}

PDFContext::~PDFContext() = default;

void PDFContext::beginPage(const QRectF &mediaBox) {
    m_impl->beginPage(mediaBox);
}

void PDFContext::setRGBFillColor(double red, double green, double blue) {
    m_impl->page.fill({red, green, blue});
}

void PDFContext::setFont(std::shared_ptr<const FontCascade> font, double size) {
    m_impl->page.endText();
    m_impl->page.text.reset();
    m_impl->font = std::move(font);
    m_impl->fontSize = size;
}

void PDFContext::showGlyphsAtPoint(double x, double y, std::span<const Glyph> glyphs) {
    translateQpdfErrors([&] { m_impl->showGlyphs(x, y, glyphs); });
}

void PDFContext::drawImage(const QRectF &rect, PdfImage image, int orientation) {
    translateQpdfErrors([&] { m_impl->drawImage(rect, image, orientation); });
}

void PDFContext::endPage() {
    translateQpdfErrors([&] { m_impl->endPage(); });
}

AddedDocument PDFContext::addDocument(const QString &sourcePath) {
    return m_impl->addDocument(sourcePath);
}

Warnings PDFContext::checkPagesAfter(int count) const {
    return translateQpdfErrors([&] { return m_impl->checkPagesAfter(count); });
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

CloseResult PDFContext::close(const std::function<QString()> &nextPath) {
    return m_impl->close(nextPath);
}

} // namespace folioforge
