// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/HarfBuzz.h"

#include <cstdint>
#include <memory>
#include <optional>

struct FT_FaceRec_;
struct FT_LibraryRec_;

namespace folioforge {

class FontFace;

/// The CIDs by which a PDF names the glyphs of a face with CFF outlines.
class GlyphCids {
  public:
    /// Nothing for a TrueType face, whose glyphs may get any CID.
    static std::optional<GlyphCids> read(const FontFace &face);

    /// The CID of a glyph: the font's own, or where it has none the glyph's number.
    [[nodiscard]] std::uint16_t of(std::uint16_t glyph) const;
    /// Whether the font names its glyphs by CIDs rather than by their order.
    [[nodiscard]] bool isCidKeyed() const;

  private:
    struct Release {
        void operator()(FT_LibraryRec_ *library) const;
        void operator()(FT_FaceRec_ *face) const;
    };
    template<typename Handle> using Owned = std::unique_ptr<Handle, Release>;

    explicit GlyphCids(HarfBuzz<hb_blob_t> table);

    HarfBuzz<hb_blob_t> m_table; ///< The "CFF " table, which m_face reads.
    Owned<FT_LibraryRec_> m_library;
    Owned<FT_FaceRec_> m_face; ///< Null where the table is damaged.
};

} // namespace folioforge
