// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "support/TaggedPage.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// The structure trees of tagged documents, in the document that is made of them.
class StructureTest : public QObject, protected MergeCase {
    Q_OBJECT

    QString mergedPath(const std::vector<PdfFixture> &sources, bool whole = false) {
        QStringList paths;
        for (const PdfFixture &source : sources) {
            paths += saved(source);
        }
        return merged(paths, whole);
    }
    std::unique_ptr<QPDF> mergedDocument(const std::vector<PdfFixture> &sources,
                                         bool whole = false) {
        return opened(mergedPath(sources, whole));
    }
    /// What is said of a document that is added.
    QStringList said(const PdfFixture &source) {
        QStringList texts;
        for (const Warning &warning :
             PDFContext(newPath(), {}).addDocument(saved(source)).warnings) {
            texts += warning.name() + u": "_s + warning.text;
        }
        return texts;
    }
    static QString structureText(const QString &path) { return PdfProbe(path).structureText(); }
    static QPDFObjectHandle root(QPDF &document) {
        return document.getRoot().getKey("/StructTreeRoot");
    }
    /// The element at the end of a way of kids, each by its position, from the root.
    static QPDFObjectHandle elementAt(QPDF &document, std::initializer_list<int> way) {
        QPDFObjectHandle element = root(document);
        for (const int step : way) {
            auto kids = element.getKey("/K");
            element = kids.isArray() ? kids.getArrayItem(step) : kids;
        }
        return element;
    }
    /// What the parent tree holds for the key of `holder`; the tree is small enough for one node.
    static QPDFObjectHandle parentsOf(QPDF &document, QPDFObjectHandle holder, const char *name) {
        auto pairs = root(document).getKey("/ParentTree").getKey("/Nums");
        for (int i = 0; i + 1 < pairs.getArrayNItems(); i += 2) {
            if (pairs.getArrayItem(i).getIntValue() == holder.getKey(name).getIntValue()) {
                return pairs.getArrayItem(i + 1);
            }
        }
        return QPDFObjectHandle::newNull();
    }
    static QByteArray textOf(QPDFObjectHandle object) {
        return QByteArray::fromStdString(object.unparseResolved());
    }

    /// A page (4) and a form (20) with `keys`, whose content is that of an element.
    static PdfFixture markedForm(const QByteArray &keys) {
        return taggedPage({"a"}, "/K 11 0 R")
            .object(11, element("P", 10, "<< /Type /MCR /Stm 20 0 R /Pg 4 0 R /MCID 0 >>"))
            .stream(20, "/Type /XObject /Subtype /Form /BBox [0 0 9 9] " + keys,
                    "/P << /MCID 0 >> BDC 0 0 5 5 re f EMC");
    }

  private Q_SLOTS:
    void theTextOfAMergeIsThatOfItsSourcesOneAfterAnother() {
        const QString first = saved(headingAndText("Alpha", "one"));
        const QString second = saved(headingAndText("Beta", "two"));
        const QString both = merged({first, second});
        QVERIFY(structureText(first).contains(u"\"Alpha\""_s));
        QCOMPARE(structureText(both), structureText(first) + structureText(second));
        QCOMPARE(structureText(merged({both, first})), structureText(both) + structureText(first));
    }

    void theTreeOfTheOnlySourceStaysAsItWas() {
        const PdfFixture source =
            taggedPage({"a", "b"}, "/K [11 0 R 12 0 R] /RoleMap << /Para /Text /Text /P >> "
                                   "/ClassMap << /Wide << /O /Layout /Width 5 >> >>")
                .object(11, element("Para", 10, "0", "/C /Wide /ID (one)"))
                .object(12, element("P", 10, "1"));
        const QString path = mergedPath({source}, true);
        QCOMPARE(structureText(path), structureText(saved(source)));
        const auto document = opened(path);
        QCOMPARE(textOf(root(*document).getKey("/RoleMap")), "<< /Para /Text /Text /P >>");
        QCOMPARE(textOf(root(*document).getKey("/ClassMap")),
                 "<< /Wide << /O /Layout /Width 5 >> >>");
        QVERIFY(elementAt(*document, {1}).getKey("/P").isSameObjectAs(root(*document)));
        QCOMPARE(PdfProbe(path).info(u"Tagged"_s), u"yes"_s);
    }

    void eachSourceHasADocumentElementInItsLanguage() {
        const PdfFixture flat = taggedPage({"a", "b"}, "/K [11 0 R 12 0 R]", "/Lang (de)")
                                    .object(11, element("P", 10, "0"))
                                    .object(12, element("P", 10, "1"));
        const auto document = mergedDocument({flat, headingAndText("c", "d")});
        auto wrapped = elementAt(*document, {0});
        QCOMPARE(textOf(wrapped.getKey("/S")), "/Document");
        QCOMPARE(textOf(wrapped.getKey("/Lang")), "(de)");
        QVERIFY(wrapped.getKey("/P").isSameObjectAs(root(*document)));
        QVERIFY(elementAt(*document, {0, 1}).getKey("/P").isSameObjectAs(wrapped));
        QCOMPARE(textOf(elementAt(*document, {1}).getKey("/S")), "/Document");
        QVERIFY(!elementAt(*document, {1}).hasKey("/Lang"));
        QCOMPARE(textOf(elementAt(*document, {1, 0}).getKey("/S")), "/H1");
    }

    void aDocumentElementUnderANameOfItsOwnGetsNoneAboveIt() {
        const PdfFixture source = taggedPage({"a"}, "/K 11 0 R /RoleMap << /Book /Document >>")
                                      .object(11, element("Book", 10, "12 0 R"))
                                      .object(12, element("P", 11, "0"));
        const auto document = mergedDocument({source, source});
        QCOMPARE(textOf(elementAt(*document, {1}).getKey("/S")), "/Book");
        QCOMPARE(textOf(elementAt(*document, {1, 0}).getKey("/S")), "/P");
    }

    void theDocumentCountsAsTaggedOnlyWhereEveryPageIs() {
        PdfFixture untagged;
        untagged.object(1, kCatalog).pages(4, 1);
        const PdfFixture tagged = headingAndText("a", "b");
        QCOMPARE(PdfProbe(mergedPath({tagged, tagged})).info(u"Tagged"_s), u"yes"_s);
        const QString path = mergedPath({tagged, untagged});
        QCOMPARE(PdfProbe(path).info(u"Tagged"_s), u"no"_s);
        QVERIFY(structureText(path).contains(u"H1"_s));
    }

    void aDrawnPageIsNotTagged() {
        const QString path = newPath();
        PDFContext context(path, unflushed());
        context.addDocument(saved(headingAndText("a", "b")));
        context.beginPage(QRectF(0, 0, 100, 100));
        context.endPage();
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        QCOMPARE(PdfProbe(path).info(u"Tagged"_s), u"no"_s);
    }

    void aPageThatStandsInTheTreeTwiceFindsItsElementsTwice() {
        const PdfFixture once = headingAndText("a", "b");
        PdfFixture twice = headingAndText("c", "d");
        twice.object(2, "<< /Type /Pages /Count 2 /Kids [4 0 R 4 0 R] >>");
        const auto document = mergedDocument({once, twice});
        for (const std::size_t index : {1U, 2U}) {
            auto parents =
                parentsOf(*document, document->getAllPages().at(index), "/StructParents");
            QCOMPARE(parents.getArrayNItems(), 2);
            QCOMPARE(parents.getArrayItem(1).getObjGen(), elementAt(*document, {1, 1}).getObjGen());
        }
    }

    void thePagesOfAllSourcesFindTheirElements() {
        const PdfFixture source = headingAndText("a", "b");
        const auto document = mergedDocument({source, source, source});
        for (const int index : {0, 1, 2}) {
            const auto page = document->getAllPages().at(static_cast<std::size_t>(index));
            auto parents = parentsOf(*document, page, "/StructParents");
            QCOMPARE(parents.getArrayNItems(), 2);
            for (const int content : {0, 1}) {
                QVERIFY(parents.getArrayItem(content).isSameObjectAs(
                    elementAt(*document, {index, content})));
            }
        }
    }

    void elementsFindTheirContentWhereTheSourceHasNoParentTree() {
        const PdfFixture source = headingAndText("a", "b"); // It has none.
        const auto document = mergedDocument({source}, true);
        auto parents = parentsOf(*document, document->getAllPages().front(), "/StructParents");
        QVERIFY(parents.getArrayItem(1).isSameObjectAs(elementAt(*document, {0, 1})));
    }

    void annotationsFindTheirElements() {
        PdfFixture source =
            taggedPage({"a"}, "/K 11 0 R")
                .object(11, element("Document", 10, "[0 12 0 R]"))
                .object(12, element("Link", 11, "<< /Type /OBJR /Obj 20 0 R >>"))
                .object(20, "<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /StructParent 3 >>");
        source.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Annots [20 0 R] "
                         "/Resources << /Font << /F 3 0 R >> >> /Contents 5 0 R >>");
        const auto document = mergedDocument({source, source});
        for (const int index : {0, 1}) {
            auto page = document->getAllPages().at(static_cast<std::size_t>(index));
            auto annotation = page.getKey("/Annots").getArrayItem(0);
            auto link = elementAt(*document, {index, 1});
            QCOMPARE(textOf(link.getKey("/S")), "/Link");
            QVERIFY(parentsOf(*document, annotation, "/StructParent").isSameObjectAs(link));
            QVERIFY(link.getKey("/K").getKey("/Obj").isSameObjectAs(annotation));
        }
    }

    void formsThatElementsMarkAreEachCopysOwn() {
        PdfFixture source = markedForm("/StructParents 4");
        source.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Resources << "
                         "/XObject << /X 20 0 R >> >> /Contents 5 0 R >>");
        source.stream(5, {}, "/X Do");
        const QString path = saved(source);
        const auto document = opened(merged({path, path}));
        for (const int index : {0, 1}) {
            auto page = document->getAllPages().at(static_cast<std::size_t>(index));
            auto form = page.getKey("/Resources").getKey("/XObject").getKey("/X");
            auto content = elementAt(*document, {index, 0, 0});
            QVERIFY(content.getKey("/Stm").isSameObjectAs(form));
            QVERIFY(parentsOf(*document, form.getDict(), "/StructParents")
                        .getArrayItem(0)
                        .isSameObjectAs(elementAt(*document, {index, 0})));
        }
    }

    void bookmarksAndJumpsLeadToElements() {
        const PdfFixture source =
            headingAndText("a", "b")
                .object(1, "<< /Type /Catalog /Pages 2 0 R /StructTreeRoot 10 0 R /Outlines << "
                           "/First 20 0 R /Last 20 0 R /Count 1 >> >>")
                .object(20, "<< /Title (x) /SE 12 0 R /A << /S /GoTo /D [4 0 R /Fit] /SD [13 0 R "
                            "/Fit] >> >>");
        const auto document = mergedDocument({source});
        auto bookmark = document->getRoot().getKey("/Outlines").getKey("/First");
        QVERIFY(bookmark.getKey("/SE").isSameObjectAs(elementAt(*document, {0, 0})));
        QVERIFY(bookmark.getKey("/A").getKey("/SD").getArrayItem(0).isSameObjectAs(
            elementAt(*document, {0, 1})));
    }

    void elementsReferToEachOther() {
        const PdfFixture source =
            headingAndText("a", "b").object(12, element("H1", 11, "0", "/Ref [13 0 R 99 0 R]"));
        const auto document = mergedDocument({source});
        auto references = elementAt(*document, {0, 0}).getKey("/Ref");
        QCOMPARE(references.getArrayNItems(), 1);
        QVERIFY(references.getArrayItem(0).isSameObjectAs(elementAt(*document, {0, 1})));
    }

    void whatElementsSayStays() {
        const QByteArray says = "/ActualText (z) /Alt (y) /E (w) /Lang (fr) /NS 20 0 R /T (x)";
        const PdfFixture source = headingAndText("a", "b", "/Namespaces [20 0 R]")
                                      .object(12, element("H1", 11, "0", says))
                                      .object(20, "<< /Type /Namespace /NS (urn:x) >>");
        const auto document = mergedDocument({source, source});
        auto heading = elementAt(*document, {1, 0});
        for (const char *key : {"/ActualText", "/Alt", "/E", "/Lang", "/T"}) {
            QVERIFY2(says.contains(key + QByteArray(" ") + textOf(heading.getKey(key))), key);
        }
        auto namespaces = root(*document).getKey("/Namespaces");
        QCOMPARE(namespaces.getArrayNItems(), 2);
        QVERIFY(namespaces.getArrayItem(1).isSameObjectAs(heading.getKey("/NS")));
    }

    void whatIsDamagedIsLeftOutAndCounted_data() {
        QTest::addColumn<QByteArray>("kids");
        QTest::addColumn<QString>("said");
        const QString one = u"structure-damaged: 1 structure tag is damaged and left out"_s;
        QTest::newRow("element above itself") << QByteArray("[12 0 R 13 0 R 11 0 R]") << one;
        QTest::newRow("element twice") << QByteArray("[12 0 R 13 0 R 12 0 R]") << one;
        QTest::newRow("missing element") << QByteArray("[12 0 R 99 0 R 13 0 R]") << one;
        QTest::newRow("no element") << QByteArray("[12 0 R (x) 13 0 R]") << one;
        QTest::newRow("content of no page")
            << QByteArray("[12 0 R << /Type /MCR /Pg 99 0 R /MCID -1 >> 13 0 R]") << one;
        QTest::newRow("no object") << QByteArray("[12 0 R << /Type /OBJR >> 13 0 R]") << one;
        QTest::newRow("two") << QByteArray("[12 0 R /X /Y 13 0 R]")
                             << u"structure-damaged: 2 structure tags are damaged and left out"_s;
    }
    void whatIsDamagedIsLeftOutAndCounted() {
        QFETCH(QByteArray, kids);
        QFETCH(QString, said);
        const PdfFixture whole = headingAndText("a", "b");
        const PdfFixture damaged =
            headingAndText("a", "b").object(11, element("Document", 10, kids));
        QCOMPARE(this->said(damaged), QStringList{said});
        QCOMPARE(structureText(mergedPath({damaged})), structureText(saved(whole)));
    }

    void whatTheRootRefersToInItsOwnTreeCostsNoElement_data() {
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QStringList>("said");
        const QStringList one{u"structure-damaged: 1 structure tag is damaged and left out"_s};
        QTest::newRow("role") << QByteArray("/RoleMap << /R 11 0 R /S /P >>") << one;
        QTest::newRow("class") << QByteArray("/ClassMap << /C 11 0 R >>") << QStringList();
        QTest::newRow("file") << QByteArray("/AF [11 0 R]") << QStringList();
        QTest::newRow("namespace") << QByteArray("/Namespaces [11 0 R]") << QStringList();
    }
    void whatTheRootRefersToInItsOwnTreeCostsNoElement() {
        QFETCH(QByteArray, keys);
        QFETCH(QStringList, said);
        const auto withoutType = [](PdfFixture fixture) {
            return fixture.object(11, "<< /S /Document /P 10 0 R /K [12 0 R 13 0 R] >>");
        };
        const PdfFixture damaged = withoutType(headingAndText("a", "b", keys));
        const QString whole = structureText(saved(withoutType(headingAndText("a", "b"))));
        QVERIFY(whole.contains(u"\"b\""_s));
        QCOMPARE(this->said(damaged), said);
        QCOMPARE(structureText(mergedPath({damaged})), whole);
        QCOMPARE(structureText(mergedPath({damaged}, true)), whole);
    }

    void anElementWithoutATypeKeepsWhatIsUnderIt() {
        const PdfFixture source = headingAndText("a", "b").object(
            11, "<< /Type /StructElem /P 10 0 R /K [12 0 R 13 0 R] >>");
        QVERIFY(structureText(mergedPath({source})).contains(u"\"b\""_s));
        QVERIFY(!said(source).isEmpty());
    }

    void kidsThatLeadToTheirOwnListEnd() {
        const PdfFixture source = taggedPage({"a"}, "/K 20 0 R")
                                      .object(20, "[11 0 R << /S /P /K 20 0 R >>]")
                                      .object(11, element("P", 10, "0"));
        QCOMPARE(said(source),
                 QStringList{u"structure-damaged: 1 structure tag is damaged and left out"_s});
        QVERIFY(structureText(mergedPath({source})).contains(u"\"a\""_s));
    }

    void aListThatTwoElementsHaveIsTheFirstOnes() {
        PdfFixture source = taggedPage({"a", "b"}, "/K [11 0 R 12 0 R]");
        source.object(11, element("P", 10, "20 0 R")).object(12, element("H1", 10, "20 0 R"));
        source.object(20, "[13 0 R 14 0 R]");
        source.object(13, element("Span", 11, "0")).object(14, element("Span", 11, "1"));
        QCOMPARE(said(source),
                 QStringList{u"structure-damaged: 1 structure tag is damaged and left out"_s});
        const auto document = mergedDocument({source}, true);
        QCOMPARE(elementAt(*document, {0}).getKey("/K").getArrayNItems(), 2);
        QVERIFY(!elementAt(*document, {1}).hasKey("/K"));
    }

    void formsThatOnlyElementsTellOfAreEachCopysOwn() {
        const QString path = saved(markedForm({}));
        const auto document = opened(merged({path, path}));
        auto first = elementAt(*document, {0, 0, 0}).getKey("/Stm");
        auto second = elementAt(*document, {1, 0, 0}).getKey("/Stm");
        QVERIFY(!first.isSameObjectAs(second));
        QVERIFY(first.getDict().getKey("/StructParents").getIntValue() !=
                second.getDict().getKey("/StructParents").getIntValue());
    }

    void aTreeOf30000LevelsIsCopied() {
        constexpr int kLevels = 30'000;
        PdfFixture source = taggedPage({"a"}, "/K 11 0 R");
        for (int i = 11; i < 11 + kLevels; ++i) {
            const int next = i + 1;
            const bool last = next == 11 + kLevels;
            source.object(i, element("Div", i - 1, last ? "0" : QByteArray::number(next) + " 0 R"));
        }
        const auto document = mergedDocument({source});
        auto element = elementAt(*document, {0, 0}); // Below the document element.
        int levels = 0;
        for (; element.isDictionary(); element = element.getKey("/K")) {
            ++levels;
        }
        QCOMPARE(levels, kLevels);
        QCOMPARE(element.getIntValue(), 0);
    }
};

FOLIOFORGE_TEST(StructureTest)
#include "StructureTest.moc"
