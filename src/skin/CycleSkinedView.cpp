// SPDX-License-Identifier: Apache-2.0

#include "skin/CycleSkinedView.h"

#include "skin/TextScale.h"

#include <QPainter>

namespace folioforge {

void CycleSkinedView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    const int band = scaledToText(kBandHeight);
    painter.fillRect(QRect(0, 0, width(), band), QColor::fromRgbF(kBandGrey, kBandGrey, kBandGrey));
    if (height() > band) {
        painter.fillRect(QRect(0, band, width(), height() - band), Qt::white);
    }
}

} // namespace folioforge
