// SPDX-License-Identifier: Apache-2.0

#include "pdf/fonts/GlyphCids.h"

#include "text/FontFace.h"

#include <ft2build.h>
#include <hb.h>

#include <new>
#include FT_FREETYPE_H
#include FT_CID_H

namespace folioforge {
namespace {

void requireMemory(FT_Error error) {
    if (error == FT_Err_Out_Of_Memory) {
        throw std::bad_alloc();
    }
}

} // namespace

void GlyphCids::Release::operator()(FT_Library library) const {
    FT_Done_FreeType(library);
}

void GlyphCids::Release::operator()(FT_Face face) const {
    FT_Done_Face(face);
}

GlyphCids::GlyphCids(HarfBuzz<hb_blob_t> table)
    : m_table(std::move(table)) {
    FT_Library library = nullptr;
    requireMemory(FT_Init_FreeType(&library));
    m_library.reset(library);
    unsigned length = 0;
    const char *data = hb_blob_get_data(m_table.get(), &length);
    FT_Face face = nullptr;
    requireMemory(FT_New_Memory_Face(library, reinterpret_cast<const FT_Byte *>(data),
                                     static_cast<FT_Long>(length), 0, &face));
    m_face.reset(face);
}

std::optional<GlyphCids> GlyphCids::read(const FontFace &face) {
    HarfBuzz<hb_blob_t> table(hb_face_reference_table(face.hbFace(), HB_TAG('C', 'F', 'F', ' ')));
    if (hb_blob_get_length(table.get()) == 0) {
        return std::nullopt;
    }
    return GlyphCids(std::move(table));
}

std::uint16_t GlyphCids::of(std::uint16_t glyph) const {
    FT_UInt cid = 0;
    const bool known = isCidKeyed() && glyph < m_face->num_glyphs &&
                       FT_Get_CID_From_Glyph_Index(m_face.get(), glyph, &cid) == 0;
    return known ? static_cast<std::uint16_t>(cid) : glyph;
}

bool GlyphCids::isCidKeyed() const {
    return m_face && FT_IS_CID_KEYED(m_face.get());
}

} // namespace folioforge
