// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/HarfBuzz.h"

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <set>

namespace folioforge {

/// A font cut down to what a PDF needs of it: the outlines and widths of some glyphs.
class ReducedFont {
  public:
    enum class GlyphIds {
        Kept,  ///< As in the font.
        Packed ///< Without gaps.
    };

    /// `face` with `glyphs` and the missing-glyph box; nothing when the font is damaged.
    static std::optional<ReducedFont> make(hb_face_t *face, const std::set<std::uint16_t> &glyphs,
                                           GlyphIds ids);

    /// The bare "CFF " table; empty where the font has none.
    [[nodiscard]] QByteArray cffTable() const;
    /// The whole font file.
    [[nodiscard]] QByteArray file() const;
    /// The new id of one of the glyphs.
    [[nodiscard]] std::uint16_t idOf(std::uint16_t glyph) const;
    /// The glyphs of the face that it has: those asked for, and what they are put together from.
    [[nodiscard]] std::set<std::uint16_t> glyphs() const;

  private:
    ReducedFont(HarfBuzz<hb_subset_plan_t> plan, HarfBuzz<hb_face_t> face);

    HarfBuzz<hb_subset_plan_t> m_plan;
    HarfBuzz<hb_face_t> m_face;
};

} // namespace folioforge
