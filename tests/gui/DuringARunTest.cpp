// SPDX-License-Identifier: Apache-2.0

#include "gui/ConvertingCase.h"
#include "gui/TestWindow.h"
#include "support/Files.h"
#include "support/NoThreads.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEventLoop>
#include <QLineEdit>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTimer>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The entries that a run has done so far.
qsizetype doneEntries(const MainWndCtrl &ctrl) {
    const std::vector<const PDFFileInfo *> entries = ctrl.filesArray().arrangedObjects();
    return std::ranges::count_if(
        entries, [](const PDFFileInfo *entry) { return entry->stateIndex() != Waiting; });
}

/// Starts a run and closes the window the moment that `count` entries are done.
void closeDuringARun(MainWndCtrl &ctrl, int count) {
    ctrl.clickBtnCreate();
    QEventLoop wait;
    QObject::connect(&ctrl.filesArray(), &QAbstractItemModel::dataChanged, &wait, [&] {
        if (doneEntries(ctrl) >= count) {
            wait.quit();
        }
    });
    QTimer::singleShot(60'000, &wait, &QEventLoop::quit);
    if (count > 0) {
        wait.exec();
    }
    QVERIFY(doneEntries(ctrl) >= count);
    ctrl.window()->close();
}

} // namespace

/// What the window shows and refuses while a run goes on.
class DuringARunTest : public QObject {
    Q_OBJECT

  private:
    QTemporaryDir m_temporaryFolder;

  private Q_SLOTS:
    void initTestCase() { qputenv("TMPDIR", QFile::encodeName(m_temporaryFolder.path())); }

    void aSecondRunStartsFromWaiting() {
        TestWindow w;
        addTexts(w, 2);
        run(w);
        w.press("m_btnCreate");
        QCOMPARE(w.states(), u"Waiting... Waiting..."_s);
        waitForTheEnd(w);
        QCOMPARE(w.states(), u"000(1).pdf 001(1).pdf"_s);
    }

    void theBusySheetCoversTheWindowForTheWholeRun() {
        TestWindow w;
        addTexts(w, 3);
        const auto *sheet = w.control<BusySheet>("m_alertWnd");
        QVERIFY(!sheet->isVisible());
        QStringList said;
        connect(&w.ctrl.filesArray(), &QAbstractItemModel::dataChanged, this, [&] {
            if (sheet->isVisible()) {
                said += sheet->findChild<QLabel *>(u"busyFile"_s)->text() + u' ' +
                        sheet->findChild<QLabel *>(u"busyCount"_s)->text();
            }
        });
        w.press("m_btnCreate");
        QVERIFY(sheet->isVisible());
        QVERIFY(w.control<QWidget>("m_lbProgress")->isVisible());
        waitForTheEnd(w);
        QVERIFY(!sheet->isVisible());
        QVERIFY(!w.control<QWidget>("m_lbProgress")->isVisible());
        QVERIFY(!w.control<QWidget>("m_prgCreate")->isVisible());
        for (const QString &line :
             {u"000.pdf 0 of 3 done"_s, u"001.pdf 1 of 3 done"_s, u"002.pdf 2 of 3 done"_s}) {
            QVERIFY2(said.contains(line), qPrintable(said.join(u'\n')));
        }
    }

    void theListIsLockedDuringARun() {
        TestWindow w;
        addTexts(w, 3);
        w.select({0});
        w.press("m_btnCreate");
        QVERIFY(!w.ctrl.canEditList());
        w.table()->setFocus();
        w.key(Qt::Key_Delete);
        w.key(Qt::Key_Down, Qt::AltModifier);
        w.key(Qt::Key_A, Qt::ControlModifier);
        w.ctrl.clickBtnRemove();
        w.ctrl.clickBtnClear();
        w.ctrl.clickMenuMoveDown();
        w.ctrl.addFiles({w.path(u"000.txt"_s)}, -1);
        w.ctrl.clickBtnCreate();
        waitForTheEnd(w);
        QCOMPARE(w.names(), u"000.txt 001.txt 002.txt"_s);
        QCOMPARE(w.ctrl.filesArray().selectedRows(), std::vector<int>{0});
        QCOMPARE(outNames(w), u"000.pdf 001.pdf 002.pdf"_s);
        QVERIFY(w.ctrl.canEditList());
    }

    void settingsChangedDuringARunDoNotReachIt() {
        TestWindow w;
        addTexts(w, 3);
        w.control<QLineEdit>("m_tfTitle")->setText(u"before"_s);
        w.press("m_btnCreate");
        w.control<QLineEdit>("m_tfTitle")->setText(u"after"_s);
        w.control<QCheckBox>("m_btnMerge")->setChecked(true);
        waitForTheEnd(w);
        QCOMPARE(outNames(w), u"000.pdf 001.pdf 002.pdf"_s);
        for (const char *name : {"000.pdf", "001.pdf", "002.pdf"}) {
            const PdfProbe pdf(outPath(w, QString::fromLatin1(name)));
            QCOMPARE(pdf.info(u"Title"_s), u"before"_s);
        }
    }

    void theSheetCountsTheFilesOfAMergedPdfAndSaysThatItIsCompressed() {
        TestWindow w(bundlePath());
        addTexts(w, 3);
        mergeInto(w, u"all"_s);
        w.control<QComboBox>("m_comboCompressMethod")->setCurrentIndex(3);
        const auto *sheet = w.control<BusySheet>("m_alertWnd");
        const auto *bar = sheet->findChild<QProgressBar *>(u"busyBar"_s);
        QStringList said;
        QList<int> shares;
        connect(bar, &QProgressBar::valueChanged, this, [&](int value) {
            shares += value;
            said += sheet->findChild<QLabel *>(u"busyCount"_s)->text();
        });
        run(w);
        QVERIFY2(said.contains(u"2 of 3 files added"_s), qPrintable(said.join(u'\n')));
        QVERIFY2(said.contains(u"3 of 3 files added, compressing"_s), qPrintable(said.join(u'\n')));
        QVERIFY(std::ranges::is_sorted(shares));
        QCOMPARE(shares.last(), bar->maximum());
    }

    void theSheetsBarIsThatOfTheWholeRun() {
        TestWindow w;
        addTexts(w, 4);
        const auto *bar = w.control<BusySheet>("m_alertWnd")->findChild<QProgressBar *>();
        QList<int> shares;
        connect(bar, &QProgressBar::valueChanged, this, [&](int value) { shares += value; });
        run(w);
        QCOMPARE(shares, (QList<int>{0, 250, 500, 750, 1000})); // Of 1000.
    }

    void pagesFillTheFirstHalfOfTheBar() {
        TestWindow w;
        addTexts(w, 4);
        mergeInto(w, u"all"_s);
        auto *bar = w.control<QProgressBar>("m_prgCreate");
        bar->setValue(999);
        const QSignalSpy values(bar, &QProgressBar::valueChanged);
        run(w);
        QList<int> shown;
        for (const auto &value : values) {
            shown += value.front().toInt();
        }
        QCOMPARE(shown, (QList<int>{0, 125, 250, 375, 500})); // Of 1000.
    }

    void thePassPostsANotificationForEachPageThatFillsTheSecondHalfOfTheBar() {
        TestWindow w(bundlePath());
        addTexts(w, 3);
        mergeInto(w, u"all"_s);
        w.control<QComboBox>("m_comboCompressMethod")->setCurrentIndex(3);
        const QSignalSpy posted(&w.notifications, &NotificationCenter::posted);
        const QSignalSpy values(w.control<QProgressBar>("m_prgCreate"),
                                &QProgressBar::valueChanged);
        run(w);
        QCOMPARE(posted.size(), 3);
        for (int page = 0; page < 3; ++page) {
            QCOMPARE(posted[page][0].toString(), u"PDFDocumentDidEndPageWriteNotification"_s);
            QCOMPARE(posted[page][1].toMap()[u"PDFDocumentPageIndex"_s].toInt(), page);
        }
        QList<int> shown;
        for (const auto &value : values) {
            shown += value.front().toInt();
        }
        QCOMPARE(shown.last(3), (QList<int>{667, 833, 1000}));
    }

    void pageNotificationsOfOthersDuringAPassMoveTheBar() {
        TestWindow w(bundlePath());
        addTexts(w, 4);
        mergeInto(w, u"all"_s);
        w.control<QComboBox>("m_comboCompressMethod")->setCurrentIndex(3);
        auto *bar = w.control<QProgressBar>("m_prgCreate");
        QList<int> shown;
        connect(bar, &QProgressBar::valueChanged, this, [&](int value) {
            shown += value;
            if (value == 1000) {
                w.notifications.post(NotificationCenter::didEndPageWrite(),
                                     {{NotificationCenter::pageIndexKey(), 1}});
            }
        });
        run(w);
        QVERIFY(shown.contains(1000));
        QCOMPARE(shown.last(), 750);
    }

    void pageNotificationsOutsideAPassAreIgnored() {
        TestWindow w;
        addTexts(w, 1);
        auto *bar = w.control<QProgressBar>("m_prgCreate");
        const int before = bar->value();
        w.notifications.post(NotificationCenter::didEndPageWrite(),
                             {{NotificationCenter::pageIndexKey(), 3}});
        w.notifications.post(NotificationCenter::compressionCompleted());
        QCOMPARE(bar->value(), before);
        QCOMPARE(w.states(), u"Waiting..."_s);
    }

    void anEndAnnouncedByOthersDoesNotEndAFileBeingWritten() {
        TestWindow w;
        addTexts(w, 3);
        w.press("m_btnCreate");
        w.notifications.post(NotificationCenter::compressionCompleted());
        w.notifications.post(NotificationCenter::compressionCompleted());
        QVERIFY(w.ctrl.isConverting());
        waitForTheEnd(w);
        QCOMPARE(w.states(), u"000.pdf 001.pdf 002.pdf"_s);
    }

    void closingDuringARunLeavesOnlyWholeFiles_data() {
        QTest::addColumn<bool>("merge");
        QTest::addColumn<int>("finishedBefore");
        QTest::newRow("single at once") << false << 0;
        QTest::newRow("single after three") << false << 3;
        QTest::newRow("merge at once") << true << 0;
        QTest::newRow("merge after three") << true << 3;
    }

    void closingDuringARunLeavesOnlyWholeFiles() {
        QFETCH(const bool, merge);
        QFETCH(const int, finishedBefore);
        constexpr int kFiles = 400;
        constexpr int kBytes = 20'000;
        TestWindow w;
        QStringList paths;
        for (int i = 0; i < kFiles; ++i) {
            paths += w.file(u"%1.txt"_s.arg(i), QByteArray(kBytes, 'x'));
        }
        auto ctrl = std::make_unique<MainWndCtrl>(w.services());
        ctrl->window()->show();
        ctrl->addFiles(paths, -1);
        controlOf<QCheckBox>(*ctrl->window(), "m_btnMerge").setChecked(merge);
        closeDuringARun(*ctrl, finishedBefore);
        ctrl.reset();

        const QStringList names = outNames(w).split(u' ', Qt::SkipEmptyParts);
        QVERIFY2(names.size() < kFiles, qPrintable(QString::number(names.size())));
        for (const QString &name : names) {
            QVERIFY2(PdfProbe(outPath(w, name)).isValid(), qPrintable(name));
        }
        // A merge has no file before its last entry is in it.
        QVERIFY(merge ? names.isEmpty() : names.size() >= finishedBefore - 1);
        for (const QString &path : paths) {
            QCOMPARE(QFileInfo(path).size(), kBytes);
        }
    }
};

FOLIOFORGE_TEST(DuringARunTest)
#include "DuringARunTest.moc"
