#include "mainwnd/Desktop.h"
#include "mainwnd/MainWndCtrl.h"
#include "mainwnd/Notices.h"
#include "mainwnd/NotificationCenter.h"
#include "skin/LightLook.h"

#include <QApplication>
#include <QDir>
#include <QSettings>

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    folioforge::applyLightLook(application);
    QSettings settings(QStringLiteral("Vesprin"), QStringLiteral("Folioforge"));
    folioforge::SystemDesktop desktop;
    folioforge::Notices notices;
    folioforge::NotificationCenter notifications;
    folioforge::MainWndCtrl controller(
        {settings, desktop, notices, notifications, QDir::homePath(),
         QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/../..")).canonicalPath()});
    controller.window()->show();
    return QApplication::exec();
}
