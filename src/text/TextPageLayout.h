#pragma once

#include "text/FontCascade.h"
#include "text/PageSetup.h"

#include <QSizeF>
#include <QStringView>

#include <span>

namespace folioforge {

/// Takes the pages of a text one after another. Positions are in points from the page's lower left
/// corner.
class TextPageSink {
  public:
    TextPageSink() = default;
    TextPageSink(const TextPageSink &) = delete;
    TextPageSink &operator=(const TextPageSink &) = delete;
    virtual ~TextPageSink() = default;

    /// Asked before each page: false ends the text there.
    [[nodiscard]] virtual bool wantsPage() { return true; }
    virtual void beginPage() = 0;
    /// A row whose baseline starts at (x, y); `glyphs` live until the call returns.
    virtual void showRow(double x, double y, std::span<const Glyph> glyphs) = 0;
    virtual void endPage() = 0;
};

/// Width of `text` on one line, the sum of the advances that drawing it takes, and the row height;
/// points.
QSizeF getStringSize(QStringView text, const FontCascade &font);

/// Lays `text` out on pages of `pageSize` points and hands them to `sink` in order: at least one,
/// blank when there is no text. A sink that wants no further page gets none.
///
/// A line of the text becomes rows broken after the first unit that passes the right margin; blank
/// lines take no room. Rows follow each other from the top margin down to the same distance from
/// the lower edge: the top margin stands in for the bottom one.
void layOutText(QStringView text, QSizeF pageSize, const PageMargins &margins,
                const FontCascade &font, TextPageSink &sink);

} // namespace folioforge
