// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/MainWndCtrl.h"

#include "convert/Checks.h"
#include "mainwnd/FaultMark.h"
#include "mainwnd/Notices.h"
#include "mainwnd/OptionsSlide.h"

#include <algorithm>

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

/// Whether one of the checks still speaks of `field`.
bool MainWndCtrl::hasFault(const QLineEdit &field) const {
    const auto faults = faultsOf(conversionOptions());
    return std::ranges::any_of(
        faults, [&](const Notice &fault) { return fieldOf(fault.setting) == &field; });
}

/// What is wrong with a field may be mended in another one, as margins that leave no room.
void MainWndCtrl::connectFaults() {
    for (const auto *field : m_window->findChildren<QLineEdit *>()) {
        connect(field, &QLineEdit::textChanged, this, &MainWndCtrl::reviewFault);
    }
    for (const QButtonGroup *matrix : {m_mtxTextPageSizeMode, m_mtxImagePageSizeMode}) {
        connect(matrix, &QButtonGroup::buttonToggled, this, &MainWndCtrl::reviewFault);
    }
    for (const QCheckBox *box : {m_btnArchive, m_btnCheckUserPassword, m_btnCheckOwnerPassword}) {
        connect(box, &QCheckBox::toggled, this, &MainWndCtrl::reviewFault);
    }
}

void MainWndCtrl::reviewFault() {
    if (const QLineEdit *field = m_faultMark->field(); field && !hasFault(*field)) {
        m_faultMark->clear();
    }
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
