// SPDX-License-Identifier: Apache-2.0

#include "skin/OptionsDrawer.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>

namespace folioforge {

OptionsDrawer::OptionsDrawer(QWidget *parent)
    : QWidget(parent)
    , m_area(new QScrollArea(this)) {
    setFixedWidth(m_openWidth);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setWidgetResizable(true);
    // The vertical bar covers only the panel's margin.
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScrollBar *sideways = m_area->horizontalScrollBar();
    connect(sideways, &QScrollBar::rangeChanged, sideways,
            [sideways] { sideways->setRange(0, 0); });
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget * /*before*/, QWidget *now) { showFocused(now); });
}

void OptionsDrawer::setPanel(QWidget *panel) {
    panel->setFixedWidth(static_cast<int>(kFullWidth));
    m_area->setWidget(panel);
    for (QComboBox *list : panel->findChildren<QComboBox *>()) {
        list->installEventFilter(this);
    }
}

void OptionsDrawer::setOpenWidth(int width) {
    m_openWidth = width;
    setFixedWidth(width);
    setVisible(width > 0);
}

void OptionsDrawer::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    constexpr int kPanelWidth = static_cast<int>(kFullWidth);
    // What shows first is the edge at the list.
    m_area->setGeometry(isRightToLeft() ? width() - kPanelWidth : 0, 0, kPanelWidth, height());
}

/// The wheel scrolls the panel and never changes the list box under the pointer.
bool OptionsDrawer::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Wheel && m_area->verticalScrollBar()->maximum() > 0) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void OptionsDrawer::scrollTo(QWidget &control) {
    // A panel that has just been opened or exchanged has its places only now.
    m_area->widget()->layout()->activate();
    QEvent grown(QEvent::LayoutRequest); // Else the area would know only later how far it scrolls.
    QCoreApplication::sendEvent(m_area, &grown);
    m_area->ensureWidgetVisible(&control);
}

/// Scrolls to the control that gets the focus from the keyboard; a clicked one must not move.
void OptionsDrawer::showFocused(QWidget *focused) {
    if (m_area->isAncestorOf(focused) && QGuiApplication::mouseButtons() == Qt::NoButton) {
        m_area->ensureWidgetVisible(focused);
    }
}

} // namespace folioforge
