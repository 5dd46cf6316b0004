// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "text/FontCascade.h"
#include "text/MissingGlyphs.h"
#include "text/readable/LineBreaks.h"
#include "text/readable/Shaping.h"
#include "text/readable/TextDirections.h"
#include "text/readable/TextRuns.h"

#include <QStringView>

#include <optional>
#include <span>
#include <vector>

namespace folioforge {

/// Units of a paragraph that stand in one row.
struct TextRow {
    qsizetype first = 0;
    qsizetype end = 0;     ///< Where the next row begins.
    qsizetype visible = 0; ///< The end without the blanks at it, which take no room.
    double width = 0;      ///< Points, of what is visible.
};

/// Glyphs of a row that follow each other without a gap.
struct RowPiece {
    qsizetype first = 0; ///< The unit that it begins with.
    double x = 0;        ///< Points from the left end of the row.
    double up = 0;       ///< Points above the baseline.
    std::span<const Glyph> glyphs;
    /// What this piece and its neighbours of the same units are read as together, where a reader
    /// could not tell from the glyphs and their places; else empty.
    QStringView readAs = {};
};

/// In which order the pieces of a row come.
enum class PieceOrder {
    Drawn, ///< From left to right.
    Read   ///< As they are read, with a blank for each tab and those at the row's end.
};

/// A paragraph whose characters have their glyphs and widths. It is cut into rows one by one.
class Paragraph {
  public:
    /// Shapes `text`, a paragraph without the character that ends it, or the rest of one.
    /// Characters that no face has go to `missing`. `text` and the others are to live as long as
    /// this. Throws Error when a face cannot be read.
    Paragraph(QStringView text, const FontCascade &font, LineBreaks &breaks,
              MissingGlyphs &missing);

    /// Whether rows begin at the right.
    [[nodiscard]] bool isRightToLeft() const {
        return m_directions && m_directions->isRightToLeft();
    }
    /// The row that begins with the unit `first`: what fits into `width` points, but at least one
    /// character. A tab leads to the next multiple of `tabStop` points.
    [[nodiscard]] TextRow takeRow(qsizetype first, double width, double tabStop);
    /// How far the letters of a row reach whose faces want more room than the first one; nothing
    /// where there are none.
    [[nodiscard]] RowReach reach(const TextRow &row) const;
    /// The pieces of a row that was taken. They live until the next call.
    [[nodiscard]] std::span<const RowPiece> pieces(const TextRow &row,
                                                   PieceOrder order = PieceOrder::Drawn);

  private:
    struct Run {
        TextRun run;
        std::vector<PlacedGlyph> glyphs;
        RowReach reach = {}; ///< None where it takes no more room than the first face.
    };

    void shapePlain(const FontCascade &font, MissingGlyphs &missing);
    [[nodiscard]] TextRow rowTo(qsizetype first, qsizetype end) const;
    /// Whether a row may begin with the unit: whether its glyphs are its own.
    [[nodiscard]] bool begins(qsizetype unit) const;
    [[nodiscard]] std::vector<DirectedRun> visualRuns(const TextRow &row) const;
    /// The runs of which something stands in the part.
    [[nodiscard]] std::span<const Run> runsOf(const DirectedRun &part) const;
    /// Puts what of the run stands in the part to the right of what there is.
    void place(const Run &run, const DirectedRun &part);
    void place(std::span<const PlacedGlyph> cluster, bool rightToLeft);
    void place(const PlacedGlyph &placed, QStringView readAs, bool rightToLeft);
    /// Whether the glyph is read behind what was placed last.
    [[nodiscard]] bool isReadNext(const PlacedGlyph &placed, bool rightToLeft) const;
    /// Puts a blank for the unit at the pen, which does not move.
    void placeBlank(qsizetype unit);

    QStringView m_text;
    Glyph m_blank;
    LineBreaks &m_breaks;
    std::optional<TextDirections> m_directions; ///< Where the direction may change.
    std::vector<Run> m_runs;
    std::vector<double> m_advances; ///< Points, of the first of the units that share glyphs.
    std::vector<bool> m_begins;     ///< Which units are the first of those.

    std::vector<RowPiece> m_pieces;
    std::vector<Glyph> m_glyphs; ///< Of the pieces.
    PieceOrder m_order = PieceOrder::Drawn;
    double m_pen = 0;
    double m_pieceEnd = 0;
    qsizetype m_unitsEnd = 0; ///< Behind those of the last piece.
};

} // namespace folioforge
