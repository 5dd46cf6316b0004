#include "app/FolioforgeAppDelegate.h"
#include "convert/Bundle.h"
#include "files/StandardDescriptors.h"
#include "mainwnd/Desktop.h"
#include "mainwnd/Notices.h"
#include "mainwnd/NotificationCenter.h"
#include "pdf/Password.h"
#include "skin/LightLook.h"

#include <QApplication>
#include <QDir>
#include <QSettings>

int main(int argc, char *argv[]) {
    using namespace folioforge;
    fillStandardDescriptors();
    forbidCoreDumps();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Folioforge"));
    QApplication::setDesktopFileName(QStringLiteral("com.vesprin.folioforge"));
    QApplication::setQuitOnLastWindowClosed(
        FolioforgeAppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    applyLightLook(application);

    QSettings settings(QStringLiteral("Vesprin"), QStringLiteral("Folioforge"));
    SystemDesktop desktop;
    Notices notices;
    NotificationCenter notifications;
    FolioforgeAppDelegate delegate(
        {settings, desktop, notices, notifications, QDir::homePath(), applicationBundlePath()},
        makeUpdater());
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
