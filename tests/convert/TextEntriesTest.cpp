// SPDX-License-Identifier: Apache-2.0

#include "ConversionCase.h"
#include "files/LinePieces.h"
#include "support/FaultyCalls.h"
#include "support/InstalledFonts.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::PdfProbe;

/// What becomes of the text files of a run.
class TextEntriesTest : public QObject, protected test::ConversionCase {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }

    void aTextThatIsNotUtf8GivesOneBlankPageAndAWarning() {
        addText("a.txt", "caf\xE9 au lait");
        const PDFOutcome outcome = convertTo(path("out/a.pdf"));
        QVERIFY(outcome.entries[0].written);
        QCOMPARE(outcome.entries[0].warnings.at(0).code, WarningCode::TextNotUtf8);
        QCOMPARE(outcome.entries[0].pages, 1);
        const PdfProbe probe(outcome.close.path);
        QCOMPARE(probe.pageCount(), 1);
        QCOMPARE(probe.text().trimmed(), QString());
    }

    void aLongTextKeepsItsLinesInTheirOrder_data() {
        QTest::addColumn<bool>("readable");
        QTest::newRow("plain") << false;
        QTest::newRow("readable") << true;
    }
    void aLongTextKeepsItsLinesInTheirOrder() {
        QFETCH(const bool, readable);
        m_options.readable = readable ? std::optional(ReadableStyle()) : std::nullopt;
        QStringList lines;
        for (int i = 0; i < 12'000; ++i) {
            lines += u"%1 quays, cranes and some boats"_s.arg(i);
        }
        const QByteArray text = lines.join(u'\n').toUtf8();
        QVERIFY(text.size() > LinePieces::kUsual);
        addListed(test::writeFile(path("a.txt"), "\xEF\xBB\xBF" + text));
        const QString shown = PdfProbe(convertTo(path("out/a.pdf")).close.path).text();
        static const QRegularExpression kEnds(u"[\n\f]+"_s);
        QCOMPARE(shown.split(kEnds, Qt::SkipEmptyParts), lines);
    }

    void bytesThatAreNotUtf8LateInALongTextLeaveItBlank() {
        const QByteArray text = QByteArray("a line of it\n").repeated(LinePieces::kUsual / 8);
        addListed(test::writeFile(path("a.txt"), text + "caf\xE9"));
        const PDFOutcome outcome = convertTo(path("out/a.pdf"));
        QCOMPARE(outcome.entries[0].warnings.at(0).code, WarningCode::TextNotUtf8);
        const PdfProbe probe(outcome.close.path);
        QCOMPARE(probe.pageCount(), 1);
        QCOMPARE(probe.text().trimmed(), QString());
    }

    void aLongTextThatCannotBeReadToItsEndLeavesNoPage() {
        const QByteArray text = QByteArray("a line of it\n").repeated(LinePieces::kUsual / 8);
        addListed(test::writeFile(path("a.txt"), text));
        addListed(test::writePng(path("b.png"), 300, 150));
        test::FaultyCalls calls;
        calls.fault.call = 6; // It is read twice, in two pieces each time.
        calls.fault.error = EIO;
        m_options.calls = calls;
        m_options.merge = true;
        const PDFOutcome outcome = convertTo(path("out/all.pdf"));
        QVERIFY2(outcome.entries[0].reason.startsWith(u"Cannot read the file"_s),
                 qPrintable(outcome.entries[0].reason));
        QVERIFY(outcome.entries[1].written);
        QCOMPARE(PdfProbe(outcome.close.path).pageCount(), 1);
    }

    void aTabKeepsWordsApart() {
        addText("a.txt", "left\tright");
        const PDFOutcome outcome = convertTo(path("out/a.pdf"));
        QVERIFY(outcome.entries[0].warnings.empty());
        QCOMPARE(PdfProbe(outcome.close.path).text().trimmed(), u"left right"_s);
    }

    void aTextWithBoxesIsWrittenWithAWarning() {
        addText("a.txt", "a \xEE\x84\xA3 b"); // U+E123, of private use
        const PDFOutcome outcome = convertTo(path("out/a.pdf"));
        QVERIFY(outcome.entries[0].written);
        QCOMPARE(outcome.entries[0].warnings.size(), std::size_t{1});
        QCOMPARE(outcome.entries[0].warnings[0].code, WarningCode::MissingGlyphs);
    }

    void withoutAFontATextIsRefusedAndTheOthersGoOn() {
        {
            const test::InstalledFonts none;
            m_options.textFont = FontCascade::load({u"Liberation Sans"_s}, 14);
        }
        addText("a.txt", "words");
        addFile(test::writePng(path("b.png"), 300, 150));
        m_options.merge = true;
        const PDFOutcome outcome = convertTo(path("out/all.pdf"));
        QCOMPARE(outcome.entries[0].reason, u"There is no font to write text with"_s);
        QVERIFY(outcome.entries[1].written);
        QCOMPARE(PdfProbe(outcome.close.path).pageCount(), 1);
    }

    void aDamagedFontGivesWayToTheNextOne() {
        const auto fileOf = [](const QString &family) {
            return QFile::decodeName(findTextFonts({family}).front().path());
        };
        const QString whole = fileOf(u"DejaVu Sans"_s);
        QByteArray damaged = test::readFile(fileOf(u"Liberation Sans"_s));
        damaged.replace("\x5F\x0F\x3C\xF5", "none"); // The sign of the table "head".
        {
            test::InstalledFonts fonts;
            fonts.add(test::writeFile(path("damaged.ttf"), damaged), u"Liberation Sans"_s);
            fonts.add(whole, u"DejaVu Sans"_s);
            QCOMPARE(findTextFonts({u"Liberation Sans"_s}).size(), std::size_t{2});
            m_options.textFont = FontCascade::load({u"Liberation Sans"_s}, 14);
        }
        addText("a.txt", "words");
        addFile(test::writePng(path("b.png"), 300, 150));
        m_options.merge = true;
        const PdfProbe probe(convertTo(path("out/all.pdf")).close.path);
        QCOMPARE(probe.pageCount(), 2);
        QCOMPARE(probe.text(1).trimmed(), u"words"_s);
    }

    void anEmptyTextGivesOneBlankPageAndNoWarning() {
        addText("a.txt", {});
        m_options.textPage.sizeMode = TextPageA5;
        const PDFOutcome outcome = convertTo(path("out/a.pdf"));
        QVERIFY(outcome.entries[0].warnings.empty());
        const PdfProbe probe(outcome.close.path);
        QCOMPARE(probe.pageCount(), 1);
        QCOMPARE(probe.box(u"MediaBox"_s, 1), QRectF(0, 0, 420, 595));
        QImage white(420, 595, QImage::Format_RGB32);
        white.fill(Qt::white);
        QCOMPARE(probe.render(1).convertToFormat(QImage::Format_RGB32), white);
    }

    void textPagesHaveTheSizeChosen_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QSizeF>("size");
        QTest::newRow("A3") << int{TextPageA3} << QSizeF(842, 1191);
        QTest::newRow("A4") << int{TextPageA4} << QSizeF(595, 842);
        QTest::newRow("A5") << int{TextPageA5} << QSizeF(420, 595);
        QTest::newRow("custom") << int{TextPageCustom} << QSizeF(300, 250);
    }
    void textPagesHaveTheSizeChosen() {
        QFETCH(const int, mode);
        QFETCH(const QSizeF, size);
        addText("a.txt", "words");
        m_options.textPage.sizeMode = mode;
        m_options.textPage.customWidth = 300;
        m_options.textPage.customHeight = 250;
        const PDFOutcome outcome = convertTo(path("out/a.pdf"));
        const PdfProbe probe(outcome.close.path);
        QCOMPARE(probe.box(u"MediaBox"_s, 1), QRectF(QPointF(0, 0), size));
        QCOMPARE(probe.text(1).trimmed(), u"words"_s);
    }

    void textIsBlackAndFourteenPointsHigh() {
        addText("a.txt", "WWWW");
        const PdfProbe probe(convertTo(path("out/a.pdf")).close.path);
        const QImage page = probe.render(1, 144);
        int darkest = 255;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                const QColor color = page.pixelColor(x, y);
                QVERIFY(color.red() == color.green() && color.green() == color.blue());
                darkest = std::min(darkest, color.red());
            }
        }
        QCOMPARE(darkest, 0);
        // "W" of the first font measures 1933 of 2048 units.
        const QList<QPointF> origins = probe.characterOrigins(1);
        QCOMPARE(origins.size(), 4);
        QVERIFY(std::abs(origins[3].x() - origins[0].x() - 3 * 14.0 * 1933 / 2048) < 0.01);
    }
};

FOLIOFORGE_TEST(TextEntriesTest)
#include "TextEntriesTest.moc"
