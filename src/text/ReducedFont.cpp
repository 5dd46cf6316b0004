// SPDX-License-Identifier: Apache-2.0

#include "text/ReducedFont.h"

#include <hb-subset.h>

#include <new>
#include <utility>

namespace folioforge {
namespace {

constexpr hb_tag_t kCff = HB_TAG('C', 'F', 'F', ' ');

/// Without tables for shaping, naming, screens or variation: a PDF names glyphs by number and has
/// widths and metrics of its own.
constexpr hb_tag_t kKept[] = {
    HB_TAG('h', 'e', 'a', 'd'),
    HB_TAG('m', 'a', 'x', 'p'),
    HB_TAG('h', 'h', 'e', 'a'),
    HB_TAG('h', 'm', 't', 'x'),
    HB_TAG('l', 'o', 'c', 'a'),
    HB_TAG('g', 'l', 'y', 'f'),
    kCff,
};

HarfBuzz<hb_subset_input_t> makeInput(const std::set<std::uint16_t> &glyphs,
                                      ReducedFont::GlyphIds ids) {
    HarfBuzz<hb_subset_input_t> input(hb_subset_input_create_or_fail());
    if (!input) {
        throw std::bad_alloc();
    }
    hb_set_t *wanted = hb_subset_input_glyph_set(input.get());
    for (const std::uint16_t glyph : glyphs) {
        hb_set_add(wanted, glyph);
    }
    hb_set_t *dropped = hb_subset_input_set(input.get(), HB_SUBSET_SETS_DROP_TABLE_TAG);
    hb_set_clear(dropped);
    for (const hb_tag_t tag : kKept) {
        hb_set_add(dropped, tag);
    }
    hb_set_invert(dropped);
    // Without this the missing-glyph box has no outline.
    unsigned flags = HB_SUBSET_FLAGS_NOTDEF_OUTLINE | HB_SUBSET_FLAGS_NO_HINTING;
    if (ids == ReducedFont::GlyphIds::Kept) {
        flags |= HB_SUBSET_FLAGS_RETAIN_GIDS;
    }
    hb_subset_input_set_flags(input.get(), flags);
    return input;
}

QByteArray bytesOf(const HarfBuzz<hb_blob_t> &blob) {
    unsigned length = 0;
    const char *data = hb_blob_get_data(blob.get(), &length);
    return {data, static_cast<qsizetype>(length)};
}

} // namespace

ReducedFont::ReducedFont(HarfBuzz<hb_subset_plan_t> plan, HarfBuzz<hb_face_t> face)
    : m_plan(std::move(plan))
    , m_face(std::move(face)) {}

std::optional<ReducedFont> ReducedFont::make(hb_face_t *face, const std::set<std::uint16_t> &glyphs,
                                             GlyphIds ids) {
    const auto input = makeInput(glyphs, ids);
    HarfBuzz<hb_subset_plan_t> plan(hb_subset_plan_create_or_fail(face, input.get()));
    HarfBuzz<hb_face_t> reduced(plan ? hb_subset_plan_execute_or_fail(plan.get()) : nullptr);
    if (!reduced) {
        return std::nullopt;
    }
    return ReducedFont(std::move(plan), std::move(reduced));
}

QByteArray ReducedFont::cffTable() const {
    return bytesOf(HarfBuzz<hb_blob_t>(hb_face_reference_table(m_face.get(), kCff)));
}

QByteArray ReducedFont::file() const {
    return bytesOf(HarfBuzz<hb_blob_t>(hb_face_reference_blob(m_face.get())));
}

std::uint16_t ReducedFont::idOf(std::uint16_t glyph) const {
    return static_cast<std::uint16_t>(
        hb_map_get(hb_subset_plan_old_to_new_glyph_mapping(m_plan.get()), glyph));
}

std::set<std::uint16_t> ReducedFont::glyphs() const {
    const hb_map_t *old = hb_subset_plan_new_to_old_glyph_mapping(m_plan.get());
    std::set<std::uint16_t> glyphs;
    for (unsigned id = 0; id < hb_face_get_glyph_count(m_face.get()); ++id) {
        if (hb_map_has(old, id) != 0) {
            glyphs.insert(static_cast<std::uint16_t>(hb_map_get(old, id)));
        }
    }
    return glyphs;
}

} // namespace folioforge
