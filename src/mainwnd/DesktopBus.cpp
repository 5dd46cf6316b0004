// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/DesktopBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// Whether the session has a bus. Asking for one that it lacks would start one.
bool hasBus() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s);
}

void sendToDesktop(const QDBusMessage &message) {
    if (hasBus()) {
        QDBusConnection::sessionBus().send(message);
    }
}

} // namespace

void sendNotification(const QString &text) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        u"org.freedesktop.Notifications"_s, u"/org/freedesktop/Notifications"_s,
        u"org.freedesktop.Notifications"_s, u"Notify"_s);
    constexpr uint kReplacesNone = 0;
    constexpr int kDesktopsOwnTime = -1;
    const QVariantMap hints{{u"desktop-entry"_s, QGuiApplication::desktopFileName()}};
    call << QCoreApplication::applicationName() << kReplacesNone << u"folioforge"_s << text
         << QString() << QStringList() << hints << kDesktopsOwnTime;
    sendToDesktop(call);
}

void sendProgress(std::optional<double> share) {
    QDBusMessage signal = QDBusMessage::createSignal(
        u"/com/vesprin/folioforge"_s, u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s);
    signal << u"application://%1.desktop"_s.arg(QGuiApplication::desktopFileName())
           << QVariantMap{{u"progress"_s, share.value_or(0.0)},
                          {u"progress-visible"_s, share.has_value()}};
    sendToDesktop(signal);
}

} // namespace folioforge
