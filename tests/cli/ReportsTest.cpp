// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/Files.h"
#include "support/PdfFixture.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

#include <algorithm>

#include <sys/stat.h>
#ifdef __linux__
#include <linux/capability.h>
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What the program says about its inputs and its progress.
class ReportsTest : public QObject, protected CommandLineCase {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }

    void marginsNeedRoomOnlyOnAPageAsItLies() {
        const ToolRun run =
            convert({u"--image-page-size=100x400"_s, u"--image-orientation=landscape"_s,
                     u"--image-margins=0,100"_s, writePng(path("a.png"), 3, 3)});
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(PdfProbe(path("out/a.pdf")).box(u"MediaBox"_s, 1), QRectF(0, 0, 400, 100));
    }

    void wrongSettingsAreNamedByTheirOptionAndNothingIsWritten_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("fault");
        const auto row = [](const char *name, const char *arguments, const char *fault) {
            QTest::newRow(name) << QString::fromLatin1(arguments).split(u' ') << QByteArray(fault);
        };
        row("text margin", "--text-margins=257",
            "--text-margins: The top margin has 257 points; a margin has 0 to 256\n");
        row("image margin", "--image-margins=0,0,0,-1",
            "--image-margins: The left margin has -1 points; a margin has 0 to 256\n");
        row("text width", "--text-page-size=100x500",
            "--text-margins: The margins left and right have 144 points together; the page is 100 "
            "points wide\n");
        row("image height", "--image-page-size=100x40 --image-margins=20,0",
            "--image-margins: The margins above and below have 40 points together; the page is 40 "
            "points high\n");
        row("image height of a page that a picture may turn",
            "--image-page-size=100x400 --image-orientation=auto --image-margins=50,0",
            "--image-margins: The margins above and below have 100 points together; the page is "
            "100 points high\n");
        row("image width of a page on its side",
            "--image-page-size=400x100 --image-orientation=portrait --image-margins=0,50",
            "--image-margins: The margins left and right have 100 points together; the page is "
            "100 points wide\n");
        row("type of no standard input", "--input-type=tga",
            "--input-type says what standard input is, and \"-\" is none of the inputs\n");
        row("empty password", "--user-password-file=/dev/null",
            "--user-password-file: The password is empty\n");
        row("folder without a name",
            "--output-folder=", "--output-folder: \"\" is no folder; \".\" is the current one\n");
        row("folder in none", "--output-folder=/nonexistent/deeper",
            "--output-folder: \"/nonexistent/deeper\" is not made, as the folder for it, "
            "\"/nonexistent\", is missing\n");
        row("no folder", "--output-folder=/dev/null",
            "--output-folder: \"/dev/null\" is not a folder\n");
    }

    void wrongSettingsAreNamedByTheirOptionAndNothingIsWritten() {
        QFETCH(const QStringList, arguments);
        QFETCH(const QByteArray, fault);
        const ToolRun run = convert(arguments + QStringList{text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.startsWith("folioforge-cli: " + fault), run.err.constData());
        QVERIFY(run.out.isEmpty());
        QVERIFY(outputs().isEmpty());
    }

    void aMissingOutputFolderIsMade() {
        const QString folder = path("made/");
        const ToolRun run = runTool(kProgram, {u"--output-folder"_s, folder, text("a.txt")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out, path("made/a.pdf").toUtf8() + '\n');
        QCOMPARE(PdfProbe(path("made/a.pdf")).pageCount(), 1);
    }

    void aMergeIntoAMissingFolderNamesIt() {
        const ToolRun run = merge("nowhere/all.pdf", {text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.err, "folioforge-cli: --merge: There is no folder \"" +
                              path("nowhere").toUtf8() + "\"\n");
        QVERIFY(!QFile::exists(path("nowhere")));
    }

    void aMergeIntoAFolderIsRefused_data() {
        QTest::addColumn<QString>("target");
        QTest::newRow("here") << u"."_s;
        QTest::newRow("above") << u".."_s;
        QTest::newRow("a folder's own name") << u"./."_s;
        QTest::newRow("a folder's parent") << u"out/.."_s;
        QTest::newRow("a path without a name") << u"out/"_s;
    }

    void aMergeIntoAFolderIsRefused() {
        QFETCH(const QString, target);
        QProcess process;
        process.setWorkingDirectory(path("out"));
        process.start(kProgram, {u"--merge"_s, target, text("a.txt")});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 2);
        QCOMPARE(process.readAllStandardError().split('\n').first(),
                 "folioforge-cli: --merge: \"" + target.toUtf8() +
                     "\" is a folder, not the name of a PDF");
        QVERIFY(outputs().isEmpty());
    }

    void anUnknownOptionGetsAHint() {
        const ToolRun run = convert({u"--colour"_s, text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.contains("--colour") && run.err.contains("--help"));
        QVERIFY(outputs().isEmpty());
    }

    void everyBadInputIsNamedWithItsReasonAndTheRestConverted() {
        QVERIFY(QDir(m_folder->path()).mkpath(u"folder.png"_s));
        QCOMPARE(::mkfifo(qPrintable(path("pipe.txt")), 0600), 0);
        QCOMPARE(::mkfifo(qPrintable(path("pipe.pdf")), 0600), 0);
        const QString png = test::writePng(path("whole.png"), 50, 50);
        const QStringList bad{path("missing.txt"),
                              path("pipe.txt"),
                              path("pipe.pdf"),
                              u"/dev/zero"_s,
                              text("a.docx"),
                              text("noextension"),
                              text("empty.png", {}),
                              text("empty.pdf", {}),
                              text("text.png", "no image"),
                              text("cut.png", readFile(png).first(60))};
        const ToolRun run = convert(bad + QStringList{path("folder.png"), text("good.txt")});
        QCOMPARE(run.exitCode, 1);
        const QList<QByteArray> lines = run.err.split('\n');
        for (const QString &file : bad) {
            const QByteArray start = "folioforge-cli: " + file.toUtf8() + ": ";
            const auto names = [&start](const QByteArray &line) {
                return line.startsWith(start) && line.size() > start.size();
            };
            QVERIFY2(std::any_of(lines.begin(), lines.end(), names), qPrintable(file));
        }
        QCOMPARE(outputs(), QStringList{u"good.pdf"_s});
    }

    void aRefusedPdfIsNamedOnceWithItsReason() {
        const QString plain = test::writePdf(path("plain.pdf"), 1);
        const QString locked = test::encryptPdf(plain, path("locked.pdf"), u"secret"_s);
        const ToolRun run = convert({locked, plain});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.err.count('\n'), 1);
        QVERIFY2(run.err.startsWith("folioforge-cli: " + locked.toUtf8() + ": "), run.err);
        QCOMPARE(outputs(), QStringList{u"plain.pdf"_s});
    }

    void aTextThatIsNotUtf8IsConvertedWithAWarning() {
        const ToolRun run = convert({text("a.txt", "caf\xE9")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.err.contains("warning") && run.err.contains("UTF-8"));
        QCOMPARE(PdfProbe(path("out/a.pdf")).pageCount(), 1);
    }

    void aWarningFailsAStrictRunAndKeepsThePdf() {
        QCOMPARE(convert({u"--strict"_s, text("good.txt")}).exitCode, 0);
        QCOMPARE(convert({u"--strict"_s, text("a.txt", "caf\xE9")}).exitCode, 1);
        QCOMPARE(PdfProbe(path("out/a.pdf")).pageCount(), 1);
    }

    void aFailureIsSaidBesideAWarning() {
        const QString script =
            u"trap '' XFSZ; ulimit -f 0; exec \"$0\" --json --merge \"$1\" \"$2\""_s;
        const ToolRun run = runTool(
            u"sh"_s, {u"-c"_s, script, kProgram, path("out/all"), text("a.txt", "caf\xE9")});
        QCOMPARE(run.exitCode, 1);
        const QJsonObject object = objectsOf(run.out).value(0);
        const QString message = member(object, "message");
        QVERIFY2(message.contains(u"File too large"_s), qPrintable(message));
        QVERIFY2(run.err.contains(message.toUtf8()), run.err.constData());
        const QJsonObject warning = object[u"warnings"_s].toArray().at(0).toObject();
        QCOMPARE(member(warning, "code"), u"text-not-utf8"_s);
        QVERIFY2(run.err.contains(member(warning, "text").toUtf8()), run.err.constData());
    }

    void nothingToConvertIsAFailure() {
        QCOMPARE(convert({path("missing.txt")}).exitCode, 1);
        QVERIFY(QDir(m_folder->path()).mkpath(u"empty"_s));
        const ToolRun run = convert({path("empty")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(!run.err.isEmpty());
    }

    void jsonTellsHowEachInputWent() {
        const ToolRun run =
            convert({u"--json"_s, text("a.txt"), path("missing.png"),
                     test::writePng(path("b.png"), 30, 20), test::writePdf(path("c.pdf"), 2)});
        QCOMPARE(run.exitCode, 1);
        const auto objects = objectsOf(run.out);
        QCOMPARE(objects.size(), 4);
        QCOMPARE(member(objects[1], "input"), path("missing.png"));
        QCOMPARE(member(objects[1], "state"), u"rejected"_s);
        QVERIFY(!member(objects[1], "message").isEmpty());
        QCOMPARE(member(objects[0], "output"), path("out/a.pdf"));
        QCOMPARE(member(objects[0], "state"), u"finished"_s);
        QVERIFY(!objects[0].contains(u"message"_s));
        QVERIFY(!objects[0].contains(u"embedded"_s));
        QVERIFY(!member(objects[2], "embedded").isEmpty());
        QCOMPARE(objects[3][u"pages"_s].toInt(), 2);
    }

    void jsonCountsWhatAPdfBringsAndWhatNot() {
        PdfFixture source;
        source
            .object(1, "<< /Type /Catalog /Pages 2 0 R /OutputIntents [<< >> << >>] /AcroForm << "
                       "/Fields [<< >>] /XFA (a) >> >>")
            .pages(4, 1)
            .object(4,
                    "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 9 9] /Annots [<< /Subtype /Link "
                    "/Rect [0 0 9 9] >>] >>");
        QVERIFY(source.write(path("a.pdf")));
        const ToolRun run = merge("all", {u"--json"_s, path("a.pdf"), text("b.txt")});
        const auto objects = objectsOf(run.out);
        QCOMPARE(objects.size(), 2);
        QCOMPARE(objects[0][u"carried"_s].toObject(),
                 (QJsonObject{{u"fields"_s, 1}, {u"links"_s, 1}}));
        QCOMPARE(objects[0][u"left"_s].toObject(),
                 (QJsonObject{{u"output-intents"_s, 2}, {u"xfa-form"_s, 1}}));
        QVERIFY(!objects[1].contains(u"carried"_s));
    }

    void jsonOfAMergeNamesTheOnePdfForEach() {
        const ToolRun run =
            merge("out/all", {u"--json"_s, text("a.txt"), text("c.png", "x"), text("b.txt")});
        QCOMPARE(run.exitCode, 1);
        const auto objects = objectsOf(run.out);
        QCOMPARE(objects.size(), 3);
        QCOMPARE(member(objects[0], "output"), path("out/all.pdf"));
        QCOMPARE(member(objects[1], "input"), path("c.png"));
        QCOMPARE(member(objects[2], "output"), path("out/all.pdf"));
    }

    void quietLeavesOnlyErrors() {
        const ToolRun run =
            convert({u"--quiet"_s, u"--progress=always"_s, text("a.txt"), path("missing.txt")});
        QVERIFY(run.out.isEmpty());
        QCOMPARE(run.err.count('\n'), 1);
        QVERIFY(run.err.contains("missing.txt"));
    }

    void progressIsShownOnRequestAndTakenAwayAtTheEnd() {
        const ToolRun quiet = convert({text("a.txt")});
        QVERIFY(quiet.err.isEmpty());
        const ToolRun run = convert({u"--progress=always"_s, text("b.txt")});
        QVERIFY(run.err.contains("1 of 1  100 %"));
        QVERIFY(run.err.endsWith("\r\033[K"));
    }

    void aLongNameInProgressIsCutToItsLastColumns_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("shown"); // 48 columns.
        const auto row = [](const char *tag, const QString &character, int count, int shown) {
            const QString end = u".txt"_s;
            QTest::newRow(tag) << character.repeated(count) + end
                               << character.repeated(shown) + end;
        };
        row("letters", u"a"_s, 60, 44);
        row("wide", u"\u3042"_s, 60, 22);
        row("wide, of two code units", u"\U0001F600"_s, 40, 22);
        row("of unknown width", u"\u0378"_s, 40, 22);
        row("with a mark on each", u"e\u0301"_s, 60, 44);
        row("spelled out", u"\x1b"_s, 60, 11);
        QTest::newRow("wide across the edge")
            << QString(60, u'\u3042') + u"x.txt"_s << QString(21, u'\u3042') + u"x.txt"_s;
        QTest::newRow("a mark at the edge")
            << QString(9, u'b') + u"e\u0301"_s + QString(44, u'a') + u".txt"_s
            << QString(44, u'a') + u".txt"_s;
    }

    void aLongNameInProgressIsCutToItsLastColumns() {
        QFETCH(QString, name);
        QFETCH(QString, shown);
        const QString file = writeFile(m_folder->filePath(name), "words");
        const ToolRun run = convert({u"--progress=always"_s, file});
        shown.replace(u'\x1b', u"\\x1b"_s);
        QVERIFY2(run.err.startsWith("1 of 1  0 %  " + shown.toUtf8() + "\r"), run.err.constData());
    }

    void namesThatMoveTheCursorArePrintedHarmlessly() {
        const ToolRun run = convert({path("\x1b[2Jevil.txt")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(!run.err.contains('\x1b'));
        QVERIFY(run.err.contains("\\x1b[2Jevil.txt"));
    }
};

FOLIOFORGE_TEST(ReportsTest)
#include "ReportsTest.moc"
