// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/Notices.h"

#include "mainwnd/FileDialog.h"

#include <QFileDialog>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
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

/// The largest size of a notice's text: half the screen's height and two fifths of its width, at
/// most 800 points.
QSize maxTextSize(const QScreen &screen) {
    const QSize size = screen.availableGeometry().size();
    return {std::min(size.width() * 2 / 5, 800), size.height() / 2};
}

/// Lets a long text scroll and break, so that all of it and the button stay on the screen: a notice
/// may name thousands of files.
void fitLongText(QMessageBox &box) {
    auto *text = box.findChild<QLabel *>(u"qt_msgbox_informativelabel"_s);
    const QSize most = maxTextSize(*box.screen());
    if (!text || (text->sizeHint().height() <= most.height() &&
                  text->minimumSizeHint().width() <= most.width())) {
        return;
    }
    const std::unique_ptr<QLayoutItem> place(
        box.layout()->replaceWidget(text, scrollingText(*text, most)));
    text->hide();
}

} // namespace

void Notices::showSheet(QWidget *window, const Notice &notice, Ended ended) {
    show(window, notice, Kind::Sheet, std::move(ended));
}

void Notices::showPanel(const Notice &notice) {
    show(nullptr, notice, Kind::Panel, {});
}

void Notices::show(QWidget *window, const Notice &notice, Kind kind, Ended ended) {
    m_shown.push_back({notice, kind});
    if (m_answersAtOnce) {
        if (ended) {
            QMetaObject::invokeMethod(this, std::move(ended), Qt::QueuedConnection);
        }
        return;
    }
    auto *box = new QMessageBox(QMessageBox::NoIcon, notice.title, notice.title, QMessageBox::Ok,
                                window, Qt::Sheet);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(notice.textInWindow());
    showAsPlainText(*box);
    fitLongText(*box);
    box->setWindowModality(kind == Kind::Sheet ? Qt::WindowModal : Qt::ApplicationModal);
    if (ended) {
        // Queued, so that this sheet closes before the next one opens.
        connect(box, &QDialog::finished, this, ended, Qt::QueuedConnection);
    }
    box->show();
}

void Notices::showFilePanel(QWidget *window, const FilePanel &panel, const Chosen &chosen) {
    m_filePanels.push_back(panel);
    if (!m_nextFiles.empty()) {
        QMetaObject::invokeMethod(
            this, [chosen, paths = m_nextFiles.front()] { chosen(paths); }, Qt::QueuedConnection);
        m_nextFiles.pop_front();
        return;
    }
    QFileDialog *dialog = makeFileDialog(window, panel);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &QDialog::accepted, this,
            [dialog, chosen] { chosen(dialog->selectedFiles()); });
    connect(dialog, &QDialog::rejected, this, [chosen] { chosen({}); });
    dialog->show();
}

} // namespace folioforge
