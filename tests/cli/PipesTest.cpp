// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/PhotoPage.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Inputs that come through standard input and other pipes.
class PipesTest : public QObject, CommandLineCase {
    Q_OBJECT

    [[nodiscard]] PdfProbe made(const QString &name) const {
        return PdfProbe(m_folder->filePath(u"out/"_s + name));
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void standardInputIsWhatItsBytesSay() {
        QCOMPARE(convert({u"-"_s}, readFile(writePdf(path("in.pdf"), 3))).exitCode, 0);
        QCOMPARE(made(u"stdin.pdf"_s).pageCount(), 3);
        QCOMPARE(convert({u"-"_s}, readFile(writePng(path("in.png"), 30, 20))).exitCode, 0);
        QCOMPARE(made(u"stdin(1).pdf"_s).box(u"MediaBox"_s, 1), QRectF(0, 0, 30, 20));
        QCOMPARE(convert({u"-"_s}, "words of a text\n").exitCode, 0);
        QCOMPARE(made(u"stdin(2).pdf"_s).text().simplified(), u"words of a text"_s);
    }

    void standardInputIsWhatItIsSaidToBe() {
        const QByteArray text = "%PDF- is how a PDF begins";
        QCOMPARE(convert({u"-"_s}, text).exitCode, 1);
        QCOMPARE(convert({u"--input-type=TXT"_s, u"-"_s}, text).exitCode, 0);
        QCOMPARE(made(u"stdin.pdf"_s).text().simplified(), QString::fromLatin1(text));
        // No byte of such a picture says that it is one.
        const QByteArray targa =
            runTool(u"ppmtotga"_s, {}, "P6 4 3 255\n" + QByteArray(36, 'x')).out;
        QCOMPARE(convert({u"--input-type=tga"_s, u"-"_s}, targa).exitCode, 0);
        QCOMPARE(made(u"stdin(1).pdf"_s).box(u"MediaBox"_s, 1), QRectF(0, 0, 4, 3));
        const ToolRun unknown = convert({u"--input-type=docx"_s, u"-"_s}, text);
        QCOMPARE(unknown.exitCode, 2);
        QVERIFY2(unknown.err.contains("--input-type: \"docx\" is none of txt, "),
                 unknown.err.constData());
    }

    void standardInputIsOneInputAmongOthers() {
        const ToolRun run = runTool(
            kProgram,
            {u"--merge"_s, path("all.pdf"), text("a.txt", "first"), u"-"_s, text("z.txt", "last")},
            "between");
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(PdfProbe(path("all.pdf")).text().simplified(), u"first between last"_s);
    }

    void standardInputServesOneInput() {
        for (const QString &other : {u"-"_s, u"--files-from=-"_s, u"--owner-password-file=-"_s}) {
            const ToolRun run = convert({u"-"_s, other}, "words");
            QCOMPARE(run.exitCode, 2);
            QCOMPARE(run.err, "folioforge-cli: Standard input cannot be read twice\n");
        }
    }

    void whatACommandWritesIsAnInput() {
        const QString script =
            u"\"$1\" --merge \"$2\" <(echo one) <(cat \"$3\") && ls -A \"$TMPDIR\""_s;
        QDir().mkpath(path("tmp"));
        const ToolRun run =
            runTool(u"env"_s, {u"TMPDIR="_s + path("tmp"), u"bash"_s, u"-c"_s, script, u"bash"_s,
                               kProgram, path("all.pdf"), writePdf(path("in.pdf"), 2)});
        QCOMPARE(run.exitCode, 0);
        const PdfProbe all(path("all.pdf"));
        QCOMPARE(all.pageCount(), 3);
        QCOMPARE(all.text(1).simplified(), u"one"_s);
        // Nothing is left behind it.
        QCOMPARE(QString::fromUtf8(run.out).simplified(), path("all.pdf"));
    }

    void aNamedPipeIsAnInputWhileAProgramWrites() {
        const QString script = u"mkfifo \"$2\" && (sleep 0.2; echo named >\"$2\") & sleep 0.1; "
                               "\"$1\" --merge \"$3\" \"$2\""_s;
        const ToolRun run =
            runTool(u"sh"_s, {u"-c"_s, script, u"sh"_s, kProgram, path("pipe"), path("all.pdf")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(PdfProbe(path("all.pdf")).text().simplified(), u"named"_s);
    }

    void aCommandThatWritesNothingIsAnEmptyText() {
        const ToolRun run = shell("folioforge-cli --merge all.pdf <(:)");
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(PdfProbe(path("all.pdf")).pageCount(), 1);
    }

    void aNamedPipeToWhichNoProgramWritesIsNotWaitedForLong() {
        const ToolRun run = shell("mkfifo pipe && ln -s pipe link && "
                                  "timeout 20 folioforge-cli --merge all.pdf pipe link");
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.err, "folioforge-cli: pipe: No program writes to this pipe\n"
                          "folioforge-cli: link: No program writes to this pipe\n");
    }

    void aMergedPdfGoesToStandardOutputAndNothingElse() {
        QDir().mkpath(path("tmp"));
        const ToolRun run = runTool(u"env"_s, {u"TMPDIR="_s + path("tmp"), kProgram, u"--merge=-"_s,
                                               text("a.txt", "one"), text("b.txt", "two")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.err, "");
        writeFile(path("all.pdf"), run.out);
        QCOMPARE(PdfProbe(path("all.pdf")).text().simplified(), u"one two"_s);
        QVERIFY(QDir(path("tmp")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void aRunWithoutADocumentLeavesStandardOutputEmpty() {
        const ToolRun run = runTool(kProgram, {u"--merge"_s, u"-"_s, text("a.png", "no picture")});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.out, "");
        QVERIFY(run.err.contains("a.png: "));
    }

    void aCompressedPdfGoesToStandardOutputAndItsSavingsBesideIt() {
        const QString photo = path("photo.jpg");
        QVERIFY(test::photo(1200, 900).save(photo, "JPG", 95));
        const QStringList arguments{u"--merge"_s, u"-"_s, u"--compress=72l"_s, u"--image-dpi=600"_s,
                                    photo};
        const ToolRun run = runTool(kProgram, arguments);
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.err.contains("images reduced: 1"), run.err.constData());
        QVERIFY(run.out.startsWith("%PDF-") && run.out.size() < QFileInfo(photo).size());
    }

    void aPdfThatDoesNotArriveIsAFailure() {
        const QString script = u"\"$0\" --merge - \"$1\" >/dev/full"_s;
        const ToolRun run = runTool(u"sh"_s, {u"-c"_s, script, kProgram, text("a.txt")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("Standard output cannot be written: No space left"), run.err);
    }

    void noPdfIsWrittenToATerminal() {
        const QString command = u"'%1' --merge - '%2'"_s.arg(kProgram, text("a.txt"));
        const ToolRun run = runTool(u"script"_s, {u"-qec"_s, command, u"/dev/null"_s});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.out.contains("no PDF is written to a terminal"), run.out.constData());
        QVERIFY(!run.out.contains("%PDF"));
    }

    void aPipeInAFolderIsNotWaitedFor() {
        QDir().mkpath(path("in"));
        QCOMPARE(runTool(u"mkfifo"_s, {path("in/pipe.txt")}).exitCode, 0);
        const ToolRun run = convert({path("in")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("pipe.txt: It is not a regular file"), run.err.constData());
    }
};

FOLIOFORGE_TEST(PipesTest)
#include "PipesTest.moc"
