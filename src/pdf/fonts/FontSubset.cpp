// SPDX-License-Identifier: Apache-2.0

#include "pdf/fonts/FontSubset.h"

#include "error/Error.h"
#include "pdf/fonts/GlyphCids.h"
#include "text/FontFace.h"

#include <hb-subset.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

struct Release {
    void operator()(hb_subset_input_t *input) const { hb_subset_input_destroy(input); }
    void operator()(hb_subset_plan_t *plan) const { hb_subset_plan_destroy(plan); }
    void operator()(hb_face_t *face) const { hb_face_destroy(face); }
    void operator()(hb_blob_t *blob) const { hb_blob_destroy(blob); }
};
template<typename Handle> using Owned = std::unique_ptr<Handle, Release>;

/// Tables for shaping, naming, screens or variation: a PDF names glyphs by number and has widths
/// and metrics of its own.
constexpr hb_tag_t kDropped[] = {
    HB_TAG('G', 'S', 'U', 'B'), HB_TAG('G', 'P', 'O', 'S'), HB_TAG('G', 'D', 'E', 'F'),
    HB_TAG('B', 'A', 'S', 'E'), HB_TAG('J', 'S', 'T', 'F'), HB_TAG('M', 'A', 'T', 'H'),
    HB_TAG('c', 'm', 'a', 'p'), HB_TAG('p', 'o', 's', 't'), HB_TAG('n', 'a', 'm', 'e'),
    HB_TAG('O', 'S', '/', '2'), HB_TAG('k', 'e', 'r', 'n'), HB_TAG('D', 'S', 'I', 'G'),
    HB_TAG('g', 'a', 's', 'p'), HB_TAG('h', 'd', 'm', 'x'), HB_TAG('V', 'D', 'M', 'X'),
    HB_TAG('L', 'T', 'S', 'H'), HB_TAG('V', 'O', 'R', 'G'), HB_TAG('v', 'h', 'e', 'a'),
    HB_TAG('v', 'm', 't', 'x'), HB_TAG('f', 'v', 'a', 'r'), HB_TAG('g', 'v', 'a', 'r'),
    HB_TAG('a', 'v', 'a', 'r'), HB_TAG('H', 'V', 'A', 'R'), HB_TAG('V', 'V', 'A', 'R'),
    HB_TAG('M', 'V', 'A', 'R'), HB_TAG('S', 'T', 'A', 'T'), HB_TAG('F', 'F', 'T', 'M'),
    HB_TAG('m', 'e', 't', 'a'),
};

Owned<hb_subset_input_t> makeInput(const std::optional<GlyphCids> &cids,
                                   const std::set<std::uint16_t> &glyphs) {
    Owned<hb_subset_input_t> input(hb_subset_input_create_or_fail());
    if (!input) {
        throw std::bad_alloc();
    }
    hb_set_t *wanted = hb_subset_input_glyph_set(input.get());
    for (const std::uint16_t glyph : glyphs) {
        hb_set_add(wanted, glyph);
    }
    hb_set_t *dropped = hb_subset_input_set(input.get(), HB_SUBSET_SETS_DROP_TABLE_TAG);
    for (const hb_tag_t tag : kDropped) {
        hb_set_add(dropped, tag);
    }
    // Without this the missing-glyph box has no outline.
    unsigned flags = HB_SUBSET_FLAGS_NOTDEF_OUTLINE | HB_SUBSET_FLAGS_NO_HINTING;
    // Readers find the glyphs of a CFF without CIDs by their order.
    if (cids && !cids->isCidKeyed()) {
        flags |= HB_SUBSET_FLAGS_RETAIN_GIDS;
    }
    hb_subset_input_set_flags(input.get(), flags);
    return input;
}

QByteArray bytesOf(const Owned<hb_blob_t> &blob) {
    unsigned length = 0;
    const char *data = hb_blob_get_data(blob.get(), &length);
    return {data, static_cast<qsizetype>(length)};
}

Owned<hb_blob_t> cffTable(hb_face_t *face) {
    return Owned<hb_blob_t>(hb_face_reference_table(face, HB_TAG('C', 'F', 'F', ' ')));
}

} // namespace

FontSubset makeFontSubset(const FontFace &face, const std::optional<GlyphCids> &cids,
                          const std::set<std::uint16_t> &glyphs) {
    const auto input = makeInput(cids, glyphs);
    const Owned<hb_subset_plan_t> plan(hb_subset_plan_create_or_fail(face.hbFace(), input.get()));
    const Owned<hb_face_t> reduced(plan ? hb_subset_plan_execute_or_fail(plan.get()) : nullptr);
    if (!reduced) {
        throw Error(
            u"the font %1 cannot be embedded"_s.arg(QString::fromLatin1(face.postScriptName())));
    }
    FontSubset subset;
    subset.program = bytesOf(cffTable(reduced.get()));
    if (!subset.program.isEmpty()) {
        subset.kind = FontSubset::Kind::Cff;
        return subset;
    }
    subset.program = bytesOf(Owned<hb_blob_t>(hb_face_reference_blob(reduced.get())));
    const hb_map_t *newIds = hb_subset_plan_old_to_new_glyph_mapping(plan.get());
    for (const std::uint16_t glyph : glyphs) {
        subset.newIds[glyph] = static_cast<std::uint16_t>(hb_map_get(newIds, glyph));
    }
    return subset;
}

} // namespace folioforge
