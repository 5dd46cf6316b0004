// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "pdf/PDFContext.h"
#include "pdf/import/SourceDocument.h"
#include "support/Files.h"
#include "support/PdfFixture.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// `bytes` as a zlib stream, made by Qt.
QByteArray zlib(const QByteArray &bytes) {
    return qCompress(bytes).sliced(4); // Qt puts the size before it.
}

PdfFixture withKids(const QByteArray &kids, const QByteArray &count) {
    return threePages().object(2, "<< /Type /Pages /Kids [" + kids + "] " + count + " >>");
}

} // namespace

/// What is lost of a damaged source is named.
class SourceDamageTest : public QObject, protected MergeCase {
    Q_OBJECT

  private:
    /// The warnings of `source`, each as "name: text".
    QStringList warningsOf(const QString &source) {
        QStringList texts;
        PDFContext context(newPath(), {});
        for (const Warning &warning : context.addDocument(source).warnings) {
            texts += warning.name() + u": "_s + warning.text;
        }
        return texts;
    }
    QStringList warningsOf(const PdfFixture &source) { return warningsOf(saved(source)); }

    /// Three pages, the contents of the second being `data` in deflated form.
    PdfFixture secondPage(const QByteArray &data) {
        return threePages().stream(8, "/Filter /FlateDecode", data);
    }

  private Q_SLOTS:
    void morePagesThanStatedAreNamed_data() {
        QTest::addColumn<QByteArray>("count");
        QTest::addColumn<QString>("stated");
        QTest::newRow("two") << QByteArray("/Count 2") << u"states 2 pages"_s;
        QTest::newRow("none") << QByteArray("/Count 0") << u"states 0 pages"_s;
        QTest::newRow("no count") << QByteArray() << u"does not state its pages"_s;
    }
    void morePagesThanStatedAreNamed() {
        QFETCH(const QByteArray, count);
        QFETCH(const QString, stated);
        QCOMPARE(warningsOf(withKids("4 0 R 5 0 R 6 0 R", count)).value(0),
                 u"pdf-repaired: The document %1, and 3 were found"_s.arg(stated));
    }

    void aSourceInOrderBringsNoWarning() {
        QCOMPARE(warningsOf(threePages()), QStringList());
        QCOMPARE(warningsOf(secondPage(zlib("0 0 9 9 re f"))), QStringList());
    }

    void pagesThatCannotBeReadAreCounted_data() {
        QTest::addColumn<QByteArray>("kids");
        QTest::addColumn<QByteArray>("count");
        QTest::addColumn<QString>("warning");
        const auto row = [](const char *name, const char *kids, const char *count,
                            const QString &text) {
            QTest::newRow(name) << QByteArray(kids) << QByteArray(count) << text;
        };
        row("missing object", "4 0 R 99 0 R 6 0 R", "/Count 3",
            u"2 of 3 pages could be read, page 2 is the first that is missing"_s);
        row("two of them, no count", "4 0 R 99 0 R 98 0 R 6 0 R", "",
            u"2 of 4 pages could be read, page 2 is the first that is missing"_s);
        row("a font in a page's place", "4 0 R 5 0 R 3 0 R", "/Count 3",
            u"2 of 3 pages could be read, page 3 is the first that is missing"_s);
        row("kids that are cut off", "4 0 R 5 0 R", "/Count 10", u"2 of 10 pages could be read"_s);
        row("no kids at all", "", "/Count 3", u"0 of 3 pages could be read"_s);
    }
    void pagesThatCannotBeReadAreCounted() {
        QFETCH(QByteArray, kids);
        QFETCH(QByteArray, count);
        QFETCH(QString, warning);
        QVERIFY(warningsOf(withKids(kids, count)).contains(u"pdf-pages-lost: "_s + warning));
    }

    void kidsThatNoPageWasLostWithAreNoLoss() {
        QCOMPARE(warningsOf(withKids("4 0 R null 5 0 R 6 0 R", "/Count 3")), QStringList());
    }

    void aPageOfAWrongTypeIsStillAPage() {
        PdfFixture source = threePages();
        source.object(5, source.objects().at(5).replace("/Type /Page", "/Type /Template"));
        QVERIFY(PdfProbe(merged({saved(source)})).text(2).contains(u"Page 2"_s));
    }

    void contentsThatCannotBeReadAreNamedByPage_data() {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QByteArray>("filter");
        QTest::addColumn<QByteArray>("data");
        const QByteArray whole = zlib(QByteArray("0 0 9 9 re f ").repeated(99));
        QByteArray changed = whole;
        changed[changed.size() - 1] = static_cast<char>(changed.back() + 1);
        const QByteArray flate("/Filter /FlateDecode");
        const QByteArray one("8 0 R");
        QTest::newRow("cut off") << one << flate << whole.chopped(20);
        QTest::newRow("in a list") << QByteArray("[7 0 R 8 0 R]") << flate << whole.chopped(20);
        QTest::newRow("wrong checksum") << one << flate << changed;
        QTest::newRow("one byte") << one << flate << whole.first(1);
        QTest::newRow("unknown filter") << one << QByteArray("/Filter /FlatxDecode") << whole;
        QTest::newRow("missing") << QByteArray("99 0 R") << flate << whole;
        QTest::newRow("no stream") << QByteArray("3 0 R") << flate << whole;
    }
    void contentsThatCannotBeReadAreNamedByPage() {
        QFETCH(QByteArray, contents);
        QFETCH(QByteArray, filter);
        QFETCH(QByteArray, data);
        PdfFixture source = threePages();
        source.object(5, source.objects().at(5).replace("8 0 R", contents));
        source.stream(8, filter, data);
        QCOMPARE(warningsOf(source),
                 QStringList(u"pdf-pages-lost: What stands on page 2 is damaged and may lack "
                             "something"_s));
    }

    void damagedPagesAreNamedForEachCopyOfASource() {
        const QString source = saved(secondPage(zlib("0 0 9 9 re f").chopped(9)));
        PDFContext context(newPath(), {});
        const Warnings first = context.addDocument(source).warnings;
        QCOMPARE(first.size(), 1U);
        QVERIFY(context.addDocument(source).warnings == first);
    }

    void manyDamagedPagesAreNamedByTheFirst() {
        PdfFixture source = PdfFixture().object(1, kCatalog).pages(4, 8);
        for (int page = 4; page < 12; ++page) {
            source.stream(page + 8, "/Filter /FlateDecode", "no zlib stream");
        }
        QCOMPARE(warningsOf(source).value(0),
                 u"pdf-pages-lost: What stands on page 1, 2, 3, 4, 5 and 3 more is damaged and may "
                 "lack something"_s);
    }

    void contentsThatReadersShowAreNotDamaged_data() {
        QTest::addColumn<QByteArray>("data");
        const QByteArray whole = zlib("0 0 9 9 re f");
        QTest::newRow("no checksum") << whole.chopped(4);
        QTest::newRow("a line end behind them") << whole + '\n';
        QTest::newRow("empty") << QByteArray();
        // Longer than any reader would draw: nobody unpacks it to its end.
        QTest::newRow("65 MB in 65 KB, cut off") << zlib(QByteArray(65 << 20, ' ')).chopped(9);
    }
    void contentsThatReadersShowAreNotDamaged() {
        QFETCH(QByteArray, data);
        QCOMPARE(warningsOf(secondPage(data)), QStringList());
    }

    void largeContentsAreLookedAtWhereTheFileNeededRepair() {
        // Bytes that no program packs, 2 MB of them before the page that is damaged.
        QByteArray noise(2 << 20, '%');
        quint32 state = 1;
        for (char &byte : noise) {
            state = state * 1664525 + 1013904223;
            byte = static_cast<char>(state >> 24);
        }
        PdfFixture source = secondPage(zlib("0 0 9 9 re f").chopped(9));
        source.stream(7, "/Filter /FlateDecode", zlib(noise));
        QCOMPARE(warningsOf(source), QStringList());
        const QByteArray moved = source.bytes().replace("startxref\n", "startxref\n9");
        const QStringList warnings = warningsOf(writeFile(newPath(), moved));
        QCOMPARE(warnings.size(), 2);
        QVERIFY(warnings.first().contains(u"page 2"_s));
    }

    void aSourceThatIsCutOffGivesWhatStandsBefore_data() {
        QTest::addColumn<QByteArray>("end");
        QTest::newRow("no trailer") << QByteArray("trailer");
        QTest::newRow("no table") << QByteArray("xref");
        QTest::newRow("within an object's end") << QByteArray("dobj\nxref");
        QTest::newRow("within a stream") << QByteArray("ET\nendstream\nendobj\nxref");
    }
    void aSourceThatIsCutOffGivesWhatStandsBefore() {
        QFETCH(const QByteArray, end);
        const QByteArray whole = threePages().bytes();
        QVERIFY(whole.contains(end));
        const QString source = writeFile(newPath(), whole.first(whole.indexOf(end)));
        QCOMPARE(summarizePDF(source).pageCount, 3);
        QVERIFY(warningsOf(source).value(0).startsWith(u"pdf-repaired: The document is damaged"_s));
        const PdfProbe probe(merged({source}));
        QVERIFY(probe.text(1).contains(u"Page 1"_s));
        QVERIFY(probe.text(3).contains(u"Page 3"_s));
    }

    void theLastCatalogOfASourceThatIsCutOffCounts() {
        PdfFixture source = threePages();
        source.object(20, "<< /Type /Catalog /Pages 21 0 R >>");
        source.object(21, "<< /Type /Pages /Count 1 /Kids [6 0 R] >>");
        const QByteArray whole = source.bytes();
        QCOMPARE(PdfProbe(merged({writeFile(newPath(), whole.first(whole.indexOf("xref")))}))
                     .pageCount(),
                 1);
    }

    void repairsAreToldInWords_data() {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QString>("words");
        const auto row = [](const char *name, const char *from, const char *to, const char *words) {
            QTest::newRow(name) << QByteArray(from) << QByteArray(to) << QString::fromLatin1(words);
        };
        row("table", "startxref\n", "startxref\n9", "repaired: its table of objects is damaged");
        row("object", "/BaseFont /Helv", "/BaseFont }Helv",
            "places, the first: an object is not well formed (object 3)");
        row("length", "/Length 35", "/Length 34", "the length of a stream is wrong (object 7)");
        row("header", "%PDF-1.7", "%PDX-1.7", "repaired: its header is missing");
    }
    void repairsAreToldInWords() {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QString, words);
        QByteArray bytes = threePages().bytes();
        QVERIFY(bytes.contains(from));
        bytes.replace(bytes.indexOf(from), from.size(), to);
        const QStringList warnings = warningsOf(writeFile(newPath(), bytes));
        QVERIFY(!warnings.isEmpty());
        QVERIFY2(warnings.last().startsWith(
                     u"pdf-repaired: The document is damaged and was repaired"_s) &&
                     warnings.last().contains(words),
                 qPrintable(warnings.last()));
    }
};

FOLIOFORGE_TEST(SourceDamageTest)
#include "SourceDamageTest.moc"
