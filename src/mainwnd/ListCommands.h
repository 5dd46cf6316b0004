// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>

#include <vector>

class QAction;
class QItemSelectionModel;
class QKeyEvent;
class QMenu;

namespace folioforge {

class SkinTableView;
class SkinTableViewDelegate;

enum class ListCommand {
    SelectAll,
    Remove,
    Clear,
    SortByName,
    SortBySize,
    SortByCreated,
    SortByModified,
    MoveUp,
    MoveDown
};

/// What can be done with the list: its commands with their keys, in the Edit menu and in the
/// context menu. The keys work while the table has the keyboard, since elsewhere they mean
/// something else: Alt+Down opens a combo box. Each command asks the table's delegate whether it is
/// possible.
class ListCommands : public QObject {
    Q_OBJECT

  public:
    /// `table` owns it.
    explicit ListCommands(SkinTableView &table);

    /// The title of `command` in menus.
    static QString title(ListCommand command);

    void setDelegate(const SkinTableViewDelegate *delegate);
    /// Keeps what is possible in step with `selection` and its model.
    void follow(const QItemSelectionModel &selection);
    /// To be called when the delegate may answer otherwise, as when a run begins and ends.
    void refresh();

    /// Puts all commands into `menu`.
    void addTo(QMenu &menu) const;
    /// The context menu of the moment, which goes when it closes.
    [[nodiscard]] QMenu *makeContextMenu();
    /// Whether `event` is a key of a command, possible or not.
    [[nodiscard]] bool claims(const QKeyEvent &event) const;

  private:
    void addCommand(ListCommand command);
    [[nodiscard]] bool isPossible(ListCommand command) const;
    [[nodiscard]] bool hasWhatItNeeds(ListCommand command) const;

    SkinTableView &m_table;
    const SkinTableViewDelegate *m_delegate = nullptr;
    std::vector<QAction *> m_actions; ///< Children, in the order of ListCommand.
};

} // namespace folioforge
