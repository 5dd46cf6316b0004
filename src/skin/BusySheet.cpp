// SPDX-License-Identifier: Apache-2.0

#include "skin/BusySheet.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPainter>
#include <QProgressBar>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr int kCardWidth = 420;
constexpr int kCardTop = 120;
constexpr int kBarSteps = 1000;
constexpr int kBarHeight = 8;

/// Closing and quitting stay possible while the sheet is up.
bool leavesTheProgram(const QKeyEvent &key) {
    return key.keyCombination() == QKeyCombination(Qt::ControlModifier, Qt::Key_Q) ||
           key.matches(QKeySequence::Quit) || key.matches(QKeySequence::Close);
}

QAccessibleInterface *makeAccessible(const QString & /*className*/, QObject *object) {
    auto *sheet = qobject_cast<BusySheet *>(object);
    return sheet ? new QAccessibleWidget(sheet, QAccessible::Dialog) : nullptr;
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
    , m_countLabel(new QLabel)
    , m_bar(new QProgressBar) {
    QAccessible::installFactory(makeAccessible); // Installed once, however often.
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::BusyCursor);
    setAccessibleName(tr("Creating PDF documents"));
    setVisible(false);

    auto *title = new QLabel(tr("Creating PDF documents…"));
    title->setObjectName(u"busyTitle"_s);
    m_fileLabel->setObjectName(u"busyFile"_s);
    m_fileLabel->setTextFormat(Qt::PlainText);
    // Whatever the language of the name, it stands where lines of the window begin.
    m_fileLabel->setAlignment(Qt::AlignVCenter | Qt::AlignAbsolute |
                              (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
    m_countLabel->setObjectName(u"busyCount"_s);
    m_bar->setObjectName(u"busyBar"_s);
    m_bar->setAccessibleName(tr("Progress of the run"));
    m_bar->setRange(0, kBarSteps);
    m_bar->setTextVisible(false);
    m_bar->setFixedHeight(kBarHeight);

    auto *card = makeCard(this);
    auto *lines = new QVBoxLayout(card);
    lines->setContentsMargins(24, 20, 24, 20);
    lines->setSpacing(8);
    lines->addWidget(title);
    lines->addWidget(m_fileLabel);
    lines->addWidget(m_countLabel);
    lines->addWidget(m_bar);

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
    disableWhatIsCovered();
}

void BusySheet::endSheet() {
    window()->removeEventFilter(this);
    hide();
    enableWhatWasCovered();
    if (m_focusBefore) {
        m_focusBefore->setFocus();
    }
}

/// The menu bar stays: the keys that close and quit are its items'.
void BusySheet::disableWhatIsCovered() {
    for (QWidget *child :
         window()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child != this && !child->isWindow() && !qobject_cast<QMenuBar *>(child) &&
            child->isEnabled()) {
            child->setEnabled(false);
            m_covered += child;
        }
    }
}

void BusySheet::enableWhatWasCovered() {
    for (const QPointer<QWidget> &child : std::as_const(m_covered)) {
        if (child) {
            child->setEnabled(true);
        }
    }
    m_covered.clear();
}

void BusySheet::setFile(const QString &name) {
    constexpr int kSideMargins = 48;
    m_fileLabel->setText(
        m_fileLabel->fontMetrics().elidedText(name, Qt::ElideMiddle, kCardWidth - kSideMargins));
}

void BusySheet::setProgress(const QString &words, double share) {
    if (m_countLabel->text() != words) {
        m_countLabel->setText(words);
        setAccessibleDescription(m_fileLabel->text() + u' ' + words);
        QAccessibleEvent event(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
    m_bar->setValue(static_cast<int>(share * kBarSteps));
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
