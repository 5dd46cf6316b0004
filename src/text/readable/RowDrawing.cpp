// SPDX-License-Identifier: Apache-2.0

#include "text/readable/RowDrawing.h"

#include <algorithm>

namespace folioforge {

RowRoom roomOf(const RowReach &reach, const FontCascade &font) {
    const double above = std::max(0.0, reach.ascent - font.ascent());
    const double below = std::max(0.0, reach.descent - font.descent());
    return {above + font.ascent(), above + static_cast<double>(font.rowHeight()) + below};
}

void drawRow(Paragraph &paragraph, const TextRow &row, double x, double y, TextPageSink &sink) {
    QStringView read;
    const auto readAs = [&](QStringView text) {
        if (text.data() == read.data()) {
            return;
        }
        if (!read.isEmpty()) {
            sink.endReading();
        }
        if (!text.isEmpty()) {
            sink.beginReading(text);
        }
        read = text;
    };
    const auto order = sink.wantsReadingOrder() ? PieceOrder::Read : PieceOrder::Drawn;
    for (const RowPiece &piece : paragraph.pieces(row, order)) {
        readAs(piece.readAs);
        sink.showRow(x + piece.x, y + piece.up, piece.glyphs);
    }
    readAs({});
}

} // namespace folioforge
