// SPDX-License-Identifier: Apache-2.0

// Takes the pictures of the window that the documentation shows.
//
//   screenshots FOLDER SUFFIX EXAMPLE...   writes FOLDER/<picture>SUFFIX.png

#include "OffscreenScreen.h"
#include "WindowWorld.h"
#include "app/FolioforgeAppDelegate.h"
#include "app/Translations.h"
#include "mainwnd/ListCommands.h"
#include "mainwnd/MainWndCtrl.h"
#include "mainwnd/SkinTableView.h"
#include "preview/PageView.h"
#include "skin/BusySheet.h"
#include "skin/LightLook.h"
#include "support/Places.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPainter>
#include <QProgressBar>
#include <QScreen>
#include <QTest>

#include <utility>

namespace {

using namespace Qt::StringLiterals;
using namespace folioforge;

class Photographer {
  public:
    /// `onX11` is a screen that somebody could see.
    Photographer(QMainWindow &window, QString folder, QString suffix, bool onX11)
        : m_window(window)
        , m_folder(std::move(folder))
        , m_suffix(std::move(suffix))
        , m_onX11(onX11) {}

    /// Takes the window, and `menu` over it where there is one; on X11 what is there, with the
    /// frame.
    void take(const QString &name, QMenu *menu = nullptr) {
        QRect frame;
        while (frame != m_window.frameGeometry()) { // The options panel slides open and shut.
            frame = m_window.frameGeometry();
            QTest::qWait(400);
        }
        QPixmap picture = m_onX11 ? m_window.screen()->grabWindow(0, frame.x(), frame.y(),
                                                                  frame.width(), frame.height())
                                  : m_window.grab();
        if (menu != nullptr && !m_onX11) {
            QPainter(&picture).drawPixmap(m_window.mapFromGlobal(menu->pos()), menu->grab());
        }
        picture.save(m_folder + u'/' + name + m_suffix + u".png"_s);
    }
    void press(const char *button) { QTest::mouseClick(&find<QWidget>(button), Qt::LeftButton); }
    template<typename Control> Control &find(const char *name) {
        return *m_window.findChild<Control *>(QLatin1StringView(name));
    }

  private:
    QMainWindow &m_window;
    QString m_folder;
    QString m_suffix;
    bool m_onX11;
};

/// QTableView::selectRow selects nothing where one reads from right to left.
void choose(SkinTableView &table, int row) {
    table.setCurrentIndex(table.model()->index(row, 0));
}

/// The steps of a run, as the guide goes through them.
void takeSteps(MainWndCtrl &controller, Photographer &photographer, const QStringList &examples) {
    photographer.take(u"window-empty"_s);
    controller.addFiles(examples, -1);
    photographer.take(u"window-files"_s);

    auto &table = photographer.find<SkinTableView>("m_tableview");
    choose(table, 2);
    QMenu *menu = table.commands().makeContextMenu();
    menu->popup(table.viewport()->mapToGlobal(QPoint(200, 70)));
    photographer.take(u"window-order"_s, menu);
    menu->close();
    table.clearSelection();

    photographer.press("m_btnMerge");
    photographer.find<QLineEdit>("m_tfOutputName").setText(u"all"_s);
    photographer.take(u"window-merge"_s);
    photographer.press("m_btnMerge");
}

void takeOptions(Photographer &photographer) {
    photographer.press("m_btnExpand");
    photographer.take(u"options-image"_s);
    photographer.press("m_btnTxtSetting");
    photographer.take(u"options-text"_s);
    photographer.press("m_btnSecuritySetting");
    photographer.take(u"options-security"_s);
    photographer.press("m_btnElapse");
}

void takePreview(MainWndCtrl &controller, Photographer &photographer) {
    choose(photographer.find<SkinTableView>("m_tableview"), 0);
    controller.togglePreview();
    const auto &view = photographer.find<PageView>("previewPage");
    static_cast<void>(QTest::qWaitFor([&] { return !view.page().isNull(); }, 20'000));
    photographer.take(u"window-preview"_s);
    controller.togglePreview();
}

/// A run into `folder`, which is not shown.
void takeRun(MainWndCtrl &controller, Photographer &photographer, const QString &folder) {
    auto &bar = photographer.find<QProgressBar>("m_prgCreate");
    bar.setValue(350);
    bar.show();
    photographer.find<QWidget>("m_lbProgress").show();
    controller.showAlertView();
    auto &sheet = *controller.window()->findChild<BusySheet *>();
    sheet.setFile(u"report.pdf"_s);
    sheet.setProgress(MainWndCtrl::tr("%1 of %2 done").arg(12).arg(19), 0.63);
    photographer.take(u"window-busy"_s);
    controller.hideAlertView();

    auto &field = photographer.find<QLineEdit>("m_tfOutputFolder");
    const QString shown = field.text();
    field.setText(folder);
    controller.clickBtnCreate();
    static_cast<void>(QTest::qWaitFor([&] { return !controller.isConverting(); }, 60'000));
    field.setText(shown);
    photographer.take(u"window-done"_s);
}

} // namespace

int main(int argc, char *argv[]) {
    const bool onX11 = qgetenv("QT_QPA_PLATFORM") == "xcb";
    if (!onX11) {
        test::useScreenOf({3200, 2000}); // Room for the window at every scale.
    }
    QApplication application(argc, argv);
    const Translations translations(QLocale::system().uiLanguages(), test::bundlePath());
    applyLightLook(application);
    const QStringList arguments = QApplication::arguments();
    test::WindowWorld world;
    world.storeFolder(u"/home/you/Documents/Folioforge"_s);
    FolioforgeAppDelegate delegate(world.services(), nullptr);
    delegate.applicationDidFinishLaunching();
    MainWndCtrl &controller = delegate.mainWndCtrl();
    QMainWindow *window = controller.window();
    window->resize(1000, 660);
    Photographer photographer(*window, arguments.value(1), arguments.value(2), onX11);
    takeSteps(controller, photographer, arguments.mid(3));
    takeOptions(photographer);
    takePreview(controller, photographer);
    takeRun(controller, photographer, world.home.path());
    return 0;
}
