#pragma once

#include <QByteArray>

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <vector>

namespace folioforge {

class FontFace;

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

/// The CIDs by which a PDF names the glyphs of a face with CFF outlines.
class GlyphCids {
  public:
    /// Nothing for a TrueType face, whose glyphs may get any CID.
    static std::optional<GlyphCids> read(const FontFace &face);

    [[nodiscard]] std::uint16_t of(std::uint16_t glyph) const {
        return m_own && glyph < m_own->size() ? (*m_own)[glyph] : glyph;
    }
    /// Whether the font itself names its glyphs by CIDs rather than by their order.
    [[nodiscard]] bool areTheFonts() const { return m_own.has_value(); }

  private:
    std::optional<std::vector<std::uint16_t>> m_own;
};

/// Cuts `face` down to `glyphs` and the missing-glyph box. Throws Error when the font is damaged.
FontSubset makeFontSubset(const FontFace &face, const std::set<std::uint16_t> &glyphs);

} // namespace folioforge
