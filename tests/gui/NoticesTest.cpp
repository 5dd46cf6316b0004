#include "mainwnd/Notices.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

using namespace folioforge;

namespace {

const Notice kNotice = notice(QStringLiteral("Something to know."));

QMessageBox *boxOf(QWidget &window) {
    return window.findChild<QMessageBox *>();
}

} // namespace

class NoticesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aSheetIsModalToItsWindowWithOneButton() {
        QWidget window;
        window.show();
        Notices notices;
        notices.showSheet(&window, kNotice);
        QMessageBox *box = boxOf(window);
        QVERIFY(box && box->isVisible());
        QCOMPARE(box->windowModality(), Qt::WindowModal);
        QCOMPARE(box->text(), QStringLiteral("Notice"));
        QCOMPARE(box->informativeText(), kNotice.message);
        QCOMPARE(box->buttons().size(), 1);
        QVERIFY(box->button(QMessageBox::Ok));
        QCOMPARE(notices.shown().size(), std::size_t(1));
        QVERIFY(notices.shown().front().kind == Notices::Kind::Sheet);
    }

    void theTextOfANoticeIsNeverReadAsMarkup() {
        QWidget window;
        Notices notices;
        notices.showSheet(&window, {QStringLiteral("Notice"), QStringLiteral("<b>a</b>.pdf")});
        QCOMPARE(boxOf(window)->textFormat(), Qt::PlainText);
    }

    void theButtonOfANoticeThatNamesThousandsOfFilesIsOnTheScreen() {
        QWidget window;
        window.show();
        Notices notices;
        const QString names = QStringLiteral("/a/damaged.pdf\n").repeated(3000);
        notices.showSheet(&window, {QStringLiteral("Notice"), names});
        QMessageBox *box = boxOf(window);
        QVERIFY(box && QTest::qWaitForWindowExposed(box));
        QCOMPARE(box->informativeText(), names);
        const QRect screen = box->screen()->availableGeometry();
        QVERIFY(box->height() < screen.height());
        const auto *area = box->findChild<QScrollArea *>();
        QVERIFY(area && area->verticalScrollBar()->maximum() > 10 * screen.height());
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
        QTRY_VERIFY(!boxOf(window));
    }

    void whatFollowsASheetComesWhenItHasGone() {
        QWidget window;
        window.show();
        Notices notices;
        bool ended = false;
        notices.showSheet(&window, kNotice, [&] {
            ended = true;
            QVERIFY(!boxOf(window) || !boxOf(window)->isVisible());
        });
        QTest::mouseClick(boxOf(window)->button(QMessageBox::Ok), Qt::LeftButton);
        QVERIFY(!ended);
        QTRY_VERIFY(ended);
    }

    void aPanelIsModalToTheApplication() {
        Notices notices;
        notices.showPanel({QStringLiteral("Error"), QStringLiteral("Gone.")});
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        QCOMPARE(box->windowModality(), Qt::ApplicationModal);
        QCOMPARE(box->windowTitle(), QStringLiteral("Error"));
        QTest::keyClick(box, Qt::Key_Return);
        QTRY_VERIFY(!QApplication::activeModalWidget());
    }

    void aPanelAnsweredInAdvanceGivesItsFilesLater() {
        QWidget window;
        Notices notices;
        const QStringList files{QStringLiteral("/a"), QStringLiteral("/b")};
        notices.setNextFiles(files);
        QStringList chosen;
        notices.showFilePanel(&window, {}, [&](const QStringList &paths) { chosen = paths; });
        QVERIFY(chosen.isEmpty());
        QTRY_COMPARE(chosen, files);
        QVERIFY(!window.findChild<QFileDialog *>());
    }

    void aCancelledPanelGivesNoFiles() {
        QWidget window;
        window.show();
        Notices notices;
        bool answered = false;
        FilePanel panel;
        panel.chooses = FilePanel::Chooses::FilesAndFolders;
        notices.showFilePanel(&window, panel, [&](const QStringList &paths) {
            answered = true;
            QVERIFY(paths.isEmpty());
        });
        auto *dialog = window.findChild<QFileDialog *>();
        QVERIFY(dialog && dialog->isVisible());
        QCOMPARE(dialog->windowModality(), Qt::WindowModal);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QTRY_VERIFY(answered);
    }
};

QTEST_MAIN(NoticesTest)
#include "NoticesTest.moc"
