// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QTableView>

#include <optional>

class QMimeData;

namespace folioforge {

class ColumnWidths;
class EmptyHint;
class ListCommands;

/// What the file table asks of its controller, and the commands that it hands on.
class SkinTableViewDelegate {
  public:
    SkinTableViewDelegate() = default;
    SkinTableViewDelegate(const SkinTableViewDelegate &) = delete;
    SkinTableViewDelegate &operator=(const SkinTableViewDelegate &) = delete;
    virtual ~SkinTableViewDelegate() = default;

    /// Whether the list may change; it may not during a run.
    [[nodiscard]] virtual bool canEditList() const = 0;
    [[nodiscard]] virtual bool canRemoveClear() const = 0;
    [[nodiscard]] virtual bool canResort() const = 0;
    [[nodiscard]] virtual bool canMoveUp() const = 0;
    [[nodiscard]] virtual bool canMoveDown() const = 0;

    virtual void clickMenuRemove() = 0;
    virtual void clickMenuClear() = 0;
    virtual void clickMenuResortByName() = 0;
    virtual void clickMenuResortBySize() = 0;
    virtual void clickMenuResortByDataCreated() = 0;
    virtual void clickMenuResortByDataModified() = 0;
    virtual void clickMenuMoveUp() = 0;
    virtual void clickMenuMoveDown() = 0;

    /// The destination column of `row` was clicked, or Return pressed on that row.
    virtual void clickedDest(int row) = 0;
    /// Takes a drop above `row`, which is a row or the number of rows; false refuses it.
    virtual bool acceptDrop(const QMimeData &data, int row) = 0;
};

/// The table of files: takes drops between rows, opens the context menu and hands its commands, the
/// clicks in the destination column and Return on a row to its delegate.
class SkinTableView : public QTableView {
    Q_OBJECT

  public:
    explicit SkinTableView(QWidget *parent = nullptr);
    /// The controller, which outlives the use of the table; not owned.
    void setTableDelegate(SkinTableViewDelegate *delegate);
    /// The first selected row, or -1.
    [[nodiscard]] int selectedRow() const;
    /// What can be done with the list, for menus.
    [[nodiscard]] ListCommands &commands() const { return *m_commands; }
    /// How the columns share the width of the list.
    [[nodiscard]] ColumnWidths &columns() const { return *m_columns; }
    /// What stands in the list while it is empty.
    [[nodiscard]] EmptyHint &emptyHint() const { return *m_hint; }

    void setSelectionModel(QItemSelectionModel *selection) override;
    void selectAll() override;
    void clickMenuRemove();
    void clickMenuClear();
    void clickMenuResortByName();
    void clickMenuResortBySize();
    void clickMenuResortByDataCreated();
    void clickMenuResortByDataModified();
    void clickMenuMoveUp();
    void clickMenuMoveDown();

  Q_SIGNALS:
    /// Space was pressed.
    void previewAsked();

  protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

  private:
    [[nodiscard]] bool selectsOneRow() const;
    [[nodiscard]] QPoint contextMenuPosition(const QContextMenuEvent &event) const;
    [[nodiscard]] int dropRowAt(const QPoint &position) const;
    void validateDrop(QDropEvent &event);
    void setDropRow(std::optional<int> row);
    void paintDropLine(QPainter &painter) const;
    void paintFocus(QPainter &painter) const;
    void paintDropGround(QPainter &painter) const;

    SkinTableViewDelegate *m_delegate = nullptr;
    ColumnWidths *m_columns;  ///< A child.
    ListCommands *m_commands; ///< A child.
    EmptyHint *m_hint;        ///< Of the viewport.
    std::optional<int> m_dropRow;
};

} // namespace folioforge
