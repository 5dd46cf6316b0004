// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "cli/OptionHelp.h"
#include "cli/OptionTable.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What users and shells read of the options.
class CompletionsTest : public QObject, CommandLineCase {
    Q_OBJECT

    /// The file that `shell` reads.
    QString completionOf(const char *shell) const {
        const ToolRun run = runTool(kProgram, {u"--completion"_s, QString::fromLatin1(shell)});
        return writeFile(path(shell), run.out);
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void theHelpIsThatOfTheOptionsThatThereAre() {
        QByteArrayList described;
        for (const HelpSection &section : optionHelp()) {
            for (const OptionHelp &option : section.options) {
                described += option.name.toByteArray();
                QCOMPARE(findOption(described.last()).kind == Option::Valued,
                         !option.value.isEmpty());
                QVERIFY(helpText().contains("\n  " + described.last()));
            }
        }
        QByteArrayList known = optionNames();
        std::ranges::sort(described);
        std::ranges::sort(known);
        QCOMPARE(described, known);
    }

    void theWordsOfTheHelpAreTaken() {
        for (const HelpSection &section : optionHelp()) {
            for (const OptionHelp &option : section.options) {
                for (const QByteArray &word : option.words()) {
                    // Some say how pictures take a page of a given size.
                    const std::vector<QByteArray> arguments{"--image-page-size=A4",
                                                            option.name.toByteArray(), word, "a"};
                    QVERIFY2(std::holds_alternative<Arguments>(parseArguments(arguments)),
                             (arguments[1] + ' ' + word).constData());
                }
            }
        }
    }

    void theManualNamesEveryOption() {
        const QString manual =
            QString::fromUtf8(readFile(inSource(u"packaging/folioforge-cli.1"_s)));
        for (const QByteArray &name : optionNames()) {
            const QByteArray entry =
                name.startsWith("--") ? "Fl Fl " + name.sliced(2) : "Fl " + name.sliced(1);
            const QRegularExpression item(u"^\\.It .*"_s + QString::fromLatin1(entry) +
                                              u"(?![a-z-])"_s,
                                          QRegularExpression::MultilineOption);
            QVERIFY2(manual.contains(item), name.constData());
        }
    }

    void theManualsFitATerminal_data() {
        QTest::addColumn<QString>("page");
        QTest::newRow("command line") << u"packaging/folioforge-cli.1"_s;
        QTest::newRow("window") << u"packaging/folioforge.1"_s;
    }
    void theManualsFitATerminal() {
        QFETCH(const QString, page);
        const ToolRun run = runTool(u"groff"_s, {u"-mandoc"_s, u"-Kutf8"_s, u"-Tutf8"_s, u"-ww"_s,
                                                 u"-rLL=80n"_s, u"-P-cbou"_s, inSource(page)});
        QCOMPARE(run.err, "");
        const QStringList lines = QString::fromUtf8(run.out).split(u'\n');
        QVERIFY(lines.size() > 20);
        for (const QString &line : lines) {
            QVERIFY2(line.size() <= 80, qPrintable(line));
        }
    }

    void theHelpBeginsWithFiveExamples() {
        const QByteArray help = runTool(kProgram, {u"--help"_s}).out;
        const QByteArray examples = help.first(help.indexOf("\nInput\n"));
        QCOMPARE(examples.mid(examples.indexOf("Examples")).count("folioforge-cli "), 5);
    }

    void bashCompletes_data() {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QByteArray>("completed");
        QTest::newRow("options") << u"--ref"_s << QByteArray("--refuse-print --refuse-copy");
        QTest::newRow("words") << u"--sort na"_s << QByteArray("name natural");
        QTest::newRow("all words") << u"--overwrite = "_s << QByteArray("never older always");
        QTest::newRow("behind an equals sign") << u"--overwrite = o"_s << QByteArray("older");
        QTest::newRow("papers") << u"--text-page-size L"_s << QByteArray("Letter Legal");
        QTest::newRow("folders") << u"--output-folder a"_s << QByteArray("a folder");
        QTest::newRow("files by the shell itself") << u"--merge a"_s << QByteArray();
    }
    void bashCompletes() {
        QFETCH(const QString, words);
        QFETCH(const QByteArray, completed);
        QVERIFY(QDir().mkpath(path("a folder")));
        text("a file");
        const QString script =
            u"cd \"$1\" && . ./bash && read -ra given <<<\"$2\" && COMP_WORDS=(folioforge-cli "
            "\"${given[@]}\") && if [[ $2 == *' ' ]]; then COMP_WORDS+=(''); fi && "
            "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)) && _folioforge_cli && "
            "echo -n \"${COMPREPLY[*]}\""_s;
        completionOf("bash");
        const ToolRun run =
            runTool(u"bash"_s, {u"-c"_s, script, u"bash"_s, m_folder->path(), words});
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(run.out, completed);
    }

    void fishCompletes() {
        const QString script =
            u"source $argv[1]; complete -C 'folioforge-cli --sort na'; complete -C "
            "'folioforge-cli --refuse-c'"_s;
        const ToolRun run =
            runTool(u"fish"_s, {u"--no-config"_s, u"-c"_s, script, completionOf("fish")});
        QVERIFY2(run.exitCode == 0, run.err.constData());
        const QByteArrayList lines = run.out.trimmed().split('\n');
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0].split('\t').first(), "name");
        QCOMPARE(lines[1].split('\t').first(), "natural");
        QCOMPARE(lines[2].split('\t').first(), "--refuse-copy");
    }

    void bashQuotesBlanksInFolders() {
        QVERIFY(QDir().mkpath(path("a folder")));
        completionOf("bash");
        const QByteArray said = typed("bash --norc --noprofile -i",
                                      u"PS1= && cd '%1' && . ./bash"_s.arg(m_folder->path()),
                                      u"folioforge-cli --output-folder a"_s, u"folder/"_s);
        QVERIFY2(said.contains("a\\ folder/"), said);
    }

    void zshCompletes_data() {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("completed");
        QTest::newRow("word") << u"--sort nat"_s << u"natural"_s;
        QTest::newRow("folder") << u"--output-folder a"_s << u"a\\ folder"_s;
        QTest::newRow("option once more") << u"a.pdf --pages 1 b.pdf --pag"_s << u"b.pdf --pages"_s;
    }
    void zshCompletes() {
        QFETCH(const QString, words);
        QFETCH(const QString, completed);
        QVERIFY(QDir().mkpath(path("functions")) && QDir().mkpath(path("a folder")));
        QVERIFY(QFile::copy(completionOf("zsh"), path("functions/_folioforge-cli")));
        const QByteArray said = typed(
            "zsh -f -i",
            u"PS1=; unsetopt zle_bracketed_paste; cd '%1'; fpath=($PWD/functions $fpath); "
            "autoload -U compinit; compinit -u -D; compdef _folioforge-cli folioforge-cli"_s.arg(
                m_folder->path()),
            u"folioforge-cli "_s + words, completed);
        QVERIFY2(said.contains(completed.toUtf8()), said);
    }

  private:
    /// What a terminal shows where `shell` runs `before`, and then `words` and the Tab key are
    /// typed, until it shows `awaited`.
    QByteArray typed(const char *shell, const QString &before, const QString &words,
                     const QString &awaited) const {
        const QString script = u"zmodload zsh/zpty; zpty -e z $1; zpty -w z \"$2; echo rea''dy\"; "
                               "zpty -r z said '*ready*'; zpty -w -n z $3$'\\t'; all=; "
                               "for i in {1..100}; do sleep 0.1; zpty -r -t z said && all+=$said; "
                               "[[ $all == *$4* ]] && break; done; echo -n $all; zpty -d z"_s;
        const ToolRun run =
            runTool(u"timeout"_s, {u"20"_s, u"zsh"_s, u"-f"_s, u"-c"_s, script, u"zsh"_s,
                                   QString::fromLatin1(shell), before, words, awaited});
        return run.out + run.err;
    }
};

FOLIOFORGE_TEST(CompletionsTest)
#include "CompletionsTest.moc"
