// SPDX-License-Identifier: Apache-2.0

#include "support/Files.h"
#include "support/HostileNames.h"
#include "support/LimitedRun.h"
#include "support/PdfProbe.h"
#include "support/PhotoPage.h"
#include "support/Places.h"
#include "support/RunFolders.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <QThread>

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <optional>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::PdfProbe;

/// Runs that are ended at any moment leave whole documents and next to nothing else.
class InterruptionsTest : public QObject {
    Q_OBJECT

    std::optional<test::RunFolders> m_folders;

    QString path(const char *name) const { return m_folders->path(name); }
    QStringList hiddenIn(const char *folder) const {
        return QDir(path(folder))
            .entryList({u".*"_s}, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    /// A file whose name no text can hold; a link in the temporary folder stands for it.
    QByteArray notText() const { return QFile::encodeName(path("in")) + "/caf\xe9.jpg"; }
    QStringList arguments() const {
        return {u"--output-folder"_s, path("out"), u"--compress"_s, u"72l"_s,
                path("photo.jpg"),    path("in")};
    }
    /// Milliseconds of a whole run.
    int wholeRun() const {
        QElapsedTimer timer;
        timer.start();
        const auto run = test::runTool(test::commandLineProgram(), arguments());
        return run.exitCode == 0 ? static_cast<int>(timer.elapsed()) : 0;
    }
    void endARun(int signal, int milliseconds) const {
        QProcess process;
        process.start(test::commandLineProgram(), arguments());
        QVERIFY(process.waitForStarted());
        QThread::msleep(static_cast<unsigned long>(milliseconds));
        ::kill(static_cast<pid_t>(process.processId()), signal);
        QVERIFY(process.waitForFinished());
    }

  private Q_SLOTS:
    void init() {
        m_folders.emplace();
        QImage photo = test::photo(1200, 900);
        constexpr int kDotsPerMeter = 23622; // 600 per inch
        photo.setDotsPerMeterX(kDotsPerMeter);
        photo.setDotsPerMeterY(kDotsPerMeter);
        QVERIFY(photo.save(path("photo.jpg"), "JPG", 95));
        QVERIFY(QDir().mkpath(path("in")));
        test::writeFileNamed(notText(), test::readFile(path("photo.jpg")));
    }
    void cleanup() {
        QCOMPARE(::unlink(notText().constData()), 0);
        m_folders.reset();
    }

    void atAnyMomentOnlyWholeDocumentsAreLeft_data() {
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("maxLeft");
        QTest::newRow("killed") << SIGKILL << 1;
        QTest::newRow("terminated") << SIGTERM << 0;
        QTest::newRow("interrupted") << SIGINT << 0;
    }
    void atAnyMomentOnlyWholeDocumentsAreLeft() {
        QFETCH(const int, signal);
        QFETCH(const int, maxLeft);
        const int longest = wholeRun();
        QVERIFY(longest > 0);
        constexpr int kRuns = 12;
        int left = 0;
        for (int run = 0; run < kRuns; ++run) {
            endARun(signal, QRandomGenerator::global()->bounded(longest + 1));
            QVERIFY(hiddenIn("out").size() <= maxLeft);
            QVERIFY(hiddenIn("temporary").size() <= maxLeft);
            left += static_cast<int>(hiddenIn("out").size() + hiddenIn("temporary").size());
        }
        QVERIFY(wholeRun() > 0);
        QCOMPARE(hiddenIn("out") + hiddenIn("temporary"), QStringList());
        QCOMPARE(QDir(path("temporary")).entryList(QDir::Files), QStringList());
        const QStringList documents = QDir(path("out")).entryList(QDir::Files);
        for (const QString &name : documents) {
            QVERIFY(PdfProbe(path("out/") + name).isValid());
        }
        qInfo("%d runs ended, %d parts left and cleared, %d documents whole", kRuns, left,
              static_cast<int>(documents.size()));
    }

    void aPdfBeyondTheLimitOfFileSizesFailsAlone() {
        const QString small = test::writeFile(path("small.txt"), "words");
        test::Limits limits;
        limits.fileSize = QFileInfo(path("photo.jpg")).size() / 2;
        const auto run =
            test::runLimited(test::commandLineProgram(),
                             {u"--output-folder"_s, path("out"), path("photo.jpg"), small}, limits);
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("photo.jpg: ") && run.err.contains(std::strerror(EFBIG)),
                 run.err.constData());
        QCOMPARE(QDir(path("out")).entryList(QDir::Files | QDir::Hidden),
                 QStringList{u"small.pdf"_s});
        QVERIFY(PdfProbe(path("out/small.pdf")).isValid());
    }

    void theLimitOfProcessorTimeEndsTheRunInOrder_data() {
        QTest::addColumn<int>("seconds");
        QTest::newRow("one second") << 1;
        QTest::newRow("two seconds") << 2;
    }
    void theLimitOfProcessorTimeEndsTheRunInOrder() {
        QFETCH(const int, seconds);
        const QString text = test::writeFile(path("long.txt"), QByteArray(1 << 20, 'x'));
        constexpr qsizetype kInputs = 2000; // Far more than two seconds are enough for.
        test::Limits limits;
        limits.processorSeconds = seconds;
        const auto run = test::runLimited(
            test::commandLineProgram(),
            QStringList{u"--output-folder"_s, path("out")} + QStringList(kInputs, text), limits);
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.contains("folioforge-cli: The limit of processor time is reached\n"));
        const QStringList documents = QDir(path("out")).entryList(QDir::Files | QDir::Hidden);
        QVERIFY(!documents.isEmpty());
        // Each input is named, as the PDF that it became or with the reason.
        QCOMPARE(run.err.count("long.txt: ") + documents.size(), kInputs);
        QVERIFY(PdfProbe(path("out/") + documents.last()).isValid());
        QCOMPARE(hiddenIn("temporary"), QStringList());
    }

    void aFileSystemWithoutAFlushIsSaidOnce() {
        const QString text = test::writeFile(path("a.txt"), "words");
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LD_PRELOAD"_s, test::inBuild(u"tests/cli/libno_flush.so"_s));
        environment.insert(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0"_s);
        process.setProcessEnvironment(environment);
        process.start(test::commandLineProgram(),
                      {u"--output-folder"_s, path("out"), u"--strict"_s, text, text});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.readAllStandardError().count("cannot flush"), 1);
        QCOMPARE(process.exitCode(), 1);
        QCOMPARE(QDir(path("out")).entryList(QDir::Files),
                 (QStringList{u"a(1).pdf"_s, u"a.pdf"_s}));
    }
};

FOLIOFORGE_TEST(InterruptionsTest)
#include "InterruptionsTest.moc"
