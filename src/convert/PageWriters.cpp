// SPDX-License-Identifier: Apache-2.0

#include "convert/PageWriters.h"

#include "convert/ImagePlacement.h"
#include "image/description/Description.h"
#include "text/FontCascade.h"
#include "text/TextPageLayout.h"
#include "text/readable/MarginText.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// Draws the rows of a text on pages of the context until a stop is requested or it has the most
/// pages that it may have.
class ContextSink : public TextPageSink {
  public:
    ContextSink(PDFContext &context, std::shared_ptr<const FontCascade> font, QSizeF pageSize,
                bool isTagged, int mostPages, const std::stop_token &stop)
        : m_context(context)
        , m_font(std::move(font))
        , m_page(QPointF(0, 0), pageSize)
        , m_isTagged(isTagged)
        , m_mostPages(mostPages)
        , m_stop(stop) {}

    /// What is drawn is no part of the text.
    void drawArtifacts() { m_isArtifact = true; }

    [[nodiscard]] bool wantsReadingOrder() const override { return m_isTagged && !m_isArtifact; }
    [[nodiscard]] bool wantsPage() override {
        return !m_stop.stop_requested() && (m_mostPages == 0 || m_pages < m_mostPages);
    }
    void beginPage() override {
        ++m_pages;
        m_context.beginPage(m_page);
        m_context.setFont(m_font, m_font->size());
        m_context.setRGBFillColor(0, 0, 0);
    }
    void beginParagraph() override { m_context.beginParagraph(); }
    void showRow(double x, double y, std::span<const Glyph> glyphs) override {
        if (!m_isTagged || m_isReading) {
            m_context.showGlyphsAtPoint(x, y, glyphs);
            return;
        }
        while (!glyphs.empty()) {
            const bool isPrivate = hasPrivateText(glyphs.front());
            const auto end = std::ranges::find_if(
                glyphs, [&](const Glyph &glyph) { return hasPrivateText(glyph) != isPrivate; });
            const auto run = glyphs.first(static_cast<std::size_t>(end - glyphs.begin()));
            showRun(x, y, run, isPrivate);
            for (const Glyph &glyph : run) {
                x += glyph.advance;
            }
            glyphs = glyphs.subspan(run.size());
        }
    }
    void beginReading(QStringView text) override {
        m_isReading = true;
        m_context.beginActualText(text);
    }
    void endReading() override {
        m_isReading = false;
        m_context.endActualText();
    }
    void endPage() override { m_context.endPage(); }

  private:
    /// Whether nobody but the text's author knows what a glyph stands for.
    [[nodiscard]] bool hasPrivateText(const Glyph &glyph) const {
        return std::ranges::any_of(m_font->textOf(glyph).toUcs4(), [](uint character) {
            return QChar::category(character) == QChar::Other_PrivateUse;
        });
    }

    /// Tagged pages say what private characters are to be read as (ISO 19005-2, 6.2.11.7.3).
    void showRun(double x, double y, std::span<const Glyph> run, bool isPrivate) {
        QString text;
        for (const Glyph &glyph : run) {
            text += isPrivate ? m_font->textOf(glyph) : QString();
        }
        if (isPrivate) {
            m_context.beginActualText(text);
        }
        m_context.showGlyphsAtPoint(x, y, run);
        if (isPrivate) {
            m_context.endActualText();
        }
    }

    PDFContext &m_context;
    std::shared_ptr<const FontCascade> m_font;
    QRectF m_page;
    bool m_isTagged;
    bool m_isArtifact = false;
    bool m_isReading = false;
    int m_mostPages;
    int m_pages = 0;
    const std::stop_token &m_stop;
};

/// The font of text pages. Archives allow no missing-glyph box.
std::shared_ptr<const FontCascade> fontOf(const ConversionOptions &options) {
    const auto font = options.textFont ? options.textFont : textFont();
    return options.archive ? font->withoutBoxes() : font;
}

/// What is said of the pictures of a file, by turns.
class Descriptions {
  public:
    Descriptions(const PDFFileInfo &entry, const ConversionOptions &options) {
        const QString &path = entry.filePathName();
        m_text = options.descriptions.of(path);
        if (m_text.isEmpty() && options.tagged) {
            m_text = ownDescription(path, options.calls);
        }
        m_isName = m_text.isEmpty();
        if (m_isName) {
            m_text = entry.fileName();
        }
    }
    QString next() {
        ++m_count;
        return m_isName && m_count > 1 ? u"%1 (%2)"_s.arg(m_text, QString::number(m_count))
                                       : m_text;
    }

  private:
    QString m_text;
    bool m_isName = false;
    int m_count = 0;
};

void drawOnPage(PdfImage image, const QString &description, PDFContext &context,
                const ConversionOptions &options) {
    const ImageLayout &layout = options.imageLayout;
    const ImagePlacement placement =
        placeImage(image.header.sizeInPoints(layout.unstatedDpi), options.imagePage, layout);
    context.beginPage(QRectF(QPointF(0, 0), placement.page));
    if (layout.fit == ImageFit::Fill) {
        context.clipToRect(placement.space);
    }
    const int orientation = image.header.orientation;
    context.drawImage(placement.image, std::move(image), orientation, description);
    context.endPage();
}

} // namespace

Warnings addTextPage(const PDFFileInfo &entry, PDFContext &context,
                     const ConversionOptions &options, const std::stop_token &stop) {
    SourceText source = entry.sourceText(options.calls, options.textEncoding);
    const QSizeF pageSize = getTextPageSize(options.textPage);
    const auto font = fontOf(options);
    ContextSink sink(context, font, pageSize, options.tagged, options.mostTextPages, stop);
    Warnings warnings = std::move(source.warnings);
    const PageMargins &margins = options.textPage.margins;
    std::ranges::move(options.readable ? layOutReadable(source.text, pageSize, margins, *font,
                                                        *options.readable, sink)
                                       : layOutText(source.text, pageSize, margins, *font, sink),
                      std::back_inserter(warnings));
    return warnings;
}

Warnings addMarginTexts(const PDFFileInfo &entry, int first, int pages, PDFContext &context,
                        const ConversionOptions &options, const std::stop_token &stop) {
    const QSizeF page = getTextPageSize(options.textPage);
    const PageMargins &margins = options.textPage.margins;
    const auto left = static_cast<double>(margins.left);
    const auto top = static_cast<double>(margins.top);
    const double width = page.width() - left - static_cast<double>(margins.right);
    const QRectF above(left, page.height() - top, width, top);
    const QRectF below(left, 0, width, static_cast<double>(margins.bottom));
    PageFacts facts{entry.fileName(), 0, context.pageCount(),
                    context.creationDate().toString(u"yyyy-MM-dd")};
    const auto font = fontOf(options);
    ContextSink sink(context, font, page, options.tagged, 0, stop);
    sink.drawArtifacts();
    MarginText texts(*font);
    for (int i = first; i < first + pages && !stop.stop_requested(); ++i) {
        facts.page = i + 1;
        context.drawArtifact(i, [&] {
            context.setFont(font, font->size());
            texts.setInto(above, withFacts(options.readable->header, facts), sink);
            texts.setInto(below, withFacts(options.readable->footer, facts), sink);
        });
    }
    return texts.warnings();
}

WrittenImage addImagePages(const PDFFileInfo &entry, PDFContext &context,
                           const ConversionOptions &options) {
    const auto metadata = options.stripMetadata ? SourceMetadata::Strip : SourceMetadata::Keep;
    WrittenImage written{EmbeddedAs::OwnBytes, {}};
    Descriptions descriptions(entry, options);
    const auto draw = [&](PdfImage image) {
        if (image.embeddedAs != EmbeddedAs::OwnBytes) {
            written.embeddedAs = image.embeddedAs;
        }
        drawOnPage(std::move(image), descriptions.next(), context, options);
    };
    if (options.allPictures) {
        written.warnings = forEachPicture(entry.filePathName(), options.calls, metadata, draw);
    } else {
        PdfImage image = toPdfImage(entry.filePathName(), options.calls, metadata);
        written.warnings = std::exchange(image.warnings, {});
        draw(std::move(image));
    }
    return written;
}

AddedDocument addPDFFile(const PDFFileInfo &entry, PDFContext &context) {
    return context.addDocument(entry.filePathName(), entry.pageChoice());
}

} // namespace folioforge
