// SPDX-License-Identifier: Apache-2.0

#include "preview/PageView.h"

#include <QAccessibleWidget>
#include <QPainter>

namespace folioforge {

namespace {

constexpr int kMargin = 12; ///< Points around a page.

QAccessibleInterface *makePicture(const QString & /*className*/, QObject *object) {
    auto *view = qobject_cast<PageView *>(object);
    return view ? new QAccessibleWidget(view, QAccessible::Graphic) : nullptr;
}

} // namespace

PageView::PageView(QWidget *parent)
    : QWidget(parent) {
    QAccessible::installFactory(makePicture); // Installed once, however often.
    setFocusPolicy(Qt::StrongFocus);
}

void PageView::showPage(const QImage &page) {
    m_page = page;
    m_words.clear();
    update();
}

void PageView::showWords(const QString &words) {
    m_page = {};
    m_words = words;
    update();
}

QSize PageView::room() const {
    const QSize inside = size() - QSize(2 * kMargin, 2 * kMargin);
    return inside.expandedTo({1, 1}) * devicePixelRatio();
}

void PageView::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    Q_EMIT resized();
}

void PageView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    if (!m_page.isNull()) {
        paintPage(painter);
    } else {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                         Qt::AlignCenter | Qt::TextWordWrap, m_words);
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

/// A page that was drawn for other room is scaled until the right one comes, which is shown pixel
/// for pixel.
void PageView::paintPage(QPainter &painter) const {
    const double ratio = devicePixelRatio();
    const QSize pixels = m_page.size().scaled(room(), Qt::KeepAspectRatio).expandedTo({1, 1});
    const QSize all = size() * ratio;
    const QPoint corner((all.width() - pixels.width()) / 2, (all.height() - pixels.height()) / 2);
    const QRectF place(QPointF(corner) / ratio, QSizeF(pixels) / ratio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, m_page);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawRect(place.adjusted(-0.5, -0.5, 0.5, 0.5));
}

} // namespace folioforge
