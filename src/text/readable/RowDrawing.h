// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/TextPageLayout.h"
#include "text/readable/Paragraph.h"

namespace folioforge {

/// What a row takes of the height of a page, in points.
struct RowRoom {
    double ascent = 0; ///< From its top to its baseline.
    double height = 0;
};

/// The room of a row of `font` whose letters reach as far: that of the first face, and more where
/// they want it.
RowRoom roomOf(const RowReach &reach, const FontCascade &font);

/// Gives a row that was taken from `paragraph` to `sink`: its left end at `x`, its baseline at `y`,
/// in points.
void drawRow(Paragraph &paragraph, const TextRow &row, double x, double y, TextPageSink &sink);

} // namespace folioforge
