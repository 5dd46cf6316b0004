// SPDX-License-Identifier: Apache-2.0

#include "OptionsPanelCase.h"
#include "skin/SkinButton.h"
#include "support/TestUnit.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// The options panel under the keys and in the words of a screen reader.
class OptionsByKeysTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aBoxThatAScreenReaderTogglesActsAsOneThatIsClicked_data() {
        QTest::addColumn<QByteArray>("box");
        QTest::addColumn<QByteArray>("field");
        QTest::newRow("user") << QByteArray("m_btnCheckUserPassword")
                              << QByteArray("m_tfUserPassword");
        QTest::newRow("owner") << QByteArray("m_btnCheckOwnerPassword")
                               << QByteArray("m_tfOwnerPassword");
    }
    void aBoxThatAScreenReaderTogglesActsAsOneThatIsClicked() {
        QFETCH(const QByteArray, box);
        QFETCH(const QByteArray, field);
        Panel panel;
        panel.openSecurity();
        QVERIFY(!panel.field(field.constData()).isEnabled());
        auto *accessible =
            QAccessible::queryAccessibleInterface(&panel.control<QCheckBox>(box.constData()));
        accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(panel.field(field.constData()).isEnabled());
    }

    void aScreenReaderDoesNotWriteIntoTheFolder() {
        Panel panel;
        QLineEdit &folder = panel.field("m_tfOutputFolder");
        const QString before = folder.text();
        auto *accessible = QAccessible::queryAccessibleInterface(&folder);
        accessible->setText(QAccessible::Value, u"/elsewhere"_s);
        QVERIFY(!accessible->editableTextInterface());
        QVERIFY(accessible->state().readOnly);
        QCOMPARE(folder.text(), before);
        QCOMPARE(accessible->text(QAccessible::Value), before);
    }

    void tabEntersRadioButtonsAtTheChosenOne() {
        Panel panel;
        panel.openPanel();
        auto &window = *panel.ctrl.window();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        for (const char *chosen : {"imageCustom", "imageFollows"}) {
            panel.tick(chosen);
            panel.control<QWidget>("m_btnSecuritySetting").setFocus();
            QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->objectName(), QString::fromLatin1(chosen));
        }
        panel.control<QWidget>("m_comboCompressMethod").setFocus();
        QTest::keyClick(window.windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
        while (!QApplication::focusWidget()->inherits("QRadioButton")) {
            QTest::keyClick(window.windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
        }
        QCOMPARE(QApplication::focusWidget()->objectName(), u"imageFollows"_s);
    }

    void theButtonThatAppearsTakesOverTheKeyboard() {
        Panel panel;
        panel.ctrl.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(panel.ctrl.window()));
        auto &show = panel.control<SkinButton>("m_btnExpand");
        auto &hide = panel.control<SkinButton>("m_btnElapse");
        show.setFocus();
        QTest::keyClick(&show, Qt::Key_Space);
        QVERIFY(hide.hasFocus());
        QTest::keyClick(&hide, Qt::Key_Space);
        QVERIFY(show.hasFocus());
    }

    void thePermissionBoxesSayWhatATickDoes() {
        Panel panel;
        QCOMPARE(panel.control<QCheckBox>("m_btnCheckAllowPrint").accessibleName(),
                 u"Refuse printing"_s);
        QCOMPARE(panel.control<QCheckBox>("m_btnCheckAllowCopy").accessibleName(),
                 u"Refuse copying"_s);
    }

    void theArrowKeysChooseARowAsTheMouseDoes() {
        Panel panel;
        panel.openPanel();
        auto &follows = panel.control<QRadioButton>("imageFollows");
        follows.setFocus();
        QTest::keyClick(&follows, Qt::Key_Down);
        QVERIFY(panel.control<QRadioButton>("imageCustom").isChecked());
        QVERIFY(panel.field("m_tfImageCustomizedPageWidth").isEnabled());
    }
};

FOLIOFORGE_TEST(OptionsByKeysTest)
#include "OptionsByKeysTest.moc"
