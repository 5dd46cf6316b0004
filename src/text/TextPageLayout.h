// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "text/FontCascade.h"
#include "text/PageSetup.h"

#include <QSizeF>
#include <QStringView>

#include <algorithm>
#include <functional>
#include <span>

namespace folioforge {

/// Receives the pages of a text in order. Positions are in points from the lower left corner of the
/// page.
class TextPageSink {
  public:
    TextPageSink() = default;
    TextPageSink(const TextPageSink &) = delete;
    TextPageSink &operator=(const TextPageSink &) = delete;
    virtual ~TextPageSink() = default;

    /// Whether rows come in the order in which they are read, from right to left where that is so,
    /// and blanks that are not seen with them: those between the words of which lines break.
    [[nodiscard]] virtual bool wantsReadingOrder() const { return false; }
    /// Asked before each page: false ends the text there.
    [[nodiscard]] virtual bool wantsPage() { return true; }
    virtual void beginPage() = 0;
    /// The rows that follow, on this page and those after it, are a paragraph.
    virtual void beginParagraph() {}
    /// A row whose baseline starts at (x, y). `glyphs` are valid during the call.
    virtual void showRow(double x, double y, std::span<const Glyph> glyphs) = 0;
    /// What is shown until endReading() is read as `text`, whatever each glyph stands for.
    virtual void beginReading(QStringView text) { static_cast<void>(text); }
    virtual void endReading() {}
    virtual void endPage() = 0;
};

/// Gives a text piece by piece, each valid until the next call: an empty one ends it, and each but
/// the last ends with a line feed.
using TextPieces = std::function<QStringView()>;

/// `text` in one piece.
TextPieces onePiece(QStringView text);

/// Whether a unit ends a line; each such unit does by itself.
inline bool endsLine(char16_t unit) {
    constexpr char16_t kLineFeed = 0x0A;
    constexpr char16_t kCarriageReturn = 0x0D;
    constexpr char16_t kNextLine = 0x85;
    constexpr char16_t kLineSeparator = 0x2028;
    constexpr char16_t kParagraphSeparator = 0x2029;
    if (unit > kCarriageReturn && unit < kNextLine) {
        return false; // Nearly every unit of a large text.
    }
    return (unit >= kLineFeed && unit <= kCarriageReturn) || unit == kNextLine ||
           unit == kLineSeparator || unit == kParagraphSeparator;
}

/// `text` without the unit that ends a line at its begin, two of them for CR LF.
inline QStringView withoutLineEnd(QStringView text) {
    return text.sliced(text.startsWith(u"\r\n") ? 2 : std::min<qsizetype>(1, text.size()));
}

/// Throws Error where there is text but no font to write it with.
void requireFont(const FontCascade &font, QStringView text);

/// Lays a text out on pages of `pageSize` points and gives them to `sink` in order. Without text
/// there is one blank page. A sink that wants no further page gets none. Returns which characters
/// are drawn as boxes. Throws Error, no page begun, where there is text but no font.
///
/// A line of the text becomes rows, each broken after the first unit that passes the right margin.
/// Blank lines take no room. The rows of a page end above the top margin's distance from the lower
/// edge: the bottom margin has no effect.
Warnings layOutText(const TextPieces &pieces, QSizeF pageSize, const PageMargins &margins,
                    const FontCascade &font, TextPageSink &sink);

// ---- Kept for callers alone: nothing in the program calls this -------------------------------

/// Width of `text` on one line, the sum of its advances, and the row height; in points.
QSizeF getStringSize(QStringView text, const FontCascade &font);

} // namespace folioforge
