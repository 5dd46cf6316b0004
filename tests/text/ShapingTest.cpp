// SPDX-License-Identifier: Apache-2.0

#include "ShownText.h"
#include "support/TestUnit.h"
#include "text/FontCatalog.h"

#include <QFontDatabase>
#include <QGlyphRun>
#include <QTextLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// A glyph at its place, for comparison.
struct GlyphAt {
    double x = 0;
    double y = 0;
    unsigned id = 0;
};

std::vector<GlyphAt> sorted(std::vector<GlyphAt> glyphs) {
    std::ranges::sort(glyphs, {}, [](const GlyphAt &at) { return std::pair(at.x, at.id); });
    return glyphs;
}

/// What Qt makes of a line in the font of a file.
std::vector<GlyphAt> shapedByQt(const QString &text, const QString &file) {
    const int added = QFontDatabase::addApplicationFont(file);
    QFont font(QFontDatabase::applicationFontFamilies(added).constFirst());
    font.setPixelSize(1000);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(1e6);
    layout.endLayout();
    std::vector<GlyphAt> glyphs;
    for (const QGlyphRun &run : line.glyphRuns()) {
        for (qsizetype i = 0; i < run.glyphIndexes().size(); ++i) {
            const QPointF at = run.positions()[i];
            glyphs.push_back({at.x(), line.ascent() - at.y(), run.glyphIndexes()[i]});
        }
    }
    return sorted(glyphs);
}

} // namespace

/// Letters of readable text, compared with those of Qt.
class ShapingTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void lettersAreJoinedAndPlacedAsByAnotherShaper_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("ascent"); ///< Thousandths of an em: the room above the baseline.
        constexpr double kAscent = 1854 / 2.048; // Of Liberation Sans.
        QTest::newRow("Arabic") << u"\u0645\u0631\u062D\u0628\u0627 \u0644\u0627"_s << kAscent;
        QTest::newRow("Arabic with vowels") << u"\u0644\u0650\u064A\u064F\u0643"_s << kAscent;
        QTest::newRow("Hebrew with points")
            << u"\u05E9\u05C1\u05B8\u05DC\u05D5\u05B9\u05DD"_s << kAscent;
        QTest::newRow("Devanagari") // Its face wants 896.
            << u"\u0915\u094D\u0937\u0924\u094D\u0930\u093F\u092F"_s << kAscent;
        QTest::newRow("Latin beside Cyrillic") << u"AVATo \u0416"_s << kAscent;
        QTest::newRow("Thai") << u"\u0E20\u0E32\u0E29\u0E32\u0E17\u0E35\u0E48"_s << 1061.0;
    }
    void lettersAreJoinedAndPlacedAsByAnotherShaper() {
        QFETCH(const QString, text);
        QFETCH(const double, ascent);
        const ShownText shown = readable(text, 1e5, large());
        QCOMPARE(shown.pieces.empty(), false);
        const std::uint16_t face = shown.pieces.front().glyphs.front().face;
        std::vector<GlyphAt> ours;
        for (const ShownPiece &piece : shown.pieces) {
            double x = piece.x;
            for (const Glyph &glyph : piece.glyphs) {
                QCOMPARE(glyph.face, face);
                ours.push_back({x, piece.y, glyph.id});
                x += glyph.advance;
            }
        }
        ours = sorted(ours);
        const auto fonts = findTextFonts({u"Liberation Sans"_s});
        const auto qts = shapedByQt(text, QFile::decodeName(fonts[face].path()));
        QCOMPARE(ours.size(), qts.size());
        // A line that is read from right to left begins at the margin.
        const double start = ours.front().x - qts.front().x;
        const double base = kHeight - ascent;
        for (std::size_t i = 0; i < ours.size(); ++i) {
            QCOMPARE(ours[i].id, qts[i].id);
            QVERIFY(qAbs(ours[i].x - start - qts[i].x) < 4);
            QVERIFY(qAbs(ours[i].y - base - qts[i].y) < 4);
        }
    }
};

FOLIOFORGE_TEST(ShapingTest)
#include "ShapingTest.moc"
