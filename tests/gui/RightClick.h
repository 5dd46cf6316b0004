// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QTest>
#include <QWindow>

namespace folioforge::test {

/// Presses and releases the right button at `place`, every other time a little beside it: where the
/// last click was, a made one asks for no menu with Qt 6.11.
inline void rightClick(QWindow *window, const QPoint &place) {
    static int aside = 0;
    aside = 10 - aside;
    QTest::mouseClick(window, Qt::RightButton, {}, place + QPoint(aside, 0));
}

} // namespace folioforge::test
