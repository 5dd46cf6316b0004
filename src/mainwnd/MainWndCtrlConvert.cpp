// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/MainWndCtrl.h"

#include "mainwnd/FilesArray.h"
#include "mainwnd/RunNews.h"

#include <utility>

namespace folioforge {

void MainWndCtrl::clickBtnCreate() {
    if (m_bConverting || m_filesArray->isEmpty()) {
        return;
    }
    ConversionOptions options = runOptions();
    if (!checkSettings(options)) {
        return;
    }
    m_stop = std::stop_source();
    m_run.emplace(m_filesArray->entries(), std::move(options), m_services.bundlePath,
                  m_stop.get_token());
    m_fileIndex = 0;
    m_answer->hide();
    m_filesArray->setStateIndexOfAll(Waiting);
    setConverting(true);
    m_news->begin();
    showAlertView();
    createSingleFile();
}

/// The checks of a run in the order of faultsOf(), up to the first that finds something.
bool MainWndCtrl::checkSettings(const ConversionOptions &options) {
    return passes(checkOutputFolder(options.outputFolder)) && checkSecuritySettings() &&
           passes(checkArchive(options)) && checkTextPageSizeSettings() &&
           checkImagePageSizeSettings() && passes(checkMergedFile(options));
}

void MainWndCtrl::createSingleFile() {
    m_destFilePathName = m_run->pathFor(std::size_t(m_fileIndex));
    m_filesAdded = 0;
    showFileBeingWritten();
    showProgress(0);
    createPDF();
}

void MainWndCtrl::createPDF() {
    startWorker([this, first = std::size_t(m_fileIndex),
                 path = m_destFilePathName](ConversionObserver &observer) {
        runOnMainThread(
            [this, outcome = m_run->createPDF(first, path, observer)] { PDFCreated(outcome); });
    });
}

/// An entry whose PDF failed waits again.
void MainWndCtrl::PDFCreated(const PDFOutcome &outcome) {
    m_bWorking = false;
    showRemarks(outcome);
    if (outcome.isWritten()) {
        m_destFilePathName = outcome.close.path;
        m_pdfDoc = PDFDocument{outcome.pages()};
        showProgress(kPagesShare);
        compress(m_destFilePathName);
        return;
    }
    const EntryRange entries = m_run->entriesOf(std::size_t(m_fileIndex));
    for (std::size_t row = entries.first; row < entries.end; ++row) {
        m_filesArray->setStateIndex(static_cast<int>(row), Waiting);
    }
    m_destFilePathName.clear();
    compressCompleted();
    if (outcome.close.status == CloseResult::Status::NameTaken) {
        showNotice(nameExistsNotice()); // Now that the run no longer covers the field.
    }
}

void MainWndCtrl::compress(const QString &path) {
    m_convertInfoDict.reset();
    if (!m_run->compresses()) {
        runOnMainThread([this] { compressCompleted(); });
        return;
    }
    startWorker([this, path, folder = m_temporaryFolder.path()](ConversionObserver &observer) {
        CompressionOutcome outcome =
            m_run->compress(path, folder, observer, m_run->options().flush);
        runOnMainThread([this, convertInfo = std::move(outcome.convertInfo)]() mutable {
            m_bWorking = false;
            m_convertInfoDict = std::move(convertInfo);
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
        m_run->compressCompleted(*m_convertInfoDict);
        m_convertInfoDict.reset();
    }
    if (!m_run->options().merge && !m_destFilePathName.isEmpty()) {
        m_filesArray->setDestFilePathName(m_fileIndex, m_destFilePathName);
        m_filesArray->setStateIndex(m_fileIndex, FinishedAsLink);
    }
    const std::size_t next = m_run->entriesOf(std::size_t(m_fileIndex)).end;
    m_fileIndex = static_cast<int>(next);
    m_run->hasEntry(next) ? createSingleFile() : endRun();
}

} // namespace folioforge
