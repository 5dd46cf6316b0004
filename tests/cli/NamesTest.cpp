#include "support/Files.h"
#include "support/HostileNames.h"
#include "support/PdfProbe.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace folioforge;
using test::PdfProbe;
using test::ToolRun;

namespace {

const QString kProgram = QStringLiteral(FOLIOFORGE_CLI);

} // namespace

/// File names that are made to be misread are converted under their names, and shown harmlessly.
class NamesTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const char *name) const { return m_folder->filePath(QString::fromLatin1(name)); }
    QStringList outputs() const {
        return QDir(path("out"))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    void writeInputs(const char *extension, const QByteArray &start) const {
        int number = 0;
        for (QByteArray name : test::hostileNames()) {
            name.replace(".txt", extension);
            test::writeFileNamed(QFile::encodeName(path("in")) + '/' + name,
                                 start + QByteArray::number(++number) + "\n");
        }
    }
    ToolRun convert(const QStringList &arguments) const {
        return test::runTool(kProgram, QStringList{QStringLiteral("--output-folder"), path("out")} +
                                           arguments);
    }

  private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(path("in")));
        QVERIFY(QDir().mkpath(path("out")));
    }
    void cleanup() {
        // Qt cannot name all of them, nor remove them.
        test::runTool(QStringLiteral("rm"), {QStringLiteral("-rf"), path("in")});
    }

    void eachIsConvertedUnderItsName() {
        writeInputs(".txt", "number");
        const ToolRun run = convert({path("in")});
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QVERIFY(test::isHarmlessForTerminals(run.out));
        QCOMPARE(outputs().size(), test::hostileNames().size());
        int number = 0;
        for (const QByteArray &name : test::hostileNames()) {
            const QString output = path("out/") + test::readableBase(name) + QStringLiteral(".pdf");
            QVERIFY2(QFile::exists(output), qPrintable(output));
            QCOMPARE(PdfProbe(output).text().trimmed(), QStringLiteral("number%1").arg(++number));
        }
        QVERIFY(!QFile::exists(path("pwned")) && !QFile::exists(QStringLiteral("pwned")));
    }

    void jsonHoldsEachNameAndNothingThatATerminalObeys() {
        writeInputs(".txt", "number");
        const ToolRun run = convert({QStringLiteral("--json"), path("in")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(test::isHarmlessForTerminals(run.out));
        QStringList shown;
        for (const QByteArray &line : run.out.trimmed().split('\n')) {
            const QJsonObject object = QJsonDocument::fromJson(line).object();
            shown += object[QStringLiteral("input")].toString();
            QVERIFY(QFile::exists(object[QStringLiteral("output")].toString()));
        }
        for (const QByteArray &name : test::hostileNames()) {
            QVERIFY(shown.contains(path("in/") + QString::fromUtf8(name)));
        }
    }

    void failuresAndProgressNameThemHarmlessly() {
        writeInputs(".png", "no picture ");
        const ToolRun run = convert({QStringLiteral("--progress=always"), path("in")});
        QCOMPARE(run.exitCode, 1);
        QByteArray shown = run.err;
        shown.replace("\r\033[K", ""); // The progress line's own.
        QVERIFY(test::isHarmlessForTerminals(shown));
        QCOMPARE(run.err.count("folioforge-cli: "), test::hostileNames().size());
        QVERIFY(outputs().isEmpty());
    }

    void aNameThatIsLongerOnceReadableIsCut() {
        // In KOI8-R; each byte that is no text becomes three.
        test::writeFileNamed(QFile::encodeName(path("in")) + '/' +
                                 QByteArray("\xcb").repeated(120) + ".TXT",
                             "words");
        const ToolRun run = convert({path("in")});
        QVERIFY2(run.exitCode == 0, run.err.constData());
        const QString kept = QString((255 - 4) / 3, QChar::ReplacementCharacter);
        QCOMPARE(outputs(), QStringList{kept + QStringLiteral(".pdf")});
        QCOMPARE(PdfProbe(path("out/") + outputs().first()).text().trimmed(),
                 QStringLiteral("words"));
    }

    void aWrongArgumentIsRepeatedHarmlessly() {
        for (const QByteArray &name : test::hostileNames()) {
            const QString argument = QString::fromUtf8(name);
            const ToolRun run = convert({QStringLiteral("--") + argument, argument});
            QCOMPARE(run.exitCode, 2);
            QVERIFY2(test::isHarmlessForTerminals(run.err), run.err.constData());
        }
    }

    void leadingDashesAreNoOptionsBehindTwoDashes() {
        writeInputs(".txt", "number");
        QProcess process;
        process.setWorkingDirectory(path("in"));
        process.start(kProgram, {QStringLiteral("--output-folder=../out"), QStringLiteral("--"),
                                 QStringLiteral("-rf.txt"), QStringLiteral("--json.txt")});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(outputs(), (QStringList{QStringLiteral("--json.pdf"), QStringLiteral("-rf.pdf")}));
    }

    void aMergedPdfCanHaveAnyNameThatIsText() {
        const QString source = test::writeFile(path("a.txt"), "words");
        int merged = 0;
        for (const QByteArray &name : test::hostileNames()) {
            const QString readable = QString::fromUtf8(name);
            if (readable.toUtf8() != name) {
                continue;
            }
            const QString target = path("out/") + test::readableBase(name) + QStringLiteral(".pdf");
            const ToolRun run =
                test::runTool(kProgram, {QStringLiteral("--merge"), target, source});
            QCOMPARE(run.exitCode, 0);
            QVERIFY(test::isHarmlessForTerminals(run.out));
            QVERIFY(QFile::exists(target));
            ++merged;
        }
        QCOMPARE(outputs().size(), merged);
    }
};

QTEST_GUILESS_MAIN(NamesTest)
#include "NamesTest.moc"
