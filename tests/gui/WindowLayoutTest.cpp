// SPDX-License-Identifier: Apache-2.0

#include "OffscreenScreen.h"
#include "WindowWorld.h"
#include "support/TestUnit.h"

#include "mainwnd/MainWndCtrl.h"
#include "skin/CycleSkinedView.h"
#include "skin/LightLook.h"
#include "skin/OptionsDrawer.h"
#include "skin/SkinButton.h"
#include "skin/VesprinTableHeaderView.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

struct Window {
    explicit Window(const QString &bundle = WindowWorld::realBundle())
        : ctrl({world.settings, world.desktop, world.notices, world.notifications,
                world.home.path(), bundle}) {
        world.storeFolder(world.home.path());
        ctrl.window()->show();
    }

    template<typename Control> Control &control(const char *name) {
        return controlOf<Control>(*ctrl.window(), name);
    }
    void openPanel() {
        QTest::mouseClick(&control<QWidget>("m_btnExpand"), Qt::LeftButton);
        QTRY_COMPARE(control<OptionsDrawer>("m_optionsDrawer").openWidth(), 342);
    }
    /// Everything that the user can work.
    [[nodiscard]] QList<QWidget *> controls() {
        QList<QWidget *> found;
        for (QWidget *widget : ctrl.window()->findChildren<QWidget *>()) {
            const bool works =
                qobject_cast<QAbstractButton *>(widget) || qobject_cast<QLineEdit *>(widget) ||
                qobject_cast<QComboBox *>(widget) || qobject_cast<QTableView *>(widget);
            // The table's own corner button is none of the window's.
            if (works && !widget->objectName().isEmpty() &&
                !widget->objectName().startsWith(u"qt_")) {
                found << widget;
            }
        }
        return found;
    }

    WindowWorld world;
    MainWndCtrl ctrl;
};

} // namespace

class WindowLayoutTest : public QObject {
    Q_OBJECT

  public:
    static void initMain() { useScreenOf({1920, 1200}); }

  private Q_SLOTS:
    void initTestCase() { applyLightLook(*qApp); }

    void everyControlIsThereUnderItsName_data() {
        QTest::addColumn<QString>("name");
        const char *const names[] = {"m_btnAddFile",
                                     "m_btnAddFolder",
                                     "m_btnAddImage",
                                     "m_btnAddTxt",
                                     "m_btnAddPDF",
                                     "m_btnRemove",
                                     "m_btnClear",
                                     "m_btnCreate",
                                     "m_btnOpen",
                                     "m_btnBrowse",
                                     "m_btnExpand",
                                     "m_btnElapse",
                                     "m_btnSave",
                                     "m_btnSecuritySetting",
                                     "m_btnImageSetting",
                                     "m_btnTxtSetting",
                                     "m_btnMerge",
                                     "m_tfOutputFolder",
                                     "m_lbProgress",
                                     "m_prgCreate",
                                     "m_lbOutputName",
                                     "m_tfOutputName",
                                     "m_settingsViewContainer",
                                     "m_textPageSizeView",
                                     "m_imagePageSizeView",
                                     "m_securityView",
                                     "m_labelOptions",
                                     "m_tfTitle",
                                     "m_tfAuthor",
                                     "m_tfSubject",
                                     "m_tfKeywords",
                                     "m_tfUserPassword",
                                     "m_tfOwnerPassword",
                                     "m_btnCheckUserPassword",
                                     "m_btnCheckOwnerPassword",
                                     "m_btnCheckAllowPrint",
                                     "m_btnCheckAllowCopy",
                                     "m_mtxTextPageSizeMode",
                                     "m_tfTextCustomizedPageWidth",
                                     "m_tfTextCustomizedPageHeight",
                                     "m_tfTextPageMarginTop",
                                     "m_tfTextPageMarginLeft",
                                     "m_tfTextPageMarginRight",
                                     "m_tfTextPageMarginBottom",
                                     "m_mtxImagePageSizeMode",
                                     "m_tfImageCustomizedPageWidth",
                                     "m_tfImageCustomizedPageHeight",
                                     "m_tfImagePageMarginTop",
                                     "m_tfImagePageMarginLeft",
                                     "m_tfImagePageMarginRight",
                                     "m_tfImagePageMarginBottom",
                                     "m_comboCompressMethod",
                                     "m_tableview",
                                     "m_skinedBackView",
                                     "m_alertWnd"};
        for (const char *name : names) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }

    void everyControlIsThereUnderItsName() {
        QFETCH(const QString, name);
        Window window;
        QCOMPARE(window.ctrl.window()->findChildren<QObject *>(name).size(), 1);
    }

    void theHeaderIs34PointsHigh() {
        Window window;
        QHeaderView *header = window.control<QTableView>("m_tableview").horizontalHeader();
        QVERIFY(qobject_cast<VesprinTableHeaderView *>(header));
        QCOMPARE(header->height(), 34);
    }

    void theBandLiesOnTheDarkGround() {
        Window window;
        const auto &band = window.control<QWidget>("band");
        QCOMPARE(band.geometry().top(), 0);
        QCOMPARE(band.height(), CycleSkinedView::kBandHeight);
        const QImage picture = window.control<QWidget>("m_skinedBackView").grab().toImage();
        QCOMPARE(picture.pixelColor(3, 3), QColor(56, 56, 56));
    }

    void theTwelveButtonsHaveTheirSkinsAndSizes() {
        Window window;
        const char *const skinned[] = {
            "m_btnAddImage", "m_btnAddTxt",          "m_btnAddPDF",       "m_btnRemove",
            "m_btnCreate",   "m_btnExpand",          "m_btnElapse",       "m_btnOpen",
            "m_btnBrowse",   "m_btnSecuritySetting", "m_btnImageSetting", "m_btnTxtSetting"};
        for (const char *name : skinned) {
            const auto &button = window.control<SkinButton>(name);
            QVERIFY2(!button.normalImage().isNull(), name);
            QCOMPARE(button.size(), button.normalImage().size());
            // Pressed and hover look the same.
            QVERIFY(button.mouseDownImage() == button.mouseOnImage());
            QVERIFY2(!(button.mouseOnImage() == button.normalImage()), name);
            QVERIFY2(!(button.disableImage() == button.normalImage()), name);
        }
    }

    void missingSkinsFallBackToTheNormalOne() {
        const QTemporaryDir bundle;
        const QString resources = bundle.filePath(u"Contents/Resources"_s);
        QVERIFY(QDir().mkpath(resources));
        const QString source = WindowWorld::realBundle() + u"/Contents/Resources/"_s;
        QVERIFY(QFile::copy(source + u"open.svg"_s, resources + u"/open.svg"_s));
        Window window(bundle.path());
        const auto &open = window.control<SkinButton>("m_btnOpen");
        QVERIFY(open.mouseOnImage() == open.normalImage());
        QVERIFY(open.disableImage() == open.normalImage());
        QTest::mouseClick(&window.control<QWidget>("m_btnOpen"), Qt::LeftButton);
        QCOMPARE(window.world.desktop.files.size(), 1);
    }

    void aWindowWithoutAnySkinStillWorks() {
        Window window(u"/nowhere"_s);
        QTest::mouseClick(&window.control<QWidget>("m_btnOpen"), Qt::LeftButton);
        QCOMPARE(window.world.desktop.files.size(), 1);
        QCOMPARE(window.control<SkinButton>("m_btnOpen").text(), u"Open"_s);
    }

    void createAndRemoveStartDisabledInTheirDisabledLook() {
        Window window;
        for (const char *name : {"m_btnCreate", "m_btnRemove"}) {
            const auto &button = window.control<SkinButton>(name);
            QVERIFY(!button.isEnabled());
            QVERIFY(button.image() == button.disableImage());
        }
    }

    void theWindowFitsASmallScreenWithThePanelShown() {
        Window window;
        window.openPanel();
        const QSize least = window.ctrl.window()->minimumSizeHint();
        QVERIFY2(least.width() <= 1024 && least.height() <= 680,
                 qPrintable(u"%1x%2"_s.arg(least.width()).arg(least.height())));
    }

    void switchingTheSettingsMovesNothingElse() {
        Window window;
        window.ctrl.window()->resize(1000, 680);
        window.openPanel();
        const QPoint before = window.control<QWidget>("m_btnCreate").pos();
        const QSize size = window.ctrl.window()->size();
        QTest::mouseClick(&window.control<QWidget>("m_btnTxtSetting"), Qt::LeftButton);
        QTest::mouseClick(&window.control<QWidget>("m_btnSecuritySetting"), Qt::LeftButton);
        QCOMPARE(window.control<QWidget>("m_btnCreate").pos(), before);
        QCOMPARE(window.ctrl.window()->size(), size);
    }

    void showingTheProgressMovesNothing() {
        Window window;
        const auto place = [&window] {
            return window.control<QWidget>("m_btnBrowse").mapTo(window.ctrl.window(), QPoint());
        };
        QCoreApplication::processEvents();
        const QPoint before = place();
        window.control<QProgressBar>("m_prgCreate").show();
        window.control<QLabel>("m_lbProgress").show();
        QCoreApplication::processEvents();
        QCOMPARE(place(), before);
    }

    void everyControlHasAnAccessibleNameAndATooltip() {
        Window window;
        const QList<QWidget *> controls = window.controls();
        QVERIFY(controls.size() > 45);
        for (QWidget *control : controls) {
            const QByteArray name = control->objectName().toUtf8();
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(control);
            QVERIFY2(accessible && !accessible->text(QAccessible::Name).isEmpty(), name);
            QVERIFY2(!control->toolTip().isEmpty() || qobject_cast<QTableView *>(control), name);
        }
    }

    void everyNameHoldsWhatIsReadOnTheControl() {
        Window window;
        const auto plain = [](QString text) {
            return text.remove(u'&').remove(u'…').remove(u"..."_s).remove(u':').toLower();
        };
        int checked = 0;
        for (const auto *button : window.ctrl.window()->findChildren<QAbstractButton *>()) {
            if (!button->accessibleName().isEmpty() && !button->text().isEmpty()) {
                ++checked;
                QVERIFY2(button->accessibleName().toLower().contains(plain(button->text())),
                         qPrintable(button->accessibleName() + u" / "_s + button->text()));
            }
        }
        for (const auto *label : window.ctrl.window()->findChildren<QLabel *>()) {
            if (label->buddy()) {
                ++checked;
                QVERIFY2(label->buddy()->accessibleName().toLower().contains(plain(label->text())),
                         qPrintable(label->buddy()->accessibleName() + u" / "_s + label->text()));
            }
        }
        QVERIFY(checked > 40);
    }

    void everyLabelLeadsToItsField() {
        Window window;
        for (const QLabel *label : window.ctrl.window()->findChildren<QLabel *>()) {
            if (label->text().contains(u'&')) {
                QVERIFY2(label->buddy(), qPrintable(label->text()));
            }
        }
        QVERIFY(window.control<QLabel>("m_lbOutputName").buddy() ==
                &window.control<QLineEdit>("m_tfOutputName"));
    }

    void tabReachesEveryEnabledControlOfAView() {
        Window window;
        window.ctrl.EnableSettings(true);
        window.openPanel();
        window.ctrl.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.ctrl.window()));
        QList<QWidget *> reached;
        for (int i = 0; i < 80; ++i) {
            QTest::keyClick(window.ctrl.window()->windowHandle(), Qt::Key_Tab);
            reached << QApplication::focusWidget();
        }
        for (QWidget *control : window.controls()) {
            // Of a group of radio buttons, Tab reaches the chosen one; the arrows do the rest.
            const bool otherRow = control->inherits("QRadioButton") &&
                                  !qobject_cast<QAbstractButton *>(control)->isChecked();
            if (control->isVisible() && control->isEnabled() && !otherRow) {
                QVERIFY2(reached.contains(control), qPrintable(control->objectName()));
            }
        }
    }

    void tabGoesFromTheBandToTheListToTheFoot() {
        Window window;
        window.ctrl.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.ctrl.window()));
        window.control<QWidget>("m_btnAddFile").setFocus();
        QStringList names;
        for (int i = 0; i < 11; ++i) {
            QTest::keyClick(window.ctrl.window()->windowHandle(), Qt::Key_Tab);
            names << QApplication::focusWidget()->objectName();
        }
        QCOMPARE(
            names.join(u' '),
            u"m_btnAddFolder m_btnAddImage m_btnAddTxt m_btnAddPDF m_btnClear "
            "m_tableview emptyHintFiles emptyHintFolder m_tfOutputFolder m_btnBrowse m_btnOpen"_s);
    }

    void theHiddenPanelIsOutOfTabsWay() {
        Window window;
        window.ctrl.EnableSettings(true);
        window.ctrl.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.ctrl.window()));
        for (int i = 0; i < 40; ++i) {
            QTest::keyClick(window.ctrl.window()->windowHandle(), Qt::Key_Tab);
            QVERIFY(QApplication::focusWidget()->objectName() != u"m_tfTitle"_s);
        }
    }

    void returnPressesPlainButtonsToo() {
        Window window;
        window.world.notices.setNextFiles({});
        auto &button = window.control<QAbstractButton>("m_btnAddFile");
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Return);
        QCOMPARE(window.world.notices.filePanels().size(), std::size_t(1));
    }

    void theCompressionListShowsItsArrow() {
        Window window;
        window.openPanel();
        const QImage picture = window.control<QComboBox>("m_comboCompressMethod").grab().toImage();
        int ink = 0;
        for (int x = picture.width() - 26; x < picture.width() - 2; ++x) {
            ink += picture.pixelColor(x, picture.height() / 2).lightness() < 200 ? 1 : 0;
        }
        QVERIFY(ink > 0);
    }

    void theColorsStayLightUnderADarkTheme() {
        Window window;
        QPalette dark(QColor(30, 30, 30), QColor(20, 20, 20));
        QApplication::setPalette(dark);
        applyLightLook(*qApp);
        const auto &field = window.control<QLineEdit>("m_tfOutputFolder");
        QVERIFY(field.palette().color(QPalette::Base).lightness() > 200);
        QVERIFY(field.palette().color(QPalette::Text).lightness() < 100);
    }
};

FOLIOFORGE_TEST(WindowLayoutTest)
#include "WindowLayoutTest.moc"
