// SPDX-License-Identifier: Apache-2.0

#include "pdf/PageDrawer.h"

#include "pdf/ContentNumber.h"
#include "pdf/OrientedMatrix.h"
#include "pdf/StreamData.h"
#include "pdf/tags/DrawnTags.h"

#include <qpdf/QPDF.hh>

#include <algorithm>
#include <utility>

namespace folioforge {

namespace {

QPDFObjectHandle boxArray(const QRectF &box) {
    auto array = QPDFObjectHandle::newArray();
    for (const double value : {box.left(), box.top(), box.right(), box.bottom()}) {
        array.appendItem(QPDFObjectHandle::newReal(numberText(value)));
    }
    return array;
}

bool sameNamesFirst(const TextContent::Resources &left, const TextContent::Resources &right) {
    return std::ranges::lexicographical_compare(
        left, right, {}, [](const auto &member) { return member.first; },
        [](const auto &member) { return member.first; });
}

} // namespace

PageDrawer::PageDrawer(QPDF &document, StreamData &streams, DrawnTags *tags)
    : m_document(document)
    , m_streams(streams)
    , m_tags(tags)
    , m_images(document, streams)
    , m_fontResources(&sameNamesFirst) {}

void PageDrawer::fill(const std::array<double, 3> &color) {
    if (color == m_page.fillColor) {
        return;
    }
    m_page.fillColor = color;
    for (const double value : color) {
        appendNumber(m_page.content, value);
    }
    m_page.content += "rg ";
}

/// To be called before anything but text is drawn.
void PageDrawer::endText() {
    if (m_page.text) {
        m_page.text->end();
    }
    endContent();
}

void PageDrawer::setFont(std::shared_ptr<const FontCascade> font, double size) {
    endText();
    m_page.text.reset();
    m_font = std::move(font);
    m_fontSize = size;
}

void PageDrawer::embedFonts(FontRules rules) {
    for (const auto &fonts : m_fonts) {
        fonts->embed(rules);
    }
}

QPDFObjectHandle PageDrawer::resources() {
    if (m_page.images.empty()) {
        // Most pages of text use the same few fonts.
        auto &shared = m_fontResources[m_page.fonts];
        if (!shared.isInitialized()) {
            auto dictionary = QPDFObjectHandle::newDictionary();
            if (!m_page.fonts.empty()) {
                dictionary.replaceKey("/Font", QPDFObjectHandle::newDictionary(m_page.fonts));
            }
            shared = m_document.makeIndirectObject(dictionary);
        }
        return shared;
    }
    auto dictionary = QPDFObjectHandle::newDictionary();
    dictionary.replaceKey("/XObject", QPDFObjectHandle::newDictionary(m_page.images));
    if (!m_page.fonts.empty()) {
        dictionary.replaceKey("/Font", QPDFObjectHandle::newDictionary(m_page.fonts));
    }
    return dictionary;
}

/// The box of the page. Pages with the same box as the page before share its array.
QPDFObjectHandle PageDrawer::mediaBox() {
    if (!m_lastBoxArray.isInitialized() || m_page.mediaBox != m_lastBox) {
        m_lastBox = m_page.mediaBox;
        m_lastBoxArray = boxArray(m_lastBox);
    }
    return m_lastBoxArray;
}

void PageDrawer::beginPage(const QRectF &mediaBox) {
    m_page.text.reset();
    m_page.content.clear();
    m_page.fonts.clear();
    m_page.images.clear();
    m_page.fillColor = {};
    m_page.mediaBox = mediaBox;
    if (m_tags) {
        m_tags->beginPage();
    }
}

FontEmbedder &PageDrawer::embedder() {
    const auto known = std::ranges::find_if(
        m_fonts, [this](const auto &fonts) { return &fonts->cascade() == m_font.get(); });
    if (known != m_fonts.end()) {
        return **known;
    }
    return *m_fonts.emplace_back(std::make_unique<FontEmbedder>(
        m_document, m_streams, m_font, std::string(m_fonts.size() + 1, 'F')));
}

TextContent *PageDrawer::text() {
    if (m_font && !m_page.text) {
        m_page.text.emplace(m_page.content, m_page.fonts, embedder(), m_fontSize);
    }
    return m_font ? &*m_page.text : nullptr;
}

void PageDrawer::showGlyphs(double x, double y, std::span<const Glyph> glyphs) {
    TextContent *to = text();
    if (!to || glyphs.empty()) {
        return;
    }
    if (m_tags && !m_inArtifact) {
        if (const auto content = m_tags->contentForText()) {
            to->beginContent(*content);
        }
    }
    to->showGlyphs(x, y, glyphs);
}

/// In tagged content a span is a marked content of its own: there are readers that lose what
/// follows one inside another.
void PageDrawer::beginActualText(QStringView read) {
    if (TextContent *to = text()) {
        to->beginActualText(read);
        endContent();
    }
}

void PageDrawer::endActualText() {
    if (TextContent *to = text()) {
        to->endActualText();
        endContent();
    }
}

void PageDrawer::endContent() {
    if (m_tags) {
        m_tags->endContent();
    }
}

QPDFObjectHandle PageDrawer::endPage(int page) {
    endText();
    auto dictionary = QPDFObjectHandle::newDictionary();
    dictionary.replaceKey("/Type", m_pageType);
    dictionary.replaceKey("/MediaBox", mediaBox());
    dictionary.replaceKey("/Resources", resources());
    if (!m_page.content.empty()) {
        dictionary.replaceKey("/Contents", m_streams.pageContent(m_page.content));
    }
    if (m_tags) {
        if (const auto key = m_tags->endPage(page)) {
            dictionary.replaceKey("/StructParents", QPDFObjectHandle::newInteger(*key));
        }
        dictionary.replaceKey("/Tabs", m_tabOrder);
    }
    beginPage({});
    return m_document.makeIndirectObject(dictionary);
}

void PageDrawer::beginArtifact(QPDFObjectHandle page) {
    beginPage({});
    m_inArtifact = true;
    if (auto fonts = page.getKey("/Resources").getKey("/Font"); fonts.isDictionary()) {
        m_page.fonts = fonts.getDictAsMap();
    }
    m_page.content = "/Artifact<</Type/Pagination>>BDC ";
}

void PageDrawer::endArtifact(QPDFObjectHandle page) {
    endText();
    m_inArtifact = false;
    m_page.content += "EMC";
    auto contents = QPDFObjectHandle::newArray();
    if (auto drawn = page.getKey("/Contents"); drawn.isStream()) {
        contents.appendItem(drawn);
    }
    contents.appendItem(m_streams.pageContent(m_page.content));
    page.replaceKey("/Contents", contents);
    page.replaceKey("/Resources", resources());
    beginPage({});
}

void PageDrawer::drawImage(const QRectF &rect, const PdfImage &image, int orientation,
                           const QString &description) {
    endText();
    if (m_tags) {
        m_page.content +=
            "/Figure<</MCID " + std::to_string(m_tags->addFigure(description, rect)) + ">>BDC ";
    }
    const std::string name = "/Im" + std::to_string(m_page.images.size());
    m_page.images[name] = m_images.embed(image);
    const Matrix matrix = orientedMatrix(rect, orientation);
    m_page.content += "q ";
    for (const double value : {matrix.a, matrix.b, matrix.c, matrix.d, matrix.e, matrix.f}) {
        appendNumber(m_page.content, value);
    }
    m_page.content += "cm " + name + (m_tags ? " Do Q EMC\n" : " Do Q\n");
}

void PageDrawer::clipToRect(const QRectF &rect) {
    endText();
    for (const double value : {rect.x(), rect.y(), rect.width(), rect.height()}) {
        appendNumber(m_page.content, value);
    }
    m_page.content += "re W n\n";
}

} // namespace folioforge
