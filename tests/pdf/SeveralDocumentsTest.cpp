// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "pdf/import/DocumentImport.h"
#include "support/PhotoPage.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What of the catalogs of several sources is true of all of the document.
class SeveralDocumentsTest : public QObject, protected MergeCase {
    Q_OBJECT

    static PdfFixture withCatalog(const QByteArray &keys) {
        PdfFixture fixture;
        fixture.object(1, "<< /Type /Catalog /Pages 2 0 R " + keys + " >>").pages(4, 1);
        return fixture;
    }
    /// A document whose output intent has the profile that `stream` holds in the form `keys` say.
    static PdfFixture withIntent(const QByteArray &stream, const QByteArray &keys = {}) {
        return withCatalog("/OutputIntents [<< /S /GTS_PDFA1 /OutputConditionIdentifier (x) "
                           "/DestOutputProfile 20 0 R >>]")
            .stream(20, "/N 3 " + keys, stream);
    }

    std::unique_ptr<QPDF> mergedFrom(const std::vector<PdfFixture> &sources) {
        QStringList paths;
        for (const PdfFixture &source : sources) {
            paths += saved(source);
        }
        return opened(merged(paths));
    }
    static QByteArray entryOf(QPDF &document, const char *key) {
        return QByteArray::fromStdString(document.getRoot().getKey(key).unparseResolved());
    }
    static void drawPage(PDFContext &context) {
        context.beginPage(QRectF(0, 0, 100, 100));
        context.endPage();
    }

  private Q_SLOTS:
    void theFirstSourceSaysHowReadersOpenTheDocument() {
        const auto document = mergedFrom(
            {withCatalog("/PageMode /UseThumbs /PageLayout /OneColumn /OpenAction [4 0 R "
                         "/FitH 5] /ViewerPreferences << /HideMenubar true >>"),
             withCatalog("/PageMode /FullScreen /OpenAction [4 0 R /Fit] "
                         "/ViewerPreferences << /HideToolbar true >> /Lang (de)")});
        QCOMPARE(entryOf(*document, "/PageMode"), "/UseThumbs");
        QCOMPARE(entryOf(*document, "/PageLayout"), "/OneColumn");
        QCOMPARE(entryOf(*document, "/ViewerPreferences"), "<< /HideMenubar true >>");
        auto opening = document->getRoot().getKey("/OpenAction");
        QCOMPARE(opening.getArrayItem(0).getObjGen(), document->getAllPages().at(0).getObjGen());
        QCOMPARE(opening.getArrayItem(1).getName(), "/FitH");
    }

    void aSourceBehindADrawnPageDoesNotSayHowReadersOpenTheDocument() {
        const QString path = newPath();
        PDFContext context(path, unflushed());
        drawPage(context);
        const QString source =
            saved(withCatalog("/PageMode /UseThumbs /OpenAction << /S /JavaScript /JS (1) >>"));
        const AddedDocument added = context.addDocument(source);
        QCOMPARE(added.parts.left, (PartCounts{{PartKind::Scripts, 1}}));
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        QCOMPARE(entryOf(*opened(path), "/PageMode"), "null");
        QCOMPARE(entryOf(*opened(path), "/OpenAction"), "null");
    }

    void theOpeningScriptOfTheFirstSourceStays() {
        const QString source = saved(withCatalog("/OpenAction << /S /JavaScript /JS (1) >>"));
        const AddedDocument added = PDFContext(newPath(), unflushed()).addDocument(source);
        QCOMPARE(added.parts.carried, (PartCounts{{PartKind::Scripts, 1}}));
        QCOMPARE(added.warnings, Warnings());
    }

    void aLanguageOnWhichAllSourcesAgreeStays() {
        const QString path = newPath();
        PDFContext context(path, unflushed());
        const AddedDocument added = context.addDocument(saved(withCatalog("/Lang (de-CH)")));
        QCOMPARE(added.parts.carried, (PartCounts{{PartKind::Language, 1}}));
        context.addDocument(saved(withCatalog("/Lang <FEFF00640065002D00430048>")));
        QCOMPARE(context.close().left, std::vector<PartKind>());
        QCOMPARE(entryOf(*opened(path), "/Lang"), "(de-CH)");
    }

    void aLanguageThatIsNotThatOfAllPagesIsLeft_data() {
        QTest::addColumn<QByteArray>("other");
        QTest::newRow("another language") << QByteArray("/Lang (en)");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("drawn page") << QByteArray("drawn");
    }
    void aLanguageThatIsNotThatOfAllPagesIsLeft() {
        QFETCH(QByteArray, other);
        const QString path = newPath();
        PDFContext context(path, unflushed());
        context.addDocument(saved(withCatalog("/Lang (de)")));
        if (other == "drawn") {
            drawPage(context);
        } else {
            context.addDocument(saved(withCatalog(other)));
        }
        QCOMPARE(context.close().left, std::vector{PartKind::Language});
        QCOMPARE(entryOf(*opened(path), "/Lang"), "null");
    }

    void aLanguageThatTagsSayIsNotLeft() {
        const QByteArray tags = "/Lang (de) /StructTreeRoot << /K << /S /P /K 0 /Pg 4 0 R >> >>";
        PDFContext context(newPath(), unflushed());
        const AddedDocument added = context.addDocument(saved(withCatalog(tags)));
        QCOMPARE(added.parts.carried, (PartCounts{{PartKind::StructureElements, 1}}));
        context.addDocument(saved(withCatalog({})));
        QCOMPARE(context.close().left, std::vector<PartKind>());
    }

    void outputIntentsOnWhichAllSourcesAgreeStay() {
        const QByteArray profile("a profile, as far as anybody here looks");
        const auto document =
            mergedFrom({withIntent(profile), withIntent(flate(profile), "/Filter /FlateDecode")});
        auto intents = document->getRoot().getKey("/OutputIntents");
        QCOMPARE(intents.getArrayNItems(), 1);
        const auto data = intents.getArrayItem(0).getKey("/DestOutputProfile").getStreamData();
        QCOMPARE(QByteArray(reinterpret_cast<const char *>(data->getBuffer()),
                            static_cast<qsizetype>(data->getSize())),
                 profile);
    }

    void outputIntentsThatDoNotHoldForAllPagesGo_data() {
        QTest::addColumn<QByteArray>("other");
        QTest::newRow("another profile")
            << QByteArray("/OutputIntents [<< /S /GTS_PDFA1 /DestOutputProfile 21 0 R >>]");
        QTest::newRow("another standard")
            << QByteArray("/OutputIntents [<< /S /GTS_PDFX /DestOutputProfile 20 0 R >>]");
        QTest::newRow("another condition")
            << QByteArray("/OutputIntents [<< /S /GTS_PDFA1 /OutputConditionIdentifier (x) >>]");
        QTest::newRow("none") << QByteArray();
    }
    void outputIntentsThatDoNotHoldForAllPagesGo() {
        QFETCH(QByteArray, other);
        PdfFixture second = withCatalog(other);
        second.stream(20, "/N 3", "one profile").stream(21, "/N 3", "other profile");
        const QString path = newPath();
        PDFContext context(path, unflushed());
        context.addDocument(saved(withIntent("one profile")));
        context.addDocument(saved(second));
        QCOMPARE(context.close().left, std::vector{PartKind::OutputIntents});
        QCOMPARE(entryOf(*opened(path), "/OutputIntents"), "null");
    }

    void profilesThatCannotBeReadAreNeverTheSame() {
        const QString path = newPath();
        PDFContext context(path, unflushed());
        for (int copy = 0; copy < 2; ++copy) {
            context.addDocument(saved(withIntent("nonsense", "/Filter /FlateDecode")));
        }
        QCOMPARE(context.close().left, std::vector{PartKind::OutputIntents});
    }

    void whatOutputIntentsMeanIsShortHoweverLongTheirProfileIs() {
        const QByteArray intent = "<< /S /GTS_PDFA1 /DestOutputProfile 20 0 R >> ";
        const QString path =
            saved(withCatalog("/OutputIntents [" + intent.repeated(60) + "]")
                      .stream(20, "/N 3 /Filter /FlateDecode", flate(QByteArray(1 << 20, 'p'))));
        const auto source = opened(path);
        QPDF target;
        target.emptyPDF();
        SharedStreams shared;
        SourceNames names({}, path);
        const auto intents = importDocument(*source, target, shared, names, {}).outputIntents;
        QCOMPARE(intents.intents.size(), 60U);
        QCOMPARE_LT(intents.meaning.value().size(), 60 * 100);
    }

    void outputIntentsGoWhereAPageIsDrawn() {
        const QString path = newPath();
        PDFContext context(path, unflushed());
        context.addDocument(saved(withIntent("one profile")));
        const PDFContext::Mark mark = context.mark();
        drawPage(context);
        context.rollBack(mark);
        drawPage(context);
        QCOMPARE(context.close().left, std::vector{PartKind::OutputIntents});
        QCOMPARE(entryOf(*opened(path), "/OutputIntents"), "null");
    }

    void aPageThatIsTakenBackLetsOutputIntentsStay() {
        const QString path = newPath();
        PDFContext context(path, unflushed());
        context.addDocument(saved(withIntent("one profile")));
        const PDFContext::Mark mark = context.mark();
        drawPage(context);
        context.rollBack(mark);
        QCOMPARE(context.close().left, std::vector<PartKind>());
        QVERIFY(entryOf(*opened(path), "/OutputIntents").contains("/GTS_PDFA1"));
    }
};

FOLIOFORGE_TEST(SeveralDocumentsTest)
#include "SeveralDocumentsTest.moc"
