#include "mainwnd/SkinTableView.h"
#include "mainwnd/FilesArray.h"
#include "support/TestUnit.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

/// Writes down what the table asks of its controller.
class RecordingDelegate : public SkinTableViewDelegate {
  public:
    [[nodiscard]] bool canEditList() const override { return edit; }
    [[nodiscard]] bool canRemoveClear() const override { return removeClear; }
    [[nodiscard]] bool canResort() const override { return resort; }
    [[nodiscard]] bool canMoveUp() const override { return up; }
    [[nodiscard]] bool canMoveDown() const override { return down; }
    void clickMenuRemove() override { calls += u"remove"_s; }
    void clickMenuClear() override { calls += u"clear"_s; }
    void clickMenuResortByName() override { calls += u"name"_s; }
    void clickMenuResortBySize() override { calls += u"size"_s; }
    void clickMenuResortByDataCreated() override { calls += u"created"_s; }
    void clickMenuResortByDataModified() override { calls += u"modified"_s; }
    void clickMenuMoveUp() override { calls += u"up"_s; }
    void clickMenuMoveDown() override { calls += u"down"_s; }
    void clickedDest(int row) override {
        calls += u"dest %1 selected %2"_s.arg(row).arg(table->selectedRow());
    }
    bool acceptDrop(const QMimeData & /*data*/, int row) override {
        calls += u"drop %1"_s.arg(row);
        return takesDrops;
    }

    const SkinTableView *table = nullptr;
    QStringList calls;
    bool edit = true;
    bool removeClear = true;
    bool resort = true;
    bool up = true;
    bool down = true;
    bool takesDrops = true;
};

/// A window with the table over a list of `rows` entries, a text field and a combo box.
struct Window {
    explicit Window(int rows) {
        delegate.table = table;
        table->setTableDelegate(&delegate);
        table->setModel(&files);
        table->setSelectionModel(files.selectionModel());
        files.insert(-1, std::vector<PDFFileInfo>(std::size_t(rows)));
        auto *column = new QVBoxLayout(&window);
        column->addWidget(table);
        column->addWidget(field);
        column->addWidget(combo);
        combo->addItems({u"None"_s, u"72 dpi"_s});
        window.resize(700, 300);
        window.show();
        table->setFocus();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    [[nodiscard]] QPoint middleOf(int row, int column) const {
        return table->visualRect(files.index(row, column)).center();
    }
    /// Presses and releases a mouse button as the window system does.
    void click(Qt::MouseButton button, const QPoint &inViewport) {
        QTest::mouseClick(window.windowHandle(), button, {},
                          table->viewport()->mapTo(&window, inViewport));
    }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(window.windowHandle(), code, modifiers);
    }
    void select(int first, int last) {
        files.selectionModel()->select({files.index(first, 0), files.index(last, 3)},
                                       QItemSelectionModel::Select);
    }

    FilesArray files;
    RecordingDelegate delegate;
    QWidget window;
    SkinTableView *table = new SkinTableView;
    QLineEdit *field = new QLineEdit;
    QComboBox *combo = new QComboBox;
};

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

} // namespace

class SkinTableViewTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aClickInTheDestinationColumnActsAndThenSelects() {
        Window w(3);
        w.click(Qt::LeftButton, w.middleOf(0, 3));
        QCOMPARE(w.delegate.calls, QStringList(u"dest 0 selected -1"_s));
        QCOMPARE(w.table->selectedRow(), 0);
    }

    void aClickBelowTheLastRowActsOnNothing() {
        Window w(2);
        const QPoint below(w.middleOf(1, 3).x(), w.table->viewport()->height() - 5);
        QVERIFY(!w.table->indexAt(below).isValid());
        w.click(Qt::LeftButton, below);
        QCOMPARE(w.delegate.calls, QStringList());
    }

    void aClickInAnotherColumnOnlySelects() {
        Window w(3);
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
        Window w(3);
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
        Window w(3);
        w.select(1, 1);
        for (const auto held : {Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier}) {
            w.key(Qt::Key_Return, held);
        }
        QCOMPARE(w.delegate.calls, QStringList());
    }

    void theRightButtonNeverActsOnADestination() {
        Window w(3);
        w.click(Qt::RightButton, w.middleOf(0, 3));
        QCOMPARE(w.delegate.calls, QStringList());
        openMenu()->close();
    }

    void theContextMenuHasItsTenEntries() {
        Window w(3);
        w.click(Qt::RightButton, w.middleOf(1, 1));
        const QMenu *menu = openMenu();
        QVERIFY(menu);
        QCOMPARE(menu->title(), u"Contextual Menu"_s);
        QCOMPARE(titlesOf(*menu), menuTitles(u"Sort By Name"_s, u"Sort By Size"_s));
        QCOMPARE(enabledOf(*menu), u"11-1111-11"_s);
        for (const QAction *item : menu->actions()) {
            QVERIFY(item->shortcut().isEmpty());
        }
        openMenu()->close();
    }

    void whatCannotBeDoneIsDisabledAndTwoTitlesChange() {
        Window w(0);
        w.delegate.removeClear = w.delegate.resort = w.delegate.up = w.delegate.down = false;
        w.click(Qt::RightButton, QPoint(50, 50));
        const QMenu *menu = openMenu();
        QVERIFY(menu);
        QCOMPARE(titlesOf(*menu), menuTitles(u"Resort By Name"_s, u"Resort By Size"_s));
        QCOMPARE(enabledOf(*menu), u"00-0000-00"_s);
        openMenu()->close();
    }

    void eachCommandIsEnabledByItsOwnRule() {
        Window w(3);
        w.delegate.up = false;
        w.delegate.removeClear = false;
        w.click(Qt::RightButton, w.middleOf(0, 1));
        QCOMPARE(enabledOf(*openMenu()), u"00-1111-01"_s);
        openMenu()->close();
    }

    void theMenuIsBuiltAnewEachTime() {
        Window w(3);
        w.click(Qt::RightButton, w.middleOf(0, 1));
        const QPointer<QMenu> first = openMenu();
        first->close();
        w.delegate.resort = false;
        w.click(Qt::RightButton, w.middleOf(0, 1));
        QCOMPARE(enabledOf(*openMenu()), u"11-0000-11"_s);
        openMenu()->close();
        QTRY_VERIFY(first.isNull());
    }

    void eachCommandReachesTheDelegate() {
        Window w(3);
        for (const int position : {0, 1, 3, 4, 5, 6, 8, 9}) {
            w.click(Qt::RightButton, w.middleOf(0, 1));
            QMenu *menu = openMenu();
            QTest::mouseClick(menu, Qt::LeftButton, {},
                              menu->actionGeometry(menu->actions().at(position)).center());
        }
        QCOMPARE(w.delegate.calls.join(u' '), u"remove clear name size created modified up down"_s);
    }

    void aRightClickKeepsTheSelection() {
        Window w(5);
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
        Window w(3);
        w.select(1, 1);
        w.key(key, modifiers);
        QMenu *menu = openMenu();
        QVERIFY(menu);
        const QRect row = w.table->visualRect(w.files.index(1, 1));
        QVERIFY(row.contains(w.table->viewport()->mapFromGlobal(menu->pos())));
        menu->close();
    }

    void keysRemoveSelectAndMove() {
        Window w(3);
        w.key(Qt::Key_Delete);
        w.key(Qt::Key_Up, Qt::AltModifier);
        w.key(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(w.delegate.calls.join(u' '), u"remove up down"_s);
        w.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(w.files.selectedRows(), (std::vector<int>{0, 1, 2}));
    }

    void keysDoNothingThatIsNotPossible() {
        Window w(3);
        w.delegate.removeClear = w.delegate.up = w.delegate.down = false;
        w.key(Qt::Key_Delete);
        w.key(Qt::Key_Up, Qt::AltModifier);
        w.key(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(w.delegate.calls, QStringList());
    }

    void theFieldBesideKeepsItsOwnKeys() {
        Window w(3);
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
        Window w(3);
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
        Window w(3);
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
        Window w(5);
        QCOMPARE(drop(*w.table, *oneFile(), w.middleOf(2, 1)), (QList{true, true, true}));
        const QRect row = w.table->visualRect(w.files.index(2, 1));
        drop(*w.table, *oneFile(), row.topLeft() + QPoint(5, 1));
        drop(*w.table, *oneFile(), row.bottomLeft() + QPoint(5, -1));
        QCOMPARE(w.delegate.calls.join(u' '), u"drop 2 drop 2 drop 3"_s);
    }

    void dropsBelowTheLastRowGoToTheEnd() {
        Window w(2);
        drop(*w.table, *oneFile(), QPoint(20, w.table->viewport()->height() - 5));
        QCOMPARE(w.delegate.calls, QStringList(u"drop 2"_s));
    }

    void dropsOnAnEmptyTableGoToRowZero() {
        Window w(0);
        drop(*w.table, *oneFile(), QPoint(20, 50));
        QCOMPARE(w.delegate.calls, QStringList(u"drop 0"_s));
    }

    void dropsInAScrolledTableGoWhereTheyAreSeen() {
        Window w(200);
        w.table->verticalScrollBar()->setValue(1000);
        const int row = w.table->rowAt(60);
        QVERIFY(row > 30);
        drop(*w.table, *oneFile(), w.middleOf(row, 1));
        QCOMPARE(w.delegate.calls, QStringList(u"drop %1"_s.arg(row)));
    }

    void aRefusedDropIsAnsweredSo() {
        Window w(2);
        w.delegate.takesDrops = false;
        QCOMPARE(drop(*w.table, *oneFile(), w.middleOf(0, 1)), (QList{true, true, false}));
    }

    void dragsOfAnyContentAreAnsweredWithACopy() {
        Window w(2);
        QMimeData text;
        text.setText(u"words"_s);
        QCOMPARE(drop(*w.table, text, w.middleOf(0, 1)), (QList{true, true, true}));
    }

    void theGapUnderADragIsMarkedUntilItLeaves() {
        Window w(3);
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
        const Window w(3);
        QVERIFY(!w.table->dragEnabled());
        QCOMPARE(w.table->dragDropMode(), QAbstractItemView::DropOnly);
    }

    void onlyAFinishedDestinationShowsTheHand() {
        Window w(3);
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
        Window w(0);
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
        Window w(1);
        QCOMPARE(w.table->horizontalHeader()->length(), w.table->viewport()->width());
        const int before = w.table->columnWidth(1);
        w.window.resize(900, 300);
        QTRY_COMPARE(w.table->columnWidth(1), before + 200);
    }

    void theTabKeyLeavesTheTable() {
        Window w(3);
        w.key(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), w.field);
    }
};

FOLIOFORGE_TEST(SkinTableViewTest)
#include "SkinTableViewTest.moc"
