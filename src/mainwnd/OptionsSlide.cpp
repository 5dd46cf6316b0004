// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/OptionsSlide.h"

#include "skin/OptionsDrawer.h"

#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>
#include <QSignalBlocker>
#include <QStyle>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <utility>

namespace folioforge {

namespace {

/// Whether each edge of `place` is one of `places`. Late reports reach the window in parts, so that
/// it seems to have the place of one step and the size of another. The screen counts in pixels,
/// which are not always points.
bool isMadeOf(const QRect &place, const QList<QRect> &places) {
    const auto has = [&](int (QRect::*edge)() const) {
        return std::ranges::any_of(places, [&](const QRect &one) {
            return std::abs((one.*edge)() - (place.*edge)()) <= 1;
        });
    };
    return has(&QRect::x) && has(&QRect::y) && has(&QRect::width) && has(&QRect::height);
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
        m_asked = {now};
        return;
    }
    const QRect before = isAtRest || m_asked.isEmpty() ? m_settled : m_asked.back();
    if (isMadeOf(now, m_asked + QList{before})) {
        return;
    }
    m_closed.setSize(m_closed.size() + now.size() - before.size());
    m_closed.moveTop(m_closed.top() + now.top() - before.top());
    if (std::abs(now.left() - before.left()) > 1) {
        m_shift = m_window.isRightToLeft() ? m_drawer.openWidth() : 0;
        m_closed.moveLeft(now.left() + m_shift);
    }
    m_asked = {now};
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
    m_shift = shiftFor(open);
    const QRect place = withinScreen(m_closed.adjusted(-m_shift, 0, open - m_shift, 0));
    askFor(place);
    m_asked += place;
    m_asksAgain = true;
    m_settling.start();
}

/// In whole, so that nothing of an earlier step stays. A widget hands on only what it takes for a
/// change, and where the screen reports a step late, it may take the window to be elsewhere.
void OptionsSlide::askFor(const QRect &place) {
    m_window.setGeometry(place);
    QWindow *window = m_window.windowHandle();
    if (window && window->geometry() != m_window.geometry()) {
        window->setGeometry(m_window.geometry());
    }
}

/// Some managers lose a step among many. Where the window stays at an earlier one, the last is
/// asked for again, once; any other place is what the manager or the user wants. A busy manager may
/// still do it later, so it stays among what was asked.
void OptionsSlide::settle() {
    const QRect now = geometryNow();
    if (m_asksAgain && now != m_asked.back() && isMadeOf(now, m_asked)) {
        m_asksAgain = false;
        askFor(m_asked.back());
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
    const bool isReport = event->type() == QEvent::Move || event->type() == QEvent::Resize;
    if (isReport && m_settling.isActive()) {
        m_settling.start(); // There may be more to come.
    }
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
    if (fillsScreen()) {
        return m_window.normalGeometry();
    }
    const QWindow *window = m_window.windowHandle();
    return window ? window->geometry() : m_window.geometry();
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
