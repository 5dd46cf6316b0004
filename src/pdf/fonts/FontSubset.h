// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <cstdint>
#include <map>
#include <optional>
#include <set>

namespace folioforge {

class FontFace;
class GlyphCids;

/// The part of a font file that one document needs.
struct FontSubset {
    enum class Kind {
        TrueType, ///< A whole sfnt file for FontFile2.
        Cff       ///< A bare "CFF " table for FontFile3.
    };
    Kind kind = Kind::TrueType;
    QByteArray program;
    /// The CIDs that a CFF program has glyphs for; those of a TrueType one are the codes.
    std::set<std::uint16_t> cids;
    /// The glyph ids in a TrueType subset by those in the face. The glyphs of a CFF subset keep
    /// their CIDs.
    std::map<std::uint16_t, std::uint16_t> newIds;
};

/// Reduces `face`, whose CIDs are `cids`, to `glyphs` and the missing-glyph box. Throws Error when
/// the font is damaged.
FontSubset makeFontSubset(const FontFace &face, const std::optional<GlyphCids> &cids,
                          const std::set<std::uint16_t> &glyphs);

} // namespace folioforge
