// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "skin/SkinButton.h"

#include <QAbstractButton>
#include <QLabel>
#include <QStringList>

namespace folioforge::test {

/// The labels, boxes and buttons in sight that have less room than their text takes, or whose room
/// the window does not show.
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
        const QSize needed = widget->sizeHint();
        if (isText && (widget->width() < needed.width() || widget->height() < needed.height() ||
                       widget->visibleRegion().boundingRect().width() < needed.width())) {
            names += QStringLiteral("%1 '%2'").arg(widget->objectName(), text);
        }
    }
    return names;
}

} // namespace folioforge::test
