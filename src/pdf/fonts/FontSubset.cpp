// SPDX-License-Identifier: Apache-2.0

#include "pdf/fonts/FontSubset.h"

#include "error/Error.h"
#include "error/Reasons.h"
#include "pdf/fonts/GlyphCids.h"
#include "text/FontFace.h"
#include "text/ReducedFont.h"

namespace folioforge {

namespace {

/// A font that names its glyphs by their order has kept the places of all before the last.
std::set<std::uint16_t> cidsOf(const GlyphCids &cids, const std::set<std::uint16_t> &glyphs) {
    std::set<std::uint16_t> all;
    const int last = glyphs.empty() ? 0 : *glyphs.rbegin();
    for (int glyph = 0; glyph <= last; ++glyph) {
        const auto id = static_cast<std::uint16_t>(glyph);
        if (!cids.isCidKeyed() || glyphs.contains(id)) {
            all.insert(cids.of(id));
        }
    }
    return all;
}

} // namespace

FontSubset makeFontSubset(const FontFace &face, const std::optional<GlyphCids> &cids,
                          const std::set<std::uint16_t> &glyphs) {
    // Readers find the glyphs of a CFF without CIDs by their order.
    const auto ids =
        cids && !cids->isCidKeyed() ? ReducedFont::GlyphIds::Kept : ReducedFont::GlyphIds::Packed;
    const auto reduced = ReducedFont::make(face.hbFace(), glyphs, ids);
    if (!reduced) {
        throw Error(Reasons::tr("the font %1 cannot be embedded")
                        .arg(QString::fromLatin1(face.postScriptName())));
    }
    FontSubset subset;
    subset.program = reduced->cffTable();
    if (!subset.program.isEmpty()) {
        subset.kind = FontSubset::Kind::Cff;
        subset.cids = cidsOf(*cids, reduced->glyphs());
        return subset;
    }
    subset.program = reduced->file();
    for (const std::uint16_t glyph : glyphs) {
        subset.newIds[glyph] = reduced->idOf(glyph);
    }
    return subset;
}

} // namespace folioforge
