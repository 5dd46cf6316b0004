// SPDX-License-Identifier: Apache-2.0

#include "WindowWorld.h"
#include "support/TestUnit.h"

#include "mainwnd/FilesArray.h"
#include "mainwnd/MainWndCtrl.h"

#include <QMainWindow>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;
using namespace std::chrono_literals;

namespace {

/// A window behind another or before it, in which two texts are converted.
struct RunHeard {
    RunHeard(std::chrono::milliseconds longRun, bool inFront)
        : ctrl([&] {
            WindowServices services = world.services();
            services.longRun = longRun;
            return services;
        }()) {
        world.storeFolder(world.home.path());
        world.notices.answerNoticesAtOnce();
        ctrl.window()->show();
        other.show();
        QWidget *front = inFront ? ctrl.window() : &other;
        front->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(front));
        ctrl.addFiles({world.file(u"a.txt"_s), world.file(u"b.txt"_s)}, -1);
        ctrl.clickBtnCreate();
        QTRY_VERIFY(!ctrl.isConverting());
    }

    WindowWorld world;
    QWidget other;
    MainWndCtrl ctrl;
};

} // namespace

/// What the desktop hears of a run.
class RunNewsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aLongRunInTheBackgroundEndsWithANotification() {
        const RunHeard run(0ms, false);
        QCOMPARE(run.world.desktop.notifications, QStringList(u"2 PDFs made"_s));
    }

    void aRunInFrontEndsWithout() {
        const RunHeard run(0ms, true);
        QCOMPARE(run.world.desktop.notifications, QStringList());
    }

    void aShortRunEndsWithout() {
        const RunHeard run(1h, false);
        QCOMPARE(run.world.desktop.notifications, QStringList());
    }

    void tenSecondsAreLong() {
        WindowWorld world;
        QCOMPARE(world.services().longRun, 10s);
    }

    void theProgressRisesAndGoes() {
        const RunHeard run(10s, true);
        QList<double> progress = run.world.desktop.progress;
        QVERIFY(progress.size() > 2);
        QCOMPARE(progress.takeLast(), -1.0);
        QVERIFY(std::ranges::is_sorted(progress));
        QCOMPARE(progress.first(), 0.0);
        QVERIFY(progress.last() > 0.5 && progress.last() <= 1.0);
        QVERIFY(std::ranges::adjacent_find(progress) == progress.end());
    }
};

FOLIOFORGE_TEST(RunNewsTest)
#include "RunNewsTest.moc"
