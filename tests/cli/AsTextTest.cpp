// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "filelist/FileKind.h"
#include "support/TestUnit.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Files of other endings than ".txt" as text.
class AsTextTest : public QObject, CommandLineCase {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }

    void filesOfOtherEndingsAreTexts_data() {
        QTest::addColumn<QString>("name");
        for (const char *name : {"a.md", "a.log", "a.csv", "a.tsv", "a.json", "a.xml", "a.c",
                                 "a.PY", "Makefile", "README"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }
    void filesOfOtherEndingsAreTexts() {
        QFETCH(const QString, name);
        const QString file = writeFile(m_folder->filePath(name), "word,word");
        QCOMPARE(merge("out.pdf", {u"--as-text"_s, file}).exitCode, 0);
        QCOMPARE(PdfProbe(path("out.pdf")).text().trimmed(), u"word,word"_s);
    }

    void withoutTheOptionTheyAreRefused() {
        const ToolRun run = merge("out.pdf", {text("a.md")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(
            run.err.contains("a.md: It is not a recognised type; --as-text takes it as a text"),
            run.err);
        const ToolRun other = merge("out.pdf", {text("a.mdx"), path("missing.md")});
        QVERIFY2(!other.err.contains("--as-text"), other.err);
    }

    void whatIsNoTextIsStillRefused() {
        const ToolRun run =
            merge("out.pdf", {u"--as-text"_s, text("a.zip"), text("data"), text("sed")});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.err.count("It is not a recognised type"), qsizetype{3});
    }

    void foldersGiveThemToo() {
        QVERIFY(QDir().mkpath(path("in")));
        for (const char *name : {"in/b.md", "in/a.log", "in/c.txt", "in/d.zip"}) {
            text(name, name);
        }
        const ToolRun run = merge("out.pdf", {u"--as-text"_s, path("in")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.err.contains("Left out: 1 file of another type"), run.err);
        const QString words = PdfProbe(path("out.pdf")).text().remove(u'\f').simplified();
        QCOMPARE(words, u"in/a.log in/b.md in/c.txt"_s);
    }

    void headersNameTheWholeFile() {
        const ToolRun run = merge("out.pdf", {u"--as-text"_s, u"--text-layout=readable"_s,
                                              u"--header={file}"_s, text("main.c")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(PdfProbe(path("out.pdf")).text().startsWith(u"main.c"_s));
    }

    void theManualListsEachOfThem() {
        const QString manual =
            QString::fromUtf8(readFile(inSource(u"packaging/folioforge-cli.1"_s)));
        static const QRegularExpression list(u"\\.It Fl Fl as-text\n.*?\\.Bd[^\n]*\n(.*?)\\.Ed"_s,
                                             QRegularExpression::DotMatchesEverythingOption);
        const QStringList named = list.match(manual).captured(1).simplified().split(u' ');
        QCOMPARE(named, furtherTexts());
        QVERIFY(manual.contains(u"last %1 of them also as names"_s.arg(furtherTextNames().size())));
    }
};

FOLIOFORGE_TEST(AsTextTest)
#include "AsTextTest.moc"
