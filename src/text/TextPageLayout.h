// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "error/Warning.h"
#include "text/FontCascade.h"
#include "text/PageSetup.h"

#include <QSizeF>
#include <QStringView>

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

    /// Asked before each page: false ends the text there.
    [[nodiscard]] virtual bool wantsPage() { return true; }
    virtual void beginPage() = 0;
    /// A row whose baseline starts at (x, y). `glyphs` are valid during the call.
    virtual void showRow(double x, double y, std::span<const Glyph> glyphs) = 0;
    virtual void endPage() = 0;
};

/// Width of `text` on one line, the sum of its advances, and the row height; in points.
QSizeF getStringSize(QStringView text, const FontCascade &font);

/// Lays `text` out on pages of `pageSize` points and gives them to `sink` in order. Without text
/// there is one blank page. A sink that wants no further page gets none. Returns which characters
/// are drawn as boxes. Throws Error, no page begun, where there is text but no font.
///
/// A line of the text becomes rows, each broken after the first unit that passes the right margin.
/// Blank lines take no room. The rows of a page end above the top margin's distance from the lower
/// edge: the bottom margin has no effect.
Warnings layOutText(QStringView text, QSizeF pageSize, const PageMargins &margins,
                    const FontCascade &font, TextPageSink &sink);

} // namespace folioforge
