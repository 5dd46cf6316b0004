// SPDX-License-Identifier: Apache-2.0

#include "skin/FieldEnd.h"

#include <QEvent>
#include <QLineEdit>
#include <QStyle>

namespace folioforge {

FieldEnd::FieldEnd(QLineEdit &field, QWidget &widget)
    : QObject(&widget)
    , m_field(field)
    , m_widget(widget) {
    field.installEventFilter(this);
    place();
}

bool FieldEnd::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutDirectionChange) {
        place();
    }
    return QObject::eventFilter(watched, event);
}

void FieldEnd::place() {
    constexpr int kEdge = 1;
    const QRect inside = m_field.rect().adjusted(kEdge, kEdge, -kEdge, -kEdge);
    const int width = m_widget.sizeHint().width();
    const Qt::LayoutDirection direction = m_field.layoutDirection();
    m_widget.setGeometry(QStyle::alignedRect(direction, Qt::AlignTrailing | Qt::AlignVCenter,
                                             {width, inside.height()}, inside));
    const bool isLeft = direction == Qt::RightToLeft;
    m_field.setTextMargins(isLeft ? width : 0, 0, isLeft ? 0 : width, 0);
}

} // namespace folioforge
