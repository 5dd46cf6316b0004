// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "app/AboutWndCtrl.h"
#include "app/Updater.h"
#include "mainwnd/MainWndCtrl.h"
#include "mainwnd/WindowServices.h"
#include "ui_MainMenu.h"

#include <QObject>

#include <memory>

namespace folioforge {

/// The application's delegate: makes the main window, carries the menu's commands to it and keeps
/// the menu's start item in step with the file list.
///
/// The menu's items and m_programMenu are the fields of Ui::MainMenu, made from MainMenu.ui.
class FolioforgeAppDelegate : public QObject, public MainWndDelegate, private Ui::MainMenu {
    Q_OBJECT

  public:
    /// Without an `updater`, "Check for Update..." opens the product page at its downloads.
    explicit FolioforgeAppDelegate(WindowServices services,
                                   std::unique_ptr<Updater> updater = nullptr);
    ~FolioforgeAppDelegate() override;

    /// Makes the controller of the main window and shows the item for updates.
    void awakeFromNib();
    /// Loads the main window with its menu and icon and shows it.
    void applicationDidFinishLaunching();
    /// Puts the files that the system hands over at the end of the list, as a drop does, when the
    /// event loop runs. Standard error names those that the list does not take.
    void openFiles(const QByteArrayList &paths);
    /// Brings the main window to the front and centres it on its screen.
    void showMainWindow();
    [[nodiscard]] static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }
    /// Ends the application at once: nothing is saved or asked.
    [[nodiscard]] static bool applicationShouldTerminate() { return true; }

    void clickMenuItemAddFiles();
    void clickMenuItemStart();
    void clickMenuItemPreview();
    void clickMenuItemAbout();
    void clickMenuItemUpdate();
    void clickMenuItemSupport();
    void clickMenuItemProduct();
    void clickMenuItemQuit();

    void hasFileOpened(bool opened) override;
    /// Opens the file that macOS asks the application to open.
    bool eventFilter(QObject *watched, QEvent *event) override;

    // ---- Kept for callers alone: nothing in the program calls these --------------------------

    [[nodiscard]] MainWndCtrl &mainWndCtrl() { return *m_mainWndCtrl; }

  private:
    void connectItems();

    WindowServices m_services;
    std::unique_ptr<Updater> m_updater;
    std::unique_ptr<QMenuBar> m_menuBar; ///< The window's from the moment it is loaded.
    std::unique_ptr<MainWndCtrl> m_mainWndCtrl;
    std::unique_ptr<AboutWndCtrl> m_aboutWndCtrl;
};

} // namespace folioforge
