// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/MainWndCtrl.h"

#include "filelist/Orders.h"
#include "mainwnd/FilesArray.h"

namespace folioforge {

void MainWndCtrl::clickBtnRemove() {
    if (!canEditList()) {
        return;
    }
    m_filesArray->removeRowsAt(m_filesArray->selectedRows());
    m_tableview->setFocus();
    if (!m_filesArray->isEmpty()) {
        reindexFiles();
    }
    hasFileOpened(!m_filesArray->isEmpty());
}

void MainWndCtrl::clickBtnClear() {
    if (!canEditList()) {
        return;
    }
    m_filesArray->clear();
    hasFileOpened(false);
}

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
    return m_filesArray->selectedRows().size() == 1 && m_tableview->selectedRow() > 0;
}

bool MainWndCtrl::canMoveDown() const {
    return m_filesArray->selectedRows().size() == 1 &&
           m_tableview->selectedRow() < m_filesArray->count() - 1;
}

void MainWndCtrl::clickMenuRemove() {
    clickBtnRemove();
}

void MainWndCtrl::clickMenuClear() {
    clickBtnClear();
}

void MainWndCtrl::clickMenuResortByName() {
    resort(SortOrder::Name);
}

void MainWndCtrl::clickMenuResortBySize() {
    resort(SortOrder::Size);
}

void MainWndCtrl::clickMenuResortByDataCreated() {
    resort(SortOrder::Created);
}

void MainWndCtrl::clickMenuResortByDataModified() {
    resort(SortOrder::Modified);
}

void MainWndCtrl::resort(SortOrder order) {
    if (!canEditList()) {
        return;
    }
    m_filesArray->rearrange(arrangedOrder(m_filesArray->arrangedObjects(), order));
    reindexFiles();
}

void MainWndCtrl::clickMenuMoveUp() {
    if (canEditList() && canMoveUp()) {
        exchangeWithRow(m_tableview->selectedRow() - 1);
    }
}

void MainWndCtrl::clickMenuMoveDown() {
    if (canEditList() && canMoveDown()) {
        exchangeWithRow(m_tableview->selectedRow() + 1);
    }
}

/// Puts the selected entry at the neighbouring `row`; the two exchange their numbers.
void MainWndCtrl::exchangeWithRow(int row) {
    const int selected = m_tableview->selectedRow();
    const int step = row - selected;
    m_filesArray->setIndex(selected, m_filesArray->at(selected).index() + step);
    m_filesArray->setIndex(row, m_filesArray->at(row).index() - step);
    m_filesArray->move(selected, row);
    m_tableview->scrollTo(m_filesArray->index(row, FilesArray::NameColumn));
}

} // namespace folioforge
