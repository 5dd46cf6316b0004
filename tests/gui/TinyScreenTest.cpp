// SPDX-License-Identifier: Apache-2.0

#include "OffscreenScreen.h"
#include "TestApplication.h"
#include "support/TestUnit.h"

#include "skin/LightLook.h"
#include "skin/SkinButton.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QStyleFactory>
#include <QToolButton>

using namespace folioforge;
using namespace folioforge::test;

namespace {

constexpr QSize kTinyScreen(512, 300); ///< 1024 x 600 pixels at 200 %.

/// The application on a screen that is smaller than what its window shows.
struct Tiny : Application {
    Tiny() {
        activate();
        area = qobject_cast<QScrollArea *>(window().centralWidget());
    }
    template<typename Control> Control &control(const char *name) {
        return controlOf<Control>(window(), name);
    }
    /// Whether all of `widget` can be seen.
    static bool isInView(const QWidget &widget) {
        return widget.visibleRegion().boundingRect() == widget.rect();
    }
    void showOptions() {
        delegate.mainWndCtrl().clickBtnExpand();
        auto &drawer = control<OptionsDrawer>("m_optionsDrawer");
        QTRY_COMPARE(drawer.openWidth(), static_cast<int>(OptionsDrawer::kFullWidth));
    }
    [[nodiscard]] bool isOnScreen() {
        return QRect(QPoint(), kTinyScreen).contains(window().frameGeometry());
    }

    QScrollArea *area = nullptr;
};

} // namespace

/// A screen with less room than the window needs: its contents scroll.
class TinyScreenTest : public QObject {
    Q_OBJECT

  public:
    static void initMain() { useScreenOf(kTinyScreen); }

  private Q_SLOTS:
    void initTestCase() { applyLightLook(*qApp); }

    void theWindowFillsTheScreenAndItsContentsScroll() {
        Tiny tiny;
        QVERIFY(tiny.isOnScreen());
        QVERIFY(tiny.window().width() > kTinyScreen.width() - 20);
        QVERIFY(tiny.area && tiny.area->horizontalScrollBar()->maximum() > 0);
    }

    void skinsHaveTheirSizes() {
        Tiny tiny;
        const auto buttons = tiny.window().findChildren<SkinButton *>();
        QCOMPARE(buttons.size(), 12);
        for (const SkinButton *button : buttons) {
            QCOMPARE(button->minimumSize(), button->normalImage().size());
            QCOMPARE(button->maximumSize(), button->normalImage().size());
        }
    }

    void theKeyboardBringsWhatItComesToIntoView() {
        Tiny tiny;
        tiny.addTexts(1);
        QSet<const QWidget *> reached;
        for (int i = 0; i < 40; ++i) {
            tiny.key(Qt::Key_Tab);
            const QWidget *focused = QApplication::focusWidget();
            if (!qobject_cast<const QTableView *>(focused)) { // It is larger than the screen.
                QVERIFY2(Tiny::isInView(*focused), qPrintable(focused->objectName()));
            }
            reached += focused;
        }
        QVERIFY(reached.contains(&tiny.control<QWidget>("m_btnCreate")));
        QVERIFY(reached.contains(&tiny.control<QWidget>("m_btnAddFile")));
    }

    void theOptionsComeIntoViewAndLeaveTheWindowOnTheScreen() {
        Tiny tiny;
        tiny.addTexts(1);
        const QRect before = tiny.window().geometry();
        tiny.showOptions();
        QVERIFY(tiny.isOnScreen());
        QTRY_VERIFY(Tiny::isInView(tiny.control<QWidget>("m_tfTitle")));
        tiny.delegate.mainWndCtrl().clickBtnElapse();
        QTRY_VERIFY(!tiny.control<QWidget>("m_optionsDrawer").isVisible());
        QCOMPARE(tiny.window().geometry(), before);
    }

    void aNoticesFieldComesIntoView() {
        Tiny tiny;
        tiny.addTexts(1);
        tiny.control<QLineEdit>("m_tfTextPageMarginBottom").setText(QStringLiteral("257"));
        tiny.delegate.mainWndCtrl().clickBtnCreate();
        QTRY_VERIFY(Tiny::isInView(tiny.control<QWidget>("m_tfTextPageMarginBottom")));
    }

    void aMenuBarThatIsTooNarrowShowsTheArrowOfItsStyle() {
        QMenuBar bar;
        for (const char *title : {"File", "Edit", "View", "Help"}) {
            bar.addMenu(QString::fromLatin1(title));
        }
        bar.resize(60, bar.sizeHint().height());
        bar.show();
        const auto &arrow = controlOf<QToolButton>(bar, "qt_menubar_ext_button");
        QTRY_VERIFY(arrow.isVisible());
        constexpr QSize kSize(16, 16);
        const std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("Fusion")));
        const QIcon icon = style->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
        QCOMPARE(arrow.icon().pixmap(kSize).toImage(), icon.pixmap(kSize).toImage());
    }
};

FOLIOFORGE_TEST(TinyScreenTest)
#include "TinyScreenTest.moc"
