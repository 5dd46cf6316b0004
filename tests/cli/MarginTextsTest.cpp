// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Headers and footers of text pages.
class MarginTextsTest : public QObject, CommandLineCase {
    Q_OBJECT

    /// Merges `inputs` into "out.pdf" with readable text and `options`.
    PdfProbe merged(const QStringList &options, const QStringList &inputs) {
        m_run = merge("out.pdf", QStringList{u"--text-layout=readable"_s, u"--overwrite=always"_s} +
                                     options + inputs);
        if (m_run.exitCode != 0) {
            qFatal("%s", m_run.err.constData());
        }
        return PdfProbe(path("out.pdf"));
    }

    ToolRun m_run;

  private Q_SLOTS:
    void init() { setUp(); }

    void pagesAreNumberedThroughAllOfAMergedPDF() {
        const PdfProbe pdf = merged({u"--header={file}"_s, u"--footer={page} of {pages}"_s},
                                    {writePdf(path("cover.pdf"), 1), text("a.txt", "one\ftwo"),
                                     writePdf(path("part.pdf"), 2), text("b.txt", "three")});
        QVERIFY(pdf.isValid());
        QCOMPARE(pdf.pageCount(), 6);
        QCOMPARE(linesOf(pdf, 2), QStringList({u"a.txt"_s, u"one"_s, u"2 of 6"_s}));
        QCOMPARE(linesOf(pdf, 3), QStringList({u"a.txt"_s, u"two"_s, u"3 of 6"_s}));
        QVERIFY(!pdf.text(4).contains(u"of 6"_s));
        QCOMPARE(linesOf(pdf, 6), QStringList({u"b.txt"_s, u"three"_s, u"6 of 6"_s}));
    }

    void eachPDFOfSingleModeHasItsOwnNumbers() {
        QCOMPARE(convert({u"--text-layout=readable"_s, u"--footer={file} {page}/{pages}"_s,
                          text("a.txt", "one\ftwo"), text("b.txt", "three")})
                     .exitCode,
                 0);
        QCOMPARE(linesOf(PdfProbe(path("out/a.pdf")), 2), QStringList({u"two"_s, u"a.txt 2/2"_s}));
        QCOMPARE(linesOf(PdfProbe(path("out/b.pdf")), 1),
                 QStringList({u"three"_s, u"b.txt 1/1"_s}));
    }

    void aTextThatFailsCountsNoPages() {
        const ToolRun run = merge(
            "out.pdf", {u"--text-layout=readable"_s, u"--text-encoding=utf-8"_s,
                        u"--footer={page} of {pages}"_s, text("bad.txt", "a\xFF"), text("b.txt")});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(linesOf(PdfProbe(path("out.pdf")), 1), QStringList({u"words"_s, u"1 of 1"_s}));
    }

    void theDayIsThatOfTheDocument() {
        qputenv("SOURCE_DATE_EPOCH", "1700000000"); // 14 November 2023 in UTC.
        const PdfProbe pdf = merged({u"--header={date}"_s}, {text("a.txt")});
        qunsetenv("SOURCE_DATE_EPOCH");
        QCOMPARE(linesOf(pdf, 1), QStringList({u"2023-11-14"_s, u"words"_s}));
    }

    void bracesInTheNameOfAFileStandForNothing() {
        const PdfProbe pdf = merged({u"--header={file}"_s}, {text("{page}.txt")});
        QCOMPARE(linesOf(pdf, 1).first(), u"{page}.txt"_s);
    }

    void aBlankPageHasItsFooter() {
        QCOMPARE(linesOf(merged({u"--footer=page {page}"_s}, {text("a.txt", "")}), 1),
                 QStringList(u"page 1"_s));
    }

    void rowsStandInTheMiddleOfTheirMargins() {
        const PdfProbe pdf =
            merged({u"--header=n"_s, u"--footer=n"_s, u"--font=Liberation Sans"_s,
                    u"--text-page-size=200x300"_s, u"--text-margins=40,20,60,50"_s},
                   {text("a.txt", "n")});
        const QList<QPointF> at = pdf.characterOrigins(1); // That of the text comes first.
        QCOMPARE(at.size(), qsizetype{3});
        // "n" of Liberation Sans is 1139/2048 em wide; its row reaches from 1854 above its baseline
        // to 434 below it, and 67 more are the leading.
        const double x = 50 + (200 - 50 - 20 - 11 * 1139.0 / 2048) / 2;
        const double fromTop = 11 * (1854 - 2355 / 2.0) / 2048;
        for (const auto &[origin, middle] : {std::pair(at[1], 20.0), std::pair(at[2], 270.0)}) {
            QVERIFY(qAbs(origin.x() - x) < 0.01);
            QVERIFY2(qAbs(origin.y() - (middle + fromTop)) < 0.01,
                     qPrintable(QString::number(origin.y())));
        }
    }

    void aLongHeaderIsBrokenBetweenWordsAndTextKeepsItsPlace() {
        const QString header = u"Words of a header that one row cannot hold. "_s.repeated(6);
        const double bare = merged({}, {text("a.txt", "here")}).characterOrigins(1).first().y();
        const PdfProbe pdf = merged({u"--header="_s + header}, {text("a.txt", "here")});
        QStringList lines = linesOf(pdf, 1);
        QCOMPARE(lines.takeLast(), u"here"_s);
        QVERIFY(lines.size() > 1);
        QCOMPARE(lines.join(u' '), header.simplified());
        const QList<QPointF> at = pdf.characterOrigins(1);
        QCOMPARE(at.first().y(), bare);
        // Descenders reach 434 of 2048 below the baseline.
        QVERIFY(at.last().y() + 11 * 434.0 / 2048 < 72);
        QVERIFY(m_run.err.isEmpty());
    }

    void whatAMarginHasNoRoomForIsSaid() {
        const PdfProbe pdf = merged({u"--header=one\ntwo\nthree"_s, u"--text-margins=30,72,72"_s},
                                    {text("a.txt", "here")});
        QCOMPARE(linesOf(pdf, 1), QStringList({u"one"_s, u"two"_s, u"here"_s}));
        QCOMPARE(QString::fromUtf8(m_run.err),
                 u"folioforge-cli: "_s + path("a.txt") +
                     u": warning: The header or the footer has more rows than its margin\n"_s);
    }

    void rowsOfScriptsThatReachFarDoNotTouch_data() {
        QTest::addColumn<QString>("row");
        QTest::newRow("Bengali") << u"\u09AC\u09C1\u09A6\u09CD\u09A7\u09BF \u0989"_s;
        QTest::newRow("Myanmar") << u"\u1010\u1030\u100A\u102E \u1016\u103C\u1004\u103A\u1037"_s;
    }
    void rowsOfScriptsThatReachFarDoNotTouch() {
        QFETCH(const QString, row);
        const PdfProbe pdf = merged(
            {u"--header="_s + row + u'\n' + row, u"--font-size=40"_s, u"--text-margins=250,20"_s},
            {text("a.txt", "")});
        QCOMPARE(bandsOf(pdf.render(1)), 2);
        QVERIFY(m_run.err.isEmpty());
    }

    void joinedAndTurnedLettersAreFoundInAHeader() {
        const PdfProbe pdf =
            merged({u"--header=\u0645\u0631\u062D\u0628\u0627"_s}, {text("a.txt", "here")});
        QVERIFY(pdf.text().contains(u"\u0645\u0631\u062D\u0628\u0627"_s));
    }

    void headersAreNoPartOfWhatIsTold() {
        merged({u"--header={page}"_s}, {text("a.txt")});
        const ToolRun run = runTool(u"qpdf"_s, {u"--qdf"_s, u"--object-streams=disable"_s,
                                                u"--coalesce-contents"_s, path("out.pdf"), u"-"_s});
        QCOMPARE(run.exitCode, 0);
        const qsizetype begin = run.out.indexOf("/Artifact<</Type/Pagination>>BDC");
        const qsizetype words = run.out.indexOf("(words)");
        const qsizetype number = run.out.indexOf("(1)", begin);
        const qsizetype end = run.out.indexOf("EMC", begin);
        QVERIFY(words >= 0 && words < begin && begin < number && number < end);
    }
};

FOLIOFORGE_TEST(MarginTextsTest)
#include "MarginTextsTest.moc"
