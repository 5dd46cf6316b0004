// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/OptionsSlide.h"

#include "skin/OptionsDrawer.h"

#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <utility>

namespace folioforge {

namespace {

/// Whether two places are one: the screen counts in pixels, which are not always points.
bool isSame(const QRect &a, const QRect &b) {
    return std::abs(a.x() - b.x()) <= 1 && std::abs(a.y() - b.y()) <= 1 &&
           std::abs(a.width() - b.width()) <= 1 && std::abs(a.height() - b.height()) <= 1;
}

} // namespace

OptionsSlide::OptionsSlide(QMainWindow &window, OptionsDrawer &drawer)
    : m_window(window)
    , m_drawer(drawer) {
    constexpr std::chrono::milliseconds kAnswerTime(250);
    m_settling.setSingleShot(true);
    m_settling.setInterval(kAnswerTime);
    connect(&m_settling, &QTimer::timeout, this, &OptionsSlide::settle);
    connect(&m_slide, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &width) { openTo(width.toInt()); });
    window.installEventFilter(this);
}

void OptionsSlide::beginHidden() {
    m_window.resize(m_window.width() - m_drawer.openWidth(), m_window.height());
    m_drawer.setOpenWidth(0);
}

void OptionsSlide::jumpTo(int width) {
    takeUsersChanges();
    m_slide.stop();
    openTo(width);
}

void OptionsSlide::slideTo(int width) {
    const int duration = m_window.style()->styleHint(QStyle::SH_Widget_Animation_Duration);
    if (duration <= 0) {
        jumpTo(width);
        return;
    }
    takeUsersChanges();
    m_slide.stop();
    // A slide that has run before would show its new end at once.
    QSignalBlocker silence(m_slide);
    m_slide.setDuration(duration);
    m_slide.setEasingCurve(QEasingCurve::OutCubic);
    m_slide.setStartValue(m_drawer.openWidth());
    m_slide.setEndValue(width);
    silence.unblock();
    m_slide.start();
}

/// Moves and sizes the place without the drawer as the user moved and sized the window since.
void OptionsSlide::takeUsersChanges() {
    const QRect now = geometryNow();
    const bool isAtRest = !m_settling.isActive();
    if (isAtRest && m_drawer.openWidth() == 0) {
        m_closed = now;
        return;
    }
    const auto isNow = [&now](const QRect &asked) { return isSame(asked, now); };
    if (std::ranges::any_of(m_asked, isNow)) {
        return; // One of the steps, which the screen reports late.
    }
    const QRect before = isAtRest || m_asked.isEmpty() ? m_settled : m_asked.back();
    if (isSame(now, before)) {
        return;
    }
    m_closed.setSize(m_closed.size() + now.size() - before.size());
    m_closed.moveTop(m_closed.top() + now.top() - before.top());
    if (std::abs(now.left() - before.left()) > 1) {
        m_shift = m_window.isRightToLeft() ? m_drawer.openWidth() : 0;
        m_closed.moveLeft(now.left() + m_shift);
    }
    m_asked.clear();
    m_settled = now;
}

void OptionsSlide::openTo(int width) {
    m_drawer.setOpenWidth(width);
    if (fillsScreen()) {
        m_slidInside = true;
        m_settling.start();
    } else {
        placeWindow();
    }
}

void OptionsSlide::placeWindow() {
    applyMinimumSize();
    const int open = m_drawer.openWidth();
    const int shift = shiftFor(open);
    const QRect place = withinScreen(m_closed.adjusted(-shift, 0, open - shift, 0));
    // What stands still is not placed: where a window is, its manager knows better.
    if (std::exchange(m_shift, shift) == shift) {
        m_window.resize(place.size());
    } else {
        m_window.setGeometry(place);
    }
    m_asked += place;
    m_asksAgain = true;
    m_settling.start();
}

/// Some managers lose a step among many. The last one is asked for again, once: what comes of that
/// is what the manager wants. A busy one may still do it later, so it stays among what was asked.
void OptionsSlide::settle() {
    const QRect now = geometryNow();
    if (!m_asked.isEmpty() && now != m_asked.back() && std::exchange(m_asksAgain, false)) {
        m_window.setGeometry(m_asked.back());
        m_settling.start();
        return;
    }
    m_asksAgain = false;
    m_asked.remove(0, std::max<qsizetype>(m_asked.size() - 1, 0));
    m_settled = now;
    Q_EMIT rested();
}

/// Applies the minimum size of what the window shows now, before the window shrinks; by itself Qt
/// applies it with the next event.
void OptionsSlide::applyMinimumSize() {
    if (m_window.isVisible()) {
        m_drawer.parentWidget()->layout()->activate();
        m_window.layout()->activate();
    }
}

bool OptionsSlide::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::WindowStateChange && !fillsScreen() &&
        std::exchange(m_slidInside, false)) {
        placeWindow();
    }
    return QObject::eventFilter(watched, event);
}

bool OptionsSlide::fillsScreen() const {
    return m_window.isMaximized() || m_window.isFullScreen();
}

QRect OptionsSlide::geometryNow() const {
    return fillsScreen() ? m_window.normalGeometry() : m_window.geometry();
}

QMargins OptionsSlide::frameAtSides() const {
    const QRect inside = m_window.geometry();
    const QRect frame = m_window.frameGeometry();
    return {inside.left() - frame.left(), 0, frame.right() - inside.right(), 0};
}

/// How far to the left the window moves for so much of the drawer, which lies where lines end: by
/// what lies beyond the screen there, while there is room at the other side.
int OptionsSlide::shiftFor(int width) const {
    const QRect screen = m_window.screen()->availableGeometry();
    if (m_window.isRightToLeft()) {
        const QRect frame = m_closed.adjusted(-width, 0, 0, 0).marginsAdded(frameAtSides());
        const int room = std::clamp(screen.right() - frame.right(), 0, width);
        return width - std::clamp(screen.left() - frame.left(), 0, room);
    }
    const QRect frame = m_closed.adjusted(0, 0, width, 0).marginsAdded(frameAtSides());
    const int room = std::clamp(frame.left() - screen.left(), 0, width);
    return std::clamp(frame.right() - screen.right(), 0, room);
}

/// `place`, with as much of it cut off where lines end as the screen has no room for.
QRect OptionsSlide::withinScreen(QRect place) const {
    const QRect screen = m_window.screen()->availableGeometry().marginsRemoved(frameAtSides());
    if (m_staysOnScreen && place.width() > screen.width()) {
        m_window.isRightToLeft() ? place.setLeft(place.right() - screen.width() + 1)
                                 : place.setWidth(screen.width());
    }
    return place;
}

} // namespace folioforge
