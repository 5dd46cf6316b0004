#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <memory>

#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <linux/capability.h>
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::PdfProbe;
using test::ToolRun;

namespace {

const QString kProgram = QStringLiteral(FOLIOFORGE_CLI);

QList<QJsonObject> objectsOf(const QByteArray &output) {
    QList<QJsonObject> objects;
    for (const QByteArray &line : output.split('\n')) {
        if (!line.isEmpty()) {
            objects += QJsonDocument::fromJson(line).object();
        }
    }
    return objects;
}

/// The program run next may read no more than its owner, whoever that is.
void giveUpRightsOfRoot() {
#ifdef __linux__
    ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
    ::prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH);
#endif
}

/// A picture that nothing makes smaller; returns its path.
QString writeNoise(const QString &path) {
    constexpr int kSide = 1200;
    QImage image(kSide, kSide, QImage::Format_RGB888);
    for (int y = 0; y < kSide; ++y) {
        QRandomGenerator random(static_cast<quint32>(y));
        std::generate_n(image.scanLine(y), kSide * 3,
                        [&random] { return static_cast<uchar>(random.generate()); });
    }
    return image.save(path, "BMP") ? path : QString();
}

QString member(const QJsonObject &object, const char *name) {
    return object[QLatin1StringView(name)].toString();
}

} // namespace

class CommandLineTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    QString text(const char *name, const QByteArray &bytes = "words") const {
        return test::writeFile(path(name), bytes);
    }
    /// Runs the program with its output folder set to "out" of the test's folder.
    ToolRun convert(const QStringList &arguments, const QByteArray &input = {}) const {
        return test::runTool(kProgram, QStringList{u"--output-folder"_s, path("out")} + arguments,
                             input);
    }
    ToolRun merge(const char *target, const QStringList &arguments) const {
        return test::runTool(kProgram, QStringList{u"--merge"_s, path(target)} + arguments);
    }
    /// The bytes of the document that `arguments` merged into while the descriptors `closed` were;
    /// empty where the program did not end with `exitCode`.
    QByteArray merged(const char *target, const QStringList &arguments, const QList<int> &closed,
                      int exitCode) const {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"SOURCE_DATE_EPOCH"_s, u"1700000000"_s);
        process.setProcessEnvironment(environment);
        process.setChildProcessModifier([&closed] {
            for (const int descriptor : closed) {
                ::close(descriptor);
            }
        });
        process.start(kProgram, QStringList{u"--merge"_s, path(target)} + arguments);
        const bool ended = process.waitForFinished() && process.exitCode() == exitCode;
        return ended ? test::readFile(path(target)) : QByteArray();
    }
    QStringList outputs() const {
        return QDir(path("out")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

  private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath(u"out"_s));
    }

    void versionAndHelpAreShown() {
        const ToolRun version = test::runTool(kProgram, {u"--version"_s});
        QCOMPARE(version.exitCode, 0);
        QVERIFY(version.out.startsWith("folioforge-cli 1."));
        const ToolRun help = test::runTool(kProgram, {u"--help"_s});
        QCOMPARE(help.exitCode, 0);
        QVERIFY(help.out.startsWith("Usage: folioforge-cli"));
        QVERIFY(help.err.isEmpty());
    }

    void resultsThatCannotBeWrittenAreAFailure_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("version") << QStringList{u"--version"_s};
        QTest::newRow("help") << QStringList{u"--help"_s};
        QTest::newRow("names of documents") << QStringList{u"a.txt"_s};
        // Longer than any buffer, so that nothing is left to flush.
        QTest::newRow("a long line") << QStringList{u"--json"_s, QString(100'000, u'x')};
    }
    void resultsThatCannotBeWrittenAreAFailure() {
        QFETCH(const QStringList, arguments);
        text("a.txt");
        QProcess process;
        process.setWorkingDirectory(m_folder->path());
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start(kProgram, arguments);
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 1);
        QVERIFY(process.readAllStandardError().contains("Standard output cannot be written"));
    }

    void aClosedDescriptorIsTakenByNoFile_data() {
        QTest::addColumn<QList<int>>("closed");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("none") << QList<int>{} << 0;
        QTest::newRow("input") << QList{STDIN_FILENO} << 0;
        QTest::newRow("output") << QList{STDOUT_FILENO} << 1;
        QTest::newRow("error") << QList{STDERR_FILENO} << 0;
        QTest::newRow("input and error") << QList{STDIN_FILENO, STDERR_FILENO} << 0;
        QTest::newRow("output and error") << QList{STDOUT_FILENO, STDERR_FILENO} << 1;
        QTest::newRow("all") << QList{STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO} << 1;
    }
    void aClosedDescriptorIsTakenByNoFile() {
        QFETCH(const QList<int>, closed);
        QFETCH(const int, exitCode);
        // More than is kept in memory, so that descriptors are opened while progress is shown.
        QStringList noise;
        for (const char *name : {"1.bmp", "2.bmp", "3.bmp"}) {
            noise += writeNoise(path(name));
        }
        const QStringList arguments = QStringList{u"--progress=always"_s} + noise;
        const QByteArray expected = merged("expected.pdf", arguments, {}, 0);
        QVERIFY(expected.size() > 12'000'000);
        QVERIFY(merged("written.pdf", arguments, closed, exitCode) == expected);
        QString log;
        QVERIFY2(PdfProbe(path("written.pdf")).isValid(&log), qPrintable(log));
    }

    void aPasswordIsNotTakenFromAClosedDescriptor() {
        QProcess process;
        process.setChildProcessModifier([] { ::close(STDIN_FILENO); });
        process.start(kProgram, {u"--user-password-file=-"_s, u"--output-folder"_s, path("out"),
                                 text("a.txt")});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 2);
        QVERIFY(outputs().isEmpty());
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
        const QJsonObject result = QJsonDocument::fromJson(run.out).object();
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
        QVERIFY(run.err.contains(
            "File name already exists in output folder, please input another name."));
        QCOMPARE(test::readFile(taken), QByteArray("mine"));
    }

    void aFolderStandsForItsTextsAndImages() {
        QVERIFY(QDir(m_folder->path()).mkpath(u"in/sub"_s));
        text("in/b.TXT");
        test::writePdf(path("in/a.PDF"), 1);
        test::writePng(path("in/c.png"), 3, 3);
        text("in/sub/deep.txt");
        const ToolRun run = convert({path("in/")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(outputs().join(u' '), u"b.pdf c.pdf"_s);
    }

    void theFilesOfAFolderComeInTheOrderOfTheirNames() {
        QVERIFY(QDir(m_folder->path()).mkpath(u"in"_s));
        for (const char *name : {"in/a.txt", "in/10.txt", "in/é.txt", "in/9.txt", "in/B.txt"}) {
            text(name);
        }
        const ToolRun run = convert({u"--json"_s, path("in")});
        QStringList inputs;
        for (const QJsonObject &object : objectsOf(run.out)) {
            inputs += member(object, "input");
        }
        QCOMPARE(inputs, (QStringList{path("in/10.txt"), path("in/9.txt"), path("in/B.txt"),
                                      path("in/a.txt"), path("in/é.txt")}));
    }

    void aFolderThatCannotBeListedIsNamedAndTheRestConverted() {
        QVERIFY(QDir(m_folder->path()).mkpath(u"in"_s));
        text("in/a.txt");
        QVERIFY(QFile::setPermissions(path("in"), {}));
        QProcess process;
        process.setChildProcessModifier(giveUpRightsOfRoot);
        process.start(kProgram, {u"--json"_s, u"--output-folder"_s, path("out"), path("in/"),
                                 text("good.txt")});
        QVERIFY(process.waitForFinished());
        QVERIFY(QFile::setPermissions(path("in"),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(process.exitCode(), 1);
        const auto objects = objectsOf(process.readAllStandardOutput());
        QCOMPARE(objects.size(), 2);
        QCOMPARE(member(objects[0], "input"), path("in/"));
        QCOMPARE(member(objects[0], "state"), u"rejected"_s);
        QVERIFY(member(objects[0], "message").endsWith(u"Permission denied"_s));
        QVERIFY(process.readAllStandardError().contains(path("in/").toUtf8() + ": "));
        QCOMPARE(outputs(), QStringList{u"good.pdf"_s});
    }

    void wrongSettingsGetTheWindowsNoticeAndNothingIsWritten_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("notice");
        const auto row = [](const char *name, const char *argument, const char *notice) {
            QTest::newRow(name) << QStringList{QString::fromLatin1(argument)} << QByteArray(notice);
        };
        row("text margin", "--text-margins=257",
            "Invalid page margin value in text output setting.");
        row("image margin", "--image-margins=-1",
            "Invalid page margin value in image output setting.");
        row("text width", "--text-page-size=100x500",
            "The value of page margin is larger than page width, please modify your text output "
            "setting.");
        row("image height", "--image-page-size=100x0",
            "The value of page margin is larger than page height, please modify your image output "
            "setting.");
        row("empty password", "--user-password-file=/dev/null", "Please input user password.");
        row("no folder",
            "--output-folder=", "Please select an output folder to store the output documents.");
        row("missing folder", "--output-folder=/nonexistent",
            "Selected output folder does not exist or is not writable. Click \"OK\" to select "
            "another folder.");
    }

    void wrongSettingsGetTheWindowsNoticeAndNothingIsWritten() {
        QFETCH(const QStringList, arguments);
        QFETCH(const QByteArray, notice);
        const ToolRun run = convert(arguments + QStringList{text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.err, "folioforge-cli: " + notice + '\n');
        QVERIFY(run.out.isEmpty());
        QVERIFY(outputs().isEmpty());
    }

    void aMergeWithoutANameIsRefused() {
        const ToolRun run = merge("out/", {text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.contains("Please input output file name."));
    }

    void anUnknownOptionGetsAHint() {
        const ToolRun run = convert({u"--colour"_s, text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.contains("--colour") && run.err.contains("--help"));
        QVERIFY(outputs().isEmpty());
    }

    void namesWithDashesFollowTwoDashes() {
        text("-a.txt");
        const ToolRun run = test::runTool(
            u"sh"_s, {u"-c"_s, u"cd \"$1\" && exec \"$0\" --output-folder out -- -a.txt"_s,
                      kProgram, m_folder->path()});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(outputs(), QStringList{u"-a.pdf"_s});
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
                              text("cut.png", test::readFile(png).first(60))};
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

    void refusedPdfsAreListedInTheWindowsWords() {
        const QString plain = test::writePdf(path("plain.pdf"), 1);
        const QString locked = test::encryptPdf(plain, path("locked.pdf"), u"secret"_s);
        const QString broken = text("broken.pdf", "no document");
        const ToolRun run = convert({locked, plain, broken});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.contains("Fail to import following files. They are encrypted or not normal "
                                 "PDF files:\n    " +
                                 locked.toUtf8() + "\n    " + broken.toUtf8() + '\n'));
        QVERIFY(run.err.contains(locked.toUtf8() + ": "));
        QCOMPARE(outputs(), QStringList{u"plain.pdf"_s});
    }

    void aTextThatIsNotUtf8IsConvertedWithAWarning() {
        const ToolRun run = convert({text("a.txt", "caf\xE9")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.err.contains("warning") && run.err.contains("UTF-8"));
        QCOMPARE(PdfProbe(path("out/a.pdf")).pageCount(), 1);
    }

    void aFailureIsSaidBesideAWarning() {
        const QString script =
            u"trap '' XFSZ; ulimit -f 0; exec \"$0\" --json --merge \"$1\" \"$2\""_s;
        const ToolRun run = test::runTool(
            u"sh"_s, {u"-c"_s, script, kProgram, path("out/all"), text("a.txt", "caf\xE9")});
        QCOMPARE(run.exitCode, 1);
        const QString message = member(objectsOf(run.out).value(0), "message");
        QVERIFY2(message.contains(u"not valid UTF-8"_s), qPrintable(message));
        QVERIFY2(message.contains(u"File too large"_s), qPrintable(message));
        QVERIFY2(run.err.contains(message.toUtf8()), run.err.constData());
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
        QCOMPARE(member(objects[0], "input"), path("missing.png"));
        QCOMPARE(member(objects[0], "state"), u"rejected"_s);
        QVERIFY(!member(objects[0], "message").isEmpty());
        QCOMPARE(member(objects[1], "output"), path("out/a.pdf"));
        QCOMPARE(member(objects[1], "state"), u"finished"_s);
        QVERIFY(!objects[1].contains(u"message"_s));
        QVERIFY(!objects[1].contains(u"embedded"_s));
        QVERIFY(!member(objects[2], "embedded").isEmpty());
        QCOMPARE(objects[3][u"pages"_s].toInt(), 2);
    }

    void jsonOfAMergeNamesTheOnePdfForEach() {
        const ToolRun run =
            merge("out/all", {u"--json"_s, text("a.txt"), text("b.txt"), text("c.png", "x")});
        QCOMPARE(run.exitCode, 1);
        const auto objects = objectsOf(run.out);
        QCOMPARE(objects.size(), 3);
        QCOMPARE(member(objects[1], "output"), path("out/all.pdf"));
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
        QVERIFY(run.err.contains("1 of 1  50 %"));
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
        const QString file = test::writeFile(m_folder->filePath(name), "words");
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

    void documentPropertiesArriveInThePdf() {
        QCOMPARE(
            convert({u"--title"_s, u"Große Titel"_s, u"--keywords=k"_s, text("a.txt")}).exitCode,
            0);
        QCOMPARE(PdfProbe(path("out/a.pdf")).info(u"Title"_s), u"Große Titel"_s);
    }

    void aPasswordComesFromTheFirstLineOfAFile() {
        const QString file = text("password", "sécret\r\nnot this\n");
        QCOMPARE(convert({u"--user-password-file"_s, file, text("a.txt")}).exitCode, 0);
        QCOMPARE(PdfProbe(path("out/a.pdf")).pageCount(), 0);
        QCOMPARE(PdfProbe(path("out/a.pdf"), u"sécret"_s).pageCount(), 1);
    }

    void aPasswordComesFromStandardInput() {
        QCOMPARE(convert({u"--user-password-file=-"_s, text("a.txt")}, "secret\n").exitCode, 0);
        QCOMPARE(PdfProbe(path("out/a.pdf"), u"secret"_s).pageCount(), 1);
    }

    void bothPasswordsComeFromTwoLinesOfStandardInput() {
        QCOMPARE(convert({u"--owner-password-file=-"_s, u"--user-password-file=-"_s,
                          u"--refuse-print"_s, text("a.txt")},
                         "user\nowner\n")
                     .exitCode,
                 0);
        const PdfProbe probe(path("out/a.pdf"), u"user"_s);
        QVERIFY2(probe.info(u"Encrypted"_s).contains(u"print:no copy:yes"_s),
                 qPrintable(probe.info(u"Encrypted"_s)));
    }

    void passwordsComeFromTheEnvironment() {
        const ToolRun run = test::runTool(u"env"_s, {u"FOLIOFORGE_USER_PASSWORD=user"_s,
                                                     u"FOLIOFORGE_OWNER_PASSWORD=owner"_s, kProgram,
                                                     u"--refuse-copy"_s, u"--output-folder"_s,
                                                     path("out"), text("a.txt")});
        QCOMPARE(run.exitCode, 0);
        const PdfProbe probe(path("out/a.pdf"), u"user"_s);
        QVERIFY(probe.info(u"Encrypted"_s).contains(u"copy:no"_s));
    }

    void equalPasswordsGetTheirNotice() {
        const QString file = text("password", "same");
        const ToolRun run = convert(
            {u"--user-password-file"_s, file, u"--owner-password-file"_s, file, text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.contains("The passwords can not be the same."));
        QVERIFY(outputs().isEmpty());
    }

    void aPasswordFileThatCannotBeReadStopsTheRun() {
        const ToolRun run = convert({u"--user-password-file"_s, path("missing"), text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.contains(path("missing").toUtf8()));
        QVERIFY(outputs().isEmpty());
    }

    void filesWhoseNamesAreNotUtf8AreConverted() {
        const QString script = u"cd \"$1\" && mkdir in && name=$(printf 'caf\\351.txt') && echo "
                               u"words >\"in/$name\" && "
                               "exec \"$0\" --json --output-folder out \"in/$name\" in"_s;
        const ToolRun run = test::runTool(u"sh"_s, {u"-c"_s, script, kProgram, m_folder->path()});
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(objectsOf(run.out).size(), 2);
        QCOMPARE(outputs().size(), 2);
        for (const QString &name : outputs()) {
            QVERIFY(PdfProbe(path("out/") + name).text().contains(u"words"_s));
        }
    }

    void anotherLocaleChangesNothing() {
        const ToolRun run = test::runTool(u"env"_s, {u"LC_ALL=C"_s, kProgram, u"--output-folder"_s,
                                                     path("out"), text("größe.txt")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.err.isEmpty(), run.err.constData());
        QCOMPARE(outputs(), QStringList{u"größe.pdf"_s});
    }

    void aReaderThatGoesAwayStopsNothing() {
        const QString script =
            u"\"$0\" --json --output-folder \"$1\" \"$2\" \"$2\" \"$2\" | true"_s;
        test::runTool(u"sh"_s, {u"-c"_s, script, kProgram, path("out"), text("a.txt")});
        QCOMPARE(outputs().size(), 3);
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
};

FOLIOFORGE_TEST(CommandLineTest)
#include "CommandLineTest.moc"
