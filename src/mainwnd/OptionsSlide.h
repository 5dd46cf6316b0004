// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QMargins>
#include <QObject>
#include <QRect>
#include <QTimer>
#include <QVariantAnimation>

class QMainWindow;

namespace folioforge {

class OptionsDrawer;

/// Shows and hides the options drawer of a window: the window grows to the right (where one reads
/// from right to left, to the left) by the drawer's width, and takes its exact place back when the
/// drawer closes. Where the screen ends first, it moves to the other side meanwhile. A window that
/// fills the screen shows the drawer inside and takes its width on when it is restored.
///
/// A window manager moves and sizes the window some time after it is asked to, and reports each
/// step late. So every step is reckoned from where the window was before the slide, never from
/// where it seems to be.
class OptionsSlide : public QObject {
    Q_OBJECT

  public:
    OptionsSlide(QMainWindow &window, OptionsDrawer &drawer);

    /// From now on the window with the drawer is no wider than its screen: what it shows can
    /// scroll.
    void stayOnScreen() { m_staysOnScreen = true; }
    /// Hides the drawer and takes its width from the window, which is not shown yet.
    void beginHidden();
    /// Slides the drawer to a width of so many points, as fast as the style's animations are.
    void slideTo(int width);
    /// Opens or closes the drawer to a width of so many points at once.
    void jumpTo(int width);

  Q_SIGNALS:
    /// The window stands still again.
    void rested();

  private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void takeUsersChanges();
    void openTo(int width);
    void placeWindow();
    void askFor(const QRect &place);
    void settle();
    void applyMinimumSize();
    [[nodiscard]] bool fillsScreen() const;
    [[nodiscard]] QRect geometryNow() const;
    [[nodiscard]] QMargins frameAtSides() const;
    [[nodiscard]] int shiftFor(int width) const;
    [[nodiscard]] QRect withinScreen(QRect place) const;

    QMainWindow &m_window;
    OptionsDrawer &m_drawer;
    QVariantAnimation m_slide;
    QRect m_closed;       ///< Where the window is without the drawer.
    QRect m_settled;      ///< What the screen made of the last step.
    QList<QRect> m_asked; ///< What the window was asked for and the screen may still report.
    QTimer m_settling;    ///< Runs until the screen has answered the last step.
    bool m_asksAgain = false;
    bool m_staysOnScreen = false;
    int m_shift = 0;           ///< How far to the left the drawer has moved the window.
    bool m_slidInside = false; ///< The drawer slid while the window filled the screen.
};

} // namespace folioforge
