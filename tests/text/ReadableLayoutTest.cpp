// SPDX-License-Identifier: Apache-2.0

#include "ShownText.h"
#include "support/TestUnit.h"

#include <QRandomGenerator>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The rows from the top, each from left to right, as the characters of their glyphs.
QStringList shownRows(const ShownText &text, const FontCascade &font = small()) {
    QStringList rows;
    const ShownPiece *before = nullptr;
    for (const ShownPiece &piece : text.pieces) {
        // Marks stand above and below their letters.
        if (before == nullptr || qAbs(before->y - piece.y) > font.size() / 2 ||
            before->page != piece.page) {
            rows += QString();
        }
        for (const Glyph &glyph : piece.glyphs) {
            rows.back() += font.textOf(glyph);
        }
        before = &piece;
    }
    return rows;
}

QString randomWords(int count) {
    QRandomGenerator random(7);
    QStringList words;
    for (int i = 0; i < count; ++i) {
        words += QString(random.bounded(1, 12), QChar(char16_t(u'a' + random.bounded(26))));
    }
    return words.join(u' ');
}

} // namespace

/// Text that is set as people set it.
class ReadableLayoutTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void anAccentJoinsItsLetterInOneFace() {
        // Liberation Sans has no accent of its own, but "é".
        const ShownText composed = readable(u"e\u0301"_s, 500);
        QCOMPARE(composed.pieces.size(), std::size_t{1});
        QCOMPARE(composed.pieces[0].glyphs.size(), std::size_t{1});
        QCOMPARE(composed.pieces[0].glyphs[0].id, small().glyph(U'\u00E9').id);
        QCOMPARE(small().textOf(composed.pieces[0].glyphs[0]), u"e\u0301"_s);
        // And no "q" with an accent: both come from the face that has the accent.
        const ShownText apart = readable(u"aq\u0301"_s, 500);
        QCOMPARE(shownRows(apart), QStringList{u"aq\u0301"_s});
        QVERIFY(apart.pieces.size() > 1);
        for (std::size_t i = 1; i < apart.pieces.size(); ++i) {
            QCOMPARE(apart.pieces[i].glyphs[0].face, small().glyph(U'\u0301').face);
            QCOMPARE(apart.pieces[i].readAs, u"q\u0301"_s);
        }
    }

    void aLetterOfMoreGlyphsThanCharactersIsReadWhole() {
        // A vowel of Bengali stands on both sides of its consonant.
        const QString syllable = u"\u0995\u09CB"_s;
        std::size_t glyphs = 0;
        for (const ShownPiece &piece : readable(syllable, 500).pieces) {
            QCOMPARE(piece.readAs, syllable);
            glyphs += piece.glyphs.size();
        }
        QCOMPARE(glyphs, std::size_t{3});
    }

    void aMarkReadFromTheRightStandsForItself_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("Hebrew") << u"\u05D3\u05B8"_s;
        QTest::newRow("Arabic") << u"\u062F\u064E"_s;
    }
    void aMarkReadFromTheRightStandsForItself() {
        QFETCH(const QString, text);
        int glyphs = 0;
        for (const ShownPiece &piece : readable(text, 500).pieces) {
            for (const Glyph &glyph : piece.glyphs) {
                const QString character = small().textOf(glyph);
                QCOMPARE(character.size(), qsizetype{1});
                QCOMPARE(glyph.id, small().glyph(character[0].unicode()).id);
                ++glyphs;
            }
        }
        QCOMPARE(glyphs, 2);
    }

    void linesBreakBetweenWordsAsLateAsTheyFit_data() {
        QTest::addColumn<int>("words");
        QTest::newRow("a paragraph") << 60;
        QTest::newRow("a line longer than is shaped at a time") << 20'000;
    }
    void linesBreakBetweenWordsAsLateAsTheyFit() {
        QFETCH(const int, words);
        constexpr double kWidth = 300;
        const QString text = randomWords(words);
        const QStringList rows = shownRows(readable(text, kWidth));
        QCOMPARE(rows.join(u' '), text);
        for (qsizetype i = 0; i + 1 < rows.size(); ++i) {
            QVERIFY(getStringSize(rows[i], small()).width() <= kWidth);
            const QString further = rows[i] + u' ' + rows[i + 1].section(u' ', 0, 0);
            QVERIFY(getStringSize(further, small()).width() > kWidth);
        }
    }

    void scriptsWithoutBlanksBreakBetweenTheirWords() {
        // "Hello, world" of three words, in the room of two.
        const QString hello = u"\u0E2A\u0E27\u0E31\u0E2A\u0E14\u0E35"_s;
        const QString people = u"\u0E0A\u0E32\u0E27"_s;
        const QString world = u"\u0E42\u0E25\u0E01"_s;
        const double width = getStringSize(hello + people, small()).width() + 2;
        const QStringList rows = shownRows(readable(hello + people + world, width));
        QCOMPARE(rows, QStringList({hello + people, world}));
        // A full stop never begins a row.
        const double ideographs = getStringSize(u"\u65E5\u672C"_s, small()).width() + 1;
        QCOMPARE(shownRows(readable(u"\u65E5\u672C\u8A9E\u3002"_s, ideographs)),
                 QStringList({u"\u65E5\u672C"_s, u"\u8A9E\u3002"_s}));
    }

    void aWordWiderThanThePageIsCutBetweenLettersThatKeepTheirMarks() {
        const QString letters = u"e\u0301e\u0302"_s.repeated(40);
        const QStringList rows = shownRows(readable(letters, 100));
        QVERIFY(rows.size() > 3);
        QCOMPARE(rows.join(QString()), letters);
        for (const QString &row : rows) {
            QVERIFY(!row.front().isMark());
            QVERIFY(getStringSize(row, small()).width() <= 100 || row.size() < 4);
        }
    }

    void tabsLeadToStopsAndBlankLinesStay() {
        const ShownText shown = readable(u"a\tb\n\n  c\n\td"_s, 500);
        // A blank of Liberation Sans is 569/2048 em wide, a row 2355/2048 em high.
        constexpr double kStop = 8 * 10 * 569.0 / 2048;
        constexpr double kRow = 10 * 2355.0 / 2048;
        QCOMPARE(shown.pieces.size(), std::size_t{4});
        const double top = shown.pieces[0].y;
        const auto isAt = [&](std::size_t i, double x, int row) {
            return qAbs(shown.pieces[i].x - x) < 1e-3 &&
                   qAbs(top - shown.pieces[i].y - row * kRow) < 1e-3;
        };
        QVERIFY(isAt(0, 0, 0));
        QVERIFY(isAt(1, kStop, 0));
        QVERIFY(isAt(2, 0, 2));
        QCOMPARE(shown.pieces[2].glyphs.size(), std::size_t{3});
        QVERIFY(isAt(3, kStop, 3));
    }

    void tabWidthAndLineSpacingAreThoseOfTheStyle() {
        const ShownText shown = readable(u"a\tb\nc"_s, 500, small(), {4, 2, {}, {}});
        QVERIFY(qAbs(shown.pieces[1].x - 4 * 10 * 569.0 / 2048) < 1e-3);
        QVERIFY(qAbs(shown.pieces[0].y - shown.pieces[2].y - 2 * 10 * 2355.0 / 2048) < 1e-3);
    }

    void rowsOfTallLettersTakeMoreRoomAndOthersStayEven_data() {
        QTest::addColumn<QString>("row");
        QTest::addColumn<double>("above"); ///< In ems, to the row before.
        QTest::addColumn<double>("below"); ///< To the row behind.
        constexpr double kRow = 2355.0 / 2048;
        // Over the room of Liberation Sans, 1854 and 434 of 2048 units.
        QTest::newRow("Bengali") << u"\u09AC\u09C1\u09A6\u09CD\u09A7\u09BF"_s
                                 << kRow + 0.917 - 1854.0 / 2048 << kRow + 0.408 - 434.0 / 2048;
        QTest::newRow("Japanese") << u"\u65E5\u672C\u8A9E\u306E\u30C6"_s << kRow << kRow;
        QTest::newRow("Arabic") << u"\u0645\u0631\u062D"_s << kRow << kRow;
        QTest::newRow("signs") << u"a \u2192 b \U0001F600"_s << kRow << kRow;
    }
    void rowsOfTallLettersTakeMoreRoomAndOthersStayEven() {
        QFETCH(const QString, row);
        QFETCH(const double, above);
        QFETCH(const double, below);
        const ShownText shown = readable(u"a\n"_s + row + u"\nb"_s, 500);
        const double before = (shown.pieces[0].y - shown.pieces[1].y) / small().size();
        QVERIFY2(qAbs(before - above) < 1e-3, qPrintable(QString::number(before)));
        // The baseline of the row may have marks above and below it in pieces of their own.
        const double behind = (shown.pieces[1].y - shown.pieces.back().y) / small().size();
        QVERIFY2(qAbs(behind - below) < 1e-3, qPrintable(QString::number(behind)));
    }

    void theTwoCharactersOfALineEndEndOneLine() {
        const ShownText shown = readable(u"a\r\nb"_s, 500);
        QCOMPARE(shown.pieces.size(), std::size_t{2});
        const double distance = shown.pieces[0].y - shown.pieces[1].y;
        QVERIFY2(qAbs(distance - 11.499) < 1e-3, qPrintable(QString::number(distance)));
    }

    void aFormFeedBeginsAPage() {
        QCOMPARE(readable(u"a\n\fb\fc\n"_s, 500).pages, 3);
        QCOMPARE(readable(u"a\r\nb\f"_s, 500).pages, 1);
        QCOMPARE(readable({}, 500).pages, 1);
    }

    void aFormFeedBehindAFullPageLeavesNoPageEmpty() {
        // Rows of 11.5 points: 842 / 11.4990 = 73.2 in a page.
        const ShownText shown = readable(u"row\n"_s.repeated(73) + u"\fb"_s, 500);
        QCOMPARE(shown.pages, 2);
        QCOMPARE(shown.pieces.back().page, 2);
        QCOMPARE(std::ranges::count(shown.pieces, 1, &ShownPiece::page), 73);
    }

    void rowsEndAboveTheBottomMargin() {
        PieceRecorder recorder;
        const QString text = u"row\n"_s.repeated(100);
        // Rows of 11.5 points: (842 - 100 - 142) / 11.4990 = 52.18 in the first page.
        layOutReadable(onePiece(text), {500, kHeight}, {0, 0, 100, 142}, small(), {}, recorder);
        QCOMPARE(recorder.shown.pages, 2);
        QCOMPARE(std::ranges::count(recorder.shown.pieces, 1, &ShownPiece::page), 52);
    }

    void aLineReadFromTheRightBeginsAtTheRight() {
        const ShownText shown = readable(u"\u05D0\u05D1 abc \u05D2\u05D3."_s, 300);
        QCOMPARE(shownRows(shown), QStringList{u".\u05D3\u05D2 abc \u05D1\u05D0"_s});
        double end = 0;
        for (const ShownPiece &piece : shown.pieces) {
            end = piece.x;
            for (const Glyph &glyph : piece.glyphs) {
                end += glyph.advance;
            }
        }
        QVERIFY(qAbs(end - 300) < 1e-3);
    }

    void paragraphsGoOnFromOnePieceOfTheTextToTheNext() {
        struct Paragraphs : PieceRecorder {
            [[nodiscard]] bool wantsReadingOrder() const override { return true; }
            void beginParagraph() override { starts.push_back(shown.pieces.size()); }
            std::vector<std::size_t> starts;
        } paragraphs;
        const QStringList pieces{u"one\n"_s, u"two\n"_s, u" \n"_s, u"three\n"_s, u"four"_s};
        layOutReadable([at = 0, &pieces]() mutable { return QStringView(pieces.value(at++)); },
                       {500, kHeight}, kNoMargins, small(), {}, paragraphs);
        // A blank tells the words of two lines apart.
        QCOMPARE(shownRows(paragraphs.shown),
                 (QStringList{u"one "_s, u"two"_s, u"three "_s, u"four"_s}));
        QCOMPARE(paragraphs.starts, (std::vector<std::size_t>{0, 3}));
    }

    void charactersWithoutAGlyphAreNamed() {
        PieceRecorder recorder;
        const Warnings warnings = layOutReadable(onePiece(u"\u0627\u0644 \U0010FFFD"_s),
                                                 {500, kHeight}, kNoMargins, small(), {}, recorder);
        QCOMPARE(warnings.size(), qsizetype{1});
        QCOMPARE(warnings.front().text, u"1 character has no glyph in any font and is shown as a "
                                        "box: private use (U+10FFFD)"_s);
    }
};

FOLIOFORGE_TEST(ReadableLayoutTest)
#include "ReadableLayoutTest.moc"
