#include "OffscreenScreen.h"
#include "WindowWorld.h"

#include "mainwnd/MainWndCtrl.h"
#include "skin/LightLook.h"
#include "skin/OptionsDrawer.h"

#include <QApplication>
#include <QTest>

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

    WindowWorld world;
    MainWndCtrl ctrl{world.surroundings()};
    QMainWindow &window = *ctrl.window();
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
};

QTEST_MAIN(SmallScreenTest)
#include "SmallScreenTest.moc"
