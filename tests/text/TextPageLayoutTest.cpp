// SPDX-License-Identifier: Apache-2.0

#include "text/TextPageLayout.h"
#include "error/Error.h"
#include "support/InstalledFonts.h"
#include "support/TestUnit.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTest>

#include <vector>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

const QSizeF kA4(595, 842);
const PageMargins kMargins{72, 72, 72, 72};

/// What was laid out, as values.
struct Row {
    double x = 0;
    double y = 0;
    std::vector<Glyph> glyphs;
};
using Page = std::vector<Row>;

class Recorder : public TextPageSink {
  public:
    void beginPage() override {
        ++open;
        pages.emplace_back();
    }
    void showRow(double x, double y, std::span<const Glyph> glyphs) override {
        pages.back().push_back({x, y, {glyphs.begin(), glyphs.end()}});
    }
    void endPage() override { --open; }

    int open = 0;
    std::vector<Page> pages;
};

std::shared_ptr<const FontCascade> font() {
    static const auto kept = FontCascade::load({u"Liberation Sans"_s}, 14);
    return kept;
}

std::vector<Page> layOut(const QString &text, QSizeF size = kA4,
                         const PageMargins &margins = kMargins) {
    Recorder recorder;
    layOutText(onePiece(text), size, margins, *font(), recorder);
    return recorder.open == 0 ? recorder.pages : std::vector<Page>();
}

/// The characters of a row; halves of pairs and boxes as they stand in its glyphs.
QString textOf(const Row &row) {
    QString text;
    for (const Glyph &glyph : row.glyphs) {
        text += glyph.character == kNoCharacter ? QString(QChar::ReplacementCharacter)
                                                : QString::fromUcs4(&glyph.character, 1);
    }
    return text;
}

QStringList rowTexts(const std::vector<Page> &pages) {
    QStringList rows;
    for (const Page &page : pages) {
        for (const Row &row : page) {
            rows += textOf(row);
        }
    }
    return rows;
}

/// Margins that leave exactly `usable` points of a page `usable` + 20 wide.
std::vector<Page> layOutInWidth(const QString &text, double usable) {
    return layOut(text, {usable + 20, 842}, {10, 10, 72, 72});
}

/// The font that the system has of `family`, as its only one.
std::shared_ptr<const FontCascade> onlyFont(const QString &family) {
    const QString file = QFile::decodeName(findTextFonts({family}).front().path());
    test::InstalledFonts fonts;
    fonts.add(file, family);
    return FontCascade::load({family}, 14);
}

std::shared_ptr<const FontCascade> latinOnly() {
    return onlyFont(u"Liberation Sans"_s);
}

/// What is said of a text in a font; each warning is of missing glyphs.
QStringList boxesIn(const QString &text, const FontCascade &font, double width = 595) {
    Recorder recorder;
    QStringList said;
    for (const Warning &warning :
         layOutText(onePiece(text), {width, 842}, {0, 0, 0, 0}, font, recorder)) {
        said += warning.code == WarningCode::MissingGlyphs ? warning.text : u"another"_s;
    }
    return said;
}

double advance(char32_t character) {
    return font()->glyph(character).advance;
}

/// The rows by measuring every prefix from its first unit anew.
QStringList rowsByPrefixMeasure(QString rest, double usable) {
    const auto drawn = [](QStringView prefix) {
        QString shown;
        for (qsizetype i = 0; i < prefix.size(); ++i) {
            const bool pair = prefix[i].isHighSurrogate() && i + 1 < prefix.size() &&
                              prefix[i + 1].isLowSurrogate();
            if (pair) {
                shown += prefix.sliced(i++, 2);
            } else {
                shown += prefix[i].isSurrogate() ? QChar(QChar::ReplacementCharacter) : prefix[i];
            }
        }
        return shown.replace(u'\t', u' '); // Which the font lacks.
    };
    QStringList rows;
    qsizetype k = 1;
    while (k <= rest.size()) {
        const QString prefix = rest.first(k);
        if (getStringSize(prefix, *font()).width() > usable) {
            rows += drawn(prefix);
            rest = rest.sliced(k);
            k = 1;
        } else {
            ++k;
        }
    }
    return rest.isEmpty() ? rows : rows + QStringList{drawn(rest)};
}

} // namespace

class TextPageLayoutTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void emptyTextIsOneBlankPage() {
        QCOMPARE(layOut(QString()).size(), std::size_t{1});
        QVERIFY(layOut(QString()).front().empty());
        QCOMPARE(layOut(u""_s).size(), std::size_t{1});
    }

    void onlyLineEndsAreOneBlankPage() {
        const auto pages = layOut(u"\n\r\n\u2028"_s.repeated(500));
        QCOMPARE(pages.size(), std::size_t{1});
        QVERIFY(pages.front().empty());
    }

    void blankLinesTakeNoRoom() {
        const auto pages = layOut(u"A\n\nB"_s);
        QCOMPARE(rowTexts(pages), QStringList({u"A"_s, u"B"_s}));
        const Page &page = pages.front();
        QCOMPARE(page[0].y - page[1].y, double(font()->rowHeight()));
    }

    void lineOfBlanksIsNotABlankLine() { QCOMPARE(rowTexts(layOut(u"A\n \nB"_s)).size(), 3); }

    void everyNewlineCharacterEndsALine_data() {
        QTest::addColumn<QString>("separator");
        for (const char16_t code :
             {u'\x0A', u'\x0B', u'\x0C', u'\x0D', u'\x85', u'\x2028', u'\x2029'}) {
            QTest::addRow("U+%04X", code) << QString(QChar(code));
        }
        QTest::newRow("CR LF") << u"\r\n"_s;
    }

    void everyNewlineCharacterEndsALine() {
        QFETCH(const QString, separator);
        QCOMPARE(rowTexts(layOut(u"one"_s + separator + u"two"_s)),
                 QStringList({u"one"_s, u"two"_s}));
    }

    void otherControlCharactersAreOrdinaryUnits_data() {
        QTest::addColumn<QString>("unit");
        for (const char16_t code : {u'\x00', u'\x01', u'\x09', u'\x08', u'\x0E', u'\x1C', u'\x1F',
                                    u'\x7F', u'\x84', u'\x86'}) {
            QTest::addRow("U+%04X", code) << QString(QChar(code));
        }
    }

    void otherControlCharactersAreOrdinaryUnits() {
        QFETCH(const QString, unit);
        const auto pages = layOut(u"a"_s + unit + u"b"_s);
        QCOMPARE(pages.front().size(), std::size_t{1});
        QCOMPARE(pages.front().front().glyphs.size(), std::size_t{3});
    }

    void firstBaselineIsBelowTheTopMarginByTheRowHeight() {
        const auto pages = layOut(u"A"_s, kA4, {50, 60, 100, 7});
        const Row &row = pages.front().front();
        QCOMPARE(row.x, 50.0);
        QCOMPARE(row.y, 842 - (100 + 16.0986328125));
    }

    void lineOfExactlyTheUsableWidthIsOneRow() {
        const double width = 7 * advance(U'A');
        QCOMPARE(rowTexts(layOutInWidth(u"AAAAAAA"_s, width)).size(), 1);
    }

    void rowOfExactlyTheUsableWidthIsNotFull() {
        const double width = 7 * advance(U'A');
        QCOMPARE(rowTexts(layOutInWidth(u"AAAAAAABC"_s, width)),
                 QStringList({u"AAAAAAAB"_s, u"C"_s}));
    }

    void lineJustWiderThanTheUsableWidthKeepsItsLastUnit() {
        const double width = 7 * advance(U'A') - 0.001;
        QCOMPARE(rowTexts(layOutInWidth(u"AAAAAAA"_s, width)).size(), 1);
        QCOMPARE(rowTexts(layOutInWidth(u"AAAAAAAB"_s, width)),
                 QStringList({u"AAAAAAA"_s, u"B"_s}));
    }

    void unitsWiderThanTheRowStandAlone() {
        QCOMPARE(rowTexts(layOutInWidth(u"WMW"_s, 2)), QStringList({u"W"_s, u"M"_s, u"W"_s}));
    }

    void rowHoldsAsManyUnitsAsFitPlusOne() {
        // 595 - 144 = 451 points; "a" advances 14 x 1139 / 2048.
        const int fit = static_cast<int>(451 / (14.0 * 1139 / 2048));
        const auto rows = rowTexts(layOut(QString(3 * (fit + 1), u'a')));
        QCOMPARE(fit, 57);
        QCOMPARE(rows.size(), 3);
        for (const QString &row : rows) {
            QCOMPARE(row.size(), fit + 1);
        }
    }

    void rowsFollowEachOtherToTheTopMarginsMirror() {
        const auto pages = layOut(u"x\n"_s.repeated(100));
        // Tops at 72, 88.0986…: a row fits while its lower edge is at most 842 - 72 = 770.
        const int perPage = static_cast<int>((770 - 72) / 16.0986328125);
        QCOMPARE(perPage, 43);
        QCOMPARE(pages.size(), std::size_t{3});
        QCOMPARE(pages[0].size(), std::size_t(perPage));
        QCOMPARE(pages[2].size(), std::size_t(100 - 2 * perPage));
        for (int i = 0; i < perPage; ++i) {
            QVERIFY(qAbs(pages[0][i].y - (842 - 72 - (i + 1) * 16.0986328125)) < 0.001);
        }
        QCOMPARE(pages[1][0].y, pages[0][0].y);
    }

    void rowThatEndsExactlyAtTheLimitStays() {
        // Two rows of 16.0986328125 between margins of 100.
        const double height = 200 + 2 * 16.0986328125;
        const QString lines = u"x\nx\nx"_s;
        QCOMPARE(layOut(lines, {300, height}, {0, 0, 100, 0})[0].size(), std::size_t{2});
        QCOMPARE(layOut(lines, {300, height - 0.001}, {0, 0, 100, 0})[0].size(), std::size_t{1});
    }

    void bottomMarginHasNoEffect() {
        const QString lines = u"x\n"_s.repeated(60);
        QCOMPARE(layOut(lines, kA4, {72, 72, 72, 0})[0].size(),
                 layOut(lines, kA4, {72, 72, 72, 256})[0].size());
    }

    void rowTallerThanThePageGetsAPageOfItsOwnAfterABlankOne() {
        const auto pages = layOut(u"x\ny"_s, {300, 20}, {0, 0, 8, 0});
        QCOMPARE(pages.size(), std::size_t{3});
        QVERIFY(pages[0].empty());
        QCOMPARE(textOf(pages[1].at(0)), u"x"_s);
        QCOMPARE(textOf(pages[2].at(0)), u"y"_s);
    }

    void topOfRowsIsKeptInThirtyTwoBits() {
        // 16.0986328125 is exact in 32 bits, but not beside a million points.
        const auto pages = layOut(u"a\nb\nc"_s, {595, 3'000'000}, {0, 0, 1'000'000, 0});
        const float second = static_cast<float>(1'000'000.0 + 16.0986328125);
        QCOMPARE(pages[0][1].y, 3'000'000 - (16.0986328125 + double(second)));
        QVERIFY(pages[0][1].y != 3'000'000 - (2 * 16.0986328125 + 1'000'000));
    }

    void intactPairIsOneGlyph() {
        const auto pages = layOut(u"a\U0001F600b"_s);
        const auto &glyphs = pages.front().front().glyphs;
        QCOMPARE(glyphs.size(), std::size_t{3});
        QCOMPARE(glyphs[1].character, U'\U0001F600');
        QVERIFY(glyphs[1].id != 0);
    }

    void halvesOfAPairDrawTheMissingGlyph() {
        const QString text = QString(QChar(u'\xDE00')) + u"a"_s + QChar(u'\xD83D');
        const auto pages = layOut(text);
        const auto &glyphs = pages.front().front().glyphs;
        QCOMPARE(glyphs.size(), std::size_t{3});
        QCOMPARE(glyphs[0], font()->missingGlyph());
        QCOMPARE(glyphs[2], font()->missingGlyph());
    }

    void rowMayBreakInsideAPair() {
        // The pair's first half is measured as the missing glyph and passes the margin.
        const double usable = advance(U'a') + font()->missingGlyph().advance - 0.001;
        const auto pages = layOutInWidth(u"a\U0001F600b"_s, usable);
        const Page &page = pages.front();
        QCOMPARE(page[0].glyphs.size(), std::size_t{2});
        QCOMPARE(page[0].glyphs[1], font()->missingGlyph());
        QCOMPARE(page[1].glyphs[0], font()->missingGlyph());
        QCOMPARE(page[1].glyphs[1].character, U'b');
    }

    void pairWhoseHalfFitsExactlyIsNotBroken() {
        const double usable = advance(U'a') + font()->missingGlyph().advance;
        const auto pages = layOutInWidth(u"a\U0001F600b"_s, usable);
        const Page &page = pages.front();
        QCOMPARE(page[0].glyphs.size(), std::size_t{2});
        QCOMPARE(page[0].glyphs[1].character, U'\U0001F600');
        QCOMPARE(textOf(page[1]), u"b"_s);
    }

    void rowsAreThoseOfMeasuringEveryPrefixAnew() {
        QRandomGenerator random(7);
        const QString alphabet = u"aiW. \u00E9\u0416\u05D0\u4E2D\u0301\U0001F600\U00020BB7\t"_s +
                                 QChar(u'\xD83D') + QChar(u'\xDE00');
        for (int round = 0; round < 300; ++round) {
            QString line;
            for (int i = random.bounded(1, 120); i > 0; --i) {
                line += alphabet[random.bounded(int(alphabet.size()))];
            }
            const double usable = random.bounded(200.0);
            QCOMPARE(rowTexts(layOutInWidth(line, usable)), rowsByPrefixMeasure(line, usable));
        }
    }

    void charactersWithoutAGlyphAreNamedByScript() {
        const auto font = latinOnly();
        QCOMPARE(boxesIn(u"plain, Ελληνικά"_s, *font), QStringList());
        QCOMPARE(boxesIn(u"a\u4E2D"_s, *font),
                 QStringList{u"1 character has no glyph in any font and is shown as a box: "
                             "Han (U+4E2D)"_s});
        // Six of Gothic, of which four differ, a tick, an unassigned one and a private one.
        QCOMPARE(boxesIn(u"\U00010330\U00010331\U00010330 \U00010332\n\U00010333\U00010333 "
                         "\U0001F5F8 \uE123 \U000E0FFF"_s,
                         *font),
                 QStringList{u"9 characters have no glyph in any font and are shown as boxes: "
                             "Gothic (U+10330, U+10331, U+10332, ...), other (U+1F5F8), "
                             "private use (U+E123), unassigned (U+E0FFF)"_s});
    }

    void lettersOfAsciiThatNoFontHasAreNamedToo() {
        // It has digits, but no Latin letters.
        const auto font = onlyFont(u"Noto Kufi Arabic"_s);
        QCOMPARE(boxesIn(u"12"_s, *font), QStringList());
        QCOMPARE(boxesIn(u"A1"_s, *font),
                 QStringList{u"1 character has no glyph in any font and is shown as a box: "
                             "Latin (U+0041)"_s});
    }

    void charactersSplitBetweenRowsAreCounted() {
        // A half is measured as the box, which is too wide for the row.
        const double narrow = font()->missingGlyph().advance - 0.001;
        QCOMPARE(boxesIn(u"\U0001F600\U0001F600\n\U0001F600"_s, *font(), narrow),
                 QStringList{u"3 characters are split between two rows and shown as boxes"_s});
        QCOMPARE(boxesIn(u"\U0001F600\n"_s, *font(), narrow),
                 QStringList{u"1 character is split between two rows and shown as boxes"_s});
        QCOMPARE(boxesIn(u"\U0001F600\U0001F600\n"_s, *font()), QStringList());
    }

    void controlCharactersAreNoLoss() {
        QCOMPARE(boxesIn(u"a\tb\a\u009F"_s, *latinOnly()), QStringList());
    }

    void aTextWithoutAnyFontIsRefused() {
        std::shared_ptr<const FontCascade> none;
        {
            const test::InstalledFonts noFonts;
            none = FontCascade::load({u"Liberation Sans"_s}, 14);
        }
        Recorder recorder;
        try {
            layOutText(onePiece(u"words"_s), kA4, kMargins, *none, recorder);
            QFAIL("the words are lost");
        } catch (const Error &error) {
            QCOMPARE(error.reason(), u"There is no font to write text with"_s);
        }
        QVERIFY(recorder.pages.empty());
        layOutText(onePiece({}), kA4, kMargins, *none, recorder);
        QCOMPARE(recorder.pages.size(), std::size_t{1});
    }

    void measuredWidthIsTheSumOfWhatIsDrawn() {
        const QString text = u"Row \u4E2D\U0001F600"_s;
        double drawn = 0;
        const auto pages = layOut(text);
        for (const Glyph &glyph : pages.front().front().glyphs) {
            drawn += glyph.advance;
        }
        QCOMPARE(getStringSize(text, *font()).width(), drawn);
        QCOMPARE(getStringSize(text, *font()).height(), double(font()->rowHeight()));
        QCOMPARE(getStringSize(QStringView(), *font()).width(), 0.0);
    }
};

FOLIOFORGE_TEST(TextPageLayoutTest)
#include "TextPageLayoutTest.moc"
