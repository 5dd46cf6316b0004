// SPDX-License-Identifier: Apache-2.0

#include "text/readable/ReadableLayout.h"

#include "error/Error.h"
#include "text/MissingGlyphs.h"
#include "text/readable/Paragraph.h"
#include "text/readable/RowDrawing.h"

#include <algorithm>
#include <utility>

namespace folioforge {
namespace {

constexpr char16_t kFormFeed = 0x0C;

/// Puts rows under each other, from the top margin to the bottom margin of each page.
class PageColumn {
  public:
    PageColumn(TextPageSink &sink, QSizeF page, const PageMargins &margins, const FontCascade &font,
               double lineSpacing)
        : m_sink(sink)
        , m_left(static_cast<double>(margins.left))
        , m_width(page.width() - m_left - static_cast<double>(margins.right))
        , m_top(page.height() - static_cast<double>(margins.top))
        , m_bottom(static_cast<double>(margins.bottom))
        , m_font(font)
        , m_lineSpacing(lineSpacing)
        , m_blank(font.glyph(U' ')) {}

    [[nodiscard]] double width() const { return m_width; }

    /// False when the sink wants no further page.
    [[nodiscard]] bool beginPage() {
        if (m_isOpen) {
            endPage();
        }
        if (!m_sink.wantsPage()) {
            return false;
        }
        m_sink.beginPage();
        m_isOpen = true;
        m_rowTop = m_top;
        return true;
    }
    void endPage() {
        m_sink.endPage();
        m_isOpen = false;
    }

    /// Takes the room of a row whose letters `reach` that far, on the next page where this one is
    /// full. False when the sink does not want it.
    [[nodiscard]] bool takeRoom(const RowReach &reach = {}) {
        constexpr double kRounding = 1e-6;
        const RowRoom room = roomOf(reach, m_font);
        // A row taller than the page gets a page of its own.
        if (m_rowTop < m_top && m_rowTop - room.height < m_bottom - kRounding && !beginPage()) {
            return false;
        }
        m_baseline = m_rowTop - room.ascent;
        m_rowTop -= room.height * m_lineSpacing;
        return true;
    }

    /// What is drawn from here on is a paragraph.
    void beginParagraph() { m_sink.beginParagraph(); }
    /// Draws a row into the room that was taken.
    void show(Paragraph &paragraph, const TextRow &row) {
        const bool rightToLeft = paragraph.isRightToLeft();
        const double start = m_left + (rightToLeft ? m_width - row.width : 0);
        m_rowEnd = rightToLeft ? start : start + row.width;
        drawRow(paragraph, row, start, m_baseline, m_sink);
    }
    /// Tells the words of the row that was drawn last from those of the next line.
    void showLineEnd() {
        if (m_sink.wantsReadingOrder()) {
            m_sink.showRow(m_rowEnd, m_baseline, {&m_blank, 1});
        }
    }

  private:
    TextPageSink &m_sink;
    double m_left = 0;
    double m_width = 0;
    double m_top = 0; ///< Heights are from the lower edge of the page.
    double m_bottom = 0;
    const FontCascade &m_font;
    double m_lineSpacing = 1;
    double m_rowTop = 0;
    double m_baseline = 0;
    double m_rowEnd = 0;
    Glyph m_blank;
    bool m_isOpen = false;
};

/// Cuts paragraphs into rows and puts them into the column.
class ReadableText {
  public:
    ReadableText(const FontCascade &font, const ReadableStyle &style, PageColumn &column)
        : m_font(font)
        , m_tabStop(style.tabWidth * font.glyph(U' ').advance)
        , m_column(column) {}

    /// Adds the lines of `text`. False when the sink wants no further page.
    [[nodiscard]] bool add(QStringView text) {
        bool goesOn = true;
        while (goesOn && !text.isEmpty()) {
            const auto end = std::find_if(text.utf16(), text.utf16() + text.size(), endsLine);
            const qsizetype length = end - text.utf16();
            const bool endsPage = length < text.size() && *end == kFormFeed;
            const QStringView line = text.first(length);
            text = withoutLineEnd(text.sliced(length));
            if (length > 0 || !endsPage) {
                goesOn = addLine(line);
            }
            if (endsPage && goesOn && !text.isEmpty()) {
                m_inParagraph = false;
                goesOn = m_column.beginPage();
            }
        }
        return goesOn;
    }

    [[nodiscard]] Warnings warnings() const { return m_missing.warnings(); }

  private:
    static bool isBlank(QStringView line) {
        return std::ranges::all_of(line, [](QChar unit) { return unit.isSpace(); });
    }

    /// Lines between blank ones are a paragraph. False when the sink wants no further page.
    [[nodiscard]] bool addLine(QStringView line) {
        if (isBlank(line)) {
            m_inParagraph = false;
        } else if (std::exchange(m_inParagraph, true)) {
            m_column.showLineEnd();
        } else {
            m_column.beginParagraph();
        }
        return addRows(line);
    }

    /// False when the sink wants no further page.
    [[nodiscard]] bool addRows(QStringView text) {
        if (text.isEmpty()) {
            return m_column.takeRoom();
        }
        while (!text.isEmpty()) {
            // A line of any length is shaped in parts: each goes as far as its last full row.
            constexpr qsizetype kShapedAtOnce = 32'768;
            const bool isLast = text.size() <= kShapedAtOnce;
            const qsizetype taken = addPart(isLast ? text : text.first(kShapedAtOnce), isLast);
            if (taken == 0) {
                return false;
            }
            text = text.sliced(taken);
        }
        return true;
    }

    /// How many units went into rows; 0 when the sink wants no further page.
    qsizetype addPart(QStringView text, bool isLast) {
        Paragraph paragraph(text, m_font, m_breaks, m_missing);
        qsizetype taken = 0;
        while (taken < text.size()) {
            const TextRow row = paragraph.takeRow(taken, m_column.width(), m_tabStop);
            if (row.end == text.size() && !isLast && taken > 0) {
                break;
            }
            if (!m_column.takeRoom(paragraph.reach(row))) {
                return 0;
            }
            m_column.show(paragraph, row);
            taken = row.end;
        }
        return taken;
    }

    const FontCascade &m_font;
    double m_tabStop = 0;
    PageColumn &m_column;
    LineBreaks m_breaks;
    MissingGlyphs m_missing;
    bool m_inParagraph = false;
};

} // namespace

Warnings layOutReadable(const TextPieces &pieces, QSizeF pageSize, const PageMargins &margins,
                        const FontCascade &font, const ReadableStyle &style, TextPageSink &sink) {
    QStringView text = pieces();
    requireFont(font, text);
    PageColumn column(sink, pageSize, margins, font, style.lineSpacing);
    ReadableText rows(font, style, column);
    bool goesOn = column.beginPage();
    for (; goesOn && !text.isEmpty(); text = pieces()) {
        goesOn = rows.add(text);
    }
    if (goesOn) {
        column.endPage();
    }
    return rows.warnings();
}

} // namespace folioforge
