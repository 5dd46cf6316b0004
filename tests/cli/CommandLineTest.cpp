#include "support/Files.h"
#include "support/PdfProbe.h"

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
        return test::runTool(
            kProgram, QStringList{QStringLiteral("--output-folder"), path("out")} + arguments,
            input);
    }
    ToolRun merge(const char *target, const QStringList &arguments) const {
        return test::runTool(kProgram,
                             QStringList{QStringLiteral("--merge"), path(target)} + arguments);
    }
    /// The bytes of the document that `arguments` merged into while the descriptors `closed` were;
    /// empty where the program did not end with `exitCode`.
    QByteArray merged(const char *target, const QStringList &arguments, const QList<int> &closed,
                      int exitCode) const {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1700000000"));
        process.setProcessEnvironment(environment);
        process.setChildProcessModifier([&closed] {
            for (const int descriptor : closed) {
                ::close(descriptor);
            }
        });
        process.start(kProgram, QStringList{QStringLiteral("--merge"), path(target)} + arguments);
        const bool ended = process.waitForFinished() && process.exitCode() == exitCode;
        return ended ? test::readFile(path(target)) : QByteArray();
    }
    QStringList outputs() const {
        return QDir(path("out")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

  private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("out")));
    }

    void versionAndHelpAreShown() {
        const ToolRun version = test::runTool(kProgram, {QStringLiteral("--version")});
        QCOMPARE(version.exitCode, 0);
        QVERIFY(version.out.startsWith("folioforge-cli 1."));
        const ToolRun help = test::runTool(kProgram, {QStringLiteral("--help")});
        QCOMPARE(help.exitCode, 0);
        QVERIFY(help.out.startsWith("Usage: folioforge-cli"));
        QVERIFY(help.err.isEmpty());
    }

    void resultsThatCannotBeWrittenAreAFailure_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("version") << QStringList{QStringLiteral("--version")};
        QTest::newRow("help") << QStringList{QStringLiteral("--help")};
        QTest::newRow("names of documents") << QStringList{QStringLiteral("a.txt")};
        // Longer than any buffer, so that nothing is left to flush.
        QTest::newRow("a long line")
            << QStringList{QStringLiteral("--json"), QString(100'000, u'x')};
    }
    void resultsThatCannotBeWrittenAreAFailure() {
        QFETCH(const QStringList, arguments);
        text("a.txt");
        QProcess process;
        process.setWorkingDirectory(m_folder->path());
        process.setStandardOutputFile(QStringLiteral("/dev/full"));
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
        const QStringList arguments = QStringList{QStringLiteral("--progress=always")} + noise;
        const QByteArray expected = merged("expected.pdf", arguments, {}, 0);
        QVERIFY(expected.size() > 12'000'000);
        QVERIFY(merged("written.pdf", arguments, closed, exitCode) == expected);
        QString log;
        QVERIFY2(PdfProbe(path("written.pdf")).isValid(&log), qPrintable(log));
    }

    void aPasswordIsNotTakenFromAClosedDescriptor() {
        QProcess process;
        process.setChildProcessModifier([] { ::close(STDIN_FILENO); });
        process.start(kProgram, {QStringLiteral("--user-password-file=-"),
                                 QStringLiteral("--output-folder"), path("out"), text("a.txt")});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 2);
        QVERIFY(outputs().isEmpty());
    }

    void eachInputBecomesAPdf() {
        const ToolRun run = convert({text("a.txt"), test::writePng(path("b.png"), 30, 20),
                                     test::writePdf(path("c.pdf"), 3)});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.err.isEmpty(), run.err.constData());
        QCOMPARE(outputs().join(u' '), QStringLiteral("a.pdf b.pdf c.pdf"));
        QCOMPARE(run.out,
                 (path("out/a.pdf") + u'\n' + path("out/b.pdf") + u'\n' + path("out/c.pdf") + u'\n')
                     .toUtf8());
        QVERIFY(PdfProbe(path("out/a.pdf")).text().contains(QStringLiteral("words")));
        QCOMPARE(PdfProbe(path("out/c.pdf")).pageCount(), 3);
    }

    void theSameInputTwiceGivesTwoPdfs() {
        const QString file = text("a.txt");
        QCOMPARE(convert({file, file}).exitCode, 0);
        QCOMPARE(outputs().join(u' '), QStringLiteral("a(1).pdf a.pdf"));
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
        const ToolRun run = convert(
            {QStringLiteral("--json"), QStringLiteral("--compress"), QStringLiteral("96m"), photo});
        QCOMPARE(run.exitCode, 0);
        const QJsonObject result = QJsonDocument::fromJson(run.out).object();
        const qint64 after = result[QStringLiteral("bytesAfter")].toInteger();
        QCOMPARE(after, QFileInfo(path("out/photo.pdf")).size());
        QVERIFY(after < result[QStringLiteral("bytesBefore")].toInteger() / 2);
        QCOMPARE(result[QStringLiteral("imagesReduced")].toInt(), 1);
        QCOMPARE(result[QStringLiteral("imagesLeft")].toArray().size(), 0);
    }

    void aMergedPdfHoldsAllInTheOrderGiven() {
        const ToolRun run = merge("out/all", {text("b.txt", "second"), text("a.txt", "first")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(outputs(), QStringList{QStringLiteral("all.pdf")});
        const PdfProbe probe(path("out/all.pdf"));
        QVERIFY(probe.isValid());
        QVERIFY(probe.text(1).contains(QStringLiteral("second")));
        QVERIFY(probe.text(2).contains(QStringLiteral("first")));
    }

    void inputsAreSortedOnRequest() {
        const QStringList files{text("p10.txt", "ten"), text("P9.txt", "nine"),
                                text("p1.txt", "one and more")};
        QCOMPARE(merge("natural", QStringList{QStringLiteral("--sort=natural")} + files).exitCode,
                 0);
        QVERIFY(PdfProbe(path("natural.pdf")).text(2).contains(QStringLiteral("nine")));
        QCOMPARE(merge("size", QStringList{QStringLiteral("--sort=size")} + files).exitCode, 0);
        QVERIFY(PdfProbe(path("size.pdf")).text(3).contains(QStringLiteral("one and more")));
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
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("in/sub")));
        text("in/b.TXT");
        test::writePdf(path("in/a.PDF"), 1);
        test::writePng(path("in/c.png"), 3, 3);
        text("in/sub/deep.txt");
        const ToolRun run = convert({path("in/")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(outputs().join(u' '), QStringLiteral("b.pdf c.pdf"));
    }

    void theFilesOfAFolderComeInTheOrderOfTheirNames() {
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("in")));
        for (const char *name : {"in/a.txt", "in/10.txt", "in/é.txt", "in/9.txt", "in/B.txt"}) {
            text(name);
        }
        const ToolRun run = convert({QStringLiteral("--json"), path("in")});
        QStringList inputs;
        for (const QJsonObject &object : objectsOf(run.out)) {
            inputs += member(object, "input");
        }
        QCOMPARE(inputs, (QStringList{path("in/10.txt"), path("in/9.txt"), path("in/B.txt"),
                                      path("in/a.txt"), path("in/é.txt")}));
    }

    void aFolderThatCannotBeListedIsNamedAndTheRestConverted() {
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("in")));
        text("in/a.txt");
        QVERIFY(QFile::setPermissions(path("in"), {}));
        QProcess process;
        process.setChildProcessModifier(giveUpRightsOfRoot);
        process.start(kProgram, {QStringLiteral("--json"), QStringLiteral("--output-folder"),
                                 path("out"), path("in/"), text("good.txt")});
        QVERIFY(process.waitForFinished());
        QVERIFY(QFile::setPermissions(path("in"),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(process.exitCode(), 1);
        const auto objects = objectsOf(process.readAllStandardOutput());
        QCOMPARE(objects.size(), 2);
        QCOMPARE(member(objects[0], "input"), path("in/"));
        QCOMPARE(member(objects[0], "state"), QStringLiteral("rejected"));
        QVERIFY(member(objects[0], "message").endsWith(QStringLiteral("Permission denied")));
        QVERIFY(process.readAllStandardError().contains(path("in/").toUtf8() + ": "));
        QCOMPARE(outputs(), QStringList{QStringLiteral("good.pdf")});
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
        const ToolRun run = convert({QStringLiteral("--colour"), text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.contains("--colour") && run.err.contains("--help"));
        QVERIFY(outputs().isEmpty());
    }

    void namesWithDashesFollowTwoDashes() {
        text("-a.txt");
        const ToolRun run =
            test::runTool(QStringLiteral("sh"),
                          {QStringLiteral("-c"),
                           QStringLiteral("cd \"$1\" && exec \"$0\" --output-folder out -- -a.txt"),
                           kProgram, m_folder->path()});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(outputs(), QStringList{QStringLiteral("-a.pdf")});
    }

    void everyBadInputIsNamedWithItsReasonAndTheRestConverted() {
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("folder.png")));
        QCOMPARE(::mkfifo(qPrintable(path("pipe.txt")), 0600), 0);
        QCOMPARE(::mkfifo(qPrintable(path("pipe.pdf")), 0600), 0);
        const QString png = test::writePng(path("whole.png"), 50, 50);
        const QStringList bad{path("missing.txt"),
                              path("pipe.txt"),
                              path("pipe.pdf"),
                              QStringLiteral("/dev/zero"),
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
        QCOMPARE(outputs(), QStringList{QStringLiteral("good.pdf")});
    }

    void refusedPdfsAreListedInTheWindowsWords() {
        const QString plain = test::writePdf(path("plain.pdf"), 1);
        const QString locked =
            test::encryptPdf(plain, path("locked.pdf"), QStringLiteral("secret"));
        const QString broken = text("broken.pdf", "no document");
        const ToolRun run = convert({locked, plain, broken});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.contains("Fail to import following files. They are encrypted or not normal "
                                 "PDF files:\n    " +
                                 locked.toUtf8() + "\n    " + broken.toUtf8() + '\n'));
        QVERIFY(run.err.contains(locked.toUtf8() + ": "));
        QCOMPARE(outputs(), QStringList{QStringLiteral("plain.pdf")});
    }

    void aTextThatIsNotUtf8IsConvertedWithAWarning() {
        const ToolRun run = convert({text("a.txt", "caf\xE9")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.err.contains("warning") && run.err.contains("UTF-8"));
        QCOMPARE(PdfProbe(path("out/a.pdf")).pageCount(), 1);
    }

    void aFailureIsSaidBesideAWarning() {
        const QString script =
            QStringLiteral("trap '' XFSZ; ulimit -f 0; exec \"$0\" --json --merge \"$1\" \"$2\"");
        const ToolRun run =
            test::runTool(QStringLiteral("sh"), {QStringLiteral("-c"), script, kProgram,
                                                 path("out/all"), text("a.txt", "caf\xE9")});
        QCOMPARE(run.exitCode, 1);
        const QString message = member(objectsOf(run.out).value(0), "message");
        QVERIFY2(message.contains(QStringLiteral("not valid UTF-8")), qPrintable(message));
        QVERIFY2(message.contains(QStringLiteral("File too large")), qPrintable(message));
        QVERIFY2(run.err.contains(message.toUtf8()), run.err.constData());
    }

    void nothingToConvertIsAFailure() {
        QCOMPARE(convert({path("missing.txt")}).exitCode, 1);
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("empty")));
        const ToolRun run = convert({path("empty")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(!run.err.isEmpty());
    }

    void jsonTellsHowEachInputWent() {
        const ToolRun run =
            convert({QStringLiteral("--json"), text("a.txt"), path("missing.png"),
                     test::writePng(path("b.png"), 30, 20), test::writePdf(path("c.pdf"), 2)});
        QCOMPARE(run.exitCode, 1);
        const auto objects = objectsOf(run.out);
        QCOMPARE(objects.size(), 4);
        QCOMPARE(member(objects[0], "input"), path("missing.png"));
        QCOMPARE(member(objects[0], "state"), QStringLiteral("rejected"));
        QVERIFY(!member(objects[0], "message").isEmpty());
        QCOMPARE(member(objects[1], "output"), path("out/a.pdf"));
        QCOMPARE(member(objects[1], "state"), QStringLiteral("finished"));
        QVERIFY(!objects[1].contains(QStringLiteral("message")));
        QVERIFY(!objects[1].contains(QStringLiteral("embedded")));
        QVERIFY(!member(objects[2], "embedded").isEmpty());
        QCOMPARE(objects[3][QStringLiteral("pages")].toInt(), 2);
    }

    void jsonOfAMergeNamesTheOnePdfForEach() {
        const ToolRun run = merge("out/all", {QStringLiteral("--json"), text("a.txt"),
                                              text("b.txt"), text("c.png", "x")});
        QCOMPARE(run.exitCode, 1);
        const auto objects = objectsOf(run.out);
        QCOMPARE(objects.size(), 3);
        QCOMPARE(member(objects[1], "output"), path("out/all.pdf"));
        QCOMPARE(member(objects[2], "output"), path("out/all.pdf"));
    }

    void quietLeavesOnlyErrors() {
        const ToolRun run = convert({QStringLiteral("--quiet"), QStringLiteral("--progress=always"),
                                     text("a.txt"), path("missing.txt")});
        QVERIFY(run.out.isEmpty());
        QCOMPARE(run.err.count('\n'), 1);
        QVERIFY(run.err.contains("missing.txt"));
    }

    void progressIsShownOnRequestAndTakenAwayAtTheEnd() {
        const ToolRun quiet = convert({text("a.txt")});
        QVERIFY(quiet.err.isEmpty());
        const ToolRun run = convert({QStringLiteral("--progress=always"), text("b.txt")});
        QVERIFY(run.err.contains("1 of 1  50 %"));
        QVERIFY(run.err.endsWith("\r\033[K"));
    }

    void aLongNameInProgressIsCutToItsLastColumns_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("shown"); // 48 columns.
        const auto row = [](const char *tag, const QString &character, int count, int shown) {
            const QString end = QStringLiteral(".txt");
            QTest::newRow(tag) << character.repeated(count) + end
                               << character.repeated(shown) + end;
        };
        row("letters", QStringLiteral("a"), 60, 44);
        row("wide", QStringLiteral("\u3042"), 60, 22);
        row("wide, of two code units", QStringLiteral("\U0001F600"), 40, 22);
        row("with a mark on each", QStringLiteral("e\u0301"), 60, 44);
        row("spelled out", QStringLiteral("\x1b"), 60, 11);
        QTest::newRow("wide across the edge") << QString(60, u'\u3042') + QStringLiteral("x.txt")
                                              << QString(21, u'\u3042') + QStringLiteral("x.txt");
        QTest::newRow("a mark at the edge") << QString(9, u'b') + QStringLiteral("e\u0301") +
                                                   QString(44, u'a') + QStringLiteral(".txt")
                                            << QString(44, u'a') + QStringLiteral(".txt");
    }
    void aLongNameInProgressIsCutToItsLastColumns() {
        QFETCH(QString, name);
        QFETCH(QString, shown);
        const QString file = test::writeFile(m_folder->filePath(name), "words");
        const ToolRun run = convert({QStringLiteral("--progress=always"), file});
        shown.replace(u'\x1b', QStringLiteral("\\x1b"));
        QVERIFY2(run.err.startsWith("1 of 1  0 %  " + shown.toUtf8() + "\r"), run.err.constData());
    }

    void namesThatMoveTheCursorArePrintedHarmlessly() {
        const ToolRun run = convert({path("\x1b[2Jevil.txt")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(!run.err.contains('\x1b'));
        QVERIFY(run.err.contains("\\x1b[2Jevil.txt"));
    }

    void documentPropertiesArriveInThePdf() {
        QCOMPARE(convert({QStringLiteral("--title"), QStringLiteral("Große Titel"),
                          QStringLiteral("--keywords=k"), text("a.txt")})
                     .exitCode,
                 0);
        QCOMPARE(PdfProbe(path("out/a.pdf")).info(QStringLiteral("Title")),
                 QStringLiteral("Große Titel"));
    }

    void aPasswordComesFromTheFirstLineOfAFile() {
        const QString file = text("password", "sécret\r\nnot this\n");
        QCOMPARE(convert({QStringLiteral("--user-password-file"), file, text("a.txt")}).exitCode,
                 0);
        QCOMPARE(PdfProbe(path("out/a.pdf")).pageCount(), 0);
        QCOMPARE(PdfProbe(path("out/a.pdf"), QStringLiteral("sécret")).pageCount(), 1);
    }

    void aPasswordComesFromStandardInput() {
        QCOMPARE(
            convert({QStringLiteral("--user-password-file=-"), text("a.txt")}, "secret\n").exitCode,
            0);
        QCOMPARE(PdfProbe(path("out/a.pdf"), QStringLiteral("secret")).pageCount(), 1);
    }

    void bothPasswordsComeFromTwoLinesOfStandardInput() {
        QCOMPARE(convert({QStringLiteral("--owner-password-file=-"),
                          QStringLiteral("--user-password-file=-"),
                          QStringLiteral("--refuse-print"), text("a.txt")},
                         "user\nowner\n")
                     .exitCode,
                 0);
        const PdfProbe probe(path("out/a.pdf"), QStringLiteral("user"));
        QVERIFY2(
            probe.info(QStringLiteral("Encrypted")).contains(QStringLiteral("print:no copy:yes")),
            qPrintable(probe.info(QStringLiteral("Encrypted"))));
    }

    void passwordsComeFromTheEnvironment() {
        const ToolRun run = test::runTool(
            QStringLiteral("env"), {QStringLiteral("FOLIOFORGE_USER_PASSWORD=user"),
                                    QStringLiteral("FOLIOFORGE_OWNER_PASSWORD=owner"), kProgram,
                                    QStringLiteral("--refuse-copy"),
                                    QStringLiteral("--output-folder"), path("out"), text("a.txt")});
        QCOMPARE(run.exitCode, 0);
        const PdfProbe probe(path("out/a.pdf"), QStringLiteral("user"));
        QVERIFY(probe.info(QStringLiteral("Encrypted")).contains(QStringLiteral("copy:no")));
    }

    void equalPasswordsGetTheirNotice() {
        const QString file = text("password", "same");
        const ToolRun run = convert({QStringLiteral("--user-password-file"), file,
                                     QStringLiteral("--owner-password-file"), file, text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.contains("The passwords can not be the same."));
        QVERIFY(outputs().isEmpty());
    }

    void aPasswordFileThatCannotBeReadStopsTheRun() {
        const ToolRun run =
            convert({QStringLiteral("--user-password-file"), path("missing"), text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.contains(path("missing").toUtf8()));
        QVERIFY(outputs().isEmpty());
    }

    void filesWhoseNamesAreNotUtf8AreConverted() {
        const QString script = QStringLiteral(
            "cd \"$1\" && mkdir in && name=$(printf 'caf\\351.txt') && echo words >\"in/$name\" && "
            "exec \"$0\" --json --output-folder out \"in/$name\" in");
        const ToolRun run = test::runTool(
            QStringLiteral("sh"), {QStringLiteral("-c"), script, kProgram, m_folder->path()});
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(objectsOf(run.out).size(), 2);
        QCOMPARE(outputs().size(), 2);
        for (const QString &name : outputs()) {
            QVERIFY(PdfProbe(path("out/") + name).text().contains(QStringLiteral("words")));
        }
    }

    void anotherLocaleChangesNothing() {
        const ToolRun run =
            test::runTool(QStringLiteral("env"),
                          {QStringLiteral("LC_ALL=C"), kProgram, QStringLiteral("--output-folder"),
                           path("out"), text("größe.txt")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.err.isEmpty(), run.err.constData());
        QCOMPARE(outputs(), QStringList{QStringLiteral("größe.pdf")});
    }

    void aReaderThatGoesAwayStopsNothing() {
        const QString script =
            QStringLiteral("\"$0\" --json --output-folder \"$1\" \"$2\" \"$2\" \"$2\" | true");
        test::runTool(QStringLiteral("sh"),
                      {QStringLiteral("-c"), script, kProgram, path("out"), text("a.txt")});
        QCOMPARE(outputs().size(), 3);
    }

    void anInterruptedRunLeavesNoFile() {
        const QString large =
            text("large.txt", QByteArray("many words on a line\n").repeated(1'500'000));
        QProcess process;
        process.start(kProgram, {QStringLiteral("--progress=always"), QStringLiteral("--merge"),
                                 path("out/large"), large});
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

QTEST_GUILESS_MAIN(CommandLineTest)
#include "CommandLineTest.moc"
