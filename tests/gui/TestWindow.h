#pragma once

#include "mainwnd/Desktop.h"
#include "mainwnd/FilesArray.h"
#include "mainwnd/MainWndCtrl.h"
#include "mainwnd/Notices.h"
#include "mainwnd/NotificationCenter.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace folioforge::test {

/// Writes down what it is asked to open.
class RecordingDesktop : public Desktop {
  public:
    void runInShell(const QByteArray &command) override { commands += command; }
    void openURL(const QUrl &url) override { urls += url; }
    void openFile(const QString &path) override { files += path; }

    QList<QByteArray> commands;
    QList<QUrl> urls;
    QStringList files;
};

/// Writes down what the window tells its delegate.
class RecordingDelegate : public MainWndDelegate {
  public:
    void hasFileOpened(bool opened) override { told += opened; }
    QList<bool> told;
};

/// The main window in a home folder of its own, with notices and panels answered at once. The
/// output folder is "out" in that home.
class TestWindow {
  public:
    /// A window of the application at `bundle`; without one the window has no resources.
    explicit TestWindow(const QString &bundle = {})
        : m_bundle(bundle.isEmpty() ? home.filePath(QStringLiteral("Folioforge.app")) : bundle) {
        QDir().mkpath(path(QStringLiteral("out")));
        m_settings.setValue(QStringLiteral("CustomizeOutputDir"), path(QStringLiteral("out")));
        notices.answerNoticesAtOnce();
        ctrl.setDelegateObject(&delegate);
        ctrl.window()->show();
        ctrl.window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(ctrl.window()));
    }

    /// A path in the home folder.
    [[nodiscard]] QString path(const QString &name) const { return home.filePath(name); }

    /// Writes a file into the home folder; its path.
    QString file(const QString &name, const QByteArray &bytes = "text\n") const {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("cannot write %s", qPrintable(file.fileName()));
        }
        return file.fileName();
    }

    /// A control of the window by its name.
    template<typename Control> [[nodiscard]] Control *control(const char *name) {
        auto *found = ctrl.window()->findChild<Control *>(QString::fromLatin1(name));
        if (!found) {
            qFatal("the window has no %s", name);
        }
        return found;
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
    void syncSettings() { m_settings.sync(); }

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
            messages += shown.notice.message;
        }
        return messages;
    }

    QTemporaryDir home;
    RecordingDesktop desktop;
    RecordingDelegate delegate;
    Notices notices;
    NotificationCenter notifications;

  private:
    [[nodiscard]] QString column(int column) const {
        QStringList texts;
        for (int row = 0; row < ctrl.filesArray().count(); ++row) {
            texts += ctrl.filesArray().index(row, column).data().toString();
        }
        return texts.join(u' ');
    }

    QString m_bundle;
    QSettings m_settings{home.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};

  public:
    MainWndCtrl ctrl{{m_settings, desktop, notices, notifications, home.path(), m_bundle}};
};

} // namespace folioforge::test
