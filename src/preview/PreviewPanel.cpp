// SPDX-License-Identifier: Apache-2.0

#include "preview/PreviewPanel.h"

#include "preview/PageView.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr int kLastPage = 1'000'000'000; ///< Beyond the last page of any document.

/// The page to which `key` leads; nothing where it leads to none.
std::optional<int> pageFor(int key, int page) {
    const int step = QGuiApplication::isRightToLeft() ? -1 : 1;
    switch (key) {
    case Qt::Key_Left:
        return page - step;
    case Qt::Key_Right:
        return page + step;
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        return page - 1;
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        return page + 1;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return kLastPage;
    default:
        return std::nullopt;
    }
}

QString inWords(const PagePlace &place) {
    if (place.pages == 0) {
        return {};
    }
    const QString words = place.hasMore ? PreviewPanel::tr("Page %1 of more than %2")
                                        : PreviewPanel::tr("Page %1 of %2");
    return words.arg(place.page + 1).arg(place.pages);
}

} // namespace

PreviewPanel::PreviewPanel(QWidget *parent)
    : QWidget(parent)
    , m_file(new QLabel)
    , m_view(new PageView)
    , m_number(new QLabel) {
    setObjectName(u"previewPanel"_s);
    setAttribute(Qt::WA_StyledBackground);
    setAccessibleName(tr("Preview"));
    setMinimumWidth(kMinimumWidth);
    m_file->setTextFormat(Qt::PlainText);
    m_file->setObjectName(u"previewFile"_s);
    m_number->setObjectName(u"previewNumber"_s);
    m_number->setAlignment(Qt::AlignCenter);
    m_view->setObjectName(u"previewPage"_s);
    m_close = addButton(Qt::NoArrow, tr("Close the preview"));
    m_close->setText(u"×"_s);
    const bool mirrored = isRightToLeft();
    // Whatever the language of the name, it stands where lines of the window begin.
    m_file->setAlignment(Qt::AlignAbsolute | Qt::AlignVCenter |
                         (mirrored ? Qt::AlignRight : Qt::AlignLeft));
    m_back = addButton(mirrored ? Qt::RightArrow : Qt::LeftArrow, tr("Previous page"));
    m_forth = addButton(mirrored ? Qt::LeftArrow : Qt::RightArrow, tr("Next page"));

    auto *head = new QHBoxLayout;
    head->addWidget(m_file, 1);
    head->addWidget(m_close);
    auto *foot = new QHBoxLayout;
    foot->addWidget(m_back);
    foot->addWidget(m_number, 1);
    foot->addWidget(m_forth);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(10, 6, 6, 6);
    column->setSpacing(4);
    column->addLayout(head);
    column->addWidget(m_view, 1);
    column->addLayout(foot);

    setFocusProxy(m_view);
    connect(m_close, &QToolButton::clicked, this, &PreviewPanel::closeAsked);
    connect(m_back, &QToolButton::clicked, this, [this] { ask(m_place.page - 1); });
    connect(m_forth, &QToolButton::clicked, this, [this] { ask(m_place.page + 1); });
    showPlace({});
}

QToolButton *PreviewPanel::addButton(Qt::ArrowType arrow, const QString &name) {
    auto *button = new QToolButton;
    button->setArrowType(arrow);
    constexpr int kSide = 26; // Points.
    button->setFixedSize(kSide, kSide);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(name);
    button->setToolTip(name);
    return button;
}

QList<QWidget *> PreviewPanel::inTabOrder() const {
    return {m_view, m_back, m_forth, m_close};
}

void PreviewPanel::setFile(const QString &name) {
    m_name = name;
    m_file->setText(m_file->fontMetrics().elidedText(name, Qt::ElideMiddle,
                                                     kMinimumWidth - 2 * m_close->width()));
    m_file->setToolTip(name);
    showPlace({});
    m_view->showWords({});
}

void PreviewPanel::showPage(const QImage &page, const PagePlace &place) {
    m_view->showPage(page);
    showPlace(place);
    say(tr("%1, %2", "page, file").arg(inWords(place), m_name));
}

void PreviewPanel::showWords(const QString &words, const PagePlace &place) {
    m_view->showWords(words);
    showPlace(place);
    say(words);
}

void PreviewPanel::showPlace(const PagePlace &place) {
    m_place = place;
    m_number->setText(inWords(place));
    m_back->setEnabled(place.page > 0);
    m_forth->setEnabled(place.hasMore || place.page + 1 < place.pages);
}

/// What is asked for next counts from here, though the page may not be drawn yet.
void PreviewPanel::ask(int page) {
    if (!m_place.hasMore && m_place.pages > 0) {
        page = std::clamp(page, 0, m_place.pages - 1);
    }
    m_place.page = std::max(page, 0);
    Q_EMIT pageAsked(m_place.page);
}

/// The picture is named by what it shows; one that has the keyboard is said when that changes.
void PreviewPanel::say(const QString &words) {
    if (m_view->accessibleName() != words) {
        m_view->setAccessibleName(words);
        QAccessibleEvent event(m_view, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void PreviewPanel::keyPressEvent(QKeyEvent *event) {
    const bool isAlone = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (isAlone && (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Space)) {
        Q_EMIT closeAsked();
    } else if (const auto page = pageFor(event->key(), m_place.page); isAlone && page) {
        ask(*page);
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace folioforge
