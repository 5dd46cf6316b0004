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

    [[nodiscard]] bool wantsReadingOrder() const override { return m_isTagged; }
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
        m_context.showGlyphsAtPoint(x, y, glyphs);
    }
    void beginReading(QStringView text) override { m_context.beginActualText(text); }
    void endReading() override { m_context.endActualText(); }
    void endPage() override { m_context.endPage(); }

  private:
    PDFContext &m_context;
    std::shared_ptr<const FontCascade> m_font;
    QRectF m_page;
    bool m_isTagged;
    int m_mostPages;
    int m_pages = 0;
    const std::stop_token &m_stop;
};

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
    const auto font = options.textFont ? options.textFont : textFont();
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
    const auto font = options.textFont ? options.textFont : textFont();
    ContextSink sink(context, font, page, false, 0, stop);
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
