// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <cstdint>
#include <memory>
#include <optional>
#include <set>

struct hb_face_t;
struct hb_subset_plan_t;

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

  private:
    struct Release {
        void operator()(hb_subset_plan_t *plan) const;
        void operator()(hb_face_t *face) const;
    };
    using Plan = std::unique_ptr<hb_subset_plan_t, Release>;
    using Face = std::unique_ptr<hb_face_t, Release>;

    ReducedFont(Plan plan, Face face);

    Plan m_plan;
    Face m_face;
};

} // namespace folioforge
