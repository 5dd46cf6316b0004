#include "skin/OptionsDrawer.h"

namespace folioforge {

OptionsDrawer::OptionsDrawer(QWidget *parent)
    : QWidget(parent) {
    setFixedWidth(m_openWidth);
}

void OptionsDrawer::setOpenWidth(int width) {
    m_openWidth = width;
    setFixedWidth(width);
    setVisible(width > 0);
}

void OptionsDrawer::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    placeChild();
}

void OptionsDrawer::placeChild() {
    if (auto *panel = findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        panel->setGeometry(0, 0, static_cast<int>(kFullWidth), height());
    }
}

} // namespace folioforge
