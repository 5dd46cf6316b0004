// SPDX-License-Identifier: Apache-2.0

#include "skin/BusySheet.h"
#include "support/TestUnit.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

/// A window with a field, a button and a shortcut, and the sheet over them.
struct Covered {
    Covered() {
        window.resize(600, 400);
        window.setCentralWidget(&center);
        field.setGeometry(20, 20, 200, 30);
        button.setGeometry(20, 300, 100, 30);
        action.setShortcut(QKeySequence(u"Ctrl+O"_s));
        quit.setShortcut(QKeySequence(u"Ctrl+Q"_s));
        window.addAction(&action);
        window.addAction(&quit);
        window.show();
        window.activateWindow();
        field.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    ~Covered() { window.takeCentralWidget(); }
    Covered(const Covered &) = delete;
    Covered &operator=(const Covered &) = delete;

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }

    QMainWindow window;
    QWidget center;
    QLineEdit field{&center};
    QPushButton button{&center};
    QPushButton disabled{&center};
    BusySheet sheet{&center};
    QAction action;
    QAction quit;
};

} // namespace

class BusySheetTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void itIsHiddenUntilItBegins() {
        Covered covered;
        QVERIFY(!covered.sheet.isVisible());
        covered.sheet.beginSheet();
        QVERIFY(covered.sheet.isVisible());
        QCOMPARE(covered.sheet.geometry(), covered.window.rect());
        covered.sheet.endSheet();
        QVERIFY(!covered.sheet.isVisible());
    }

    void itFollowsTheWindowsSize() {
        Covered covered;
        covered.sheet.beginSheet();
        covered.window.resize(700, 500);
        QTRY_COMPARE(covered.sheet.size(), QSize(700, 500));
    }

    void theMouseReachesNothingUnderIt() {
        Covered covered;
        const QSignalSpy fired(&covered.button, &QAbstractButton::clicked);
        const QPoint at = covered.button.mapTo(&covered.window, QPoint(50, 15));
        QTest::mouseClick(covered.window.windowHandle(), Qt::LeftButton, {}, at);
        QCOMPARE(fired.count(), 1);
        covered.sheet.beginSheet();
        QTest::mouseClick(covered.window.windowHandle(), Qt::LeftButton, {}, at);
        QCOMPARE(fired.count(), 1);
    }

    void theKeyboardReachesNothingUnderIt() {
        Covered covered;
        covered.sheet.beginSheet();
        covered.key(Qt::Key_A);
        covered.key(Qt::Key_Tab);
        covered.key(Qt::Key_A);
        QCOMPARE(covered.field.text(), QString());
        QVERIFY(covered.sheet.hasFocus());
    }

    void shortcutsRestButForQuitting() {
        Covered covered;
        const QSignalSpy opened(&covered.action, &QAction::triggered);
        const QSignalSpy quitted(&covered.quit, &QAction::triggered);
        covered.key(Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(opened.count(), 1);
        covered.sheet.beginSheet();
        covered.key(Qt::Key_O, Qt::ControlModifier);
        covered.key(Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(opened.count(), 1);
        QCOMPARE(quitted.count(), 1);
    }

    void theWindowCanStillBeClosed() {
        Covered covered;
        covered.sheet.beginSheet();
        QVERIFY(covered.window.close());
        QVERIFY(!covered.window.isVisible());
    }

    void theFocusComesBackWhenItEnds() {
        Covered covered;
        covered.sheet.beginSheet();
        covered.sheet.endSheet();
        QVERIFY(covered.field.hasFocus());
    }

    void itSaysWhichFileIsWrittenAndHowManyAreDone() {
        Covered covered;
        covered.sheet.setFile(u"a<b>.txt"_s);
        covered.sheet.setProgress(u"2 of 5 done"_s, 0.4);
        QCOMPARE(covered.sheet.findChild<QLabel *>(u"busyFile"_s)->text(), u"a<b>.txt"_s);
        QCOMPARE(covered.sheet.findChild<QLabel *>(u"busyCount"_s)->text(), u"2 of 5 done"_s);
        const auto *bar = covered.sheet.findChild<QProgressBar *>();
        QCOMPARE(bar->value(), bar->maximum() * 2 / 5);
    }

    void screenReadersFindADialogAndNothingUnderIt() {
        Covered covered;
        covered.disabled.setEnabled(false);
        covered.sheet.beginSheet();
        covered.sheet.setFile(u"a.pdf"_s);
        covered.sheet.setProgress(u"2 of 5 done"_s, 0.4);
        const auto stateOf = [](QWidget &widget) {
            return QAccessible::queryAccessibleInterface(&widget)->state();
        };
        QAccessibleInterface *sheet = QAccessible::queryAccessibleInterface(&covered.sheet);
        QCOMPARE(sheet->role(), QAccessible::Dialog);
        QCOMPARE(sheet->text(QAccessible::Description), u"a.pdf 2 of 5 done"_s);
        QVERIFY(!stateOf(covered.sheet).disabled);
        QVERIFY(stateOf(covered.field).disabled);
        QVERIFY(stateOf(covered.button).disabled);
        covered.sheet.endSheet();
        QVERIFY(!stateOf(covered.field).disabled);
        QVERIFY(stateOf(covered.disabled).disabled);
    }
};

FOLIOFORGE_TEST(BusySheetTest)
#include "BusySheetTest.moc"
