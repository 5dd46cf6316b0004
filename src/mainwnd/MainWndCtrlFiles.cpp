#include "mainwnd/MainWndCtrl.h"

#include "mainwnd/FilesArray.h"

namespace folioforge {

void MainWndCtrl::clickBtnAddFile() {}
void MainWndCtrl::clickBtnAddFolder() {}
void MainWndCtrl::clickBtnAddImage() {}
void MainWndCtrl::clickBtnAddTxt() {}
void MainWndCtrl::clickBtnAddPDF() {}
void MainWndCtrl::addFiles(const QStringList & /*paths*/, int /*row*/) {}
void MainWndCtrl::reindexFiles() {}
void MainWndCtrl::hasFileOpened(bool opened) {
    m_btnCreate->setEnabled(opened);
    m_btnRemove->setEnabled(opened);
    EnableSettings(opened);
    if (m_delegate) {
        m_delegate->hasFileOpened(opened);
    }
}
void MainWndCtrl::showBadFiles(const QStringList & /*paths*/) {}
void MainWndCtrl::clickBtnRemove() {}
void MainWndCtrl::clickBtnClear() {}
bool MainWndCtrl::canEditList() const {
    return !m_bConverting;
}
bool MainWndCtrl::canRemoveClear() const {
    return !m_filesArray->isEmpty();
}
bool MainWndCtrl::canResort() const {
    return m_filesArray->count() > 1;
}
bool MainWndCtrl::canMoveUp() const {
    return false;
}
bool MainWndCtrl::canMoveDown() const {
    return false;
}
void MainWndCtrl::clickMenuRemove() {}
void MainWndCtrl::clickMenuClear() {}
void MainWndCtrl::clickMenuResortByName() {}
void MainWndCtrl::clickMenuResortBySize() {}
void MainWndCtrl::clickMenuResortByDataCreated() {}
void MainWndCtrl::clickMenuResortByDataModified() {}
void MainWndCtrl::clickMenuMoveUp() {}
void MainWndCtrl::clickMenuMoveDown() {}
bool MainWndCtrl::acceptDrop(const QMimeData & /*data*/, int /*row*/) {
    return false;
}

} // namespace folioforge
