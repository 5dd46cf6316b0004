// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/SmallScreen.h"

#include "mainwnd/OptionsSlide.h"
#include "skin/OptionsDrawer.h"

#include <QApplication>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace folioforge {
namespace {

/// Points that a frame with its title bar and the menu bar may take of a screen.
constexpr QSize kAroundContents(8, 64);

QScrollArea *scrollAreaAround(QWidget *contents) {
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(contents);
    return area;
}

/// Scrolls to what gets the keyboard, but never moves what the mouse has just pressed.
void followKeyboard(QScrollArea &area) {
    QObject::connect(qApp, &QApplication::focusChanged, &area,
                     [&area](const QWidget * /*before*/, QWidget *now) {
                         if (area.isAncestorOf(now) &&
                             QGuiApplication::mouseButtons() == Qt::NoButton) {
                             area.ensureWidgetVisible(now);
                         }
                     });
}

} // namespace

void scrollOnSmallScreen(QMainWindow &window, OptionsDrawer &drawer, OptionsSlide &slide) {
    const QSize least = window.centralWidget()->minimumSizeHint();
    const QSize room = window.screen()->availableSize() - kAroundContents;
    const QSize panel(static_cast<int>(OptionsDrawer::kFullWidth), 0);
    if ((least + panel).boundedTo(room) == least + panel) {
        return;
    }
    QScrollArea *area = scrollAreaAround(window.takeCentralWidget());
    window.setCentralWidget(area);
    area->setMinimumSize(least.boundedTo(room));
    window.resize(window.size().expandedTo(area->minimumSize()));
    followKeyboard(*area);
    slide.stayOnScreen();
    QObject::connect(&slide, &OptionsSlide::rested, area, [area, &drawer] {
        if (drawer.isVisible()) { // It lies where lines end.
            area->horizontalScrollBar()->setValue(area->horizontalScrollBar()->maximum());
        }
    });
}

} // namespace folioforge
