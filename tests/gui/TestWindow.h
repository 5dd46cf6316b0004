// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "WindowWorld.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/MainWndCtrl.h"

#include <QApplication>
#include <QDir>
#include <QTest>

namespace folioforge::test {

/// Writes down what the window tells its delegate.
class RecordingDelegate : public MainWndDelegate {
  public:
    void hasFileOpened(bool opened) override { told += opened; }
    QList<bool> told;
};

/// The main window in a home folder of its own, with notices and panels answered at once. The
/// output folder is "out" in that home.
class TestWindow : public WindowWorld {
  public:
    /// A window of the application at `bundle`; without one the window has no resources.
    explicit TestWindow(const QString &bundle = {})
        : ctrl(services(bundle.isEmpty() ? path(QStringLiteral("Folioforge.app")) : bundle)) {
        QDir().mkpath(path(QStringLiteral("out")));
        storeFolder(path(QStringLiteral("out")));
        notices.answerNoticesAtOnce();
        ctrl.setDelegateObject(&delegate);
        ctrl.window()->show();
        ctrl.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(ctrl.window()));
    }

    /// A control of the window by its name.
    template<typename Control> [[nodiscard]] Control *control(const char *name) {
        return &controlOf<Control>(*ctrl.window(), name);
    }
    [[nodiscard]] SkinTableView *table() { return control<SkinTableView>("m_tableview"); }
    void press(const char *button) {
        QTest::mouseClick(control<QAbstractButton>(button), Qt::LeftButton);
    }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(ctrl.window()->windowHandle(), code, modifiers);
    }
    void select(const QList<int> &rows) {
        QItemSelectionModel *selection = table()->selectionModel();
        selection->clear();
        for (const int row : rows) {
            selection->select(ctrl.filesArray().index(row, 0),
                              QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }

    /// Brings the settings to their file, in the home folder.
    void syncSettings() { settings.sync(); }

    /// The names in the list, in order, with a blank between two.
    [[nodiscard]] QString names() const {
        QStringList names;
        for (const PDFFileInfo *entry : ctrl.filesArray().arrangedObjects()) {
            names += entry->fileName();
        }
        return names.join(u' ');
    }
    /// The number column, as shown.
    [[nodiscard]] QString numbers() const { return column(FilesArray::NumberColumn); }
    /// The destination column, as shown.
    [[nodiscard]] QString states() const { return column(FilesArray::DestinationColumn); }
    /// The texts of the notices shown so far.
    [[nodiscard]] QStringList messages() const {
        QStringList messages;
        for (const Notices::Shown &shown : notices.shown()) {
            messages += shown.notice.textInWindow();
        }
        return messages;
    }

    RecordingDelegate delegate;
    MainWndCtrl ctrl;

  private:
    [[nodiscard]] QString column(int column) const {
        QStringList texts;
        for (int row = 0; row < ctrl.filesArray().count(); ++row) {
            texts += ctrl.filesArray().index(row, column).data().toString();
        }
        return texts.join(u' ');
    }
};

} // namespace folioforge::test
