// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHeaderView>

namespace folioforge {

/// The header of the file list: four columns with their centred titles, drawn whole each time.
class VesprinTableHeaderView : public QHeaderView {
    Q_OBJECT

  public:
    explicit VesprinTableHeaderView(QWidget *parent = nullptr);

    /// Draws the background and the centred title of one column; `cell` in points.
    static void drawColumnCell(QPainter &painter, const QRectF &cell, const QString &title);
    /// Draws the header of `column` (0 to 3): its cell, the separator on its right and the line
    /// along its bottom. A zero rectangle, that of a missing column, shows nothing.
    static void drawColumn(QPainter &painter, int column, const QRectF &cell, const QString &title);

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    /// Rectangle of a column's header; empty at the origin when the header has no such column.
    [[nodiscard]] QRectF headerRect(int column) const;
};

} // namespace folioforge
