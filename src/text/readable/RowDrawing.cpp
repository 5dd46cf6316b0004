// SPDX-License-Identifier: Apache-2.0

#include "text/readable/RowDrawing.h"

namespace folioforge {

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
    for (const RowPiece &piece : paragraph.pieces(row)) {
        readAs(piece.readAs);
        sink.showRow(x + piece.x, y + piece.up, piece.glyphs);
    }
    readAs({});
}

} // namespace folioforge
