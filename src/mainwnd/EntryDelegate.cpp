// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/EntryDelegate.h"

#include "filelist/FileKind.h"
#include "mainwnd/FilesArray.h"

#include <QApplication>
#include <QPainter>

namespace folioforge {
namespace {

constexpr int kGap = 4;

} // namespace

void EntryDelegate::setMark(FileKind kind, const SkinImage &mark) {
    m_marks[kind] = mark;
}

void EntryDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const {
    const auto kind = static_cast<FileKind>(index.data(FilesArray::kKindRole).toInt());
    const auto mark = m_marks.find(kind);
    if (mark == m_marks.end()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    // The ground of the whole cell, which the name alone would not fill.
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    const QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);

    const int side = std::max(mark->second.size().width(), option.fontMetrics.height());
    const QRect whole = option.rect;
    const QRect place(whole.left() + kGap, whole.top() + (whole.height() - side) / 2, side, side);
    mark->second.draw(*painter, QStyle::visualRect(option.direction, whole, place));

    QStyleOptionViewItem name(option);
    name.rect = QStyle::visualRect(option.direction, whole, whole.adjusted(kGap + side, 0, 0, 0));
    QStyledItemDelegate::paint(painter, name, index);
}

} // namespace folioforge
