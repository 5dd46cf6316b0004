// SPDX-License-Identifier: Apache-2.0

#include "ConversionCase.h"
#include "support/Evidence.h"
#include "support/OpenedPdf.h"
#include "support/Places.h"
#include "support/Python.h"
#include "support/TaggedPage.h"
#include "support/TestUnit.h"

#include <qpdf/Buffer.hh>

#include <QImage>
#include <QXmlStreamReader>

#include <set>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// Looks at a page's content operator by operator.
class ContentWalk : public QPDFObjectHandle::ParserCallbacks {
  public:
    std::size_t painted = 0;  ///< Operators that leave something on the page.
    std::size_t unmarked = 0; ///< Of them, those that belong neither to a tag nor to an artifact.
    bool isMixed = false;     ///< A tag stands in an artifact, or an artifact in a tag.
    std::set<int> numbers;    ///< Of marked contents.

    void handleObject(QPDFObjectHandle object) override {
        if (!object.isOperator()) {
            m_operands.push_back(object);
            return;
        }
        const std::string name = object.getOperatorValue();
        if (name == "BDC" || name == "BMC") {
            begin();
        } else if (name == "EMC") {
            m_open.pop_back();
        } else if (kPainting.contains(name)) {
            ++painted;
            unmarked += m_open.empty() ? 1 : 0;
        }
        m_operands.clear();
    }
    void handleEOF() override { isMixed = isMixed || !m_open.empty(); }

  private:
    static inline const std::set<std::string> kPainting{"Tj", "TJ", "'", "\"", "Do", "f",
                                                        "S",  "B",  "b", "s",  "F",  "sh"};

    void begin() {
        const bool isArtifact = m_operands.front().getName() == "/Artifact";
        const bool isTag = m_operands.back().isDictionary() && m_operands.back().hasKey("/MCID");
        for (const char open : m_open) {
            isMixed = isMixed || (open == 'a' && isTag) || (open == 't' && (isArtifact || isTag));
        }
        if (isTag) {
            isMixed = isMixed ||
                      !numbers.insert(m_operands.back().getKey("/MCID").getIntValueAsInt()).second;
        }
        m_open += isArtifact ? 'a' : isTag ? 't' : '-';
    }

    std::vector<QPDFObjectHandle> m_operands;
    std::string m_open; ///< What is open: artifacts, tags, others.
};

} // namespace

/// Documents for everyone (PDF/UA-1): what the rules of the standard ask for.
/// accessible/evidence.tsv leads from each rule to its test.
class AccessibleTest : public QObject, private ConversionCase {
    Q_OBJECT

    /// A document of everything: text in both directions, with a letter that no font has, a header,
    /// a picture and a tagged PDF with a link.
    QString make() {
        m_options.merge = true;
        m_options.outputName = u"all.pdf"_s;
        m_options.readable.emplace().header = u"{file}"_s;
        addText("a.txt",
                u"Words\n\n\u05E9\u05DC\u05D5\u05DD abc\t\u0915\u094D\u0937\u0947 \U0010FFFD\n"_s
                    .toUtf8());
        if (QImage(20, 10, QImage::Format_RGB888).save(path("b.png"))) {
            addFile(path("b.png"));
        }
        PdfFixture tagged = headingAndText("Head", "text");
        tagged.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Annots [20 0 R] "
                         "/Resources << /Font << /F 3 0 R >> >> /Contents 5 0 R >>");
        tagged.object(11, element("Document", 10, "[12 0 R 13 0 R 14 0 R]"));
        tagged.object(14, element("Link", 11, "<< /Type /OBJR /Obj 20 0 R >>"));
        tagged.object(20, "<< /Type /Annot /Subtype /Link /Rect [0 0 9 9] /StructParent 3 "
                          "/Contents (there) >>");
        addFile(saved("tagged.pdf", tagged));
        return converted("out/all.pdf");
    }
    static std::vector<QPDFObjectHandle> kidsOf(QPDFObjectHandle element) {
        auto kids = element.getKey("/K");
        return kids.isArray() ? kids.getArrayAsVector() : std::vector{kids};
    }
    /// Calls `look` for each element.
    template<typename Look> static void forEachElement(QPDFObjectHandle parent, const Look &look) {
        for (QPDFObjectHandle kid : kidsOf(parent)) {
            if (kid.isDictionary() && kid.hasKey("/S")) {
                look(kid, parent);
                forEachElement(kid, look);
            }
        }
    }

    std::unique_ptr<QTemporaryDir> m_kept;
    QString m_made; ///< What make() made.

  private Q_SLOTS:
    void initTestCase() {
        init();
        m_made = make();
        m_kept = std::move(m_folder);
    }
    void init() {
        setUp();
        m_options.accessible = true;
        m_options.language = u"en-GB"_s;
    }

    void theMetadataSaysSo() {
        const auto document = opened(m_made);
        auto stream = document->getRoot().getKey("/Metadata");
        QCOMPARE(stream.getDict().getKey("/Type").getName(), "/Metadata");
        QCOMPARE(stream.getDict().getKey("/Subtype").getName(), "/XML");
        const auto data = stream.getStreamData();
        QXmlStreamReader packet(QByteArray(reinterpret_cast<const char *>(data->getBuffer()),
                                           static_cast<qsizetype>(data->getSize())));
        QStringList said;
        while (!packet.atEnd()) {
            packet.readNext();
            if (packet.isStartElement() && (packet.qualifiedName() == "pdfuaid:part"_L1 ||
                                            packet.qualifiedName() == "dc:title"_L1)) {
                const QString name = packet.qualifiedName().toString();
                said += name + u'=' +
                        packet.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
            }
        }
        QVERIFY(!packet.hasError());
        said.sort();
        QCOMPARE(said, QStringList({u"dc:title=all"_s, u"pdfuaid:part=1"_s}));
    }

    void theHeaderIsThatOfPdf1() {
        addFile(saved("new.pdf", headingAndText("a", "b").header("%PDF-2.0\n")));
        addText("a.txt", "words");
        QVERIFY(readFile(converted("out/a.pdf")).startsWith("%PDF-1.7\n"));
    }

    void theCatalogSaysTagsLanguageAndTitle() {
        const auto document = opened(m_made);
        auto catalog = document->getRoot();
        QVERIFY(catalog.getKey("/MarkInfo").getKey("/Marked").getBoolValue());
        QVERIFY(!catalog.getKey("/MarkInfo").hasKey("/Suspects"));
        QVERIFY(catalog.getKey("/StructTreeRoot").isDictionary());
        QVERIFY(catalog.getKey("/ViewerPreferences").getKey("/DisplayDocTitle").getBoolValue());
        QCOMPARE(catalog.getKey("/Lang").getUTF8Value(), "en-GB");
    }

    void allContentIsTaggedOrAnArtifact() {
        const auto document = opened(m_made);
        for (QPDFObjectHandle page : document->getAllPages()) {
            ContentWalk walk;
            page.parsePageContents(&walk);
            QVERIFY(walk.painted > 0);
            QCOMPARE(walk.unmarked, 0U);
            QVERIFY(!walk.isMixed);
        }
    }

    void everyElementHasItsParentAndAStandardType() {
        static const std::set<std::string> kStandard{"/Document", "/NonStruct", "/P",
                                                     "/Figure",   "/H1",        "/Link"};
        const auto document = opened(m_made);
        int count = 0;
        forEachElement(document->getRoot().getKey("/StructTreeRoot"),
                       [&](QPDFObjectHandle element, const QPDFObjectHandle &parent) {
                           QVERIFY(element.getKey("/P").isSameObjectAs(parent));
                           QVERIFY(kStandard.contains(element.getKey("/S").getName()));
                           ++count;
                       });
        QVERIFY(count >= 9);
        QVERIFY(!document->getRoot().getKey("/StructTreeRoot").hasKey("/RoleMap"));
    }

    void everyFigureIsDescribed() {
        const auto document = opened(m_made);
        QStringList descriptions;
        forEachElement(document->getRoot().getKey("/StructTreeRoot"),
                       [&](QPDFObjectHandle element, const QPDFObjectHandle &) {
                           if (element.getKey("/S").getName() == "/Figure") {
                               descriptions +=
                                   QString::fromStdString(element.getKey("/Alt").getUTF8Value());
                           }
                       });
        QCOMPARE(descriptions, QStringList(u"b.png"_s));
    }

    void pagesWithAnnotationsAreWalkedInTheOrderOfTheirTags() {
        const auto document = opened(m_made);
        for (QPDFObjectHandle page : document->getAllPages()) {
            QCOMPARE(page.getKey("/Tabs").getName(), "/S");
        }
    }

    void protectedDocumentsLetReadersIn() {
        m_options.security.useOwnerPassword = true;
        m_options.security.ownerPassword = u"Besitz"_s;
        m_options.security.refuseCopy = true;
        addText("a.txt", "words");
        const auto document = opened(converted("out/a.pdf"));
        QVERIFY(document->isEncrypted());
        QVERIFY(document->allowAccessibility() && !document->allowExtractAll());
    }

    void everyGlyphHasCharactersAndIsInItsFont() {
        const ToolRun checked = runTool(
            python(), {inSource(u"tests/support/archive/check-archive"_s), u"2u"_s, m_made});
        QVERIFY2(checked.exitCode >= 0 && checked.err.isEmpty(), checked.err);
        for (const QByteArray &line : checked.out.split('\n')) {
            QVERIFY2(!line.contains(": 6.2.11."), line);
        }
    }

    void eachRuleHasItsTestOrAReason() {
        const QString folder = u"tests/convert/accessible/"_s;
        QList<QStringList> rules;
        for (const QStringList &row : rowsOf(folder + u"evidence.tsv"_s)) {
            QCOMPARE(row.size(), 4);
            rules += row.first(3);
            QVERIFY2(isThere(row[3]), qPrintable(row[3]));
        }
        QCOMPARE(rules, rowsOf(folder + u"rules.tsv"_s));
        QCOMPARE(rules.size(), 106);
    }

    void picturesWithoutDescriptionAreNamed() {
        QVERIFY(QImage(4, 4, QImage::Format_Grayscale8).save(path("a.png")));
        addFile(path("a.png"));
        const Warnings missing = convertTo(path("out/a.pdf")).entries.front().warnings;
        QCOMPARE(missing.size(), 1U);
        QCOMPARE(missing.front().name(), "description-missing"_L1);
        m_options.descriptions.add(u"a.png"_s, u"nothing"_s);
        QVERIFY(convertTo(path("out/b.pdf")).entries.front().warnings.empty());
    }

    void untaggedPdfsAreRefused() {
        m_options.merge = true;
        addText("a.txt", "words");
        addFile(saved("untagged.pdf", PdfFixture().object(1, kCatalog).pages(4, 1)));
        addFile(
            saved("half.pdf", headingAndText("a", "b").object(
                                  1, "<< /Type /Catalog /Pages 2 0 R /StructTreeRoot 10 0 R >>")));
        const PDFOutcome outcome = convertTo(path("out/all.pdf"));
        for (const std::size_t index : {1U, 2U}) {
            QVERIFY(!outcome.entries[index].written);
            QCOMPARE(outcome.entries[index].reason,
                     u"It has no structure tags, which PDF/UA asks for"_s);
        }
        QCOMPARE(PdfProbe(outcome.close.path).pageCount(), 1);
    }
};

FOLIOFORGE_TEST(AccessibleTest)
#include "AccessibleTest.moc"
