// SPDX-License-Identifier: Apache-2.0

#include "skin/VesprinTableHeaderView.h"

#include "skin/TextScale.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

#include <cmath>

namespace folioforge {
namespace {

constexpr int kColumns = 4;
constexpr int kTitlePoints = 13;
constexpr double kTitleRaise = 4.0;
constexpr double kSeparatorInset = 8.0;

QColor separatorColor() {
    return QColor::fromRgbF(0.5F, 0.5F, 0.5F, 0.5F);
}

/// A pen whose lines do not pass their end points.
QPen linePen(double width) {
    return {separatorColor(), width, Qt::SolidLine, Qt::FlatCap};
}

QPointF truncated(const QPointF &point) {
    return {std::trunc(point.x()), std::trunc(point.y())};
}

} // namespace

VesprinTableHeaderView::VesprinTableHeaderView(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent) {}

void VesprinTableHeaderView::drawColumnCell(QPainter &painter, const QRectF &cell,
                                            const QString &title) {
    painter.fillRect(cell.adjusted(0, 1, 0, 0), QColor::fromRgbF(0.98F, 0.98F, 0.98F));

    // A point of this window is one unit of the screen's logical size, so the font's size goes in
    // pixels, which the screen's scale multiplies.
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(scaledToText(kTitlePoints));
    const QFontMetricsF metrics(font);
    const auto titleWidth = static_cast<float>(metrics.horizontalAdvance(title));
    const auto titleHeight = static_cast<float>(metrics.height());
    const auto x = static_cast<float>(cell.x() + (cell.width() - titleWidth) * 0.5);
    const auto y = static_cast<float>((cell.y() + 1) + ((cell.height() - 1) - titleHeight) * 0.5 -
                                      kTitleRaise);
    painter.save();
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QPointF(x, y + metrics.ascent()), title);
    painter.restore();
}

void VesprinTableHeaderView::drawColumn(QPainter &painter, int column, const QRectF &cell,
                                        const QString &title) {
    if (cell.isNull()) {
        return; // Its separator would still be drawn.
    }
    drawColumnCell(painter, cell, title);
    if (column < kColumns - 1) {
        painter.setPen(linePen(1.0));
        const double x = QGuiApplication::isRightToLeft() ? cell.left() : cell.right();
        painter.drawLine(QPointF(x, cell.top() + kSeparatorInset),
                         QPointF(x, cell.bottom() - kSeparatorInset));
    }
    QPointF left = cell.bottomLeft();
    QPointF right = cell.bottomRight();
    // The last two columns end their line on whole points; the first two do not.
    if (column >= 2) {
        left = truncated(left);
        right = truncated(right);
    }
    painter.setPen(linePen(2.0));
    painter.drawLine(left, right);
}

void VesprinTableHeaderView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    for (int column = 0; column < kColumns; ++column) {
        const QString title =
            model() ? model()->headerData(column, orientation()).toString() : QString();
        drawColumn(painter, column, headerRect(column), title);
    }
}

QRectF VesprinTableHeaderView::headerRect(int column) const {
    if (column >= count()) {
        return {};
    }
    return {static_cast<double>(sectionViewportPosition(column)), 0.0,
            static_cast<double>(sectionSize(column)), static_cast<double>(viewport()->height())};
}

} // namespace folioforge
