// SPDX-License-Identifier: Apache-2.0

#include "text/readable/Shaping.h"

#include "text/HarfBuzz.h"

#include <hb.h>
#include <unicode/uscript.h>

#include <array>
#include <new>
#include <span>

namespace folioforge {
namespace {

/// Ligatures such as "fi" are an ornament in these scripts, and no reader finds their letters.
bool joinsForOrnament(int script) {
    return script == USCRIPT_LATIN || script == USCRIPT_GREEK || script == USCRIPT_CYRILLIC;
}

HarfBuzz<hb_buffer_t> shaped(QStringView paragraph, const TextRun &run, const FontFace &face) {
    HarfBuzz<hb_buffer_t> buffer(hb_buffer_create());
    hb_buffer_add_utf16(buffer.get(), reinterpret_cast<const std::uint16_t *>(paragraph.utf16()),
                        static_cast<int>(paragraph.size()), static_cast<unsigned>(run.first),
                        static_cast<int>(run.end - run.first));
    hb_buffer_set_direction(buffer.get(), run.rightToLeft ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    const char *script = uscript_getShortName(static_cast<UScriptCode>(run.script));
    hb_buffer_set_script(buffer.get(), hb_script_from_string(script, -1));
    hb_buffer_guess_segment_properties(buffer.get()); // Where the run has no script of its own.
    const auto whole = static_cast<unsigned>(-1);
    const std::array<hb_feature_t, 2> features{
        hb_feature_t{HB_TAG('k', 'e', 'r', 'n'), 0, 0, whole},
        hb_feature_t{HB_TAG('l', 'i', 'g', 'a'), joinsForOrnament(run.script) ? 0U : 1U, 0, whole}};
    hb_shape(face.hbFont(), buffer.get(), features.data(), features.size());
    if (!hb_buffer_allocation_successful(buffer.get())) {
        throw std::bad_alloc();
    }
    return buffer;
}

/// Glyphs of HarfBuzz that are drawn for the same units: a letter with its marks, or a ligature.
struct Cluster {
    qsizetype firstUnit = 0;
    qsizetype endUnit = 0;
    std::size_t first = 0; ///< Of its glyphs.
    std::size_t end = 0;
};

/// The clusters of a run, from left to right.
std::vector<Cluster> clustersOf(const TextRun &run, std::span<const hb_glyph_info_t> infos) {
    std::vector<Cluster> clusters;
    for (std::size_t i = 0; i < infos.size(); ++i) {
        const qsizetype unit = infos[i].cluster;
        if (clusters.empty() || clusters.back().firstUnit != unit) {
            clusters.push_back({unit, run.end, i, i});
        }
        clusters.back().end = i + 1;
    }
    for (std::size_t i = 1; i < clusters.size(); ++i) {
        if (run.rightToLeft) {
            clusters[i].endUnit = clusters[i - 1].firstUnit;
        } else {
            clusters[i - 1].endUnit = clusters[i].firstUnit;
        }
    }
    return clusters;
}

/// What of `text` the glyph at `index` of `count` stands for, in the order of reading: a character
/// each, and the last one all that is left. A reader that takes glyph by glyph then has it whole.
QString shareOf(const QList<uint> &text, qsizetype index, qsizetype count) {
    if (index >= text.size()) {
        return {};
    }
    const qsizetype length = index + 1 < count ? 1 : text.size() - index;
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(text.data()) + index, length);
}

/// The glyph of the document for one of HarfBuzz.
Glyph documentGlyph(std::uint16_t face, std::uint16_t id, const QString &text,
                    const FontCascade &font) {
    if (const auto characters = text.toUcs4(); characters.size() == 1) {
        const Glyph usual = font.glyph(characters.front());
        // A control character has the glyph of a blank, which HarfBuzz does not know.
        if (usual.face == face && (usual.id == id || id == 0)) {
            return usual;
        }
    }
    // A box of a face that is not the first one's, unless something stands for boxes.
    const Glyph missing = font.missingGlyph();
    const bool isReplaced = id == 0 && missing.id != 0;
    return isReplaced ? font.form(missing.face, missing.id, text) : font.form(face, id, text);
}

} // namespace

std::vector<PlacedGlyph> shape(QStringView paragraph, const TextRun &run, const FontCascade &font) {
    const FontFace &face = font.face(run.face);
    const HarfBuzz<hb_buffer_t> buffer = shaped(paragraph, run, face);
    unsigned count = 0;
    const hb_glyph_position_t *positions = hb_buffer_get_glyph_positions(buffer.get(), &count);
    const std::span infos(hb_buffer_get_glyph_infos(buffer.get(), &count), count);
    const double point = font.size() / face.unitsPerEm();
    std::vector<PlacedGlyph> glyphs;
    glyphs.reserve(count);
    for (const Cluster &cluster : clustersOf(run, infos)) {
        const auto text =
            paragraph.sliced(cluster.firstUnit, cluster.endUnit - cluster.firstUnit).toUcs4();
        for (std::size_t i = cluster.first; i < cluster.end; ++i) {
            const std::size_t read = run.rightToLeft ? cluster.end - 1 - i : i - cluster.first;
            const QString share = shareOf(text, static_cast<qsizetype>(read),
                                          static_cast<qsizetype>(cluster.end - cluster.first));
            const Glyph glyph = documentGlyph(
                run.face, static_cast<std::uint16_t>(infos[i].codepoint), share, font);
            const bool isBlank = infos[i].codepoint == 0 && glyph.id != 0;
            glyphs.push_back({glyph, cluster.firstUnit, cluster.endUnit,
                              isBlank ? glyph.advance : positions[i].x_advance * point,
                              positions[i].x_offset * point, positions[i].y_offset * point,
                              !share.isEmpty()});
        }
    }
    return glyphs;
}

} // namespace folioforge
