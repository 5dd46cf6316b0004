// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/ListCommands.h"

#include "mainwnd/SkinTableView.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>
#include <array>
#include <functional>

namespace folioforge {
namespace {

using Delegate = SkinTableViewDelegate;

struct ListCommandRow {
    const char *title;
    const char *impossibleTitle; ///< In the context menu.
    bool (Delegate::*isPossible)() const;
    void (SkinTableView::*run)();
};

const ListCommandRow &rowOf(ListCommand command) {
    using Table = SkinTableView;
    static const std::array<ListCommandRow, 9> rows{{
        {QT_TRANSLATE_NOOP("ListCommands", "Select All"), nullptr, &Delegate::canRemoveClear,
         &Table::selectAll},
        {QT_TRANSLATE_NOOP("ListCommands", "Remove"), nullptr, &Delegate::canRemoveClear,
         &Table::clickMenuRemove},
        {QT_TRANSLATE_NOOP("ListCommands", "Clear"), nullptr, &Delegate::canRemoveClear,
         &Table::clickMenuClear},
        {QT_TRANSLATE_NOOP("ListCommands", "Sort By Name"),
         QT_TRANSLATE_NOOP("ListCommands", "Resort By Name"), &Delegate::canResort,
         &Table::clickMenuResortByName},
        {QT_TRANSLATE_NOOP("ListCommands", "Sort By Size"),
         QT_TRANSLATE_NOOP("ListCommands", "Resort By Size"), &Delegate::canResort,
         &Table::clickMenuResortBySize},
        {QT_TRANSLATE_NOOP("ListCommands", "Sort By Data Created"), nullptr, &Delegate::canResort,
         &Table::clickMenuResortByDataCreated},
        {QT_TRANSLATE_NOOP("ListCommands", "Sort By Data Modified"), nullptr, &Delegate::canResort,
         &Table::clickMenuResortByDataModified},
        {QT_TRANSLATE_NOOP("ListCommands", "Move Up"), nullptr, &Delegate::canMoveUp,
         &Table::clickMenuMoveUp},
        {QT_TRANSLATE_NOOP("ListCommands", "Move Down"), nullptr, &Delegate::canMoveDown,
         &Table::clickMenuMoveDown},
    }};
    return rows.at(static_cast<std::size_t>(command));
}

QString translated(const char *title) {
    return QCoreApplication::translate("ListCommands", title);
}

QList<QKeySequence> keysOf(ListCommand command) {
    switch (command) {
    case ListCommand::SelectAll:
        return QKeySequence::keyBindings(QKeySequence::SelectAll);
    case ListCommand::Remove:
        return QKeySequence::keyBindings(QKeySequence::Delete);
    case ListCommand::Clear:
        return {Qt::CTRL | Qt::Key_Delete};
    case ListCommand::SortByName:
        return {Qt::CTRL | Qt::Key_1};
    case ListCommand::SortBySize:
        return {Qt::CTRL | Qt::Key_2};
    case ListCommand::SortByCreated:
        return {Qt::CTRL | Qt::Key_3};
    case ListCommand::SortByModified:
        return {Qt::CTRL | Qt::Key_4};
    case ListCommand::MoveUp:
        return {Qt::ALT | Qt::Key_Up};
    case ListCommand::MoveDown:
        return {Qt::ALT | Qt::Key_Down};
    }
    return {};
}

bool beginsGroup(ListCommand command) {
    return command == ListCommand::SortByName || command == ListCommand::MoveUp;
}

} // namespace

ListCommands::ListCommands(SkinTableView &table)
    : QObject(&table)
    , m_table(table) {
    for (int i = 0; i <= static_cast<int>(ListCommand::MoveDown); ++i) {
        addCommand(static_cast<ListCommand>(i));
    }
}

void ListCommands::addCommand(ListCommand command) {
    auto *action = new QAction(title(command), this);
    action->setShortcuts(keysOf(command));
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, [this, command] {
        if (isPossible(command)) {
            std::invoke(rowOf(command).run, m_table);
        }
    });
    m_actions.push_back(action);
    m_table.addAction(action);
}

QString ListCommands::title(ListCommand command) {
    return translated(rowOf(command).title);
}

void ListCommands::setDelegate(const SkinTableViewDelegate *delegate) {
    m_delegate = delegate;
    refresh();
}

bool ListCommands::isPossible(ListCommand command) const {
    return m_delegate && m_delegate->canEditList() && (m_delegate->*rowOf(command).isPossible)();
}

void ListCommands::follow(const QItemSelectionModel &selection) {
    connect(&selection, &QItemSelectionModel::selectionChanged, this, &ListCommands::refresh);
    const QAbstractItemModel *files = selection.model();
    for (const auto change :
         {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(files, change, this, &ListCommands::refresh, Qt::UniqueConnection);
    }
    connect(files, &QAbstractItemModel::rowsMoved, this, &ListCommands::refresh,
            Qt::UniqueConnection);
    connect(files, &QAbstractItemModel::layoutChanged, this, &ListCommands::refresh,
            Qt::UniqueConnection);
    refresh();
}

/// For the Edit menu, which is looked at with nothing selected as often as not.
bool ListCommands::hasWhatItNeeds(ListCommand command) const {
    const QItemSelectionModel *selection = m_table.selectionModel();
    return command != ListCommand::Remove || (selection && selection->hasSelection());
}

void ListCommands::refresh() {
    for (std::size_t i = 0; i < m_actions.size(); ++i) {
        const auto command = static_cast<ListCommand>(i);
        m_actions[i]->setEnabled(isPossible(command) && hasWhatItNeeds(command));
    }
}

void ListCommands::addTo(QMenu &menu) const {
    for (std::size_t i = 0; i < m_actions.size(); ++i) {
        if (beginsGroup(static_cast<ListCommand>(i))) {
            menu.addSeparator();
        }
        menu.addAction(m_actions[i]);
    }
}

QMenu *ListCommands::makeContextMenu() {
    auto *menu = new QMenu(tr("Contextual Menu"), &m_table);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (auto i = static_cast<int>(ListCommand::Remove);
         i <= static_cast<int>(ListCommand::MoveDown); ++i) {
        const auto command = static_cast<ListCommand>(i);
        const ListCommandRow &row = rowOf(command);
        if (beginsGroup(command)) {
            menu->addSeparator();
        }
        const bool isOther = row.impossibleTitle && !(m_delegate->*row.isPossible)();
        QAction *item = menu->addAction(translated(isOther ? row.impossibleTitle : row.title),
                                        &m_table, row.run);
        item->setEnabled(isPossible(command));
    }
    return menu;
}

bool ListCommands::claims(const QKeyEvent &event) const {
    const QKeySequence key(event.keyCombination());
    return std::ranges::any_of(
        m_actions, [&](const QAction *action) { return action->shortcuts().contains(key); });
}

} // namespace folioforge
