// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdf/ImageEmbedder.h"
#include "pdf/TextContent.h"
#include "pdf/fonts/FontEmbedder.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QRectF>
#include <QString>

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

class QPDF;

namespace folioforge {

class DrawnTags;
class StreamData;

/// Draws the pages of a document, one after another. Lengths are in points, with the origin at the
/// lower left. Throws as the library and Error do.
class PageDrawer {
  public:
    /// A null `tags` means that pages are not tagged.
    PageDrawer(QPDF &document, StreamData &streams, DrawnTags *tags = nullptr);

    void beginPage(const QRectF &mediaBox);
    /// The colour of what follows on the page: red, green and blue from 0 to 1.
    void fill(const std::array<double, 3> &color);
    void setFont(std::shared_ptr<const FontCascade> font, double size);
    /// The text of the page in that font; null where there is none.
    TextContent *text();
    /// Shows glyphs of that text from the point of the baseline on.
    void showGlyphs(double x, double y, std::span<const Glyph> glyphs);
    void beginActualText(QStringView text);
    void endActualText();
    void drawImage(const QRectF &rect, const PdfImage &image, int orientation,
                   const QString &description);
    void clipToRect(const QRectF &rect);
    /// The page that was drawn, an object of the document, in which it stands at `page`, from 0.
    QPDFObjectHandle endPage(int page);

    /// Draws further on `page`, a page of text that endPage() gave, until endArtifact(): what
    /// belongs to the page and not to what is told on it (ISO 32000-1, 14.8.2.2).
    void beginArtifact(QPDFObjectHandle page);
    void endArtifact(QPDFObjectHandle page);

    /// Forgets the images that pages could share, as their data was rolled back.
    void forgetImages() { m_images.forget(); }
    /// Embeds the fonts of all pages by these rules. To be called once, at the end.
    void embedFonts(FontRules rules);

  private:
    using Resources = TextContent::Resources;
    struct Page {
        QRectF mediaBox;
        std::string content;
        Resources fonts;
        Resources images;
        std::optional<TextContent> text;   ///< Writes to `content` and `fonts`.
        std::array<double, 3> fillColor{}; ///< Black, as a page begins.
    };

    void endText();
    void endContent();
    QPDFObjectHandle resources();
    QPDFObjectHandle mediaBox();
    FontEmbedder &embedder();

    QPDF &m_document;
    StreamData &m_streams;
    DrawnTags *m_tags;
    bool m_inArtifact = false;
    ImageEmbedder m_images;
    Page m_page;
    std::shared_ptr<const FontCascade> m_font;
    double m_fontSize = 0;
    std::vector<std::unique_ptr<FontEmbedder>> m_fonts; ///< One for each cascade.
    QPDFObjectHandle m_pageType = QPDFObjectHandle::newName("/Page");
    QPDFObjectHandle m_tabOrder = QPDFObjectHandle::newName("/S"); ///< That of the tags.
    QRectF m_lastBox;
    QPDFObjectHandle m_lastBoxArray; ///< Of m_lastBox.
    std::map<Resources, QPDFObjectHandle, bool (*)(const Resources &, const Resources &)>
        m_fontResources;
};

} // namespace folioforge
