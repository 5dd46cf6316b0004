// SPDX-License-Identifier: Apache-2.0

#include "app/FolioforgeAppDelegate.h"

#include "app/FramePlacer.h"
#include "convert/Bundle.h"
#include "mainwnd/Desktop.h"

#include <QApplication>
#include <QFile>
#include <QFileOpenEvent>
#include <QIcon>
#include <QImageReader>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// The item of `menu` titled `title`; null when there is none.
QAction *itemWithTitle(const QMenu &menu, const QString &title) {
    const QList<QAction *> items = menu.actions();
    const auto found = std::ranges::find(items, title, &QAction::text);
    return found == items.end() ? nullptr : *found;
}

/// The picture of a PNG file. The plugins for other pictures, all of which Qt loads to find out
/// what a file holds, stay out of the start.
QPixmap readPng(const QString &path) {
    QImageReader reader(path, "png");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&reader);
}

} // namespace

FolioforgeAppDelegate::FolioforgeAppDelegate(WindowServices services,
                                             std::unique_ptr<Updater> updater)
    : m_services(std::move(services))
    , m_updater(std::move(updater))
    , m_menuBar(std::make_unique<QMenuBar>()) {
    setupUi(m_menuBar.get());
    connectItems();
    awakeFromNib();
    qApp->installEventFilter(this);
}

FolioforgeAppDelegate::~FolioforgeAppDelegate() = default;

void FolioforgeAppDelegate::awakeFromNib() {
    m_mainWndCtrl = std::make_unique<MainWndCtrl>(m_services);
    m_mainWndCtrl->setDelegateObject(this);
    viewMenu->menuAction()->setVisible(m_mainWndCtrl->canShowPages());
    m_previewItem->setEnabled(m_mainWndCtrl->canShowPages());
    connect(m_mainWndCtrl.get(), &MainWndCtrl::previewShown, m_previewItem, &QAction::setChecked);
    if (QAction *update = itemWithTitle(
            *m_programMenu, QCoreApplication::translate("MainMenu", "Check for Update..."))) {
        update->setVisible(true);
    }
}

void FolioforgeAppDelegate::applicationDidFinishLaunching() {
    QApplication::setWindowIcon(
        readPng(u"%1/Contents/Resources/folioforge-256.png"_s.arg(m_services.bundlePath)));
    m_mainWndCtrl->setDelegateObject(this);
    m_mainWndCtrl->window()->setMenuBar(m_menuBar.release());
    m_mainWndCtrl->fillEditMenu(*m_editMenu);
    showMainWindow();
}

void FolioforgeAppDelegate::showMainWindow() {
    QMainWindow *window = m_mainWndCtrl->window();
    window->show();
    window->raise();
    window->activateWindow();
    new FramePlacer(*window);
}

void FolioforgeAppDelegate::openFiles(const QByteArrayList &paths) {
    QTimer::singleShot(0, this, [this, paths] {
        for (const QByteArray &path : m_mainWndCtrl->addDropped(paths, -1)) {
            qWarning("folioforge: \"%s\" cannot be listed", path.constData());
        }
    });
}

bool FolioforgeAppDelegate::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::FileOpen) {
        openFiles({QFile::encodeName(static_cast<QFileOpenEvent *>(event)->file())});
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void FolioforgeAppDelegate::connectItems() {
    using Self = FolioforgeAppDelegate;
    connect(m_addFilesItem, &QAction::triggered, this, &Self::clickMenuItemAddFiles);
    connect(m_startItem, &QAction::triggered, this, &Self::clickMenuItemStart);
    connect(m_previewItem, &QAction::triggered, this, &Self::clickMenuItemPreview);
    connect(m_quitItem, &QAction::triggered, this, &Self::clickMenuItemQuit);
    connect(m_supportItem, &QAction::triggered, this, &Self::clickMenuItemSupport);
    connect(m_productItem, &QAction::triggered, this, &Self::clickMenuItemProduct);
    connect(m_updateItem, &QAction::triggered, this, &Self::clickMenuItemUpdate);
    connect(m_aboutItem, &QAction::triggered, this, &Self::clickMenuItemAbout);
}

// The busy sheet does not cover a menu outside the window, so the two commands that change the
// list check for a run themselves.

void FolioforgeAppDelegate::clickMenuItemAddFiles() {
    if (!m_mainWndCtrl->isConverting()) {
        m_mainWndCtrl->clickBtnAddFile();
    }
}

void FolioforgeAppDelegate::clickMenuItemStart() {
    if (!m_mainWndCtrl->isConverting()) {
        m_mainWndCtrl->clickBtnCreate();
    }
}

void FolioforgeAppDelegate::clickMenuItemPreview() {
    m_mainWndCtrl->togglePreview();
}

void FolioforgeAppDelegate::clickMenuItemAbout() {
    if (!m_aboutWndCtrl) {
        m_aboutWndCtrl = std::make_unique<AboutWndCtrl>(m_services.bundlePath);
    }
    m_aboutWndCtrl->showWindow(m_mainWndCtrl->window());
}

void FolioforgeAppDelegate::clickMenuItemUpdate() {
    if (m_updater) {
        m_updater->checkForUpdates();
    } else {
        m_services.desktop.openURL(downloadPage(m_services.bundlePath));
    }
}

void FolioforgeAppDelegate::clickMenuItemSupport() {
    m_services.desktop.openURL(tutorialPage(m_services.bundlePath));
}

void FolioforgeAppDelegate::clickMenuItemProduct() {
    m_services.desktop.openURL(productPage(m_services.bundlePath));
}

void FolioforgeAppDelegate::clickMenuItemQuit() {
    if (applicationShouldTerminate()) {
        QCoreApplication::quit();
    }
}

void FolioforgeAppDelegate::hasFileOpened(bool opened) {
    m_startItem->setEnabled(opened);
}

} // namespace folioforge
