// SPDX-License-Identifier: Apache-2.0

#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/PhotoPage.h"
#include "support/Places.h"
#include "support/RunFolders.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QProcess>
#include <QTest>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::PdfProbe;

namespace {

constexpr int kProcesses = 8;

struct Ended {
    int exitCode = -1;
    QByteArray err;
};

/// Runs the program eight times at once with the same arguments.
std::vector<Ended> runAtOnce(const QStringList &arguments) {
    std::array<QProcess, kProcesses> processes;
    for (QProcess &process : processes) {
        process.start(test::commandLineProgram(), arguments);
    }
    std::vector<Ended> ended;
    for (QProcess &process : processes) {
        process.waitForFinished();
        ended.push_back({process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                         process.readAllStandardError()});
    }
    return ended;
}

} // namespace

/// Processes that write the same names into one folder at the same time lose nothing.
class RacesTest : public QObject {
    Q_OBJECT

    std::optional<test::RunFolders> m_folders;

    QString path(const char *name) const { return m_folders->path(name); }
    QStringList namesIn(const char *folder) const {
        return QDir(path(folder))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    QStringList sources() const {
        return {test::writeFile(path("same.txt"), "words"),
                test::writePng(path("same.png"), 30, 20), test::writePdf(path("same.pdf"), 2)};
    }
    void checkThatAllAreValid(const QString &word = {}) const {
        for (const QString &name : namesIn("out")) {
            const PdfProbe probe(path("out/") + name);
            QString log;
            QVERIFY2(probe.isValid(&log), qPrintable(log));
            QVERIFY(word.isEmpty() || probe.text().contains(word));
        }
    }

  private Q_SLOTS:
    void initTestCase() { qputenv("SOURCE_DATE_EPOCH", "1700000000"); }
    void init() { m_folders.emplace(); }
    void cleanup() {
        QCOMPARE(namesIn("temporary"), QStringList());
        m_folders.reset();
    }

    void eachProcessKeepsEachOfItsPdfs() {
        const auto ended = runAtOnce(QStringList{u"--output-folder"_s, path("out")} + sources());
        for (const Ended &one : ended) {
            QVERIFY2(one.exitCode == 0, one.err.constData());
        }
        QCOMPARE(namesIn("out").size(), 3 * kProcesses);
        checkThatAllAreValid();
    }

    void eachProcessKeepsItsCompressedPdf() {
        QImage photo = test::photo(600, 400);
        constexpr int kDotsPerMeter = 23622; // 600 per inch
        photo.setDotsPerMeterX(kDotsPerMeter);
        photo.setDotsPerMeterY(kDotsPerMeter);
        QVERIFY(photo.save(path("photo.jpg"), "JPG", 95));
        const auto ended = runAtOnce({u"--output-folder"_s, path("out"), u"--compress"_s, u"96m"_s,
                                      path("photo.jpg"), path("photo.jpg")});
        for (const Ended &one : ended) {
            QVERIFY2(one.exitCode == 0, one.err.constData());
        }
        const QStringList names = namesIn("out");
        QCOMPARE(names.size(), 2 * kProcesses);
        const QByteArray first = test::readFile(path("out/") + names.front());
        QVERIFY(std::all_of(names.begin(), names.end(), [&](const QString &name) {
            return test::readFile(path("out/") + name) == first;
        }));
        checkThatAllAreValid();
    }

    void exactlyOneProcessMerges() {
        const auto ended = runAtOnce(QStringList{u"--merge"_s, path("out/all.pdf")} + sources());
        QCOMPARE(std::count_if(ended.begin(), ended.end(),
                               [](const Ended &one) { return one.exitCode == 0; }),
                 1);
        for (const Ended &one : ended) {
            QVERIFY(
                one.exitCode == 0 ||
                (one.exitCode == 2 && one.err.contains("out/all.pdf\" exists; take another name")));
        }
        QCOMPARE(namesIn("out"), QStringList{u"all.pdf"_s});
        checkThatAllAreValid(u"words"_s);
    }

    void aPlantedLinkIsNotFollowed() {
        QVERIFY(QFile::link(path("stranger"), path("out/same.pdf")));
        QVERIFY(QFile::link(path("stranger"), path("out/all.pdf")));
        const QString source = test::writeFile(path("same.txt"), "words");
        QCOMPARE(
            test::runTool(test::commandLineProgram(), {u"--output-folder"_s, path("out"), source})
                .exitCode,
            0);
        QCOMPARE(
            test::runTool(test::commandLineProgram(), {u"--merge"_s, path("out/all.pdf"), source})
                .exitCode,
            2);
        QCOMPARE(namesIn("out").join(u' '), u"all.pdf same(1).pdf same.pdf"_s);
        QVERIFY(!QFile::exists(path("stranger")));
    }
};

FOLIOFORGE_TEST(RacesTest)
#include "RacesTest.moc"
