// SPDX-License-Identifier: Apache-2.0

#include "app/FolioforgeAppDelegate.h"
#include "app/Translations.h"
#include "convert/Bundle.h"
#include "files/ProcessSetup.h"
#include "mainwnd/Desktop.h"
#include "mainwnd/Notices.h"
#include "mainwnd/NotificationCenter.h"
#include "skin/LightLook.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QSettings>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[]) {
    using namespace folioforge;
    prepareProcess();
    forbidCoreDumps();
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Folioforge"_s);
    QApplication::setDesktopFileName(u"com.vesprin.folioforge"_s);
    QApplication::setQuitOnLastWindowClosed(
        FolioforgeAppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    const QString bundle = applicationBundlePath();
    const Translations translations(QLocale::system().uiLanguages(), bundle);
    applyLightLook(application);

    QSettings settings(u"Vesprin"_s, u"Folioforge"_s);
    SystemDesktop desktop;
    Notices notices;
    NotificationCenter notifications;
    FolioforgeAppDelegate delegate(
        {settings, desktop, notices, notifications, QDir::homePath(), bundle}, makeUpdater());
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
