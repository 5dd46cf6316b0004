// SPDX-License-Identifier: Apache-2.0

#include "app/FolioforgeAppDelegate.h"
#include "app/Launch.h"
#include "app/Translations.h"
#include "convert/Bundle.h"
#include "files/ProcessSetup.h"
#include "mainwnd/Desktop.h"
#include "mainwnd/Notices.h"
#include "mainwnd/NotificationCenter.h"
#include "skin/LightLook.h"

#include <QApplication>
#include <QByteArrayList>
#include <QDir>
#include <QLocale>
#include <QSettings>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QByteArrayList wordsOf(int argc, char *argv[]) {
    return QByteArrayList(argv + std::min(argc, 1), argv + argc); // Without a name there are none.
}

} // namespace

int main(int argc, char *argv[]) {
    using namespace folioforge;
    prepareProcess();
    forbidCoreDumps();
    if (const auto answer = answerTo(wordsOf(argc, argv))) {
        std::fputs(answer->text.toUtf8().constData(), answer->exitStatus == 0 ? stdout : stderr);
        return answer->exitStatus;
    }
    QApplication application(argc, argv); // It takes Qt's own options out of argv.
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
    delegate.openFiles(filesAmong(wordsOf(argc, argv)));
    return QApplication::exec();
}
