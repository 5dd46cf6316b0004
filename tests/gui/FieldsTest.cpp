// SPDX-License-Identifier: Apache-2.0

#include "OptionsPanelCase.h"
#include "support/TestUnit.h"

#include "skin/LightLook.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The panel at its security settings, with both passwords wanted.
struct Passwords : Panel {
    Passwords() {
        openSecurity();
        tick("m_btnCheckUserPassword");
        tick("m_btnCheckOwnerPassword");
        ctrl.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(ctrl.window()));
    }
    QToolButton &eyeIn(const char *name) { return *field(name).findChild<QToolButton *>(); }
    QWindow *screen() { return ctrl.window()->windowHandle(); }
};

/// Puts another locale in place for as long as it lives.
struct InLocale {
    explicit InLocale(const QLocale &locale) { QLocale::setDefault(locale); }
    ~InLocale() { QLocale::setDefault(QLocale::system()); }
    Q_DISABLE_COPY_MOVE(InLocale)
};

void everyPassword() {
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("box");
    QTest::newRow("user") << QByteArray("m_tfUserPassword") << QByteArray("m_btnCheckUserPassword");
    QTest::newRow("owner") << QByteArray("m_tfOwnerPassword")
                           << QByteArray("m_btnCheckOwnerPassword");
}

const QByteArrayList &lengthFields() {
    static const QByteArrayList names{
        "m_tfImageCustomizedPageWidth", "m_tfImageCustomizedPageHeight",
        "m_tfImagePageMarginLeft",      "m_tfImagePageMarginRight",
        "m_tfImagePageMarginTop",       "m_tfImagePageMarginBottom",
        "m_tfTextCustomizedPageWidth",  "m_tfTextCustomizedPageHeight",
        "m_tfTextPageMarginLeft",       "m_tfTextPageMarginRight",
        "m_tfTextPageMarginTop",        "m_tfTextPageMarginBottom"};
    return names;
}

} // namespace

/// What stands in fields beside their texts: the eye of passwords, the unit of lengths.
class FieldsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { applyLightLook(*qApp); }

    void aClickOnTheEyeShowsThePasswordAndHidesItAgain_data() { everyPassword(); }
    void aClickOnTheEyeShowsThePasswordAndHidesItAgain() {
        QFETCH(const QByteArray, name);
        Passwords panel;
        QLineEdit &field = panel.field(name.constData());
        panel.type(name.constData(), u"secret"_s);
        QVERIFY(field.displayText() != u"secret"_s);
        QTest::mouseClick(&panel.eyeIn(name.constData()), Qt::LeftButton);
        QCOMPARE(field.displayText(), u"secret"_s);
        QTest::mouseClick(&panel.eyeIn(name.constData()), Qt::LeftButton);
        QVERIFY(field.displayText() != u"secret"_s);
        QCOMPARE(field.text(), u"secret"_s);
    }

    void aClickOnTheEyeLeavesTheKeyboardInTheField() {
        Passwords panel;
        panel.field("m_tfUserPassword").setFocus();
        QTest::mouseClick(&panel.eyeIn("m_tfUserPassword"), Qt::LeftButton);
        QVERIFY(panel.field("m_tfUserPassword").hasFocus());
    }

    void tabReachesTheEyeAfterItsFieldAndSpaceWorksIt_data() { everyPassword(); }
    void tabReachesTheEyeAfterItsFieldAndSpaceWorksIt() {
        QFETCH(const QByteArray, name);
        Passwords panel;
        QLineEdit &field = panel.field(name.constData());
        field.setFocus();
        QTest::keyClicks(&field, u"secret"_s);
        QTest::keyClick(panel.screen(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), &panel.eyeIn(name.constData()));
        QTest::keyClick(panel.screen(), Qt::Key_Space);
        QCOMPARE(field.displayText(), u"secret"_s);
        QTest::keyClick(panel.screen(), Qt::Key_Tab);
        QVERIFY(QApplication::focusWidget()->inherits("QCheckBox"));
    }

    void otherKeysOnTheEyeDoNotChangeThePassword() {
        Passwords panel;
        panel.type("m_tfUserPassword", u"secret"_s);
        panel.eyeIn("m_tfUserPassword").setFocus();
        for (const Qt::Key key : {Qt::Key_X, Qt::Key_Backspace, Qt::Key_Delete}) {
            QTest::keyClick(panel.screen(), key);
        }
        QCOMPARE(panel.field("m_tfUserPassword").text(), u"secret"_s);
    }

    void aScreenReaderHearsTheEyesNameAndStateAndWorksIt() {
        Passwords panel;
        const auto *other = QAccessible::queryAccessibleInterface(&panel.eyeIn("m_tfUserPassword"));
        auto *eye = QAccessible::queryAccessibleInterface(&panel.eyeIn("m_tfOwnerPassword"));
        QCOMPARE(other->text(QAccessible::Name), u"Show the user password"_s);
        QCOMPARE(eye->text(QAccessible::Name), u"Show the owner password"_s);
        QVERIFY(eye->state().checkable && !eye->state().checked);
        QVERIFY(eye->actionInterface()->actionNames().contains(
            QAccessibleActionInterface::toggleAction()));
        eye->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(eye->state().checked);
        QCOMPARE(panel.field("m_tfOwnerPassword").echoMode(), QLineEdit::Normal);
        QCOMPARE(panel.eyeIn("m_tfOwnerPassword").toolTip(), u"Hide the password"_s);
    }

    void theEyeIsGreyedAndOffWithItsField_data() { everyPassword(); }
    void theEyeIsGreyedAndOffWithItsField() {
        QFETCH(const QByteArray, name);
        QFETCH(const QByteArray, box);
        Passwords panel;
        const QToolButton &eye = panel.eyeIn(name.constData());
        panel.type(name.constData(), u"secret"_s);
        QTest::mouseClick(&panel.eyeIn(name.constData()), Qt::LeftButton);
        panel.tick(box.constData());
        QVERIFY(!eye.isEnabled() && !eye.isChecked());
        panel.tick(box.constData());
        QVERIFY(eye.isEnabled());
        QCOMPARE(panel.field(name.constData()).echoMode(), QLineEdit::Password);
    }

    void aPasswordIsHiddenAsItIsGreyedWithTheLastFile_data() { everyPassword(); }
    void aPasswordIsHiddenAsItIsGreyedWithTheLastFile() {
        QFETCH(const QByteArray, name);
        Passwords panel;
        panel.ctrl.addFiles({panel.world.file(u"a.txt"_s)}, -1);
        const QLineEdit &field = panel.field(name.constData());
        panel.type(name.constData(), u"secret"_s);
        QTest::mouseClick(&panel.eyeIn(name.constData()), Qt::LeftButton);
        panel.press("m_btnClear");
        QVERIFY(!field.isEnabled());
        QCOMPARE(field.text(), u"secret"_s);
        QVERIFY(field.displayText() != u"secret"_s);
    }

    void aPasswordThatIsTypedAnewIsHidden() {
        Passwords panel;
        QLineEdit &field = panel.field("m_tfUserPassword");
        panel.type("m_tfUserPassword", u"secret"_s);
        QTest::mouseClick(&panel.eyeIn("m_tfUserPassword"), Qt::LeftButton);
        QTest::keyClick(&field, Qt::Key_Backspace);
        QCOMPARE(field.displayText(), u"secre"_s);
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, u"other"_s);
        QVERIFY(field.displayText() != u"other"_s);
    }

    void theTextOfAPasswordEndsBeforeTheEye() {
        Passwords panel;
        QLineEdit &field = panel.field("m_tfUserPassword");
        QTest::mouseClick(&panel.eyeIn("m_tfUserPassword"), Qt::LeftButton);
        panel.type("m_tfUserPassword", QString(100, u'W'));
        field.grab(); // Drawing scrolls a long text to its end.
        // The cursor, behind the last letter, is given with some room around it.
        const QRectF cursor = field.inputMethodQuery(Qt::ImCursorRectangle).toRectF();
        QVERIFY(cursor.center().x() <= panel.eyeIn("m_tfUserPassword").x());
    }

    void lengthsAreToldInTheMeasureOfTheLocale_data() {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("told");
        QTest::newRow("Germany") << QLocale(QLocale::German, QLocale::Germany)
                                 << u"600 pt = 211,7 mm"_s;
        QTest::newRow("Britain") << QLocale(QLocale::English, QLocale::UnitedKingdom)
                                 << u"600 pt = 211.7 mm"_s;
        QTest::newRow("States") << QLocale(QLocale::English, QLocale::UnitedStates)
                                << u"600 pt = 8.33 in"_s;
    }
    void lengthsAreToldInTheMeasureOfTheLocale() {
        QFETCH(const QLocale, locale);
        QFETCH(const QString, told);
        const InLocale there(locale);
        Panel panel;
        for (const QByteArray &name : lengthFields()) {
            QLineEdit &field = panel.field(name.constData());
            field.setText(u"600"_s);
            QCOMPARE(field.accessibleDescription(), told);
            QVERIFY(field.toolTip().endsWith(u", in points\n"_s + told));
        }
    }

    void aHintFollowsTheNumberAsItIsTyped() {
        const InLocale there(QLocale(QLocale::English, QLocale::UnitedStates));
        Panel panel;
        panel.openPanel();
        panel.press("m_btnTxtSetting");
        QLineEdit &field = panel.field("m_tfTextPageMarginLeft");
        QCOMPARE(field.accessibleDescription(), u"72 pt = 1.00 in"_s);
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_3);
        QCOMPARE(field.accessibleDescription(), u"3 pt = 0.04 in"_s);
        QTest::keyClick(&field, Qt::Key_6);
        QCOMPARE(field.accessibleDescription(), u"36 pt = 0.50 in"_s);
        QCOMPARE(field.toolTip(), u"Left margin, in points\n36 pt = 0.50 in"_s);
    }

    void everyLengthShowsItsUnitBehindTheNumber() {
        Panel panel;
        panel.openPanel();
        for (const QByteArray &name : lengthFields()) {
            panel.press(name.contains("Text") ? "m_btnTxtSetting" : "m_btnImageSetting");
            QCoreApplication::processEvents();
            QLineEdit &field = panel.field(name.constData());
            const auto *unit = field.findChild<QLabel *>();
            QCOMPARE(unit->text(), u"pt"_s);
            QVERIFY(unit->isVisible() && field.rect().contains(unit->geometry()));
            field.setText(u"1191"_s);
            field.end(false);
            const QRectF cursor = field.inputMethodQuery(Qt::ImCursorRectangle).toRectF();
            QVERIFY2(cursor.center().x() <= unit->x(), name);
            field.home(false);
            const QRectF start = field.inputMethodQuery(Qt::ImCursorRectangle).toRectF();
            const int digits = field.fontMetrics().horizontalAdvance(u"1191"_s);
            QVERIFY2(cursor.left() - start.left() >= digits - 1, name);
        }
    }

    void aClickOnTheUnitGoesToTheField() {
        Panel panel;
        panel.openPanel();
        panel.ctrl.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(panel.ctrl.window()));
        QLineEdit &field = panel.field("m_tfImagePageMarginTop");
        field.setText(u"72"_s);
        field.home(false);
        const auto *unit = field.findChild<QLabel *>();
        QWidget *window = panel.ctrl.window();
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                          unit->mapTo(window, unit->rect().center()));
        QVERIFY(field.hasFocus());
        QCOMPARE(field.cursorPosition(), 2);
    }

    void whatStandsInAFieldIsAtTheLeftWhereTextsRunThatWay() {
        Passwords panel;
        panel.ctrl.window()->setLayoutDirection(Qt::RightToLeft);
        const QLineEdit &password = panel.field("m_tfUserPassword");
        QVERIFY(panel.eyeIn("m_tfUserPassword").geometry().right() < password.width() / 2);
        QCOMPARE(password.textMargins().right(), 0);
        QVERIFY(password.textMargins().left() > 0);
        panel.press("m_btnImageSetting");
        const QLineEdit &length = panel.field("m_tfImagePageMarginTop");
        QVERIFY(length.findChild<QLabel *>()->geometry().right() < length.width() / 2);
    }
};

FOLIOFORGE_TEST(FieldsTest)
#include "FieldsTest.moc"
