// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/FontCascade.h"
#include "verify/TextTrace.h"

#include <QString>
#include <QStringView>

#include <span>
#include <vector>

namespace folioforge {

/// Records what pages of text show while they are drawn.
class TextRecorder {
  public:
    /// Both must outlive it. With `isWhole` all glyphs are read as characters that archives allow.
    TextRecorder(const FontCascade &font, std::vector<TextTrace> &pages, bool isWhole)
        : m_font(font)
        , m_pages(pages)
        , m_isWhole(isWhole) {}

    /// Glyphs are shown from the baseline point on.
    void show(double x, double y, std::span<const Glyph> glyphs);
    /// What is shown until endReading() is read as `text`.
    void beginReading(QStringView text);
    void endReading();
    /// Keeps the page; the next one begins.
    void endPage() { m_pages.push_back(m_tracer.finish()); }

  private:
    void record(const Glyph &glyph);

    const FontCascade &m_font;
    std::vector<TextTrace> &m_pages;
    bool m_isWhole;
    TextTracer m_tracer;
    QString m_reading; ///< What the rows are read as, until the first of them.
    bool m_isReadOtherwise = false;
};

} // namespace folioforge
