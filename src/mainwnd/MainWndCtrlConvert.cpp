#include "mainwnd/MainWndCtrl.h"

namespace folioforge {

void MainWndCtrl::clickBtnCreate() {}
void MainWndCtrl::createSingleFile() {}
void MainWndCtrl::createPDF(const std::vector<int> & /*rows*/) {}
void MainWndCtrl::compress(const QString & /*path*/) {}
void MainWndCtrl::compressCompleted() {}
void MainWndCtrl::endPageWrite(int /*pageIndex*/) {}
void MainWndCtrl::showAlertView() {
    m_alertWnd->beginSheet();
}
void MainWndCtrl::hideAlertView() {
    m_alertWnd->endSheet();
}

} // namespace folioforge
