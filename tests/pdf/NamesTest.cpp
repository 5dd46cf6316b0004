// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "NamedParts.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What documents refer to by name: it keeps its name where nothing clashes, and leads to what it
/// led to in its source.
class NamesTest : public QObject, protected MergeCase {
    Q_OBJECT

    /// A document whose name tree has `name` for its second page and whose link leads to `target`.
    static PdfFixture withTree(const QByteArray &name, const QByteArray &target) {
        return linked("/Names << /Dests << /Names [" + name + " [5 0 R /Fit]] >> >>",
                      "/Dest " + target);
    }
    static PdfFixture withDictionary(const QByteArray &name, const QByteArray &target) {
        return linked("/Dests << " + name + " << /D [5 0 R /XYZ 0 50 null] >> >>",
                      "/Dest " + target);
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
        const QString result = mergedOfOdd({path, path});
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
};

FOLIOFORGE_TEST(NamesTest)
#include "NamesTest.moc"
