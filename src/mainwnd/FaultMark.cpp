// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/FaultMark.h"

#include <QEvent>
#include <QLineEdit>
#include <QStyle>

namespace folioforge {

void FaultMark::put(QLineEdit &field, const QString &problem) {
    clear();
    m_field = &field;
    m_description = field.accessibleDescription();
    m_problem = problem;
    show(true, problem);
    connect(&field, &QLineEdit::textChanged, this, &FaultMark::clear);
    field.installEventFilter(this);
}

void FaultMark::clear() {
    if (m_field) {
        m_field->disconnect(this);
        m_field->removeEventFilter(this);
        // Who follows the text of the field may have described it anew.
        const QString now = m_field->accessibleDescription();
        show(false, now == m_problem ? m_description : now);
        m_field.clear();
    }
}

bool FaultMark::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::EnabledChange && !m_field->isEnabled()) {
        clear();
    }
    return QObject::eventFilter(watched, event);
}

void FaultMark::show(bool fault, const QString &description) {
    m_field->setProperty("fault", fault);
    m_field->setAccessibleDescription(description);
    m_field->style()->unpolish(m_field); // The style sheet looks at properties when it polishes.
    m_field->style()->polish(m_field);
}

} // namespace folioforge
