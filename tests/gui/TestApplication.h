// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "WindowWorld.h"
#include "app/FolioforgeAppDelegate.h"
#include "skin/OptionsDrawer.h"

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

namespace folioforge::test {

/// The application with its menu bar, its window shown; notices are answered at once. PDFs go into
/// the home folder.
struct Application {
    explicit Application(std::unique_ptr<Updater> updater = nullptr)
        : delegate(world.services(), std::move(updater)) {
        world.storeFolder(world.home.path());
        world.notices.answerNoticesAtOnce();
        delegate.applicationDidFinishLaunching();
    }

    QMainWindow &window() { return *delegate.mainWndCtrl().window(); }
    QAction &item(const QString &title) {
        for (const QMenu *menu : window().menuBar()->findChildren<QMenu *>()) {
            for (QAction *action : menu->actions()) {
                if (action->text().remove(u'&') == title) {
                    return *action;
                }
            }
        }
        qFatal("no item %s", qPrintable(title));
    }
    /// Gives the main window the keyboard.
    void activate() {
        window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
    }
    void addTexts(int count) {
        QStringList paths;
        for (int i = 0; i < count; ++i) {
            paths += world.file(QStringLiteral("%1.txt").arg(i));
        }
        delegate.mainWndCtrl().addFiles(paths, -1);
    }
    /// What the output folder holds, which is the home folder.
    [[nodiscard]] QStringList documents() const {
        QStringList paths;
        for (const QFileInfo &file :
             QDir(world.home.path()).entryInfoList({QStringLiteral("*.pdf")})) {
            paths += file.filePath();
        }
        return paths;
    }
    /// Shows the options panel and, in it, the settings that `button` stands for.
    void showSettings(const char *button) {
        QTest::mouseClick(&controlOf<QWidget>(window(), "m_btnExpand"), Qt::LeftButton);
        auto &drawer = controlOf<OptionsDrawer>(window(), "m_optionsDrawer");
        QTRY_COMPARE(drawer.openWidth(), 342);
        QTest::mouseClick(&controlOf<QWidget>(window(), button), Qt::LeftButton);
        activate();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window().windowHandle(), key, modifiers);
    }

    /// Runs the application, in which the user closes the main window; 0 when that ends it.
    int runUntilClosed() {
        QTimer::singleShot(0, &window(), [this] { window().close(); });
        QTimer::singleShot(10000, &window(), [] { QCoreApplication::exit(1); });
        return QApplication::exec();
    }

    WindowWorld world;
    FolioforgeAppDelegate delegate;
};

} // namespace folioforge::test
