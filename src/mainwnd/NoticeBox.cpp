// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/NoticeBox.h"

#include "error/Notice.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShowEvent>
#include <QTextEdit>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// Shows file names that look like HTML as they are, in every label of the box.
void showAsPlainText(QMessageBox &box) {
    for (QLabel *label : box.findChildren<QLabel *>()) {
        label->setTextFormat(Qt::PlainText);
    }
}

/// A selectable view of `text` that scrolls and breaks long words; no larger than `most`.
QTextEdit *scrollingText(const QLabel &text, const QSize &most) {
    auto *view = new QTextEdit(text.parentWidget());
    view->setReadOnly(true);
    view->setFrameShape(QFrame::NoFrame);
    view->viewport()->setAutoFillBackground(false);
    view->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    view->setFont(text.font());
    view->setPlainText(text.text());
    const int bar = view->verticalScrollBar()->sizeHint().width();
    const int width = std::min(text.sizeHint().width() + bar, most.width());
    view->document()->setDocumentMargin(0);
    view->setLineWrapMode(QTextEdit::FixedPixelWidth);
    view->setLineWrapColumnOrWidth(width - bar);
    const int height = static_cast<int>(std::ceil(view->document()->size().height()));
    view->setFixedSize(width, std::min(height, most.height()));
    return view;
}

/// The largest size of a notice's text: about 72 characters a line, on a small screen half its
/// width, and half its height.
QSize maxText(const QFontMetrics &font, const QSize &screen) {
    constexpr int kReadableLine = 72;
    return {std::min(font.averageCharWidth() * kReadableLine, screen.width() / 2),
            screen.height() / 2};
}

/// Gives the text lines that read well. A text too long for that scrolls and breaks its words, so
/// that all of it and the button stay on the screen: a notice may name thousands of files.
void fitText(QMessageBox &box, const QSize &screen) {
    auto *text = box.findChild<QLabel *>(u"qt_msgbox_informativelabel"_s);
    if (!text) {
        return;
    }
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    const QSize most = maxText(text->fontMetrics(), screen);
    if (text->sizeHint().height() > most.height() ||
        text->minimumSizeHint().width() > most.width()) {
        QTextEdit *view = scrollingText(*text, most);
        const std::unique_ptr<QLayoutItem> place(grid->replaceWidget(text, view));
        grid->setAlignment(view, Qt::AlignLeading | Qt::AlignTop);
        text->hide();
        view->show(); // The layout leaves out what is not seen yet.
        return;
    }
    const int natural = text->fontMetrics().size(0, text->text()).width();
    text->setFixedWidth(std::min(natural, most.width()) + text->contentsMargins().left() +
                        text->contentsMargins().right());
    grid->setAlignment(text, Qt::AlignLeading | Qt::AlignTop);
}

/// Makes the box wide enough for its title bar, which a window manager draws in a font of its own
/// beside its buttons.
void fitTitle(QMessageBox &box, const QSize &screen) {
    constexpr int kTitleButtons = 120;
    constexpr int kBesideTheText = 60;
    constexpr int kBesideTheBox = 40;
    QFont font = QFontDatabase::systemFont(QFontDatabase::TitleFont);
    font.setBold(true);
    const int title = QFontMetrics(font).horizontalAdvance(box.windowTitle()) + kTitleButtons;
    const int width =
        std::min(std::max(NoticeBox::kLeastWidth, title), screen.width() - kBesideTheBox);
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    int row = 0;
    int column = 0;
    int span = 0;
    grid->getItemPosition(grid->indexOf(box.findChild<QLabel *>(u"qt_msgbox_label"_s)), &row,
                          &column, &span, &span);
    grid->setColumnMinimumWidth(column, width - kBesideTheText);
    grid->setColumnStretch(column, 1); // Else the icon's column takes as much of what is left.
}

} // namespace

NoticeBox::NoticeBox(Icon icon, const Notice &notice, QWidget *window)
    : QMessageBox(icon, notice.title, notice.title, Ok, window, Qt::Sheet) {
    setInformativeText(notice.textInWindow());
    button(Ok)->setIcon({}); // Some desktops would draw one.
    button(Ok)->setText(tr("OK"));
    showAsPlainText(*this);
}

/// A change of the style before makes the box lay itself out anew.
void NoticeBox::showEvent(QShowEvent *event) {
    if (!event->spontaneous() && !m_isFitted) {
        m_isFitted = true;
        const QWidget *window = parentWidget();
        const QSize size = (window ? window->screen() : screen())->availableGeometry().size();
        fitText(*this, size);
        fitTitle(*this, size);
    }
    QMessageBox::showEvent(event);
}

} // namespace folioforge
