// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/FontCascade.h"
#include "text/readable/TextRuns.h"

#include <QStringView>

#include <vector>

namespace folioforge {

/// A glyph of a run. Lengths are in points.
struct PlacedGlyph {
    Glyph glyph;
    qsizetype first = 0; ///< The units that it is drawn for, with others or alone.
    qsizetype end = 0;
    double advance = 0; ///< To the place of the next glyph.
    double right = 0;   ///< From its place to where it is drawn.
    double up = 0;
    bool hasText = true; ///< Whether it stands for a character of its own.
};

/// The glyphs of a run of `paragraph`, from left to right, joined and shaped as its script demands
/// (by HarfBuzz). Letters are not moved together in pairs, so that a word has one width everywhere.
std::vector<PlacedGlyph> shape(QStringView paragraph, const TextRun &run, const FontCascade &font);

} // namespace folioforge
