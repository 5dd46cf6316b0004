// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "error/Error.h"
#include "pdf/PDFContext.h"
#include "support/FaultyCalls.h"
#include "support/PdfFixture.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFOutlineDocumentHelper.hh>
#include <qpdf/QPDFPageLabelDocumentHelper.hh>

#include <QImage>

#include <cstring>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// Which page, from 0, a destination leads to; -1 for none.
int pageOf(QPDF &document, QPDFObjectHandle destination) {
    if (destination.isName() || destination.isString()) {
        destination = QPDFOutlineDocumentHelper(document).resolveNamedDest(destination);
    }
    if (destination.isDictionary()) {
        destination = destination.getKey("/D");
    }
    if (!destination.isArray() || destination.getArrayNItems() == 0) {
        return -1;
    }
    const auto &pages = document.getAllPages();
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (pages[i].getObjGen() == destination.getArrayItem(0).getObjGen()) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

QPDFObjectHandle annotation(QPDF &document, std::size_t page, int index) {
    QPDFObjectHandle handle = document.getAllPages().at(page);
    return handle.getKey("/Annots").getArrayItem(index);
}

} // namespace

class MergeTest : public QObject, protected MergeCase {
    Q_OBJECT

  private Q_SLOTS:
    void fivePagesKeepTheirOwnMediaBoxes() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 5);
        const QList<QRectF> boxes = {{0, 0, 200, 100},
                                     {0, 0, 612, 792},
                                     {-50, -20, 300, 400},
                                     {10.5, 20.25, 500, 600},
                                     {10, 20, 150, 160}};
        for (int i = 0; i < boxes.size(); ++i) {
            const QRectF &box = boxes.at(i);
            const QString text = u"<< /Type /Page /Parent 2 0 R /MediaBox [%1 %2 %3 "
                                 "%4] /Resources << /Font << /F 3 0 R >> >> "
                                 "/Contents %5 0 R >>"_s.arg(box.left())
                                     .arg(box.top())
                                     .arg(box.right())
                                     .arg(box.bottom())
                                     .arg(9 + i);
            source.object(4 + i, text.toLatin1());
        }
        const PdfProbe probe(merged({saved(source)}));
        QCOMPARE(probe.pageCount(), 5);
        for (int i = 0; i < boxes.size(); ++i) {
            QCOMPARE(probe.box(u"MediaBox"_s, i + 1), boxes.at(i));
            QVERIFY(probe.text(i + 1).contains(u"Page %1"_s.arg(i + 1)));
        }
    }

    void pagesLookAsTheyDidInTheSource() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 2);
        source.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [-10 -10 200 100] /CropBox [0 0 "
                         "150 90] /Rotate 90 /UserUnit 2 /Resources << /Font << /F 3 0 R >> >> "
                         "/Contents 6 0 R >>");
        const QString path = saved(source);
        const QString result = merged({path});
        for (int page = 1; page <= 2; ++page) {
            QCOMPARE(PdfProbe(result).render(page), PdfProbe(path).render(page));
            QCOMPARE(PdfProbe(result).renderWithMutool(page),
                     PdfProbe(path).renderWithMutool(page));
        }
        const auto document = opened(result);
        auto page = document->getAllPages().at(0);
        QCOMPARE(page.getKey("/Rotate").getIntValue(), 90LL);
        QCOMPARE(page.getKey("/UserUnit").getIntValue(), 2LL);
        QCOMPARE(page.getKey("/CropBox").unparse(), std::string("[ 0 0 150 90 ]"));
    }

    void inheritedAttributesComeWithThePages() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 2);
        source.object(2, "<< /Type /Pages /Count 2 /Kids [4 0 R 5 0 R] /MediaBox [0 0 321 123] "
                         "/CropBox [1 1 300 100] /Rotate 180 /Resources << /Font << /F 3 0 R >> >> "
                         ">>");
        source.object(4, "<< /Type /Page /Parent 2 0 R /Contents 6 0 R >>");
        source.object(5, "<< /Type /Page /Parent 2 0 R /Contents 7 0 R /Rotate 0 >>");
        const QString path = saved(source);
        const QString result = merged({path});
        QCOMPARE(PdfProbe(result).box(u"MediaBox"_s, 2), QRectF(0, 0, 321, 123));
        QCOMPARE(PdfProbe(result).box(u"CropBox"_s, 1), QRectF(1, 1, 299, 99));
        QCOMPARE(PdfProbe(result).render(1), PdfProbe(path).render(1));
        QCOMPARE(PdfProbe(result).render(2), PdfProbe(path).render(2));
        const auto document = opened(result);
        const auto &pages = document->getAllPages();
        QCOMPARE(QPDFObjectHandle(pages[0]).getKey("/Resources").getObjGen(),
                 QPDFObjectHandle(pages[1]).getKey("/Resources").getObjGen());
    }

    void linksLeadToTheSamePagesForwardsAndBackwards() {
        PdfFixture source;
        source.object(1, "<< /Type /Catalog /Pages 2 0 R /Dests << /old [5 0 R /Fit] >> /Names << "
                         "/Dests << /Names [(end) << /D [6 0 R /XYZ 0 50 null] >> (start) [4 0 R "
                         "/Fit]] >> >> >>");
        source.pages(4, 3);
        const QByteArray link = "<< /Type /Annot /Subtype /Link /Rect [0 0 50 50] ";
        source.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Resources << /Font "
                         "<< /F 3 0 R >> >> /Contents 7 0 R /Annots [20 0 R 21 0 R 22 0 R 23 0 R "
                         "24 0 R] >>");
        source.object(6, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Resources << /Font "
                         "<< /F 3 0 R >> >> /Contents 9 0 R /Annots [25 0 R] >>");
        source.object(20, link + "/Dest [6 0 R /Fit] >>");
        source.object(21, link + "/Dest (end) >>");
        source.object(22, link + "/Dest /old >>");
        source.object(23, link + "/A << /S /GoTo /D (end) >> >>");
        source.object(24, link + "/A << /S /GoTo /D [1 /Fit] >> >>");
        source.object(25, link + "/A << /S /GoTo /D [4 0 R /Fit] >> >>");
        const QString path = saved(source);
        const auto document = opened(merged({path, path}));
        for (const std::size_t start : {0U, 3U}) {
            const auto at = static_cast<int>(start);
            const auto link0 = [&](int index) { return annotation(*document, start, index); };
            QCOMPARE(pageOf(*document, link0(0).getKey("/Dest")), at + 2);
            QCOMPARE(pageOf(*document, link0(1).getKey("/Dest")), at + 2);
            QCOMPARE(pageOf(*document, link0(2).getKey("/Dest")), at + 1);
            QCOMPARE(pageOf(*document, link0(3).getKey("/A").getKey("/D")), at + 2);
            QCOMPARE(pageOf(*document, link0(4).getKey("/A").getKey("/D")), at + 1);
            auto back = annotation(*document, start + 2, 0);
            QCOMPARE(pageOf(*document, back.getKey("/A").getKey("/D")), at);
        }
    }

    void bookmarksStandInMergeOrderAndLeadToTheirPages() {
        PdfFixture source;
        source.object(1, "<< /Type /Catalog /Pages 2 0 R /Outlines 20 0 R /Names << /Dests << "
                         "/Names [(two) [5 0 R /Fit]] >> >> >>");
        source.pages(4, 2);
        source.object(20, "<< /Type /Outlines /First 21 0 R /Last 22 0 R /Count 3 >>");
        source.object(21, "<< /Title (One) /Parent 20 0 R /Next 22 0 R /First 23 0 R /Last 23 0 R "
                          "/Count 1 /Dest [4 0 R /Fit] >>");
        source.object(22, "<< /Title (Two) /Parent 20 0 R /Prev 21 0 R /A << /S /GoTo /D (two) >> "
                          ">>");
        source.object(23, "<< /Title (Inner) /Parent 21 0 R /Dest [5 0 R /Fit] >>");
        PdfFixture plain;
        plain.object(1, kCatalog).pages(4, 1);
        const QString path = saved(source);
        const auto document = opened(merged({path, saved(plain), path}));
        QPDFOutlineDocumentHelper outlines(*document);
        auto items = outlines.getTopLevelOutlines();
        QCOMPARE(items.size(), 4U);
        QCOMPARE(items[0].getTitle(), std::string("One"));
        QCOMPARE(items[0].getKids().at(0).getTitle(), std::string("Inner"));
        QCOMPARE(items[3].getTitle(), std::string("Two"));
        QCOMPARE(pageOf(*document, items[0].getDest()), 0);
        QCOMPARE(pageOf(*document, items[0].getKids().at(0).getDest()), 1);
        QCOMPARE(pageOf(*document, items[2].getDest()), 3);
        QCOMPARE(pageOf(*document, items[3].getDest()), 4);
        QCOMPARE(document->getRoot().getKey("/Outlines").getKey("/Count").getIntValue(), 6LL);
    }

    void bookmarksThatCountTooManyLinesStayReadable() {
        PdfFixture source;
        source.object(1, "<< /Type /Catalog /Pages 2 0 R /Outlines 20 0 R >>").pages(4, 1);
        source.object(20, "<< /Type /Outlines /First 21 0 R /Last 21 0 R /Count 1 >>");
        source.object(21, "<< /Title (Lie) /Parent 20 0 R /Count 9223372036854775807 >>");
        const QString path = saved(source);
        const auto document = opened(merged({path, path}));
        auto outline = document->getRoot().getKey("/Outlines");
        QCOMPARE(outline.getKey("/Count").getIntValue(), 2147483647LL);
        QCOMPARE(QPDFOutlineDocumentHelper(*document).getTopLevelOutlines().size(), 2U);
    }

    void formFieldsOfTheSameNameStayApart() {
        PdfFixture source;
        source.object(1, "<< /Type /Catalog /Pages 2 0 R /AcroForm << /Fields [20 0 R] /DA (/Helv "
                         "9 Tf 0 g) /DR << /Font << /Helv 3 0 R >> >> >> >>");
        source.pages(4, 1);
        source.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Resources << /Font "
                         "<< /F 3 0 R >> >> /Contents 5 0 R /Annots [20 0 R] >>");
        const auto field = [](const QByteArray &value) {
            return "<< /Type /Annot /Subtype /Widget /FT /Tx /T (name) /V (" + value +
                   ") /Rect [10 10 100 30] /P 4 0 R >>";
        };
        const QString first = saved(source.object(20, field("Anna")));
        source.object(3, "<< /Type /Font /Subtype /Type1 /BaseFont /Courier >>");
        const QString second = saved(source.object(20, field("Bert")));
        const auto document = opened(merged({first, second}));
        QPDFAcroFormDocumentHelper form(*document);
        const auto fields = form.getFormFields();
        QCOMPARE(fields.size(), 2U);
        auto one = fields[0];
        auto other = fields[1];
        QVERIFY(one.getFullyQualifiedName() != other.getFullyQualifiedName());
        QCOMPARE(one.getValueAsString(), std::string("Anna"));
        QCOMPARE(other.getValueAsString(), std::string("Bert"));
        const auto fontOf = [&](QPDFFormFieldObjectHelper &helper) {
            const std::string appearance = helper.getDefaultAppearance();
            const std::string name = appearance.substr(0, appearance.find(' '));
            return document->getRoot()
                .getKey("/AcroForm")
                .getKey("/DR")
                .getKey("/Font")
                .getKey(name)
                .getKey("/BaseFont")
                .getName();
        };
        QCOMPARE(fontOf(one), std::string("/Helvetica"));
        QCOMPARE(fontOf(other), std::string("/Courier"));
        QCOMPARE(form.getWidgetAnnotationsForPage(document->getAllPages().at(1)).size(), 1U);
    }

    void hiddenLayersStayHidden() {
        PdfFixture source;
        source.object(1, "<< /Type /Catalog /Pages 2 0 R /OCProperties << /OCGs [20 0 R 21 0 R] /D "
                         "<< /OFF [20 0 R] /Order [20 0 R 21 0 R] >> >> >>");
        source.pages(4, 1);
        source.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Resources << "
                         "/Properties << /Hidden 20 0 R /Shown 21 0 R >> >> /Contents 5 0 R >>");
        source.stream(5, {},
                      "/OC /Hidden BDC 1 0 0 rg 0 0 100 100 re f EMC /OC /Shown BDC 0 0 1 rg 100 0 "
                      "100 100 re f EMC");
        source.object(20, "<< /Type /OCG /Name (Hidden) >>");
        source.object(21, "<< /Type /OCG /Name (Shown) >>");
        const QString listed = saved(source);
        source.object(1, "<< /Type /Catalog /Pages 2 0 R /OCProperties << /OCGs [20 0 R 21 0 R] /D "
                         "<< /BaseState /OFF /ON [21 0 R] >> >> >>");
        const QString allBut = saved(source);
        const PdfProbe probe(merged({listed, allBut}));
        for (const int page : {1, 2}) {
            const QImage image = probe.render(page);
            QCOMPARE(image.pixelColor(50, 50), QColor(Qt::white));
            QCOMPARE(image.pixelColor(150, 50), QColor(Qt::blue));
        }
    }

    void pageLabelsStayWithTheirPages() {
        PdfFixture labelled;
        labelled.object(1, "<< /Type /Catalog /Pages 2 0 R /PageLabels << /Nums [0 << /S /r >> 1 "
                           "<< /S /D /P (A-) >>] >> >>");
        labelled.pages(4, 3);
        PdfFixture plain;
        plain.object(1, kCatalog).pages(4, 2);
        const auto document = opened(merged({saved(plain), saved(labelled), saved(plain)}));
        QPDFPageLabelDocumentHelper labels(*document);
        QCOMPARE(labels.getLabelForPage(1).getKey("/S").getName(), std::string("/D"));
        QCOMPARE(labels.getLabelForPage(1).getKey("/St").getIntValue(), 2LL);
        QCOMPARE(labels.getLabelForPage(2).getKey("/S").getName(), std::string("/r"));
        QCOMPARE(labels.getLabelForPage(4).getKey("/P").getStringValue(), std::string("A-"));
        QCOMPARE(labels.getLabelForPage(5).getKey("/St").getIntValue(), 6LL);
    }

    void resourcesSharedByPagesStayShared() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 3);
        const auto document = opened(merged({saved(source)}));
        std::set<QPDFObjGen> fonts;
        for (auto page : document->getAllPages()) {
            fonts.insert(page.getKey("/Resources").getKey("/Font").getKey("/F").getObjGen());
        }
        QCOMPARE(fonts.size(), 1U);
    }

    void theSameSourceTwiceBringsItsStreamsOnce() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 1);
        source.stream(5, {},
                      QByteArray("% padding that compresses to little\n").repeated(9) +
                          "0 0 10 10 re f");
        const QString path = saved(source);
        const auto document = opened(merged({path, path}));
        const auto &pages = document->getAllPages();
        QCOMPARE(QPDFObjectHandle(pages[0]).getKey("/Contents").getObjGen(),
                 QPDFObjectHandle(pages[1]).getKey("/Contents").getObjGen());
        QVERIFY(pages[0].getObjGen() != pages[1].getObjGen());
    }

    void keysOfAParentTreeThatIsMissingGo() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 1);
        source.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Resources << /Font "
                         "<< /F 3 0 R >> >> /Contents 5 0 R /StructParents 0 /Annots [22 0 R] >>");
        source.object(22, "<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /StructParent 1 /Dest [4 "
                          "0 R /Fit] >>");
        const QString result = merged({saved(source)});
        const QByteArray objects = PdfProbe(result).json();
        QVERIFY(objects.contains("/Annots"));
        QVERIFY(!objects.contains("Struct"));
    }

    void aPageThatStandsInTheTreeTwiceIsTwoPages() {
        PdfFixture source;
        source.object(1, "<< /Type /Catalog /Pages 2 0 R /Outlines << /First 20 0 R >> >>");
        source.pages(4, 2);
        source.object(2, "<< /Type /Pages /Count 3 /Kids [4 0 R 5 0 R 4 0 R] >>");
        source.object(20, "<< /Title (First) /Dest [4 0 R /Fit] >>");
        const QString result = merged({saved(source)});
        QCOMPARE(PdfProbe(result).pageCount(), 3);
        QVERIFY(PdfProbe(result).text(3).contains(u"Page 1"_s));
        const auto document = opened(result);
        QPDFOutlineDocumentHelper outlines(*document);
        QCOMPARE(pageOf(*document, outlines.getTopLevelOutlines().at(0).getDest()), 0);
    }

    void aPageThatStandsInTheTreeTwiceSharesWhatItHas() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 1);
        source.object(2, "<< /Type /Pages /Count 2 /Kids [4 0 R 8 0 R] >>");
        source.object(8, "<< /Type /Pages /Count 1 /Kids [4 0 R] /Rotate 90 >>");
        source.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 9 9] /Annots [<< /Subtype "
                         "/Link /Rect [0 0 9 9] >>] >>");
        const auto document = opened(merged({saved(source)}));
        const auto pages = document->getAllPages();
        QPDFObjectHandle first = pages.at(0);
        QPDFObjectHandle again = pages.at(1);
        QVERIFY(first.getKey("/Annots").isIndirect());
        QCOMPARE(again.getKey("/Annots").getObjGen(), first.getKey("/Annots").getObjGen());
        QCOMPARE(again.getKey("/MediaBox").unparseResolved(), "[ 0 0 9 9 ]");
        QVERIFY(!first.hasKey("/Rotate"));
        QCOMPARE(again.getKey("/Rotate").getIntValue(), 90);
    }

    void pagesBeforeTheFirstLabelAreNumbered() {
        PdfFixture source;
        source.object(1, "<< /Type /Catalog /Pages 2 0 R /PageLabels << /Nums [-1 << >> 1 << /S /r "
                         ">> (x) << >> 9 << /S /a >>] >> >>");
        source.pages(4, 3);
        const auto document = opened(merged({saved(source)}));
        QPDFPageLabelDocumentHelper labels(*document);
        QCOMPARE(labels.getLabelForPage(0).getKey("/S").getName(), std::string("/D"));
        QCOMPARE(labels.getLabelForPage(1).getKey("/S").getName(), std::string("/r"));
        QCOMPARE(labels.getLabelForPage(2).getKey("/S").getName(), std::string("/r"));
    }

    void aDocumentWithoutPagesAddsNothing() {
        PdfFixture source;
        source.object(1, kCatalog).object(2, "<< /Type /Pages /Count 0 /Kids [] >>");
        PDFContext context(newPath(), {});
        QCOMPARE(context.addDocument(saved(source)).pages, 0);
        QCOMPARE(context.pageCount(), 0);
    }

    void manyPagesFormABalancedTree() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 1100);
        const QString result = merged({saved(source)});
        QCOMPARE(PdfProbe(result).pageCount(), 1100);
        QVERIFY(PdfProbe(result).text(1100).contains(u"Page 1100"_s));
        const auto document = opened(result);
        QVERIFY(document->getRoot().getKey("/Pages").getKey("/Kids").getArrayNItems() <= 32);
    }
};

FOLIOFORGE_TEST(MergeTest)
#include "MergeTest.moc"
