// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/FileDialog.h"

#include "filelist/FileKind.h"
#include "mainwnd/Notices.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QScreen>
#include <QSplitter>
#include <QStandardPaths>
#include <QUrl>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// A file panel in which "Open" takes a marked folder rather than entering it.
class FilesAndFoldersDialog : public QFileDialog {
  public:
    using QFileDialog::QFileDialog;

  protected:
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): QFileDialog's own would enter the folder.
    void accept() override { QDialog::accept(); }
};

QString filterOf(const QString &name, const QStringList &extensions) {
    return u"%1 (*.%2)"_s.arg(name, extensions.join(u" *."_s));
}

/// What the panel may show: all that it takes, then each kind where it takes several.
QStringList nameFilters(const QStringList &extensions) {
    const std::array<std::pair<FileKind, QString>, 3> kinds{
        {{FileKind::Text, QCoreApplication::translate("FileDialog", "Text files")},
         {FileKind::Image, QCoreApplication::translate("FileDialog", "Images")},
         {FileKind::Pdf, QCoreApplication::translate("FileDialog", "PDF files")}}};
    QStringList filters;
    for (const auto &[kind, name] : kinds) {
        const QStringList ofKind = extensionsOf(kind);
        if (extensions.contains(ofKind.first())) {
            filters += filterOf(name, ofKind);
        }
    }
    if (filters.size() > 1) {
        filters.prepend(
            filterOf(QCoreApplication::translate("FileDialog", "Text files, images and PDF files"),
                     extensions));
    }
    return filters;
}

/// Qt's panel selects one folder only, though it can return several.
void letSeveralBeMarked(const QFileDialog &dialog) {
    for (const char *view : {"listView", "treeView"}) {
        if (auto *list = dialog.findChild<QAbstractItemView *>(QLatin1StringView(view))) {
            list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        }
    }
}

/// The user's folders that exist, for the side of the panel.
QList<QUrl> usersPlaces() {
    QList<QUrl> places;
    for (const auto place : {QStandardPaths::HomeLocation, QStandardPaths::DesktopLocation,
                             QStandardPaths::DocumentsLocation, QStandardPaths::DownloadLocation,
                             QStandardPaths::PicturesLocation}) {
        const QString folder = QStandardPaths::writableLocation(place);
        const QUrl url = QUrl::fromLocalFile(folder);
        if (QFileInfo(folder).isDir() && !places.contains(url)) {
            places += url;
        }
    }
    places.prepend(QUrl(u"file:"_s)); // All disks.
    return places;
}

/// Gives the side and the names room; by itself Qt shows the side's names cut.
void giveRoom(QFileDialog &dialog, const QWidget *window) {
    constexpr QSize kSize(800, 520);
    constexpr QSize kFrame(40, 80);
    constexpr int kSide = 160;
    const QScreen *screen = (window ? window : &dialog)->screen();
    dialog.resize(kSize.boundedTo(screen->availableSize() - kFrame));
    if (auto *splitter = dialog.findChild<QSplitter *>()) {
        splitter->setSizes({kSide, kSize.width() - kSide});
    }
}

} // namespace

QFileDialog *makeFileDialog(QWidget *window, const FilePanel &panel) {
    using Chooses = FilePanel::Chooses;
    QFileDialog *dialog = panel.chooses == Chooses::FilesAndFolders
                              ? new FilesAndFoldersDialog(window)
                              : new QFileDialog(window);
    dialog->setWindowTitle(panel.title);
    dialog->setOption(QFileDialog::DontResolveSymlinks);
    // Only Qt's own panel can choose files and folders at once, or several folders. The others are
    // Qt's too, so that all look alike.
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setSidebarUrls(usersPlaces());
    giveRoom(*dialog, window);
    if (panel.chooses == Chooses::Folders) {
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        if (panel.multiple) {
            letSeveralBeMarked(*dialog);
        }
    } else {
        dialog->setFileMode(panel.multiple ? QFileDialog::ExistingFiles
                                           : QFileDialog::ExistingFile);
        dialog->setNameFilters(nameFilters(panel.extensions));
    }
    if (!panel.startFolder.isEmpty()) {
        dialog->setDirectory(panel.startFolder);
    }
    if (!panel.acceptLabel.isEmpty()) {
        dialog->setLabelText(QFileDialog::Accept, panel.acceptLabel);
    }
    return dialog;
}

} // namespace folioforge
