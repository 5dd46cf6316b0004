// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/Files.h"
#include "support/HostileNames.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::PdfProbe;
using test::ToolRun;

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
        return test::runTool(test::kProgram,
                             QStringList{u"--output-folder"_s, path("out")} + arguments);
    }

  private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(path("in")));
        QVERIFY(QDir().mkpath(path("out")));
    }
    void cleanup() {
        // Qt cannot name all of them, nor remove them.
        test::runTool(u"rm"_s, {u"-rf"_s, path("in")});
    }

    void eachIsConvertedUnderItsName() {
        writeInputs(".txt", "number");
        const ToolRun run = convert({path("in")});
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QVERIFY(test::isHarmlessForTerminals(run.out));
        QCOMPARE(outputs().size(), test::hostileNames().size());
        int number = 0;
        for (const QByteArray &name : test::hostileNames()) {
            const QString output = path("out/") + test::readableBase(name) + u".pdf"_s;
            QVERIFY2(QFile::exists(output), qPrintable(output));
            QCOMPARE(PdfProbe(output).text().trimmed(), u"number%1"_s.arg(++number));
        }
        QVERIFY(!QFile::exists(path("pwned")) && !QFile::exists(u"pwned"_s));
    }

    void jsonHoldsEachNameAndNothingThatATerminalObeys() {
        writeInputs(".txt", "number");
        const ToolRun run = convert({u"--json"_s, path("in")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(test::isHarmlessForTerminals(run.out));
        QStringList shown;
        for (const QJsonObject &object : test::objectsOf(run.out)) {
            shown += object[u"input"_s].toString();
            QVERIFY(QFile::exists(object[u"output"_s].toString()));
        }
        for (const QByteArray &name : test::hostileNames()) {
            QVERIFY(shown.contains(path("in/") + QString::fromUtf8(name)));
        }
    }

    void failuresAndProgressNameThemHarmlessly() {
        writeInputs(".png", "no picture ");
        const ToolRun run = convert({u"--progress=always"_s, path("in")});
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
        QCOMPARE(outputs(), QStringList{kept + u".pdf"_s});
        QCOMPARE(PdfProbe(path("out/") + outputs().first()).text().trimmed(), u"words"_s);
    }

    void aWrongArgumentIsRepeatedHarmlessly() {
        for (const QByteArray &name : test::hostileNames()) {
            const QString argument = QString::fromUtf8(name);
            const ToolRun run = convert({u"--"_s + argument, argument});
            QCOMPARE(run.exitCode, 2);
            QVERIFY2(test::isHarmlessForTerminals(run.err), run.err.constData());
        }
    }

    void leadingDashesAreNoOptionsBehindTwoDashes() {
        writeInputs(".txt", "number");
        QProcess process;
        process.setWorkingDirectory(path("in"));
        process.start(test::kProgram,
                      {u"--output-folder=../out"_s, u"--"_s, u"-rf.txt"_s, u"--json.txt"_s});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(outputs(), (QStringList{u"--json.pdf"_s, u"-rf.pdf"_s}));
    }

    void aMergedPdfCanHaveAnyNameThatIsText() {
        const QString source = test::writeFile(path("a.txt"), "words");
        int merged = 0;
        for (const QByteArray &name : test::hostileNames()) {
            const QString readable = QString::fromUtf8(name);
            if (readable.toUtf8() != name) {
                continue;
            }
            const QString target = path("out/") + test::readableBase(name) + u".pdf"_s;
            const ToolRun run = test::runTool(test::kProgram, {u"--merge"_s, target, source});
            QCOMPARE(run.exitCode, 0);
            QVERIFY(test::isHarmlessForTerminals(run.out));
            QVERIFY(QFile::exists(target));
            ++merged;
        }
        QCOMPARE(outputs().size(), merged);
    }
};

FOLIOFORGE_TEST(NamesTest)
#include "NamesTest.moc"
