// SPDX-License-Identifier: Apache-2.0

#include "skin/PasswordEye.h"

#include "skin/FieldEnd.h"
#include "skin/TextScale.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace folioforge {
namespace {

constexpr int kEyeSize = 26; ///< Of the button in points, beside texts of usual size.

/// An eye 16 wide around the origin.
QPainterPath eyeOutline() {
    constexpr double kHalf = 8;
    QPainterPath path({-kHalf, 0});
    path.quadTo({0, -kHalf - 1}, {kHalf, 0});
    path.quadTo({0, kHalf + 1}, {-kHalf, 0});
    return path;
}

void drawEye(QPainter &painter, const QColor &ink, bool crossed) {
    constexpr double kStroke = 1.4;
    constexpr double kPupil = 2.4;
    constexpr double kReach = 6; // Of the stroke that crosses the eye out.
    painter.setPen(QPen(ink, kStroke, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(eyeOutline());
    painter.setBrush(ink);
    painter.drawEllipse(QPointF(), kPupil, kPupil);
    if (crossed) {
        painter.drawLine(QPointF(-kReach, kReach), QPointF(kReach, -kReach));
    }
}

} // namespace

PasswordEye::PasswordEye(QLineEdit &field, const QString &name)
    : QToolButton(&field)
    , m_field(field) {
    setCheckable(true);
    setAccessibleName(name);
    setCursor(Qt::ArrowCursor);
    showPassword(false);
    QWidget::setTabOrder(&field, this);
    new FieldEnd(field, *this);
    connect(this, &QAbstractButton::toggled, this, &PasswordEye::showPassword);
    connect(&field, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (text.isEmpty()) {
            setChecked(false);
        }
    });
}

QSize PasswordEye::sizeHint() const {
    return QSize(1, 1) * scaledToText(kEyeSize);
}

void PasswordEye::showPassword(bool shown) {
    m_field.setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password);
    setToolTip(shown ? tr("Hide the password") : tr("Show the password"));
}

/// A crossed eye offers to hide the password.
void PasswordEye::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent = palette().color(QPalette::Highlight);
    if (hasFocus()) {
        constexpr double kInset = 3;
        constexpr double kRadius = 4;
        painter.setPen(QPen(accent, 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(kInset, kInset, -kInset, -kInset), kRadius,
                                kRadius);
    }
    painter.translate(QRectF(rect()).center());
    painter.scale(textScale(), textScale());
    const bool isLit = isEnabled() && underMouse();
    drawEye(painter, isLit ? accent : palette().color(QPalette::ButtonText), isChecked());
}

/// Keys that mean nothing here must not go on to the field and change the password.
void PasswordEye::keyPressEvent(QKeyEvent *event) {
    QToolButton::keyPressEvent(event);
    event->accept();
}

void PasswordEye::changeEvent(QEvent *event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        setChecked(false);
    }
    QToolButton::changeEvent(event);
}

} // namespace folioforge
