// SPDX-License-Identifier: Apache-2.0

#include "OffscreenScreen.h"
#include "WindowWorld.h"
#include "support/TestUnit.h"

#include "mainwnd/MainWndCtrl.h"
#include "skin/LightLook.h"
#include "skin/OptionsDrawer.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

using namespace folioforge;
using namespace folioforge::test;

namespace {

constexpr QSize kScreen(960, 540);

/// The window as it starts on a small screen.
struct SmallWindow {
    SmallWindow() {
        world.storeFolder(world.home.path());
        window.show();
    }

    template<typename Control> Control &control(const char *name) {
        return controlOf<Control>(window, name);
    }
    /// Opens the panel with everything enabled, in a window as low as it gets.
    void openLowPanel() {
        ctrl.EnableSettings(true);
        ctrl.clickBtnExpand();
        window.activateWindow();
        QVERIFY(QTest::qWaitFor([&] { return drawer.openWidth() == 342; }));
        window.resize(window.width(), window.minimumSizeHint().height());
        QVERIFY(QTest::qWaitFor([&] { return bar().isVisible(); }));
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    QScrollBar &bar() { return *drawer.findChild<QScrollArea *>()->verticalScrollBar(); }
    /// Where the panel's visible fields, buttons and labels are in it.
    [[nodiscard]] QList<QRect> places() const {
        QList<QRect> found;
        for (const QWidget *widget : panel.findChildren<QWidget *>()) {
            const bool shows = qobject_cast<const QAbstractButton *>(widget) ||
                               qobject_cast<const QLineEdit *>(widget) ||
                               qobject_cast<const QLabel *>(widget) ||
                               qobject_cast<const QComboBox *>(widget);
            const bool isInAField = qobject_cast<const QLineEdit *>(widget->parentWidget());
            if (shows && !isInAField && widget->isVisible()) {
                found << QRect(widget->mapTo(&panel, QPoint()), widget->size());
            }
        }
        return found;
    }
    /// Whether all of `widget` is in the drawer's view.
    [[nodiscard]] bool isInView(const QWidget &widget) const {
        return widget.visibleRegion().boundingRect() == widget.rect();
    }
    void turnWheelOver(QWidget &widget) {
        const QPointF middle = widget.rect().center();
        QWheelEvent turn(middle, widget.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&turn); // Only what the system sends goes up to parents.
        qApp->notify(&widget, &turn);
    }

    WindowWorld world;
    MainWndCtrl ctrl{world.services()};
    QMainWindow &window = *ctrl.window();
    OptionsDrawer &drawer = control<OptionsDrawer>("m_optionsDrawer");
    QWidget &panel = control<QWidget>("optionsPanel");
};

} // namespace

class SmallScreenTest : public QObject {
    Q_OBJECT

  public:
    static void initMain() { useScreenOf(kScreen); }

  private Q_SLOTS:
    void initTestCase() { applyLightLook(*qApp); }

    void theWindowStartsAsNarrowAsItsControlsAllow() {
        SmallWindow small;
        const int least = small.window.minimumSizeHint().width();
        QVERIFY(least > kScreen.width() - 342);
        QCOMPARE(small.window.width(), least);
        QVERIFY(small.window.height() <= kScreen.height());
    }

    void nothingInALowPanelLiesOnAnythingElse_data() {
        QTest::addColumn<QByteArray>("button");
        QTest::newRow("image") << QByteArray("m_btnImageSetting");
        QTest::newRow("text") << QByteArray("m_btnTxtSetting");
        QTest::newRow("security") << QByteArray("m_btnSecuritySetting");
    }

    void nothingInALowPanelLiesOnAnythingElse() {
        QFETCH(const QByteArray, button);
        SmallWindow small;
        small.openLowPanel();
        small.control<QAbstractButton>(button.constData()).click();
        QCoreApplication::processEvents();
        const QList<QRect> places = small.places();
        QVERIFY(places.size() > 15);
        for (qsizetype i = 0; i < places.size(); ++i) {
            for (qsizetype j = 0; j < i; ++j) {
                QVERIFY(!places[i].intersects(places[j]));
            }
        }
    }

    void theScrollBarLiesOnTheMarginOfAPanelAsWideAsEver() {
        SmallWindow small;
        small.openLowPanel();
        QCOMPARE(small.panel.width(), 342);
        const int left = small.bar().mapTo(&small.drawer, QPoint()).x();
        QCOMPARE(left + small.bar().width(), 342);
        for (const QRect &place : small.places()) {
            QVERIFY(place.right() < left);
        }
    }

    void theKeyboardBringsWhatItComesToIntoView_data() {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("forwards") << Qt::Key_Tab;
        QTest::newRow("backwards, from outside to the end") << Qt::Key_Backtab;
    }

    void theKeyboardBringsWhatItComesToIntoView() {
        QFETCH(const Qt::Key, key);
        SmallWindow small;
        small.openLowPanel();
        QSet<const QWidget *> reached;
        for (int i = 0; i < 40; ++i) {
            QTest::keyClick(small.window.windowHandle(), key);
            const QWidget *focused = QApplication::focusWidget();
            if (small.panel.isAncestorOf(focused)) {
                QVERIFY2(small.isInView(*focused), qPrintable(focused->objectName()));
                reached += focused;
            }
        }
        QVERIFY(reached.contains(&small.control<QWidget>("m_btnSave")));
        QVERIFY(reached.contains(&small.control<QWidget>("m_tfTitle")));
        QCOMPARE(small.panel.x(), 0);
    }

    void whatIsClickedStaysUnderThePointer() {
        SmallWindow small;
        small.openLowPanel();
        small.ctrl.clickBtnSecurity();
        QCoreApplication::processEvents();
        const auto &box = small.control<QAbstractButton>("m_btnCheckAllowCopy");
        small.control<QAbstractButton>("m_btnCheckOwnerPassword").setChecked(true);
        small.ctrl.clickBtnCheckOwnerPassword();
        // Its upper half alone is in view.
        const int top = box.mapTo(&small.panel, QPoint()).y();
        small.bar().setValue(top + box.height() / 2 - small.drawer.height());
        const int scrolled = small.bar().value();
        const bool before = box.isChecked();
        QTest::mouseClick(small.window.windowHandle(), Qt::LeftButton, {},
                          box.mapTo(&small.window, QPoint(8, box.height() / 2 - 3)));
        QCOMPARE(box.isChecked(), !before);
        QCOMPARE(small.bar().value(), scrolled);
    }

    void theWheelScrollsAPanelRatherThanItsList() {
        SmallWindow small;
        small.openLowPanel();
        auto &list = small.control<QComboBox>("m_comboCompressMethod");
        small.turnWheelOver(list);
        QVERIFY(small.bar().value() > 0);
        QCOMPARE(list.currentIndex(), 0);
    }

    void theWheelChoosesFromTheListOfAPanelThatNeedNotScroll() {
        SmallWindow small;
        small.openLowPanel();
        small.window.resize(small.window.width(), 800);
        QTRY_VERIFY(!small.bar().isVisible());
        auto &list = small.control<QComboBox>("m_comboCompressMethod");
        small.turnWheelOver(list);
        QCOMPARE(list.currentIndex(), 1);
    }
};

FOLIOFORGE_TEST(SmallScreenTest)
#include "SmallScreenTest.moc"
