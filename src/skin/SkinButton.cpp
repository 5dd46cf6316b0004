// SPDX-License-Identifier: Apache-2.0

#include "skin/SkinButton.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace folioforge {
namespace {

constexpr double kHoverOpacity = 1.0;
constexpr double kPressedOpacity = 0.7;
constexpr double kDisabledOpacity = 0.4;

constexpr double kCornerRadius = 6.0;

/// The focus ring just inside the skin's edge, on a light fill of the same colour.
void drawRing(QPainter &painter, const QRectF &bounds, QColor color, double width, double tint) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, width));
    color.setAlphaF(static_cast<float>(tint));
    painter.setBrush(color);
    const double inset = width / 2;
    painter.drawRoundedRect(bounds.adjusted(inset, inset, -inset, -inset), kCornerRadius,
                            kCornerRadius);
}

} // namespace

SkinButton::SkinButton(QWidget *parent)
    : QPushButton(parent)
    , m_tracking(rect()) {}

void SkinButton::setImage(const SkinImage &image) {
    m_imageOn = image.atOpacity(kHoverOpacity);
    m_imageDown = image.atOpacity(kPressedOpacity);
    m_imageDisable = image.atOpacity(kDisabledOpacity);
    setNormalImage(image);
}

void SkinButton::setNormalImage(const SkinImage &image) {
    m_imageNormal = image;
    updateGeometry();
    showImage(image);
}

void SkinButton::fixSize(const QSize &size) {
    m_fixedSize = size;
    ensurePolished(); // Else the style sheet would come later.
    setFixedSize(size);
}

void SkinButton::showNormalImage() {
    if (isEnabled()) {
        showImage(m_imageNormal);
    }
}

void SkinButton::setEnabled(bool enabled) {
    QPushButton::setEnabled(enabled);
    showEnabledLook();
}

QSize SkinButton::sizeHint() const {
    return isSkinned() ? m_imageNormal.size() : QPushButton::sizeHint();
}

QSize SkinButton::minimumSizeHint() const {
    return isSkinned() ? m_imageNormal.size() : QPushButton::minimumSizeHint();
}

void SkinButton::enterEvent(QEnterEvent *event) {
    QPushButton::enterEvent(event);
    if (isEnabled()) {
        showImage(m_imageOn);
    }
}

/// The hover look stays after leaving, as on entering; showNormalImage() or the next drag ends it.
void SkinButton::leaveEvent(QEvent *event) {
    QPushButton::leaveEvent(event);
    if (isEnabled() && !std::exchange(m_leftInDrag, false)) {
        showImage(m_imageOn);
    }
}

void SkinButton::mousePressEvent(QMouseEvent *event) {
    if (!isSkinned()) {
        QPushButton::mousePressEvent(event);
        return;
    }
    event->setAccepted(event->button() == Qt::LeftButton);
    if (event->isAccepted() && !m_imageDown.isNull()) {
        showImage(m_imageDown);
    }
}

void SkinButton::mouseMoveEvent(QMouseEvent *event) {
    if (!isSkinned()) {
        QPushButton::mouseMoveEvent(event);
        return;
    }
    if (event->buttons().testFlag(Qt::LeftButton)) {
        m_leftInDrag = !m_tracking.contains(event->position().toPoint());
        showImage(m_leftInDrag ? m_imageNormal : m_imageDown);
    }
}

void SkinButton::mouseReleaseEvent(QMouseEvent *event) {
    if (!isSkinned()) {
        QPushButton::mouseReleaseEvent(event);
        return;
    }
    if (event->button() != Qt::LeftButton) {
        return;
    }
    if (!m_imageOn.isNull()) {
        showImage(m_imageOn);
    }
    const bool inside = m_tracking.contains(event->position().toPoint());
    if (!inside && m_shown != m_imageNormal) {
        showImage(m_imageNormal);
        return;
    }
    showImage(m_imageOn);
    Q_EMIT clicked();
}

void SkinButton::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QPushButton::keyPressEvent(event);
}

void SkinButton::resizeEvent(QResizeEvent *event) {
    QPushButton::resizeEvent(event);
    m_tracking = rect();
}

void SkinButton::changeEvent(QEvent *event) {
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        showEnabledLook();
    } else if (event->type() == QEvent::StyleChange && m_fixedSize.isValid()) {
        setFixedSize(m_fixedSize);
    }
}

void SkinButton::paintEvent(QPaintEvent *event) {
    if (!isSkinned()) {
        QPushButton::paintEvent(event);
        return;
    }
    QPainter painter(this);
    // Only the keyboard presses the button through its base class.
    const SkinImage &look = isDown() && !m_imageDown.isNull() ? m_imageDown : m_shown;
    look.draw(painter, rect());
    const QColor accent = palette().color(QPalette::Highlight);
    if (isChecked()) {
        drawRing(painter, rect(), accent, 1.5, 0.10);
    }
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        drawRing(painter, rect(), accent.lighter(130), 2.5, 0.0);
    }
}

void SkinButton::showEnabledLook() {
    showImage(isEnabled() ? m_imageNormal : m_imageDisable);
}

void SkinButton::showImage(const SkinImage &image) {
    if (m_shown != image) {
        m_shown = image;
        update();
    }
}

} // namespace folioforge
