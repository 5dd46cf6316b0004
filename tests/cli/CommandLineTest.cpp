// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/Files.h"
#include "support/PdfFixture.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QFileInfo>
#include <QImage>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What the program makes of its inputs.
class CommandLineTest : public QObject, protected CommandLineCase {
    Q_OBJECT

  private Q_SLOTS:
    void init() { setUp(); }

    void thePropertiesOfAPdfStayWhereThatIsAskedFor() {
        PdfFixture source;
        source.object(1, kCatalog)
            .pages(4, 1)
            .object(20, "<< /Title (Its own) /Author (Its own) >>")
            .trailer("/Info 20 0 R");
        QVERIFY(source.write(path("a.pdf")));
        QCOMPARE(convert({u"--keep-info"_s, u"--author"_s, u"Given"_s, path("a.pdf")}).exitCode, 0);
        const PdfProbe probe(path("out/a.pdf"));
        QCOMPARE(probe.info(u"Title"_s), u"Its own"_s);
        QCOMPARE(probe.info(u"Author"_s), u"Given"_s);
    }

    void versionAndHelpAreShown() {
        const ToolRun version = runTool(kProgram, {u"--version"_s});
        QCOMPARE(version.exitCode, 0);
        QVERIFY(version.out.startsWith("folioforge-cli 1."));
        const ToolRun help = runTool(kProgram, {u"--help"_s});
        QCOMPARE(help.exitCode, 0);
        QVERIFY(help.out.startsWith("Usage: folioforge-cli"));
        QVERIFY(help.err.isEmpty());
    }

    void eachInputBecomesAPdf() {
        const ToolRun run = convert({text("a.txt"), test::writePng(path("b.png"), 30, 20),
                                     test::writePdf(path("c.pdf"), 3)});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.err.isEmpty(), run.err.constData());
        QCOMPARE(outputs().join(u' '), u"a.pdf b.pdf c.pdf"_s);
        QCOMPARE(run.out,
                 (path("out/a.pdf") + u'\n' + path("out/b.pdf") + u'\n' + path("out/c.pdf") + u'\n')
                     .toUtf8());
        QVERIFY(PdfProbe(path("out/a.pdf")).text().contains(u"words"_s));
        QCOMPARE(PdfProbe(path("out/c.pdf")).pageCount(), 3);
    }

    void theSameInputTwiceGivesTwoPdfs() {
        const QString file = text("a.txt");
        QCOMPARE(convert({file, file}).exitCode, 0);
        QCOMPARE(outputs().join(u' '), u"a(1).pdf a.pdf"_s);
    }

    void aPhotoIsCompressedAndTheSavingsAreReported() {
        QImage grain(900, 700, QImage::Format_RGB888);
        quint32 seed = 7;
        for (int y = 0; y < grain.height(); ++y) {
            for (int x = 0; x < grain.width(); ++x) {
                seed = seed * 1664525 + 1013904223;
                grain.setPixel(x, y, qRgb(x / 4, y / 3, static_cast<int>(seed >> 26) + 90));
            }
        }
        constexpr int kDotsPerMeter = 11811; // 300 per inch
        grain.setDotsPerMeterX(kDotsPerMeter);
        grain.setDotsPerMeterY(kDotsPerMeter);
        const QString photo = path("photo.jpg");
        QVERIFY(grain.save(photo, "JPEG", 92));
        const ToolRun run = convert({u"--json"_s, u"--compress"_s, u"96m"_s, photo});
        QCOMPARE(run.exitCode, 0);
        const QJsonObject result = objectsOf(run.out).value(0);
        const qint64 after = result[u"bytesAfter"_s].toInteger();
        QCOMPARE(after, QFileInfo(path("out/photo.pdf")).size());
        QVERIFY(after < result[u"bytesBefore"_s].toInteger() / 2);
        QCOMPARE(result[u"imagesReduced"_s].toInt(), 1);
        QCOMPARE(result[u"imagesLeft"_s].toArray().size(), 0);
    }

    void aMergedPdfHoldsAllInTheOrderGiven() {
        const ToolRun run = merge("out/all", {text("b.txt", "second"), text("a.txt", "first")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(outputs(), QStringList{u"all.pdf"_s});
        const PdfProbe probe(path("out/all.pdf"));
        QVERIFY(probe.isValid());
        QVERIFY(probe.text(1).contains(u"second"_s));
        QVERIFY(probe.text(2).contains(u"first"_s));
    }

    void inputsAreSortedOnRequest() {
        const QStringList files{text("p10.txt", "ten"), text("P9.txt", "nine"),
                                text("p1.txt", "one and more")};
        QCOMPARE(merge("natural", QStringList{u"--sort=natural"_s} + files).exitCode, 0);
        QVERIFY(PdfProbe(path("natural.pdf")).text(2).contains(u"nine"_s));
        QCOMPARE(merge("size", QStringList{u"--sort=size"_s} + files).exitCode, 0);
        QVERIFY(PdfProbe(path("size.pdf")).text(3).contains(u"one and more"_s));
    }

    void aMergedNameIsNeverReplaced() {
        const QString taken = text("out/all.pdf", "mine");
        const ToolRun run = merge("out/all", {text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.err, "folioforge-cli: --merge: \"" + taken.toUtf8() +
                              "\" exists; take another name, or --overwrite\n");
        QCOMPARE(readFile(taken), QByteArray("mine"));
    }

    void aFolderIsNoNameOfAMergedPdf() {
        QVERIFY(QDir().mkpath(path("out/all.pdf")));
        const ToolRun run = merge("out/all", {u"--overwrite=always"_s, text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.err,
                 "folioforge-cli: --merge: \"" + path("out/all.pdf").toUtf8() + "\" is a folder\n");
    }

    void namesWithDashesFollowTwoDashes() {
        text("-a.txt");
        const ToolRun run =
            runTool(u"sh"_s, {u"-c"_s, u"cd \"$1\" && exec \"$0\" --output-folder out -- -a.txt"_s,
                              kProgram, m_folder->path()});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(outputs(), QStringList{u"-a.pdf"_s});
    }

    void documentPropertiesArriveInThePdf() {
        QCOMPARE(
            convert({u"--title"_s, u"Große Titel"_s, u"--keywords=k"_s, text("a.txt")}).exitCode,
            0);
        QCOMPARE(PdfProbe(path("out/a.pdf")).info(u"Title"_s), u"Große Titel"_s);
    }

    void filesWhoseNamesAreNotUtf8AreConverted() {
        const QString script = u"cd \"$1\" && mkdir in && name=$(printf 'caf\\351.txt') && echo "
                               u"words >\"in/$name\" && "
                               "exec \"$0\" --json --output-folder out \"in/$name\" in"_s;
        const ToolRun run = runTool(u"sh"_s, {u"-c"_s, script, kProgram, m_folder->path()});
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(objectsOf(run.out).size(), 2);
        QCOMPARE(outputs().size(), 2);
        for (const QString &name : outputs()) {
            QVERIFY(PdfProbe(path("out/") + name).text().contains(u"words"_s));
        }
    }

    void anotherLocaleChangesNothing() {
        const ToolRun run = runTool(u"env"_s, {u"LC_ALL=C"_s, kProgram, u"--output-folder"_s,
                                               path("out"), text("größe.txt")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.err.isEmpty(), run.err.constData());
        QCOMPARE(outputs(), QStringList{u"größe.pdf"_s});
    }

    void itSpeaksEnglishOnAGermanSystem() {
        const QStringList german{u"LANG=de_DE.UTF-8"_s, u"LC_ALL=de_DE.UTF-8"_s, u"LANGUAGE=de"_s,
                                 u"LOCPATH="_s + m_folder->path()};
#ifdef __linux__ // Elsewhere the locale is there, and programs have no words of it.
        const ToolRun made = runTool(
            u"localedef"_s, {u"-i"_s, u"de_DE"_s, u"-f"_s, u"UTF-8"_s, path("de_DE.UTF-8")});
        QVERIFY2(made.exitCode == 0 || made.exitCode == 1, made.err.constData()); // 1: warnings
        const ToolRun other =
            runTool(u"env"_s, german + QStringList{u"cat"_s, path("missing.txt")});
        QVERIFY2(other.err.contains("Datei oder Verzeichnis nicht gefunden"), other.err);
#endif
        const QStringList arguments{u"--output-folder"_s, path("out"), u"--overwrite=always"_s,
                                    text("a.txt", "caf\xE9"), path("missing.txt")};
        for (const QStringList &report : {QStringList(), QStringList{u"--json"_s}}) {
            const ToolRun run =
                runTool(u"env"_s, german + QStringList{kProgram} + report + arguments);
            const QByteArray said = run.err + run.out;
            QVERIFY2(said.contains("The text is not valid UTF-8; its page is left blank"), said);
            QVERIFY2(said.contains("No such file or directory"), said);
        }
    }

    void anInterruptedRunLeavesNoFile() {
        const QString large =
            text("large.txt", QByteArray("many words on a line\n").repeated(1'500'000));
        QProcess process;
        process.start(kProgram, {u"--progress=always"_s, u"--merge"_s, path("out/large"), large});
        QVERIFY(process.waitForStarted());
        process.setReadChannel(QProcess::StandardError);
        QVERIFY(process.waitForReadyRead()); // The first progress line: pages are being made.
        process.terminate();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::CrashExit); // Ended by the signal itself.
        QCOMPARE(process.exitCode(), SIGTERM);
        QVERIFY(outputs().isEmpty());
    }

    void percentSignsInNamesAndValuesAreSaidAsTheyAre() {
        const ToolRun dry = convert({u"--dry-run"_s, text("10%3A30.txt")});
        QVERIFY2(dry.out.contains("/10%3A30.txt: 1 page of 595 x 842 points\n"), dry.out);
        const ToolRun refused = convert({u"--font-size"_s, u"%2"_s, path("10%3A30.txt")});
        QVERIFY2(refused.err.contains("\"%2\" is no number from 1 to 1000"), refused.err);
        const ToolRun whole = convert({u"--jobs"_s, u"%2"_s, path("10%3A30.txt")});
        QVERIFY2(whole.err.contains("\"%2\" is no whole number from 1 to 256"), whole.err);
    }

    void aSourceDateThatIsNoDateIsRefused() {
        qputenv("SOURCE_DATE_EPOCH", "yesterday");
        const ToolRun run = convert({text("a.txt")});
        qunsetenv("SOURCE_DATE_EPOCH");
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.startsWith("folioforge-cli: SOURCE_DATE_EPOCH is \"yesterday\""), run.err);
        QVERIFY(outputs().isEmpty());
    }
};

FOLIOFORGE_TEST(CommandLineTest)
#include "CommandLineTest.moc"
