// SPDX-License-Identifier: Apache-2.0

#include "text/readable/Paragraph.h"

#include <unicode/uscript.h>

#include <algorithm>
#include <cmath>

namespace folioforge {
namespace {

/// Whether the glyphs of a text are those of its characters, one after the other: letters of Latin
/// scripts without marks of their own.
bool isPlain(QStringView text) {
    constexpr char16_t kFirstMark = 0x0300;
    constexpr char16_t kSoftHyphen = 0x00AD;
    return std::all_of(text.utf16(), text.utf16() + text.size(),
                       [](char16_t unit) { return unit < kFirstMark && unit != kSoftHyphen; });
}

bool isBlank(QChar unit) {
    return unit == u' ' || unit == u'\t' || unit == u'\u3000';
}

/// Whether letters of a script take no more room than the first face has, whatever their own face
/// asks for: they stand in a square, or are signs that come one by one.
bool isLow(int script) {
    switch (static_cast<UScriptCode>(script)) {
    case USCRIPT_COMMON:
    case USCRIPT_INHERITED:
    case USCRIPT_HAN:
    case USCRIPT_HIRAGANA:
    case USCRIPT_KATAKANA:
    case USCRIPT_HANGUL:
    case USCRIPT_BOPOMOFO:
        return true;
    default:
        return false;
    }
}

/// What a run wants beyond the room of the first face; what is hardly more is nothing, so that rows
/// with a foreign word stay even.
RowReach reachOf(const TextRun &run, const FontCascade &font) {
    constexpr double kHardlyMore = 1.05;
    if (run.face == 0 || isLow(run.script)) {
        return {};
    }
    const RowReach reach = font.reach(run.face);
    return reach.ascent + reach.descent > kHardlyMore * font.rowHeight() ? reach : RowReach{};
}

} // namespace

Paragraph::Paragraph(QStringView text, const FontCascade &font, LineBreaks &breaks,
                     MissingGlyphs &missing)
    : m_text(text)
    , m_blank(font.glyph(U' '))
    , m_breaks(breaks)
    , m_advances(static_cast<std::size_t>(text.size()))
    , m_begins(static_cast<std::size_t>(text.size())) {
    breaks.setText(text);
    if (isPlain(text)) {
        shapePlain(font, missing);
    } else {
        if (TextDirections::matter(text)) {
            m_directions.emplace(text);
        }
        const auto directed = m_directions ? m_directions->logicalRuns()
                                           : std::vector<DirectedRun>{{0, text.size(), false}};
        for (const TextRun &run : findRuns(text, directed, font, missing)) {
            m_runs.push_back({run, shape(text, run, font), reachOf(run, font)});
        }
    }
    std::size_t count = 0;
    for (const Run &run : m_runs) {
        count += run.glyphs.size();
        for (const PlacedGlyph &placed : run.glyphs) {
            m_advances[static_cast<std::size_t>(placed.first)] += placed.advance;
            m_begins[static_cast<std::size_t>(placed.first)] = true;
        }
    }
    // The pieces point into it. What has no glyph may be a blank.
    m_glyphs.reserve(count + static_cast<std::size_t>(text.size()));
}

void Paragraph::shapePlain(const FontCascade &font, MissingGlyphs &missing) {
    Run run{{0, m_text.size()}, {}};
    run.glyphs.reserve(static_cast<std::size_t>(m_text.size()));
    for (qsizetype i = 0; i < m_text.size(); ++i) {
        const Glyph glyph = font.glyph(m_text[i].unicode());
        if (font.isMissing(glyph)) {
            missing.add(glyph);
        }
        run.glyphs.push_back({glyph, i, i + 1, glyph.advance});
    }
    m_runs.push_back(std::move(run));
}

TextRow Paragraph::rowTo(qsizetype first, qsizetype end) const {
    TextRow row{first, end, end};
    while (row.visible > first && isBlank(m_text[row.visible - 1])) {
        --row.visible;
    }
    for (qsizetype i = first; i < row.visible; ++i) {
        row.width += m_advances[static_cast<std::size_t>(i)];
    }
    return row;
}

bool Paragraph::begins(qsizetype unit) const {
    return unit == m_text.size() || m_begins[static_cast<std::size_t>(unit)];
}

TextRow Paragraph::takeRow(qsizetype first, double width, double tabStop) {
    constexpr double kRounding = 1e-6;
    double at = 0;
    for (qsizetype i = first; i < m_text.size(); ++i) {
        double &advance = m_advances[static_cast<std::size_t>(i)];
        if (m_text[i] == u'\t') {
            advance = (std::floor(at / tabStop + kRounding) + 1) * tabStop - at;
        }
        if (i > first && at + advance > width + kRounding && !isBlank(m_text[i]) && advance > 0) {
            qsizetype end = m_breaks.lastAtOrBefore(i);
            while (end > first && !begins(end)) {
                --end; // A break before a mark that is drawn with the blank in front of it.
            }
            return rowTo(first, end > first ? end : i);
        }
        at += advance;
    }
    return rowTo(first, m_text.size());
}

RowReach Paragraph::reach(const TextRow &row) const {
    RowReach most;
    auto run = std::ranges::partition_point(
        m_runs, [&](const Run &each) { return each.run.end <= row.first; });
    for (; run != m_runs.end() && run->run.first < row.visible; ++run) {
        most = {std::max(most.ascent, run->reach.ascent),
                std::max(most.descent, run->reach.descent)};
    }
    return most;
}

std::vector<DirectedRun> Paragraph::visualRuns(const TextRow &row) const {
    if (row.visible == row.first) {
        return {};
    }
    return m_directions ? m_directions->visualRuns(row.first, row.visible)
                        : std::vector<DirectedRun>{{row.first, row.visible, false}};
}

std::span<const Paragraph::Run> Paragraph::runsOf(const DirectedRun &part) const {
    const auto first = std::ranges::partition_point(
        m_runs, [&](const Run &each) { return each.run.end <= part.first; });
    const auto end = std::partition_point(
        first, m_runs.end(), [&](const Run &each) { return each.run.first < part.end; });
    return {first, end};
}

std::span<const RowPiece> Paragraph::pieces(const TextRow &row, PieceOrder order) {
    m_pieces.clear();
    m_glyphs.clear();
    m_pen = 0;
    m_order = order;
    for (const DirectedRun &part : visualRuns(row)) {
        const std::span<const Run> runs = runsOf(part);
        for (std::size_t i = 0; i < runs.size(); ++i) {
            place(runs[part.rightToLeft ? runs.size() - 1 - i : i], part);
        }
    }
    if (order == PieceOrder::Read && row.visible > row.first) {
        for (qsizetype i = row.visible; i < row.end; ++i) {
            placeBlank(i);
        }
        std::ranges::stable_sort(m_pieces, {}, &RowPiece::first);
    }
    return m_pieces;
}

void Paragraph::placeBlank(qsizetype unit) {
    m_glyphs.push_back(m_blank);
    m_pieces.push_back({unit, m_pen, 0, {&m_glyphs.back(), 1}});
    m_unitsEnd = m_text.size() + 1; // Nothing goes on behind it.
}

void Paragraph::place(const Run &run, const DirectedRun &part) {
    const auto isBefore = [&](const PlacedGlyph &placed) {
        return run.run.rightToLeft ? placed.first >= part.end : placed.first < part.first;
    };
    auto placed = std::ranges::partition_point(run.glyphs, isBefore);
    while (placed != run.glyphs.end() && placed->first >= part.first && placed->first < part.end) {
        const auto end = std::find_if(placed, run.glyphs.end(), [&](const PlacedGlyph &other) {
            return other.first != placed->first;
        });
        if (m_text[placed->first] == u'\t') {
            if (m_order == PieceOrder::Read) {
                placeBlank(placed->first);
            }
            m_pen += m_advances[static_cast<std::size_t>(placed->first)];
        } else {
            place({placed, end}, run.run.rightToLeft);
        }
        placed = end;
    }
}

void Paragraph::place(std::span<const PlacedGlyph> cluster, bool rightToLeft) {
    const auto before = static_cast<std::ptrdiff_t>(m_pieces.size());
    const bool isClear = std::ranges::all_of(cluster, [](const PlacedGlyph &placed) {
        return placed.hasText && placed.right == 0 && placed.up == 0;
    });
    const PlacedGlyph &first = cluster.front();
    const QStringView readAs =
        isClear ? QStringView() : m_text.sliced(first.first, first.end - first.first);
    for (const PlacedGlyph &placed : cluster) {
        place(placed, readAs, rightToLeft);
    }
    if (m_order == PieceOrder::Read && rightToLeft) {
        std::reverse(m_pieces.begin() + before, m_pieces.end());
    }
}

bool Paragraph::isReadNext(const PlacedGlyph &placed, bool rightToLeft) const {
    const bool isOfSameUnits = placed.end == m_unitsEnd;
    return m_order == PieceOrder::Drawn ||
           (!rightToLeft && (placed.first == m_unitsEnd || isOfSameUnits));
}

void Paragraph::place(const PlacedGlyph &placed, QStringView readAs, bool rightToLeft) {
    constexpr double kTolerance = 1e-4; // Far less than a reader can show.
    const double x = m_pen + placed.right;
    const bool follows = !m_pieces.empty() && std::abs(x - m_pieceEnd) < kTolerance &&
                         m_pieces.back().up == placed.up &&
                         m_pieces.back().readAs.data() == readAs.data() &&
                         isReadNext(placed, rightToLeft);
    m_glyphs.push_back(placed.glyph);
    if (follows) {
        RowPiece &piece = m_pieces.back();
        piece.glyphs = {piece.glyphs.data(), piece.glyphs.size() + 1};
    } else {
        m_pieces.push_back({placed.first, x, placed.up, {&m_glyphs.back(), 1}, readAs});
        m_pieceEnd = x;
    }
    m_unitsEnd = placed.end;
    m_pieceEnd += placed.glyph.advance;
    m_pen += placed.advance;
}

} // namespace folioforge
