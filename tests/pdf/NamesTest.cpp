// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <qpdf/QPDFNameTreeObjectHelper.hh>

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What documents refer to by name: it keeps its name where nothing clashes, and leads to what it
/// led to in its source.
class NamesTest : public QObject, protected MergeCase {
    Q_OBJECT

    /// Two pages; what `target` names is led to by a link over the text of the first.
    static PdfFixture linked(const QByteArray &catalog, const QByteArray &target) {
        PdfFixture fixture;
        fixture.object(1, "<< /Type /Catalog /Pages 2 0 R " + catalog + " >>").pages(4, 2);
        return fixture.object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Resources "
                                 "<< /Font << /F 3 0 R >> >> /Contents 6 0 R /Annots [<< /Type "
                                 "/Annot /Subtype /Link /Rect [0 0 200 100] " +
                                     target + " >>] >>");
    }
    /// A document whose name tree has `name` for its second page and whose link leads to `target`.
    static PdfFixture withTree(const QByteArray &name, const QByteArray &target) {
        return linked("/Names << /Dests << /Names [" + name + " [5 0 R /Fit]] >> >>",
                      "/Dest " + target);
    }
    static PdfFixture withDictionary(const QByteArray &name, const QByteArray &target) {
        return linked("/Dests << " + name + " << /D [5 0 R /XYZ 0 50 null] >> >>",
                      "/Dest " + target);
    }
    static PdfFixture withNames(const QByteArray &tree, const QByteArray &names) {
        return linked("/Names << " + tree + " << /Names [" + names + "] >> >>", {});
    }

    /// The names of destinations and the numbers of their pages, as pdfinfo lists them.
    static QString destinations(const QString &path) {
        static const QRegularExpression line(u"^ *(\\d+) \\[.*\\] \"(.*)\"$"_s,
                                             QRegularExpression::MultilineOption);
        const auto out = QString::fromUtf8(runTool(u"pdfinfo"_s, {u"-dests"_s, path}).out);
        QStringList found;
        for (const auto &match : line.globalMatch(out)) {
            found += match.captured(2) + u':' + match.captured(1);
        }
        found.sort();
        return found.join(u", "_s);
    }
    /// The pages to which poppler finds the links of the pages to lead; 0 where one leads nowhere.
    static QString linkedPages(const QString &path) {
        static const QRegularExpression link(u"<a href=\"(?:[^\"#]*#(\\d+))?[^\"]*\""_s);
        const auto out =
            QString::fromUtf8(runTool(u"pdftohtml"_s, {u"-xml"_s, u"-stdout"_s, path}).out);
        QStringList found;
        for (const auto &match : link.globalMatch(out)) {
            found += QString::number(match.captured(1).toInt());
        }
        return found.join(u' ');
    }
    /// What `body` prints, a script for mutool. It has the document d and pageOf(uri), the page to
    /// which a link or bookmark leads, from 1; 0 where it leads nowhere. Older versions give the
    /// page in the URI, newer ones the name of the destination.
    static QString byMutool(const QString &path, const QByteArray &body) {
        const QByteArray head =
            "var d = Document.openDocument ? Document.openDocument(scriptArgs[0])"
            "                              : new Document(scriptArgs[0]);"
            "function pageOf(uri) {"
            "    var found = d.resolveLink(uri);"
            "    return (typeof found === 'number' ? found : found.page) + 1;"
            "}";
        QTemporaryDir folder;
        const QString script = writeFile(folder.filePath(u"script.js"_s), head + body);
        return QString::fromUtf8(runTool(u"mutool"_s, {u"run"_s, script, path}).out).simplified();
    }
    /// The links that mutool finds to lead somewhere: "page from:page to".
    static QString linkedPagesByMutool(const QString &path) {
        return byMutool(path, "for (var n = 0; n < d.countPages(); ++n)"
                              "    d.loadPage(n).getLinks().forEach(function (link) {"
                              "        var to = pageOf(link.getURI ? link.getURI() : link.uri);"
                              "        if (to > 0) print((n + 1) + ':' + to);"
                              "    });");
    }
    /// The pages to which mutool finds the bookmarks of the first level to lead.
    static QString bookmarkedPages(const QString &path) {
        return byMutool(path, "d.loadOutline().forEach(function (item) {"
                              "    print(pageOf(item.uri));"
                              "});");
    }

    static QByteArrayList namesIn(QPDF &document, const char *tree) {
        QByteArrayList names;
        auto root = document.getRoot().getKey("/Names").getKey(tree);
        for (const auto &[name, object] : QPDFNameTreeObjectHelper(root, document).getAsMap()) {
            names += QByteArray::fromStdString(name);
        }
        return names;
    }

  private Q_SLOTS:
    void namesThatDoNotClashStay() {
        const QString result = merged({savedAs(u"a.pdf"_s, withTree("(one)", "(one)")),
                                       savedAs(u"b.pdf"_s, withTree("(two)", "(two)"))});
        QCOMPARE(destinations(result), u"one:2, two:4"_s);
        QCOMPARE(linkedPages(result), u"2 4"_s);
    }

    void namesThatClashAreToldApartByTheirSourceAndLinksFollow() {
        const PdfFixture source = withTree("(one)", "(one)");
        const QString first = savedAs(u"a.pdf"_s, source);
        const QString second = savedAs(u"b.pdf"_s, source);
        const QString result = merged({first, second, second, first});
        QCOMPARE(destinations(result), u"one (a):8, one (b 2):6, one (b):4, one:2"_s);
        QCOMPARE(linkedPages(result), u"2 4 6 8"_s);
        QCOMPARE(linkedPagesByMutool(result), u"1:2 3:4 5:6 7:8"_s);
    }

    void theOldDictionaryAndTheTreeShareTheirNames() {
        const QString result = merged({savedAs(u"a.pdf"_s, withDictionary("/one", "/one")),
                                       savedAs(u"b.pdf"_s, withTree("(one)", "(one)")),
                                       savedAs(u"c.pdf"_s, withDictionary("/one", "/one"))});
        QCOMPARE(linkedPages(result), u"2 4 6"_s);
        QCOMPARE(linkedPagesByMutool(result), u"1:2 3:4 5:6"_s);
        QCOMPARE(destinations(result), u"one (b):4, one (c):6, one:2"_s);
    }

    void anOldDictionaryAloneStaysOne() {
        const QString result = merged({savedAs(u"a.pdf"_s, withDictionary("/one", "/one"))}, true);
        const auto document = opened(result);
        QVERIFY(!document->getRoot().hasKey("/Names"));
        QCOMPARE(linkedPages(result), u"2"_s);
    }

    void bookmarksAndActionsFollowTheirNames() {
        const QByteArray tree = "/Names << /Dests << /Names [(one) [5 0 R /Fit]] >> >> ";
        const PdfFixture source =
            linked(tree + "/Outlines << /First 20 0 R /Last 20 0 R /Count 1 >>",
                   "/A << /S /GoTo /D (one) >>")
                .object(20, "<< /Title (Bookmark) /Dest (one) >>");
        const QString path = savedAs(u"a.pdf"_s, source);
        const QString result = merged({path, path});
        QCOMPARE(linkedPages(result), u"2 4"_s);
        QCOMPARE(bookmarkedPages(result), u"2 4"_s);
    }

    void anActionThatLeadsToAnotherFileKeepsTheName() {
        const PdfFixture source = linked("/Names << /Dests << /Names [(one) [5 0 R /Fit]] >> >>",
                                         "/A << /S /GoToR /F (other.pdf) /D (one) >>");
        const QString path = saved(source);
        const auto document = opened(merged({path, path}));
        QPDFObjectHandle page = document->getAllPages().at(2);
        auto action = page.getKey("/Annots").getArrayItem(0).getKey("/A");
        QCOMPARE(action.getKey("/D").getStringValue(), std::string("one"));
    }

    void aNameThatItsOwnSourceLacksLeadsNowhere() {
        const PdfFixture has = withTree("(one)", "(one)");
        const PdfFixture lacks = withTree("(two)", "(one)");
        const QString one = savedAs(u"has.pdf"_s, has);
        const QString two = savedAs(u"lacks.pdf"_s, lacks);
        QCOMPARE(linkedPages(merged({one, two})), u"2 0"_s);
        QCOMPARE(linkedPages(merged({two, one})), u"0 4"_s);
    }

    void aRenamedNameDoesNotBecomeAnotherOfItsSource() {
        const PdfFixture source =
            linked("/Names << /Dests << /Names [(one) [4 0 R /Fit] (one \\(b\\)) [5 0 R /Fit]] >> "
                   ">>",
                   "/Dest (one)");
        const QString result =
            merged({savedAs(u"a.pdf"_s, withTree("(one)", "(one)")), savedAs(u"b.pdf"_s, source)});
        QCOMPARE(destinations(result), u"one (b 2):3, one (b):4, one:2"_s);
        QCOMPARE(linkedPages(result), u"2 3"_s);
    }

    void namesOfAnyEncodingFollow_data() {
        QTest::addColumn<PdfFixture>("source");
        QTest::addColumn<QString>("newMutool"); // What version 1.25 finds.
        QTest::newRow("wide") << withTree("<FEFF00FC4E2D>", "<FEFF00FC4E2D>") << u"1:2 3:4"_s;
        // It reads a name up to a byte that is no character: both are empty.
        QTest::newRow("bytes") << withTree("<9F41>", "<9F41>") << u"1:2 3:2"_s;
        // It finds only names in ASCII there, in the source itself, too.
        QTest::newRow("dictionary")
            << withDictionary("/f#C3#BCr#20#28b#29", "/f#C3#BCr#20#28b#29") << QString();
    }
    void namesOfAnyEncodingFollow() {
        QFETCH(const PdfFixture, source);
        QFETCH(const QString, newMutool);
        const QString path = savedAs(u"für.pdf"_s, source);
        const QString result = merged({path, path});
        QCOMPARE(linkedPages(result), u"2 4"_s);
        const QString byMutool = linkedPagesByMutool(result);
        QVERIFY2(byMutool == u"1:2 3:4"_s || byMutool == newMutool, qPrintable(byMutool));
    }

    void namesThatCannotBeDecodedStayApart() {
        const PdfFixture source =
            linked("/Names << /Dests << /Names [<61AD> [4 0 R /Fit] <619F> [5 "
                   "0 R /Fit]] >> >>",
                   "/Dest <619F>");
        const QString path = savedAs(u"a.pdf"_s, source);
        const QString result = merged({path, path});
        QCOMPARE(linkedPages(result), u"2 4"_s);
        const auto document = opened(result);
        auto root = document->getRoot().getKey("/Names").getKey("/Dests");
        QCOMPARE(root.getKey("/Names").getArrayNItems(), 2 * 4);
    }

    void aNameThatRepeatsKeepsAllItsPlaces() {
        const QString path = savedAs(
            u"a.pdf"_s, linked("/Names << /Dests << /Names [(one) [5 0 R /Fit] (one) [4 0 R /Fit] "
                               "(one) [4 0 R /Fit]] >> >>",
                               "/Dest (one)"));
        QCOMPARE(destinations(merged({path})), u"one (a):1, one:2"_s);
    }

    void pagesByTheirNumberAreThoseOfTheirSource() {
        const PdfFixture source =
            linked("/Names << /Dests << /Names [(array) [1 /Fit] (dictionary) "
                   "<< /D [1 /Fit] >> (indirect) 20 0 R] >> >>",
                   "/Dest (indirect)")
                .object(20, "[1 /Fit]");
        const QString path = savedAs(u"a.pdf"_s, source);
        QCOMPARE(destinations(merged({path, path})),
                 u"array (a):4, array:2, dictionary (a):4, dictionary:2, indirect (a):4, "
                 "indirect:2"_s);
    }

    void destinationsThatReferToThemselvesOrAreSharedByManyAreCopiedOnce() {
        constexpr int kNames = 3000;
        QByteArray names;
        PdfFixture source = linked({}, "/Dest (0)");
        for (int i = 0; i < kNames; ++i) {
            const QByteArray number = QByteArray::number(20 + i);
            names += "(" + QByteArray::number(i).rightJustified(5, '0') + ") << /D 9 0 R >> (c" +
                     number.rightJustified(5, '0') + ") " + number + " 0 R ";
            source.object(20 + i, "<< /D [1 /Fit] /Dest " +
                                      QByteArray::number(20 + (i + 1) % kNames) + " 0 R >>");
        }
        source.object(9, "[1 " + QByteArray("0 ").repeated(kNames) + "]");
        source.object(1, "<< /Type /Catalog /Pages 2 0 R /Names << /Dests << /Names [" + names +
                             "] >> >> >>");
        const auto document = opened(merged({saved(source)}));
        QCOMPARE(namesIn(*document, "/Dests").size(), 2 * kNames);
        QVERIFY(document->getObjectCount() < 2 * kNames);
    }

    void aPlaceInTheStructureThatContainsItselfGoes() {
        const QString path = saved(
            linked({}, "/A << /S /GoTo /D [5 0 R /Fit] /SD 20 0 R >>").object(20, "[20 0 R /Fit]"));
        const QString result = merged({path});
        QCOMPARE(linkedPages(result), u"2"_s);
        QVERIFY(!PdfProbe(result).json().contains("/SD"));
    }

    void scriptsOfSeveralSourcesRunInTheOrderOfTheSources() {
        const auto scripts = [this](const char *first, const char *second) {
            return saved(
                withNames("/JavaScript", QByteArray("(") + first + ") << /S /JavaScript /JS (" +
                                             first + "1) >> (" + second +
                                             ") << /S /JavaScript /JS (" + first + "2) >>"));
        };
        const QString y = scripts("y", "\xFE\xFF\\000z");
        const QString x = scripts("x", "z");
        QCOMPARE(namesIn(*opened(merged({y}, true)), "/JavaScript").join(' '), "y z");
        const auto document = opened(merged({y, x, y}));
        QCOMPARE(namesIn(*document, "/JavaScript").join(','), "1 y,2 z,3 x,4 z,5 y,6 z");
        // The order in which readers run them is that of the bytes.
        QByteArray order;
        auto root = document->getRoot().getKey("/Names").getKey("/JavaScript");
        std::string last;
        auto pairs = root.getKey("/Names").getArrayAsVector();
        for (std::size_t i = 0; i < pairs.size(); i += 2) {
            QVERIFY(pairs[i].getStringValue() > last);
            last = pairs[i].getStringValue();
            order += pairs[i + 1].getKey("/JS").getStringValue().c_str();
        }
        QCOMPARE(order, "y1y2x1x2y1y2");
    }

    void scriptsOfOneNameInOneSourceAllRun() {
        const QString path =
            saved(withNames("/JavaScript", "(a) << /S /JavaScript /JS (1) >> (a) << /S /JavaScript "
                                           "/JS (2) >> (b) << /S /JavaScript /JS (3) >>"));
        QCOMPARE(namesIn(*opened(merged({path}, true)), "/JavaScript").join(','), "1 a,2 a,3 b");
    }

    void scriptsThatAreNotInTheOrderOfTheirNamesStayInTheirs() {
        const QString path =
            saved(withNames("/JavaScript", "(b) << /S /JavaScript /JS (1) >> (a) << /S /JavaScript "
                                           "/JS (2) >> (c) << /S /JavaScript /JS (3) >>"));
        QCOMPARE(namesIn(*opened(merged({path}, true)), "/JavaScript").join(','), "1 b,2 a,3 c");
    }

    void elevenScriptsStayInTheirOrder() {
        QByteArray names;
        for (char name = 'a'; name < 'l'; ++name) {
            names += QByteArray("(") + name + ") << /S /JavaScript /JS (1) >> ";
        }
        const QString path = saved(withNames("/JavaScript", names));
        const auto found = namesIn(*opened(merged({path, path})), "/JavaScript");
        QCOMPARE(found.size(), 22);
        QCOMPARE(found.at(1), "02 b");
        QCOMPARE(found.at(21), "22 k");
    }

    void furtherNameTreesAreMerged_data() {
        QTest::addColumn<QByteArray>("tree");
        for (const char *tree : {"/AP", "/Pages", "/Templates", "/IDS", "/URLS", "/Renditions",
                                 "/AlternatePresentations"}) {
            QTest::newRow(tree) << QByteArray(tree);
        }
    }
    void furtherNameTreesAreMerged() {
        QFETCH(QByteArray, tree);
        const QString one = savedAs(u"a.pdf"_s, withNames(tree, "(one) << /Kind /A >>"));
        const QString two =
            savedAs(u"b.pdf"_s, withNames(tree, "(one) << /Kind /B >> (two) << /Kind /B >>"));
        const auto document = opened(merged({one, two}));
        QCOMPARE(namesIn(*document, tree.constData()).join(','), "one,one (b),two");
        auto pairs = document->getRoot().getKey("/Names").getKey(tree.toStdString());
        QCOMPARE(pairs.getKey("/Names").getArrayItem(3).getKey("/Kind").getName(),
                 std::string("/B"));
    }

    void aPageThatHasANameKeepsIt() {
        const QString path = saved(withNames("/Pages", "(one) 5 0 R"));
        const auto document = opened(merged({path, path}));
        auto pairs = document->getRoot().getKey("/Names").getKey("/Pages").getKey("/Names");
        const auto &pages = document->getAllPages();
        QCOMPARE(pairs.getArrayItem(1).getObjGen(), pages.at(1).getObjGen());
        QCOMPARE(pairs.getArrayItem(3).getObjGen(), pages.at(3).getObjGen());
    }

    void manyNamesFormABalancedTree() {
        QByteArray names;
        for (int i = 0; i < 5000; ++i) {
            names += "(" + QByteArray::number(i).rightJustified(4, '0') + ") [5 0 R /Fit] ";
        }
        const QString path = savedAs(
            u"a.pdf"_s, linked("/Names << /Dests << /Names [" + names + "] >> >>", "/Dest (4999)"));
        const QString result = merged({path, path});
        QCOMPARE(linkedPages(result), u"2 4"_s);
        const auto document = opened(result);
        QCOMPARE(namesIn(*document, "/Dests").size(), 10000);
        auto root = document->getRoot().getKey("/Names").getKey("/Dests");
        QVERIFY(root.getKey("/Kids").getArrayNItems() <= 64);
    }

    void articleThreadsStandInTheOrderOfTheirSourcesWithTheirPages_data() {
        QTest::addColumn<QByteArray>("destination");
        QTest::newRow("number") << QByteArray("0");
        QTest::newRow("title") << QByteArray("<FEFF00410072007400690063006C0065>");
        QTest::newRow("thread") << QByteArray("20 0 R");
    }
    void articleThreadsStandInTheOrderOfTheirSourcesWithTheirPages() {
        QFETCH(QByteArray, destination);
        const PdfFixture source =
            linked("/Threads [20 0 R]", "/A << /S /Thread /D " + destination + " >>")
                .object(5, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /B [21 0 R] >>")
                .object(20, "<< /Type /Thread /F 21 0 R /I << /Title (Article) >> >>")
                .object(21, "<< /Type /Bead /T 20 0 R /N 21 0 R /V 21 0 R /P 5 0 R /R [0 0 9 9] "
                            ">>");
        const QString path = saved(source);
        const auto document = opened(merged({path, path}));
        auto threads = document->getRoot().getKey("/Threads");
        QCOMPARE(threads.getArrayNItems(), 2);
        const auto &pages = document->getAllPages();
        for (const std::size_t copy : {0U, 1U}) {
            auto thread = threads.getArrayItem(static_cast<int>(copy));
            QPDFObjectHandle shown = pages.at(2 * copy + 1);
            QCOMPARE(thread.getKey("/F").getKey("/P").getObjGen(), shown.getObjGen());
            QCOMPARE(shown.getKey("/B").getArrayItem(0).getKey("/T").getObjGen(),
                     thread.getObjGen());
            QPDFObjectHandle first = pages.at(2 * copy);
            auto action = first.getKey("/Annots").getArrayItem(0).getKey("/A");
            QCOMPARE(action.getKey("/D").getObjGen(), thread.getObjGen());
        }
    }

    void aThreadThatItsOwnSourceLacksIsNoneOfAnother() {
        const auto source = [this](const QByteArray &threads, const QByteArray &destination) {
            return saved(
                linked("/Threads [" + threads + "]", "/A << /S /Thread /D " + destination + " >>")
                    .object(20, "<< /Type /Thread /F 21 0 R /I << /Title (Article) >> >>")
                    .object(21, "<< /Type /Bead /T 20 0 R /N 21 0 R /V 21 0 R /P 5 0 R >>"));
        };
        const auto document =
            opened(merged({source("20 0 R", "20 0 R"), source({}, "(Article)"), source({}, "0")}));
        const auto &pages = document->getAllPages();
        for (const std::size_t page : {2U, 4U}) {
            QPDFObjectHandle linking = pages.at(page);
            auto action = linking.getKey("/Annots").getArrayItem(0).getKey("/A");
            QVERIFY(!action.hasKey("/D"));
        }
    }
};

FOLIOFORGE_TEST(NamesTest)
#include "NamesTest.moc"
