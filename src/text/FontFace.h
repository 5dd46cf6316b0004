// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/HarfBuzz.h"

#include <QByteArray>

#include <cstdint>
#include <memory>
#include <optional>

namespace folioforge {

/// Vertical measures of a face in font units; the descent is positive.
struct FontExtents {
    int ascent = 0;
    int descent = 0;
    int leading = 0;
};

/// The box that holds every glyph of a face, in font units.
struct FontBox {
    int left = 0;
    int bottom = 0;
    int right = 0;
    int top = 0;
};

/// An open font for measuring and embedding. Lengths are in font units, unitsPerEm() to the em.
class FontFace {
  public:
    /// Opens face `index` of the font file or collection `path`. Null when it cannot be read, is
    /// damaged or has no outlines that a PDF can embed ("glyf" or "CFF ").
    static std::unique_ptr<const FontFace> open(const QByteArray &path, unsigned index);

    /// The HarfBuzz face; this object owns it.
    [[nodiscard]] hb_face_t *hbFace() const { return m_face.get(); }
    /// The HarfBuzz font, in font units; this object owns it.
    [[nodiscard]] hb_font_t *hbFont() const { return m_font.get(); }
    /// PostScript name, fit for a PDF font name.
    [[nodiscard]] const QByteArray &postScriptName() const { return m_postScriptName; }
    [[nodiscard]] unsigned unitsPerEm() const;
    [[nodiscard]] const FontExtents &extents() const { return m_extents; }
    [[nodiscard]] FontBox box() const;
    /// The glyph of `character`, or nothing when the face does not cover it.
    [[nodiscard]] std::optional<std::uint16_t> glyph(char32_t character) const;
    /// Horizontal advance of a glyph.
    [[nodiscard]] int advance(std::uint16_t glyph) const;

  private:
    FontFace(HarfBuzz<hb_face_t> face, HarfBuzz<hb_font_t> font);

    HarfBuzz<hb_face_t> m_face;
    HarfBuzz<hb_font_t> m_font;
    QByteArray m_postScriptName;
    FontExtents m_extents; ///< Each run of a readable text asks for them.
};

} // namespace folioforge
