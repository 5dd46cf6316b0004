// SPDX-License-Identifier: Apache-2.0

#include "files/ProcessSetup.h"

#include "support/TestUnit.h"

#include <QTest>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif
#include <sys/resource.h>

using namespace folioforge;

class ProcessSetupTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aCrashLeavesNoImageOfTheMemory() {
        rlimit limit{};
        QCOMPARE(::getrlimit(RLIMIT_CORE, &limit), 0);
        limit.rlim_cur = limit.rlim_max;
        QCOMPARE(::setrlimit(RLIMIT_CORE, &limit), 0);
        forbidCoreDumps();
        QCOMPARE(::getrlimit(RLIMIT_CORE, &limit), 0);
        QCOMPARE(limit.rlim_cur, rlim_t(0));
#ifdef Q_OS_LINUX
        QCOMPARE(::prctl(PR_GET_DUMPABLE, 0, 0, 0, 0), 0);
        QCOMPARE(::prctl(PR_SET_DUMPABLE, 1, 0, 0, 0), 0);
#endif
    }
};

FOLIOFORGE_TEST(ProcessSetupTest)
#include "ProcessSetupTest.moc"
