// SPDX-License-Identifier: Apache-2.0

#include "OffscreenScreen.h"
#include "support/TestUnit.h"

#include "mainwnd/Notices.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

const Notice kNotice = notice(u"Something to know."_s);

QMessageBox *boxOf(QWidget &window) {
    return window.findChild<QMessageBox *>();
}

/// The box with `message`, on the screen; null if it does not come.
QMessageBox *exposedBox(Notices &notices, QWidget &window, const QString &message) {
    window.show();
    notices.showSheet(&window, notice(message));
    QMessageBox *box = boxOf(window);
    return box && QTest::qWaitForWindowExposed(box) ? box : nullptr;
}

} // namespace

class NoticesTest : public QObject {
    Q_OBJECT

  public:
    /// A box may never be as wide as this screen has room for.
    static void initMain() { useScreenOf({2560, 1440}); }

  private Q_SLOTS:
    void aSheetIsModalToItsWindowWithOneButton() {
        QWidget window;
        window.show();
        Notices notices;
        notices.showSheet(&window, kNotice);
        QMessageBox *box = boxOf(window);
        QVERIFY(box && box->isVisible());
        QCOMPARE(box->windowModality(), Qt::WindowModal);
        QCOMPARE(box->text(), u"Notice"_s);
        QCOMPARE(box->informativeText(), kNotice.message);
        QCOMPARE(box->buttons().size(), 1);
        QVERIFY(box->button(QMessageBox::Ok));
        QCOMPARE(notices.shown().size(), std::size_t(1));
        QVERIFY(notices.shown().front().kind == Notices::Kind::Sheet);
    }

    void theTextOfANoticeIsNeverReadAsMarkup() {
        QWidget window;
        Notices notices;
        notices.showSheet(&window, {u"Notice"_s, u"<b>a</b>.pdf"_s});
        QCOMPARE(boxOf(window)->textFormat(), Qt::PlainText);
    }

    void theButtonOfANoticeThatNamesThousandsOfFilesIsOnTheScreen() {
        QWidget window;
        Notices notices;
        const QString names = u"/a/damaged.pdf\n"_s.repeated(3000);
        QMessageBox *box = exposedBox(notices, window, names);
        QVERIFY(box && box->informativeText() == names);
        const int screen = box->screen()->availableGeometry().height();
        QVERIFY(box->height() < screen);
        const auto *text = box->findChild<QTextEdit *>();
        QVERIFY(text && text->verticalScrollBar()->maximum() > 10 * screen);
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
        QTRY_VERIFY(!boxOf(window));
    }

    void aNameWithoutAnyBreakIsReadableWhole() {
        QWidget window;
        Notices notices;
        const QString message = u"Damaged:\n%1.pdf"_s.arg(QString(240, u'W'));
        const QMessageBox *box = exposedBox(notices, window, message);
        QVERIFY(box);
        const auto *text = box->findChild<QTextEdit *>();
        QVERIFY(text);
        QVERIFY(text->isVisible() && text->toPlainText() == message);
        QVERIFY(box->rect().contains(text->geometry()));
        const QTextLayout &name = *text->document()->lastBlock().layout();
        QVERIFY(name.lineCount() > 1);
        for (int i = 0; i < name.lineCount(); ++i) {
            QVERIFY(name.lineAt(i).naturalTextWidth() <= text->viewport()->width());
        }
        QCOMPARE(text->verticalScrollBar()->maximum(), 0);
    }

    void anOrdinaryNoticeNeedsNoScrolling() {
        QWidget window;
        window.show();
        Notices notices;
        notices.showSheet(&window, notice(u"Many short words. "_s.repeated(20)));
        QVERIFY(!boxOf(window)->findChild<QTextEdit *>());
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
        notices.showPanel({u"Error"_s, u"Gone."_s});
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        QCOMPARE(box->windowModality(), Qt::ApplicationModal);
        QCOMPARE(box->windowTitle(), u"Error"_s);
        QTest::keyClick(box, Qt::Key_Return);
        QTRY_VERIFY(!QApplication::activeModalWidget());
    }

    void aPanelAnsweredInAdvanceGivesItsFilesLater() {
        QWidget window;
        Notices notices;
        const QStringList files{u"/a"_s, u"/b"_s};
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

FOLIOFORGE_TEST(NoticesTest)
#include "NoticesTest.moc"
