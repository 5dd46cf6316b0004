// SPDX-License-Identifier: Apache-2.0

#include "skin/BusySheet.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr int kCardWidth = 420;
constexpr int kCardTop = 120;

/// Closing and quitting stay possible while the sheet is up.
bool leavesTheProgram(const QKeyEvent &key) {
    return key.keyCombination() == QKeyCombination(Qt::ControlModifier, Qt::Key_Q) ||
           key.matches(QKeySequence::Quit) || key.matches(QKeySequence::Close);
}

QFrame *makeCard(QWidget *parent) {
    auto *card = new QFrame(parent);
    card->setObjectName(u"busyCard"_s);
    card->setFixedWidth(kCardWidth);
    return card;
}

} // namespace

BusySheet::BusySheet(QWidget *parent)
    : QWidget(parent)
    , m_fileLabel(new QLabel)
    , m_countLabel(new QLabel) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::BusyCursor);
    setAccessibleName(tr("Creating PDF documents"));
    setVisible(false);

    auto *title = new QLabel(tr("Creating PDF documents…"));
    title->setObjectName(u"busyTitle"_s);
    m_fileLabel->setObjectName(u"busyFile"_s);
    m_fileLabel->setTextFormat(Qt::PlainText);
    m_countLabel->setObjectName(u"busyCount"_s);

    auto *card = makeCard(this);
    auto *lines = new QVBoxLayout(card);
    lines->setContentsMargins(24, 20, 24, 20);
    lines->setSpacing(8);
    lines->addWidget(title);
    lines->addWidget(m_fileLabel);
    lines->addWidget(m_countLabel);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, kCardTop, 0, 0);
    layout->addWidget(card, 0, Qt::AlignHCenter | Qt::AlignTop);
}

void BusySheet::beginSheet() {
    m_focusBefore = window()->focusWidget();
    setParent(window());
    setGeometry(window()->rect());
    window()->installEventFilter(this);
    show();
    raise();
    setFocus();
}

void BusySheet::endSheet() {
    window()->removeEventFilter(this);
    hide();
    if (m_focusBefore) {
        m_focusBefore->setFocus();
    }
}

void BusySheet::setFile(const QString &name, int done, int total) {
    constexpr int kSideMargins = 48;
    m_fileLabel->setText(
        m_fileLabel->fontMetrics().elidedText(name, Qt::ElideMiddle, kCardWidth - kSideMargins));
    m_countLabel->setText(tr("%1 of %2 done").arg(done).arg(total));
}

bool BusySheet::event(QEvent *event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // An accepted override arrives as a key press here instead of running a shortcut.
        event->setAccepted(!leavesTheProgram(*static_cast<QKeyEvent *>(event)));
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
        event->accept();
        return true;
    default:
        return QWidget::event(event);
    }
}

bool BusySheet::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Resize) {
        setGeometry(window()->rect());
    }
    return QWidget::eventFilter(watched, event);
}

bool BusySheet::focusNextPrevChild(bool /*next*/) {
    return true;
}

void BusySheet::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(255, 255, 255, 120));
}

} // namespace folioforge
