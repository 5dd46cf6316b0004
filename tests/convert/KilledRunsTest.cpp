#include "WholeRun.h"

#include <QRandomGenerator>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

using namespace folioforge;
using namespace folioforge::test;

/// Runs that are killed at random moments.
class KilledRunsTest : public QObject, private WholeRun {
    Q_OBJECT

    /// Begins runs in a process of its own and kills that at a random moment.
    void killInItsMidst(const Kind &kind, const std::map<std::string, int> &missing) const {
        const pid_t child = ::fork();
        if (child == 0) {
            for (;;) {
                FaultyCalls calls;
                calls.failing = missing;
                QFile::remove(output());
                run(kind, calls);
            }
        }
        constexpr int kLongest = 60'000; // A few runs.
        ::usleep(static_cast<useconds_t>(QRandomGenerator::global()->bounded(kLongest)));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
    }

    static QStringList partsIn(const QString &folder) {
        return namesIn(folder).filter(QStringLiteral(".folioforge-part"));
    }

  private Q_SLOTS:
    void initTestCase() { setUp(); }
    void init() { clear(); }

    void aKilledRunLeavesAtMostOnePartThatTheNextRunClears_data() {
        QTest::addColumn<QStringList>("missing");
        QTest::newRow("nameless file") << QStringList();
        QTest::newRow("part file") << QStringList{QStringLiteral("openAnonymous")};
    }
    void aKilledRunLeavesAtMostOnePartThatTheNextRunClears() {
        QFETCH(QStringList, missing);
        const Kind kind{false, false, 1};
        QVERIFY(run(kind, SystemCalls::system()).written);
        const QList<QByteArray> whole = wholeOutputs(kind);
        constexpr int kKills = 40;
        int left = 0;
        for (int kill = 0; kill < kKills; ++kill) {
            QFile::remove(output());
            killInItsMidst(kind, lacking(missing));
            QVERIFY(!QFile::exists(output()) || whole.contains(readFile(output())));
            QVERIFY(sourcesAreUntouched());
            const QStringList parts = partsIn(path("out")) + partsIn(path("temporary"));
            left += static_cast<int>(parts.size());
            QVERIFY2(partsIn(path("out")).size() <= 1 && partsIn(path("temporary")).size() <= 1,
                     qPrintable(parts.join(u' ')));
            QFile::remove(output());
            QVERIFY(run(kind, SystemCalls::system()).written);
            QCOMPARE(namesIn(path("out")).size(), 1);
            QCOMPARE(namesIn(path("temporary")), QStringList());
        }
        qInfo("%d runs killed, %d parts left and cleared", kKills, left);
    }
};

QTEST_GUILESS_MAIN(KilledRunsTest)
#include "KilledRunsTest.moc"
