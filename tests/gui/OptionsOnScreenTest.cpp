// SPDX-License-Identifier: Apache-2.0

#include "OffscreenScreen.h"
#include "WindowWorld.h"
#include "support/TestUnit.h"

#include "mainwnd/MainWndCtrl.h"
#include "mainwnd/OptionsSlide.h"
#include "skin/OptionsDrawer.h"

#include <QHBoxLayout>
#include <QMainWindow>
#include <QProxyStyle>
#include <QResizeEvent>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

#include <algorithm>

using namespace folioforge;
using namespace folioforge::test;

namespace {

/// Of a screen on which the window fits with the options panel, but not everywhere.
constexpr int kScreenWidth = 1500;

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
    MainWndCtrl ctrl{world.services()};
    QMainWindow &window = *ctrl.window();
};

/// A window with a drawer that opens by steps, with `points` left between its frame and the right
/// edge of the screen.
struct SteppedWindow {
    explicit SteppedWindow(int points) {
        auto *contents = new QWidget;
        auto *row = new QHBoxLayout(contents);
        row->addWidget(new QWidget, 1);
        row->addWidget(drawer);
        window.setCentralWidget(contents);
        window.resize(900, 600);
        slide.beginHidden();
        window.show();
        window.move(kScreenWidth - points - window.frameGeometry().width(), 100);
    }

    /// Where the screen has the window.
    [[nodiscard]] QRect place() const { return window.windowHandle()->geometry(); }
    /// Has the screen say that the window is at `place`; its widget hears of it later.
    void report(const QRect &place) { window.windowHandle()->setGeometry(place); }

    QMainWindow window;
    OptionsDrawer *drawer = new OptionsDrawer;
    OptionsSlide slide{window, *drawer};
};

/// A style in which nothing slides.
class StillStyle : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override {
        return hint == SH_Widget_Animation_Duration
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

/// Writes down every width that a widget gets.
class WidthRecorder : public QObject {
  public:
    explicit WidthRecorder(QWidget &widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Resize) {
            widths += static_cast<QResizeEvent *>(event)->size().width();
        }
        return QObject::eventFilter(watched, event);
    }
    QList<int> widths;
};

} // namespace

class OptionsOnScreenTest : public QObject {
    Q_OBJECT

  public:
    static void initMain() { useScreenOf({kScreenWidth, 900}); }

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

    void aWindowAsNarrowAsItGetsTakesTheExactWidthOnAndOff_data() {
        QTest::addColumn<bool>("slides");
        QTest::newRow("sliding") << true;
        QTest::newRow("at once") << false;
    }

    void aWindowAsNarrowAsItGetsTakesTheExactWidthOnAndOff() {
        QFETCH(const bool, slides);
        StillStyle still;
        PlacedWindow placed(342);
        if (!slides) {
            placed.window.setStyle(&still);
        }
        placed.window.resize(placed.window.minimumSizeHint());
        const QRect before = placed.window.geometry();
        for (int i = 0; i < 2; ++i) {
            placed.show(true);
            QCOMPARE(placed.window.geometry(), before.adjusted(0, 0, 342, 0));
            // The panel and the list beside it need more than the list alone.
            QVERIFY(placed.window.minimumWidth() > before.width());
            placed.show(false);
            QCOMPARE(placed.window.geometry(), before);
        }
    }

    void theWindowOnlyShrinksWhileThePanelSlidesShut() {
        PlacedWindow placed(342);
        placed.show(true);
        const WidthRecorder recorder(placed.window);
        placed.show(false);
        QVERIFY(!recorder.widths.isEmpty());
        QVERIFY(std::is_sorted(recorder.widths.rbegin(), recorder.widths.rend()));
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

    void aStepThatTheScreenReportsLateLeavesNoTrace() {
        SteppedWindow stepped(250);
        const QRect before = stepped.place();
        stepped.slide.jumpTo(342);
        stepped.slide.jumpTo(300);
        const QRect step = stepped.place();
        QCOMPARE(step, before.adjusted(-50, 0, 250, 0));
        stepped.slide.jumpTo(220);
        stepped.report(step);
        stepped.slide.jumpTo(200);
        QCOMPARE(stepped.place(), before.adjusted(0, 0, 200, 0));
        stepped.report(step);
        stepped.slide.jumpTo(200);
        QCOMPARE(stepped.place(), before.adjusted(0, 0, 200, 0));
    }

    void aPlaceThatTheScreenReportsLateLeavesNoTrace() {
        SteppedWindow stepped(250);
        const QRect before = stepped.place();
        stepped.slide.jumpTo(300);
        const QRect step = stepped.place();
        stepped.slide.jumpTo(200);
        const QRect wanted = before.adjusted(0, 0, 200, 0);
        stepped.report({step.topLeft(), wanted.size()});
        stepped.slide.jumpTo(200);
        QCOMPARE(stepped.place(), wanted);
    }

    void partsOfTwoStepsAreNoUsersChange() {
        SteppedWindow stepped(250);
        const QRect before = stepped.place();
        stepped.slide.jumpTo(342);
        const QRect wide = stepped.place();
        stepped.slide.jumpTo(120);
        stepped.report({wide.topLeft(), stepped.place().size()});
        stepped.slide.jumpTo(0);
        QCOMPARE(stepped.place(), before);
    }

    void aWindowThatStaysAtAnEarlierStepIsAskedAgain() {
        SteppedWindow stepped(250);
        const QRect before = stepped.place();
        stepped.slide.jumpTo(342);
        const QRect step = stepped.place();
        stepped.slide.jumpTo(0);
        stepped.report(step);
        QTRY_COMPARE(stepped.place(), before);
    }

    void aWindowThatIsMovedRightAfterASlideStaysThere() {
        SteppedWindow stepped(250);
        QSignalSpy rested(&stepped.slide, &OptionsSlide::rested);
        stepped.slide.jumpTo(342);
        const QRect moved = stepped.place().translated(-77, 55);
        stepped.report(moved);
        QVERIFY(rested.wait());
        QCOMPARE(stepped.place(), moved);
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

FOLIOFORGE_TEST(OptionsOnScreenTest)
#include "OptionsOnScreenTest.moc"
