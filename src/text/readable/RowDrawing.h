// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/TextPageLayout.h"
#include "text/readable/Paragraph.h"

namespace folioforge {

/// Gives a row that was taken from `paragraph` to `sink`: its left end at `x`, its baseline at `y`,
/// in points.
void drawRow(Paragraph &paragraph, const TextRow &row, double x, double y, TextPageSink &sink);

} // namespace folioforge
