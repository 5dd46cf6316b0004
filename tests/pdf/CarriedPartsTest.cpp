// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "support/TestUnit.h"

#include <set>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace folioforge {
// So that a comparison that fails shows both.
inline char *toString(const PartCounts &parts) {
    return QTest::toString(inWords(parts));
}
} // namespace folioforge

/// What is said to have come with a document, and what not, counted.
class CarriedPartsTest : public QObject, protected MergeCase {
    Q_OBJECT

    static PdfFixture withCatalog(const QByteArray &keys) {
        PdfFixture fixture;
        fixture.object(1, "<< /Type /Catalog /Pages 2 0 R " + keys + " >>").pages(4, 1);
        return fixture;
    }
    static PdfFixture withAnnotations(const QByteArray &annotations, const QByteArray &keys = {}) {
        PdfFixture source = withCatalog(keys);
        source.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Annots [" +
                             annotations + "] >>");
        return source;
    }
    DocumentParts parts(const PdfFixture &source) {
        return PDFContext(newPath(), {}).addDocument(saved(source)).parts;
    }

  private Q_SLOTS:
    void aPlainPageBringsNothingElse() {
        const DocumentParts counted = parts(withCatalog({}));
        QCOMPARE(counted.carried, PartCounts());
        QCOMPARE(counted.left, PartCounts());
    }

    void whatAnOpeningActionRunsIsAScriptAndWhatItShowsIsNone() {
        QCOMPARE(parts(withCatalog("/OpenAction << /S /GoTo /D [4 0 R /Fit] >>")).carried,
                 PartCounts());
        QCOMPARE(parts(withCatalog("/OpenAction << /S /JavaScript /JS (1) >>")).carried,
                 (PartCounts{{PartKind::Scripts, 1}}));
    }

    void linksAndOtherAnnotationsAreCountedApart() {
        const QByteArray box = " /Rect [0 0 9 9] >> ";
        const DocumentParts counted = parts(withAnnotations(
            "<< /Subtype /Link" + box + "<< /Subtype /Link" + box + "<< /Subtype /Text" + box +
            "<< /Subtype /Popup" + box + "<< /Subtype /Widget" + box));
        QCOMPARE(counted.carried, (PartCounts{{PartKind::Links, 2}, {PartKind::Annotations, 1}}));
    }

    void aListOfAnnotationsThatPagesShareIsCountedOnce() {
        PdfFixture source = withCatalog({});
        source.pages(4, 2);
        for (const int page : {4, 5}) {
            source.object(page, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 9 9] /Annots 20 0 R "
                                ">>");
        }
        source.object(20, "[<< /Subtype /Link /Rect [0 0 9 9] >>]");
        QCOMPARE(parts(source).carried, (PartCounts{{PartKind::Links, 1}}));
    }

    void filesOfPagesAndTheirAnnotationsAreCounted() {
        PdfFixture source = withCatalog({});
        source.object(4,
                      "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 9 9] /AF [20 0 R] /Annots [<< "
                      "/Subtype /FileAttachment /Rect [0 0 9 9] /FS 21 0 R >> << /Subtype /Link "
                      "/Rect [0 0 9 9] /AF [22 0 R 20 0 R] >>] >>");
        for (const int file : {20, 21, 22}) {
            source.object(file, "<< /Type /Filespec /F (a) /EF << /F 23 0 R >> >>");
        }
        source.stream(23, "/Type /EmbeddedFile", "data");
        QCOMPARE(parts(source).carried, (PartCounts{{PartKind::Attachments, 3},
                                                    {PartKind::Links, 1},
                                                    {PartKind::Annotations, 1}}));
    }

    void filesOfElementsAndFormsAreCounted() {
        PdfFixture source = withCatalog("/StructTreeRoot << /Type /StructTreeRoot /K 24 0 R >>");
        source.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 9 9] /Resources << /XObject "
                         "<< /X 22 0 R >> >> >>");
        source.stream(22, "/Type /XObject /Subtype /Form /BBox [0 0 9 9] /AF [20 0 R]", {});
        source.object(24, "<< /Type /StructElem /S /Formula /AF [21 0 R 20 0 R] >>");
        for (const int file : {20, 21}) {
            source.object(file, "<< /Type /Filespec /F (a) /EF << /F 23 0 R >> >>");
        }
        source.stream(23, "/Type /EmbeddedFile", "data");
        QCOMPARE(parts(source).carried,
                 (PartCounts{{PartKind::StructureElements, 1}, {PartKind::Attachments, 2}}));
    }

    void bookmarksOfEveryLevelAreCountedOnce() {
        PdfFixture source = withCatalog("/Outlines << /First 20 0 R /Last 22 0 R >>");
        source.object(20, "<< /Title (1) /First 21 0 R /Last 21 0 R /Next 22 0 R >>");
        source.object(21, "<< /Title (1.1) /Next 21 0 R >>"); // Leads to itself.
        source.object(22, "<< /Title (2) >>");
        QCOMPARE(parts(source).carried, (PartCounts{{PartKind::Bookmarks, 3}}));
    }

    void bookmarksThatStandInOthersAreCountedOnce() {
        PdfFixture source = withCatalog("/Outlines << /First << /Title (1) /Next 20 0 R >> >>");
        source.object(20, "<< /Title (2) /Next << /Title (3) /Next << /Title (4) >> >> >>");
        QCOMPARE(parts(source).carried, (PartCounts{{PartKind::Bookmarks, 4}}));
    }

    void fieldsAreCountedAndNotTheirWidgets() {
        const QByteArray widget = "<< /Subtype /Widget /Rect [0 0 9 9] /Parent ";
        PdfFixture source = withAnnotations("24 0 R 25 0 R 26 0 R",
                                            "/AcroForm << /Fields [20 0 R 22 0 R 26 0 R] >>");
        source.object(20, "<< /T (address) /Kids [21 0 R 23 0 R] >>");
        source.object(21, "<< /T (street) /FT /Tx /Parent 20 0 R >>");
        source.object(22, "<< /T (choice) /FT /Btn /Kids [24 0 R 25 0 R] >>");
        source.object(23, "<< /T (town) /FT /Tx /Parent 20 0 R >>");
        source.object(24, widget + "22 0 R >>").object(25, widget + "22 0 R >>");
        source.object(26, "<< /T (name) /FT /Tx /Subtype /Widget /Rect [0 0 9 9] >>");
        QCOMPARE(parts(source).carried, (PartCounts{{PartKind::Fields, 4}}));
    }

    void layersAndPageLabelsAreCounted() {
        PdfFixture source = withCatalog("/OCProperties << /OCGs [20 0 R 21 0 R] /D << >> >> "
                                        "/PageLabels << /Nums [0 << /S /r >>] >>");
        source.object(20, "<< /Type /OCG /Name (a) >>").object(21, "<< /Type /OCG /Name (b) >>");
        QCOMPARE(parts(source).carried,
                 (PartCounts{{PartKind::PageLabels, 1}, {PartKind::Layers, 2}}));
    }

    void whatHasANameIsCounted() {
        PdfFixture source = withCatalog(
            "/Dests << /a [4 0 R /Fit] >> /AF [20 0 R 21 0 R] /Threads [<< /F << >> >>] "
            "/Names << /Dests << /Names [(b) [4 0 R /Fit]] >> /EmbeddedFiles << /Names "
            "[(x) 20 0 R (y) << /F (y) /EF << >> >>] >> /JavaScript << /Names [(s) << "
            "/S /JavaScript >>] >> /Templates << /Names [(t) << >> (u) << >>] >> >>");
        source.object(20, "<< /F (x) /EF << >> >>").object(21, "<< /F (z) /EF << >> >>");
        const PartCounts expected{{PartKind::Attachments, 3},
                                  {PartKind::Scripts, 1},
                                  {PartKind::PageTemplates, 2},
                                  {PartKind::ArticleThreads, 1},
                                  {PartKind::Destinations, 2}};
        const QString path = saved(source);
        PDFContext context(newPath(), {});
        QCOMPARE(context.addDocument(path).parts.carried, expected);
        PartCounts renamed = expected;
        // Two destinations, three files, two templates.
        renamed[PartKind::RenamedNames] = 7;
        QCOMPARE(context.addDocument(path).parts.carried, renamed);
    }

    void whatIsLeftIsCountedAsItIsNamed() {
        PdfFixture source = withCatalog("/AcroForm << /Fields [20 0 "
                                        "R] >> /Perms << /UR3 << >> >>");
        source.object(20, "<< /FT /Sig /T (one) /V << /Contents <00> /ByteRange [0 1 2 3] >> >>");
        const DocumentParts counted = parts(source);
        QCOMPARE(counted.carried, (PartCounts{{PartKind::Fields, 1}}));
        QCOMPARE(counted.left, (PartCounts{{PartKind::UsageRights, 1}, {PartKind::Signatures, 1}}));
    }

    void aDocumentWithoutPagesBringsNothing() {
        PdfFixture source = withCatalog("/Outlines << /First 20 0 R >>");
        source.object(2, "<< /Type /Pages /Kids [] /Count 0 >>").object(20, "<< /Title (1) >>");
        QCOMPARE(parts(source).carried, PartCounts());
    }

    void everyKindHasANameOfItsOwn() {
        std::set<QString> names;
        for (const PartWords &words : partWords()) {
            QVERIFY(!QByteArrayView(words.one).isEmpty());
            names.insert(words.name);
        }
        QCOMPARE(names.size(), partWords().size());
    }
};

FOLIOFORGE_TEST(CarriedPartsTest)
#include "CarriedPartsTest.moc"
