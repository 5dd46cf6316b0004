// SPDX-License-Identifier: Apache-2.0

#include "ContextCase.h"
#include "MergeCase.h"
#include "support/TaggedPage.h"
#include "support/TestUnit.h"
#include "text/FontCascade.h"

#include <qpdf/QPDFNumberTreeObjectHelper.hh>

#include <QRegularExpression>

#include <set>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// The tags of pages that are drawn, as other programs read them.
class TagsTest : public QObject, private MergeCase {
    Q_OBJECT

    static PDFContext::Settings tagged() {
        PDFContext::Settings settings = unflushed();
        settings.info.created = QDateTime::fromSecsSinceEpoch(1'700'000'000).toUTC();
        settings.tags = TagOptions{u"en-GB"_s, {}};
        return settings;
    }
    static void beginPage(PDFContext &context) {
        context.beginPage({0, 0, 200, 100});
        context.setFont(textFont(), textFont()->size());
    }
    static void show(PDFContext &context, const QString &text, double y = 50) {
        std::vector<Glyph> glyphs;
        for (const QChar unit : text) {
            glyphs.push_back(textFont()->glyph(unit.unicode()));
        }
        context.showGlyphsAtPoint(10, y, glyphs);
    }
    static void showParagraph(PDFContext &context, const QString &text, double y = 50) {
        context.beginParagraph();
        show(context, text, y);
    }
    /// The tree of `context` as poppler draws it, once qpdf finds nothing wrong with the document.
    static QString structureOf(PDFContext &context, const QString &path,
                               const QString &password = {}) {
        const CloseResult result = context.close();
        QString log = result.reason;
        const PdfProbe probe(path, password);
        if (result.status != CloseResult::Status::Written || !probe.isValid(&log)) {
            QTest::qFail(qPrintable(log), __FILE__, __LINE__);
        }
        return probe.structureText();
    }
    /// The elements of a page's content by their number in it, as the parent tree says.
    static std::vector<QPDFObjectHandle> parentsOf(QPDF &document, QPDFObjectHandle page) {
        const QPDFNumberTreeObjectHelper tree(
            document.getRoot().getKey("/StructTreeRoot").getKey("/ParentTree"), document);
        QPDFObjectHandle parents;
        QPDFNumberTreeObjectHelper(tree).findObject(page.getKey("/StructParents").getIntValue(),
                                                    parents);
        return parents.getArrayAsVector();
    }
    static std::vector<QPDFObjectHandle> kidsOf(QPDFObjectHandle element) {
        auto kids = element.getKey("/K");
        return kids.isArray() ? kids.getArrayAsVector() : std::vector{kids};
    }
    /// All paragraphs under `element`, in their order.
    static void collect(QPDFObjectHandle element, std::vector<QPDFObjectHandle> &paragraphs) {
        if (element.getKey("/S").getName() == "/P") {
            paragraphs.push_back(element);
            return;
        }
        for (QPDFObjectHandle kid : kidsOf(element)) {
            QVERIFY(kid.getKey("/P").isSameObjectAs(element));
            collect(kid, paragraphs);
        }
    }

  private Q_SLOTS:
    void eachSourceIsADocumentWithItsParagraphs() {
        const QString path = newPath();
        PDFContext context(path, tagged());
        context.beginSource(u"first.txt"_s);
        beginPage(context);
        showParagraph(context, u"one"_s, 70);
        showParagraph(context, u"two"_s);
        context.endPage();
        context.beginSource(u"plan 10 R 0 R [2].txt"_s);
        beginPage(context);
        showParagraph(context, u"three"_s);
        context.endPage();
        QCOMPARE(structureOf(context, path),
                 u"Document \"first.txt\"\n  P (block)\n    \"one\"\n  P (block)\n    \"two\"\n"
                 "Document \"plan 10 R 0 R [2].txt\"\n  P (block)\n    \"three\"\n"_s);
        QCOMPARE(PdfProbe(path).info(u"Tagged"_s), u"yes"_s);
    }

    void aParagraphOfSeveralRowsAndPagesIsOne() {
        const QString path = newPath();
        PDFContext context(path, tagged());
        context.beginSource(u"a"_s);
        context.beginParagraph();
        for (const QString &word : {u"up"_s, u"on"_s, u"ce "_s}) {
            beginPage(context);
            show(context, word, 70);
            show(context, u"-"_s);
            context.endPage();
        }
        beginPage(context);
        show(context, u"end"_s, 70);
        showParagraph(context, u"next"_s);
        context.endPage();
        QCOMPARE(structureOf(context, path),
                 u"Document \"a\"\n  P (block)\n    \"up-\"\n    \"on-\"\n    \"ce -\"\n"
                 "    \"end\"\n  P (block)\n    \"next\"\n"_s);
    }

    void pagesFindTheElementsOfTheirContent() {
        const QString path = newPath();
        PDFContext context(path, tagged());
        context.beginSource(u"a"_s);
        for (const bool begins : {true, false}) {
            beginPage(context);
            if (begins) {
                showParagraph(context, u"one"_s, 70);
                context.beginParagraph();
            }
            show(context, u"two"_s);
            context.endPage();
        }
        structureOf(context, path);
        const auto document = opened(path);
        const auto pages = document->getAllPages();
        const auto elements =
            kidsOf(document->getRoot().getKey("/StructTreeRoot").getKey("/K").getArrayItem(0));
        QCOMPARE(elements.size(), 2U);
        const auto first = parentsOf(*document, pages[0]);
        QVERIFY(first.at(0).isSameObjectAs(elements[0]) && first.at(1).isSameObjectAs(elements[1]));
        QVERIFY(parentsOf(*document, pages[1]).at(0).isSameObjectAs(elements[1]));
        QCOMPARE(QPDFObjectHandle(pages[0]).getKey("/Tabs").getName(), "/S");
    }

    void aTextOfManyParagraphsHasThemAllInParts() {
        constexpr std::size_t kParagraphs = 3000;
        constexpr std::size_t kOfAPage = 40;
        const QString path = newPath();
        PDFContext context(path, tagged());
        context.beginSource(u"long.txt"_s);
        for (std::size_t i = 0; i < kParagraphs; ++i) {
            if (i % kOfAPage == 0) {
                beginPage(context);
            }
            showParagraph(context, QString::number(i), 95 - 2 * static_cast<double>(i % kOfAPage));
            if ((i + 1) % kOfAPage == 0) {
                context.endPage();
            }
        }
        const QString text = structureOf(context, path);
        static const QRegularExpression word(u"\"(\\d+)\""_s);
        std::size_t next = 0;
        for (const auto &match : word.globalMatch(text)) {
            QCOMPARE(match.captured(1), QString::number(next++));
        }
        QCOMPARE(next, kParagraphs);
        const auto document = opened(path);
        auto root = document->getRoot().getKey("/StructTreeRoot");
        std::vector<QPDFObjectHandle> paragraphs;
        collect(root.getKey("/K").getArrayItem(0), paragraphs);
        QCOMPARE(paragraphs.size(), kParagraphs);
        QVERIFY(kidsOf(root.getKey("/K").getArrayItem(0)).size() < 10);
        next = 0;
        for (const auto &page : document->getAllPages()) {
            for (const QPDFObjectHandle &parent : parentsOf(*document, page)) {
                QVERIFY(parent.isSameObjectAs(paragraphs.at(next++)));
            }
        }
    }

    void aPictureIsAFigureWithItsDescriptionAndItsPlace() {
        const QString path = newPath();
        const QString picture = m_folder.filePath(u"q.jpg"_s);
        QVERIFY(quarters(64).save(picture, "JPEG"));
        PDFContext context(path, tagged());
        context.beginSource(u"q.jpg"_s);
        context.beginPage({0, 0, 100, 50});
        context.drawImage({10, 5, 40, 20}, jpegInPlace(picture), 1, u"Vier (4) Viertel – bunt"_s);
        context.endPage();
        structureOf(context, path);
        const auto document = opened(path);
        auto figure = kidsOf(document->getRoot().getKey("/StructTreeRoot"))
                          .at(0)
                          .getKey("/K")
                          .getArrayItem(0);
        QCOMPARE(figure.getKey("/S").getName(), "/Figure");
        QCOMPARE(figure.getKey("/Alt").getUTF8Value(), "Vier (4) Viertel – bunt");
        QCOMPARE(figure.getKey("/A").getKey("/BBox").unparse(), "[ 10 5 50 25 ]");
        QVERIFY(figure.getKey("/Pg").isSameObjectAs(document->getAllPages().front()));
    }

    void whatBelongsToThePageIsNoContent() {
        const QString path = newPath();
        PDFContext context(path, tagged());
        context.beginSource(u"a"_s);
        beginPage(context);
        showParagraph(context, u"told"_s);
        context.endPage();
        context.drawArtifact(0, [&] {
            context.setFont(textFont(), textFont()->size());
            show(context, u"7"_s, 10);
        });
        const QString text = structureOf(context, path);
        QVERIFY(text.contains(u"told"_s) && !text.contains(u'7'));
    }

    void aSpanThatIsReadOtherwiseLosesNothingBehindIt() {
        const QString path = newPath();
        PDFContext context(path, tagged());
        context.beginSource(u"a"_s);
        beginPage(context);
        showParagraph(context, u"be"_s);
        context.beginActualText(u"FORE"_s);
        show(context, u"fore"_s);
        context.endActualText();
        show(context, u"hand"_s);
        context.endPage();
        const QString text = structureOf(context, path);
        QCOMPARE(QString(text).remove(u'\n').remove(u' '),
                 u"Document\"a\"P(block)\"be\"\"fore\"\"hand\""_s);
        QVERIFY(PdfProbe(path).text().contains(u"FORE"_s));
    }

    void anEncryptedDocumentHasItsTagsEncrypted() {
        const QString path = newPath();
        PDFContext::Settings settings = tagged();
        settings.encryption = std::make_unique<Encryption>();
        settings.encryption->userPassword = u"geheim"_s;
        settings.encryption->ownerPassword = u"Besitz"_s;
        settings.encryption->refusePrint = true;
        PDFContext context(path, std::move(settings));
        context.beginSource(u"secret.txt"_s);
        beginPage(context);
        showParagraph(context, u"told"_s);
        context.endPage();
        QVERIFY(structureOf(context, path, u"geheim"_s).contains(u"secret.txt"_s));
        QVERIFY(PdfProbe(path, u"Besitz"_s).isValid());
        QVERIFY(!PdfProbe(path, u"falsch"_s).isValid());
        QVERIFY(PdfProbe(path, u"geheim"_s).info(u"Encrypted"_s).contains(u"print:no"_s));
    }

    void sourcesAndDrawnPagesStandInTheirOrder() {
        const QString path = newPath();
        PDFContext context(path, tagged());
        for (const QString &name : {u"first"_s, u"second"_s}) {
            context.beginSource(name);
            beginPage(context);
            showParagraph(context, name);
            context.endPage();
            context.addDocument(saved(headingAndText("Head", "text")));
        }
        const QString text = structureOf(context, path);
        const QString own = u"Document \"%1\"\n  P (block)\n    \"%1\"\n"_s;
        const QString source = PdfProbe(saved(headingAndText("Head", "text"))).structureText();
        QCOMPARE(text, own.arg(u"first"_s) + source + own.arg(u"second"_s) + source);
        const auto document = opened(path);
        std::set<long long> keys;
        for (auto page : document->getAllPages()) {
            keys.insert(page.getKey("/StructParents").getIntValue());
            QVERIFY(!parentsOf(*document, page).empty());
        }
        QCOMPARE(keys.size(), 4U);
        QCOMPARE(PdfProbe(path).info(u"Tagged"_s), u"yes"_s);
    }

    void anEntryThatIsTakenBackLeavesNoTags() {
        const QString path = newPath();
        PDFContext context(path, tagged());
        context.beginSource(u"kept"_s);
        beginPage(context);
        showParagraph(context, u"kept"_s);
        context.endPage();
        context.waitForPages();
        const PDFContext::Mark mark = context.mark();
        context.beginSource(u"gone"_s);
        beginPage(context);
        showParagraph(context, u"gone"_s);
        context.endPage();
        context.waitForPages();
        context.rollBack(mark);
        context.beginSource(u"last"_s);
        beginPage(context);
        showParagraph(context, u"last"_s);
        context.endPage();
        QCOMPARE(structureOf(context, path), u"Document \"kept\"\n  P (block)\n    \"kept\"\n"
                                             "Document \"last\"\n  P (block)\n    \"last\"\n"_s);
    }

    void theLanguageIsThatOfTheDocument() {
        const QString path = newPath();
        PDFContext context(path, tagged());
        context.beginSource(u"a"_s);
        beginPage(context);
        showParagraph(context, u"one"_s);
        context.endPage();
        structureOf(context, path);
        const auto document = opened(path);
        QCOMPARE(document->getRoot().getKey("/Lang").getUTF8Value(), "en-GB");
    }

    void theSameDocumentIsWrittenTheSame() {
        QByteArrayList files;
        for (int i = 0; i < 2; ++i) {
            QTest::qWait(i * 1100); // The library's own identifier follows from the second.
            const QString path = newPath();
            PDFContext context(path, tagged());
            context.beginSource(u"a"_s);
            beginPage(context);
            showParagraph(context, u"one"_s);
            context.endPage();
            structureOf(context, path);
            files += readFile(path);
        }
        QCOMPARE(files[0], files[1]);
    }

    void aBlankPageHasNoTags() {
        const QString path = newPath();
        PDFContext context(path, tagged());
        context.beginSource(u"blank.txt"_s);
        beginPage(context);
        context.endPage();
        QCOMPARE(structureOf(context, path), u"Document \"blank.txt\"\n"_s);
        const auto document = opened(path);
        QVERIFY(!QPDFObjectHandle(document->getAllPages().front()).hasKey("/StructParents"));
    }
};

FOLIOFORGE_TEST(TagsTest)
#include "TagsTest.moc"
