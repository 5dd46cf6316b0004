// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/TextPageLayout.h"

#include <QString>

namespace folioforge {

/// How readable pages of text are set.
struct ReadableStyle {
    double tabWidth = 8;    ///< Blanks from one tab stop to the next.
    double lineSpacing = 1; ///< From row to row, in heights of a row.
    /// What stands in the middle of the top and of the bottom margin, as withMetadata() takes it.
    QString header;
    QString footer;

    [[nodiscard]] bool hasMarginTexts() const { return !header.isEmpty() || !footer.isEmpty(); }
};

/// Lays a text out as a person sets it, and gives the pages to `sink` in order: lines break between
/// words, blank lines and indents stay, tabs lead to stops, a form feed begins a page, and all four
/// margins count. Letters of scripts that join them are joined; what is read from right to left is
/// drawn so, from the right margin on where the line begins with it. Without text there is one
/// blank page. Returns which characters are drawn as boxes. Throws Error where there is no font, or
/// one that cannot be read.
Warnings layOutReadable(const TextPieces &pieces, QSizeF pageSize, const PageMargins &margins,
                        const FontCascade &font, const ReadableStyle &style, TextPageSink &sink);

} // namespace folioforge
