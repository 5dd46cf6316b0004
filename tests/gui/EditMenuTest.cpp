// SPDX-License-Identifier: Apache-2.0

#include "TestApplication.h"

#include "mainwnd/FilesArray.h"
#include "support/TestUnit.h"

#include <QLineEdit>
#include <QMenu>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The application with the files c.txt, a.txt and b.txt in its list, which has the keyboard.
struct ThreeFiles : Application {
    ThreeFiles() {
        ctrl.addFiles({world.file(u"c.txt"_s), world.file(u"a.txt"_s, QByteArray(5000, 'x')),
                       world.file(u"b.txt"_s)},
                      -1);
        activate();
        table.setFocus();
    }
    void select(const QList<int> &rows) {
        table.clearSelection();
        for (const int row : rows) {
            table.selectionModel()->select(ctrl.filesArray().index(row, 0),
                                           QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }
    [[nodiscard]] QString names() const {
        QStringList names;
        for (const PDFFileInfo *entry : ctrl.filesArray().arrangedObjects()) {
            names += entry->fileName().chopped(4);
        }
        return names.join(u' ');
    }
    QMenu &editMenu() {
        for (QMenu *menu : window().menuBar()->findChildren<QMenu *>()) {
            if (menu->title() == u"&Edit"_s) {
                return *menu;
            }
        }
        qFatal("no Edit menu");
    }
    /// Chooses `title` in the Edit menu with the keys. Some versions of Qt take the click of a
    /// mouse that did not move for the one that opened the menu.
    void choose(const QString &title) {
        QMenu &menu = editMenu();
        menu.popup(window().mapToGlobal(QPoint(0, 0)));
        for (qsizetype i = 0; i < menu.actions().size() && menu.activeAction() != &item(title);
             ++i) {
            QTest::keyClick(&menu, Qt::Key_Down);
        }
        QTest::keyClick(&menu, Qt::Key_Return);
    }

    MainWndCtrl &ctrl = delegate.mainWndCtrl();
    SkinTableView &table = controlOf<SkinTableView>(window(), "m_tableview");
};

} // namespace

class EditMenuTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theMenuHoldsEveryCommandWithItsKey() {
        ThreeFiles app;
        QStringList lines;
        for (const QAction *item : app.editMenu().actions()) {
            lines += item->isSeparator() ? u"-"_s
                                         : item->text() + u'|' +
                                               item->shortcut().toString(QKeySequence::NativeText);
        }
        QCOMPARE(lines, (QStringList{
                            u"Undo Add|Ctrl+Z"_s,
                            u"Redo|"_s +
                                QKeySequence(QKeySequence::Redo).toString(QKeySequence::NativeText),
                            u"-"_s, u"Select All|Ctrl+A"_s, u"Remove|Del"_s, u"Clear|Ctrl+Del"_s,
                            u"-"_s, u"Sort By Name|Ctrl+1"_s, u"Sort By Size|Ctrl+2"_s,
                            u"Sort By Data Created|Ctrl+3"_s, u"Sort By Data Modified|Ctrl+4"_s,
                            u"-"_s, u"Move Up|Alt+Up"_s, u"Move Down|Alt+Down"_s}));
    }

    void theItemsAreEnabledWhileTheyArePossible() {
        ThreeFiles app;
        QVERIFY(app.item(u"Clear"_s).isEnabled());
        QVERIFY(!app.item(u"Move Up"_s).isEnabled());
        app.select({0});
        QVERIFY(!app.item(u"Move Up"_s).isEnabled());
        QVERIFY(app.item(u"Move Down"_s).isEnabled());
        app.key(Qt::Key_Down, Qt::AltModifier);
        QVERIFY(app.item(u"Move Up"_s).isEnabled());
        app.key(Qt::Key_Delete, Qt::ControlModifier);
        for (const QString &title : {u"Select All"_s, u"Remove"_s, u"Clear"_s, u"Sort By Name"_s,
                                     u"Move Up"_s, u"Move Down"_s}) {
            QVERIFY2(!app.item(title).isEnabled(), qPrintable(title));
        }
    }

    void nothingSelectedIsNotRemoved() {
        ThreeFiles app;
        app.select({1});
        QVERIFY(app.item(u"Remove"_s).isEnabled());
        app.table.clearSelection();
        QVERIFY(!app.item(u"Remove"_s).isEnabled());
        QVERIFY(app.item(u"Clear"_s).isEnabled());
    }

    void theItemsDoWhatTheContextMenusDo_data() {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("names");
        QTest::newRow("remove") << u"Remove"_s << u"c b"_s;
        QTest::newRow("clear") << u"Clear"_s << QString();
        QTest::newRow("by name") << u"Sort By Name"_s << u"a b c"_s;
        QTest::newRow("by size") << u"Sort By Size"_s << u"c b a"_s;
        QTest::newRow("up") << u"Move Up"_s << u"a c b"_s;
        QTest::newRow("down") << u"Move Down"_s << u"c b a"_s;
    }
    void theItemsDoWhatTheContextMenusDo() {
        QFETCH(const QString, title);
        QFETCH(const QString, names);
        ThreeFiles app;
        app.select({1});
        app.choose(title);
        QCOMPARE(app.names(), names);
        QCOMPARE(app.item(u"Undo "_s + title).text(), u"Undo "_s + title);
        app.choose(u"Undo "_s + title);
        QCOMPARE(app.names(), u"c a b"_s);
        app.choose(u"Redo "_s + title);
        QCOMPARE(app.names(), names);
    }

    void theKeysDoTheSameWhileTheListHasTheKeyboard() {
        ThreeFiles app;
        app.key(Qt::Key_1, Qt::ControlModifier);
        QCOMPARE(app.names(), u"a b c"_s);
        app.key(Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(app.names(), u"b c a"_s);
        app.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(app.ctrl.filesArray().selectedRows().size(), std::size_t(3));
        controlOf<QWidget>(app.window(), "m_btnClear").setFocus();
        app.key(Qt::Key_1, Qt::ControlModifier);
        QCOMPARE(app.names(), u"b c a"_s);
    }

    void selectAllGivesTheListTheKeyboard() {
        ThreeFiles app;
        controlOf<QWidget>(app.window(), "m_btnClear").setFocus();
        app.choose(u"Select All"_s);
        QCOMPARE(app.ctrl.filesArray().selectedRows().size(), std::size_t(3));
        QCOMPARE(QApplication::focusWidget(), &app.table);
    }

    void aKeyOfWhatIsNotPossibleDoesNothingElse() {
        ThreeFiles app;
        app.select({0, 1});
        app.table.selectionModel()->setCurrentIndex(app.ctrl.filesArray().index(1, 0),
                                                    QItemSelectionModel::NoUpdate);
        app.key(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(app.ctrl.filesArray().selectedRows(), (std::vector<int>{0, 1}));
    }

    void undoAndRedoWorkWhereverTheKeyboardIs() {
        ThreeFiles app;
        QTest::mouseClick(&controlOf<QWidget>(app.window(), "m_btnClear"), Qt::LeftButton);
        controlOf<QWidget>(app.window(), "m_btnClear").setFocus();
        app.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(app.names(), u"c a b"_s);
        app.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(app.names(), QString());
    }

    void aFieldUndoesItsOwnText() {
        ThreeFiles app;
        app.select({0});
        app.key(Qt::Key_Delete);
        app.showSettings("m_btnImageSetting");
        auto &field = controlOf<QLineEdit>(app.window(), "m_tfTitle");
        field.setFocus();
        app.key(Qt::Key_X);
        QCOMPARE(field.text(), u"x"_s);
        app.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field.text(), QString());
        QCOMPARE(app.names(), u"a b"_s);
    }

    void nothingIsTakenBackDuringARun() {
        Application app;
        app.addTexts(200);
        app.activate();
        MainWndCtrl &ctrl = app.delegate.mainWndCtrl();
        ctrl.clickBtnCreate();
        QVERIFY(ctrl.isConverting());
        QVERIFY(!app.item(u"Undo Add"_s).isEnabled());
        QVERIFY(!app.item(u"Clear"_s).isEnabled());
        app.key(Qt::Key_Z, Qt::ControlModifier);
        ctrl.undo();
        QCOMPARE(ctrl.filesArray().count(), 200);
        QTRY_VERIFY_WITH_TIMEOUT(!ctrl.isConverting(), 60'000);
        QVERIFY(app.item(u"Undo Add"_s).isEnabled());
        QVERIFY(app.item(u"Clear"_s).isEnabled());
    }
};

FOLIOFORGE_TEST(EditMenuTest)
#include "EditMenuTest.moc"
