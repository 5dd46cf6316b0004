// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/MissingGlyphs.h"
#include "text/TextPageLayout.h"
#include "text/readable/LineBreaks.h"

#include <QRectF>
#include <QString>
#include <QStringList>

namespace folioforge {

/// What a header and a footer can name.
struct PageMetadata {
    QString file;
    int page = 1; ///< From 1.
    int pages = 1;
    QString date;
};

/// The words in braces that stand for what is known of a page, such as "{page}".
QStringList placeholders();

/// The first words in braces of `text` that stand for nothing, or a brace that is not closed; empty
/// where there is none.
QString unknownPlaceholder(const QString &text);

/// `text` with what is known of the page in the place of the words in braces.
QString withMetadata(const QString &text, const PageMetadata &metadata);

/// Sets headers and footers, page by page.
class MarginText {
  public:
    explicit MarginText(const FontCascade &font)
        : m_font(font) {}

    /// Sets `text` into the middle of `band`, in points from the lower left corner of the page: its
    /// rows are centred, and what does not fit into the band is left out. Gives the rows to `sink`.
    /// Throws Error as layOutReadable() does.
    void setInto(const QRectF &band, QStringView text, TextPageSink &sink);

    /// What of the texts is not there, or drawn as boxes.
    [[nodiscard]] Warnings warnings() const;

  private:
    const FontCascade &m_font;
    LineBreaks m_breaks;
    MissingGlyphs m_missing;
    bool m_isCut = false;
};

} // namespace folioforge
