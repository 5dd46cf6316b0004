// SPDX-License-Identifier: Apache-2.0

#include "WholeRun.h"
#include "support/TestUnit.h"

#include <QElapsedTimer>
#include <QRandomGenerator>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Runs that are killed at random moments.
class KilledRunsTest : public QObject, private WholeRun {
    Q_OBJECT

    static constexpr quint32 kSeed = 20261;
    QRandomGenerator m_random{kSeed};

    /// What a run takes.
    struct Length {
        int calls = 0;
        int microseconds = 0;
    };

    Length lengthOf(const Kind &kind, const std::map<std::string, int> &missing) const {
        FaultyCalls calls;
        calls.failing = missing;
        QElapsedTimer timer;
        timer.start();
        run(kind, calls);
        return {calls.count(), static_cast<int>(timer.nsecsElapsed() / 1000)};
    }

    /// Begins runs in a process of its own and kills that at a random moment. Each run waits before
    /// one of its calls, or moments that pass quickly would never be met.
    void killInItsMidst(const Kind &kind, const std::map<std::string, int> &missing,
                        const Length &length) {
        const auto wait = [&length] { ::usleep(static_cast<useconds_t>(length.microseconds)); };
        const pid_t child = ::fork();
        if (child == 0) {
            for (;;) {
                FaultyCalls calls;
                calls.failing = missing;
                calls.fault = {1 + m_random.bounded(length.calls), 0, false, wait};
                QFile::remove(output());
                run(kind, calls);
            }
        }
        constexpr int kFewRuns = 5;
        ::usleep(static_cast<useconds_t>(m_random.bounded(kFewRuns * length.microseconds)));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
    }

    static QStringList partsIn(const QString &folder) {
        return namesIn(folder).filter(u".folioforge-part"_s);
    }

    void checkThatTheNextRunClears(const Kind &kind) {
        QFile::remove(output());
        QVERIFY(run(kind, SystemCalls::system()).written);
        QCOMPARE(namesIn(path("out")).size(), 1);
        QCOMPARE(namesIn(path("temporary")), QStringList());
    }

  private Q_SLOTS:
    void initTestCase() { setUp(); }
    void init() { clear(); }

    void aKilledRunLeavesAtMostOnePartThatTheNextRunClears_data() {
        QTest::addColumn<QStringList>("missing");
        QTest::addColumn<QString>("partsAppearIn");
        QTest::newRow("nameless file") << QStringList() << u"temporary"_s;
        QTest::newRow("part file") << QStringList{u"openAnonymous"_s} << u"out"_s;
    }
    void aKilledRunLeavesAtMostOnePartThatTheNextRunClears() {
        QFETCH(QStringList, missing);
        QFETCH(QString, partsAppearIn);
        const Kind kind{false, false, 1};
        const Length length = lengthOf(kind, lacking(missing));
        QVERIFY(QFile::exists(output()));
        const QList<QByteArray> whole = wholeOutputs(kind);
        constexpr int kKills = 40;
        constexpr int kMaxKills = 400; // Until one befell a part.
        int left = 0;
        int kills = 0;
        for (; kills < kKills || (left == 0 && kills < kMaxKills); ++kills) {
            QFile::remove(output());
            killInItsMidst(kind, lacking(missing), length);
            QVERIFY(!QFile::exists(output()) || whole.contains(readFile(output())));
            QVERIFY(sourcesAreUntouched());
            const QStringList parts = partsIn(path("out")) + partsIn(path("temporary"));
            left += static_cast<int>(partsIn(path(qPrintable(partsAppearIn))).size());
            QVERIFY2(partsIn(path("out")).size() <= 1 && partsIn(path("temporary")).size() <= 1,
                     qPrintable(parts.join(u' ')));
            checkThatTheNextRunClears(kind);
        }
        qInfo("%d runs killed, %d parts left and cleared", kills, left);
        QVERIFY(left > 0);
    }
};

FOLIOFORGE_TEST(KilledRunsTest)
#include "KilledRunsTest.moc"
