// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/MainWndCtrl.h"

#include "files/Printable.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/NotificationCenter.h"

#include <QFileInfo>

#include <memory>
#include <numeric>
#include <system_error>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// A compressed copy on its way to the main thread; it is deleted when nobody takes it.
class PendingCopy {
  public:
    explicit PendingCopy(std::optional<ConvertInfo> info)
        : m_info(std::move(info)) {}
    PendingCopy(PendingCopy &&other) noexcept
        : m_info(other.take()) {}
    PendingCopy(const PendingCopy &) = delete;
    PendingCopy &operator=(const PendingCopy &) = delete;
    PendingCopy &operator=(PendingCopy &&) = delete;
    ~PendingCopy() {
        if (m_info) {
            deleteFile(m_info->tempFilePathName);
        }
    }

    std::optional<ConvertInfo> take() noexcept { return std::exchange(m_info, std::nullopt); }

  private:
    std::optional<ConvertInfo> m_info;
};

int pagesOf(const PDFOutcome &outcome) {
    return std::accumulate(outcome.entries.begin(), outcome.entries.end(), 0,
                           [](int sum, const EntryOutcome &entry) { return sum + entry.pages; });
}

QStringList remarksOf(const QString &reason, const Warnings &warnings) {
    QStringList remarks;
    if (!reason.isEmpty()) {
        remarks += reason;
    }
    for (const Warning &warning : warnings) {
        remarks += warning.text;
    }
    return remarks;
}

/// Whether the PDF is missing only because none of its entries gave a page, of which each entry
/// says why.
bool hasNothingToWrite(const PDFOutcome &outcome) {
    return !outcome.entries.empty() && pagesOf(outcome) == 0;
}

} // namespace

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

void MainWndCtrl::clickBtnCreate() {
    if (m_bConverting || m_filesArray->isEmpty()) {
        return;
    }
    ConversionOptions options = conversionOptions();
    if (!checkSettings(options)) {
        return;
    }
    m_stop = std::stop_source();
    m_run.emplace(m_filesArray->entries(), std::move(options), m_services.bundlePath,
                  m_stop.get_token());
    m_fileIndex = 0;
    m_documentWarned = false;
    m_filesArray->setStateIndexOfAll(Waiting);
    m_bConverting = true;
    showAlertView();
    m_run->options().merge ? beginPDF() : createSingleFile();
}

/// The checks of a run in their order, as checkConversion() makes them.
bool MainWndCtrl::checkSettings(const ConversionOptions &options) {
    return passes(checkOutputFolder(options.outputFolder)) && checkSecuritySettings() &&
           checkTextPageSizeSettings() && checkImagePageSizeSettings() &&
           passes(checkMergedFile(options));
}

void MainWndCtrl::createSingleFile() {
    beginPDF();
}

void MainWndCtrl::beginPDF() {
    m_destFilePathName = m_run->pathFor(std::size_t(m_fileIndex));
    showProgress(0);
    m_lbProgress->show();
    showFileBeingWritten(m_fileIndex);
    createPDF();
}

void MainWndCtrl::showFileBeingWritten(int done) {
    m_alertWnd->setFile(printable(QFileInfo(m_destFilePathName).fileName()), done,
                        m_filesArray->count());
}

void MainWndCtrl::showProgress(float value) {
    m_prgCreate->show();
    constexpr float kFull = 100;
    m_prgCreate->setValue(qRound(value / kFull * static_cast<float>(m_prgCreate->maximum())));
}

void MainWndCtrl::createPDF() {
    startWorker([this, first = std::size_t(m_fileIndex), path = m_destFilePathName] {
        WorkerObserver observer(*this);
        runOnMainThread(
            [this, outcome = m_run->createPDF(first, path, observer)] { PDFCreated(outcome); });
    });
}

void MainWndCtrl::entryDone(int row, bool written) {
    if (written) {
        m_filesArray->setStateIndex(row, Finished);
    }
    showFileBeingWritten(row + 1);
}

/// An entry whose PDF failed waits again.
void MainWndCtrl::PDFCreated(const PDFOutcome &outcome) {
    m_bWorking = false;
    showRemarks(outcome);
    if (outcome.close.status == CloseResult::Status::Failed && !hasNothingToWrite(outcome)) {
        noteProblem(outcome.close.reason);
    }
    m_destFilePathName = outcome.close.path;
    if (outcome.close.status == CloseResult::Status::Written) {
        m_pdfDoc = PDFDocument{pagesOf(outcome)};
        compress(m_destFilePathName);
        return;
    }
    if (m_run->options().merge) {
        m_filesArray->setStateIndexOfAll(Waiting);
    } else {
        m_filesArray->setStateIndex(m_fileIndex, Waiting);
    }
    if (outcome.close.status == CloseResult::Status::NameTaken) {
        showNotice(nameExistsNotice());
    }
    m_destFilePathName.clear();
    compressCompleted();
}

/// What the file system does not do is the same for every PDF, and said of the first.
void MainWndCtrl::showRemarks(const PDFOutcome &outcome) {
    int row = m_fileIndex;
    for (const EntryOutcome &entry : outcome.entries) {
        QStringList remarks = remarksOf(entry.reason, entry.warnings);
        if (!m_documentWarned) {
            remarks += remarksOf({}, outcome.close.warnings);
            m_documentWarned = !outcome.close.warnings.empty();
        }
        m_filesArray->setRemarks(row++, remarks);
    }
}

/// Keeps what is to be said of the PDF being written for the end of the run.
void MainWndCtrl::noteProblem(const QString &problem) {
    const qsizetype folder = m_run->options().outputFolder.size() + 1;
    m_problems += u"    %1: %2"_s.arg(printable(m_destFilePathName.sliced(folder)), problem);
}

void MainWndCtrl::compress(const QString &path) {
    m_convertInfoDict.reset();
    if (!m_run->compresses()) {
        runOnMainThread([this] { compressCompleted(); });
        return;
    }
    startWorker([this, path, folder = m_temporaryFolder.path()] {
        WorkerObserver observer(*this);
        CompressionOutcome outcome =
            m_run->compress(path, folder, observer, m_run->options().flush);
        PendingCopy copy(std::move(outcome.convertInfo));
        runOnMainThread([this, copy = std::move(copy), problem = outcome.error]() mutable {
            m_bWorking = false;
            if (!problem.isEmpty()) {
                noteProblem(u"not compressed: "_s + problem);
            }
            m_convertInfoDict = copy.take();
            compressCompleted();
        });
    });
}

void MainWndCtrl::compressCompleted() {
    // Other senders may post the notification while a file is still being written.
    if (!m_bConverting || m_bWorking) {
        return;
    }
    m_pdfDoc.reset();
    if (m_convertInfoDict) {
        const QString problem = folioforge::compressCompleted(*m_convertInfoDict);
        if (!problem.isEmpty()) {
            noteProblem(problem);
        }
        m_convertInfoDict.reset();
    }
    if (m_run->options().merge) {
        endRun();
        return;
    }
    if (!m_destFilePathName.isEmpty()) {
        m_filesArray->setDestFilePathName(m_fileIndex, m_destFilePathName);
        m_filesArray->setStateIndex(m_fileIndex, FinishedAsLink);
    }
    ++m_fileIndex;
    if (m_fileIndex < m_filesArray->count()) {
        createSingleFile();
    } else {
        endRun();
    }
}

void MainWndCtrl::endRun() {
    m_bConverting = false;
    m_run.reset();
    m_prgCreate->hide();
    m_lbProgress->hide();
    hideAlertView();
    if (!m_problems.isEmpty()) {
        showNotice(notice(u"Something went wrong with these PDF documents:\r\n"_s +
                          m_problems.join(u"\r\n"_s)));
        m_problems.clear();
    }
}

void MainWndCtrl::endPageWrite(int pageIndex) {
    if (m_pdfDoc && m_pdfDoc->pageCount > 0) {
        showProgress(compressionProgress(pageIndex, m_pdfDoc->pageCount));
    }
}

void MainWndCtrl::startWorker(std::function<void()> work) {
    m_bWorking = true;
    const auto shared = std::make_shared<decltype(work)>(std::move(work));
    try {
        m_worker = std::jthread([shared] { (*shared)(); });
    } catch (const std::system_error &) {
        (*shared)(); // Without a thread the window waits for the work.
    }
}

void MainWndCtrl::showAlertView() {
    m_alertWnd->beginSheet();
}

void MainWndCtrl::hideAlertView() {
    m_alertWnd->endSheet();
}

} // namespace folioforge
