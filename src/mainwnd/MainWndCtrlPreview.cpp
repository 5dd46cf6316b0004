// SPDX-License-Identifier: Apache-2.0

#include "filelist/FileKind.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/MainWndCtrl.h"
#include "preview/Preview.h"

#include <QFileInfo>

#include <optional>
#include <utility>

namespace folioforge {

bool MainWndCtrl::canShowPages() const {
    return QFileInfo::exists(Preview::programIn(m_services.bundlePath));
}

void MainWndCtrl::togglePreview() {
    if (canShowPages()) {
        makePreview();
        showPreview(!m_preview->isOpen());
    }
}

void MainWndCtrl::makePreview() {
    if (m_preview) {
        return;
    }
    m_preview =
        std::make_unique<Preview>(m_services.bundlePath, [this] { return previewSubject(); });
    constexpr int kListShare = 2;
    m_besideLayout->setStretchFactor(m_tableview, kListShare);
    m_besideLayout->addWidget(&m_preview->panel(), 1);
    QWidget *before = m_tableview;
    for (QWidget *next : m_preview->panel().inTabOrder()) {
        QWidget::setTabOrder(std::exchange(before, next), next);
    }
    connectPreview();
}

/// What the page depends on: the selected entry and the settings of its kind.
void MainWndCtrl::connectPreview() {
    const auto refresh = [this] { m_preview->refresh(); };
    for (const QWidget *view : {m_textPageSizeView, m_imagePageSizeView}) {
        for (const auto *field : view->findChildren<QLineEdit *>()) {
            connect(field, &QLineEdit::textChanged, m_preview.get(), refresh);
        }
    }
    for (const QButtonGroup *matrix : {m_mtxTextPageSizeMode, m_mtxImagePageSizeMode}) {
        connect(matrix, &QButtonGroup::buttonToggled, m_preview.get(), refresh);
    }
    for (const QCheckBox *box : {m_btnReadable, m_btnArchive, m_btnAccessible}) {
        connect(box, &QCheckBox::toggled, m_preview.get(), refresh);
    }
    connect(m_comboCompressMethod, &QComboBox::currentIndexChanged, m_preview.get(), refresh);
    connect(m_filesArray->selectionModel(), &QItemSelectionModel::selectionChanged, m_preview.get(),
            refresh);
    connect(m_filesArray->selectionModel(), &QItemSelectionModel::currentChanged, m_preview.get(),
            refresh);
    connect(m_filesArray.get(), &FilesArray::modelReset, m_preview.get(), refresh);
    connect(m_filesArray.get(), &FilesArray::dataChanged, m_preview.get(),
            [this, refresh](const QModelIndex &first, const QModelIndex &last) {
                if (first.row() <= previewRow() && previewRow() <= last.row()) {
                    refresh();
                }
            });
    connect(&m_preview->panel(), &PreviewPanel::closeAsked, this, [this] { showPreview(false); });
}

/// The list gives the panel room, so that the window need not grow.
void MainWndCtrl::showPreview(bool shown) {
    const int least = m_tableview->minimumWidth();
    if (shown) {
        m_tableview->setMinimumWidth(least - PreviewPanel::kMinimumWidth);
        m_preview->open();
    } else {
        m_preview->close();
        m_tableview->setMinimumWidth(least + PreviewPanel::kMinimumWidth);
        m_tableview->setFocus();
    }
    Q_EMIT previewShown(shown);
}

/// The current row where it is selected, else the first selected one, or -1.
int MainWndCtrl::previewRow() const {
    const QItemSelectionModel &selection = *m_filesArray->selectionModel();
    const QModelIndex current = selection.currentIndex();
    return selection.isSelected(current) ? current.row() : m_tableview->selectedRow();
}

PreviewSubject MainWndCtrl::previewSubject() {
    PreviewSubject subject;
    const int row = previewRow();
    if (row < 0) {
        subject.problem = tr("Select a file to see its pages");
        return subject;
    }
    subject.entry = m_filesArray->at(row);
    subject.options = runOptions();
    std::optional<Notice> problem;
    if (subject.entry.stateIndex() == FinishedAsLink) {
        subject.document = subject.entry.destFilePathName();
        subject.password = m_tfUserPassword->text();
    } else if (subject.entry.kind() == FileKind::Pdf) {
        subject.document = subject.entry.filePathName();
    } else if (subject.entry.kind() == FileKind::Text) {
        problem = folioforge::checkTextPageSizeSettings(textPageSetup());
    } else {
        problem = folioforge::checkImagePageSizeSettings(imagePageSetup());
    }
    if (problem) {
        subject.problem = problem->message;
    }
    return subject;
}

} // namespace folioforge
