// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "NamedParts.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What documents have under names beside destinations, and their article threads.
class ScriptsAndThreadsTest : public QObject, protected MergeCase {
    Q_OBJECT

    /// A document whose catalog has a name tree `tree` with `names`.
    static PdfFixture withNames(const QByteArray &tree, const QByteArray &names) {
        return linked("/Names << " + tree + " << /Names [" + names + "] >> >>", {});
    }

  private Q_SLOTS:
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

FOLIOFORGE_TEST(ScriptsAndThreadsTest)
#include "ScriptsAndThreadsTest.moc"
