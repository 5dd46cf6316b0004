// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/TestUnit.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Text pages by the options that make text readable.
class ReadableTextTest : public QObject, CommandLineCase {
    Q_OBJECT

    /// The readable PDF of a text.
    PdfProbe readablePdf(const QString &text, QStringList options = {}) {
        options += {u"--text-layout=readable"_s, writeFile(path("in.txt"), text.toUtf8())};
        const QByteArray name = QByteArray::number(++m_made) + ".pdf";
        const ToolRun run = merge(name.constData(), options);
        if (run.exitCode != 0) {
            qFatal("%s", run.err.constData());
        }
        return PdfProbe(path(name.constData()));
    }

    QString complaint(const QStringList &options) {
        const ToolRun run =
            merge("none.pdf", options + QStringList{writeFile(path("in.txt"), "words")});
        return run.exitCode == 2 ? QString::fromUtf8(run.err) : u"taken"_s;
    }

    int m_made = 0;

  private Q_SLOTS:
    void init() { setUp(); }

    void otherReadersFindTheWords_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("Latin") << u"Words, a number 12 and an accent: r\u00E9sum\u00E9."_s;
        QTest::newRow("Arabic") << u"\u0645\u0631\u062D\u0628\u0627 \u0628\u0643"_s;
        QTest::newRow("Hebrew") << u"\u05E9\u05DC\u05D5\u05DD"_s;
        QTest::newRow("Devanagari") << u"\u0928\u092E\u0938\u094D\u0924\u0947 "
                                       u"\u0926\u0941\u0928\u093F\u092F\u093E"_s;
        QTest::newRow("Thai") << u"\u0E20\u0E32\u0E29\u0E32\u0E44\u0E17\u0E22\u0E44\u0E21\u0E48"_s;
        QTest::newRow("Japanese") << u"\u65E5\u672C\u8A9E\u306E\u30C6\u30AD\u30B9\u30C8"_s;
        QTest::newRow("Korean") << u"\uD55C\uAD6D\uC5B4"_s;
        QTest::newRow("Cyrillic") << u"\u0421\u043B\u043E\u0432\u0430"_s;
        QTest::newRow("Greek") << u"\u03BB\u03CC\u03B3\u03BF\u03B9"_s;
        QTest::newRow("Tamil") << u"\u0BA4\u0BAE\u0BBF\u0BB4\u0BCD"_s;
        QTest::newRow("Armenian") << u"\u0562\u0561\u057C\u0565\u0580"_s;
        QTest::newRow("Georgian") << u"\u10E1\u10D8\u10E2\u10E7\u10D5\u10D4\u10D1\u10D8"_s;
    }
    void otherReadersFindTheWords() {
        QFETCH(const QString, text);
        const PdfProbe pdf = readablePdf(text);
        QVERIFY(pdf.isValid());
        // The marks of direction that pdftotext puts around its lines are not of the text.
        static const QRegularExpression controls(u"[\u202A-\u202E\f\n]"_s);
        QCOMPARE(pdf.text().remove(controls), text);
    }

    void rowsOfScriptsThatReachFarDoNotTouch_data() {
        QTest::addColumn<QString>("row");
        QTest::newRow("Bengali") << u"\u09AC\u09C1\u09A6\u09CD\u09A7\u09BF \u0989"_s;
        QTest::newRow("Myanmar") << u"\u1010\u1030\u100A\u102E \u1016\u103C\u1004\u103A\u1037"_s;
    }
    void rowsOfScriptsThatReachFarDoNotTouch() {
        QFETCH(const QString, row);
        QCOMPARE(bandsOf(readablePdf(row + u'\n' + row, {u"--font-size=40"_s}).render(1)), 2);
    }

    void aWordIsNeverCutWhereTheLineEnds() {
        QString text = u"Everybody reads words that stand whole in their lines. "_s.repeated(20);
        text.chop(1);
        const PdfProbe pdf = readablePdf(text);
        QStringList lines = pdf.text().split(u'\n', Qt::SkipEmptyParts);
        lines.removeAll(u"\f"_s);
        QVERIFY(lines.size() > 5);
        QCOMPARE(lines.join(u' '), text);
    }

    void fontsAndSizeAreThoseThatAreGiven() {
        const QList<QPointF> small =
            readablePdf(u"nn"_s, {u"--font=DejaVu Sans"_s, u"--font-size=10"_s})
                .characterOrigins(1);
        // "n" of DejaVu Sans is 1298/2048 em wide.
        QVERIFY(qAbs(small[1].x() - small[0].x() - 10 * 1298.0 / 2048) < 0.01);
        const QList<QPointF> large =
            readablePdf(u"nn"_s, {u"--font=Liberation Sans, DejaVu Sans"_s, u"--font-size=20"_s})
                .characterOrigins(1);
        // "n" of Liberation Sans is 1139/2048 em wide.
        QVERIFY(qAbs(large[1].x() - large[0].x() - 20 * 1139.0 / 2048) < 0.01);
    }

    void spacingAndTabsAreThoseThatAreGiven() {
        const QList<QPointF> at =
            readablePdf(u"a\tb\nc"_s,
                        {u"--line-spacing=2"_s, u"--tab-width=4"_s, u"--font=Liberation Sans"_s})
                .characterOrigins(1);
        QCOMPARE(at.size(), qsizetype{4}); // mutool takes the gap for a blank.
        QVERIFY(qAbs(at[2].x() - at[0].x() - 4 * 11 * 569.0 / 2048) < 0.01);
        QVERIFY(qAbs(at[3].y() - at[0].y() - 2 * 11 * 2355.0 / 2048) < 0.01);
    }

    void aGuessOfTheEncodingIsSaid() {
        const QByteArray latin("Cr\xE8me br\xFBl\xE9"
                               "e est servie au caf\xE9 \xE0 la fin du repas.");
        const ToolRun run =
            merge("guess.pdf", {u"--text-encoding=auto"_s, writeFile(path("latin.txt"), latin)});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.err.contains("latin.txt: warning: The text is read as ISO-8859-1, a guess"));
        QVERIFY(PdfProbe(path("guess.pdf")).text().contains(u"Cr\u00E8me br\u00FBl\u00E9e"_s));
    }

    void aTextOfAnotherEncodingThanIsNamedFails() {
        const ToolRun run =
            merge("fails.pdf", {u"--text-encoding=utf-8"_s, writeFile(path("bytes.txt"), "a\xFF")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.contains("The text is not valid utf-8"));
        QVERIFY(!QFile::exists(path("fails.pdf")));
    }

    void whatCannotBeMeantIsRefusedInWords() {
        QCOMPARE(complaint({u"--font=DejaVu Sans"_s}),
                 u"folioforge-cli: --font needs --text-layout=readable\n"_s);
        QCOMPARE(complaint({u"--header={page}"_s}),
                 u"folioforge-cli: --header needs --text-layout=readable\n"_s);
        QVERIFY(
            complaint({u"--text-layout=readable"_s, u"--footer={page} of {sheets}"_s})
                .contains(u"--footer: \"{sheets}\" is none of {file}, {page}, {pages}, {date}"_s));
        QVERIFY(complaint({u"--text-layout=readable"_s, u"--footer={page"_s})
                    .contains(u"--footer: \"{page\" is none of {file}"_s));
        QVERIFY(complaint({u"--text-layout=readable"_s, u"--header={page}"_s,
                           u"--text-margins=12,72,72"_s})
                    .contains(u"--header: A row is 12.6 points high; its margin has 12"_s));
        QCOMPARE(complaint({u"--text-layout=readable"_s, u"--font=No Such Font"_s}),
                 u"folioforge-cli: --font: the system has no font \"No Such Font\"\n"_s);
        QVERIFY(complaint({u"--text-layout=readable"_s, u"--font-size=0"_s})
                    .contains(u"--font-size: \"0\" is no number from 1 to 1000"_s));
        QVERIFY(complaint({u"--text-encoding=utf-99"_s})
                    .contains(u"There is no encoding \"utf-99\""_s));
        QVERIFY(complaint({u"--text-layout=readable"_s, u"--tab-width=many"_s})
                    .contains(u"--tab-width: \"many\" is no number from 1 to 100"_s));
    }
};

FOLIOFORGE_TEST(ReadableTextTest)
#include "ReadableTextTest.moc"
