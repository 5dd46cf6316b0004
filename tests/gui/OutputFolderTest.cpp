// SPDX-License-Identifier: Apache-2.0

#include "WindowWorld.h"
#include "support/TestUnit.h"

#include "mainwnd/MainWndCtrl.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

const QString kNotWritable =
    u"Selected output folder is not writable. Click \"OK\" to select another folder."_s;

QString shownFolder(MainWndCtrl &ctrl) {
    return controlOf<QLineEdit>(*ctrl.window(), "m_tfOutputFolder").text();
}

void press(MainWndCtrl &ctrl, const char *button) {
    ctrl.window()->show();
    QTest::mouseClick(&controlOf<QWidget>(*ctrl.window(), button), Qt::LeftButton);
}

} // namespace

class OutputFolderTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theFirstRunMakesTheFolderWorldWritableAndStoresIt() {
        WindowWorld world;
        MainWndCtrl ctrl(world.services());
        const QString folder = world.path(u"Documents/Folioforge"_s);
        QCOMPARE(shownFolder(ctrl), folder);
        QVERIFY(QFileInfo(folder).isDir());
        QCOMPARE(int(QFile::permissions(folder)) & 0x7077, 0x7077);
        QCOMPARE(world.storedFolder(), folder);
        // Written to disk at once: another reader of the file sees it.
        const QSettings other(world.path(u"settings.ini"_s), QSettings::IniFormat);
        QCOMPARE(other.value(u"CustomizeOutputDir"_s).toString(), folder);
    }

    void theTutorialOpensOnTheFirstRunAlone() {
        WindowWorld world;
        {
            MainWndCtrl ctrl(world.services());
            ctrl.window();
        }
        QCOMPARE(world.desktop.urls.size(), 1);
        const QUrl page = world.desktop.urls.first();
        QCOMPARE(page.fileName(), u"tutorial.html"_s);
        QVERIFY(QFileInfo(page.toLocalFile()).isFile());
        MainWndCtrl next(world.services());
        next.window();
        QCOMPARE(world.desktop.urls.size(), 1);
    }

    void aFolderThatIsThereAlreadyKeepsItsMode() {
        WindowWorld world;
        const QString folder = world.path(u"Documents/Folioforge"_s);
        QVERIFY(QDir().mkpath(folder));
        const auto own = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
        QVERIFY(QFile::setPermissions(folder, own));
        MainWndCtrl ctrl(world.services());
        QCOMPARE(shownFolder(ctrl), folder);
        QCOMPARE(int(QFile::permissions(folder)) & 0x0077, 0);
    }

    void aFolderThatCannotBeMadeGivesWayToDocuments() {
        WindowWorld world;
        // A file stands where the folder's parent should be.
        QFile blocker(world.path(u"Documents"_s));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        MainWndCtrl ctrl(world.services());
        QCOMPARE(shownFolder(ctrl), world.path(u"Documents"_s));
        QCOMPARE(world.storedFolder(), world.path(u"Documents"_s));
        QVERIFY(world.notices.shown().empty());
    }

    void aStoredFolderIsTakenAsItIs() {
        WindowWorld world;
        world.storeFolder(u"/nowhere/at all"_s);
        MainWndCtrl ctrl(world.services());
        QCOMPARE(shownFolder(ctrl), u"/nowhere/at all"_s);
        QVERIFY(world.desktop.urls.isEmpty());
        QVERIFY(!QFileInfo::exists(world.path(u"Documents"_s)));
    }

    void aStoredEmptyStringCountsAsMissing() {
        WindowWorld world;
        world.storeFolder(QString());
        MainWndCtrl ctrl(world.services());
        QCOMPARE(shownFolder(ctrl), world.path(u"Documents/Folioforge"_s));
        QCOMPARE(world.desktop.urls.size(), 1);
    }

    void aSettingsFileThatCannotBeWrittenLeavesTheWindowWorking() {
        WindowWorld world;
        QSettings nowhere(u"/proc/none/settings.ini"_s, QSettings::IniFormat);
        MainWndCtrl ctrl({nowhere, world.desktop, world.notices, world.notifications,
                          world.home.path(), WindowWorld::realBundle()});
        QCOMPARE(shownFolder(ctrl), world.path(u"Documents/Folioforge"_s));
    }

    void browsingAsksForOneFolder() {
        WindowWorld world;
        MainWndCtrl ctrl(world.services());
        ctrl.window();
        world.notices.setNextFiles({});
        press(ctrl, "m_btnBrowse");
        QCOMPARE(world.notices.filePanels().size(), std::size_t(1));
        const FilePanel &panel = world.notices.filePanels().front();
        QVERIFY(panel.chooses == FilePanel::Chooses::Folders);
        QVERIFY(!panel.multiple);
        QCOMPARE(panel.acceptLabel, u"Save"_s);
    }

    void aChosenFolderIsShownAndStored() {
        WindowWorld world;
        MainWndCtrl ctrl(world.services());
        ctrl.window();
        world.notices.setNextFiles({world.home.path()});
        press(ctrl, "m_btnBrowse");
        QTRY_COMPARE(shownFolder(ctrl), world.home.path());
        QCOMPARE(world.storedFolder(), world.home.path());
    }

    void aCancelledChoiceChangesNothing() {
        WindowWorld world;
        world.storeFolder(world.home.path());
        MainWndCtrl ctrl(world.services());
        ctrl.window();
        world.notices.setNextFiles({});
        press(ctrl, "m_btnBrowse");
        QCoreApplication::processEvents();
        QCOMPARE(shownFolder(ctrl), world.home.path());
        QVERIFY(world.notices.shown().empty());
    }

    /// The user goes round panel and warning until a writable folder is chosen.
    void aFolderThatIsNotWritableWarnsAndAsksAgain() {
        WindowWorld world;
        world.storeFolder(world.home.path());
        MainWndCtrl ctrl(world.services());
        ctrl.window();
        const QString good = world.path(u"good"_s);
        QVERIFY(QDir().mkpath(good));
        world.notices.answerNoticesAtOnce();
        world.notices.setNextFiles({u"/nowhere/a"_s});
        world.notices.setNextFiles({u"/nowhere/b"_s});
        world.notices.setNextFiles({good});
        press(ctrl, "m_btnBrowse");
        QVERIFY(QTest::qWaitFor([&] { return shownFolder(ctrl) == good; }));
        QCOMPARE(world.notices.filePanels().size(), std::size_t(3));
        QCOMPARE(world.notices.shown().size(), std::size_t(2));
        QCOMPARE(world.notices.shown().front().notice.textInWindow(), kNotWritable);
    }

    void theWarningHasGoneBeforeThePanelComesAgain() {
        WindowWorld world;
        world.storeFolder(world.home.path());
        MainWndCtrl ctrl(world.services());
        ctrl.window()->show();
        world.notices.setNextFiles({u"/nowhere/a"_s});
        world.notices.setNextFiles({});
        press(ctrl, "m_btnBrowse");
        QVERIFY(QTest::qWaitFor([&] { return ctrl.window()->findChild<QMessageBox *>(); }));
        auto *box = ctrl.window()->findChild<QMessageBox *>();
        QCOMPARE(world.notices.filePanels().size(), std::size_t(1));
        const QSignalSpy gone(box, &QObject::destroyed);
        QTest::keyClick(box, Qt::Key_Return);
        QVERIFY(QTest::qWaitFor([&] { return world.notices.filePanels().size() == 2; }));
        QCOMPARE(shownFolder(ctrl), world.home.path());
    }

    void openingShowsTheFolderInTheFileBrowser() {
        WindowWorld world;
        world.storeFolder(world.home.path());
        MainWndCtrl ctrl(world.services());
        press(ctrl, "m_btnOpen");
        QCOMPARE(world.desktop.files, QStringList(world.home.path()));
        QVERIFY(world.notices.shown().empty());
    }

    void openingAFolderThatIsGoneShowsTheErrorPanel() {
        WindowWorld world;
        world.storeFolder(u"/nowhere/at all"_s);
        world.notices.answerNoticesAtOnce();
        MainWndCtrl ctrl(world.services());
        press(ctrl, "m_btnOpen");
        QVERIFY(world.desktop.files.isEmpty());
        QCOMPARE(world.notices.shown().size(), std::size_t(1));
        const Notices::Shown &shown = world.notices.shown().front();
        QVERIFY(shown.kind == Notices::Kind::Panel);
        QCOMPARE(
            shown.notice,
            (Notice{u"Error"_s, u"Output folder does not exist, please select another one."_s}));
        QCOMPARE(world.storedFolder(), u"/nowhere/at all"_s);
    }
};

FOLIOFORGE_TEST(OutputFolderTest)
#include "OutputFolderTest.moc"
