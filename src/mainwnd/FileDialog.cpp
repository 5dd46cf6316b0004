// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/FileDialog.h"

#include "mainwnd/Notices.h"

#include <QAbstractItemView>
#include <QFileDialog>

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

QString nameFilter(const QStringList &extensions) {
    if (extensions.isEmpty()) {
        return {};
    }
    QStringList patterns;
    for (const QString &extension : extensions) {
        patterns << u"*."_s + extension;
    }
    return QFileDialog::tr("Files (%1)").arg(patterns.join(u' '));
}

/// Qt's panel selects one folder only, though it can return several.
void letSeveralBeMarked(const QFileDialog &dialog) {
    for (const char *view : {"listView", "treeView"}) {
        if (auto *list = dialog.findChild<QAbstractItemView *>(QLatin1StringView(view))) {
            list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        }
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
    // Only Qt's own panel can choose files and folders at once, or several folders.
    if (panel.chooses == Chooses::FilesAndFolders ||
        (panel.chooses == Chooses::Folders && panel.multiple)) {
        dialog->setOption(QFileDialog::DontUseNativeDialog);
    }
    if (panel.chooses == Chooses::Folders) {
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        if (panel.multiple) {
            letSeveralBeMarked(*dialog);
        }
    } else {
        dialog->setFileMode(panel.multiple ? QFileDialog::ExistingFiles
                                           : QFileDialog::ExistingFile);
        if (const QString filter = nameFilter(panel.extensions); !filter.isEmpty()) {
            dialog->setNameFilter(filter);
        }
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
