// SPDX-License-Identifier: Apache-2.0

#include "OffscreenScreen.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include "mainwnd/NoticeBox.h"
#include "mainwnd/Notices.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QFontDatabase>
#include <QLabel>
#include <QMessageBox>
#include <QProxyStyle>
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

/// The box of `notice`, on the screen; null if it does not come.
QMessageBox *exposedBox(Notices &notices, QWidget &window, const Notice &notice) {
    window.show();
    notices.showSheet(&window, notice);
    QMessageBox *box = boxOf(window);
    return box && QTest::qWaitForWindowExposed(box) ? box : nullptr;
}

/// How far the ink of `widget` reaches from its left edge, in points.
int inkWidth(QWidget &widget) {
    const QImage image = widget.grab().toImage();
    const QRgb ground = image.pixel(0, 0);
    int right = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = image.width() - 1; x > right; --x) {
            if (image.pixel(x, y) != ground) {
                right = x;
            }
        }
    }
    return right + 1;
}

/// A desktop where the buttons of dialogs have icons.
class StyleWithIcons : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

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
        QMessageBox *box = exposedBox(notices, window, notice(names));
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
        const QMessageBox *box = exposedBox(notices, window, notice(message));
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

    void aShortNoticeIsAsWideAsOthers() {
        QWidget window;
        Notices notices;
        const QMessageBox *box = exposedBox(notices, window, notice(u"No."_s));
        QVERIFY(box && box->width() >= 360);
    }

    void aLongTitleIsShownInFull() {
        QWidget window;
        Notices notices;
        const QString title = u"Fail to import following files. They are encrypted or not normal "
                              "PDF files:"_s;
        const QMessageBox *box = exposedBox(notices, window, {title, u"    /a.pdf"_s});
        QVERIFY(box);
        const auto &label = *box->findChild<QLabel *>(u"qt_msgbox_label"_s);
        QCOMPARE(label.text(), title);
        QVERIFY(label.heightForWidth(label.width()) <= label.height());
        QFont bold = QFontDatabase::systemFont(QFontDatabase::TitleFont);
        bold.setBold(true);
        const int buttonsOfTheTitleBar = 100;
        const int bar = QFontMetrics(bold).horizontalAdvance(title) + buttonsOfTheTitleBar;
        QVERIFY2(box->width() >= bar, qPrintable(QString::number(box->width())));
    }

    void theLinesOfANoticeReadWell() {
        QWidget window;
        Notices notices;
        const QString message = u"Please choose a folder that you may write to, "_s.repeated(12);
        const QMessageBox *box = exposedBox(notices, window, notice(message));
        QVERIFY(box);
        auto &text = *box->findChild<QLabel *>(u"qt_msgbox_informativelabel"_s);
        const auto widthOf = [&](int letters) {
            return text.fontMetrics().horizontalAdvance(message.left(letters));
        };
        const int longest = inkWidth(text);
        QVERIFY2(longest <= widthOf(90), qPrintable(QString::number(longest)));
        QVERIFY2(longest >= widthOf(55), qPrintable(QString::number(longest)));
        QVERIFY(text.heightForWidth(text.width()) <= text.height());
    }

    void aNoticeHasTheStandardIcon() {
        QWidget window;
        Notices notices;
        const QMessageBox *box = exposedBox(notices, window, kNotice);
        QVERIFY(box);
        const auto *icon = box->findChild<QLabel *>(u"qt_msgboxex_icon_label"_s);
        QVERIFY(icon && icon->isVisible() && !icon->pixmap().isNull());
        QCOMPARE(box->icon(), QMessageBox::Warning);
    }

    void theButtonOfANoticeHasNoIconWhereOthersHave() {
        QApplication::setStyle(new StyleWithIcons);
        QWidget window;
        Notices notices;
        const QMessageBox *box = exposedBox(notices, window, kNotice);
        QVERIFY(box);
        QVERIFY(box->button(QMessageBox::Ok)->icon().isNull());
        const QMessageBox other(QMessageBox::NoIcon, u"A"_s, u"B"_s, QMessageBox::Ok);
        QVERIFY(!other.button(QMessageBox::Ok)->icon().isNull());
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

    void allFilePanelsAreOfOneKindAndSize() {
        QWidget window;
        Notices notices;
        for (const auto chooses : {FilePanel::Chooses::Files, FilePanel::Chooses::Folders,
                                   FilePanel::Chooses::FilesAndFolders}) {
            for (const bool multiple : {false, true}) {
                FilePanel panel;
                panel.chooses = chooses;
                panel.multiple = multiple;
                notices.showFilePanel(&window, panel, [](const QStringList & /*paths*/) {});
                const std::unique_ptr<QFileDialog> dialog(window.findChild<QFileDialog *>());
                QVERIFY(dialog->testOption(QFileDialog::DontUseNativeDialog));
                QCOMPARE(dialog->size(), QSize(800, 520));
            }
        }
    }

    void aFilePanelNamesTheKindsOfFiles_data() {
        QTest::addColumn<QStringList>("extensions");
        QTest::addColumn<QStringList>("shown");
        const QStringList text{u"txt"_s};
        const QStringList pdf{u"pdf"_s};
        QTest::newRow("of one kind") << text << QStringList{u"Text files"_s};
        QTest::newRow("of several kinds")
            << text + pdf
            << QStringList{u"Text files, images and PDF files"_s, u"Text files"_s, u"PDF files"_s};
    }
    void aFilePanelNamesTheKindsOfFiles() {
        QFETCH(const QStringList, extensions);
        QFETCH(const QStringList, shown);
        QWidget window;
        Notices notices;
        FilePanel panel;
        panel.extensions = extensions;
        notices.showFilePanel(&window, panel, [](const QStringList & /*paths*/) {});
        auto *kinds = window.findChild<QFileDialog *>()->findChild<QComboBox *>(u"fileTypeCombo"_s);
        QStringList names;
        for (int i = 0; i < kinds->count(); ++i) {
            names += kinds->itemText(i);
        }
        QCOMPARE(names, shown);
    }

    void aFilePanelShowsTheFilesOfItsKindAlone() {
        const QTemporaryDir folder;
        for (const char *name : {"a.PNG", "b.txt", "c.jpg", "dbmp"}) {
            writeFile(folder.filePath(QString::fromLatin1(name)), "x");
        }
        QWidget window;
        Notices notices;
        FilePanel panel;
        panel.extensions = {u"png"_s};
        panel.startFolder = folder.path();
        notices.showFilePanel(&window, panel, [](const QStringList & /*paths*/) {});
        auto *list =
            window.findChild<QFileDialog *>()->findChild<QAbstractItemView *>(u"treeView"_s);
        const auto shown = [list] {
            QStringList names;
            for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row) {
                names += list->model()->index(row, 0, list->rootIndex()).data().toString();
            }
            return names.join(u' ');
        };
        QTRY_COMPARE(shown(), u"a.PNG c.jpg"_s);
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

    void aChangeOfTheStyleLeavesTheTitleInFull() {
        const QString title(u"a title "_s.repeated(12).trimmed());
        NoticeBox box(QMessageBox::Warning, {title, u"file.pdf"_s}, nullptr);
        QEvent change(QEvent::StyleChange); // Comes with the first look at the style sheet.
        QCoreApplication::sendEvent(&box, &change);
        box.show();
        const auto *label = box.findChild<QLabel *>(u"qt_msgbox_label"_s);
        QVERIFY(label->width() >= label->fontMetrics().horizontalAdvance(title));
        QVERIFY(label->height() < 2 * label->fontMetrics().height());
    }
};

FOLIOFORGE_TEST(NoticesTest)
#include "NoticesTest.moc"
