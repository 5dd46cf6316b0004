// SPDX-License-Identifier: Apache-2.0

#include "app/FramePlacer.h"

#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <chrono>

namespace folioforge {

FramePlacer::FramePlacer(QWidget &window)
    : QObject(&window)
    , m_window(window) {
    place();
    constexpr std::chrono::milliseconds kBetweenLooks(20);
    connect(&m_looks, &QTimer::timeout, this, &FramePlacer::look);
    m_looks.start(kBetweenLooks);
}

void FramePlacer::look() {
    const bool hasFrame = !m_window.windowHandle()->frameMargins().isNull();
    if (hasFrame) {
        place();
    }
    if (hasFrame || --m_looksLeft == 0) {
        m_looks.stop();
    }
}

void FramePlacer::place() {
    const QRect screen = m_window.screen()->availableGeometry();
    const QSize edges = m_window.frameGeometry().size() - m_window.size();
    m_window.resize(m_window.size().boundedTo(screen.size() - edges));
    QRect frame(QPoint(), m_window.size() + edges);
    frame.moveCenter(screen.center());
    // Where the window cannot get small enough, its title bar counts most.
    m_window.move(std::max(frame.left(), screen.left()), std::max(frame.top(), screen.top()));
}

} // namespace folioforge
