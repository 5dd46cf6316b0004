// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/PhotoPage.h"
#include "support/TestUnit.h"

#include <QDateTime>
#include <QFile>
#include <QImage>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

void setTime(const QString &file, int seconds) {
    setModified(file, QDateTime::fromSecsSinceEpoch(seconds));
}

} // namespace

/// What becomes of files that stand where a PDF is to go, of runs that write nothing, and of PDFs
/// that are made at once.
class OutputsTest : public QObject, CommandLineCase {
    Q_OBJECT

    QString textOf(const char *name) const { return PdfProbe(path(name)).text().simplified(); }

  private Q_SLOTS:
    void init() { setUp(); }

    void aFileIsReplacedOnRequest() {
        text("out/a.pdf", "old");
        QCOMPARE(convert({u"--overwrite=always"_s, text("a.txt", "new")}).exitCode, 0);
        QCOMPARE(outputs(), QStringList{u"a.pdf"_s});
        QCOMPARE(textOf("out/a.pdf"), u"new"_s);
        text("all.pdf", "old");
        QCOMPARE(merge("all", {u"--overwrite=always"_s, path("a.txt")}).exitCode, 0);
        QCOMPARE(textOf("all.pdf"), u"new"_s);
    }

    void whatIsReplacedStaysWholeForItsReaders() {
        QFile old(text("out/a.pdf", "old"));
        QVERIFY(old.open(QIODevice::ReadOnly));
        QCOMPARE(convert({u"--overwrite=always"_s, text("a.txt", "new")}).exitCode, 0);
        QCOMPARE(old.readAll(), "old");
    }

    void aFailedRunReplacesNothing() {
        text("out/a.pdf", "old");
        QCOMPARE(convert({u"--overwrite=always"_s, text("a.png", "no picture")}).exitCode, 1);
        QCOMPARE(readFile(path("out/a.pdf")), "old");
        const QString script =
            u"trap '' XFSZ; ulimit -f 1; exec \"$0\" --overwrite=always --output-folder \"$1\" "
            "\"$2\""_s;
        QImage noise(400, 400, QImage::Format_RGB32);
        for (int i = 0; i < noise.width() * noise.height(); ++i) {
            noise.setPixel(i % 400, i / 400, static_cast<uint>(i * 2654435761U));
        }
        QVERIFY(noise.save(path("a.bmp")));
        QCOMPARE(runTool(u"sh"_s, {u"-c"_s, script, kProgram, path("out"), path("a.bmp")}).exitCode,
                 1);
        QCOMPARE(readFile(path("out/a.pdf")), "old");
        QCOMPARE(outputs(), QStringList{u"a.pdf"_s});
    }

    void twoInputsOfOneNameDoNotReplaceEachOther() {
        const ToolRun run = convert({u"--overwrite=always"_s, text("a.txt", "text"),
                                     test::writePng(path("a.png"), 30, 20)});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(outputs(), (QStringList{u"a(1).pdf"_s, u"a.pdf"_s}));
        QCOMPARE(textOf("out/a.pdf"), u"text"_s);
    }

    /// Which of them has which name follows from their order, and one that was added changes that.
    void whereInputsShareANameNoneIsKept() {
        QVERIFY(QDir().mkpath(path("x")) && QDir().mkpath(path("y")) && QDir().mkpath(path("z")));
        for (const char *name : {"x/a.txt", "y/a.txt", "z/a.txt"}) {
            setTime(text(name, name), 1000);
        }
        QCOMPARE(convert({u"--overwrite=older"_s, path("y/a.txt"), path("z/a.txt")}).exitCode, 0);
        QCOMPARE(
            convert({u"--overwrite=older"_s, path("x/a.txt"), path("y/a.txt"), path("z/a.txt")})
                .exitCode,
            0);
        QCOMPARE(outputs(), (QStringList{u"a(1).pdf"_s, u"a(2).pdf"_s, u"a.pdf"_s}));
        QCOMPARE(textOf("out/a.pdf"), u"x/a.txt"_s);
        QCOMPARE(textOf("out/a(1).pdf"), u"y/a.txt"_s);
        QCOMPARE(textOf("out/a(2).pdf"), u"z/a.txt"_s);
    }

    void aFolderIsNotReplaced() {
        QVERIFY(QDir().mkpath(path("out/a.pdf")));
        QCOMPARE(convert({u"--overwrite=always"_s, text("a.txt", "text")}).exitCode, 0);
        QCOMPARE(textOf("out/a(1).pdf"), u"text"_s);
    }

    void anInputIsNeverReplaced_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("each") << QStringList{u"--output-folder"_s, u"."_s};
        QTest::newRow("merge") << QStringList{u"--merge"_s, u"in.pdf"_s};
        QTest::newRow("by another name") << QStringList{u"--merge"_s, u"link.pdf"_s};
        QTest::newRow("side by side") << QStringList{u"--output-folder"_s, u"."_s, u"--jobs=2"_s};
    }
    void anInputIsNeverReplaced() {
        QFETCH(const QStringList, arguments);
        const QByteArray before = readFile(writePdf(path("in.pdf"), 2));
        QVERIFY(QFile::link(u"in.pdf"_s, path("link.pdf")));
        QProcess process;
        process.setWorkingDirectory(m_folder->path());
        process.start(kProgram, arguments + QStringList{u"--overwrite=always"_s, u"in.pdf"_s});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 1);
        const QByteArray said = process.readAllStandardError();
        QVERIFY2(said.contains("in.pdf: Its PDF would take the place of an input"), said);
        QCOMPARE(readFile(path("in.pdf")), before);
    }

    void onlyAnOlderFileIsReplacedWhereThatIsAskedFor() {
        for (const char *name : {"old", "same", "new"}) {
            setTime(text(qPrintable(QLatin1StringView(name) + u".txt"_s)), 1000);
            text(qPrintable(u"out/"_s + QLatin1StringView(name) + u".pdf"_s), "there");
        }
        setTime(path("out/old.pdf"), 999);
        setTime(path("out/same.pdf"), 1000);
        setTime(path("out/new.pdf"), 1001);
        const ToolRun run = convert({u"--overwrite=older"_s, u"--json"_s, path("old.txt"),
                                     path("same.txt"), path("new.txt")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(textOf("out/old.pdf"), u"words"_s);
        QCOMPARE(readFile(path("out/same.pdf")), "there");
        QCOMPARE(readFile(path("out/new.pdf")), "there");
        QCOMPARE(outputs().size(), 3);
        QStringList states;
        for (const QJsonObject &object : objectsOf(run.out)) {
            states += member(object, "state");
        }
        QCOMPARE(states.join(u' '), u"finished kept kept"_s);
        QCOMPARE(member(objectsOf(run.out).last(), "message"), u"Its PDF is there and not older"_s);
        QCOMPARE(run.err, "");
    }

    void aMergedPdfIsKeptWhileNoInputIsNewer() {
        setTime(text("all.pdf", "there"), 1000);
        setTime(text("a.txt"), 999);
        setTime(text("b.txt"), 999);
        const QStringList arguments{u"--overwrite=older"_s, path("a.txt"), path("b.txt")};
        QCOMPARE(merge("all.pdf", arguments).exitCode, 0);
        QCOMPARE(readFile(path("all.pdf")), "there");
        setTime(path("b.txt"), 1001);
        QCOMPARE(merge("all.pdf", arguments).exitCode, 0);
        QCOMPARE(textOf("all.pdf"), u"words words"_s);
    }

    void aDryRunSaysWhatWouldBeWrittenAndWritesNothing() {
        const QString picture = test::writePng(path("b.png"), 300, 200);
        const QStringList arguments{text("a.txt", QByteArray(20'000, 'x')), picture,
                                    writePdf(path("a.pdf"), 3), text("c.png", "no picture")};
        const QString folder = path("made");
        const ToolRun run = runTool(
            kProgram, QStringList{u"--dry-run"_s, u"--output-folder"_s, folder} + arguments);
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.contains("c.png: "));
        QVERIFY(!QFile::exists(folder));
        QCOMPARE(runTool(kProgram, QStringList{u"--output-folder"_s, folder} + arguments).exitCode,
                 1);
        const int pages = PdfProbe(path("made/a.pdf")).pageCount();
        QVERIFY(pages > 1);
        const QString expected =
            u"%1/a.pdf\n  %2: %3 pages, the first of 595 x 842 points\n"
            "%1/b.pdf\n  %4: 1 page of 300 x 200 points\n"
            "%1/a(1).pdf\n  %5: 3 pages, the first of 200 x 100 points\n"_s.arg(
                folder, path("a.txt"), QString::number(pages), picture, path("a.pdf"));
        QCOMPARE(QString::fromUtf8(run.out), expected);
        QVERIFY(QFile::exists(path("made/a(1).pdf")));
    }

    void aDryRunSaysWhatWouldBeKept() {
        setTime(text("a.txt"), 1000);
        text("out/a.pdf", "there");
        const ToolRun run = convert({u"--dry-run"_s, u"--overwrite=older"_s, path("a.txt")});
        QCOMPARE(run.out, path("a.txt").toUtf8() + ": Its PDF is there and not older\n");
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(convert({u"--overwrite=older"_s, path("a.txt")}).out, "");
    }

    void aDryRunOfAMergeLeavesTheFolderAsItIs() {
        // What a killed run left, which others remove.
        const QString left = text("out/.a.pdf.123456.folioforge-part");
        text("out/all.pdf", "there");
        const ToolRun run = merge("out/all", {u"--dry-run"_s, u"--overwrite=always"_s, u"--json"_s,
                                              text("a.txt"), writePdf(path("b.pdf"), 2)});
        QCOMPARE(run.exitCode, 0);
        const auto objects = objectsOf(run.out);
        QCOMPARE(member(objects.last(), "state"), u"planned"_s);
        QCOMPARE(objects.last()[u"pages"_s].toInt(), 2);
        QCOMPARE(readFile(path("out/all.pdf")), "there");
        QVERIFY(QFile::exists(left));
        QCOMPARE(outputs().size(), 2);
    }

    void pdfsMadeAtOnceAreThoseMadeOneByOne() {
        QStringList inputs;
        for (int i = 0; i < 40; ++i) {
            const QByteArray name = "p" + QByteArray::number(i % 13);
            const QString file =
                i % 3 == 0   ? text((name + ".txt").constData(), QByteArray(i * 5'000, 'a'))
                : i % 3 == 1 ? test::writePng(path((name + ".png").constData()), 50 + i, 20)
                             : writePdf(path((name + ".pdf").constData()), i);
            inputs += file;
        }
        inputs.insert(5, text("bad.png", "no picture"));
        qputenv("SOURCE_DATE_EPOCH", "1700000000");
        const auto run = [&](const char *folder, const char *jobs) {
            return runTool(kProgram, QStringList{u"--flush=never"_s, u"--output-folder"_s,
                                                 path(folder), QString::fromLatin1(jobs)} +
                                         inputs);
        };
        const ToolRun one = run("one", "--jobs=1");
        const ToolRun many = run("many", "--jobs=7");
        qunsetenv("SOURCE_DATE_EPOCH");
        QCOMPARE(many.exitCode, 1);
        QCOMPARE(many.err, one.err);
        QCOMPARE(QByteArray(many.out).replace("/many/", "/one/"), one.out);
        const QStringList names = QDir(path("one")).entryList(QDir::Files);
        QCOMPARE(names.size(), 40);
        QCOMPARE(QDir(path("many")).entryList(QDir::Files), names);
        for (const QString &name : names) {
            QVERIFY2(readFile(path("many/") + name) == readFile(path("one/") + name),
                     qPrintable(name));
        }
    }

    void pdfsMadeAtOnceAreCompressed() {
        QStringList photos;
        for (const char *name : {"a.jpg", "b.jpg", "c.jpg"}) {
            QVERIFY(test::photo(1200, 900).save(path(name), "JPG", 95));
            photos += path(name);
        }
        const ToolRun run =
            convert(QStringList{u"--jobs=3"_s, u"--compress=72l"_s, u"--image-dpi=600"_s} + photos);
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out.count("images reduced: 1"), 3);
        for (const QString &name : outputs()) {
            QVERIFY(PdfProbe(path("out/") + name).isValid());
        }
    }
};

FOLIOFORGE_TEST(OutputsTest)
#include "OutputsTest.moc"
