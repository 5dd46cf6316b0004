// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/MainWndCtrl.h"

#include "files/Printable.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/ListCommands.h"
#include "mainwnd/ListHistory.h"
#include "mainwnd/NotificationCenter.h"
#include "mainwnd/RunNews.h"

#include <QFileInfo>

#include <memory>
#include <system_error>
#include <utility>

namespace folioforge {

/// Passes what a worker reports to the main thread, without waiting.
class MainWndCtrl::WorkerObserver : public ConversionObserver {
  public:
    explicit WorkerObserver(MainWndCtrl &ctrl)
        : m_ctrl(ctrl)
        , m_firstRow(ctrl.m_fileIndex) {}

    void progressChanged(float value) override {
        m_ctrl.runOnMainThread([ctrl = &m_ctrl, value] { ctrl->showProgress(value); });
    }
    void entryDone(std::size_t index, bool written) override {
        const int row = m_firstRow + static_cast<int>(index);
        m_ctrl.runOnMainThread([ctrl = &m_ctrl, row, written] { ctrl->entryDone(row, written); });
    }
    /// The controller receives the notification on the main thread.
    void endPageWrite(int pageIndex, int /*pageCount*/) override {
        m_ctrl.m_services.notifications.post(NotificationCenter::didEndPageWrite(),
                                             {{NotificationCenter::pageIndexKey(), pageIndex}});
    }

  private:
    MainWndCtrl &m_ctrl;
    int m_firstRow;
};

void MainWndCtrl::startWorker(std::function<void(ConversionObserver &)> work) {
    m_bWorking = true;
    const auto observer = std::make_shared<WorkerObserver>(*this);
    const auto observed = [observer, work = std::move(work)] { work(*observer); };
    try {
        m_worker = std::jthread(observed);
    } catch (const std::system_error &) {
        observed(); // Without a thread the window waits for the work.
    }
}

/// The list does not change during a run.
void MainWndCtrl::setConverting(bool converting) {
    m_bConverting = converting;
    m_history->setLocked(converting);
    m_tableview->commands().refresh();
}

void MainWndCtrl::endRun() {
    setConverting(false);
    const std::optional<Notice> problems = m_run->problems();
    m_answer->show(m_run->summary());
    m_news->end(m_answer->text(), m_window->isActiveWindow());
    m_run.reset();
    m_prgCreate->hide();
    m_lbProgress->hide();
    hideAlertView();
    if (problems) {
        showNotice(*problems);
    }
}

void MainWndCtrl::showAlertView() {
    m_alertWnd->beginSheet();
}

void MainWndCtrl::hideAlertView() {
    m_alertWnd->endSheet();
}

void MainWndCtrl::showFileBeingWritten() {
    m_alertWnd->setFile(printable(QFileInfo(m_destFilePathName).fileName()));
}

void MainWndCtrl::showProgress(float value) {
    m_prgCreate->show();
    m_lbProgress->show();
    m_prgCreate->setValue(qRound(value / kFull * static_cast<float>(m_prgCreate->maximum())));
    m_pdfProgress = value;
    showRunProgress();
}

/// How far the run is. Counted are PDFs in their place, and for a merged one its files.
void MainWndCtrl::showRunProgress() {
    const bool merges = m_run->options().merge;
    const double ofPdf = m_pdfProgress / (m_run->compresses() ? kFull : kPagesShare);
    const int total = m_filesArray->count();
    const bool compresses = m_pdfDoc && m_run->compresses();
    const QString words =
        merges ? (compresses ? tr("%1 of %2 files added, compressing") : tr("%1 of %2 files added"))
               : (compresses ? tr("%1 of %2 done, compressing") : tr("%1 of %2 done"));
    const double share = merges ? ofPdf : (m_fileIndex + ofPdf) / total;
    m_alertWnd->setProgress(words.arg(merges ? m_filesAdded : m_fileIndex).arg(total), share);
    m_news->progress(share);
}

void MainWndCtrl::endPageWrite(int pageIndex) {
    if (m_pdfDoc && m_pdfDoc->pageCount > 0) {
        showProgress(compressionProgress(pageIndex, m_pdfDoc->pageCount));
    }
}

void MainWndCtrl::entryDone(int row, bool written) {
    if (written) {
        m_filesArray->setStateIndex(row, Finished);
    }
    ++m_filesAdded;
    showRunProgress();
}

void MainWndCtrl::showRemarks(const PDFOutcome &outcome) {
    int row = m_fileIndex;
    for (const EntryOutcome &entry : outcome.entries) {
        m_filesArray->setRemarks(row++, entry.remarks());
    }
}

/// Selects the entries that are in no PDF: the others have another state after a run.
void MainWndCtrl::showFailures() {
    m_tableview->clearSelection();
    for (int row = 0; row < m_filesArray->count(); ++row) {
        if (m_filesArray->at(row).stateIndex() == Waiting) {
            const QModelIndex first = m_filesArray->index(row, FilesArray::NumberColumn);
            m_tableview->selectionModel()->select(first, QItemSelectionModel::Select |
                                                             QItemSelectionModel::Rows);
        }
    }
    m_tableview->scrollTo(m_filesArray->index(m_tableview->selectedRow(), 0));
    m_tableview->setFocus();
}

} // namespace folioforge
