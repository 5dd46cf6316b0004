// SPDX-License-Identifier: Apache-2.0

#include "AccessibilityTree.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusReply>

using namespace Qt::StringLiterals;

namespace folioforge::test {
namespace {

QDBusMessage ask(const QDBusConnection &bus, const AtNode &node, const QString &interface,
                 const QString &method, const QVariantList &arguments = {}) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(node.service, node.path.path(), interface, method);
    call.setArguments(arguments);
    return bus.call(call);
}

QDBusMessage askAtSpi(const QDBusConnection &bus, const AtNode &node, const QString &interface,
                      const QString &method, const QVariantList &arguments = {}) {
    return ask(bus, node, u"org.a11y.atspi."_s + interface, method, arguments);
}

std::vector<AtNode> childrenOf(const QDBusConnection &bus, const AtNode &node) {
    std::vector<AtNode> children;
    const QDBusMessage reply = askAtSpi(bus, node, u"Accessible"_s, u"GetChildren"_s);
    if (reply.type() != QDBusMessage::ReplyMessage) {
        return children;
    }
    const auto argument = reply.arguments().constFirst().value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        AtNode child;
        argument.beginStructure();
        argument >> child.service >> child.path;
        argument.endStructure();
        children.push_back(child);
    }
    argument.endArray();
    return children;
}

QString wordsOf(const QDBusConnection &bus, const AtNode &node, const QString &property) {
    const QDBusReply<QDBusVariant> words =
        ask(bus, node, u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
            {u"org.a11y.atspi.Accessible"_s, property});
    return words.value().variant().toString();
}

quint64 statesOf(const QDBusConnection &bus, const AtNode &node) {
    const QDBusReply<QList<unsigned>> reply = askAtSpi(bus, node, u"Accessible"_s, u"GetState"_s);
    const QList<unsigned> words = reply.value();
    return words.size() == 2 ? quint64(words[1]) << 32U | words[0] : 0;
}

QStringList actionsOf(const QDBusConnection &bus, const AtNode &node) {
    QStringList actions;
    const QDBusMessage reply = askAtSpi(bus, node, u"Action"_s, u"GetActions"_s);
    if (reply.type() != QDBusMessage::ReplyMessage) {
        return actions;
    }
    const auto argument = reply.arguments().constFirst().value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        QString name;
        QString description;
        QString keys;
        argument.beginStructure();
        argument >> name >> description >> keys;
        argument.endStructure();
        actions += name;
    }
    argument.endArray();
    return actions;
}

void collect(const QDBusConnection &bus, const AtNode &node, bool inMenu,
             std::vector<AtNode> &nodes) {
    for (const AtNode &bare : childrenOf(bus, node)) {
        const AtNode child = lookAgain(bus, bare);
        const bool isMenu = inMenu || child.role.startsWith(u"menu"_s);
        if (child.is(AtState::Showing) || isMenu || child.role == u"application"_s) {
            nodes.push_back(child);
            collect(bus, child, isMenu, nodes);
        }
    }
}

} // namespace

AtNode lookAgain(const QDBusConnection &bus, const AtNode &node) {
    AtNode now = node;
    now.name = wordsOf(bus, node, u"Name"_s);
    now.description = wordsOf(bus, node, u"Description"_s);
    now.role = QDBusReply<QString>(askAtSpi(bus, node, u"Accessible"_s, u"GetRoleName"_s)).value();
    now.states = statesOf(bus, node);
    now.actions = actionsOf(bus, node);
    return now;
}

std::vector<AtNode> accessibleNodes(const QDBusConnection &bus) {
    AtNode root;
    root.service = u"org.a11y.atspi.Registry"_s;
    root.path = QDBusObjectPath(u"/org/a11y/atspi/accessible/root"_s);
    std::vector<AtNode> nodes;
    collect(bus, root, false, nodes);
    return nodes;
}

bool act(const QDBusConnection &bus, const AtNode &node, const QString &action) {
    const auto index = actionsOf(bus, node).indexOf(action);
    return index >= 0 &&
           QDBusReply<bool>(askAtSpi(bus, node, u"Action"_s, u"DoAction"_s, {int(index)})).value();
}

} // namespace folioforge::test
