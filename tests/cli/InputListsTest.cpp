// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Where inputs come from beside the arguments: lists of names, and what stands in folders.
class InputListsTest : public QObject, CommandLineCase {
    Q_OBJECT

    /// A text in `name`, whose folder is made, that says its own name.
    QByteArray named(const char *name) const {
        const QString file = path(name);
        QDir().mkpath(QFileInfo(file).path());
        return QFile::encodeName(writeFile(file, name));
    }
    /// What the pages of the document at `name` say, in their order.
    QStringList pages(const char *name) const {
        const PdfProbe probe(path(name));
        QStringList said;
        for (int page = 1; page <= probe.pageCount(); ++page) {
            said += probe.text(page).simplified();
        }
        return said;
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void aListOfNamesStandsWhereItIsNamed() {
        const QString list = text("list", named("2.txt") + '\n' + named("3.txt") + "\n\n");
        const ToolRun run = merge("all.pdf", {QFile::decodeName(named("1.txt")), u"--files-from"_s,
                                              list, QFile::decodeName(named("4.txt"))});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(pages("all.pdf"), (QStringList{u"1.txt"_s, u"2.txt"_s, u"3.txt"_s, u"4.txt"_s}));
    }

    void namesThatEndInNullMayHoldLines_data() {
        QTest::addColumn<QString>("option");
        QTest::newRow("short") << u"-0"_s;
        QTest::newRow("long") << u"--null"_s;
    }
    void namesThatEndInNullMayHoldLines() {
        QFETCH(const QString, option);
        const QByteArray names = named("b\nb.txt") + '\0' + named("a.txt") + '\0';
        const ToolRun run = convert({option, u"--files-from=-"_s, u"--json"_s}, names);
        QCOMPARE(run.exitCode, 0);
        const QList<QJsonObject> objects = objectsOf(run.out);
        QCOMPARE(objects.size(), 2);
        QCOMPARE(member(objects.first(), "input"), path("b\nb.txt"));
    }

    void pagesStayWithTheirPdfBehindAList() {
        const ToolRun run = merge("three.pdf", {QFile::decodeName(named("1.txt")),
                                                QFile::decodeName(named("2.txt")),
                                                QFile::decodeName(named("3.txt"))});
        QCOMPARE(run.exitCode, 0);
        const QString list = text("list", named("a.txt") + '\n' + named("b.txt"));
        const QStringList arguments{u"--files-from"_s, list,     path("three.pdf"),
                                    u"--pages"_s,      u"3,1"_s, u"--rotate=+90:1"_s};
        QCOMPARE(merge("all.pdf", arguments).exitCode, 0);
        QCOMPARE(pages("all.pdf"), (QStringList{u"a.txt"_s, u"b.txt"_s, u"3.txt"_s, u"1.txt"_s}));
        QCOMPARE(PdfProbe(path("all.pdf")).render(3).size(), QSize(842, 595));
    }

    void pagesAreChosenOfPdfsAlone() {
        const QString file = QFile::decodeName(named("a.txt"));
        for (const QString &input : {file, path("")}) {
            const ToolRun run = merge("none.pdf", {input, u"--pages=1"_s});
            QCOMPARE(run.exitCode, 1);
            QVERIFY(run.err.contains("Pages are chosen and turned of PDFs alone"));
        }
        const ToolRun before = merge("none.pdf", {u"--pages=1"_s, file});
        QCOMPARE(before.exitCode, 2);
        QVERIFY(before.err.contains("--pages: It stands behind the PDF whose pages it means"));
    }

    void filesOfAMergeHaveBookmarks_data() {
        QTest::addColumn<QString>("kinds");
        QTest::addColumn<QByteArrayList>("titles");
        QTest::newRow("sources") << u"sources"_s << QByteArrayList{"inner", "2"};
        QTest::newRow("files") << u"files"_s << QByteArrayList{"1", "inner", "Last"};
        QTest::newRow("both") << u"both"_s << QByteArrayList{"1", "inner", "inner", "2", "Last"};
        QTest::newRow("none") << u"none"_s << QByteArrayList();
    }

    void filesOfAMergeHaveBookmarks() {
        QFETCH(const QString, kinds);
        QFETCH(const QByteArrayList, titles);
        const QStringList files{QFile::decodeName(named("inner.txt")),
                                QFile::decodeName(named("2.txt"))};
        QCOMPARE(merge("inner.pdf", files + QStringList{u"--bookmarks=files"_s}).exitCode, 0);
        QStringList arguments{QFile::decodeName(named("1.txt")), path("inner.pdf"),
                              QFile::decodeName(named("3.txt")), u"--bookmarks"_s, kinds};
        if (kinds == u"files" || kinds == u"both") {
            arguments += {u"--bookmark-titles"_s, text("titles", "\n\nLast\n")};
        }
        QCOMPARE(merge("all.pdf", arguments).exitCode, 0);
        QVERIFY(PdfProbe(path("all.pdf")).isValid());
        QByteArrayList found;
        const QByteArray outline = outlineOf("all.pdf");
        for (const QByteArray &line : outline.split('\n')) {
            if (line.count('"') >= 2) {
                found += line.split('"').at(1);
            }
        }
        QCOMPARE(found, titles);
        if (kinds == u"both") {
            QVERIFY(outline.contains("\"2\"\t#page=3"));
            QVERIFY(outline.contains("\"Last\"\t#page=4"));
        }
    }

    void titlesOfBookmarksComeFromStandardInput() {
        const QStringList arguments{QFile::decodeName(named("1.txt")), u"--bookmarks=files"_s,
                                    u"--bookmark-titles=-"_s};
        const ToolRun run = merge("one.pdf", arguments, "From a pipe\n");
        QCOMPARE(run.exitCode, 0);
        const QByteArray outline = outlineOf("one.pdf");
        QVERIFY2(outline.contains("\"From a pipe\""), outline.constData());
    }

    void aFileOfTitlesThatIsNotThereIsNamed() {
        const ToolRun run = convert({QFile::decodeName(named("1.txt")), u"--bookmarks=files"_s,
                                     u"--bookmark-titles"_s, path("none")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.startsWith("folioforge-cli: --bookmark-titles: \"") &&
                     run.err.endsWith("cannot be read: No such file or directory\n"),
                 run.err.constData());
    }

    void aFileThatIsNotThereIsNamedAsItIsCalled() {
        const ToolRun run = convert({u"--files-from"_s, u"/none/a%1%2%3.txt"_s});
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.err,
                 "folioforge-cli: --files-from: \"/none/a%1%2%3.txt\" cannot be read: No such "
                 "file or directory\n");
    }

    void standardInputServesOneList() {
        for (const QStringList &arguments :
             {QStringList{u"--files-from=-"_s, u"--files-from=-"_s},
              QStringList{u"--files-from=-"_s, u"--bookmarks=files"_s, u"--bookmark-titles=-"_s},
              QStringList{u"--files-from=-"_s, u"--user-password-file=-"_s}}) {
            const ToolRun run = convert(arguments, named("a.txt"));
            QCOMPARE(run.exitCode, 2);
            QCOMPARE(run.err, "folioforge-cli: Standard input cannot be read twice\n");
        }
        QCOMPARE(outputs(), QStringList());
    }

    void whatCannotBeReadTwiceIsNotReadOnce() {
        const ToolRun run = shell("printf 'left\\n' | (folioforge-cli --files-from - "
                                  "--owner-password-file - --merge out.pdf; cat)");
        QCOMPARE(run.out, "left\n");
        QCOMPARE(run.err, "folioforge-cli: Standard input cannot be read twice\n");
    }

    void aListCannotNameWhatItIsReadFrom() {
        const ToolRun run = convert({u"--files-from=-"_s}, "-\n");
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.err, "folioforge-cli: Standard input cannot be read twice\n");
    }

    void linesMayEndAsOnWindows() {
        const QByteArray names = named("a.txt") + "\r\n" + named("b.txt") + "\r\n\r\n";
        QCOMPARE(convert({u"--files-from=-"_s}, names).exitCode, 0);
        QCOMPARE(outputs(), (QStringList{u"a.pdf"_s, u"b.pdf"_s}));
    }

    void aListOfNamesThatEndInNullIsNotTakenForLines() {
        const ToolRun run = convert({u"--files-from=-"_s}, named("a.txt") + '\0' + named("b.txt"));
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.err, "folioforge-cli: --files-from: \"-\" holds null bytes; -0 reads names "
                          "that end in them\n");
    }

    void aFolderIsNoList() {
        const ToolRun run = convert({u"--files-from"_s, m_folder->path()});
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.err, "folioforge-cli: --files-from: \"" + m_folder->path().toUtf8() +
                              "\" is a folder, not a list of names; a folder is an input itself\n");
    }

    void aListThatCannotBeReadIsNamed() {
        const ToolRun run = convert({u"--files-from"_s, path("nowhere")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains("nowhere"), run.err.constData());
    }

    void anEmptyListIsNoInput() {
        const ToolRun run = convert({u"--files-from=-"_s});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.err, "folioforge-cli: There is no file to convert\n");
    }

    void foldersInFoldersAreTakenInTheOrderOfTheirNames() {
        for (const char *name : {"in/b.txt", "in/a/2.txt", "in/a/1.txt", "in/c/deep/x.txt"}) {
            named(name);
        }
        writePdf(path("in/a/left.pdf"), 1);
        QVERIFY(QFile::link(path("in"), path("in/c/round")));
        const ToolRun run = merge("all.pdf", {u"--recursive"_s, path("in")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(pages("all.pdf"), (QStringList{u"in/a/1.txt"_s, u"in/a/2.txt"_s, u"in/b.txt"_s,
                                                u"in/c/deep/x.txt"_s}));
        QVERIFY2(run.err.contains("in/a: warning: Left out: 1 PDF\n"), run.err.constData());
        QVERIFY2(run.err.contains("in/c: warning: Left out: 1 folder\n"), run.err.constData());
    }

    void thePdfsOfAFolderAreTakenOnRequest() {
        named("in/b.txt");
        writePdf(path("in/a.pdf"), 2);
        const ToolRun run = merge("all.pdf", {u"--with-pdfs"_s, path("in")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.err, "");
        QCOMPARE(pages("all.pdf"), (QStringList{QString(), QString(), u"in/b.txt"_s}));
    }

    void aMistypedOptionIsAnsweredWithTheNearest_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QByteArray>("meant");
        QTest::newRow("letter left out") << u"--merg"_s << QByteArray("; is \"--merge\" meant?");
        QTest::newRow("letters changed")
            << u"--files-form=x"_s << QByteArray("; is \"--files-from\" meant?");
        QTest::newRow("words of longer ones")
            << u"--margins"_s
            << QByteArray("; is \"--text-margins\" or \"--image-margins\" meant?");
        QTest::newRow("first word")
            << u"--output"_s << QByteArray("; is \"--output-folder\" meant?");
        QTest::newRow("part of a word") << u"--a"_s << QByteArray();
        QTest::newRow("dashes alone") << u"---"_s << QByteArray();
        QTest::newRow("nothing near") << u"--zebra"_s << QByteArray();
        QTest::newRow("short") << u"-1"_s << QByteArray();
    }
    void aMistypedOptionIsAnsweredWithTheNearest() {
        QFETCH(const QString, typed);
        QFETCH(const QByteArray, meant);
        const ToolRun run = convert({typed, u"a.txt"_s});
        QCOMPARE(run.exitCode, 2);
        const QByteArray name = typed.section(u'=', 0, 0).toUtf8();
        QVERIFY2(run.err.startsWith("folioforge-cli: There is no option \"" + name + "\"" + meant +
                                    "\n"),
                 run.err.constData());
    }
};

FOLIOFORGE_TEST(InputListsTest)
#include "InputListsTest.moc"
