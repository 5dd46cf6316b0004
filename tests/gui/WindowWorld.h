// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "mainwnd/Desktop.h"
#include "mainwnd/Notices.h"
#include "mainwnd/NotificationCenter.h"
#include "mainwnd/WindowServices.h"
#include "support/Files.h"
#include "support/Places.h"

#include <QAbstractButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QWidget>

namespace folioforge::test {

/// Writes down what it is asked to open.
class RecordingDesktop : public Desktop {
  public:
    void runInShell(const QByteArray &command) override { commands += command; }
    void openURL(const QUrl &url) override { urls += url; }
    void openFile(const QString &path) override { files += path; }
    void notify(const QString &text) override { notifications += text; }
    void showProgress(std::optional<double> share) override { progress += share.value_or(-1); }

    QList<QByteArray> commands;
    QList<QUrl> urls;
    QStringList files;
    QStringList notifications;
    QList<double> progress; ///< -1 where it went.
};

/// A home folder of its own with a settings file and everything a window asks for, before any
/// window is loaded.
struct WindowWorld {
    /// The bundle of this build, with the real skins.
    static QString realBundle() { return bundlePath(); }

    /// A path in the home folder.
    [[nodiscard]] QString path(const QString &name) const { return home.filePath(name); }
    /// Writes a file into the home folder; its path.
    QString file(const QString &name, const QByteArray &bytes = "text\n") const {
        return writeFile(path(name), bytes);
    }
    [[nodiscard]] QString storedFolder() const {
        return settings.value(QStringLiteral("CustomizeOutputDir")).toString();
    }
    void storeFolder(const QString &folder) {
        settings.setValue(QStringLiteral("CustomizeOutputDir"), folder);
    }
    [[nodiscard]] WindowServices services(const QString &bundle = realBundle()) {
        return {settings, desktop, notices, notifications, home.path(), bundle};
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

/// A click on a check box or radio button, whose own ground is larger than what it shows.
inline void tick(QAbstractButton &box) {
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
}

} // namespace folioforge::test
