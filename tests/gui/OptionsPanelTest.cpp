// SPDX-License-Identifier: Apache-2.0

#include "OffscreenScreen.h"
#include "OptionsPanelCase.h"
#include "support/TestUnit.h"

#include "skin/OptionsDrawer.h"
#include "skin/SkinButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

const QStringList kProperties{u"m_tfTitle"_s, u"m_tfAuthor"_s, u"m_tfSubject"_s, u"m_tfKeywords"_s};
const QStringList kPasswordBoxes{u"m_btnCheckUserPassword"_s, u"m_btnCheckOwnerPassword"_s};
const QStringList kOwnerControls{u"m_btnCheckAllowPrint"_s, u"m_btnCheckAllowCopy"_s,
                                 u"m_tfOwnerPassword"_s};
const QStringList kUserControls{u"m_tfUserPassword"_s};
const QStringList kSave{u"m_btnSave"_s};
const QStringList kAll = kProperties + kPasswordBoxes + kUserControls + kOwnerControls + kSave;

} // namespace

class OptionsPanelTest : public QObject {
    Q_OBJECT

  public:
    static void initMain() { useScreenOf({1920, 1200}); }

  private Q_SLOTS:
    void theWindowStartsWithoutThePanelAndItsWidth() {
        Panel panel;
        QVERIFY(!panel.control<QWidget>("m_optionsDrawer").isVisible());
        QVERIFY(panel.control<QWidget>("m_btnExpand").isVisible());
        QVERIFY(!panel.control<QWidget>("m_btnElapse").isVisible());
        QCOMPARE(panel.control<QLabel>("m_labelOptions").text(), u"Show Options"_s);
    }

    void showingThePanelWidensTheWindowToTheRight() {
        Panel panel;
        const QRect before = panel.ctrl.window()->geometry();
        panel.openPanel();
        QCOMPARE(panel.ctrl.window()->geometry(), before.adjusted(0, 0, 342, 0));
        QVERIFY(!panel.control<QWidget>("m_btnExpand").isVisible());
        QVERIFY(panel.control<QWidget>("m_btnElapse").isVisible());
        QCOMPARE(panel.control<QLabel>("m_labelOptions").text(), u"Hide Options"_s);
        QCOMPARE(panel.control<QWidget>("optionsPanel").width(), 342);
    }

    void showingAndHidingRestoresTheExactGeometry() {
        Panel panel;
        const QRect before = panel.ctrl.window()->geometry();
        panel.openPanel();
        panel.press("m_btnElapse");
        QTRY_COMPARE(panel.control<OptionsDrawer>("m_optionsDrawer").openWidth(), 0);
        QCOMPARE(panel.ctrl.window()->geometry(), before);
        QVERIFY(panel.control<QWidget>("m_btnExpand").isVisible());
        QCOMPARE(panel.control<QLabel>("m_labelOptions").text(), u"Show Options"_s);
    }

    void aButtonThatPassesUnderThePointerInASlideLooksNormalAfterIt() {
        Panel panel;
        auto &button = panel.control<SkinButton>("m_btnElapse");
        const SkinImage normal = button.image();
        panel.press("m_btnExpand");
        QEnterEvent enter(QPointF(3, 3), QPointF(3, 3), button.mapToGlobal(QPointF(3, 3)));
        QCoreApplication::sendEvent(&button, &enter);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&button, &leave);
        QVERIFY(button.image() != normal);
        QTRY_VERIFY(button.image() == normal);
    }

    void hidingHalfWayThroughShowingRestoresTheWidthToo() {
        Panel panel;
        const QRect before = panel.ctrl.window()->geometry();
        panel.press("m_btnExpand");
        panel.press("m_btnElapse");
        QTRY_COMPARE(panel.control<OptionsDrawer>("m_optionsDrawer").openWidth(), 0);
        QCOMPARE(panel.ctrl.window()->geometry(), before);
    }

    void theButtonThatAppearsShowsItsNormalLook() {
        Panel panel;
        panel.openPanel();
        QCoreApplication::processEvents();
        auto &hide = panel.control<SkinButton>("m_btnElapse");
        QVERIFY(hide.image() == hide.normalImage());
    }

    void theDefaultsAreA4FollowTheImageAndNoCompression() {
        Panel panel;
        QVERIFY(panel.control<QRadioButton>("textA4").isChecked());
        QVERIFY(panel.control<QRadioButton>("imageFollows").isChecked());
        QCOMPARE(panel.control<QComboBox>("m_comboCompressMethod").currentIndex(), 0);
        QCOMPARE(panel.ctrl.getTextPageSize(), QSizeF(595, 842));
        QCOMPARE(panel.ctrl.getImagePageSize(), QSizeF(0, 0));
    }

    void theImageSettingsComeFirst() {
        Panel panel;
        panel.openPanel();
        QVERIFY(panel.control<QWidget>("m_imagePageSizeView").isVisible());
        QVERIFY(!panel.control<QWidget>("m_textPageSizeView").isVisible());
        QVERIFY(!panel.control<QWidget>("m_securityView").isVisible());
    }

    void eachButtonPutsItsViewAloneIntoTheContainer_data() {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<QByteArray>("view");
        QTest::newRow("text") << QByteArray("m_btnTxtSetting") << QByteArray("m_textPageSizeView");
        QTest::newRow("security") << QByteArray("m_btnSecuritySetting")
                                  << QByteArray("m_securityView");
        QTest::newRow("image") << QByteArray("m_btnImageSetting")
                               << QByteArray("m_imagePageSizeView");
    }

    void eachButtonPutsItsViewAloneIntoTheContainer() {
        QFETCH(const QByteArray, button);
        QFETCH(const QByteArray, view);
        Panel panel;
        panel.openPanel();
        panel.press(button.constData());
        panel.press(button.constData());
        const auto views = panel.control<QWidget>("m_settingsViewContainer")
                               .findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(views.size(), 1);
        QCOMPARE(views.first()->objectName(), QString::fromLatin1(view));
        QVERIFY(views.first()->isVisible());
        QVERIFY(panel.control<SkinButton>(button.constData()).isChecked());
    }

    void theValuesOfHiddenViewsAreKept() {
        Panel panel;
        panel.openPanel();
        panel.type("m_tfImagePageMarginLeft", u"31"_s);
        panel.press("m_btnTxtSetting");
        panel.press("m_btnImageSetting");
        QCOMPARE(panel.field("m_tfImagePageMarginLeft").text(), u"31"_s);
    }

    void withAnEmptyListPropertiesSecurityAndSaveAreDisabled() {
        Panel panel;
        QCOMPARE(panel.enabledAmong(kAll), QStringList());
    }

    void withFilesThePropertiesAndTheTwoBoxesAreEnabled() {
        Panel panel;
        panel.ctrl.EnableSettings(true);
        QCOMPARE(panel.enabledAmong(kAll), kProperties + kPasswordBoxes + kSave);
    }

    void tickedBoxesEnableTheirControlsAndStayTickedWhenDisabled() {
        Panel panel;
        panel.openSecurity();
        panel.tick("m_btnCheckUserPassword");
        panel.tick("m_btnCheckOwnerPassword");
        QCOMPARE(panel.enabledAmong(kAll), kAll);
        panel.ctrl.EnableSettings(false);
        QCOMPARE(panel.enabledAmong(kAll), QStringList());
        QVERIFY(panel.control<QCheckBox>("m_btnCheckUserPassword").isChecked());
        panel.ctrl.EnableSettings(true);
        QCOMPARE(panel.enabledAmong(kAll), kAll);
    }

    void tickingTheUserPasswordOffAndOnEmptiesItsField() {
        Panel panel;
        panel.openSecurity();
        panel.tick("m_btnCheckUserPassword");
        panel.type("m_tfUserPassword", u"secret"_s);
        QCOMPARE(panel.field("m_tfUserPassword").text(), u"secret"_s);
        panel.tick("m_btnCheckUserPassword");
        QVERIFY(!panel.field("m_tfUserPassword").isEnabled());
        QCOMPARE(panel.field("m_tfUserPassword").text(), QString());
        panel.tick("m_btnCheckUserPassword");
        QCOMPARE(panel.field("m_tfUserPassword").text(), QString());
    }

    void theOwnerBoxLeavesThePermissionBoxesAsTheyAre() {
        Panel panel;
        panel.openSecurity();
        panel.tick("m_btnCheckOwnerPassword");
        panel.tick("m_btnCheckAllowPrint");
        panel.type("m_tfOwnerPassword", u"secret"_s);
        panel.tick("m_btnCheckOwnerPassword");
        QVERIFY(panel.control<QCheckBox>("m_btnCheckAllowPrint").isChecked());
        QVERIFY(!panel.control<QCheckBox>("m_btnCheckAllowPrint").isEnabled());
        QCOMPARE(panel.field("m_tfOwnerPassword").text(), QString());
    }

    void onlyTheCustomRowsEnableTheCustomSizes() {
        Panel panel;
        panel.openPanel();
        QVERIFY(!panel.field("m_tfImageCustomizedPageWidth").isEnabled());
        panel.tick("imageCustom");
        QVERIFY(panel.field("m_tfImageCustomizedPageWidth").isEnabled());
        QVERIFY(panel.field("m_tfImageCustomizedPageHeight").isEnabled());
        panel.type("m_tfImageCustomizedPageWidth", u"300"_s);
        panel.tick("imageFollows");
        QVERIFY(!panel.field("m_tfImageCustomizedPageWidth").isEnabled());
        QCOMPARE(panel.field("m_tfImageCustomizedPageWidth").text(), u"300"_s);

        panel.press("m_btnTxtSetting");
        QVERIFY(!panel.field("m_tfTextCustomizedPageWidth").isEnabled());
        panel.tick("textCustom");
        QVERIFY(panel.field("m_tfTextCustomizedPageWidth").isEnabled());
        QVERIFY(panel.field("m_tfTextCustomizedPageHeight").isEnabled());
        panel.tick("textA3");
        QVERIFY(!panel.field("m_tfTextCustomizedPageWidth").isEnabled());
        QCOMPARE(panel.ctrl.getTextPageSize(), QSizeF(842, 1191));
    }

    void numberFieldsTakeTheirLeadingInteger() {
        Panel panel;
        panel.openPanel();
        panel.tick("imageCustom");
        panel.type("m_tfImageCustomizedPageWidth", u"300.7 points"_s);
        panel.type("m_tfImageCustomizedPageHeight", u"tall"_s);
        QCOMPARE(panel.ctrl.getImagePageSize(), QSizeF(300, 0));
    }

    void aBadMarginShowsOneNoticeAndAnswersNo() {
        Panel panel;
        panel.openPanel();
        panel.press("m_btnTxtSetting");
        panel.type("m_tfTextPageMarginTop", u"300"_s);
        panel.type("m_tfTextPageMarginLeft", u"300"_s);
        QVERIFY(!panel.ctrl.checkTextPageSizeSettings());
        QCOMPARE(panel.world.notices.shown().size(), std::size_t(1));
        QCOMPARE(panel.lastMessage(), u"Invalid page margin value in text output setting."_s);
        panel.type("m_tfTextPageMarginTop", u"256"_s);
        panel.type("m_tfTextPageMarginLeft", u"0"_s);
        QVERIFY(panel.ctrl.checkTextPageSizeSettings());
        QVERIFY(panel.ctrl.checkImagePageSizeSettings());
        QCOMPARE(panel.world.notices.shown().size(), std::size_t(1));
    }

    void emptyPasswordsShowOnlyTheFirstNotice() {
        Panel panel;
        panel.openSecurity();
        panel.tick("m_btnCheckUserPassword");
        panel.tick("m_btnCheckOwnerPassword");
        QVERIFY(!panel.ctrl.checkSecuritySettings());
        QCOMPARE(panel.world.notices.shown().size(), std::size_t(1));
        QCOMPARE(panel.lastMessage(), u"Please input user password."_s);
    }

    void savingDoesNothing() {
        Panel panel;
        panel.ctrl.EnableSettings(true);
        panel.openPanel();
        panel.type("m_tfTitle", u"A title"_s);
        panel.press("m_btnSave");
        QCOMPARE(panel.field("m_tfTitle").text(), u"A title"_s);
        QVERIFY(panel.world.notices.shown().empty());
    }
};

FOLIOFORGE_TEST(OptionsPanelTest)
#include "OptionsPanelTest.moc"
