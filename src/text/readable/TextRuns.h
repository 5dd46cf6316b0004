// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/FontCascade.h"
#include "text/MissingGlyphs.h"
#include "text/readable/TextDirections.h"

#include <QStringView>

#include <cstdint>
#include <vector>

namespace folioforge {

/// Units of a paragraph that have one direction, one script and one face: what is shaped at a time.
struct TextRun {
    qsizetype first = 0;
    qsizetype end = 0;
    bool rightToLeft = false;
    std::uint16_t face = 0; ///< As in Glyph::face.
    int script = 0;         ///< A UScriptCode of ICU.
};

/// The runs of a paragraph, in the order of its units. Blanks, marks, digits and points stay in the
/// run that they follow, where its face has them. A tab is a run of its own. Characters that no
/// face has go to `missing`.
std::vector<TextRun> findRuns(QStringView paragraph, const std::vector<DirectedRun> &directed,
                              const FontCascade &font, MissingGlyphs &missing);

} // namespace folioforge
