// SPDX-License-Identifier: Apache-2.0

#include "text/TextPageLayout.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "text/MissingGlyphs.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace folioforge {
namespace {

bool startsWithPair(QStringView text) {
    return text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
}

/// The glyph of the first character of `text`. Half a surrogate pair has the missing glyph.
Glyph firstGlyph(QStringView text, const FontCascade &font) {
    if (startsWithPair(text)) {
        return font.glyph(QChar::surrogateToUcs4(text[0], text[1]));
    }
    return text[0].isSurrogate() ? font.missingGlyph() : font.glyph(text[0].unicode());
}

/// Breaks lines into rows of measured width.
class RowBreaker {
  public:
    RowBreaker(const FontCascade &font, double usableWidth)
        : m_font(font)
        , m_usableWidth(usableWidth) {}

    [[nodiscard]] Warnings warnings() const { return m_missing.warnings(); }

    /// Removes the first row from `line`, which is not empty. The glyphs are valid until the next
    /// call.
    std::span<const Glyph> takeRow(QStringView &line) {
        std::size_t count = 0;
        double width = 0;
        qsizetype taken = 0;
        const qsizetype length = line.size();
        const char16_t *const units = line.utf16();
        while (taken < length && width <= m_usableWidth) {
            if (count == m_row.size()) {
                m_row.resize(2 * count);
            }
            Glyph &glyph = m_row[count++];
            if (const Glyph *ascii = m_font.asciiGlyph(units[taken])) {
                glyph = *ascii;
                ++taken;
            } else {
                // A row may end between the halves of a pair: the first half is measured as the box
                // that it would draw, and if that is too wide the row ends with it.
                const bool fitsHalf = width + m_font.missingGlyph().advance <= m_usableWidth;
                const QStringView rest =
                    line.sliced(taken, fitsHalf ? std::min<qsizetype>(2, length - taken) : 1);
                glyph = firstGlyph(rest, m_font);
                noteMissing(glyph);
                taken += startsWithPair(rest) ? 2 : 1;
            }
            width += glyph.advance;
        }
        line = line.sliced(taken);
        return std::span(m_row).first(count);
    }

  private:
    static constexpr std::size_t kUsualRow = 256;

    void noteMissing(const Glyph &glyph) {
        if (m_font.isMissing(glyph)) [[unlikely]] {
            m_missing.add(glyph);
        }
    }

    const FontCascade &m_font;
    double m_usableWidth = 0;
    MissingGlyphs m_missing;
    std::vector<Glyph> m_row =
        std::vector<Glyph>(kUsualRow); ///< Grows where zero-width glyphs make a row long.
};

/// Puts rows under each other and begins a page when the next row would pass the lower limit.
class PageFiller {
  public:
    PageFiller(TextPageSink &sink, QSizeF pageSize, const PageMargins &margins, float rowHeight)
        : m_sink(sink)
        , m_height(pageSize.height())
        , m_left(static_cast<double>(margins.left))
        , m_top(static_cast<double>(margins.top))
        , m_rowHeight(rowHeight)
        , m_y(static_cast<float>(m_top)) {}

    /// False when the sink wants no further page.
    [[nodiscard]] bool beginPage() {
        if (!m_sink.wantsPage()) {
            return false;
        }
        m_sink.beginPage();
        m_y = static_cast<float>(m_top);
        return true;
    }

    /// False when the row needs a page that the sink does not want.
    [[nodiscard]] bool addRow(std::span<const Glyph> row) {
        // A row taller than the page gets a page of its own.
        if (m_height - m_top < m_y + m_rowHeight) {
            m_sink.endPage();
            if (!beginPage()) {
                return false;
            }
        }
        m_sink.showRow(m_left, m_height - (m_rowHeight + m_y), row);
        m_y = static_cast<float>(m_y + m_rowHeight);
        return true;
    }

    void finish() { m_sink.endPage(); }

  private:
    TextPageSink &m_sink;
    double m_height = 0;
    double m_left = 0;
    double m_top = 0;
    double m_rowHeight = 0;
    float m_y = 0; ///< From the page's top edge to the top of the next row; 32 bits on purpose.
};

/// False when the sink wants no further page.
bool addLines(QStringView text, RowBreaker &breaker, PageFiller &pages, TextPageSink &sink) {
    bool goesOn = true;
    while (goesOn && !text.isEmpty()) {
        const auto end = std::find_if(text.utf16(), text.utf16() + text.size(), endsLine);
        const qsizetype length = end - text.utf16();
        QStringView line = text.first(length);
        if (!line.isEmpty()) {
            sink.beginParagraph();
        }
        while (goesOn && !line.isEmpty()) {
            goesOn = pages.addRow(breaker.takeRow(line));
        }
        text = text.sliced(std::min(length + 1, text.size()));
    }
    return goesOn;
}

} // namespace

void requireFont(const FontCascade &font, QStringView text) {
    if (font.faceCount() == 0 && !text.isEmpty()) {
        throw Error(Reasons::tr("There is no font to write text with"));
    }
}

QSizeF getStringSize(QStringView text, const FontCascade &font) {
    double width = 0;
    while (!text.isEmpty()) {
        width += firstGlyph(text, font).advance;
        text = text.sliced(startsWithPair(text) ? 2 : 1);
    }
    return {width, font.rowHeight()};
}

TextPieces onePiece(QStringView text) {
    return [text]() mutable { return std::exchange(text, {}); };
}

Warnings layOutText(const TextPieces &pieces, QSizeF pageSize, const PageMargins &margins,
                    const FontCascade &font, TextPageSink &sink) {
    QStringView text = pieces();
    requireFont(font, text);
    const auto left = static_cast<double>(margins.left);
    const auto right = static_cast<double>(margins.right);
    RowBreaker breaker(font, pageSize.width() - left - right);
    PageFiller pages(sink, pageSize, margins, font.rowHeight());
    bool goesOn = pages.beginPage();
    for (; goesOn && !text.isEmpty(); text = pieces()) {
        goesOn = addLines(text, breaker, pages, sink);
    }
    if (goesOn) {
        pages.finish();
    }
    return breaker.warnings();
}

} // namespace folioforge
