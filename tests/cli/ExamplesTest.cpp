// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/PhotoPage.h"
#include "support/TestUnit.h"

#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The lines of `pattern`'s first group in a file of the source tree.
QStringList linesIn(const QString &file, const QString &pattern) {
    QStringList lines;
    const QString text = QString::fromUtf8(readFile(inSource(file)));
    const QRegularExpression line(pattern, QRegularExpression::MultilineOption);
    for (auto match = line.globalMatch(text); match.hasNext();) {
        lines += match.next().captured(1);
    }
    return lines;
}

} // namespace

/// The examples of README, guide, manual and help, as they are written.
class ExamplesTest : public QObject, CommandLineCase {
    Q_OBJECT

    /// What the examples speak of, as users have it.
    void makeInputs() const {
        for (const char *folder : {"scans", "photos", "pages", "src", "archive/1999"}) {
            QVERIFY(QDir().mkpath(path(folder)));
        }
        for (const char *name :
             {"notes.txt", "cover.txt", "offer.txt", "pages/page2.txt", "pages/page10.txt",
              "scans/page1.txt", "README.md", "src/main.c"}) {
            text(name);
        }
        text("secret", "a password\n");
        for (const char *name : {"part.pdf", "part2.pdf"}) {
            writePdf(path(name), 2);
        }
        for (const char *name : {"a.jpg", "photos/b.jpg"}) {
            QVERIFY(test::photo(600, 400).save(path(name), "JPG", 90));
        }
        for (const char *name : {"c.tif", "scans/d.tif", "archive/1999/e.tif"}) {
            QVERIFY(QFile::copy(inSource(u"tests/data/image/bilevel-g4.tif"_s), path(name)));
        }
        QCOMPARE(runTool(u"git"_s, {u"-C"_s, m_folder->path(), u"init"_s, u"-q"_s}).exitCode, 0);
        QCOMPARE(runTool(u"git"_s, {u"-C"_s, m_folder->path(), u"-c"_s, u"user.name=A"_s, u"-c"_s,
                                    u"user.email=a@example.com"_s, u"commit"_s, u"-q"_s,
                                    u"--allow-empty"_s, u"-m"_s, u"First"_s})
                     .exitCode,
                 0);
    }

    QTemporaryDir m_prefix;
    QString installedPrograms() const {
#ifdef Q_OS_MACOS
        return m_prefix.filePath(u"Folioforge.app/Contents/MacOS"_s);
#else
        return m_prefix.filePath(u"bin"_s);
#endif
    }

  private Q_SLOTS:
    void initTestCase() {
        const ToolRun run =
            runTool(u"cmake"_s, {u"--install"_s, inBuild({}), u"--prefix"_s, m_prefix.path()});
        QVERIFY2(run.exitCode == 0, run.err.constData());
    }
    void init() {
        setUp();
    }

    void anInstallationHasManualsAndCompletions() {
        for (const char *file : {"share/bash-completion/completions/folioforge-cli",
                                 "share/zsh/site-functions/_folioforge-cli",
                                 "share/fish/vendor_completions.d/folioforge-cli.fish"}) {
            QVERIFY2(QFileInfo(m_prefix.filePath(QLatin1StringView(file))).size() > 0, file);
        }
#ifndef Q_OS_MACOS
        const ToolRun page = runTool(
            u"gzip"_s, {u"-dc"_s, m_prefix.filePath(u"share/man/man1/folioforge-cli.1.gz"_s)});
        QVERIFY(page.out.contains(".Nm folioforge-cli"));
#endif
    }

    void everyExampleWorksAsItIsWritten_data() {
        QTest::addColumn<QString>("example");
        const auto rows = [](const char *source, const QStringList &examples) {
            for (const QString &example : examples) {
                QTest::addRow("%s: %s", source, qPrintable(example)) << example;
            }
            return examples.size();
        };
        const QString block = u"^((?:[^`\n]*\\| )?folioforge-cli [^`\n]*)$"_s;
        const QString behindPipe = u"^(find .*folioforge-cli .*)$"_s;
        QVERIFY(rows("guide", linesIn(u"docs/guide.md"_s, block)) > 8);
        QCOMPARE(rows("README", linesIn(u"README.md"_s, block)), 10);
        QVERIFY(rows("README", linesIn(u"README.md"_s, behindPipe)) > 0);
        QVERIFY(rows("manual", linesIn(u"packaging/folioforge-cli.1"_s, u"^\\.Dl (.*)$"_s)) > 3);
        // Behind the command stands what it does.
        QCOMPARE(rows("help", linesIn(u"src/cli/Help.cpp"_s,
                                      u"^  ((?:\\S.*\\| )?folioforge-cli .*?)   *\\S[^-]*$"_s)),
                 5);
    }

    void everyExampleWorksAsItIsWritten() {
        QFETCH(const QString, example);
        makeInputs();
        const ToolRun run = shell(example.toUtf8(), installedPrograms());
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QVERIFY(!run.out.contains("look at what is named above")); // What an example says else.
    }
};

FOLIOFORGE_TEST(ExamplesTest)
#include "ExamplesTest.moc"
