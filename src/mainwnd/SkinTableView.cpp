// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/SkinTableView.h"

#include "mainwnd/ColumnWidths.h"
#include "mainwnd/EmptyHint.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/ListCommands.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr int kRowHeight = 26;
constexpr int kDropLineWidth = 2;
constexpr float kDropLight = 0.12F;
constexpr double kFocusWidth = 1.5;

bool asksForMenu(const QKeyEvent &key) {
    return key.key() == Qt::Key_Menu ||
           (key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier);
}

bool asksForPreview(const QKeyEvent &key) {
    return key.key() == Qt::Key_Space && key.modifiers() == Qt::NoModifier && !key.isAutoRepeat();
}

bool asksToOpen(const QKeyEvent &key) {
    const bool isAlone = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return isAlone && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
}

} // namespace

SkinTableView::SkinTableView(QWidget *parent)
    : QTableView(parent)
    , m_columns(new ColumnWidths(*this))
    , m_commands(new ListCommands(*this))
    , m_hint(new EmptyHint(viewport())) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideMiddle);
    setWordWrap(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setMouseTracking(true);
    setDragDropMode(DropOnly);
    setDropIndicatorShown(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
}

void SkinTableView::setTableDelegate(SkinTableViewDelegate *delegate) {
    m_delegate = delegate;
    m_commands->setDelegate(delegate);
}

void SkinTableView::setSelectionModel(QItemSelectionModel *selection) {
    QTableView::setSelectionModel(selection);
    m_commands->follow(*selection);
    m_hint->follow(*selection->model());
}

int SkinTableView::selectedRow() const {
    if (!selectionModel() || !selectionModel()->hasSelection()) {
        return -1;
    }
    const QItemSelection selection = selectionModel()->selection();
    const auto topmost = std::min_element(
        selection.begin(), selection.end(),
        [](const auto &one, const auto &other) { return one.top() < other.top(); });
    return topmost->top();
}

bool SkinTableView::selectsOneRow() const {
    return selectionModel() && selectionModel()->selectedRows().size() == 1;
}

void SkinTableView::selectAll() {
    QTableView::selectAll();
    setFocus();
}

void SkinTableView::clickMenuRemove() {
    m_delegate->clickMenuRemove();
}

void SkinTableView::clickMenuClear() {
    m_delegate->clickMenuClear();
}

void SkinTableView::clickMenuResortByName() {
    m_delegate->clickMenuResortByName();
}

void SkinTableView::clickMenuResortBySize() {
    m_delegate->clickMenuResortBySize();
}

void SkinTableView::clickMenuResortByDataCreated() {
    m_delegate->clickMenuResortByDataCreated();
}

void SkinTableView::clickMenuResortByDataModified() {
    m_delegate->clickMenuResortByDataModified();
}

void SkinTableView::clickMenuMoveUp() {
    m_delegate->clickMenuMoveUp();
}

void SkinTableView::clickMenuMoveDown() {
    m_delegate->clickMenuMoveDown();
}

void SkinTableView::contextMenuEvent(QContextMenuEvent *event) {
    // Some window systems send the Menu key and a menu request after it.
    if (m_delegate && !QApplication::activePopupWidget()) {
        m_commands->makeContextMenu()->popup(contextMenuPosition(*event));
        event->accept();
    }
}

void SkinTableView::keyPressEvent(QKeyEvent *event) {
    if (asksForMenu(*event)) {
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, {}, {});
        contextMenuEvent(&menu);
    } else if (asksToOpen(*event) && m_delegate && selectsOneRow()) {
        m_delegate->clickedDest(selectedRow());
    } else if (m_commands->claims(*event)) {
        event->accept(); // The command is not possible now; the table itself must not do another.
    } else {
        QTableView::keyPressEvent(event);
        if (asksForPreview(*event)) {
            Q_EMIT previewAsked();
        }
    }
}

/// Where the menu opens from the keyboard: at the selected row, if that is visible.
QPoint SkinTableView::contextMenuPosition(const QContextMenuEvent &event) const {
    if (event.reason() != QContextMenuEvent::Keyboard) {
        return event.globalPos();
    }
    const int row = selectedRow();
    const QRect cell = row < 0 ? QRect() : visualRect(model()->index(row, 1));
    const QPoint spot =
        viewport()->rect().intersects(cell) ? cell.center() : viewport()->rect().center();
    return viewport()->mapToGlobal(spot);
}

void SkinTableView::mousePressEvent(QMouseEvent *event) {
    // The commands of the context menu act on the selection before the click.
    if (event->button() == Qt::RightButton) {
        event->accept();
        return;
    }
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (m_delegate && event->button() == Qt::LeftButton && cell.isValid() &&
        cell.column() == FilesArray::DestinationColumn) {
        m_delegate->clickedDest(cell.row());
    }
    QTableView::mousePressEvent(event);
}

void SkinTableView::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::RightButton) {
        event->accept();
        return;
    }
    QTableView::mouseReleaseEvent(event);
}

void SkinTableView::mouseMoveEvent(QMouseEvent *event) {
    const QModelIndex cell = indexAt(event->position().toPoint());
    if (cell.data(FilesArray::kLinkRole).toBool()) {
        viewport()->setCursor(Qt::PointingHandCursor);
    } else {
        viewport()->unsetCursor();
    }
    QTableView::mouseMoveEvent(event);
}

/// The gap that a drop at `position` goes into: above the row that is hit, unless the pointer is in
/// its lowest quarter, and at the end below the last row.
int SkinTableView::dropRowAt(const QPoint &position) const {
    const int row = rowAt(position.y());
    if (row < 0) {
        return model() ? model()->rowCount() : 0;
    }
    const int intoRow = position.y() - rowViewportPosition(row);
    return intoRow >= rowHeight(row) * 3 / 4 ? row + 1 : row;
}

/// Accepts every drag as a copy between two rows; its data are read when it drops.
void SkinTableView::validateDrop(QDropEvent &event) {
    if (!m_delegate || !m_delegate->canEditList()) {
        setDropRow(std::nullopt);
        event.ignore();
        return;
    }
    setDropRow(dropRowAt(event.position().toPoint()));
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

void SkinTableView::dragEnterEvent(QDragEnterEvent *event) {
    validateDrop(*event);
}

void SkinTableView::dragMoveEvent(QDragMoveEvent *event) {
    validateDrop(*event);
    const QRect calm =
        viewport()->rect().marginsRemoved({0, autoScrollMargin(), 0, autoScrollMargin()});
    if (event->isAccepted() && !calm.contains(event->position().toPoint())) {
        startAutoScroll();
    }
}

void SkinTableView::dragLeaveEvent(QDragLeaveEvent *event) {
    stopAutoScroll();
    setDropRow(std::nullopt);
    event->accept();
}

void SkinTableView::dropEvent(QDropEvent *event) {
    stopAutoScroll();
    validateDrop(*event);
    if (!event->isAccepted()) {
        return;
    }
    const int row = *m_dropRow;
    setDropRow(std::nullopt);
    if (!m_delegate->acceptDrop(*event->mimeData(), row)) {
        event->setDropAction(Qt::IgnoreAction);
        event->ignore();
    }
}

void SkinTableView::setDropRow(std::optional<int> row) {
    if (m_dropRow != row) {
        m_dropRow = row;
        viewport()->update();
    }
}

void SkinTableView::paintEvent(QPaintEvent *event) {
    QTableView::paintEvent(event);
    QPainter painter(viewport());
    if (m_dropRow) {
        paintDropGround(painter);
        paintDropLine(painter);
    } else if (hasFocus()) {
        paintFocus(painter);
    }
}

/// A ring around the current row, or around the list where that has none.
void SkinTableView::paintFocus(QPainter &painter) const {
    const int row = currentIndex().row();
    const bool isSelected = row >= 0 && selectionModel()->isRowSelected(row);
    const QRect ring =
        row < 0 ? viewport()->rect()
                : QRect(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
    const QPen pen(palette().color(isSelected ? QPalette::HighlightedText : QPalette::Highlight),
                   kFocusWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
    painter.setPen(pen);
    // On a selected row the ring lies inside, so that the row's own colour surrounds it.
    const double inset = kFocusWidth / 2 + (isSelected ? kFocusWidth : 0);
    painter.drawRect(QRectF(ring).adjusted(inset, inset, -inset, -inset));
}

/// Lights the whole list, which takes what is dragged over it.
void SkinTableView::paintDropGround(QPainter &painter) const {
    QColor light = palette().color(QPalette::Highlight);
    painter.setPen(QPen(light, 2 * kDropLineWidth));
    light.setAlphaF(kDropLight);
    painter.setBrush(light);
    painter.drawRect(viewport()->rect());
}

void SkinTableView::paintDropLine(QPainter &painter) const {
    const int rows = model() ? model()->rowCount() : 0;
    const int y = rows == 0           ? 0
                  : *m_dropRow < rows ? rowViewportPosition(*m_dropRow)
                                      : rowViewportPosition(rows - 1) + rowHeight(rows - 1);
    painter.fillRect(0, std::max(0, y - kDropLineWidth / 2), viewport()->width(), kDropLineWidth,
                     palette().highlight());
}

void SkinTableView::resizeEvent(QResizeEvent *event) {
    QTableView::resizeEvent(event);
    m_columns->layOut();
    m_hint->setGeometry(viewport()->rect());
}

} // namespace folioforge
