#pragma once

#include "TestWindow.h"

#include "app/FolioforgeAppDelegate.h"

#include <QFileInfo>

namespace folioforge::test {

/// A home folder of its own with a settings file and everything a window asks for, before any
/// window is loaded.
struct WindowWorld {
    /// The bundle of this build, with the real skins.
    static QString realBundle() { return QStringLiteral(FOLIOFORGE_BUNDLE_PATH); }

    [[nodiscard]] QString homePath(const QString &name) const { return home.filePath(name); }
    [[nodiscard]] QString storedFolder() const {
        return settings.value(QStringLiteral("CustomizeOutputDir")).toString();
    }
    void storeFolder(const QString &folder) {
        settings.setValue(QStringLiteral("CustomizeOutputDir"), folder);
    }
    [[nodiscard]] Surroundings surroundings() {
        return {settings, desktop, notices, notifications, home.path(), realBundle()};
    }

    QTemporaryDir home;
    QSettings settings{home.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};
    RecordingDesktop desktop;
    Notices notices;
    NotificationCenter notifications;
};

/// The control `name` of `window`.
template<typename Control> Control &controlOf(const QWidget &window, const char *name) {
    auto *found = window.findChild<Control *>(QString::fromLatin1(name));
    if (!found) {
        qFatal("the window has no %s", name);
    }
    return *found;
}

} // namespace folioforge::test
