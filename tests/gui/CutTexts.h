// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "skin/SkinButton.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>
#include <QStyle>
#include <QStyleOptionFrame>

namespace folioforge::test {

/// Whether `field` shows less than all of its text.
inline bool isCut(const QLineEdit &field) {
    QStyleOptionFrame option;
    option.initFrom(&field);
    const QRect inside =
        field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field);
    constexpr int kBeside = 4; // Points that a field leaves free beside its text.
    return field.fontMetrics().horizontalAdvance(field.displayText()) >
           inside.marginsRemoved(field.textMargins()).width() - kBeside;
}

/// The labels, boxes, buttons and numbers in sight that have less room than their text takes, or
/// whose room the window does not show.
inline QStringList cutTexts(const QWidget &window) {
    QStringList names;
    for (const auto *widget : window.findChildren<QWidget *>()) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        const QString text = label ? label->text() : button ? button->text() : QString();
        // A skin is a picture; the answer of a run gives way to its buttons.
        const bool isText = !text.isEmpty() && widget->isVisible() &&
                            !qobject_cast<const SkinButton *>(widget) &&
                            !(label && label->wordWrap());
        const auto *field = qobject_cast<const QLineEdit *>(widget);
        if (field && field->isVisible() && !field->isReadOnly() && isCut(*field)) {
            names += QStringLiteral("%1 '%2'").arg(field->objectName(), field->text());
        }
        const QSize needed = widget->sizeHint();
        if (isText && (widget->width() < needed.width() || widget->height() < needed.height() ||
                       widget->visibleRegion().boundingRect().width() < needed.width())) {
            names += QStringLiteral("%1 '%2'").arg(widget->objectName(), text);
        }
    }
    return names;
}

} // namespace folioforge::test
