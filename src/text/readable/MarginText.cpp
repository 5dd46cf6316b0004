// SPDX-License-Identifier: Apache-2.0

#include "text/readable/MarginText.h"

#include "error/Reasons.h"
#include "text/readable/Paragraph.h"
#include "text/readable/RowDrawing.h"

#include <QRegularExpression>

#include <algorithm>
#include <deque>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

struct Placeholder {
    QLatin1StringView word;
    std::function<QString(const PageMetadata &)> fact;
};

const std::vector<Placeholder> &knownPlaceholders() {
    static const std::vector<Placeholder> known{
        {"{file}"_L1, [](const PageMetadata &metadata) { return metadata.file; }},
        {"{page}"_L1, [](const PageMetadata &metadata) { return QString::number(metadata.page); }},
        {"{pages}"_L1,
         [](const PageMetadata &metadata) { return QString::number(metadata.pages); }},
        {"{date}"_L1, [](const PageMetadata &metadata) { return metadata.date; }},
    };
    return known;
}

/// The words in braces of `text`, or from an open brace to its end.
QRegularExpressionMatchIterator wordsInBraces(const QString &text) {
    static const QRegularExpression words(u"\\{[^}]*\\}?"_s);
    return words.globalMatch(text);
}

const Placeholder *placeholderCalled(QStringView word) {
    const auto &known = knownPlaceholders();
    const auto found = std::ranges::find_if(
        known, [word](const Placeholder &placeholder) { return word == placeholder.word; });
    return found == known.end() ? nullptr : &*found;
}

/// A row of one of the paragraphs of a margin.
struct MarginRow {
    Paragraph *paragraph;
    TextRow row;
    RowRoom room;
};

/// Takes out the rows that the band has no room for, and tells whether there are such; `height`
/// becomes that of the others.
bool cutToFit(std::vector<MarginRow> &rows, double bandHeight, double &height) {
    constexpr double kRounding = 1e-6;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (height + rows[i].room.height > bandHeight + kRounding) {
            rows.resize(i);
            return true;
        }
        height += rows[i].room.height;
    }
    return false;
}

} // namespace

QStringList placeholders() {
    QStringList words;
    for (const Placeholder &known : knownPlaceholders()) {
        words += known.word;
    }
    return words;
}

QString unknownPlaceholder(const QString &text) {
    for (const QRegularExpressionMatch &match : wordsInBraces(text)) {
        if (placeholderCalled(match.capturedView()) == nullptr) {
            return match.captured();
        }
    }
    return {};
}

QString withMetadata(const QString &text, const PageMetadata &metadata) {
    QString result;
    qsizetype taken = 0;
    for (const QRegularExpressionMatch &match : wordsInBraces(text)) {
        const Placeholder *known = placeholderCalled(match.capturedView());
        result += QStringView(text).sliced(taken, match.capturedStart() - taken);
        result += known != nullptr ? known->fact(metadata) : match.captured();
        taken = match.capturedEnd();
    }
    return result += QStringView(text).sliced(taken);
}

void MarginText::setInto(const QRectF &band, QStringView text, TextPageSink &sink) {
    requireFont(m_font, text);
    constexpr double kBlanks = 8;
    const double tabStop = kBlanks * m_font.glyph(U' ').advance;
    std::deque<Paragraph> paragraphs;
    std::vector<MarginRow> rows;
    while (!text.isEmpty()) {
        const auto end = std::find_if(text.utf16(), text.utf16() + text.size(), endsLine);
        const QStringView line = text.first(end - text.utf16());
        Paragraph &paragraph = paragraphs.emplace_back(line, m_font, m_breaks, m_missing);
        qsizetype taken = 0;
        do {
            const TextRow row = paragraph.takeRow(taken, band.width(), tabStop);
            rows.push_back({&paragraph, row, roomOf(paragraph.reach(row), m_font)});
            taken = row.end;
        } while (taken < line.size());
        text = withoutLineEnd(text.sliced(line.size()));
    }
    double height = 0;
    m_isCut |= cutToFit(rows, band.height(), height);
    double top = band.center().y() + height / 2;
    for (const MarginRow &at : rows) {
        const double x = band.center().x() - at.row.width / 2;
        drawRow(*at.paragraph, at.row, x, top - at.room.ascent, sink);
        top -= at.room.height;
    }
}

Warnings MarginText::warnings() const {
    Warnings warnings = m_missing.warnings();
    if (m_isCut) {
        warnings.push_back({WarningCode::MarginTextCut,
                            Reasons::tr("The header or the footer has more rows than its margin")});
    }
    return warnings;
}

} // namespace folioforge
