#pragma once

#include <QByteArray>

#include <cstdint>
#include <map>
#include <optional>
#include <set>

namespace folioforge {

class FontFace;
class GlyphCids;

/// The part of a font file that one document needs, and where its glyphs went.
struct FontSubset {
    enum class Kind {
        TrueType, ///< A whole sfnt file for FontFile2.
        Cff       ///< A bare "CFF " table for FontFile3.
    };
    Kind kind = Kind::TrueType;
    QByteArray program;
    /// Of a TrueType subset, where the wanted glyphs went, by their ids in the face. Those of a CFF
    /// keep the CIDs that GlyphCids gives.
    std::map<std::uint16_t, std::uint16_t> places;
};

/// Cuts `face` down to `glyphs` and the missing-glyph box; `cids` are those of `face`. Throws Error
/// when the font is damaged.
FontSubset makeFontSubset(const FontFace &face, const std::optional<GlyphCids> &cids,
                          const std::set<std::uint16_t> &glyphs);

} // namespace folioforge
