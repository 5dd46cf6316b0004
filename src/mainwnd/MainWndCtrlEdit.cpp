// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/MainWndCtrl.h"

#include "filelist/Orders.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/ListCommands.h"
#include "mainwnd/ListHistory.h"

#include <QAction>
#include <QMenu>

#include <numeric>

namespace folioforge {

void MainWndCtrl::connectHistory() {
    connect(m_history->undoAction(), &QAction::triggered, this, &MainWndCtrl::undo);
    connect(m_history->redoAction(), &QAction::triggered, this, &MainWndCtrl::redo);
    m_window->addActions({m_history->undoAction(), m_history->redoAction()});
}

void MainWndCtrl::fillEditMenu(QMenu &menu) {
    menu.addActions({m_history->undoAction(), m_history->redoAction()});
    menu.addSeparator();
    m_tableview->commands().addTo(menu);
}

void MainWndCtrl::undo() {
    goThroughHistory(&ListHistory::undo);
}

void MainWndCtrl::redo() {
    goThroughHistory(&ListHistory::redo);
}

/// The name of the merged PDF goes with the list: hasFileOpened() empties it with the list, and it
/// comes back with the list unless another was typed.
void MainWndCtrl::goThroughHistory(QString (ListHistory::*step)(const QString &)) {
    if (!canEditList()) {
        return;
    }
    const bool wasEmpty = m_filesArray->isEmpty();
    const QString name = (m_history.get()->*step)(m_tfOutputName->text());
    reindexFiles();
    hasFileOpened(!m_filesArray->isEmpty());
    if (wasEmpty && m_tfOutputName->text().isEmpty()) {
        m_tfOutputName->setText(name);
    }
    m_tableview->setFocus();
    m_tableview->scrollTo(m_filesArray->index(m_tableview->selectedRow(), FilesArray::NameColumn));
}

void MainWndCtrl::remove(ListCommand command, std::vector<int> rows) {
    m_history->remove(ListCommands::title(command), std::move(rows), m_tfOutputName->text());
}

void MainWndCtrl::clickBtnRemove() {
    if (!canEditList()) {
        return;
    }
    remove(ListCommand::Remove, m_filesArray->selectedRows());
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
    std::vector<int> all(std::size_t(m_filesArray->count()));
    std::iota(all.begin(), all.end(), 0);
    remove(ListCommand::Clear, std::move(all));
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
    resort(ListCommand::SortByName, SortOrder::Name);
}

void MainWndCtrl::clickMenuResortBySize() {
    resort(ListCommand::SortBySize, SortOrder::Size);
}

void MainWndCtrl::clickMenuResortByDataCreated() {
    resort(ListCommand::SortByCreated, SortOrder::Created);
}

void MainWndCtrl::clickMenuResortByDataModified() {
    resort(ListCommand::SortByModified, SortOrder::Modified);
}

void MainWndCtrl::resort(ListCommand command, SortOrder order) {
    if (!canEditList()) {
        return;
    }
    m_history->rearrange(ListCommands::title(command),
                         arrangedOrder(m_filesArray->arrangedObjects(), order));
    reindexFiles();
}

void MainWndCtrl::clickMenuMoveUp() {
    if (canEditList() && canMoveUp()) {
        exchangeWithRow(ListCommand::MoveUp, m_tableview->selectedRow() - 1);
    }
}

void MainWndCtrl::clickMenuMoveDown() {
    if (canEditList() && canMoveDown()) {
        exchangeWithRow(ListCommand::MoveDown, m_tableview->selectedRow() + 1);
    }
}

/// Puts the selected entry at the neighbouring `row`; the two exchange their numbers.
void MainWndCtrl::exchangeWithRow(ListCommand command, int row) {
    const int selected = m_tableview->selectedRow();
    const int step = row - selected;
    m_filesArray->setIndex(selected, m_filesArray->at(selected).index() + step);
    m_filesArray->setIndex(row, m_filesArray->at(row).index() - step);
    m_history->move(ListCommands::title(command), selected, row);
    m_tableview->scrollTo(m_filesArray->index(row, FilesArray::NameColumn));
}

} // namespace folioforge
