// SPDX-License-Identifier: Apache-2.0

#include "skin/CycleSkinedView.h"

#include <QPainter>

namespace folioforge {

void CycleSkinedView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.fillRect(QRect(0, 0, width(), kBandHeight),
                     QColor::fromRgbF(kBandGrey, kBandGrey, kBandGrey));
    if (height() > kBandHeight) {
        painter.fillRect(QRect(0, kBandHeight, width(), height() - kBandHeight), Qt::white);
    }
}

} // namespace folioforge
