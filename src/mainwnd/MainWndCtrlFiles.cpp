// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/MainWndCtrl.h"

#include "filelist/EntryReader.h"
#include "filelist/FileKind.h"
#include "filelist/SourceFiles.h"
#include "files/PathNames.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/ListHistory.h"
#include "mainwnd/Notices.h"
#include "mainwnd/WindowMemory.h"

#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>

#include <optional>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// The extensions of every kind, in the order in which panels list them.
QStringList recognisedExtensions() {
    return extensionsOf(FileKind::Text) + extensionsOf(FileKind::Image) +
           extensionsOf(FileKind::Pdf);
}

/// The chosen files, and for a chosen folder the files that it holds.
QStringList filesOf(const QStringList &chosen, ReadableLinks &readableLinks) {
    QStringList files;
    for (const QString &path : readableLinks.pathsForReadable(chosen)) {
        const QFileInfo info(path);
        if (info.isDir()) {
            addDirectorie(path, files, readableLinks);
        } else if (info.exists()) {
            files += path;
        }
    }
    return files;
}

/// The path of the file that `url` names; in bytes, as names need not be text.
QByteArray fileOf(const QUrl &url) {
    const QString path = url.toLocalFile();
    return path.contains(QChar::ReplacementCharacter)
               ? QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1())
               : QFile::encodeName(path);
}

/// The local files of a drag; nothing when it carries no URLs.
std::optional<QByteArrayList> draggedPaths(const QMimeData &data) {
    if (!data.hasUrls()) {
        return std::nullopt;
    }
    QByteArrayList paths;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile()) {
            paths += fileOf(url);
        }
    }
    return paths;
}

/// A bad PDF stays out of the list; any other file with a problem enters it.
bool isBadPdf(const ReadEntry &read) {
    return !read.problem.isEmpty() && read.entry.kind() == FileKind::Pdf;
}

bool isDroppable(const QString &path) {
    const QFileInfo info(path);
    return info.exists() && !info.isDir() && isListed(fileKind(path));
}

} // namespace

void MainWndCtrl::clickBtnAddFile() {
    addFromPanel(u"Files"_s, {tr("Add Files"),
                              {},
                              FilePanel::Chooses::FilesAndFolders,
                              true,
                              recognisedExtensions(),
                              {}});
}

void MainWndCtrl::clickBtnAddFolder() {
    addFromPanel(u"Folders"_s, {tr("Add Folders"),
                                {},
                                FilePanel::Chooses::Folders,
                                true,
                                recognisedExtensions(),
                                documentsFolder()});
    hasFileOpened(!m_filesArray->isEmpty());
}

void MainWndCtrl::clickBtnAddImage() {
    addKindFromPanel(u"Images"_s, tr("Add Images"), FileKind::Image);
}

void MainWndCtrl::clickBtnAddTxt() {
    addKindFromPanel(u"Text"_s, tr("Add Text Files"), FileKind::Text);
}

void MainWndCtrl::clickBtnAddPDF() {
    addKindFromPanel(u"PDF"_s, tr("Add PDF Files"), FileKind::Pdf);
}

QString MainWndCtrl::documentsFolder() const {
    return m_services.homeFolder + u"/Documents"_s;
}

/// Shows `panel` in the folder where the panel called `name` was last.
void MainWndCtrl::showAddPanel(const QString &name, FilePanel panel, Notices::Chosen chosen) {
    panel.startFolder = m_memory->panelFolder(name, panel.startFolder);
    m_services.notices.showFilePanel(
        m_window.get(), panel, [this, name, chosen = std::move(chosen)](const QStringList &paths) {
            if (!paths.isEmpty()) {
                m_memory->keepPanelFolder(name, QFileInfo(paths.first()).absolutePath());
                chosen(paths);
            }
        });
}

void MainWndCtrl::addFromPanel(const QString &name, const FilePanel &panel) {
    showAddPanel(name, panel, [this](const QStringList &chosen) {
        addFiles(filesOf(chosen, m_readableLinks), -1);
    });
}

void MainWndCtrl::addKindFromPanel(const QString &name, const QString &title, FileKind kind) {
    const FilePanel panel{
        title, {}, FilePanel::Chooses::Files, true, extensionsOf(kind), documentsFolder()};
    showAddPanel(name, panel, [this](const QStringList &chosen) {
        addFiles(m_readableLinks.pathsForReadable(chosen), -1);
    });
}

void MainWndCtrl::addFiles(const QStringList &paths, int row) {
    if (!canEditList()) {
        return;
    }
    std::vector<PDFFileInfo> entries;
    QStringList badFiles;
    for (ReadEntry &read : readEntries(paths, SourceReading::WhenListed)) {
        if (isBadPdf(read)) {
            badFiles += read.entry.filePathName();
        } else {
            entries.push_back(std::move(read.entry));
        }
    }
    const QString firstName = entries.empty() ? QString() : entries.front().fileName();
    if (!entries.empty()) {
        m_tableview->setFocus(); // The keys of the list work at once.
    }
    insertEntries(std::move(entries), row);

    if (!m_filesArray->isEmpty()) {
        hasFileOpened(true);
    }
    if (!badFiles.isEmpty()) {
        QTimer::singleShot(0, this, [this, badFiles] { showBadFiles(badFiles); });
    }
    if (m_tfOutputName->text().isEmpty()) {
        m_tfOutputName->setText(withoutExtension(firstName));
    }
}

/// Numbers the new entries as if they were appended; reindexFiles() corrects that elsewhere.
void MainWndCtrl::insertEntries(std::vector<PDFFileInfo> entries, int row) {
    int index = m_filesArray->count();
    for (PDFFileInfo &entry : entries) {
        entry.setIndex(++index);
    }
    m_history->insert(tr("Add"), row, std::move(entries));
}

void MainWndCtrl::reindexFiles() {
    m_filesArray->reindex();
}

void MainWndCtrl::hasFileOpened(bool opened) {
    m_btnCreate->setEnabled(opened);
    m_btnRemove->setEnabled(opened);
    if (!opened) {
        m_tfOutputName->clear();
    }
    EnableSettings(opened);
    if (m_delegate) {
        m_delegate->hasFileOpened(opened);
    }
}

void MainWndCtrl::showBadFiles(const QStringList &paths) {
    if (!paths.isEmpty()) {
        showNotice(badFilesNotice(paths));
    }
}

bool MainWndCtrl::acceptDrop(const QMimeData &data, int row) {
    const std::optional<QByteArrayList> dragged = draggedPaths(data);
    if (!dragged) {
        return true;
    }
    return addDropped(*dragged, row).size() < dragged->size();
}

QByteArrayList MainWndCtrl::addDropped(const QByteArrayList &paths, int row) {
    if (!canEditList()) {
        return paths;
    }
    QStringList files;
    QByteArrayList others;
    for (const QByteArray &path : paths) {
        const QString readable = m_readableLinks.pathFor(path);
        if (isDroppable(readable)) {
            files += readable;
        } else {
            others += path;
        }
    }
    if (!files.isEmpty()) {
        addFiles(files, row);
        reindexFiles();
    }
    return others;
}

} // namespace folioforge
