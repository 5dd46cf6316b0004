// SPDX-License-Identifier: Apache-2.0

#include "pdf/PageChoice.h"
#include "MergeCase.h"
#include "error/Error.h"
#include "support/TestUnit.h"

#include <qpdf/QPDFOutlineDocumentHelper.hh>
#include <qpdf/QPDFPageLabelDocumentHelper.hh>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Some of the pages of a source, turned, and what belongs to those that are left out.
class PageChoiceTest : public QObject, MergeCase {
    Q_OBJECT

    Warnings m_warnings;
    QString m_source;

    QString chosen(const PdfFixture &fixture, const QByteArray &range,
                   const std::vector<PageTurn> &turns = {}) {
        m_source = saved(fixture);
        QString path = newPath();
        PDFContext::Settings settings = unflushed();
        settings.oneSource = true;
        PDFContext context(path, std::move(settings));
        m_warnings = context.addDocument(m_source, {range, turns}).warnings;
        QString log = context.close().reason;
        if (!log.isEmpty() || !PdfProbe(path).isValid(&log)) {
            QTest::qFail(qPrintable(log), __FILE__, __LINE__);
        }
        return path;
    }

    /// What qpdf itself makes of the source of chosen().
    QString byQpdf(const QStringList &arguments) {
        QString path = newPath();
        runTool(u"qpdf"_s, QStringList{m_source} + arguments + QStringList{path});
        return path;
    }

    QString warning() const { return m_warnings.size() == 1 ? m_warnings.front().text : QString(); }

    /// The whole file with its streams unpacked.
    static QByteArray unpacked(const QString &path) {
        return runTool(u"qpdf"_s, {u"--qdf"_s, path, u"-"_s}).out;
    }

    static std::vector<std::string> titles(const std::vector<QPDFOutlineObjectHelper> &items) {
        std::vector<std::string> found;
        found.reserve(items.size());
        for (QPDFOutlineObjectHelper item : items) {
            found.push_back(item.getTitle());
        }
        return found;
    }

  private Q_SLOTS:
    void pagesAreThoseThatQpdfTakes_data() {
        QTest::addColumn<QByteArray>("given");
        QTest::addColumn<QString>("known");
        for (const char *range : {"1-3,7,z-8", "1-z:odd", "r2", "z-1:even", "2,2,1", "r3-r1,4"}) {
            QTest::newRow(range) << QByteArray(range) << QString::fromLatin1(range);
        }
        QTest::newRow("odd") << QByteArray("odd") << u"1-z:odd"_s;
        QTest::newRow("a last word") << QByteArray("1-3,7,z-4,odd") << u"1-3,7,z-4:odd"_s;
    }

    void pagesAreThoseThatQpdfTakes() {
        QFETCH(const QByteArray, given);
        QFETCH(const QString, known);
        const auto range = pageRange(given);
        QVERIFY(range);
        const QString path = chosen(PdfFixture().object(1, kCatalog).pages(4, 9), *range);
        const QString other = byQpdf({u"--pages"_s, u"."_s, known, u"--"_s});
        QVERIFY(PdfProbe(other).pageCount() > 0);
        QCOMPARE(PdfProbe(path).text(), PdfProbe(other).text());
    }

    void turnsAreThoseOfQpdf() {
        PdfFixture source = threePages();
        source.object(2, "<< /Type /Pages /Kids [4 0 R 5 0 R 6 0 R] /Count 3 /Rotate 90 >>");
        std::vector<PageTurn> turns;
        for (const char *text : {"+90", "-90:1", "180:z"}) {
            turns.push_back(pageTurn(text).value());
        }
        const QString path = chosen(source, "3,1,2", turns);
        const QString other = byQpdf({u"--pages"_s, u"."_s, u"3,1,2"_s, u"--"_s, u"--rotate=+90"_s,
                                      u"--rotate=-90:1"_s, u"--rotate=180:z"_s});
        QCOMPARE(PdfProbe(path).geometry(), PdfProbe(other).geometry());
        QVERIFY(PdfProbe(path).geometry().join().contains("rot:   180"));
    }

    void whatIsNoRangeOrTurnIsToldFromOne() {
        for (const char *text : {"", "a", "1,", "1--2", "-3", "1:odd,2", "1-z:third"}) {
            QVERIFY2(!pageRange(text), text);
        }
        for (const char *text : {"", "+", "45", "+-90", "90:", "360", "+90:a"}) {
            QVERIFY2(!pageTurn(text), text);
        }
    }

    void aPageThatIsNotThereIsNamed() {
        PDFContext context(newPath(), unflushed());
        QString reason;
        try {
            context.addDocument(saved(threePages()), {"2-4", {}});
        } catch (const Error &error) {
            reason = error.reason();
        }
        QCOMPARE(reason, u"It has 3 pages, and \"2-4\" names others"_s);
        QCOMPARE(context.pageCount(), 0);
    }

    void bookmarksOfPagesThatAreLeftOutGo() {
        const QString path = chosen(
            threePages("/Outlines 10 0 R /OpenAction [4 0 R /Fit]")
                .object(10, "<< /Type /Outlines /First 11 0 R /Last 14 0 R /Count 6 >>")
                .object(11, "<< /Title (A) /Parent 10 0 R /Next 13 0 R /Dest [4 0 R /Fit] "
                            "/First 12 0 R /Last 15 0 R /Count 2 >>")
                .object(12, "<< /Title (A1) /Parent 11 0 R /Dest [5 0 R /Fit] /Next 15 0 R >>")
                .object(15, "<< /Title (A2) /Parent 11 0 R /Prev 12 0 R /Dest [2 /Fit] >>")
                .object(13, "<< /Title (B) /Parent 10 0 R /Prev 11 0 R /Next 14 0 R "
                            "/A << /S /GoTo /D [6 0 R /Fit] >> >>")
                .object(14, "<< /Title (C) /Parent 10 0 R /Prev 13 0 R /First 16 0 R "
                            "/Last 16 0 R /Count -1 >>")
                .object(16, "<< /Title (C1) /Parent 14 0 R /Dest [4 0 R /Fit] >>"),
            "2");
        const auto document = opened(path);
        QPDFOutlineDocumentHelper outline(*document);
        auto top = outline.getTopLevelOutlines();
        QCOMPARE(titles(top), std::vector<std::string>{"A"});
        QVERIFY(top.front().getDest().isNull());
        QCOMPARE(titles(top.front().getKids()), std::vector<std::string>{"A1"});
        QCOMPARE(document->getRoot().getKey("/Outlines").getKey("/Count").getIntValue(), 2LL);
        QVERIFY(!document->getRoot().hasKey("/OpenAction"));
        QCOMPARE(warning(), u"Not carried over, as it belongs to pages that are left out: "
                            "4 bookmarks"_s);
    }

    void theOutlineEndsWithTheLastBookmarkThatStays() {
        const QString path = chosen(
            threePages("/Outlines 10 0 R")
                .object(10, "<< /Type /Outlines /First 11 0 R /Last 13 0 R /Count 3 >>")
                .object(11, "<< /Title (A) /Parent 10 0 R /Next 12 0 R /Dest [4 0 R /Fit] >>")
                .object(12, "<< /Title (B) /Parent 10 0 R /Prev 11 0 R /Next 13 0 R "
                            "/Dest [5 0 R /Fit] >>")
                .object(13, "<< /Title (C) /Parent 10 0 R /Prev 12 0 R /Dest [6 0 R /Fit] >>"),
            "1-2");
        const auto document = opened(path);
        auto last = document->getRoot().getKey("/Outlines").getKey("/Last");
        QCOMPARE(last.getKey("/Title").getUTF8Value(), std::string("B"));
        QVERIFY(!last.hasKey("/Next"));
    }

    void aClosedBookmarkStaysClosed() {
        const QString path =
            chosen(threePages("/Outlines 10 0 R")
                       .object(10, "<< /Type /Outlines /First 11 0 R /Last 11 0 R /Count 1 >>")
                       .object(11, "<< /Title (A) /Parent 10 0 R /First 12 0 R /Last 13 0 R "
                                   "/Count -2 >>")
                       .object(12, "<< /Title (A1) /Parent 11 0 R /Dest [4 0 R /Fit] "
                                   "/Next 13 0 R >>")
                       .object(13, "<< /Title (A2) /Parent 11 0 R /Dest [5 0 R /Fit] "
                                   "/Prev 12 0 R >>"),
                   "2");
        const auto document = opened(path);
        auto outline = document->getRoot().getKey("/Outlines");
        QCOMPARE(outline.getKey("/Count").getIntValue(), 1LL);
        QCOMPARE(outline.getKey("/First").getKey("/Count").getIntValue(), -1LL);
    }

    void linksAndNamesOfPagesThatAreLeftOutGo() {
        const QString path = chosen(
            threePages("/Dests << /there [6 0 R /Fit] /here [5 0 R /Fit] >> /Names << /Dests << "
                       "/Names [(far) [4 0 R /Fit] (near) << /D [5 0 R /Fit] >>] >> >>")
                .object(5, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Annots ["
                           "<< /Subtype /Link /Rect [0 0 9 9] /Dest /there >> "
                           "<< /Subtype /Link /Rect [0 0 9 9] /Dest (far) >> "
                           "<< /Subtype /Link /Rect [0 0 9 9] /A << /S /GoTo /D [0 /Fit] >> >> "
                           "<< /Subtype /Link /Rect [0 0 9 9] /Dest (near) /Contents (stays) >> "
                           "<< /Subtype /Link /Rect [0 0 9 9] /Dest [1 /Fit] /Contents (both) >>"
                           "] >>"),
            "2");
        const auto document = opened(path);
        auto page = document->getAllPages().at(0);
        auto links = page.getKey("/Annots").getArrayAsVector();
        QCOMPARE(links.size(), size_t(2));
        QCOMPARE(links[0].getKey("/Contents").getUTF8Value(), std::string("stays"));
        // A number of a page follows the page.
        QVERIFY(links[1].getKey("/Dest").getArrayItem(0).isSameObjectAs(page));
        QCOMPARE(document->getRoot().getKey("/Dests").getKeys(),
                 (std::set<std::string>{"/here", "/near"}));
        QCOMPARE(warning(), u"Not carried over, as it belongs to pages that are left out: "
                            "3 links, 2 named destinations"_s);
    }

    void fieldsOfPagesThatAreLeftOutGoWithTheirValues() {
        const auto page = [](const char *annotations) {
            return "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Annots " +
                   QByteArray(annotations) + " >>";
        };
        const QByteArray widget = "/Subtype /Widget /Rect [0 0 9 9] ";
        const QString path =
            chosen(threePages("/AcroForm << /Fields [10 0 R 11 0 R] /CO [10 0 R] >>")
                       .object(4, page("[10 0 R 13 0 R]"))
                       .object(5, page("[12 0 R]"))
                       .object(10, "<< /FT /Tx /T (gone) /V (secret) /P 4 0 R " + widget + ">>")
                       .object(11, "<< /FT /Tx /T (both) /V (kept) /Kids [12 0 R 13 0 R] >>")
                       .object(12, "<< /Parent 11 0 R /P 5 0 R " + widget + ">>")
                       .object(13, "<< /Parent 11 0 R /P 4 0 R " + widget + ">>"),
                   "2");
        const QByteArray bytes = unpacked(path);
        QVERIFY(bytes.contains("(kept)"));
        QVERIFY(!bytes.contains("secret"));
        const auto document = opened(path);
        auto form = document->getRoot().getKey("/AcroForm");
        QCOMPARE(form.getKey("/Fields").getArrayNItems(), 1);
        QCOMPARE(form.getKey("/Fields").getArrayItem(0).getKey("/Kids").getArrayNItems(), 1);
        QVERIFY(!form.hasKey("/CO"));
        QCOMPARE(warning(),
                 u"Not carried over, as it belongs to pages that are left out: 1 field"_s);
    }

    void aListOfFieldsThatIsTheKidsOfOneEnds() {
        const QString path = chosen(
            threePages("/AcroForm << /Fields 9 0 R >>")
                .object(9, "[<< /T (round) /FT /Tx /Kids 9 0 R >> 10 0 R]")
                .object(10, "<< /FT /Tx /T (gone) /Subtype /Widget /Rect [0 0 9 9] /P 4 0 R >>")
                .object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] "
                           "/Annots [10 0 R] >>"),
            "2");
        QCOMPARE(PdfProbe(path).pageCount(), 1);
        QVERIFY(!unpacked(path).contains("gone"));
    }

    void structureTagsOfPagesThatAreLeftOutGo() {
        const QByteArray paragraph = "<< /Type /StructElem /S /P /P 11 0 R /K 0 ";
        const QString path =
            chosen(threePages("/MarkInfo << /Marked true >> /StructTreeRoot 10 0 R")
                       .stream(7, {}, "/P << /MCID 0 >> BDC BT /F 9 Tf 9 9 Td (one) Tj ET EMC")
                       .stream(8, {}, "/P << /MCID 0 >> BDC BT /F 9 Tf 9 9 Td (two) Tj ET EMC")
                       .object(10, "<< /Type /StructTreeRoot /K 11 0 R >>")
                       .object(11, "<< /Type /StructElem /S /Document /P 10 0 R /K [12 0 R 13 0 R "
                                   "14 0 R] >>")
                       .object(12, paragraph + "/Pg 4 0 R /ActualText (secret) >>")
                       .object(13, paragraph + "/Pg 5 0 R >>")
                       .object(14, "<< /Type /StructElem /S /Div /P 11 0 R >>"),
                   "2");
        QVERIFY(!unpacked(path).contains("secret"));
        const QString structure = PdfProbe(path).structureText();
        QVERIFY(structure.contains(u"\"two\""_s));
        QCOMPARE(structure.count(u"P (block)"_s), 1);
        QVERIFY(structure.contains(u"Div"_s)); // It has nothing that could be left out.
        QCOMPARE(warning(),
                 u"Not carried over, as it belongs to pages that are left out: 1 structure tag"_s);
    }

    void threadsWithPagesThatAreLeftOutGo() {
        const QString path = chosen(
            threePages("/Threads [10 0 R]")
                .object(5, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /B [12 0 R] >>")
                .object(10, "<< /F 11 0 R /I << /Title (secret) >> >>")
                .object(11, "<< /T 10 0 R /N 12 0 R /V 12 0 R /P 4 0 R /R [0 0 9 9] >>")
                .object(12, "<< /N 11 0 R /V 11 0 R /P 5 0 R /R [0 0 9 9] >>"),
            "2");
        QVERIFY(!unpacked(path).contains("secret"));
        QCOMPARE(warning(),
                 u"Not carried over, as it belongs to pages that are left out: article threads"_s);
    }

    void pageLabelsGoWithTheirPages() {
        const QString path =
            chosen(PdfFixture()
                       .object(1, "<< /Type /Catalog /Pages 2 0 R /PageLabels << /Nums ["
                                  "0 << /S /r >> 4 << /S /D /P (A-) >>] >> >>")
                       .pages(4, 8),
                   "3-6,2");
        const auto document = opened(path);
        QPDFPageLabelDocumentHelper labels(*document);
        QByteArrayList found;
        for (int page = 0; page < 5; ++page) {
            auto label = labels.getLabelForPage(page);
            found += QByteArray::fromStdString(label.getKey("/S").unparse()) +
                     QByteArray::number(label.getKey("/St").getIntValue());
        }
        QCOMPARE(found, (QByteArrayList{"/r3", "/r4", "/D1", "/D2", "/r2"}));
    }
};

FOLIOFORGE_TEST(PageChoiceTest)
#include "PageChoiceTest.moc"
