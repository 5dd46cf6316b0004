#include "WindowWorld.h"

#include "mainwnd/MainWndCtrl.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>

using namespace folioforge;
using namespace folioforge::test;

namespace {

const QString kNotWritable = QStringLiteral(
    "Selected output folder is not writable. Click \"OK\" to select another folder.");

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
        MainWndCtrl ctrl(world.surroundings());
        const QString folder = world.path(QStringLiteral("Documents/Folioforge"));
        QCOMPARE(shownFolder(ctrl), folder);
        QVERIFY(QFileInfo(folder).isDir());
        QCOMPARE(int(QFile::permissions(folder)) & 0x7077, 0x7077);
        QCOMPARE(world.storedFolder(), folder);
        // Written to disk at once: another reader of the file sees it.
        const QSettings other(world.path(QStringLiteral("settings.ini")), QSettings::IniFormat);
        QCOMPARE(other.value(QStringLiteral("CustomizeOutputDir")).toString(), folder);
    }

    void theTutorialOpensOnTheFirstRunAlone() {
        WindowWorld world;
        {
            MainWndCtrl ctrl(world.surroundings());
            ctrl.window();
        }
        QCOMPARE(world.desktop.urls.size(), 1);
        const QUrl page = world.desktop.urls.first();
        QCOMPARE(page.fileName(), QStringLiteral("tutorial.html"));
        QVERIFY(QFileInfo(page.toLocalFile()).isFile());
        MainWndCtrl next(world.surroundings());
        next.window();
        QCOMPARE(world.desktop.urls.size(), 1);
    }

    void aFolderThatIsThereAlreadyKeepsItsMode() {
        WindowWorld world;
        const QString folder = world.path(QStringLiteral("Documents/Folioforge"));
        QVERIFY(QDir().mkpath(folder));
        const auto own = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
        QVERIFY(QFile::setPermissions(folder, own));
        MainWndCtrl ctrl(world.surroundings());
        QCOMPARE(shownFolder(ctrl), folder);
        QCOMPARE(int(QFile::permissions(folder)) & 0x0077, 0);
    }

    void aFolderThatCannotBeMadeGivesWayToDocuments() {
        WindowWorld world;
        // A file stands where the folder's parent should be.
        QFile blocker(world.path(QStringLiteral("Documents")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        MainWndCtrl ctrl(world.surroundings());
        QCOMPARE(shownFolder(ctrl), world.path(QStringLiteral("Documents")));
        QCOMPARE(world.storedFolder(), world.path(QStringLiteral("Documents")));
        QVERIFY(world.notices.shown().empty());
    }

    void aStoredFolderIsTakenAsItIs() {
        WindowWorld world;
        world.storeFolder(QStringLiteral("/nowhere/at all"));
        MainWndCtrl ctrl(world.surroundings());
        QCOMPARE(shownFolder(ctrl), QStringLiteral("/nowhere/at all"));
        QVERIFY(world.desktop.urls.isEmpty());
        QVERIFY(!QFileInfo::exists(world.path(QStringLiteral("Documents"))));
    }

    void aStoredEmptyStringCountsAsMissing() {
        WindowWorld world;
        world.storeFolder(QString());
        MainWndCtrl ctrl(world.surroundings());
        QCOMPARE(shownFolder(ctrl), world.path(QStringLiteral("Documents/Folioforge")));
        QCOMPARE(world.desktop.urls.size(), 1);
    }

    void aSettingsFileThatCannotBeWrittenLeavesTheWindowWorking() {
        WindowWorld world;
        QSettings nowhere(QStringLiteral("/proc/none/settings.ini"), QSettings::IniFormat);
        MainWndCtrl ctrl({nowhere, world.desktop, world.notices, world.notifications,
                          world.home.path(), WindowWorld::realBundle()});
        QCOMPARE(shownFolder(ctrl), world.path(QStringLiteral("Documents/Folioforge")));
    }

    void browsingAsksForOneFolder() {
        WindowWorld world;
        MainWndCtrl ctrl(world.surroundings());
        ctrl.window();
        world.notices.setNextFiles({});
        press(ctrl, "m_btnBrowse");
        QCOMPARE(world.notices.filePanels().size(), std::size_t(1));
        const FilePanel &panel = world.notices.filePanels().front();
        QVERIFY(panel.chooses == FilePanel::Chooses::Folders);
        QVERIFY(!panel.multiple);
        QCOMPARE(panel.acceptLabel, QStringLiteral("Save"));
    }

    void aChosenFolderIsShownAndStored() {
        WindowWorld world;
        MainWndCtrl ctrl(world.surroundings());
        ctrl.window();
        world.notices.setNextFiles({world.home.path()});
        press(ctrl, "m_btnBrowse");
        QTRY_COMPARE(shownFolder(ctrl), world.home.path());
        QCOMPARE(world.storedFolder(), world.home.path());
    }

    void aCancelledChoiceChangesNothing() {
        WindowWorld world;
        world.storeFolder(world.home.path());
        MainWndCtrl ctrl(world.surroundings());
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
        MainWndCtrl ctrl(world.surroundings());
        ctrl.window();
        const QString good = world.path(QStringLiteral("good"));
        QVERIFY(QDir().mkpath(good));
        world.notices.answerNoticesAtOnce();
        world.notices.setNextFiles({QStringLiteral("/nowhere/a")});
        world.notices.setNextFiles({QStringLiteral("/nowhere/b")});
        world.notices.setNextFiles({good});
        press(ctrl, "m_btnBrowse");
        QVERIFY(QTest::qWaitFor([&] { return shownFolder(ctrl) == good; }));
        QCOMPARE(world.notices.filePanels().size(), std::size_t(3));
        QCOMPARE(world.notices.shown().size(), std::size_t(2));
        QCOMPARE(world.notices.shown().front().notice, notice(kNotWritable));
    }

    void theWarningHasGoneBeforeThePanelComesAgain() {
        WindowWorld world;
        world.storeFolder(world.home.path());
        MainWndCtrl ctrl(world.surroundings());
        ctrl.window()->show();
        world.notices.setNextFiles({QStringLiteral("/nowhere/a")});
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
        MainWndCtrl ctrl(world.surroundings());
        press(ctrl, "m_btnOpen");
        QCOMPARE(world.desktop.files, QStringList(world.home.path()));
        QVERIFY(world.notices.shown().empty());
    }

    void openingAFolderThatIsGoneShowsTheErrorPanel() {
        WindowWorld world;
        world.storeFolder(QStringLiteral("/nowhere/at all"));
        world.notices.answerNoticesAtOnce();
        MainWndCtrl ctrl(world.surroundings());
        press(ctrl, "m_btnOpen");
        QVERIFY(world.desktop.files.isEmpty());
        QCOMPARE(world.notices.shown().size(), std::size_t(1));
        const Notices::Shown &shown = world.notices.shown().front();
        QVERIFY(shown.kind == Notices::Kind::Panel);
        QCOMPARE(
            shown.notice,
            (Notice{QStringLiteral("Error"),
                    QStringLiteral("Output folder does not exist, please select another one.")}));
        QCOMPARE(world.storedFolder(), QStringLiteral("/nowhere/at all"));
    }
};

QTEST_MAIN(OutputFolderTest)
#include "OutputFolderTest.moc"
