// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "pdf/PDFContext.h"
#include "support/PdfFixture.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

const QString kOnPage =
    u"pdf-pages-lost: What stands on page %1 is damaged and may lack something"_s;

/// These pages, in the second of which `from` has become `to`.
PdfFixture secondPage(const QByteArray &from, const QByteArray &to) {
    PdfFixture source = threePages();
    return source.object(5, source.objects().at(5).replace(from, to));
}

} // namespace

/// Objects that a source refers to and does not have.
class MissingObjectsTest : public QObject, protected MergeCase {
    Q_OBJECT

  private:
    QString warningsOf(const PdfFixture &source) {
        QStringList texts;
        PDFContext context(newPath(), {});
        for (const Warning &warning : context.addDocument(saved(source)).warnings) {
            texts += warning.name() + u": "_s + warning.text;
        }
        return texts.join(u'\n');
    }

  private Q_SLOTS:
    void thePageThatLacksThemIsNamed_data() {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        const auto row = [](const char *name, const char *from, const char *to) {
            QTest::newRow(name) << QByteArray(from) << QByteArray(to);
        };
        row("font", "/F 3 0 R", "/F 99 0 R");
        row("all fonts", "<< /F 3 0 R >>", "99 0 R");
        row("resources", "<< /Font << /F 3 0 R >> >>", "99 0 R");
        row("picture", "/Font <<", "/XObject << /I 99 0 R >> /Font <<");
        row("pattern", "/Font <<", "/Pattern << /P 99 0 R >> /Font <<");
        row("annotation", "/Contents", "/Annots [99 0 R] /Contents");
        row("all annotations", "/Contents", "/Annots 99 0 R /Contents");
        row("contents", "/Contents 8 0 R", "/Contents [8 0 R 99 0 R]");
    }
    void thePageThatLacksThemIsNamed() {
        QFETCH(const QByteArray, from);
        QFETCH(const QByteArray, to);
        QCOMPARE(warningsOf(secondPage(from, to)), kOnPage.arg(2));
    }

    void aNullThatIsWrittenIsNoLoss_data() {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        const auto row = [](const char *name, const char *from, const QByteArray &to) {
            QTest::newRow(name) << QByteArray(from) << to;
        };
        row("font", "/F 3 0 R", "/F 3 0 R /N null");
        row("fonts", "/Font <<", "/Pattern null /Font <<");
        row("picture", "/Font <<", "/XObject << /I null >> /Font <<");
        row("annotation", "/Contents", "/Annots [null] /Contents");
        row("all annotations", "/Contents", "/Annots null /Contents");
        // So many that libqpdf 12 keeps the list in another form.
        row("many annotations", "/Contents",
            "/Annots [" + QByteArray("null ").repeated(200) + "] /Contents");
        row("contents", "/Contents 8 0 R", "/Contents [null 8 0 R]");
    }
    void aNullThatIsWrittenIsNoLoss() {
        QFETCH(const QByteArray, from);
        QFETCH(const QByteArray, to);
        QCOMPARE(warningsOf(secondPage(from, to)), QString());
    }

    void resourcesThatPagesShareLackThemForEach() {
        PdfFixture source = threePages();
        for (int page = 5; page < 7; ++page) {
            source.object(
                page, source.objects().at(page).replace("<< /Font << /F 3 0 R >> >>", "10 0 R"));
        }
        source.object(10, "<< /Font << /F 99 0 R >> >>");
        QCOMPARE(warningsOf(source), kOnPage.arg(u"2, 3"_s));
    }

    void inheritedResourcesLackThemForEach() {
        PdfFixture source = threePages();
        for (int page = 4; page < 6; ++page) {
            source.object(page, source.objects().at(page).replace("/Resources", "/Other"));
        }
        source.object(2, "<< /Type /Pages /Count 3 /Kids [4 0 R 5 0 R 6 0 R] "
                         "/Resources << /Font << /F 99 0 R >> >> >>");
        QCOMPARE(warningsOf(source), kOnPage.arg(u"1, 2"_s));
    }

    void aFormThatLacksThemIsNamedByItsPage() {
        PdfFixture source = secondPage("/Font <<", "/XObject << /X 10 0 R >> /Font <<");
        source.stream(10,
                      "/Type /XObject /Subtype /Form /BBox [0 0 9 9] "
                      "/Resources << /XObject << /Own 10 0 R /X 11 0 R >> >>",
                      "/X Do");
        source.stream(11,
                      "/Type /XObject /Subtype /Form /BBox [0 0 9 9] "
                      "/Resources << /Font << /F 99 0 R >> >>",
                      "BT /F 9 Tf (a) Tj ET");
        QCOMPARE(warningsOf(source), kOnPage.arg(2));
    }

    void aWholeFormDoesNotHideWhatItsPageLacks() {
        PdfFixture source =
            secondPage("/Font << /F 3 0 R >>", "/XObject << /X 10 0 R >> /Font << /F 99 0 R >>");
        source.stream(10,
                      "/Type /XObject /Subtype /Form /BBox [0 0 9 9] "
                      "/Resources << /Font << /F 3 0 R >> >>",
                      "BT /F 9 Tf (a) Tj ET");
        QCOMPARE(warningsOf(source), kOnPage.arg(2));
    }

    void whatTheCatalogLeadsToIsNamed_data() {
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QString>("words");
        const QString bookmarks = u"bookmarks"_s;
        const QString fields = u"form fields"_s;
        QTest::newRow("outline") << QByteArray("/Outlines 99 0 R") << bookmarks;
        QTest::newRow("first bookmark") << QByteArray("/Outlines << /First 99 0 R >>") << bookmarks;
        QTest::newRow("next bookmark") << QByteArray("/Outlines << /First 10 0 R >>") << bookmarks;
        QTest::newRow("bookmark below") << QByteArray("/Outlines << /First 11 0 R >>") << bookmarks;
        QTest::newRow("form") << QByteArray("/AcroForm 99 0 R") << fields;
        QTest::newRow("field") << QByteArray("/AcroForm << /Fields [99 0 R] >>") << fields;
        QTest::newRow("kid") << QByteArray("/AcroForm << /Fields [12 0 R] >>") << fields;
    }
    void whatTheCatalogLeadsToIsNamed() {
        QFETCH(const QByteArray, keys);
        QFETCH(const QString, words);
        PdfFixture source = threePages(keys);
        source.object(10, "<< /Title (a) /Next 99 0 R >>");
        source.object(11, "<< /Title (a) /First 99 0 R >>");
        source.object(12, "<< /FT /Tx /T (a) /Kids [null 99 0 R] >>");
        const QString text =
            u"pdf-parts-left: Some of its %1 are missing in the document itself"_s.arg(words);
        QCOMPARE(warningsOf(source), text);
    }

    void aNullInTheCatalogIsNoLoss() {
        PdfFixture source =
            threePages("/Outlines << /First null >> /AcroForm << /Fields [null 12 0 R] >>");
        source.object(12, "<< /FT /Tx /T (a) /Kids [null] >>");
        QCOMPARE(warningsOf(source), QString());
    }

    void loopsEnd() {
        PdfFixture source = threePages("/Outlines 10 0 R /AcroForm << /Fields [11 0 R] >>");
        source.object(10, "<< /First 10 0 R /Next 10 0 R >>");
        source.object(11, "<< /FT /Tx /T (a) /Kids [11 0 R] >>");
        QVERIFY(!warningsOf(source).contains(u"missing"_s));
    }
};

FOLIOFORGE_TEST(MissingObjectsTest)
#include "MissingObjectsTest.moc"
