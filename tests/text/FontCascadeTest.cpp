// SPDX-License-Identifier: Apache-2.0

#include "text/FontCascade.h"

#include "error/Error.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QFile>
#include <QRawFont>
#include <QTest>
#include <QtEndian>

#include <thread>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

constexpr double kSize = 14;
const QString kMissingFamily = u"No Such Family"_s;

std::shared_ptr<const FontCascade> cascade() {
    return FontCascade::load({kMissingFamily}, kSize);
}

/// The bytes of a font as a file of one face: QRawFont opens only the first of a collection.
QByteArray faceFile(const CatalogFont &font) {
    QByteArray bytes = test::readFile(QFile::decodeName(font.path()));
    if (bytes.startsWith("ttcf")) {
        // A face is a directory of tables, which stand at places of the whole file.
        const char *start = bytes.constData();
        const auto directory = qFromBigEndian<quint32>(start + 12 + 4 * qsizetype(font.index()));
        const auto tables = qFromBigEndian<quint16>(start + directory + 4);
        const QByteArray face = bytes.mid(directory, 12 + 16 * qsizetype(tables));
        bytes.replace(0, face.size(), face);
    }
    return bytes;
}

} // namespace

class FontCascadeTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void missingFamilyFallsToLiberationSans() {
        QCOMPARE(cascade()->face(0).postScriptName(), QByteArray("LiberationSans"));
    }

    void familyThatTheSystemHasComesFirst() {
        const auto font = FontCascade::load({u"freeserif"_s}, kSize);
        QCOMPARE(font->face(0).postScriptName(), QByteArray("FreeSerif"));
        QCOMPARE(font->face(1).postScriptName(), QByteArray("LiberationSans"));
    }

    void onlyFamiliesThatTheSystemLacksAreMissing() {
        QCOMPARE(missingFamilies({u"FreeSerif"_s, kMissingFamily, u"liberation sans"_s}),
                 QStringList(kMissingFamily));
        QCOMPARE(missingFamilies({}), QStringList());
    }

    void rowHeightIsThatOfTheFirstFace() {
        const auto font = cascade();
        // Liberation Sans: 1854, 434 and 67 of 2048 units.
        QCOMPARE(font->ascent(), 14.0 * 1854 / 2048);
        QCOMPARE(font->descent(), 14.0 * 434 / 2048);
        QCOMPARE(font->leading(), 14.0 * 67 / 2048);
        QCOMPARE(font->rowHeight(), 16.0986328125F);
    }

    void advancesAreTheFonts() {
        const auto font = cascade();
        QCOMPARE(font->glyph(U'A').advance, 14.0 * 1366 / 2048);
        QCOMPARE(font->glyph(U'i').advance, 14.0 * 455 / 2048);
        QCOMPARE(font->glyph(U' ').advance, 14.0 * 569 / 2048);
    }

    void everyScriptHasLetters_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("Latin") << u"Aé\u1EA0\u0152"_s;
        QTest::newRow("Greek") << u"\u03B1\u03A9\u1F84"_s;
        QTest::newRow("Cyrillic") << u"\u0416\u044F\u04D9"_s;
        QTest::newRow("Hebrew") << u"\u05D0\u05E9\u05BC"_s;
        QTest::newRow("Arabic") << u"\u0627\u0644\u0639\u06AF"_s;
        QTest::newRow("Devanagari") << u"\u0939\u093F\u0928"_s;
        QTest::newRow("Bengali") << u"\u09AC\u09BE"_s;
        QTest::newRow("Tamil") << u"\u0BA4\u0BAE"_s;
        QTest::newRow("Thai") << u"\u0E20\u0E32\u0E29"_s;
        QTest::newRow("Georgian") << u"\u10E5\u10D0"_s;
        QTest::newRow("Armenian") << u"\u0540\u0561"_s;
        QTest::newRow("Ethiopic") << u"\u12A0\u121B"_s;
        QTest::newRow("Tibetan") << u"\u0F56\u0F7C"_s;
        QTest::newRow("Chinese") << u"\u4E2D\u6587\u9F8D"_s;
        QTest::newRow("Japanese") << u"\u65E5\u672C\u3042\u30A2"_s;
        QTest::newRow("Korean") << u"\uD55C\uAD6D\uC5B4"_s;
        QTest::newRow("Symbols") << u"\u20AC\u2603\u2713\u221E\u2500"_s;
        QTest::newRow("Emoji") << u"\U0001F600\U0001F680"_s;
        QTest::newRow("Han beyond the BMP") << u"\U00020BB7"_s;
    }

    void everyScriptHasLetters() {
        QFETCH(const QString, text);
        const auto font = cascade();
        for (const char32_t character : text.toUcs4()) {
            const Glyph glyph = font->glyph(character);
            QVERIFY2(glyph.id != 0, qPrintable(QString::number(character, 16)));
            QCOMPARE(glyph.character, character);
            QVERIFY(glyph.face < font->faceCount());
        }
    }

    void lettersComeFromTheFontOfTheirLanguages_data() {
        QTest::addColumn<QString>("letter");
        QTest::addColumn<QByteArray>("font");
        QTest::newRow("Bengali") << u"ত"_s << QByteArray("NotoSansBengali-Regular");
        QTest::newRow("Devanagari") << u"त"_s << QByteArray("NotoSansDevanagari-Regular");
        QTest::newRow("Tamil that Grantha has too")
            << u"ப"_s << QByteArray("NotoSansTamil-Regular");
        QTest::newRow("Thai") << u"ท"_s << QByteArray("NotoSansThai-Regular");
    }
    void lettersComeFromTheFontOfTheirLanguages() {
        QFETCH(const QString, letter);
        QFETCH(const QByteArray, font);
        const auto cascade = FontCascade::load({}, 12);
        QCOMPARE(cascade->face(cascade->glyph(letter[0].unicode()).face).postScriptName(), font);
    }

    void sameGlyphIsFoundAgain() {
        const auto font = cascade();
        QCOMPARE(font->glyph(U'中'), font->glyph(U'中'));
        QCOMPARE(font->glyph(U'A'), cascade()->glyph(U'A'));
        QCOMPARE(font->glyph(U'中'), cascade()->glyph(U'中'));
    }

    void uncoveredCharacterIsTheFirstFacesMissingGlyph() {
        const auto font = cascade();
        const char32_t unassigned = 0x0E0FFF;
        const Glyph glyph = font->glyph(unassigned);
        QCOMPARE(glyph.id, 0U);
        QCOMPARE(glyph.face, std::uint16_t{0});
        QCOMPARE(glyph.character, unassigned);
        QCOMPARE(glyph.advance, font->missingGlyph().advance);
        QCOMPARE(font->missingGlyph().character, kNoCharacter);
    }

    void aControlCharacterThatTheFirstFaceLacksIsABlank_data() {
        QTest::addColumn<uint>("character");
        QTest::newRow("tab") << uint(U'\t');
        QTest::newRow("bell") << uint(U'\a');
        QTest::newRow("escape") << 0x1BU;
        QTest::newRow("delete") << 0x7FU;
        QTest::newRow("C1") << 0x9FU;
    }
    void aControlCharacterThatTheFirstFaceLacksIsABlank() {
        QFETCH(const uint, character);
        // Liberation Sans has none of them, Unifont shows each as a box with its name.
        const auto others = FontCascade::load({u"Unifont"_s}, kSize);
        QVERIFY(others->face(0).glyph(character));
        const Glyph glyph = cascade()->glyph(character);
        QCOMPARE(glyph.face, std::uint16_t{0});
        QCOMPARE(glyph, cascade()->glyph(U' '));
        QCOMPARE(glyph.advance, 14.0 * 569 / 2048);
    }

    void aControlCharacterThatTheFirstFaceHasIsDrawnByIt() {
        const auto font = FontCascade::load({u"Unifont"_s}, kSize);
        QVERIFY(font->glyph(U'\t').id != font->glyph(U' ').id);
    }

    void valuesBeyondUnicodeAreTheMissingGlyph() {
        QCOMPARE(cascade()->glyph(0x110001), cascade()->missingGlyph());
        QCOMPARE(cascade()->glyph(0xFFFFFFFF), cascade()->missingGlyph());
    }

    /// Qt reads the same files with FreeType.
    void glyphsAgreeWithAnotherReader_data() {
        QTest::addColumn<uint>("character");
        QTest::newRow("Latin") << uint(U'g');
        QTest::newRow("Cyrillic") << uint(U'Ж');
        QTest::newRow("Chinese") << uint(U'龍');
        // Of its own shape in each face of the collection.
        QTest::newRow("simplified Chinese") << uint(U'骨');
        QTest::newRow("Devanagari") << uint(U'ह');
        QTest::newRow("Emoji") << uint(U'😀');
    }

    void glyphsAgreeWithAnotherReader() {
        QFETCH(const uint, character);
        const auto fonts = findTextFonts({kMissingFamily});
        const auto font = cascade();
        const Glyph glyph = font->glyph(character);
        const CatalogFont &file = fonts.at(glyph.face);
        const QRawFont raw(faceFile(file), 1000, QFont::PreferNoHinting);
        const char32_t code = character;
        const auto ids = raw.glyphIndexesForString(QString::fromUcs4(&code, 1));
        QCOMPARE(ids.value(0), glyph.id);
        QVERIFY(qAbs(raw.advancesForGlyphIndexes(ids).value(0).x() * kSize / 1000 - glyph.advance) <
                0.02);
    }

    void boxIsThatOfTheHeadTable() {
        const QRawFont raw(faceFile(findTextFonts({kMissingFamily}).front()), 1000);
        const QByteArray head = raw.fontTable("head");
        const auto field = [&head](qsizetype at) {
            return int{qFromBigEndian<qint16>(head.constData() + at)};
        };
        const FontBox box = cascade()->face(0).box();
        QVERIFY(box.left < 0 && box.bottom < 0 && box.right > 0 && box.top > 0);
        // xMin, yMin, xMax and yMax (OpenType, "head").
        QCOMPARE(box.left, field(36));
        QCOMPARE(box.bottom, field(38));
        QCOMPARE(box.right, field(40));
        QCOMPARE(box.top, field(42));
    }

    void simplifiedChineseComesFirst() {
        const auto font = cascade();
        QCOMPARE(font->face(font->glyph(U'骨').face).postScriptName(),
                 QByteArray("NotoSansCJKsc-Regular"));
    }

    void askingFromTwoThreadsGivesTheSameGlyphs() {
        const auto font = cascade();
        std::vector<Glyph> left;
        std::vector<Glyph> right;
        const auto ask = [&font](std::vector<Glyph> &glyphs) {
            for (char32_t character = 0; character < 0x3000; ++character) {
                glyphs.push_back(font->glyph(character));
            }
        };
        std::thread other(ask, std::ref(right));
        ask(left);
        other.join();
        QCOMPARE(left, right);
    }

    void aFormBeyondTheMostIsRefusedEachTime() {
        const auto font = cascade();
        for (char32_t i = 0; i < FontCascade::kMaxForms; ++i) {
            QCOMPARE(font->form(0, 1, QString::number(i)).character, FontCascade::kFirstForm + i);
        }
        for (int attempt = 0; attempt < 2; ++attempt) {
            QVERIFY_THROWS_EXCEPTION(Error, static_cast<void>(font->form(0, 1, u"one more"_s)));
        }
        QCOMPARE(font->form(0, 1, u"7"_s).character, FontCascade::kFirstForm + 7);
    }

    void textFontIsOpenedOnceAndIsFourteenPoints() {
        QCOMPARE(textFont()->size(), 14.0);
        QCOMPARE(textFont().get(), textFont().get());
    }
};

FOLIOFORGE_TEST(FontCascadeTest)
#include "FontCascadeTest.moc"
