// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What stays of the catalog of a document that is the only source.
class WholeDocumentTest : public QObject, protected MergeCase {
    Q_OBJECT

    static PdfFixture withCatalog(const QByteArray &keys) {
        PdfFixture fixture;
        fixture.object(1, "<< /Type /Catalog /Pages 2 0 R " + keys + " >>").pages(4, 1);
        return fixture;
    }
    std::unique_ptr<QPDF> whole(const PdfFixture &source) {
        return opened(merged({saved(source)}, true));
    }
    static QByteArray entryOf(QPDF &document, const char *key) {
        return QByteArray::fromStdString(document.getRoot().getKey(key).unparseResolved());
    }

  private Q_SLOTS:
    void entriesThatNoOtherTopicOwnsStay_data() {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("viewer preferences")
            << QByteArray("/ViewerPreferences") << QByteArray("<< /FitWindow true >>");
        QTest::newRow("page mode") << QByteArray("/PageMode") << QByteArray("/UseThumbs");
        QTest::newRow("page layout") << QByteArray("/PageLayout") << QByteArray("/TwoColumnLeft");
        QTest::newRow("base of links")
            << QByteArray("/URI") << QByteArray("<< /Base (http://example.org/) >>");
        QTest::newRow("language") << QByteArray("/Lang") << QByteArray("(de-CH)");
        QTest::newRow("output intents")
            << QByteArray("/OutputIntents")
            << QByteArray("[ << /OutputConditionIdentifier (sRGB) /S /GTS_PDFA1 >> ]");
        QTest::newRow("script at the opening")
            << QByteArray("/OpenAction") << QByteArray("<< /JS (1) /S /JavaScript >>");
        QTest::newRow("place in another file at the opening")
            << QByteArray("/OpenAction") << QByteArray("<< /D [ 0 /Fit ] /F (b.pdf) /S /GoToR >>");
        QTest::newRow("scripts at other times")
            << QByteArray("/AA") << QByteArray("<< /WC << /JS (1) /S /JavaScript >> >>");
        QTest::newRow("requirements")
            << QByteArray("/Requirements") << QByteArray("[ << /S /EnableJavaScripts >> ]");
        QTest::newRow("private data")
            << QByteArray("/PieceInfo") << QByteArray("<< /Some << /Private (x) >> >>");
        QTest::newRow("source on the web") << QByteArray("/SpiderInfo") << QByteArray("<< /V 1 >>");
        QTest::newRow("legal") << QByteArray("/Legal") << QByteArray("<< /JavaScriptActions 0 >>");
        QTest::newRow("extensions")
            << QByteArray("/Extensions")
            << QByteArray("<< /ISO_ << /BaseVersion /2.0 /ExtensionLevel 24654 >> >>");
        QTest::newRow("names unknown to us")
            << QByteArray("/Names") << QByteArray("<< /ABCD_Own << /Names [ (a) 5 ] >> >>");
        QTest::newRow("unknown to us")
            << QByteArray("/ABCD_Own") << QByteArray("<< /A [ 1 (b) /C true ] >>");
    }
    void entriesThatNoOtherTopicOwnsStay() {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, value);
        const QString source = saved(withCatalog(key + ' ' + value));
        PDFContext::Settings settings;
        settings.oneSource = true;
        QCOMPARE(PDFContext(newPath(), std::move(settings)).addDocument(source).warnings,
                 Warnings());
        QCOMPARE(entryOf(*opened(merged({source}, true)), key.constData()), value);
    }

    void propertiesOfOnesOwnStay() {
        PdfFixture source = withCatalog({});
        source.object(30, "<< /Title (t) /Producer (p) /ModDate (D:2001) /Trapped /True "
                          "/Company (Example) /GTS_PDFXVersion (PDF/X-3:2002) /Own 31 0 R >>");
        source.object(31, "(of its own)").trailer("/Info 30 0 R");
        const QString path = merged({saved(source)}, true);
        const QByteArray info = runTool(u"pdfinfo"_s, {u"-custom"_s, path}).out;
        for (const char *line : {"Company:", "Example\n", "PDF/X-3:2002\n", "of its own\n"}) {
            QVERIFY2(info.contains(line), info.constData());
        }
        const auto document = opened(path);
        auto written = document->getTrailer().getKey("/Info");
        QCOMPARE(written.getKey("/Trapped").getName(), "/True");
        QCOMPARE(written.getKey("/Title").getStringValue(), "");
        QVERIFY(!written.hasKey("/ModDate"));
        QVERIFY(written.getKey("/Producer").getStringValue() != "p");
    }

    void whatHoldsForTheOriginalFileAloneGoes_data() {
        QTest::addColumn<QByteArray>("key");
        QTest::newRow("usage rights") << QByteArray("/Perms");
        QTest::newRow("what confirms signatures") << QByteArray("/DSS");
    }
    void whatHoldsForTheOriginalFileAloneGoes() {
        QFETCH(QByteArray, key);
        QCOMPARE(entryOf(*whole(withCatalog(key + " << /UR3 << >> >>")), key.constData()), "null");
    }

    void theDocumentOpensWhereItsSourceDoes_data() {
        QTest::addColumn<QByteArray>("action");
        QTest::newRow("page") << QByteArray("[5 0 R /Fit]");
        QTest::newRow("number of a page") << QByteArray("[1 /Fit]");
        QTest::newRow("action") << QByteArray("<< /S /GoTo /D [5 0 R /Fit] >>");
    }
    void theDocumentOpensWhereItsSourceDoes() {
        QFETCH(QByteArray, action);
        PdfFixture source;
        source.object(1, "<< /Type /Catalog /Pages 2 0 R /OpenAction " + action + " >>");
        const auto document = whole(source.pages(4, 2));
        auto opening = document->getRoot().getKey("/OpenAction");
        auto place = opening.isDictionary() ? opening.getKey("/D") : opening;
        QCOMPARE(place.getArrayItem(0).getObjGen(), document->getAllPages().at(1).getObjGen());
    }

    void layersStayWithAllTheirSettings() {
        PdfFixture source = withCatalog(
            "/OCProperties << /OCGs [20 0 R 21 0 R] /D << /Name (usual) /BaseState /OFF /ON [20 0 "
            "R] /ListMode /VisiblePages /Intent /All >> /Configs [<< /Name (other) >>] >>");
        source.object(20, "<< /Type /OCG /Name (a) >>").object(21, "<< /Type /OCG /Name (b) >>");
        const auto document = whole(source);
        auto layers = document->getRoot().getKey("/OCProperties");
        QCOMPARE(layers.getKey("/OCGs").getArrayNItems(), 2);
        QCOMPARE(layers.getKey("/Configs").unparseResolved(), "[ << /Name (other) >> ]");
        auto usual = layers.getKey("/D");
        QCOMPARE(usual.getKey("/Name").getStringValue(), "usual");
        QCOMPARE(usual.getKey("/BaseState").getName(), "/OFF");
        QCOMPARE(usual.getKey("/ListMode").getName(), "/VisiblePages");
        QCOMPARE(usual.getKey("/ON").getArrayItem(0).getKey("/Name").getStringValue(), "a");
    }

    void theVersionIsTheHigherOfHeaderAndCatalog() {
        QCOMPARE(whole(withCatalog("/Version /2.0"))->getPDFVersion(), "2.0");
        QCOMPARE(whole(withCatalog("/Version /1.4").header("%PDF-2.0\n"))->getPDFVersion(), "2.0");
        QCOMPARE(whole(withCatalog("/Version /Late"))->getPDFVersion(), "1.7");
    }

    void theExtensionLevelOfTheVersionStays() {
        const auto document =
            whole(withCatalog("/Extensions << /ADBE << /BaseVersion /1.7 /ExtensionLevel 8 >> >>"));
        QCOMPARE(document->getExtensionLevel(), 8);
    }

    void theLayersAndScriptsOfASoleSourceAreCounted() {
        const QString source =
            saved(withCatalog("/OCProperties << /OCGs [] /D << >> /Configs [<< >> << >>] >> /AA << "
                              "/WC << >> /WP << >> >> /OutputIntents [<< >>]"));
        PDFContext::Settings settings;
        settings.oneSource = true;
        const DocumentParts parts =
            PDFContext(newPath(), std::move(settings)).addDocument(source).parts;
        const PartCounts expected{
            {PartKind::LayerSettings, 2}, {PartKind::Scripts, 2}, {PartKind::OutputIntents, 1}};
        QCOMPARE(parts.carried, expected);
        QCOMPARE(parts.left, PartCounts());
    }
};

FOLIOFORGE_TEST(WholeDocumentTest)
#include "WholeDocumentTest.moc"
