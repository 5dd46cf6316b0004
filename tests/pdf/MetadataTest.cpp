// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QTimeZone>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What becomes of the XMP metadata of a document that is the only source.
class MetadataTest : public QObject, protected MergeCase {
    Q_OBJECT

    static constexpr auto kPdfA = "xmlns:pdfaid=\"http://www.aiim.org/pdfa/ns/id/\" ";
    static constexpr auto kPdfUA = "xmlns:pdfuaid=\"http://www.aiim.org/pdfua/ns/id/\" ";

    /// A packet with one node; `attributes` and `properties` are the node's.
    static QByteArray packet(const QByteArray &attributes, const QByteArray &properties = {}) {
        return "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n<x:xmpmeta "
               "xmlns:x=\"adobe:ns:meta/\"><r:RDF "
               "xmlns:r=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><r:Description "
               "r:about=\"uuid:1\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\" "
               "xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" "
               "xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\" " +
               attributes + ">" + properties +
               "</r:Description></r:RDF></x:xmpmeta>\n<?xpacket end=\"w\"?>";
    }
    static PdfFixture withMetadata(const QByteArray &packet, const QByteArray &keys = {}) {
        PdfFixture fixture;
        fixture.object(1, "<< /Type /Catalog /Pages 2 0 R /Metadata 20 0 R " + keys + " >>");
        return fixture.pages(4, 1).stream(20, "/Type /Metadata /Subtype /XML", packet);
    }

    struct Result {
        QString path;
        QStringList warnings;
    };
    Result converted(const QString &source, PDFContext::Settings settings) {
        Result result{newPath(), {}};
        settings.oneSource = true;
        settings.flush = Flush::Never;
        PDFContext context(result.path, std::move(settings));
        for (const Warning &warning : context.addDocument(source).warnings) {
            result.warnings += warning.name() + u": "_s + warning.text;
        }
        context.close();
        return result;
    }
    Result converted(const PdfFixture &source, const DocumentInfo &info = {}) {
        PDFContext::Settings settings;
        settings.info = info;
        return converted(saved(source), std::move(settings));
    }

    static QByteArray packetOf(const QString &path) {
        return runTool(u"pdfinfo"_s, {u"-meta"_s, path}).out;
    }
    /// The properties of all nodes in the packet of a PDF, each with all of its text.
    static QMap<QString, QStringList> propertiesOf(const QString &path) {
        QMap<QString, QStringList> properties;
        QXmlStreamReader reader(packetOf(path));
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement ||
                reader.name() != "Description"_L1) {
                continue;
            }
            for (const QXmlStreamAttribute &attribute : reader.attributes()) {
                properties[attribute.qualifiedName().toString()] += attribute.value().toString();
            }
            while (reader.readNextStartElement()) {
                const QString name = reader.qualifiedName().toString();
                properties[name] +=
                    reader.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
            }
        }
        return reader.hasError() ? QMap<QString, QStringList>() : properties;
    }

  private Q_SLOTS:
    void whatTheRunWritesTakesThePlaceOfWhatTheSourceSays() {
        const QByteArray list = "<r:Alt><r:li xml:lang=\"x-default\">old</r:li></r:Alt>";
        const PdfFixture source = withMetadata(packet(
            "pdf:Keywords=\"old\" xmp:CreatorTool=\"old\" xmp:ModifyDate=\"2001-01-01\"",
            "<dc:title>" + list + "</dc:title><dc:description>" + list +
                "</dc:description><dc:creator><r:Seq><r:li>old</r:li><r:li>older</r:li></r:Seq>"
                "</dc:creator><dc:subject><r:Bag><r:li>old</r:li></r:Bag></dc:subject>"
                "<pdf:Producer>old</pdf:Producer><xmp:CreateDate>2001-01-01</xmp:CreateDate>"));
        DocumentInfo info;
        info.title = u"Täßt & <more>"_s;
        info.author = u"A, B"_s;
        info.subject = u"What"_s;
        info.keywords = u"k1; k2"_s;
        info.created = QDateTime(QDate(2024, 2, 29), QTime(12, 30, 1), QTimeZone(7200));
        const Result result = converted(source, info);
        const auto properties = propertiesOf(result.path);
        const PdfProbe probe(result.path);
        QCOMPARE(properties[u"dc:title"_s], QStringList(info.title));
        QCOMPARE(properties[u"dc:creator"_s], QStringList(info.author));
        QCOMPARE(properties[u"dc:description"_s], QStringList(info.subject));
        QCOMPARE(properties[u"pdf:Keywords"_s], QStringList(info.keywords));
        QCOMPARE(properties[u"pdf:Producer"_s], QStringList(probe.info(u"Producer"_s)));
        QCOMPARE(properties[u"xmp:CreatorTool"_s], QStringList(probe.info(u"Creator"_s)));
        QCOMPARE(properties[u"xmp:CreateDate"_s], QStringList(u"2024-02-29T12:30:01+02:00"_s));
        QCOMPARE(properties[u"xmp:MetadataDate"_s], QStringList(u"2024-02-29T12:30:01+02:00"_s));
        QVERIFY(!properties.contains(u"xmp:ModifyDate"_s));
        QVERIFY(!properties.contains(u"dc:subject"_s));
        QVERIFY(!packetOf(result.path).contains("old"));
        QCOMPARE(properties[u"rdf:about"_s], QStringList(u"uuid:1"_s));
    }

    void aPropertyThatTheRunLeavesEmptyIsEmpty() {
        const Result result = converted(withMetadata(packet(
            {}, "<dc:title><r:Alt><r:li xml:lang=\"x-default\">old</r:li></r:Alt></dc:title>")));
        const auto properties = propertiesOf(result.path);
        for (const char *name : {"dc:title", "dc:creator", "dc:description", "pdf:Keywords"}) {
            QCOMPARE(properties[QLatin1StringView(name)], QStringList(QString()));
        }
    }

    void allElseStaysAsItIsSpelled() {
        const QByteArray own = "<own:list xmlns:own=\"http://example.org/own/\"><r:Bag><r:li "
                               "own:deep=\"a&amp;b\">one &lt; two</r:li></r:Bag></own:list>";
        const QByteArray deep = "<xmp:ModifyDate>kept</xmp:ModifyDate>";
        const QByteArray history = "<m:History><r:Seq><r:li><r:Description "
                                   "xmp:CreatorTool=\"kept\"/></r:li></r:Seq></m:History>";
        const Result result = converted(withMetadata(
            packet("xmlns:m=\"http://ns.adobe.com/xap/1.0/mm/\" m:DocumentID=\"uuid:7\" "
                   "xmp:Rating=\"5\"",
                   own + history + "<m:DerivedFrom r:parseType=\"Resource\">" + deep +
                       "</m:DerivedFrom>" + "<dc:rights>all</dc:rights>")));
        const QByteArray written = packetOf(result.path);
        for (const QByteArray &part :
             {own, QByteArray("m:DocumentID=\"uuid:7\""), QByteArray("xmp:Rating=\"5\""),
              QByteArray("xmp:CreatorTool=\"kept\""), deep,
              QByteArray("<dc:rights>all</dc:rights>")}) {
            QVERIFY2(written.contains(part), written.constData());
        }
        QCOMPARE(result.warnings, QStringList());
    }

    void packetsOfOtherEncodingsAndPaddingsAreRead_data() {
        QTest::addColumn<QByteArray>("packet");
        const QByteArray usual = packet({}, "<dc:rights>\xc3\xa4ll</dc:rights>");
        const QString text = QString::fromUtf8(usual);
        const QByteArray utf16(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
        QTest::newRow("UTF-16") << "\xff\xfe" + utf16;
        QTest::newRow("zeros behind") << usual + QByteArray(100, '\0');
        QTest::newRow("byte order mark") << "\xef\xbb\xbf" + usual;
        QTest::newRow("no marks of a packet")
            << usual.sliced(usual.indexOf("<x:"))
                   .first(usual.indexOf("<?xpacket end") - usual.indexOf("<x:"));
    }
    void packetsOfOtherEncodingsAndPaddingsAreRead() {
        QFETCH(QByteArray, packet);
        const auto properties = propertiesOf(converted(withMetadata(packet)).path);
        QCOMPARE(properties[u"dc:rights"_s], QStringList(u"äll"_s));
    }

    void packetsWithMuchOfOneKindAreRead_data() {
        QTest::addColumn<QByteArray>("properties");
        QTest::newRow("text with equals signs") << QByteArray("a=b; ").repeated(2000);
        QTest::newRow("remarks") << "<!--" + QByteArray("====").repeated(1000) + "-->";
        QTest::newRow("declarations") << QByteArray("<q:z xmlns:q=\"q\"/>").repeated(3000);
    }
    void packetsWithMuchOfOneKindAreRead() {
        QFETCH(QByteArray, properties);
        const Result result = converted(withMetadata(
            packet({}, "<dc:rights>all</dc:rights><q:a xmlns:q=\"q\">" + properties + "</q:a>")));
        QCOMPARE(result.warnings, QStringList());
        QCOMPARE(propertiesOf(result.path)[u"dc:rights"_s], QStringList(u"all"_s));
    }

    void aTitleThatXmlCannotHoldLeavesThePacketWellFormed() {
        DocumentInfo info;
        info.title = u"a\x01 b\uFFFE"_s;
        QCOMPARE(propertiesOf(converted(withMetadata(packet({})), info).path)[u"dc:title"_s],
                 QStringList(u"a b"_s));
    }

    void thePacketIsWrittenSoThatAnyProgramFindsIt() {
        const Result result = converted(withMetadata(packet({}, "<dc:rights>all</dc:rights>")));
        QVERIFY(readFile(result.path).contains("<dc:rights>all</dc:rights>"));
    }

    void metadataThatCannotBeReadIsNamed_data() {
        QTest::addColumn<QByteArray>("packet");
        QTest::newRow("not closed") << QByteArray("<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">");
        QTest::newRow("another vocabulary") << QByteArray("<html/>");
        QTest::newRow("unknown entity") << packet({}, "<dc:rights>&who;</dc:rights>");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("another encoding") << packet({}, "<dc:rights>\xe4</dc:rights>");
        QTest::newRow("document type") << "<!DOCTYPE x>" + packet({});
        QByteArray attributes;
        for (int i = 0; i < 2000; ++i) {
            attributes += "a" + QByteArray::number(i) + "=\"\" ";
        }
        QTest::newRow("endless element") << packet(attributes);
        QByteArray declarations;
        for (int i = 0; i < 20'000; ++i) {
            declarations += "<a xmlns:a" + QByteArray::number(i) + "=\"b\">";
        }
        QTest::newRow("endless declarations")
            << packet({}, declarations + QByteArray("</a>").repeated(20'000));
        QTest::newRow("endless element behind a bracket")
            << packet("quoted=\"a > b\" " + attributes);
        QTest::newRow("too long") << packet({}) + QByteArray(5 << 20, ' ') + "<?end?>";
    }
    void metadataThatCannotBeReadIsNamed() {
        QFETCH(QByteArray, packet);
        const Result result = converted(withMetadata(packet));
        QCOMPARE(result.warnings, QStringList(u"pdf-parts-left: Not carried over: metadata"_s));
        QCOMPARE(packetOf(result.path), QByteArray());
    }

    void standardsThatTheDocumentKeepsAreClaimed() {
        DocumentInfo info;
        info.title = u"A title"_s;
        const Result result =
            converted(withMetadata(packet(kPdfA + QByteArray(kPdfUA) + "pdfuaid:part=\"1\"",
                                          "<pdfaid:part>2</pdfaid:part><pdfaid:conformance>B"
                                          "</pdfaid:conformance>")),
                      info);
        const auto properties = propertiesOf(result.path);
        QCOMPARE(result.warnings, QStringList());
        QCOMPARE(properties[u"pdfaid:part"_s], QStringList(u"2"_s));
        QCOMPARE(properties[u"pdfaid:conformance"_s], QStringList(u"B"_s));
        QCOMPARE(properties[u"pdfuaid:part"_s], QStringList(u"1"_s));
    }

    void pdfAOnlyStandsWhereTheFileIsNotEncrypted() {
        PDFContext::Settings settings;
        settings.encryption = std::make_unique<Encryption>();
        settings.encryption->userPassword = u"secret"_s;
        settings.info.title = u"A title"_s;
        const Result result = converted(
            saved(withMetadata(packet(kPdfA + QByteArray(kPdfUA) +
                                      "pdfaid:part=\"3\" pdfaid:conformance=\"B\" pdfaid:rev=\"1\" "
                                      "pdfuaid:part=\"1\""))),
            std::move(settings));
        QCOMPARE(result.warnings,
                 QStringList(u"claim-dropped: The document no longer says that it is PDF/A-3b, "
                             "since that forbids encryption"_s));
        const QByteArray written =
            runTool(u"pdfinfo"_s, {u"-meta"_s, u"-upw"_s, u"secret"_s, result.path}).out;
        QVERIFY(written.contains("pdfuaid:part=\"1\""));
        QVERIFY(!written.contains("pdfaid:part") && !written.contains("pdfaid:rev"));
    }

    void aClaimThatGoesStandsNowhere() {
        PDFContext::Settings settings;
        settings.encryption = std::make_unique<Encryption>();
        settings.encryption->userPassword = u"secret"_s;
        const QByteArray deep =
            "<q:z xmlns:q=\"q\"><r:Description pdfaid:rev=\"1\"><pdfaid:part>2</pdfaid:part>"
            "</r:Description></q:z><dc:rights>all</dc:rights>";
        const Result result =
            converted(saved(withMetadata(packet(kPdfA, deep))), std::move(settings));
        QCOMPARE(result.warnings.size(), 1);
        const QByteArray written =
            runTool(u"pdfinfo"_s, {u"-meta"_s, u"-upw"_s, u"secret"_s, result.path}).out;
        QVERIFY(written.contains("<dc:rights>all"));
        QVERIFY2(!written.contains("pdfaid:part") && !written.contains("pdfaid:rev"),
                 written.constData());
    }

    void infoThatThePacketAloneHasIsKept() {
        PDFContext::Settings settings;
        settings.keepInfo = true;
        const Result result = converted(
            saved(withMetadata(
                packet(kPdfUA + QByteArray("pdfuaid:part=\"1\" pdf:Keywords=\"k1; k2\" "
                                           "xmp:CreatorTool=\"A tool\""),
                       "<dc:title><r:Alt><r:li xml:lang=\"de\">Titel</r:li><r:li "
                       "xml:lang=\"x-default\">Title</r:li></r:Alt></dc:title><dc:creator><r:Seq>"
                       "<r:li>Anna</r:li><r:li>Bert</r:li></r:Seq></dc:creator>"
                       "<dc:description>Plain</dc:description>"))),
            std::move(settings));
        QCOMPARE(result.warnings, QStringList());
        const PdfProbe probe(result.path);
        QCOMPARE(probe.info(u"Title"_s), u"Title"_s);
        QCOMPARE(probe.info(u"Author"_s), u"Anna, Bert"_s);
        QCOMPARE(probe.info(u"Subject"_s), u"Plain"_s);
        QCOMPARE(probe.info(u"Keywords"_s), u"k1; k2"_s);
        QCOMPARE(probe.info(u"Creator"_s), u"A tool"_s);
        const auto properties = propertiesOf(result.path);
        QCOMPARE(properties[u"dc:title"_s], QStringList(u"Title"_s));
        QCOMPARE(properties[u"pdfuaid:part"_s], QStringList(u"1"_s));
    }

    void theInformationOfADocumentComesBeforeItsPacket() {
        PDFContext::Settings settings;
        settings.keepInfo = true;
        const QByteArray title = "<dc:title>of the packet</dc:title>";
        PdfFixture source = withMetadata(packet({}, title + "<dc:description>s</dc:description>"));
        source.object(30, "<< /Title (of the document) /Subject () >>").trailer("/Info 30 0 R");
        const PdfProbe probe(converted(saved(source), std::move(settings)).path);
        QCOMPARE(probe.info(u"Title"_s), u"of the document"_s);
        QCOMPARE(probe.info(u"Subject"_s), u"s"_s);
    }

    void whatTheDocumentDoesNotKeepIsNotClaimed_data() {
        QTest::addColumn<QByteArray>("claim");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QString>("reason");
        const QByteArray pdfUA = kPdfUA + QByteArray("pdfuaid:part=\"1\"");
        const QByteArray levelA = kPdfA + QByteArray("pdfaid:part=\"2\" pdfaid:conformance=\"A\"");
        const QByteArray tags = "/StructTreeRoot << /K [(no element)] >>";
        QTest::newRow("no title") << pdfUA << QString() << QByteArray()
                                  << u"PDF/UA-1, since that demands a title, and none is given"_s;
        QTest::newRow("no tags for PDF/UA")
            << pdfUA << u"t"_s << tags
            << u"PDF/UA-1, since some of its structure tags are damaged"_s;
        QTest::newRow("document information")
            << kPdfA + QByteArray("pdfaid:part=\"4\" pdfaid:conformance=\"F\"") << u"t"_s
            << QByteArray()
            << u"PDF/A-4f, since that forbids the document information, which is written"_s;
        QTest::newRow("no tags for level A")
            << levelA << QString() << tags
            << u"PDF/A-2a, since some of its structure tags are damaged"_s;
    }
    void whatTheDocumentDoesNotKeepIsNotClaimed() {
        QFETCH(QByteArray, claim);
        QFETCH(QString, title);
        QFETCH(QByteArray, keys);
        QFETCH(QString, reason);
        DocumentInfo info;
        info.title = title;
        const Result result = converted(withMetadata(packet(claim), keys), info);
        QCOMPARE(result.warnings.last(),
                 u"claim-dropped: The document no longer says that it is "_s + reason);
        QVERIFY(!packetOf(result.path).contains("id:part"));
    }

    void aDamagedDocumentClaimsNothing() {
        const QByteArray whole =
            withMetadata(packet(kPdfA + QByteArray("pdfaid:part=\"2\""))).bytes();
        const QString path = newPath();
        writeFile(path, QByteArray(whole).replace("startxref\n", "startxref\n9"));
        const Result result = converted(path, {});
        QCOMPARE(result.warnings.last(), u"claim-dropped: The document no longer says that it is "
                                         "PDF/A-2, since it was damaged"_s);
        QVERIFY(packetOf(result.path).contains("rdf-syntax"));
        QVERIFY(!packetOf(result.path).contains("pdfaid:part"));
    }

    void pdfA1IsWrittenAsPdf14() {
        const QString source = saved(
            withMetadata(packet(kPdfA + QByteArray("pdfaid:part=\"1\" pdfaid:conformance=\"B\"")))
                .header("%PDF-1.4\n"));
        const QString result = merged({source}, true);
        const QByteArray bytes = readFile(result);
        QVERIFY(bytes.startsWith("%PDF-1.4\n"));
        QVERIFY(bytes.contains("\nxref\n"));
        QVERIFY(!PdfProbe(result).json().contains("/ObjStm"));
        QVERIFY(!bytes.contains("/ObjStm") && !bytes.contains("/XRef"));
        QVERIFY(bytes.contains("\n0000000000 65535 f \n"));
    }

    void streamsOfPdfAEndWithALine() {
        for (const QByteArray part : {"1", "2"}) {
            const QByteArray bytes = readFile(merged(
                {saved(withMetadata(packet(kPdfA + ("pdfaid:part=\"" + part + '"'))))}, true));
            QVERIFY(bytes.count("endstream") > 1);
            QCOMPARE(bytes.count("endstream"), bytes.count("\nendstream"));
        }
    }
};

FOLIOFORGE_TEST(MetadataTest)
#include "MetadataTest.moc"
