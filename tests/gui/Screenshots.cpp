// SPDX-License-Identifier: Apache-2.0

// Takes the pictures of the window that the documentation shows.
//
//   screenshots FOLDER SUFFIX EXAMPLE...   writes FOLDER/<picture>SUFFIX.png

#include "OffscreenScreen.h"
#include "mainwnd/Desktop.h"
#include "mainwnd/MainWndCtrl.h"
#include "mainwnd/Notices.h"
#include "mainwnd/NotificationCenter.h"
#include "skin/BusySheet.h"
#include "skin/LightLook.h"
#include "support/Places.h"

#include <QApplication>
#include <QDir>
#include <QProgressBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <utility>

namespace {

using namespace Qt::StringLiterals;
using namespace folioforge;

/// A desktop that does nothing: taking pictures opens no pages.
class StillDesktop : public Desktop {
  public:
    void runInShell(const QByteArray & /*command*/) override {}
    void openURL(const QUrl & /*url*/) override {}
    void openFile(const QString & /*path*/) override {}
    void notify(const QString & /*text*/) override {}
    void showProgress(std::optional<double> /*share*/) override {}
};

class Photographer {
  public:
    Photographer(QMainWindow &window, QString folder, QString suffix)
        : m_window(window)
        , m_folder(std::move(folder))
        , m_suffix(std::move(suffix)) {}

    void take(const QString &name) {
        QTest::qWait(300); // The options panel slides open and shut.
        m_window.grab().save(m_folder + u'/' + name + m_suffix + u".png"_s);
    }
    void press(const char *button) {
        QTest::mouseClick(m_window.findChild<QWidget *>(QLatin1StringView(button)), Qt::LeftButton);
    }

  private:
    QMainWindow &m_window;
    QString m_folder;
    QString m_suffix;
};

void takeAll(MainWndCtrl &controller, Photographer &photographer, const QStringList &examples) {
    photographer.take(u"window-empty"_s);
    controller.addFiles(examples, -1);
    photographer.take(u"window-files"_s);
    photographer.press("m_btnExpand");
    photographer.take(u"options-image"_s);
    photographer.press("m_btnTxtSetting");
    photographer.take(u"options-text"_s);
    photographer.press("m_btnSecuritySetting");
    photographer.take(u"options-security"_s);
    photographer.press("m_btnElapse");
    controller.window()->findChild<QProgressBar *>(u"m_prgCreate"_s)->show();
    controller.window()->findChild<QProgressBar *>(u"m_prgCreate"_s)->setValue(350);
    controller.window()->findChild<QWidget *>(u"m_lbProgress"_s)->show();
    controller.showAlertView();
    auto &sheet = *controller.window()->findChild<BusySheet *>();
    sheet.setFile(u"report.pdf"_s);
    sheet.setProgress(u"12 of 17 done"_s, 0.72);
    photographer.take(u"window-busy"_s);
    controller.hideAlertView();
}

} // namespace

int main(int argc, char *argv[]) {
    test::useScreenOf({3200, 2000}); // Room for the window at every scale.
    QApplication application(argc, argv);
    applyLightLook(application);
    const QStringList arguments = QApplication::arguments();
    const QTemporaryDir home;
    QSettings settings(home.filePath(u"settings.ini"_s), QSettings::IniFormat);
    settings.setValue(u"CustomizeOutputDir"_s, u"/home/you/Documents/Folioforge"_s);
    StillDesktop desktop;
    Notices notices;
    NotificationCenter notifications;
    MainWndCtrl controller(
        {settings, desktop, notices, notifications, home.path(), test::bundlePath()});
    QMainWindow *window = controller.window();
    window->resize(1000, 660);
    window->show();
    Photographer photographer(*window, arguments.value(1), arguments.value(2));
    takeAll(controller, photographer, arguments.mid(3));
    return 0;
}
