// SPDX-License-Identifier: Apache-2.0

#include "convert/PageWriters.h"

#include "convert/ImagePlacement.h"
#include "convert/PicturesAhead.h"
#include "convert/TextRecorder.h"
#include "error/Error.h"
#include "error/Reasons.h"
#include "image/description/Description.h"
#include "text/FontCascade.h"
#include "text/TextPageLayout.h"
#include "text/readable/MarginText.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// Draws the rows of a text on pages of the context until a stop is requested or it has the most
/// pages that it may have.
class ContextSink : public TextPageSink {
  public:
    ContextSink(PDFContext &context, std::shared_ptr<const FontCascade> font, QSizeF pageSize,
                bool isTagged, int maxPages, const std::stop_token &stop)
        : m_context(context)
        , m_font(std::move(font))
        , m_page(QPointF(0, 0), pageSize)
        , m_isTagged(isTagged)
        , m_maxPages(maxPages)
        , m_stop(stop) {}

    /// What is drawn is recorded too.
    void recordTo(TextRecorder &recorder) { m_recorder = &recorder; }
    /// What is drawn is no part of the text.
    void drawArtifacts() { m_isArtifact = true; }

    [[nodiscard]] bool wantsReadingOrder() const override { return m_isTagged && !m_isArtifact; }
    [[nodiscard]] bool wantsPage() override {
        return !m_stop.stop_requested() && (m_maxPages == 0 || m_pages < m_maxPages);
    }
    void beginPage() override {
        ++m_pages;
        m_context.beginPage(m_page);
        m_context.setFont(m_font, m_font->size());
        m_context.setRGBFillColor(0, 0, 0);
    }
    void beginParagraph() override { m_context.beginParagraph(); }
    void showRow(double x, double y, std::span<const Glyph> glyphs) override {
        const auto isPrivate = [this](const Glyph &glyph) { return hasPrivateText(glyph); };
        if (!m_isTagged || m_isReading || std::ranges::none_of(glyphs, isPrivate)) {
            show(x, y, glyphs);
            return;
        }
        while (!glyphs.empty()) {
            const bool wanted = isPrivate(glyphs.front());
            const auto end = std::ranges::find(glyphs, !wanted, isPrivate);
            const auto run = glyphs.first(static_cast<std::size_t>(end - glyphs.begin()));
            showRun(x, y, run, wanted);
            for (const Glyph &glyph : run) {
                x += glyph.advance;
            }
            glyphs = glyphs.subspan(run.size());
        }
    }
    void beginReading(QStringView text) override {
        m_isReading = true;
        beginActualText(text);
    }
    void endReading() override {
        m_isReading = false;
        endActualText();
    }
    void endPage() override {
        m_context.endPage();
        if (m_recorder != nullptr) {
            m_recorder->endPage();
        }
    }

  private:
    /// Whether nobody but the text's author knows what a glyph stands for.
    [[nodiscard]] bool hasPrivateText(const Glyph &glyph) const {
        constexpr char32_t kFirstPrivate =
            0xE000; // And no glyph that stands for several is before.
        if (glyph.character < kFirstPrivate) {
            return false;
        }
        return std::ranges::any_of(m_font->textOf(glyph).toUcs4(), [](uint character) {
            return QChar::category(character) == QChar::Other_PrivateUse;
        });
    }

    /// Tagged pages say what private characters are to be read as (ISO 19005-2, 6.2.11.7.3).
    void showRun(double x, double y, std::span<const Glyph> run, bool isPrivate) {
        if (!isPrivate) {
            show(x, y, run);
            return;
        }
        QString text;
        for (const Glyph &glyph : run) {
            text += m_font->textOf(glyph);
        }
        beginActualText(text);
        show(x, y, run);
        endActualText();
    }

    void show(double x, double y, std::span<const Glyph> glyphs) {
        m_context.showGlyphsAtPoint(x, y, glyphs);
        if (m_recorder != nullptr) {
            m_recorder->show(x, y, glyphs);
        }
    }
    void beginActualText(QStringView text) {
        m_context.beginActualText(text);
        if (m_recorder != nullptr) {
            m_recorder->beginReading(text);
        }
    }
    void endActualText() {
        m_context.endActualText();
        if (m_recorder != nullptr) {
            m_recorder->endReading();
        }
    }

    PDFContext &m_context;
    TextRecorder *m_recorder = nullptr;
    std::shared_ptr<const FontCascade> m_font;
    QRectF m_page;
    bool m_isTagged;
    bool m_isArtifact = false;
    bool m_isReading = false;
    int m_maxPages;
    int m_pages = 0;
    const std::stop_token &m_stop;
};

/// Whether all glyphs have to stand for characters: archives and PDF/UA ask for that.
bool needsCharacters(const ConversionOptions &options) {
    return options.archive || options.accessible;
}

/// The font of text pages. The missing-glyph box stands for no character.
std::shared_ptr<const FontCascade> fontOf(const ConversionOptions &options) {
    const auto font = options.textFont ? options.textFont : textFont();
    return needsCharacters(options) ? font->withoutBoxes() : font;
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
    /// Whether there is none but the name of the file.
    [[nodiscard]] bool isMissing() const { return m_isName; }
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
                const ConversionOptions &options, EntryRecord *record) {
    const ImageLayout &layout = options.imageLayout;
    const ImagePlacement placement =
        placeImage(image.header.sizeInPoints(layout.unstatedDpi), options.imagePage, layout);
    context.beginPage(QRectF(QPointF(0, 0), placement.page));
    const auto clip = layout.fit == ImageFit::Fill ? std::optional(placement.space) : std::nullopt;
    if (clip) {
        context.clipToRect(*clip);
    }
    const int orientation = image.header.orientation;
    context.drawImage(placement.image, std::move(image), orientation, description,
                      [&](const PdfImage &drawn) {
                          if (record != nullptr) {
                              record->pictures.push_back({placement.page, placement.image,
                                                          orientation, clip, recordOf(drawn)});
                          }
                      });
    context.endPage();
}

} // namespace

Warnings addTextPage(const PDFFileInfo &entry, PDFContext &context,
                     const ConversionOptions &options, const std::stop_token &stop,
                     EntryRecord *record) {
    SourceText source = entry.sourceText(options.calls, options.textEncoding);
    const QSizeF pageSize = getTextPageSize(options.textPage);
    const auto font = fontOf(options);
    ContextSink sink(context, font, pageSize, options.tagged, options.maxTextPages, stop);
    std::optional<TextRecorder> recorder;
    if (record != nullptr) {
        if (!options.verifyOnly.isEmpty()) {
            record->textAgain = [entry, &calls = options.calls.get(),
                                 encoding = options.textEncoding] {
                return entry.sourceText(calls, encoding).rest();
            };
        }
        record->text.page = pageSize;
        record->text.fontSize = font->size();
        sink.recordTo(recorder.emplace(*font, record->text.pages, needsCharacters(options)));
    }
    Warnings warnings = source.warnings();
    const TextPieces pieces = [&source] { return source.next(); };
    const PageMargins &margins = options.textPage.margins;
    std::ranges::move(
        options.readable ? layOutReadable(pieces, pageSize, margins, *font, *options.readable, sink)
                         : layOutText(pieces, pageSize, margins, *font, sink),
        std::back_inserter(warnings));
    return warnings;
}

Warnings addMarginTexts(const PDFFileInfo &entry, int first, int pages, PDFContext &context,
                        const ConversionOptions &options, const std::stop_token &stop,
                        EntryRecord *record) {
    const QSizeF page = getTextPageSize(options.textPage);
    const PageMargins &margins = options.textPage.margins;
    const auto left = static_cast<double>(margins.left);
    const auto top = static_cast<double>(margins.top);
    const double width = page.width() - left - static_cast<double>(margins.right);
    const QRectF above(left, page.height() - top, width, top);
    const QRectF below(left, 0, width, static_cast<double>(margins.bottom));
    PageMetadata metadata{entry.fileName(), 0, context.pageCount(),
                          context.creationDate().toString(u"yyyy-MM-dd")};
    const auto font = fontOf(options);
    ContextSink sink(context, font, page, options.tagged, 0, stop);
    sink.drawArtifacts();
    std::optional<TextRecorder> recorder;
    if (record != nullptr) {
        sink.recordTo(recorder.emplace(*font, record->text.margins, needsCharacters(options)));
    }
    MarginText texts(*font);
    for (int i = first; i < first + pages && !stop.stop_requested(); ++i) {
        metadata.page = i + 1;
        context.drawArtifact(i, [&] {
            context.setFont(font, font->size());
            texts.setInto(above, withMetadata(options.readable->header, metadata), sink);
            texts.setInto(below, withMetadata(options.readable->footer, metadata), sink);
        });
        if (recorder) {
            recorder->endPage();
        }
    }
    return texts.warnings();
}

WrittenImage addImagePages(const PDFFileInfo &entry, PDFContext &context,
                           const ConversionOptions &options, PicturesAhead &pictures,
                           EntryRecord *record) {
    const SourceMetadata metadata = options.sourceMetadata();
    WrittenImage written;
    written.embeddedAs = EmbeddedAs::OwnBytes;
    Descriptions descriptions(entry, options);
    const bool isMissing = options.accessible && descriptions.isMissing();
    const auto draw = [&](PdfImage image) {
        if (image.embeddedAs != EmbeddedAs::OwnBytes) {
            written.embeddedAs = image.embeddedAs;
        }
        written.kind = image.header.kind;
        drawOnPage(std::move(image), descriptions.next(), context, options, record);
    };
    if (record != nullptr && !options.verifyOnly.isEmpty()) {
        record->picturesAgain = [path = entry.filePathName(), &calls = options.calls.get(),
                                 metadata, all = options.allPictures](const auto &take) {
            if (all) {
                forEachPicture(path, calls, metadata, take);
            } else {
                take(toPdfImage(path, calls, metadata));
            }
        };
    }
    if (options.allPictures) {
        written.warnings = forEachPicture(entry.filePathName(), options.calls, metadata, draw);
    } else {
        PdfImage image = pictures.take(entry);
        written.warnings = std::exchange(image.warnings, {});
        draw(std::move(image));
    }
    if (isMissing) {
        written.warnings.push_back(
            {WarningCode::DescriptionMissing,
             Reasons::tr("No description of the picture is given; its file's name stands for it")});
    }
    return written;
}

AddedDocument addPDFFile(const PDFFileInfo &entry, PDFContext &context, EntryRecord *record) {
    if (record != nullptr) {
        record->source = {entry.filePathName(), entry.pageChoice()};
    }
    return context.addDocument(entry.filePathName(), entry.pageChoice());
}

} // namespace folioforge
