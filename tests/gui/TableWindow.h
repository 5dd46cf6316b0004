// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "gui/RightClick.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/SkinTableView.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <QVBoxLayout>

namespace folioforge::test {

/// Writes down what the table asks of its controller.
class RecordingTableDelegate : public SkinTableViewDelegate {
  public:
    [[nodiscard]] bool canEditList() const override { return edit; }
    [[nodiscard]] bool canRemoveClear() const override { return removeClear; }
    [[nodiscard]] bool canResort() const override { return resort; }
    [[nodiscard]] bool canMoveUp() const override { return up; }
    [[nodiscard]] bool canMoveDown() const override { return down; }
    void clickMenuRemove() override { calls += QStringLiteral("remove"); }
    void clickMenuClear() override { calls += QStringLiteral("clear"); }
    void clickMenuResortByName() override { calls += QStringLiteral("name"); }
    void clickMenuResortBySize() override { calls += QStringLiteral("size"); }
    void clickMenuResortByDataCreated() override { calls += QStringLiteral("created"); }
    void clickMenuResortByDataModified() override { calls += QStringLiteral("modified"); }
    void clickMenuMoveUp() override { calls += QStringLiteral("up"); }
    void clickMenuMoveDown() override { calls += QStringLiteral("down"); }
    void clickedDest(int row) override {
        calls += QStringLiteral("dest %1 selected %2").arg(row).arg(table->selectedRow());
    }
    bool acceptDrop(const QMimeData & /*data*/, int row) override {
        calls += QStringLiteral("drop %1").arg(row);
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
struct TableWindow {
    explicit TableWindow(int rows) {
        delegate.table = table;
        table->setTableDelegate(&delegate);
        table->setModel(&files);
        table->setSelectionModel(files.selectionModel());
        files.insert(-1, std::vector<PDFFileInfo>(std::size_t(rows)));
        auto *column = new QVBoxLayout(&window);
        column->addWidget(table);
        column->addWidget(field);
        column->addWidget(combo);
        combo->addItems({QStringLiteral("None"), QStringLiteral("72 dpi")});
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
        const QPoint place = table->viewport()->mapTo(&window, inViewport);
        if (button == Qt::RightButton) {
            rightClick(window.windowHandle(), place);
        } else {
            QTest::mouseClick(window.windowHandle(), button, {}, place);
        }
    }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(window.windowHandle(), code, modifiers);
    }
    void select(int first, int last) {
        files.selectionModel()->select({files.index(first, 0), files.index(last, 3)},
                                       QItemSelectionModel::Select);
    }

    FilesArray files;
    RecordingTableDelegate delegate;
    QWidget window;
    SkinTableView *table = new SkinTableView;
    QLineEdit *field = new QLineEdit;
    QComboBox *combo = new QComboBox;
};

} // namespace folioforge::test
