// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/SkinTableView.h"
#include "gui/TableWindow.h"
#include "mainwnd/FilesArray.h"
#include "support/TestUnit.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

QString enabledOf(const QMenu &menu) {
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

std::unique_ptr<QMimeData> oneFile() {
    auto data = std::make_unique<QMimeData>();
    data->setUrls({QUrl::fromLocalFile(u"/a.txt"_s)});
    return data;
}

/// Drags `data` over `position` of the table and lets go; whether each step was accepted.
QList<bool> drop(SkinTableView &table, const QMimeData &data, const QPoint &position) {
    const auto actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(position, actions, &data, Qt::LeftButton, {});
    QApplication::sendEvent(table.viewport(), &enter);
    QDragMoveEvent move(position, actions, &data, Qt::LeftButton, {});
    QApplication::sendEvent(table.viewport(), &move);
    QDropEvent end(position, actions, &data, Qt::LeftButton, {});
    QApplication::sendEvent(table.viewport(), &end);
    return {enter.isAccepted() && enter.dropAction() == Qt::CopyAction,
            move.isAccepted() && move.dropAction() == Qt::CopyAction,
            end.isAccepted() && end.dropAction() == Qt::CopyAction};
}

QList<int> widthsOf(const TableWindow &w) {
    QList<int> widths;
    for (int column = 0; column < FilesArray::ColumnCount; ++column) {
        widths += w.table->columnWidth(column);
    }
    return widths;
}

/// Drags the right edge of a column with the mouse, in steps as a hand does.
void dragEdge(const TableWindow &w, int column, int by) {
    const QHeaderView &header = *w.table->horizontalHeader();
    QWidget *area = header.viewport();
    const int x = header.sectionViewportPosition(column) + header.sectionSize(column) - 1;
    const int y = area->height() / 2;
    QTest::mouseMove(area, {x, y});
    QTest::mousePress(area, Qt::LeftButton, {}, {x, y});
    QTest::mouseMove(area, {x + by / 2, y});
    QTest::mouseMove(area, {x + by, y});
    QTest::mouseRelease(area, Qt::LeftButton, {}, {x + by, y});
}

} // namespace

class SkinTableViewTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aClickInTheDestinationColumnActsAndThenSelects() {
        TableWindow w(3);
        w.click(Qt::LeftButton, w.middleOf(0, 3));
        QCOMPARE(w.delegate.calls, QStringList(u"dest 0 selected -1"_s));
        QCOMPARE(w.table->selectedRow(), 0);
    }

    void aClickBelowTheLastRowActsOnNothing() {
        TableWindow w(2);
        const QPoint below(w.middleOf(1, 3).x(), w.table->viewport()->height() - 5);
        QVERIFY(!w.table->indexAt(below).isValid());
        w.click(Qt::LeftButton, below);
        QCOMPARE(w.delegate.calls, QStringList());
    }

    void aClickInAnotherColumnOnlySelects() {
        TableWindow w(3);
        for (int column = 0; column < 3; ++column) {
            w.click(Qt::LeftButton, w.middleOf(column, column));
            QCOMPARE(w.files.selectedRows(), std::vector<int>{column});
        }
        QCOMPARE(w.delegate.calls, QStringList());
    }

    void returnActsOnTheDestinationOfTheOneSelectedRow_data() {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("return") << Qt::Key_Return << Qt::KeyboardModifiers();
        QTest::newRow("enter") << Qt::Key_Enter << Qt::KeyboardModifiers(Qt::KeypadModifier);
    }

    void returnActsOnTheDestinationOfTheOneSelectedRow() {
        QFETCH(const Qt::Key, key);
        QFETCH(const Qt::KeyboardModifiers, modifiers);
        TableWindow w(3);
        w.key(key, modifiers);
        w.select(0, 1);
        w.key(key, modifiers);
        QCOMPARE(w.delegate.calls, QStringList());
        w.click(Qt::LeftButton, w.middleOf(0, 1));
        w.key(Qt::Key_Down);
        w.key(key, modifiers);
        QCOMPARE(w.delegate.calls, QStringList(u"dest 1 selected 1"_s));
    }

    void returnWithAnotherKeyHeldActsOnNothing() {
        TableWindow w(3);
        w.select(1, 1);
        for (const auto held : {Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier}) {
            w.key(Qt::Key_Return, held);
        }
        QCOMPARE(w.delegate.calls, QStringList());
    }

    void theRightButtonNeverActsOnADestination() {
        TableWindow w(3);
        w.click(Qt::RightButton, w.middleOf(0, 3));
        QCOMPARE(w.delegate.calls, QStringList());
        openMenu()->close();
    }

    void keysRemoveSelectAndMove() {
        TableWindow w(3);
        w.select(1, 1);
        w.key(Qt::Key_Delete);
        w.key(Qt::Key_Up, Qt::AltModifier);
        w.key(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(w.delegate.calls.join(u' '), u"remove up down"_s);
        w.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(w.files.selectedRows(), (std::vector<int>{0, 1, 2}));
    }

    void keysDoNothingThatIsNotPossible() {
        TableWindow w(3);
        w.delegate.removeClear = w.delegate.up = w.delegate.down = false;
        w.key(Qt::Key_Delete);
        w.key(Qt::Key_Up, Qt::AltModifier);
        w.key(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(w.delegate.calls, QStringList());
    }

    void theFieldBesideKeepsItsOwnKeys() {
        TableWindow w(3);
        w.field->setText(u"name"_s);
        w.field->setFocus();
        w.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(w.field->selectedText(), u"name"_s);
        QVERIFY(!w.files.selectionModel()->hasSelection());
        w.key(Qt::Key_Delete);
        QCOMPARE(w.field->text(), QString());
        QCOMPARE(w.delegate.calls, QStringList());
    }

    void theComboBoxBesideKeepsItsOwnKeys() {
        TableWindow w(3);
        w.select(0, 0);
        w.combo->setFocus();
        w.key(Qt::Key_Delete);
        w.key(Qt::Key_Down, Qt::AltModifier);
        QVERIFY(w.combo->view()->isVisible());
        w.combo->hidePopup();
        w.key(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(w.delegate.calls, QStringList());
    }

    void nothingIsEditedWhileTheListIsLocked() {
        TableWindow w(3);
        w.delegate.edit = false;
        for (const auto &[key, modifiers] :
             {std::pair(Qt::Key_Delete, Qt::NoModifier), std::pair(Qt::Key_A, Qt::ControlModifier),
              std::pair(Qt::Key_Up, Qt::AltModifier), std::pair(Qt::Key_Down, Qt::AltModifier)}) {
            w.key(key, modifiers);
        }
        QCOMPARE(drop(*w.table, *oneFile(), w.middleOf(1, 1)), (QList{false, false, false}));
        QCOMPARE(w.delegate.calls, QStringList());
        QVERIFY(!w.files.selectionModel()->hasSelection());
        w.click(Qt::RightButton, w.middleOf(0, 1));
        QCOMPARE(enabledOf(*openMenu()), u"00-0000-00"_s);
        openMenu()->close();
    }

    void dropsGoAboveTheRowUnderThePointer() {
        TableWindow w(5);
        QCOMPARE(drop(*w.table, *oneFile(), w.middleOf(2, 1)), (QList{true, true, true}));
        const QRect row = w.table->visualRect(w.files.index(2, 1));
        drop(*w.table, *oneFile(), row.topLeft() + QPoint(5, 1));
        drop(*w.table, *oneFile(), row.bottomLeft() + QPoint(5, -1));
        QCOMPARE(w.delegate.calls.join(u' '), u"drop 2 drop 2 drop 3"_s);
    }

    void dropsBelowTheLastRowGoToTheEnd() {
        TableWindow w(2);
        drop(*w.table, *oneFile(), QPoint(20, w.table->viewport()->height() - 5));
        QCOMPARE(w.delegate.calls, QStringList(u"drop 2"_s));
    }

    void dropsOnAnEmptyTableGoToRowZero() {
        TableWindow w(0);
        drop(*w.table, *oneFile(), QPoint(20, 50));
        QCOMPARE(w.delegate.calls, QStringList(u"drop 0"_s));
    }

    void dropsInAScrolledTableGoWhereTheyAreSeen() {
        TableWindow w(200);
        w.table->verticalScrollBar()->setValue(1000);
        const int row = w.table->rowAt(60);
        QVERIFY(row > 30);
        drop(*w.table, *oneFile(), w.middleOf(row, 1));
        QCOMPARE(w.delegate.calls, QStringList(u"drop %1"_s.arg(row)));
    }

    void aRefusedDropIsAnsweredSo() {
        TableWindow w(2);
        w.delegate.takesDrops = false;
        QCOMPARE(drop(*w.table, *oneFile(), w.middleOf(0, 1)), (QList{true, true, false}));
    }

    void dragsOfAnyContentAreAnsweredWithACopy() {
        TableWindow w(2);
        QMimeData text;
        text.setText(u"words"_s);
        QCOMPARE(drop(*w.table, text, w.middleOf(0, 1)), (QList{true, true, true}));
    }

    void theGapUnderADragIsMarkedUntilItLeaves() {
        TableWindow w(3);
        const auto picture = [&] { return w.table->viewport()->grab().toImage(); };
        const QImage before = picture();
        const auto data = oneFile();
        QDragEnterEvent enter(w.middleOf(1, 1), Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(w.table->viewport(), &enter);
        const QPoint gap(5, w.table->visualRect(w.files.index(1, 0)).top());
        QCOMPARE(picture().pixelColor(gap), w.table->palette().color(QPalette::Highlight));
        QDragLeaveEvent leave;
        QApplication::sendEvent(w.table->viewport(), &leave);
        QCOMPARE(picture(), before);
    }

    void rowsCannotBeDraggedOut() {
        const TableWindow w(3);
        QVERIFY(!w.table->dragEnabled());
        QCOMPARE(w.table->dragDropMode(), QAbstractItemView::DropOnly);
    }

    void onlyAFinishedDestinationShowsTheHand() {
        TableWindow w(3);
        w.files.setDestFilePathName(1, u"/out/b.pdf"_s);
        w.files.setStateIndex(1, FinishedAsLink);
        const auto cursorOver = [&](int row, int column) {
            QTest::mouseMove(w.window.windowHandle(),
                             w.table->viewport()->mapTo(&w.window, w.middleOf(row, column)));
            QCoreApplication::processEvents();
            return w.table->viewport()->cursor().shape();
        };
        QCOMPARE(cursorOver(1, 3), Qt::PointingHandCursor);
        QCOMPARE(cursorOver(0, 3), Qt::ArrowCursor);
        QCOMPARE(cursorOver(1, 3), Qt::PointingHandCursor);
        QCOMPARE(cursorOver(1, 1), Qt::ArrowCursor);
    }

    void anEmptyTableSaysInItsMiddleWhatToDo() {
        TableWindow w(0);
        const QImage empty = w.table->viewport()->grab().toImage();
        const QColor ground = empty.pixelColor(2, 2);
        const QRect middle(empty.width() / 2 - 60, empty.height() / 2 - 12, 120, 24);
        const auto hasInk = [&](const QImage &picture) {
            for (int y = middle.top(); y <= middle.bottom(); ++y) {
                for (int x = middle.left(); x <= middle.right(); ++x) {
                    if (picture.pixelColor(x, y) != ground) {
                        return true;
                    }
                }
            }
            return false;
        };
        QVERIFY(hasInk(empty));
        w.files.insert(-1, std::vector<PDFFileInfo>(1));
        QVERIFY(!hasInk(w.table->viewport()->grab().toImage()));
    }

    void theNameColumnTakesTheSpareRoom() {
        TableWindow w(1);
        QCOMPARE(w.table->horizontalHeader()->length(), w.table->viewport()->width());
        const int before = w.table->columnWidth(1);
        w.window.resize(900, 300);
        QTRY_COMPARE(w.table->columnWidth(1), before + 200);
    }

    void anEdgeThatIsDraggedStaysThere_data() {
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("by");
        QTest::addColumn<QList<int>>("moved");
        QTest::newRow("names wider") << 1 << 30 << QList<int>{0, 30, -30, 0};
        QTest::newRow("names narrower") << 1 << -50 << QList<int>{0, -50, 50, 0};
        QTest::newRow("numbers wider") << 0 << 20 << QList<int>{20, -20, 0, 0};
        QTest::newRow("as wide as the next column allows")
            << 2 << 500 << QList<int>{0, 0, 120, -120};
        QTest::newRow("the end of the list") << 3 << -40 << QList<int>{0, 0, 0, 0};
    }
    void anEdgeThatIsDraggedStaysThere() {
        QFETCH(const int, column);
        QFETCH(const int, by);
        QFETCH(const QList<int>, moved);
        TableWindow w(1);
        const QList<int> before = widthsOf(w);
        dragEdge(w, column, by);
        const QList<int> after = widthsOf(w);
        for (int i = 0; i < after.size(); ++i) {
            QCOMPARE(after[i] - before[i], moved[i]);
        }
    }

    void columnsKeepTheirSharesInAnotherWindow() {
        TableWindow w(1);
        dragEdge(w, 1, -100);
        const QList<int> before = widthsOf(w);
        const int room = w.table->viewport()->width();
        w.window.resize(2 * w.window.width(), 300);
        QTRY_VERIFY(w.table->viewport()->width() > room);
        const double larger = double(w.table->viewport()->width()) / room;
        const QList<int> after = widthsOf(w);
        for (int i = 0; i < after.size(); ++i) {
            QVERIFY(std::abs(after[i] - before[i] * larger) <= 1);
        }
        QCOMPARE(w.table->horizontalHeader()->length(), w.table->viewport()->width());
    }

    void theTabKeyLeavesTheTable() {
        TableWindow w(3);
        w.key(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), w.field);
    }
};

FOLIOFORGE_TEST(SkinTableViewTest)
#include "SkinTableViewTest.moc"
