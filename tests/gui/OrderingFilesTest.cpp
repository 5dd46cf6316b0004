// SPDX-License-Identifier: Apache-2.0

#include "gui/TestWindow.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QLineEdit>
#include <QScrollBar>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// A window whose list holds the files a.txt to e.txt.
struct FiveFiles : TestWindow {
    FiveFiles() {
        QStringList paths;
        for (const QChar letter : u"abcde"_s) {
            paths += file(letter + u".txt"_s);
        }
        ctrl.addFiles(paths, -1);
    }
};

} // namespace

class OrderingFilesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void removeTakesEverySelectedFileAndRenumbers() {
        FiveFiles w;
        w.select({0, 2, 3});
        w.press("m_btnRemove");
        QCOMPARE(w.names(), u"b.txt e.txt"_s);
        QCOMPARE(w.numbers(), u"1 2"_s);
        QCOMPARE(w.delegate.told.last(), true);
    }

    void removeGivesTheTableTheKeyboard() {
        FiveFiles w;
        w.control<QLineEdit>("m_tfTitle")->setFocus();
        w.select({1});
        w.press("m_btnRemove");
        QCOMPARE(QApplication::focusWidget(), w.table());
    }

    void removeWithNothingSelectedOnlyRenumbers() {
        FiveFiles w;
        w.ctrl.addFiles({w.path(u"a.txt"_s)}, 0);
        QCOMPARE(w.numbers(), u"6 1 2 3 4 5"_s);
        w.select({});
        w.press("m_btnRemove");
        QCOMPARE(w.numbers(), u"1 2 3 4 5 6"_s);
    }

    void removingTheOnlyFileEmptiesTheWindowAsClearDoes_data() {
        QTest::addColumn<QByteArray>("button");
        QTest::newRow("remove") << QByteArray("m_btnRemove");
        QTest::newRow("clear") << QByteArray("m_btnClear");
    }

    void removingTheOnlyFileEmptiesTheWindowAsClearDoes() {
        QFETCH(const QByteArray, button);
        TestWindow w;
        w.ctrl.addFiles({w.file(u"a.txt"_s)}, -1);
        QCOMPARE(w.control<QLineEdit>("m_tfOutputName")->text(), u"a"_s);
        w.select({0});
        w.press(button);
        QVERIFY(w.ctrl.filesArray().isEmpty());
        QVERIFY(!w.control<QWidget>("m_btnCreate")->isEnabled());
        QVERIFY(!w.control<QWidget>("m_btnRemove")->isEnabled());
        QVERIFY(!w.control<QWidget>("m_tfTitle")->isEnabled());
        QCOMPARE(w.control<QLineEdit>("m_tfOutputName")->text(), QString());
        QCOMPARE(w.delegate.told.last(), false);
    }

    void clearTakesEverything() {
        FiveFiles w;
        w.select({1});
        w.press("m_btnClear");
        QVERIFY(w.ctrl.filesArray().isEmpty());
        QVERIFY(!w.ctrl.canRemoveClear());
    }

    void namesSortWithoutRegardToCase() {
        TestWindow w;
        w.ctrl.addFiles({w.file(u"b.txt"_s), w.file(u"A.txt"_s), w.file(u"a.png"_s)}, -1);
        w.ctrl.clickMenuResortByName();
        QCOMPARE(w.names(), u"a.png A.txt b.txt"_s);
        QCOMPARE(w.numbers(), u"1 2 3"_s);
        w.ctrl.clickMenuResortByName();
        QCOMPARE(w.names(), u"a.png A.txt b.txt"_s);
    }

    void sizesSortByBytesOnDiskNotByTheirText() {
        constexpr qsizetype kKilobyte = 1024;
        TestWindow w;
        const QString ten = w.file(u"ten.txt"_s, QByteArray(10 * kKilobyte, 'x'));
        const QString nine = w.file(u"nine.txt"_s, QByteArray(9 * kKilobyte, 'x'));
        const QString small = w.file(u"small.txt"_s, "x");
        w.ctrl.addFiles({ten, nine, small}, -1);
        w.ctrl.clickMenuResortBySize();
        QCOMPARE(w.names(), u"small.txt nine.txt ten.txt"_s);
        w.file(u"small.txt"_s, QByteArray(20 * kKilobyte, 'x'));
        w.ctrl.clickMenuResortBySize();
        QCOMPARE(w.names(), u"nine.txt ten.txt small.txt"_s);
    }

    void modificationDatesSortOldestFirst() {
        FiveFiles w;
        setModified(w.path(u"c.txt"_s), QDate(2001, 1, 1).startOfDay());
        setModified(w.path(u"a.txt"_s), QDate(2003, 1, 1).startOfDay());
        setModified(w.path(u"b.txt"_s), QDate(2002, 1, 1).startOfDay());
        setModified(w.path(u"e.txt"_s), QDate(2004, 1, 1).startOfDay());
        setModified(w.path(u"d.txt"_s), QDate(2005, 1, 1).startOfDay());
        w.ctrl.clickMenuResortByDataModified();
        QCOMPARE(w.names(), u"c.txt b.txt a.txt e.txt d.txt"_s);
    }

    void creationDatesSortOldestFirst() {
        TestWindow w;
        const QString oldest = w.file(u"b.txt"_s);
        const QString middle = w.path(u"a.txt"_s);
        const QString newest = w.path(u"c.txt"_s);
        const bool middleHasDate = writeFileAfter(oldest, middle);
        const bool hasDates = writeFileAfter(middle, newest) && middleHasDate;
        w.ctrl.addFiles({newest, oldest, middle}, -1);
        w.ctrl.clickMenuResortByDataCreated();
        // Where the file system keeps no dates of creation the order stays.
        QCOMPARE(w.names(), hasDates ? u"b.txt a.txt c.txt"_s : u"c.txt b.txt a.txt"_s);
        QCOMPARE(w.numbers(), u"1 2 3"_s);
    }

    void vanishedFilesComeFirstBySize() {
        FiveFiles w;
        QFile::remove(w.path(u"d.txt"_s));
        w.ctrl.clickMenuResortBySize();
        QCOMPARE(w.names(), u"d.txt a.txt b.txt c.txt e.txt"_s);
    }

    void filesAddedAfterASortStayWhereTheyWereAdded() {
        TestWindow w;
        w.ctrl.addFiles({w.file(u"c.txt"_s), w.file(u"b.txt"_s)}, -1);
        w.ctrl.clickMenuResortByName();
        w.ctrl.addFiles({w.file(u"a.txt"_s)}, -1);
        QCOMPARE(w.names(), u"b.txt c.txt a.txt"_s);
    }

    void aSortKeepsTheSelectedFilesSelected() {
        TestWindow w;
        w.ctrl.addFiles({w.file(u"c.txt"_s), w.file(u"b.txt"_s), w.file(u"a.txt"_s)}, -1);
        w.select({0});
        w.ctrl.clickMenuResortByName();
        QCOMPARE(w.table()->selectedRow(), 2);
    }

    void moveUpExchangesWithTheOneAbove() {
        FiveFiles w;
        w.select({2});
        w.ctrl.clickMenuMoveUp();
        QCOMPARE(w.names(), u"a.txt c.txt b.txt d.txt e.txt"_s);
        QCOMPARE(w.numbers(), u"1 2 3 4 5"_s);
        QCOMPARE(w.table()->selectedRow(), 1);
    }

    void moveDownExchangesWithTheOneBelow() {
        FiveFiles w;
        w.select({2});
        w.ctrl.clickMenuMoveDown();
        QCOMPARE(w.names(), u"a.txt b.txt d.txt c.txt e.txt"_s);
        QCOMPARE(w.numbers(), u"1 2 3 4 5"_s);
        QCOMPARE(w.table()->selectedRow(), 3);
    }

    void aMovedFileCanBeFollowedAcrossTheWholeList() {
        TestWindow w;
        QStringList paths;
        for (int i = 0; i < 60; ++i) {
            paths += w.file(u"%1.txt"_s.arg(i));
        }
        w.ctrl.addFiles(paths, -1);
        w.select({0});
        for (int i = 0; i < 59; ++i) {
            w.key(Qt::Key_Down, Qt::AltModifier);
        }
        QCOMPARE(w.ctrl.filesArray().at(59).fileName(), u"0.txt"_s);
        QCOMPARE(w.table()->selectedRow(), 59);
        const QRect row = w.table()->visualRect(w.ctrl.filesArray().index(59, 1));
        QVERIFY(w.table()->viewport()->rect().contains(row));
        w.key(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(w.table()->selectedRow(), 59);
    }

    void theEndsCannotBeMovedBeyond() {
        FiveFiles w;
        w.select({0});
        QVERIFY(!w.ctrl.canMoveUp());
        QVERIFY(w.ctrl.canMoveDown());
        w.select({4});
        QVERIFY(w.ctrl.canMoveUp());
        QVERIFY(!w.ctrl.canMoveDown());
        w.ctrl.clickMenuMoveDown();
        QCOMPARE(w.names(), u"a.txt b.txt c.txt d.txt e.txt"_s);
    }

    void onlyOneSelectedFileCanBeMoved() {
        FiveFiles w;
        for (const QList<int> &rows : {QList<int>{}, QList{1, 2}, QList{1, 3}}) {
            w.select(rows);
            QVERIFY(!w.ctrl.canMoveUp());
            QVERIFY(!w.ctrl.canMoveDown());
        }
    }

    void sortingNeedsTwoFilesAndRemovingOne() {
        TestWindow w;
        QVERIFY(!w.ctrl.canRemoveClear());
        QVERIFY(!w.ctrl.canResort());
        w.ctrl.addFiles({w.file(u"a.txt"_s)}, -1);
        QVERIFY(w.ctrl.canRemoveClear());
        QVERIFY(!w.ctrl.canResort());
        w.ctrl.addFiles({w.file(u"b.txt"_s)}, -1);
        QVERIFY(w.ctrl.canResort());
    }

    void theKeyboardSelectsAllAndRemovesThem() {
        FiveFiles w;
        w.table()->setFocus();
        w.key(Qt::Key_A, Qt::ControlModifier);
        w.key(Qt::Key_Delete);
        QVERIFY(w.ctrl.filesArray().isEmpty());
        QCOMPARE(w.delegate.told.last(), false);
    }
};

FOLIOFORGE_TEST(OrderingFilesTest)
#include "OrderingFilesTest.moc"
