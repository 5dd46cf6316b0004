// SPDX-License-Identifier: Apache-2.0

#include "CutTexts.h"
#include "OffscreenScreen.h"
#include "WindowWorld.h"
#include "support/TestUnit.h"

#include "mainwnd/FilesArray.h"
#include "mainwnd/MainWndCtrl.h"
#include "skin/LightLook.h"
#include "skin/OptionsDrawer.h"
#include "skin/SkinButton.h"
#include "skin/TextScale.h"

#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QRegion>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

constexpr int kUsualPixels = 12;

/// A window with its panel open, on a desktop whose texts are `percent` of the usual size.
struct LargeTexts {
    explicit LargeTexts(int percent) {
        QFont font = QApplication::font();
        font.setPixelSize(kUsualPixels * percent / 100);
        QApplication::setFont(font);
        applyLightLook(*qApp);
        world.storeFolder(world.home.path());
        ctrl = std::make_unique<MainWndCtrl>(world.services());
        ctrl->window()->show();
        ctrl->clickBtnExpand();
        auto &drawer = control<OptionsDrawer>("m_optionsDrawer");
        QTRY_COMPARE(drawer.openWidth(), static_cast<int>(OptionsDrawer::kFullWidth));
    }
    template<typename Control> Control &control(const char *name) {
        return controlOf<Control>(*ctrl->window(), name);
    }
    WindowWorld world;
    std::unique_ptr<MainWndCtrl> ctrl;
};

} // namespace

/// The window follows the size of the system's texts.
class LargeTextsTest : public QObject {
    Q_OBJECT

  public:
    static void initMain() { useScreenOf({1920, 1200}); }

  private Q_SLOTS:
    void noTextIsCut_data() {
        QTest::addColumn<int>("percent");
        for (const int percent : {100, 150, 200}) {
            QTest::addRow("%d %%", percent) << percent;
        }
    }
    void noTextIsCut() {
        QFETCH(const int, percent);
        LargeTexts w(percent);
        w.ctrl->window()->resize(w.ctrl->window()->width(), 1150);
        for (const char *settings :
             {"m_btnImageSetting", "m_btnTxtSetting", "m_btnSecuritySetting"}) {
            QTest::mouseClick(&w.control<QWidget>(settings), Qt::LeftButton);
            QCoreApplication::processEvents();
            QCOMPARE(cutTexts(*w.ctrl->window()), QStringList());
        }
    }

    void noNumberStandsOnAnother() {
        LargeTexts w(200);
        for (const char *settings : {"m_btnImageSetting", "m_btnTxtSetting"}) {
            QTest::mouseClick(&w.control<QWidget>(settings), Qt::LeftButton);
            QCoreApplication::processEvents();
            QRegion taken;
            int fields = 0;
            for (const auto *field :
                 w.control<QWidget>("m_settingsViewContainer").findChildren<QLineEdit *>()) {
                const QRect place(field->mapToGlobal(QPoint()), field->size());
                if (field->isVisible()) {
                    QVERIFY2(!taken.intersects(place), qPrintable(field->objectName()));
                    taken += place;
                    ++fields;
                }
            }
            QCOMPARE(fields, 6); // Width, height and four margins.
        }
    }

    void usualTextsLeaveEverythingAsItWasDrawn() {
        LargeTexts w(125);
        QCOMPARE(textScale(), 1.0);
        const auto &button = w.control<SkinButton>("m_btnAddImage");
        QCOMPARE(button.size(), button.normalImage().size());
        QCOMPARE(w.control<QTableView>("m_tableview").horizontalHeader()->height(), 34);
    }

    void skinsAndHeaderGrowWithTheTexts() {
        LargeTexts w(200);
        QCOMPARE(textScale(), 24.0 / 13.0);
        for (const char *name : {"m_btnAddImage", "m_btnCreate", "m_btnBrowse", "m_btnExpand"}) {
            const auto &button = w.control<SkinButton>(name);
            QCOMPARE(button.size(), button.normalImage().size() * (24.0 / 13.0));
        }
        QCOMPARE(w.control<QTableView>("m_tableview").horizontalHeader()->height(), 63);
        QCOMPARE(w.control<QWidget>("band").height(), 107);
        const QImage ground = w.control<QWidget>("m_skinedBackView").grab().toImage();
        QCOMPARE(ground.pixelColor(3, 105), QColor(56, 56, 56));
    }

    void rowsAreHighEnough() {
        LargeTexts w(200);
        w.ctrl->addFiles({w.world.file(u"a.txt"_s)}, -1);
        auto &table = w.control<QTableView>("m_tableview");
        QVERIFY(table.rowHeight(0) >= QFontMetrics(QApplication::font()).height());
    }

    void wideLabelsHaveTwoLinesAndKeepTheirWords() {
        LargeTexts w(200);
        auto &box = w.control<QCheckBox>("m_btnCheckOwnerPassword");
        QCOMPARE(box.text().count(u'\n'), 1);
        QString words = box.text();
        QCOMPARE(words.replace(u'\n', u' ').remove(u'&'), u"Owner password, to change rights"_s);
    }

    void theWindowFitsItsScreen() {
        LargeTexts w(200);
        QVERIFY(w.ctrl->window()->minimumSizeHint().width() <= 1920);
    }
};

FOLIOFORGE_TEST(LargeTextsTest)
#include "LargeTextsTest.moc"
