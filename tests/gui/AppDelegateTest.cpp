// SPDX-License-Identifier: Apache-2.0

#include "TestApplication.h"

#include "mainwnd/FilesArray.h"
#include "support/HostileNames.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFileOpenEvent>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// Counts how often it is asked.
class CountingUpdater : public Updater {
  public:
    explicit CountingUpdater(int &checks)
        : m_checks(checks) {}
    void checkForUpdates() override { ++m_checks; }

  private:
    int &m_checks;
};

/// The keys, such as Alt+F, that the texts in sight of `window` and its menu bar give.
QStringList mnemonicsOf(const QMainWindow &window) {
    QStringList texts;
    for (const QAction *menu : window.menuBar()->actions()) {
        texts += menu->text();
    }
    for (const auto *label : window.findChildren<QLabel *>()) {
        texts += label->isVisible() && label->buddy() ? label->text() : QString();
    }
    for (const auto *button : window.findChildren<QAbstractButton *>()) {
        texts += button->isVisible() ? button->text() : QString();
    }
    QStringList keys;
    for (const QString &text : texts) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        keys += key.isEmpty() ? QStringList() : QStringList(key.toString());
    }
    return keys;
}

void addSettings() {
    QTest::addColumn<QByteArray>("settings");
    QTest::newRow("text") << QByteArray("m_btnTxtSetting");
    QTest::newRow("images") << QByteArray("m_btnImageSetting");
    QTest::newRow("security") << QByteArray("m_btnSecuritySetting");
}

} // namespace

class AppDelegateTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void launchingShowsTheMainWindowAloneAndCentresIt() {
        Application application;
        QVERIFY(application.window().isVisible());
        const QPoint center = application.window().frameGeometry().center();
        const QPoint middle = application.window().screen()->availableGeometry().center();
        QVERIFY((center - middle).manhattanLength() <= 2);
        int visible = 0;
        for (const QWidget *widget : QApplication::topLevelWidgets()) {
            visible += widget->isVisible() ? 1 : 0;
        }
        QCOMPARE(visible, 1);
    }

    void theWindowCarriesTheApplicationsIcon() {
        Application application;
        QCOMPARE(application.window().windowIcon().availableSizes(), QList{QSize(256, 256)});
    }

    void theListStartsEmptyAndTheStartItemDisabled() {
        Application application;
        QVERIFY(application.delegate.mainWndCtrl().filesArray().isEmpty());
        QVERIFY(!application.item(u"Start"_s).isEnabled());
    }

    void whatTheSystemHandsOverComesToTheEndOfTheList() {
        Application application;
        MainWndCtrl &ctrl = application.delegate.mainWndCtrl();
        ctrl.addFiles({application.world.file(u"first.txt"_s)}, -1);
        const QString none = application.world.path(u"none.txt"_s);
        QTest::ignoreMessage(QtWarningMsg,
                             qUtf8Printable(u"folioforge: \"%1\" cannot be listed"_s.arg(none)));
        application.delegate.openFiles({application.world.file(u"second.txt"_s).toUtf8(),
                                        none.toUtf8(),
                                        application.world.file(u"third.txt"_s).toUtf8()});
        QTRY_COMPARE(ctrl.filesArray().count(), 3);
        QCOMPARE(ctrl.filesArray().at(1).fileName(), u"second.txt"_s);
        QCOMPARE(ctrl.filesArray().at(2).fileName(), u"third.txt"_s);
    }

    void handedOverFilesWhoseNamesReadAlikeStayDifferentFiles() {
        Application application;
        const FolderOfHostileNames folder(application.world.path(u"in"_s));
        writeFileNamed(folder.path("caf\xe8.txt"), "grave\n");
        writeFileNamed(folder.path("caf\xe9.txt"), "acute, and longer\n");
        application.delegate.openFiles({folder.path("caf\xe9.txt"), folder.path("caf\xe8.txt")});
        const FilesArray &files = application.delegate.mainWndCtrl().filesArray();
        QTRY_COMPARE(files.count(), 2);
        QCOMPARE(files.at(0).fileName(), u"caf\uFFFD.txt"_s);
        QCOMPARE(QFileInfo(files.at(0).filePathName()).size(), 18);
        QCOMPARE(QFileInfo(files.at(1).filePathName()).size(), 6);
    }

    void aFileThatTheDesktopAsksToOpenIsListed() {
        Application application;
        QFileOpenEvent event(application.world.file(u"asked.txt"_s));
        QCoreApplication::sendEvent(qApp, &event);
        QTRY_COMPARE(application.delegate.mainWndCtrl().filesArray().count(), 1);
    }

    void theStartItemFollowsTheCreateButton() {
        Application application;
        MainWndCtrl &ctrl = application.delegate.mainWndCtrl();
        auto &create = controlOf<QWidget>(application.window(), "m_btnCreate");
        ctrl.addFiles({application.world.file(u"a.txt"_s)}, -1);
        QTRY_VERIFY(application.item(u"Start"_s).isEnabled());
        QVERIFY(create.isEnabled());
        ctrl.clickBtnClear();
        QVERIFY(!application.item(u"Start"_s).isEnabled());
        QVERIFY(!create.isEnabled());
    }

    void controlOAddsFiles() {
        Application application;
        application.world.notices.setNextFiles({application.world.file(u"a.txt"_s)});
        application.activate();
        application.key(Qt::Key_O, Qt::ControlModifier);
        QTRY_COMPARE(application.delegate.mainWndCtrl().filesArray().count(), 1);
        QVERIFY(application.world.notices.filePanels().front().chooses ==
                FilePanel::Chooses::FilesAndFolders);
    }

    void theStartItemIsRefusedAsTheCreateButtonIs() {
        Application application;
        MainWndCtrl &ctrl = application.delegate.mainWndCtrl();
        ctrl.addFiles({application.world.file(u"a.txt"_s)}, -1);
        controlOf<QLineEdit>(application.window(), "m_tfOutputFolder").clear();
        application.activate();
        application.key(Qt::Key_Return, Qt::ControlModifier);
        QTest::mouseClick(&controlOf<QWidget>(application.window(), "m_btnCreate"), Qt::LeftButton);
        const std::vector<Notices::Shown> &shown = application.world.notices.shown();
        QCOMPARE(shown.size(), std::size_t(2));
        QCOMPARE(shown.at(0).notice, shown.at(1).notice);
        QCOMPARE(shown.at(0).notice.message,
                 u"Please select an output folder to store the output documents."_s);
    }

    void noTwoMnemonicsInSightAreEqual_data() { addSettings(); }

    void noTwoMnemonicsInSightAreEqual() {
        QFETCH(const QByteArray, settings);
        Application application;
        application.showSettings(settings);
        QStringList mnemonics = mnemonicsOf(application.window());
        QVERIFY(mnemonics.size() >= 14);
        mnemonics.sort();
        QStringList distinct = mnemonics;
        distinct.removeDuplicates();
        QCOMPARE(mnemonics, distinct);
    }

    void theMenusOpenByTheirMnemonics_data() { addSettings(); }

    void theMenusOpenByTheirMnemonics() {
        QFETCH(const QByteArray, settings);
        Application application;
        application.showSettings(settings);
        for (const auto &[key, title] :
             {std::pair(Qt::Key_F, u"&File"_s), std::pair(Qt::Key_E, u"&Edit"_s),
              std::pair(Qt::Key_H, u"&Help"_s)}) {
            application.key(key, Qt::AltModifier);
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu);
            QCOMPARE(menu->title(), title);
            QTest::keyClick(menu, Qt::Key_Escape);
            QTRY_VERIFY(!QApplication::activePopupWidget());
        }
    }

    void theStartItemRunsAsTheCreateButtonDoes() {
        Application application;
        application.addTexts(1);
        application.activate();
        application.key(Qt::Key_Return, Qt::ControlModifier);
        const FilesArray &files = application.delegate.mainWndCtrl().filesArray();
        QTRY_COMPARE(files.at(0).stateIndex(), 3);
        QCOMPARE(application.documents(), QStringList(application.world.path(u"0.pdf"_s)));
        QCOMPARE(PdfProbe(application.documents().first()).text().trimmed(), u"text"_s);
    }

    void supportOpensTheTutorialAndProductTheProductPage() {
        Application application;
        application.activate();
        application.key(Qt::Key_F1);
        application.item(u"Product Page"_s).trigger();
        const QList<QUrl> &urls = application.world.desktop.urls;
        QCOMPARE(urls.size(), 2);
        QCOMPARE(urls.at(0).fileName(), u"tutorial.html"_s);
        QCOMPARE(urls.at(1).fileName(), u"product.html"_s);
        for (const QUrl &url : urls) {
            QVERIFY(QFileInfo(url.toLocalFile()).isFile());
        }
    }

    void theUpdateItemIsVisibleAndLeadsToTheDownloads() {
        Application application;
        QAction &update = application.item(u"Check for Update..."_s);
        QVERIFY(update.isVisible());
        update.trigger();
        QCOMPARE(application.world.desktop.urls.size(), 1);
        QCOMPARE(application.world.desktop.urls.first().fragment(), u"download"_s);
        QFile page(application.world.desktop.urls.first().toLocalFile());
        QVERIFY(page.open(QIODevice::ReadOnly));
        QVERIFY(page.readAll().contains("id=\"download\""));
    }

    void anUpdateFrameworkTakesTheUpdateItem() {
        int checks = 0;
        Application application(std::make_unique<CountingUpdater>(checks));
        application.item(u"Check for Update..."_s).trigger();
        QCOMPARE(checks, 1);
        QVERIFY(application.world.desktop.urls.isEmpty());
    }

    void quittingNeedsNoAnswer() {
        QVERIFY(FolioforgeAppDelegate::applicationShouldTerminate());
        QVERIFY(FolioforgeAppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    }

    void closingTheMainWindowQuitsThoughAboutIsOpen() {
        Application application;
        application.item(u"About Folioforge"_s).trigger();
        QCOMPARE(application.runUntilClosed(), 0);
    }

    void closingDuringARunAsksNothingAndLeavesWholeFiles() {
        constexpr int kFiles = 400;
        Application application;
        application.addTexts(kFiles);
        application.delegate.mainWndCtrl().clickBtnCreate();
        QTRY_VERIFY(!application.documents().isEmpty());
        QCOMPARE(application.runUntilClosed(), 0);
        QVERIFY(application.world.notices.shown().empty());
        const QStringList documents = application.documents();
        QVERIFY(documents.size() < kFiles);
        QVERIFY(std::ranges::all_of(
            documents, [](const QString &document) { return PdfProbe(document).isValid(); }));
    }
};

FOLIOFORGE_TEST(AppDelegateTest)
#include "AppDelegateTest.moc"
