#include "pdf/TextContent.h"

#include "pdf/ContentNumber.h"
#include "pdf/FontEmbedder.h"

#include <cmath>
#include <cstdlib>

namespace folioforge {
namespace {

/// Longest form of a code: two bytes, both escaped.
constexpr std::size_t kLongestCode = 4;

char *writeByte(char *out, std::uint8_t byte) {
    if (byte == '(' || byte == ')' || byte == '\\') {
        *out++ = '\\';
    } else if (byte == '\r') { // A bare carriage return in a string reads as a line feed.
        *out++ = '\\';
        byte = 'r';
    }
    *out++ = static_cast<char>(byte);
    return out;
}

char *writeCode(char *out, GlyphCode code) {
    constexpr std::uint16_t kByte = 0xFF;
    if (code.twoBytes) {
        out = writeByte(out, static_cast<std::uint8_t>(code.code >> 8));
    }
    return writeByte(out, static_cast<std::uint8_t>(code.code & kByte));
}

/// A length as appendNumber writes it, so that what is added up is what a reader adds up.
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

TextContent::Operator TextContent::moveTo(double x, double y) {
    // Far below what a reader can show; it only keeps rounding from piling up down the page.
    constexpr double kTolerance = 0.0005;
    const double right = written(x - m_x);
    const double up = written(y - m_y);
    if (right == 0 && m_leading != 0 && std::abs(y - (m_y + m_leading)) < kTolerance) {
        m_y += m_leading;
        return Operator::NextLineAndShow;
    }
    if (right != 0 || up != 0) {
        appendNumber(m_content, right);
        appendNumber(m_content, up);
        m_content += "TD\n";
        m_leading = up;
    }
    m_x += right;
    m_y += up;
    return Operator::Show;
}

void TextContent::selectFont(std::uint16_t font) {
    m_font = font;
    const std::string name = m_fonts.resourceName(font);
    m_resources[name] = m_fonts.object(font);
    m_content.append(name).append(" ");
    appendNumber(m_content, m_size);
    m_content += "Tf\n";
}

void TextContent::show(Operator how) {
    m_content.append("(").append(m_run).append(how == Operator::Show ? ")Tj\n" : ")'\n");
}

void TextContent::showGlyphs(double x, double y, std::span<const Glyph> glyphs) {
    if (glyphs.empty() || m_fonts.cascade().faceCount() == 0) {
        return;
    }
    if (!m_open) {
        m_content += "BT\n";
        m_open = true;
        m_x = m_y = m_leading = 0;
    }
    Operator how = moveTo(x, y);
    while (!glyphs.empty()) {
        const std::uint16_t font = m_fonts.codeOf(glyphs.front()).font;
        m_run.resize(glyphs.size() * kLongestCode);
        char *out = m_run.data();
        std::size_t taken = 0;
        for (; taken < glyphs.size(); ++taken) {
            const GlyphCode place = m_fonts.codeOf(glyphs[taken]);
            if (place.font != font) {
                break;
            }
            out = writeCode(out, place);
        }
        m_run.resize(static_cast<std::size_t>(out - m_run.data()));
        if (font != m_font) {
            selectFont(font);
        }
        show(how);
        how = Operator::Show;
        glyphs = glyphs.subspan(taken);
    }
}

void TextContent::end() {
    if (m_open) {
        m_content += "ET\n";
        m_open = false;
    }
}

} // namespace folioforge
