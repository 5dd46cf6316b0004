// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/FontCascade.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <QStringView>

#include <cstdint>
#include <map>
#include <span>
#include <string>

namespace folioforge {

class FontEmbedder;

/// Writes the rows of one page into its content stream as one text object with relative moves, in
/// as few bytes as possible: a page is a small stream, which compresses badly. Call end() before
/// anything else is drawn and when the page ends.
class TextContent {
  public:
    using Resources = std::map<std::string, QPDFObjectHandle>;

    /// `content` receives the operators and `resources` the fonts in use; `size` is in points.
    TextContent(std::string &content, Resources &resources, FontEmbedder &fonts, double size);

    /// What is shown from now on is the marked content `number` of a paragraph (ISO 32000-1,
    /// 14.7.4.2), up to the next one or end().
    void beginContent(std::uint32_t number);
    /// Draws `glyphs` from the baseline point on.
    void showGlyphs(double x, double y, std::span<const Glyph> glyphs);
    /// Begins and ends a span that is read as `text`; empty spans are left out.
    void beginActualText(QStringView text);
    void endActualText();
    /// Ends the text object, if one is open.
    void end();

  private:
    enum class Operator { Show, NextLineAndShow };
    /// Begins a text object one row above the point, so that its first row is shown like the
    /// others.
    void open(double x, double y);
    Operator moveTo(double x, double y);
    /// Puts the first glyphs, all of one font, into `m_run`. Returns the others.
    std::span<const Glyph> takeRun(std::span<const Glyph> glyphs);
    void selectFont(std::uint16_t font);
    void show(Operator how);
    void openMarks();
    void endContent();

    std::string &m_content;
    Resources &m_resources;
    FontEmbedder &m_fonts;
    double m_size = 0;
    bool m_open = false;
    std::uint16_t m_font = 0;                          ///< The current font; 0 for none.
    std::map<std::uint16_t, std::string> m_selections; ///< What selects each font of this page.
    double m_x = 0; ///< Start of the current line as a reader computes it.
    double m_y = 0;
    double m_leading = 0; ///< The current leading, positive upwards.
    std::string m_begin;  ///< The number of a marked content that has shown nothing so far.
    bool m_inContent = false;
    std::string m_actual; ///< What a span is read as that has shown nothing so far.
    bool m_inSpan = false;
    std::string m_run; ///< Codes of one font, escaped.
};

} // namespace folioforge
