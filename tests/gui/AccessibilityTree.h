// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QString>
#include <QStringList>

#include <vector>

namespace folioforge::test {

/// States by their numbers on the accessibility bus (AT-SPI 2).
enum class AtState : unsigned { Checked = 4, Enabled = 8, Focusable = 11, Showing = 25 };

/// An object of an application as a screen reader gets it.
struct AtNode {
    QString service;
    QDBusObjectPath path;
    QString name;
    QString description;
    QString role; ///< In words, such as "push button".
    quint64 states = 0;
    QStringList actions;

    [[nodiscard]] bool is(AtState state) const {
        return (states >> static_cast<unsigned>(state) & 1U) != 0;
    }
};

/// What the accessibility bus `bus` knows of its applications: each object that can be seen, and of
/// menus all of them, from the top down.
std::vector<AtNode> accessibleNodes(const QDBusConnection &bus);

/// `node` as it stands now.
AtNode lookAgain(const QDBusConnection &bus, const AtNode &node);

/// Does the action called `action`; false where `node` has none of this name.
bool act(const QDBusConnection &bus, const AtNode &node, const QString &action);

} // namespace folioforge::test
