// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "support/TestUnit.h"
#include "text/TextPageLayout.h"

#include <QFile>
#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

constexpr double kPageWidth = 595;
constexpr double kPageHeight = 842;
constexpr double kLeft = 72;
constexpr int kDpi = 144;

std::shared_ptr<const FontCascade> font() {
    static const auto kept = FontCascade::load({u"Liberation Sans"_s}, 14);
    return kept;
}

/// Draws laid-out pages into a context and remembers where the rows are.
class Pages : public TextPageSink {
  public:
    explicit Pages(PDFContext &context)
        : m_context(context) {}
    void beginPage() override {
        m_context.beginPage({0, 0, kPageWidth, kPageHeight});
        m_context.setRGBFillColor(0, 0, 0);
        m_context.setFont(font(), font()->size());
    }
    void showRow(double x, double y, std::span<const Glyph> glyphs) override {
        baselines += y;
        m_context.showGlyphsAtPoint(x, y, glyphs);
    }
    void endPage() override { m_context.endPage(); }

    QList<double> baselines;

  private:
    PDFContext &m_context;
};

/// The part of a page around its first row, white on black, as ink from 0 to 255.
QImage firstRow(const QImage &page) {
    const double scale = kDpi / 72.0;
    const QRect row(int((kLeft - 10) * scale), int(60 * scale), int(200 * scale), int(40 * scale));
    QImage ink = page.copy(row).convertToFormat(QImage::Format_Grayscale8);
    ink.invertPixels();
    return ink;
}

/// What `paths` look like when Qt draws them where the first row stands.
QImage drawnByQt(const QPainterPath &path) {
    const double scale = kDpi / 72.0;
    QImage page(int(kPageWidth * scale), int(kPageHeight * scale), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(kLeft * scale, (72 + 16.0986328125) * scale);
    painter.fillPath(path, Qt::black);
    painter.end();
    return firstRow(page);
}

double sumOf(const QImage &ink) {
    double sum = 0;
    for (int y = 0; y < ink.height(); ++y) {
        for (int x = 0; x < ink.width(); ++x) {
            sum += qGray(ink.pixel(x, y));
        }
    }
    return sum;
}

/// Ink that only one of two drawings has, of all ink: 0 for the same drawing, 1 for two that do not
/// touch.
double difference(const QImage &left, const QImage &right) {
    double apart = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            apart += std::abs(qGray(left.pixel(x, y)) - qGray(right.pixel(x, y)));
        }
    }
    return apart / (sumOf(left) + sumOf(right));
}

/// The text that mutool finds in a file, in the order of the content.
QString textByMutool(const QString &path) {
    const ToolRun run = runTool(u"mutool"_s, {u"draw"_s, u"-q"_s, u"-F"_s, u"txt"_s, path});
    return QString::fromUtf8(run.out);
}

/// The characters in the order in which mutool meets them in the pages. Its text comes in the order
/// of reading that newer versions see in their places.
QString drawnByMutool(const QString &path) {
    static const QRegularExpression glyph(u"<g unicode=\"([^\"]+)\""_s);
    const ToolRun run = runTool(u"mutool"_s, {u"draw"_s, u"-q"_s, u"-F"_s, u"trace"_s, path});
    QString text;
    for (const auto &match : glyph.globalMatch(QString::fromUtf8(run.out))) {
        text += match.captured(1);
    }
    return text;
}

QString textByPoppler(const QString &path) {
    const ToolRun run = runTool(u"pdftotext"_s, {u"-raw"_s, path, u"-"_s});
    return QString::fromUtf8(run.out);
}

/// The codes to which the document gives text, as hexadecimal digits.
QStringList codesWithText(const QString &path) {
    const ToolRun run =
        runTool(u"qpdf"_s, {u"--qdf"_s, u"--object-streams=disable"_s, path, u"-"_s});
    static const QRegularExpression section(u"beginbfchar\\s(.*?)endbfchar"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression entry(u"<(\\w+)>\\s*<\\w+>"_s);
    QStringList codes;
    for (const auto &map : section.globalMatch(QString::fromLatin1(run.out))) {
        for (const auto &match : entry.globalMatch(map.captured(1))) {
            codes += match.captured(1);
        }
    }
    return codes;
}

QString withoutSpace(QString text) {
    return text.remove(QRegularExpression(u"[\\s\\f]"_s));
}

} // namespace

class FontEmbedderTest : public QObject {
    Q_OBJECT

  private:
    QTemporaryDir m_folder;
    QList<double> m_baselines;

    [[nodiscard]] QString write(const QString &text, const QString &name = u"text.pdf"_s) {
        const QString path = m_folder.filePath(name);
        QFile::remove(path);
        PDFContext context(path, test::unflushed());
        Pages pages(context);
        layOutText(onePiece(text), {kPageWidth, kPageHeight}, {72, 72, 72, 72}, *font(), pages);
        m_baselines = pages.baselines;
        const CloseResult result = context.close();
        return result.status == CloseResult::Status::Written ? path : result.reason;
    }

  private Q_SLOTS:
    void everyScriptIsReadBack_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("ASCII") << u"The quick (brown) \\fox\\ ))(("_s;
        QTest::newRow("Latin") << u"Žluťoučký kůň, façade, naïve, Ærø"_s;
        QTest::newRow("Greek") << u"Ξεσκεπάζω τὴν ψυχοφθόρα"_s;
        QTest::newRow("Cyrillic") << u"Съешь же ещё этих мягких булок"_s;
        QTest::newRow("Chinese") << u"天地玄黃宇宙洪荒 天地玄黄"_s;
        QTest::newRow("Japanese") << u"いろはにほへと チリヌルヲ 日本語"_s;
        QTest::newRow("Korean") << u"키스의 고유조건은 입술끼리"_s;
        QTest::newRow("Thai") << u"เป็นมนุษย์สุดประเสริฐ"_s;
        QTest::newRow("Devanagari") << u"ऋषियों को सताने वाले"_s;
        QTest::newRow("Beyond the BMP") << u"😀🚀🎉 𠮷 𝔘"_s;
        QTest::newRow("Mixed") << u"a中bжc😀dक"_s;
    }

    void everyScriptIsReadBack() {
        QFETCH(const QString, text);
        const QString path = write(text);
        QString log;
        QVERIFY2(PdfProbe(path).isValid(&log), qPrintable(log));
        QCOMPARE(withoutSpace(textByPoppler(path)), withoutSpace(text));
        QCOMPARE(withoutSpace(textByMutool(path)), withoutSpace(text));
    }

    void rightToLeftTextStaysInLogicalOrder() {
        const QString text = u"שלום עולם السلام عليكم"_s;
        QCOMPARE(withoutSpace(drawnByMutool(write(text))), withoutSpace(text));
    }

    void charactersThatShareAGlyphReadAsThemselves_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("mu") << u"\u00B5\u03BC"_s;
        QTest::newRow("ohm") << u"\u2126\u03A9"_s;
        QTest::newRow("radical") << u"\u2F00\u4E00"_s;
        QTest::newRow("hyphen") << u"a\u2010b-c"_s;
    }

    void charactersThatShareAGlyphReadAsThemselves() {
        QFETCH(const QString, text);
        QCOMPARE(textByPoppler(write(text)).trimmed(), text);
    }

    void uncoveredCharacterIsABoxThatReadsAsItself() {
        const QString path = write(u"\U000E0FFF"_s);
        QRawFont raw(QString::fromUtf8(findTextFonts({u"Liberation Sans"_s})[0].path()),
                     14.0 * kDpi / 72, QFont::PreferNoHinting);
        const QImage box = drawnByQt(raw.pathForGlyph(0));
        QVERIFY(sumOf(box) > 0);
        QVERIFY(difference(firstRow(PdfProbe(path).render(1, kDpi)), box) < 0.2);
        QVERIFY(difference(firstRow(PdfProbe(path).renderWithMutool(1, kDpi)), box) < 0.2);
        QCOMPARE(textByMutool(path).trimmed(), u"\U000E0FFF"_s);
    }

    void halfASurrogatePairIsABoxAndNoText() {
        const QString path = write(u"a"_s + QChar(u'\xD83D') + u"b"_s);
        QString log;
        QVERIFY2(PdfProbe(path).isValid(&log), qPrintable(log));
        QVERIFY(textByPoppler(path).startsWith(u'a'));
        QCOMPARE(codesWithText(path).size(), 2);
    }

    void codesWithTextAreInOrder() {
        // The later letter comes first and gets the lower code.
        const QStringList codes = codesWithText(write(u"\u0436 \u00E9 cba"_s));
        QCOMPARE(codes.size(), 6);
        QVERIFY(std::ranges::is_sorted(codes));
    }

    void asciiKeepsItsCodes() {
        QCOMPARE(codesWithText(write(u"a b~"_s)),
                 (QStringList{u"20"_s, u"61"_s, u"62"_s, u"7E"_s}));
    }

    void codesOfOneByteAreWrittenAsOneByte() {
        const QStringList codes = codesWithText(write(u"abc \u00E9 \u0436"_s));
        QCOMPARE(codes.size(), 6);
        for (const QString &code : codes) {
            QCOMPARE(code.size(), 2);
        }
    }

    /// The glyph that is drawn is the one that Qt draws with the face of that family.
    void glyphsAreDrawnAsTheFontHasThem_data() {
        QTest::addColumn<QString>("family");
        QTest::addColumn<QString>("text");
        QTest::newRow("Latin") << u"Liberation Sans"_s << u"Qg&é"_s;
        QTest::newRow("Cyrillic") << u"Liberation Sans"_s << u"Жщя"_s;
        QTest::newRow("Hebrew") << u"Liberation Sans"_s << u"ש"_s;
        QTest::newRow("Arabic") << u"DejaVu Sans"_s << u"ع"_s;
        QTest::newRow("Emoji") << u"DejaVu Sans"_s << u"😀"_s;
        QTest::newRow("Chinese") << u"Noto Sans CJK SC"_s << u"龍门"_s;
        QTest::newRow("Japanese") << u"Noto Sans CJK SC"_s << u"あ日"_s;
        QTest::newRow("Korean") << u"Noto Sans CJK SC"_s << u"한국"_s;
        QTest::newRow("Han beyond the BMP") << u"Noto Sans CJK SC"_s << u"𠮷"_s;
        QTest::newRow("Thai") << u"Noto Sans Thai"_s << u"ภษ"_s;
        QTest::newRow("Devanagari") << u"Noto Sans Devanagari"_s << u"ह"_s;
        QTest::newRow("Rocket") << u"Unifont Upper"_s << u"🚀"_s;
    }

    void glyphsAreDrawnAsTheFontHasThem() {
        QFETCH(const QString, family);
        QFETCH(const QString, text);
        QFont qtFont(family);
        qtFont.setPixelSize(int(14 * kDpi / 72));
        qtFont.setHintingPreference(QFont::PreferNoHinting);
        qtFont.setKerning(false);
        if (text == u"🚀") { // Newer Qt takes its font for emoji before the one that is asked for.
            qtFont.setStyleStrategy(QFont::NoFontMerging);
        }
        QPainterPath outline;
        outline.addText(0, 0, qtFont, text);
        const QImage expected = drawnByQt(outline);
        QVERIFY(sumOf(expected) > 0);

        const PdfProbe probe(write(text));
        const double byPoppler = difference(firstRow(probe.render(1, kDpi)), expected);
        const double byMutool = difference(firstRow(probe.renderWithMutool(1, kDpi)), expected);
        QVERIFY2(byPoppler < 0.2, qPrintable(QString::number(byPoppler)));
        QVERIFY2(byMutool < 0.2, qPrintable(QString::number(byMutool)));
    }

    void glyphsAdvanceAsMeasured() {
        const QString text = u"Wide iiii 中 ж 😀 gig end"_s; // No "f" between "e" and "g".
        const auto places = PdfProbe(write(text)).characterOrigins(1);
        const auto characters = text.toUcs4();
        QCOMPARE(places.size(), characters.size());
        double expected = kLeft;
        // mutool keeps widths in whole thousandths of an em.
        const double rounding = 14 * 0.5 / 1000;
        for (qsizetype i = 0; i < places.size(); ++i) {
            QVERIFY2(qAbs(places[i].x() - expected) < rounding * double(i + 1),
                     qPrintable(u"%1 at %2, not %3"_s.arg(i).arg(places[i].x()).arg(expected)));
            expected += font()->glyph(characters[i]).advance;
        }
    }

    void rowsStandWhereTheLayoutPutThem() {
        const auto places = PdfProbe(write(u"x\n"_s.repeated(43))).characterOrigins(1);
        QCOMPARE(places.size(), 43);
        QCOMPARE(m_baselines.size(), 43);
        for (qsizetype i = 0; i < places.size(); ++i) {
            QVERIFY(qAbs(kPageHeight - places[i].y() - m_baselines[i]) < 0.001);
        }
    }

    void alphabetsBeyondOneByteAreReadBack() {
        QString text;
        for (char32_t character = 0x0400; character < 0x0500; ++character) {
            text += QChar(static_cast<char16_t>(character));
        }
        const QString path = write(text + u"abc"_s + text);
        QCOMPARE(withoutSpace(textByPoppler(path)), text + u"abc"_s + text);
        QCOMPARE(withoutSpace(textByMutool(path)), text + u"abc"_s + text);
    }

    void thousandsOfHanCharactersAreReadBack() {
        QString text;
        for (char32_t character = 0x4E00; character < 0x4E00 + 3000; ++character) {
            text += QChar(static_cast<char16_t>(character));
        }
        QCOMPARE(withoutSpace(textByPoppler(write(text))), text);
    }

    void eachFaceIsEmbeddedOnceWithUsedGlyphsAlone() {
        const QString path = write(u"abc 中文\nж 字\n"_s.repeated(200));
        const ToolRun run = runTool(u"pdffonts"_s, {path});
        const auto rows = QString::fromUtf8(run.out).trimmed().split(u'\n').mid(2);
        QCOMPARE(rows.size(), 2);
        for (const QString &row : rows) {
            QVERIFY2(row.contains(u"yes yes yes"_s), qPrintable(row));
        }
        QVERIFY(QFile(path).size() < 20'000);
    }

    void hundredsOfLettersTakeOneFont() {
        QString text;
        for (const auto &[first, last] :
             {std::pair{0x00A1, 0x024F}, std::pair{0x0370, 0x03FF}, std::pair{0x0400, 0x04FF},
              std::pair{0x1E00, 0x1FFF}, std::pair{0x2500, 0x257F}}) {
            for (int character = first; character <= last; ++character) {
                text += QChar(character);
            }
        }
        const ToolRun run = runTool(u"pdffonts"_s, {write(text)});
        QCOMPARE(run.out.count("LiberationSans"), 1);
    }

    void sameTextGivesTheSameBytes() {
        qputenv("SOURCE_DATE_EPOCH", "1700000000");
        const auto bytes = [this](const QString &name) {
            QFile file(write(u"abc 中文 😀 ж"_s, name));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        const QByteArray first = bytes(u"first.pdf"_s);
        QVERIFY(!first.isEmpty());
        QCOMPARE(bytes(u"second.pdf"_s), first);
        qunsetenv("SOURCE_DATE_EPOCH");
    }
};

FOLIOFORGE_TEST(FontEmbedderTest)
#include "FontEmbedderTest.moc"
