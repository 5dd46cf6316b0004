// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>

class QLineEdit;
class QWidget;

namespace folioforge {

/// Keeps a widget inside a field, where its text ends: right, or left where texts run that way. The
/// text leaves it room.
class FieldEnd : public QObject {
    Q_OBJECT

  public:
    /// Places `widget`, a child of `field`, as wide as it wants to be, and stays with it.
    FieldEnd(QLineEdit &field, QWidget &widget);

  private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void place();

    QLineEdit &m_field;
    QWidget &m_widget;
};

} // namespace folioforge
