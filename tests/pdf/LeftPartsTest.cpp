// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "support/Places.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What of a document is named because it does not come with its pages.
class LeftPartsTest : public QObject, protected MergeCase {
    Q_OBJECT

    static PdfFixture withCatalog(const QByteArray &keys) {
        PdfFixture fixture;
        fixture.object(1, "<< /Type /Catalog /Pages 2 0 R " + keys + " >>").pages(4, 1);
        return fixture;
    }
    static PdfFixture withMetadata(const QByteArray &packet, const QByteArray &keys = {}) {
        return withCatalog("/Metadata 20 0 R").stream(20, "/Type /Metadata " + keys, packet);
    }
    /// A packet whose node has `attributes` and `properties`.
    static QByteArray packet(const QByteArray &attributes, const QByteArray &properties = {}) {
        return "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
               "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description "
               "xmlns:dc='http://purl.org/dc/elements/1.1/' "
               "xmlns:pdf='http://ns.adobe.com/pdf/1.3/' "
               "xmlns:xmp='http://ns.adobe.com/xap/1.0/' "
               "xmlns:mm='http://ns.adobe.com/xap/1.0/mm/' "
               "xmlns:r='http://ns.adobe.com/xap/1.0/rights/' "
               "xmlns:px='http://ns.adobe.com/pdfx/1.3/' "
               "xmlns:a='http://www.aiim.org/pdfa/ns/id/' rdf:about='uuid:1' " +
               attributes + ">" + properties + "</rdf:Description></rdf:RDF></x:xmpmeta>";
    }

    static QStringList texts(const Warnings &warnings) {
        QStringList texts;
        for (const Warning &warning : warnings) {
            texts += warning.name() + u": "_s + warning.text;
        }
        return texts;
    }
    /// What is said of a document, each warning with its code.
    QString said(const QString &source) {
        return texts(PDFContext(newPath(), {}).addDocument(source).warnings).join(u'\n');
    }
    QString said(const PdfFixture &source) { return said(saved(source)); }

  private Q_SLOTS:
    void eachPartThatIsLeftIsNamed_data() {
        QTest::addColumn<QByteArray>("catalog");
        QTest::addColumn<QString>("name");
        const auto row = [](const QString &name, const QByteArray &catalog) {
            QTest::newRow(qPrintable(name)) << catalog << name;
        };
        row(u"a portfolio"_s, "/Collection << /View /T >>");
        row(u"further names"_s, "/Names << /ABCD_Own << /Names [(a) 20 0 R] >> >>");
        row(u"1 further catalog entry"_s, "/PieceInfo << /App << /Private 1 >> >>");
        row(u"2 further catalog entries"_s, "/DPartRoot << /A 1 >> /ABCD_Own (a)");
        row(u"further layer settings"_s, "/OCProperties << /OCGs [] /D << /Intent /Design >> >>");
        row(u"an XFA form"_s, "/AcroForm << /Fields [<< >>] /XFA [(a) (b)] >>");
        row(u"document scripts"_s, "/AA << /WC << /S /JavaScript /JS (1) >> >>");
        const QByteArray list = "/OCProperties << /OCGs [] /D << /ListMode /VisiblePages >> >>";
        QTest::newRow("list of layers") << list << u"further layer settings"_s;
        const QByteArray settings = "/OCProperties << /OCGs [] /D << >> /Configs [<< >>] >>";
        QTest::newRow("settings of layers") << settings << u"further layer settings"_s;
        row(u"a base address of links"_s, "/URI << /Base (http://example.org/) >>");
        row(u"usage rights"_s, "/Perms << /UR3 20 0 R >>");
        row(u"a portfolio, usage rights"_s, "/Perms << /UR3 20 0 R >> /Collection << >>");
    }
    void eachPartThatIsLeftIsNamed() {
        QFETCH(QByteArray, catalog);
        QFETCH(QString, name);
        const PdfFixture source = withCatalog(catalog).object(20, "<< /F (a) >>");
        QCOMPARE(said(source), u"pdf-parts-left: Not carried over: "_s + name);
    }

    void propertiesOfOnesOwnAreNamed() {
        const auto withInfo = [](const QByteArray &keys) {
            return withCatalog({}).object(30, "<< " + keys + " >>").trailer("/Info 30 0 R");
        };
        const QString named = u"pdf-parts-left: Not carried over: "_s;
        QCOMPARE(said(withInfo("/Title (t) /ModDate (D:2001) /Trapped /False /Company () "
                               "/PTEX.Fullbanner (This is TeX)")),
                 QString());
        QCOMPARE(said(withInfo("/Trapped /True")), named + u"1 further document property"_s);
        QCOMPARE(said(withInfo("/Company (c) /GTS_PDFXVersion (PDF/X-3:2002)")),
                 named + u"2 further document properties"_s);
    }

    void whatNobodyMissesIsNotNamed() {
        const QByteArray keys =
            "/Lang (de) /PageMode /UseOutlines /PageLayout /OneColumn /ViewerPreferences << "
            "/FitWindow true >> /OpenAction << /S /GoTo /D [4 0 R /Fit] >> /MarkInfo << /Marked "
            "false >> /Names << /Dests << /Names [] >> /EmbeddedFiles << /Names [] >> >> "
            "/StructTreeRoot << >> /AcroForm << /Fields [] >> /AF [] /AA << >> /OutputIntents [] "
            "/Threads [] /Extensions << /ADBE << >> >> /PieceInfo << >> /OCProperties << /OCGs [] "
            "/D << "
            "/ListMode /AllPages /Intent /View >> >>";
        QCOMPARE(said(withCatalog(keys)), QString());
        QCOMPARE(said(withCatalog("/OpenAction [4 0 R /Fit]")), QString());
    }

    void metadataIsNamedWhereItSaysMoreThanTheDocumentProperties_data() {
        QTest::addColumn<QByteArray>("packet");
        const auto row = [](const char *name, const QByteArray &packet) {
            QTest::newRow(name) << packet;
        };
        const QByteArray list = "<rdf:Alt><rdf:li xml:lang='x-default'>x</rdf:li></rdf:Alt>";
        row("copyright", packet({}, "<dc:rights>" + list + "</dc:rights>"));
        row("publisher",
            packet({}, "<dc:publisher><rdf:Bag><rdf:li>x</rdf:li></rdf:Bag></dc:publisher>"));
        row("own property", packet("px:Company='x'"));
        row("rating", packet("xmp:Rating='5'"));
        row("web statement", packet({}, "<r:WebStatement rdf:resource='http://example.org'/>"));
        row("structure", packet({}, "<xmp:Own rdf:parseType='Resource'><dc:x>1</dc:x></xmp:Own>"));
        row("own vocabulary", packet({}, "<o:n xmlns:o='http://example.org/'>1</o:n>"));
        row("behind usual ones", packet({}, "<dc:title>" + list +
                                                "</dc:title><dc:source>x"
                                                "</dc:source>"));
        row("cut off", packet({}).chopped(20));
    }
    void metadataIsNamedWhereItSaysMoreThanTheDocumentProperties() {
        QFETCH(QByteArray, packet);
        QCOMPARE(said(withMetadata(packet)), u"pdf-parts-left: Not carried over: metadata"_s);
    }

    void metadataThatNobodyMissesIsNotNamed() {
        const QByteArray list = "<rdf:Alt><rdf:li xml:lang='x-default'>x</rdf:li></rdf:Alt>";
        QCOMPARE(said(withMetadata(
                     packet("pdf:Producer='x' xmp:CreatorTool='x' mm:DocumentID='uuid:2' "
                            "px:Empty='' dc:format='application/pdf'",
                            "<dc:title>" + list +
                                "</dc:title><mm:History><rdf:Seq><rdf:li>x</rdf:li></rdf:Seq>"
                                "</mm:History><dc:rights><rdf:Alt><rdf:li xml:lang='x-default'/>"
                                "</rdf:Alt></dc:rights>"))),
                 QString());
    }

    void aClaimThatAMergeDoesNotMakeIsNamed() {
        const QString dropped = u"claim-dropped: The document no longer says that it is %1, "
                                "since it is a part of another one now"_s;
        QCOMPARE(said(withMetadata(packet("a:part='2'", "<a:conformance>B</a:conformance>"))),
                 dropped.arg(u"PDF/A-2b"_s));
        QCOMPARE(said(withMetadata(packet("xmlns:u='http://www.aiim.org/pdfua/ns/id/' "
                                          "u:part='1'"))),
                 dropped.arg(u"PDF/UA-1"_s));
    }

    void packedMetadataIsLookedThroughWhereItIsShort() {
        const QByteArray rights = packet("r:Marked='True'");
        const QByteArray plain = packet({});
        const QString named = u"pdf-parts-left: Not carried over: metadata"_s;
        const QByteArray hexadecimal = "/Filter /ASCIIHexDecode";
        QCOMPARE(said(withMetadata(rights.toHex() + '>', hexadecimal)), named);
        QCOMPARE(said(withMetadata(plain.toHex() + '>', hexadecimal)), QString());
        QCOMPARE(said(withMetadata(plain + QByteArray(5 << 20, ' '))), named);
        QCOMPARE(said(withMetadata(plain + QByteArray(20'000, ' '))), QString());
    }

    void aSignatureGoesAndItsLookStays() {
        const QByteArray signature = "<< /Type /Sig /Filter /Adobe.PPKLite /SubFilter "
                                     "/adbe.pkcs7.detached /Contents <3000> /ByteRange [0 9 10 9] "
                                     ">>";
        const QByteArray widget = "<< /Type /Annot /Subtype /Widget /F 4 /Rect [0 0 200 100] /P 4 "
                                  "0 R ";
        PdfFixture source = withCatalog("/AcroForm << /Fields [20 0 R 21 0 R 24 0 R] /SigFlags 3 "
                                        ">> /Perms << /DocMDP 23 0 R >>");
        source.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Contents 5 0 R "
                         "/Annots [20 0 R] >>");
        source.object(20, widget + "/FT /Sig /T (one) /V 23 0 R /AP << /N 22 0 R >> >>");
        source.object(21, "<< /FT /Sig /T (two) /V " + signature + " >>");
        source.stream(22, "/Type /XObject /Subtype /Form /BBox [0 0 200 100]",
                      "0 0 1 rg 0 0 200 100 re f");
        source.object(23, signature);
        source.object(24, "<< /FT /Sig /T (three) /V 23 0 R >>");
        const QString path = saved(source);
        QCOMPARE(said(path), u"signature-removed: 2 signatures are left out, since they hold for "
                             "the original file alone"_s);
        const QString result = merged({path});
        QCOMPARE(PdfProbe(result).render(1).pixelColor(100, 50), QColor(Qt::blue));
        const auto unsignedFields = [](const QString &file) {
            return runTool(u"pdfsig"_s, {file}).out.count("form field is not signed");
        };
        QCOMPARE(unsignedFields(path), 0);
        QCOMPARE(unsignedFields(result), 3);
        const auto document = opened(result);
        auto form = document->getRoot().getKey("/AcroForm");
        QCOMPARE(form.getKey("/Fields").getArrayNItems(), 3);
        QCOMPARE(form.getKey("/SigFlags").getIntValue(), 1LL);
        QVERIFY(!PdfProbe(result).json().contains("ByteRange"));
    }

    void oneSignatureIsNamedAsOne() {
        PdfFixture source = withCatalog("/AcroForm << /Fields [20 0 R] >>");
        source.object(20, "<< /FT /Sig /T (one) /V << /Contents <00> /ByteRange [0 1 2 3] >> >>");
        QCOMPARE(said(source), u"signature-removed: 1 signature is left out, since it holds for "
                               "the original file alone"_s);
    }

    void aDocumentOfGhostscriptLosesNothing() {
        const QString path = inSource(u"tests/data/pdf/ghostscript.pdf"_s);
        QVERIFY(PdfProbe(path).json().contains("/Metadata"));
        QCOMPARE(said(path), QString());
    }
};

FOLIOFORGE_TEST(LeftPartsTest)
#include "LeftPartsTest.moc"
