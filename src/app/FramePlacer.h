// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

namespace folioforge {

/// Centres a window with its frame on the screen, and makes it small enough to fit.
///
/// A window manager draws the frame some time after the window is shown. The window is placed at
/// once, and again when the frame is there.
class FramePlacer : public QObject {
    Q_OBJECT

  public:
    /// `window` is shown. It owns its placer.
    explicit FramePlacer(QWidget &window);

  private:
    void look();
    void place();

    QWidget &m_window;
    QTimer m_looks; ///< No event tells of the frame.
    int m_looksLeft = 100;
};

} // namespace folioforge
