#include "WindowWorld.h"

#include "mainwnd/MainWndCtrl.h"
#include "skin/OptionsDrawer.h"

#include <QFile>
#include <QScreen>
#include <QTest>

using namespace folioforge;
using namespace folioforge::test;

namespace {

constexpr int kScreenWidth = 1500;

/// A screen on which the window fits with the options panel, but not everywhere.
constexpr auto kScreen = R"({"screens": [{"name": "test", "x": 0, "y": 0, "width": 1500,
    "height": 900, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

struct PlacedWindow {
    /// A window with `points` left between its frame and the right edge of the screen.
    explicit PlacedWindow(int points) {
        world.storeFolder(world.home.path());
        window.show();
        moveLeftEdgeTo(kScreenWidth - points - window.frameGeometry().width());
    }

    void moveLeftEdgeTo(int left) {
        window.setGeometry(window.geometry().translated(left - window.x(), 0));
    }
    void show(bool options) {
        options ? ctrl.clickBtnExpand() : ctrl.clickBtnElapse();
        const int width = options ? 342 : 0;
        auto &drawer = controlOf<OptionsDrawer>(window, "m_optionsDrawer");
        QTRY_COMPARE(drawer.openWidth(), width);
    }

    WindowWorld world;
    MainWndCtrl ctrl{world.surroundings()};
    QMainWindow &window = *ctrl.window();
};

} // namespace

class OptionsOnScreenTest : public QObject {
    Q_OBJECT

  public:
    /// The screen is made with the application.
    static void initMain() {
        static const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("screen.json")));
        if (!file.open(QIODevice::WriteOnly) || file.write(kScreen) < 0) {
            qFatal("cannot write %s", qPrintable(file.fileName()));
        }
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file.fileName()));
    }

  private Q_SLOTS:
    void initTestCase() {
        QCOMPARE(QGuiApplication::primaryScreen()->availableGeometry().width(), kScreenWidth);
    }

    void aPanelThatJustFitsLeavesTheWindowInItsPlace() {
        PlacedWindow placed(342);
        const QRect before = placed.window.geometry();
        placed.show(true);
        QCOMPARE(placed.window.geometry(), before.adjusted(0, 0, 342, 0));
    }

    void aMaximisedWindowShowsThePanelInsideAndTakesItsWidthOnWhenRestored() {
        PlacedWindow placed(342);
        const QRect before = placed.window.geometry();
        placed.window.showMaximized();
        QVERIFY(QTest::qWaitFor([&] { return placed.window.height() > before.height(); }));
        const QRect full = placed.window.geometry();
        placed.show(true);
        QCOMPARE(placed.window.geometry(), full);
        placed.window.showNormal();
        const QRect after = before.adjusted(0, 0, 342, 0);
        QVERIFY(QTest::qWaitFor([&] { return placed.window.geometry() == after; }));
    }

    void aPanelThatDoesNotFitMovesTheWindowByWhatIsMissing() {
        PlacedWindow placed(250);
        const QRect before = placed.window.geometry();
        placed.show(true);
        QCOMPARE(placed.window.geometry(), before.adjusted(-92, 0, 250, 0));
        QCOMPARE(placed.window.frameGeometry().right(), kScreenWidth - 1);
        placed.show(false);
        QCOMPARE(placed.window.geometry(), before);
    }

    void thePanelNeverMovesTheWindowPastTheLeftEdge() {
        PlacedWindow placed(250);
        placed.window.resize(placed.window.width() + 500, placed.window.height());
        placed.moveLeftEdgeTo(30);
        const QRect before = placed.window.geometry();
        placed.show(true);
        QCOMPARE(placed.window.geometry(), before.adjusted(-30, 0, 312, 0));
        placed.show(false);
        QCOMPARE(placed.window.geometry(), before);
    }

    void aWindowAlreadyBeyondTheEdgeMovesByThePanelsWidthAtMost() {
        PlacedWindow placed(-100);
        const QRect before = placed.window.geometry();
        placed.show(true);
        QCOMPARE(placed.window.geometry(), before.adjusted(-342, 0, 0, 0));
        placed.show(false);
        QCOMPARE(placed.window.geometry(), before);
    }

    void aWindowMovedWhileThePanelIsShownStaysWhereItWasPut() {
        PlacedWindow placed(250);
        const int narrow = placed.window.width();
        placed.show(true);
        placed.moveLeftEdgeTo(40);
        placed.show(false);
        QCOMPARE(placed.window.x(), 40);
        QCOMPARE(placed.window.width(), narrow);
    }
};

QTEST_MAIN(OptionsOnScreenTest)
#include "OptionsOnScreenTest.moc"
