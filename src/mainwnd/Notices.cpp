// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/Notices.h"

#include "mainwnd/FileDialog.h"
#include "mainwnd/NoticeBox.h"

#include <QFileDialog>

namespace folioforge {

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
    const bool isSheet = kind == Kind::Sheet;
    auto *box =
        new NoticeBox(isSheet ? QMessageBox::Warning : QMessageBox::Critical, notice, window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(isSheet ? Qt::WindowModal : Qt::ApplicationModal);
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
