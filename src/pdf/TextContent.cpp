// SPDX-License-Identifier: Apache-2.0

#include "pdf/TextContent.h"

#include "pdf/ContentNumber.h"
#include "pdf/fonts/FontEmbedder.h"

#include <cmath>
#include <cstdlib>
#include <cstring>

namespace folioforge {
namespace {

/// A length as appendNumber() writes it, so that sums are those of a reader.
double written(double value) {
    constexpr double kSteps = 1e5;
    return std::round(value * kSteps) / kSteps;
}

} // namespace

TextContent::TextContent(std::string &content, Resources &resources, FontEmbedder &fonts,
                         double size)
    : m_content(content)
    , m_resources(resources)
    , m_fonts(fonts)
    , m_size(size) {}

void TextContent::open(double x, double y) {
    m_open = true;
    m_leading = written(-static_cast<double>(m_fonts.cascade().rowHeight()));
    m_x = written(x);
    m_y = written(y - m_leading);
    m_content += "BT ";
    appendNumber(m_content, -m_leading);
    m_content += "TL ";
    appendNumber(m_content, m_x);
    appendNumber(m_content, m_y);
    m_content += "Td ";
}

TextContent::Operator TextContent::moveTo(double x, double y) {
    // Far less than a reader can show. Rounding errors do not add up down the page.
    constexpr double kTolerance = 0.0005;
    const double right = written(x - m_x);
    const double up = written(y - m_y);
    if (right == 0 && m_leading != 0 && std::abs(y - (m_y + m_leading)) < kTolerance) {
        m_y += m_leading;
        return Operator::NextLineAndShow;
    }
    if (right != 0 || up != 0) {
        m_content += ' '; // Else the number would be read as part of the operator before it.
        appendNumber(m_content, right);
        appendNumber(m_content, up);
        m_content += "TD ";
        m_leading = up;
    }
    m_x += right;
    m_y += up;
    return Operator::Show;
}

void TextContent::selectFont(std::uint16_t font) {
    m_font = font;
    std::string &selection = m_selections[font];
    if (selection.empty()) {
        selection = m_fonts.resourceName(font);
        m_resources[selection] = m_fonts.object(font);
        selection += ' ';
        appendNumber(selection, m_size);
        selection += "Tf ";
    }
    m_content += selection;
}

void TextContent::show(Operator how) {
    m_content.append("(").append(m_run).append(how == Operator::Show ? ")Tj" : ")'");
}

void TextContent::beginContent(std::uint32_t number) {
    m_begin = "/MCID " + std::to_string(number);
}

void TextContent::endContent() {
    if (m_inContent) {
        m_content += " EMC";
        m_inContent = false;
    }
}

void TextContent::beginActualText(QStringView text) {
    // In UTF-16, whose mark leads.
    m_actual = "/ActualText<FEFF";
    for (const QChar unit : text) {
        constexpr int kHexadecimal = 16;
        constexpr int kDigits = 4;
        m_actual += QByteArray::number(unit.unicode(), kHexadecimal)
                        .rightJustified(kDigits, '0')
                        .toStdString();
    }
    m_actual += ">";
}

void TextContent::endActualText() {
    m_actual.clear();
    if (m_inSpan) {
        m_content += " EMC ";
        m_inSpan = false;
    }
}

/// Opens what is to begin with the glyphs that are shown next.
void TextContent::openMarks() {
    if (!m_begin.empty()) {
        endContent();
        m_content += m_actual.empty() ? "/P<<" : "/Span<<";
        m_content.append(m_begin).append(m_actual).append(">>BDC");
        m_inContent = true;
    } else if (!m_actual.empty()) {
        m_content.append(" /Span<<").append(m_actual).append(">>BDC ");
        m_inSpan = true;
    }
    m_begin.clear();
    m_actual.clear();
}

void TextContent::showGlyphs(double x, double y, std::span<const Glyph> glyphs) {
    if (glyphs.empty() || m_fonts.cascade().faceCount() == 0) {
        return;
    }
    if (!m_open) {
        open(x, y);
    }
    openMarks();
    Operator how = moveTo(x, y);
    while (!glyphs.empty()) {
        glyphs = takeRun(glyphs);
        show(how);
        how = Operator::Show;
    }
}

std::span<const Glyph> TextContent::takeRun(std::span<const Glyph> glyphs) {
    FontEmbedder &fonts = m_fonts;
    const std::uint16_t font = fonts.codeOf(glyphs.front()).font;
    if (font != m_font) {
        selectFont(font);
    }
    m_run.resize(glyphs.size() * GlyphCode::kMaxLength);
    char *out = m_run.data();
    std::size_t taken = 0;
    for (; taken < glyphs.size(); ++taken) {
        const GlyphCode code = fonts.codeOf(glyphs[taken]);
        if (code.font != font) {
            break;
        }
        // The whole array takes one store; the next code overwrites the surplus.
        std::memcpy(out, code.bytes.data(), GlyphCode::kMaxLength);
        out += code.length;
    }
    m_run.resize(static_cast<std::size_t>(out - m_run.data()));
    return glyphs.subspan(taken);
}

void TextContent::end() {
    if (m_open) {
        endContent();
        m_content += " ET ";
        m_open = false;
    }
}

} // namespace folioforge
