// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/MainWndCtrl.h"

#include "mainwnd/FaultMark.h"
#include "mainwnd/Notices.h"
#include "mainwnd/OptionsSlide.h"

namespace folioforge {

void MainWndCtrl::showNotice(const Notice &notice) {
    if (QLineEdit *field = fieldOf(notice.setting)) {
        showField(*field);
        m_faultMark->put(*field, notice.message);
    }
    m_services.notices.showSheet(m_window.get(), notice);
}

bool MainWndCtrl::passes(const std::optional<Notice> &problem) {
    if (problem) {
        showNotice(*problem);
    }
    return !problem;
}

QLineEdit *MainWndCtrl::fieldOf(Setting setting) const {
    switch (setting) {
    case Setting::None:
        return nullptr;
    case Setting::OutputFolder:
        return m_tfOutputFolder;
    case Setting::OutputName:
        return m_tfOutputName;
    case Setting::UserPassword:
        return m_tfUserPassword;
    case Setting::OwnerPassword:
        return m_tfOwnerPassword;
    case Setting::TextWidth:
        return m_tfTextCustomizedPageWidth;
    case Setting::TextHeight:
        return m_tfTextCustomizedPageHeight;
    case Setting::TextTop:
        return m_tfTextPageMarginTop;
    case Setting::TextLeft:
        return m_tfTextPageMarginLeft;
    case Setting::TextBottom:
        return m_tfTextPageMarginBottom;
    case Setting::TextRight:
        return m_tfTextPageMarginRight;
    case Setting::ImageWidth:
        return m_tfImageCustomizedPageWidth;
    case Setting::ImageHeight:
        return m_tfImageCustomizedPageHeight;
    case Setting::ImageTop:
        return m_tfImagePageMarginTop;
    case Setting::ImageLeft:
        return m_tfImagePageMarginLeft;
    case Setting::ImageBottom:
        return m_tfImagePageMarginBottom;
    case Setting::ImageRight:
        return m_tfImagePageMarginRight;
    }
    return nullptr;
}

/// A notice comes over a window that stands still.
void MainWndCtrl::showOptionsAtOnce() {
    const int full = static_cast<int>(OptionsDrawer::kFullWidth);
    if (m_btnElapse->isHidden() || m_optionsDrawer->openWidth() < full) {
        m_optionsSlide->jumpTo(full);
        offerToHideOptions();
    }
}

/// Brings `field` into sight with its part of the options panel, and the keyboard to it.
void MainWndCtrl::showField(QLineEdit &field) {
    for (QWidget *view : {m_textPageSizeView, m_imagePageSizeView, m_securityView}) {
        if (view->isAncestorOf(&field)) {
            showSettingsView(view);
            showOptionsAtOnce();
            m_optionsDrawer->scrollTo(field);
        }
    }
    field.setFocus();
    field.selectAll();
}

} // namespace folioforge
