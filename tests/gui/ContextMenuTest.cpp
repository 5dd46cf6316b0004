// SPDX-License-Identifier: Apache-2.0

#include "gui/TableWindow.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/SkinTableView.h"
#include "support/TestUnit.h"

#include <QApplication>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// What the menu says from top to bottom, with the two titles that change.
QStringList menuTitles(const QString &byName, const QString &bySize) {
    return {u"Remove"_s,
            u"Clear"_s,
            u"-"_s,
            byName,
            bySize,
            u"Sort By Data Created"_s,
            u"Sort By Data Modified"_s,
            u"-"_s,
            u"Move Up"_s,
            u"Move Down"_s};
}

QStringList titlesOf(const QMenu &menu) {
    QStringList titles;
    for (const QAction *item : menu.actions()) {
        titles += item->isSeparator() ? u"-"_s : item->text();
    }
    return titles;
}

QString enabledPattern(const QMenu &menu) {
    QString marks;
    for (const QAction *item : menu.actions()) {
        marks += item->isSeparator() ? u'-' : item->isEnabled() ? u'1' : u'0';
    }
    return marks;
}

/// The open context menu; null when none is open.
QMenu *openMenu() {
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

} // namespace

/// The context menu of the file list.
class ContextMenuTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theContextMenuHasItsTenEntries() {
        TableWindow w(3);
        w.click(Qt::RightButton, w.middleOf(1, 1));
        const QMenu *menu = openMenu();
        QVERIFY(menu);
        QCOMPARE(menu->title(), u"Contextual Menu"_s);
        QCOMPARE(titlesOf(*menu), menuTitles(u"Sort By Name"_s, u"Sort By Size"_s));
        QCOMPARE(enabledPattern(*menu), u"11-1111-11"_s);
        for (const QAction *item : menu->actions()) {
            QVERIFY(item->shortcut().isEmpty());
        }
        openMenu()->close();
    }

    void whatCannotBeDoneIsDisabledAndTwoTitlesChange() {
        TableWindow w(0);
        w.delegate.removeClear = w.delegate.resort = w.delegate.up = w.delegate.down = false;
        w.click(Qt::RightButton, QPoint(50, 50));
        const QMenu *menu = openMenu();
        QVERIFY(menu);
        QCOMPARE(titlesOf(*menu), menuTitles(u"Resort By Name"_s, u"Resort By Size"_s));
        QCOMPARE(enabledPattern(*menu), u"00-0000-00"_s);
        openMenu()->close();
    }

    void eachCommandIsEnabledByItsOwnRule() {
        TableWindow w(3);
        w.delegate.up = false;
        w.delegate.removeClear = false;
        w.click(Qt::RightButton, w.middleOf(0, 1));
        QCOMPARE(enabledPattern(*openMenu()), u"00-1111-01"_s);
        openMenu()->close();
    }

    void theMenuIsBuiltAnewEachTime() {
        TableWindow w(3);
        w.click(Qt::RightButton, w.middleOf(0, 1));
        const QPointer<QMenu> first = openMenu();
        first->close();
        w.delegate.resort = false;
        w.click(Qt::RightButton, w.middleOf(0, 1));
        QCOMPARE(enabledPattern(*openMenu()), u"11-0000-11"_s);
        openMenu()->close();
        QTRY_VERIFY(first.isNull());
    }

    void eachCommandReachesTheDelegate() {
        TableWindow w(3);
        for (const int position : {0, 1, 3, 4, 5, 6, 8, 9}) {
            w.click(Qt::RightButton, w.middleOf(0, 1));
            QMenu *menu = openMenu();
            QTest::mouseClick(menu, Qt::LeftButton, {},
                              menu->actionGeometry(menu->actions().at(position)).center());
        }
        QCOMPARE(w.delegate.calls.join(u' '), u"remove clear name size created modified up down"_s);
    }

    void aRightClickKeepsTheSelection() {
        TableWindow w(5);
        w.select(1, 2);
        w.click(Qt::RightButton, w.middleOf(4, 1));
        openMenu()->close();
        QCOMPARE(w.files.selectedRows(), (std::vector<int>{1, 2}));
    }

    void theMenuOpensFromTheKeyboard_data() {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("menu key") << Qt::Key_Menu << Qt::KeyboardModifiers();
        QTest::newRow("shift F10") << Qt::Key_F10 << Qt::KeyboardModifiers(Qt::ShiftModifier);
    }

    void theMenuOpensFromTheKeyboard() {
        QFETCH(const Qt::Key, key);
        QFETCH(const Qt::KeyboardModifiers, modifiers);
        TableWindow w(3);
        w.select(1, 1);
        w.key(key, modifiers);
        QMenu *menu = openMenu();
        QVERIFY(menu);
        const QRect row = w.table->visualRect(w.files.index(1, 1));
        QVERIFY(row.contains(w.table->viewport()->mapFromGlobal(menu->pos())));
        menu->close();
    }
};

FOLIOFORGE_TEST(ContextMenuTest)
#include "ContextMenuTest.moc"
