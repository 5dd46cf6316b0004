// SPDX-License-Identifier: Apache-2.0

#include "text/FontFace.h"

#include "text/ReducedFont.h"

#include <QtEndian>

#include <hb-ot.h>
#include <hb.h>

#include <array>

namespace folioforge {
namespace {

bool hasTable(hb_face_t *face, hb_tag_t tag) {
    const HarfBuzz<hb_blob_t> table(hb_face_reference_table(face, tag));
    return hb_blob_get_length(table.get()) > 0;
}

/// Keeps letters, digits, hyphens and underscores, which need no escape in a PDF name.
QByteArray readPostScriptName(hb_face_t *face) {
    std::array<char, 128> name{};
    auto length = static_cast<unsigned>(name.size());
    hb_ot_name_get_utf8(face, HB_OT_NAME_ID_POSTSCRIPT_NAME, HB_LANGUAGE_INVALID, &length,
                        name.data());
    QByteArray fit;
    for (const char byte : QByteArrayView(name.data(), static_cast<qsizetype>(length))) {
        const bool letter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
        if (letter || (byte >= '0' && byte <= '9') || byte == '-' || byte == '_') {
            fit += byte;
        }
    }
    return fit.isEmpty() ? QByteArrayLiteral("Font") : fit;
}

FontExtents readExtents(hb_font_t *font) {
    hb_font_extents_t extents{};
    hb_font_get_h_extents(font, &extents);
    return {extents.ascender, -extents.descender, extents.line_gap};
}

} // namespace

FontFace::FontFace(HarfBuzz<hb_face_t> face, HarfBuzz<hb_font_t> font)
    : m_face(std::move(face))
    , m_font(std::move(font))
    , m_postScriptName(readPostScriptName(m_face.get()))
    , m_extents(readExtents(m_font.get())) {}

std::unique_ptr<const FontFace> FontFace::open(const QByteArray &path, unsigned index) {
    const HarfBuzz<hb_blob_t> file(hb_blob_create_from_file_or_fail(path.constData()));
    if (!file) {
        return nullptr;
    }
    HarfBuzz<hb_face_t> face(hb_face_create(file.get(), index));
    if (hb_face_get_glyph_count(face.get()) == 0 ||
        !(hasTable(face.get(), HB_TAG('g', 'l', 'y', 'f')) ||
          hasTable(face.get(), HB_TAG('C', 'F', 'F', ' ')))) {
        return nullptr;
    }
    hb_face_make_immutable(face.get());
    if (!ReducedFont::make(face.get(), {}, ReducedFont::GlyphIds::Packed)) {
        return nullptr; // Damaged, which nobody should learn when the pages are drawn.
    }
    HarfBuzz<hb_font_t> font(hb_font_create(face.get()));
    return std::unique_ptr<const FontFace>(new FontFace(std::move(face), std::move(font)));
}

unsigned FontFace::unitsPerEm() const {
    return hb_face_get_upem(m_face.get());
}

FontBox FontFace::box() const {
    constexpr unsigned kFirstField = 36; // xMin of "head", then yMin, xMax, yMax
    constexpr unsigned kFields = 4;
    std::array<int, kFields> fields{};
    const HarfBuzz<hb_blob_t> head(
        hb_face_reference_table(m_face.get(), HB_TAG('h', 'e', 'a', 'd')));
    unsigned length = 0;
    const char *bytes = hb_blob_get_data(head.get(), &length);
    if (length >= kFirstField + 2 * kFields) {
        for (std::size_t i = 0; i < kFields; ++i) {
            fields[i] = qFromBigEndian<qint16>(bytes + kFirstField + 2 * i);
        }
    }
    return {fields[0], fields[1], fields[2], fields[3]};
}

std::optional<std::uint16_t> FontFace::glyph(char32_t character) const {
    hb_codepoint_t id = 0;
    if (hb_font_get_nominal_glyph(m_font.get(), character, &id) && id != 0) {
        return static_cast<std::uint16_t>(id);
    }
    return std::nullopt;
}

int FontFace::advance(std::uint16_t glyph) const {
    return hb_font_get_glyph_h_advance(m_font.get(), glyph);
}

} // namespace folioforge
