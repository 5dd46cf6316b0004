// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "support/TestUnit.h"

#include <qpdf/QPDFWriter.hh>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What the copy of a document keeps, and what two copies share.
class ImportTest : public QObject, protected MergeCase {
    Q_OBJECT

    /// A document of one page with `keys`, whose content is object 5.
    static PdfFixture onePage(const QByteArray &pageKeys, const QByteArray &catalogKeys = {}) {
        PdfFixture fixture;
        fixture.object(1, "<< /Type /Catalog /Pages 2 0 R " + catalogKeys + " >>").pages(4, 1);
        return fixture.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Contents 5 "
                                 "0 R " +
                                     pageKeys + " >>");
    }

    static QPDFObjectHandle page(QPDF &document, std::size_t index = 0) {
        return document.getAllPages().at(index);
    }

  private Q_SLOTS:
    void anEmptyStreamGetsNoFilter() {
        auto source = onePage("/Resources << /Font << /F 3 0 R >> >>");
        source.object(4, source.objects().at(4).replace("5 0 R", "[5 0 R 20 0 R]"));
        source.stream(20, {}, {});
        const auto document = opened(merged({saved(source)}));
        auto empty = page(*document).getKey("/Contents").getArrayItem(1).getDict();
        QCOMPARE(empty.getKey("/Length").getIntValue(), 0);
        QVERIFY(!empty.hasKey("/Filter"));
    }

    void aPageWithoutResourcesGetsEmptyOnes() {
        const auto document = opened(merged({saved(onePage({}))}));
        // By hand, since newer qpdf puts them where it lists the pages.
        auto only = document->getRoot().getKey("/Pages").getKey("/Kids").getArrayItem(0);
        QVERIFY(only.getKey("/Resources").isDictionary());
    }

    void resourcesNamedLikeKeysOfTheStructureAreKept() {
        auto source = onePage("/StructParents 0 /Resources << /Font << /SE 3 0 R /Title 3 0 R "
                              "/StructParent 3 0 R >> /XObject << /SD 20 0 R /StructParents 20 0 R "
                              ">> >>");
        source.stream(5, {}, "BT /SE 40 Tf 20 40 Td (A) Tj ET /SD Do /StructParents Do");
        source.stream(20, "/Type /XObject /Subtype /Form /BBox [0 0 200 100]",
                      "1 0 0 rg 100 0 100 100 re f");
        const QString path = saved(source);
        const QString result = merged({path});
        QCOMPARE(PdfProbe(result).render(1), PdfProbe(path).render(1));
        QCOMPARE(PdfProbe(result).text(1).trimmed(), u"A"_s);
        QCOMPARE(PdfProbe(result).render(1).pixelColor(150, 50), QColor(Qt::red));
        const auto document = opened(result);
        auto resources = page(*document).getKey("/Resources");
        QCOMPARE(resources.getKey("/Font").getKeys().size(), 3U);
        QCOMPARE(resources.getKey("/XObject").getKeys().size(), 2U);
        QVERIFY(!page(*document).hasKey("/StructParents"));
    }

    void statesOfABoxNamedLikeKeysOfTheStructureAreKept() {
        auto source = onePage("/Annots [20 0 R]", "/AcroForm << /Fields [20 0 R] >>");
        source.object(20, "<< /Type /Annot /Subtype /Widget /FT /Btn /T (box) /V /SE /AS /SE /F 4 "
                          "/StructParent 3 /Rect [0 0 200 100] /AP << /N << /SE 21 0 R /Off 22 0 "
                          "R >> >> >>");
        source.stream(21, "/Type /XObject /Subtype /Form /BBox [0 0 200 100] /StructParents 4",
                      "0 0 1 rg 0 0 200 100 re f");
        source.stream(22, "/Type /XObject /Subtype /Form /BBox [0 0 200 100]", {});
        const QString result = merged({saved(source)});
        QCOMPARE(PdfProbe(result).render(1).pixelColor(100, 50), QColor(Qt::blue));
        QVERIFY(!PdfProbe(result).json().contains("StructParent"));
    }

    void fieldsOfTwoCopiesHaveTheirOwnAppearances() {
        auto source = onePage("/Resources << /XObject << /Logo 23 0 R >> >> /Annots [20 0 R]",
                              "/AcroForm << /Fields [20 0 R] >>");
        source.stream(5, {}, "q 0.1 0 0 0.1 0 0 cm /Logo Do Q");
        source.object(20, "<< /Type /Annot /Subtype /Widget /FT /Tx /T (name) /V (Anna) /F 4 /Rect "
                          "[0 0 200 100] /AP << /N 21 0 R >> /MK << /I 24 0 R >> >>");
        const QByteArray form = "/Type /XObject /Subtype /Form /BBox [0 0 200 100] ";
        source.stream(21, form + "/Resources << /XObject << /Inner 22 0 R /Logo 23 0 R >> >>",
                      "/Inner Do");
        source.stream(22, form + "/Resources << /Font << /F 3 0 R >> >>",
                      "BT /F 20 Tf 20 40 Td (Anna) Tj ET");
        source.stream(23,
                      "/Type /XObject /Subtype /Image /Width 1 /Height 1 /BitsPerComponent 8 "
                      "/ColorSpace /DeviceGray",
                      "0");
        source.stream(24, form, {});
        const QString path = saved(source);
        const auto document = opened(merged({path, path, path}));
        const auto widget = [&](std::size_t index) {
            return page(*document, index).getKey("/Annots").getArrayItem(0);
        };
        const auto differ = [](const QPDFObjectHandle &one, const QPDFObjectHandle &other) {
            return one.isIndirect() && other.isIndirect() && one.getObjGen() != other.getObjGen();
        };
        const auto looks = [&](std::size_t index) {
            return widget(index).getKey("/AP").getKey("/N");
        };
        const auto inner = [&](std::size_t index, const char *name) {
            return looks(index).getDict().getKey("/Resources").getKey("/XObject").getKey(name);
        };
        for (const auto &[one, other] : {std::pair(0U, 1U), std::pair(1U, 2U)}) {
            QVERIFY(differ(looks(one), looks(other)));
            QVERIFY(differ(inner(one, "/Inner"), inner(other, "/Inner")));
            QVERIFY(differ(widget(one).getKey("/MK").getKey("/I"),
                           widget(other).getKey("/MK").getKey("/I")));
            QVERIFY(!differ(inner(one, "/Logo"), inner(other, "/Logo")));
        }
    }

    void annotationsOfTwoCopiesHaveTheirOwnAppearances_data() {
        QTest::addColumn<QByteArray>("appearances");
        QTest::newRow("look") << QByteArray("/AP");
        QTest::newRow("icon") << QByteArray("/MK");
    }
    void annotationsOfTwoCopiesHaveTheirOwnAppearances() {
        QFETCH(const QByteArray, appearances);
        auto source = onePage("/Annots [20 0 R]");
        source.object(20, "<< /Type /Annot /Subtype /Stamp /Rect [0 0 200 100] " + appearances +
                              " << /N 21 0 R >> >>");
        source.stream(21, "/Type /XObject /Subtype /Form /BBox [0 0 200 100]", {});
        const QString path = saved(source);
        const auto document = opened(merged({path, path}));
        const auto look = [&](std::size_t index) {
            auto annotation = page(*document, index).getKey("/Annots").getArrayItem(0);
            return annotation.getKey(appearances.toStdString()).getKey("/N");
        };
        QVERIFY(look(0).isStream() && look(1).isStream());
        QVERIFY(look(0).getObjGen() != look(1).getObjGen());
    }

    void layersOfTwoCopiesSwitchTheirOwnPages() {
        auto source = onePage("/Resources << /XObject << /Whole 20 0 R /Outer 21 0 R /Plain 23 0 R "
                              ">> >>",
                              "/OCProperties << /OCGs [30 0 R 31 0 R] /D << >> >>");
        source.stream(5, {}, "/Whole Do /Outer Do /Plain Do");
        const QByteArray form = "/Type /XObject /Subtype /Form /BBox [0 0 200 100] ";
        source.stream(20, form + "/OC 30 0 R", "1 0 0 rg 0 0 100 100 re f");
        source.stream(21, form + "/Resources << /XObject << /Inner 22 0 R >> >>", "/Inner Do");
        source.stream(22, form + "/Resources << /Properties << /P 31 0 R >> >>",
                      "/OC /P BDC 0 0 1 rg 100 0 100 50 re f EMC");
        source.stream(23, form, "0 1 0 rg 100 50 100 50 re f");
        source.object(30, "<< /Type /OCG /Name (red) >>");
        source.object(31, "<< /Type /OCG /Name (blue) >>");
        const QString path = saved(source);
        const auto document = opened(merged({path, path}));
        // Hides the layers of the second copy, as a reader does.
        auto layers = document->getRoot().getKey("/OCProperties");
        const auto groups = layers.getKey("/OCGs").getArrayAsVector();
        QCOMPARE(groups.size(), 4U);
        layers.getKey("/D").replaceKey("/OFF", QPDFObjectHandle::newArray({groups[2], groups[3]}));
        const QString switched = newPath();
        QPDFWriter(*document, switched.toLocal8Bit().constData()).write();
        const QImage first = PdfProbe(switched).render(1);
        QCOMPARE(first.pixelColor(50, 50), QColor(Qt::red));
        QCOMPARE(first.pixelColor(150, 75), QColor(Qt::blue));
        const QImage second = PdfProbe(switched).render(2);
        QCOMPARE(second.pixelColor(50, 50), QColor(Qt::white));
        QCOMPARE(second.pixelColor(150, 75), QColor(Qt::white));
        QCOMPARE(second.pixelColor(150, 25), QColor(Qt::green));
        const auto plain = [&](std::size_t index) {
            auto forms = page(*document, index).getKey("/Resources").getKey("/XObject");
            return forms.getKey("/Plain").getObjGen();
        };
        QCOMPARE(plain(0), plain(1));
    }

    void bookmarksAndActionsDoNotLeadToElementsOutsideTheStructure() {
        auto source = onePage("/Annots [22 0 R]", "/Outlines 20 0 R /StructTreeRoot 30 0 R");
        source.object(20, "<< /First 21 0 R /Last 21 0 R /Count 1 >>");
        source.object(21, "<< /Title (One) /Parent 20 0 R /SE 31 0 R /Dest [4 0 R /Fit] >>");
        source.object(22, "<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /A << /S /GoTo /D [4 0 R "
                          "/Fit] /SD [31 0 R /Fit] >> >>");
        source.object(30, "<< /Type /StructTreeRoot >>");
        source.object(31, "<< /S /P /P 30 0 R /Alt (of the structure) >>");
        const QByteArray objects = PdfProbe(merged({saved(source)})).json();
        QVERIFY(objects.contains("(One)") || objects.contains("u:One"));
        QVERIFY(!objects.contains("of the structure"));
    }
};

FOLIOFORGE_TEST(ImportTest)
#include "ImportTest.moc"
