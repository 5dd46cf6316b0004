// SPDX-License-Identifier: Apache-2.0

#include "ConvertingCase.h"
#include "support/PhotoPage.h"
#include "support/TestUnit.h"

#include "app/FolioforgeAppDelegate.h"
#include "preview/PageView.h"
#include "preview/Preview.h"
#include "preview/PreviewPanel.h"

#include <QLabel>
#include <QMenuBar>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

#include <algorithm>
#include <csignal>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// A window with a preview.
class PreviewWindow : public TestWindow {
  public:
    explicit PreviewWindow(const QString &bundle = realBundle())
        : TestWindow(bundle) {}

    /// Lists a PDF of `pages` pages, which measure 200, 210, ... x 100 points.
    void listPdf(int pages) {
        ctrl.addFiles({writePdf(path(u"pages.pdf"_s), pages)}, -1);
        choose(0);
    }
    void listText(const QString &name, const QByteArray &words) {
        ctrl.addFiles({file(name, words)}, -1);
        choose(ctrl.filesArray().count() - 1);
    }
    /// Makes `row` the current one, as a click does.
    void choose(int row) {
        const QRect cell = table()->visualRect(ctrl.filesArray().index(row, 1));
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, cell.center());
    }
    [[nodiscard]] bool isShown() {
        const auto *panel = ctrl.window()->findChild<PreviewPanel *>();
        return panel != nullptr && panel->isVisible();
    }
    [[nodiscard]] PreviewPanel &panel() {
        return controlOf<PreviewPanel>(*ctrl.window(), "previewPanel");
    }
    [[nodiscard]] const QImage &page() { return panel().view().page(); }
    [[nodiscard]] double width() { return double(page().width()) / page().height(); }
    [[nodiscard]] QString number() { return controlOf<QLabel>(panel(), "previewNumber").text(); }
    void pressInPanel(const QString &name) {
        for (auto *button : panel().findChildren<QToolButton *>()) {
            if (button->accessibleName() == name) {
                QTest::mouseClick(button, Qt::LeftButton);
            }
        }
    }
};

/// `page` drawn by poppler in the size of `like`.
QImage drawnByPoppler(const QString &path, const QImage &like) {
    return PdfProbe(path).render(1, 144).scaled(like.size(), Qt::IgnoreAspectRatio,
                                                Qt::SmoothTransformation);
}

/// Pages measure whole pixels.
bool isAbout(double ratio, double expected) {
    return qAbs(ratio - expected) < 0.02;
}

QImage whitePage(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

bool looksLike(const QImage &page, const QImage &expected) {
    return difference(page, expected) < difference(whitePage(expected.size()), expected) / 2;
}

QAction *viewMenu(const QMainWindow &window) {
    const QList<QAction *> menus = window.menuBar()->actions();
    const auto found = std::ranges::find(menus, u"&View"_s, &QAction::text);
    return found == menus.end() ? nullptr : *found;
}

/// Shows the text options and types a page size.
void typePageSize(TestWindow &w, const char *pageWidth, const char *pageHeight) {
    w.press("m_btnExpand");
    w.press("m_btnTxtSetting");
    QTest::mouseClick(w.control<QRadioButton>("textCustom"), Qt::LeftButton);
    for (const auto &[name, value] : {std::pair("m_tfTextCustomizedPageWidth", pageWidth),
                                      std::pair("m_tfTextCustomizedPageHeight", pageHeight)}) {
        auto *field = w.control<QLineEdit>(name);
        field->clear();
        QTest::keyClicks(field, QLatin1StringView(value));
    }
}

/// A bundle whose program for pages is a script that never ends and writes its number to `number`.
QString endlessBundle(const QTemporaryDir &folder) {
    QString bundle = folder.filePath(u"Endless.app"_s);
    const QString program = Preview::programIn(bundle);
    QDir().mkpath(QFileInfo(program).path());
    writeFile(program, "#!/bin/sh\necho $$ >'" + QFile::encodeName(folder.filePath(u"number"_s)) +
                           "'\nexec sleep 1000\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return bundle;
}

} // namespace

class PreviewTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() {
        if (!QFile::exists(Preview::programIn(bundlePath()))) {
            QSKIP("this build has no program that draws pages");
        }
    }

    void spaceShowsThePageBesideTheList() {
        PreviewWindow w;
        w.listPdf(1);
        const QRect before = w.ctrl.window()->geometry();
        w.key(Qt::Key_Space);
        QVERIFY(w.isShown());
        QVERIFY(w.panel().view().hasFocus());
        QTRY_VERIFY(isAbout(w.width(), 2));
        const QRect list(w.table()->mapToGlobal(QPoint()), w.table()->size());
        const QRect panel(w.panel().mapToGlobal(QPoint()), w.panel().size());
        QCOMPARE(panel.left(), list.right() + 1);
        QCOMPARE(panel.top(), list.top());
        QCOMPARE(w.ctrl.window()->geometry(), before);
    }

    void spaceAndEscapeHideItAndTheListHasTheKeysAgain_data() {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Space") << Qt::Key_Space;
        QTest::newRow("Escape") << Qt::Key_Escape;
    }
    void spaceAndEscapeHideItAndTheListHasTheKeysAgain() {
        QFETCH(const Qt::Key, key);
        PreviewWindow w;
        w.listPdf(1);
        const int least = w.ctrl.window()->minimumSizeHint().width();
        w.key(Qt::Key_Space);
        QCOMPARE(w.ctrl.window()->minimumSizeHint().width(), least);
        w.key(key);
        QVERIFY(!w.isShown());
        QVERIFY(w.table()->hasFocus());
        w.key(Qt::Key_Space);
        QVERIFY(w.isShown());
        w.pressInPanel(u"Close the preview"_s);
        QVERIFY(!w.isShown());
    }

    void aTextLooksAsItIsWritten() {
        PreviewWindow w;
        w.listText(u"letter.txt"_s,
                   QByteArray("Good morning, here is a line of text\n").repeated(30));
        w.key(Qt::Key_Space);
        QTRY_VERIFY(!w.page().isNull());
        const QImage shown = w.page();
        w.key(Qt::Key_Escape);
        run(w);
        const QString pdf = outPath(w, u"letter.pdf"_s);
        QVERIFY(looksLike(shown, drawnByPoppler(pdf, shown)));
    }

    void aPictureLooksAsItIsWritten() {
        PreviewWindow w;
        const QImage picture = test::photo(300, 200);
        picture.save(w.path(u"photo.png"_s));
        w.ctrl.addFiles({w.path(u"photo.png"_s)}, -1);
        w.choose(0);
        w.key(Qt::Key_Space);
        QTRY_VERIFY(isAbout(w.width(), 1.5));
        QVERIFY(looksLike(w.page(), picture.scaled(w.page().size(), Qt::IgnoreAspectRatio,
                                                   Qt::SmoothTransformation)));
    }

    void changedSettingsChangeThePage() {
        PreviewWindow w;
        w.listText(u"letter.txt"_s, "words\n");
        w.key(Qt::Key_Space);
        QTRY_VERIFY(!w.page().isNull());
        QVERIFY(w.width() < 1); // A4
        typePageSize(w, "400", "200");
        QTRY_VERIFY(isAbout(w.width(), 2));
    }

    void settingsWithoutAPageAreSaidInWords() {
        PreviewWindow w;
        w.listText(u"letter.txt"_s, "words\n");
        w.key(Qt::Key_Space);
        typePageSize(w, "1", "200");
        QTRY_COMPARE(w.panel().view().words(),
                     u"The value of page margin is larger than page width, "
                     "please modify your text output setting."_s);
        QVERIFY(w.page().isNull());
        QVERIFY(w.notices.shown().empty());
    }

    void keysThatComeFastAllCount() {
        PreviewWindow w;
        w.listPdf(3);
        w.key(Qt::Key_Space);
        QTRY_COMPARE(w.number(), u"Page 1 of 3"_s);
        w.key(Qt::Key_Right);
        w.key(Qt::Key_Right);
        QTRY_COMPARE(w.number(), u"Page 3 of 3"_s);
        w.key(Qt::Key_End);
        w.key(Qt::Key_Left);
        QTRY_COMPARE(w.number(), u"Page 2 of 3"_s);
    }

    void arrowsTurnPages() {
        PreviewWindow w;
        w.listPdf(3);
        w.key(Qt::Key_Space);
        QTRY_COMPARE(w.number(), u"Page 1 of 3"_s);
        const std::vector<std::pair<Qt::Key, int>> keys{
            {Qt::Key_Right, 2}, {Qt::Key_Down, 3}, {Qt::Key_Left, 2},     {Qt::Key_Up, 1},
            {Qt::Key_End, 3},   {Qt::Key_Home, 1}, {Qt::Key_PageDown, 2}, {Qt::Key_PageUp, 1}};
        for (const auto &[key, page] : keys) {
            w.key(key);
            QTRY_COMPARE(w.number(), u"Page %1 of 3"_s.arg(page));
            QVERIFY(isAbout(w.width(), (190 + 10 * page) / 100.0));
        }
        w.pressInPanel(u"Next page"_s);
        QTRY_COMPARE(w.number(), u"Page 2 of 3"_s);
        w.pressInPanel(u"Previous page"_s);
        QTRY_COMPARE(w.number(), u"Page 1 of 3"_s);
    }

    void theTabKeyLeadsThroughItBesideTheList() {
        PreviewWindow w;
        w.listPdf(3);
        w.key(Qt::Key_Space);
        QTRY_COMPARE(w.number(), u"Page 1 of 3"_s);
        w.key(Qt::Key_Tab);
        w.key(Qt::Key_Space); // Next page
        QTRY_COMPARE(w.number(), u"Page 2 of 3"_s);
        w.panel().view().setFocus();
        w.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(w.table()->hasFocus());
    }

    void pagesOfALongTextAreWrittenAsTheyAreAskedFor() {
        PreviewWindow w;
        w.listText(u"long.txt"_s, QByteArray("a line of a long text\n").repeated(100'000));
        w.key(Qt::Key_Space);
        QTRY_COMPARE(w.number(), u"Page 1 of more than 64"_s);
        for (int page = 1; page < 65; ++page) {
            w.key(Qt::Key_Right);
        }
        QTRY_COMPARE(w.number(), u"Page 65 of more than 128"_s);
    }

    void theEndOfALongTextIsItsLastPage() {
        PreviewWindow w;
        w.listText(u"long.txt"_s, QByteArray("a line of a long text\n").repeated(30'000));
        w.key(Qt::Key_Space);
        QTRY_COMPARE(w.number(), u"Page 1 of more than 64"_s);
        w.key(Qt::Key_End);
        QTRY_VERIFY(w.number().contains(u" of "_s) && !w.number().contains(u"more"_s));
        const QString shown = w.number();
        w.key(Qt::Key_Home);
        QTRY_VERIFY(w.number().startsWith(u"Page 1 of "_s));
        w.key(Qt::Key_Escape);
        run(w);
        const int pages = PdfProbe(outPath(w, u"long.pdf"_s)).pageCount();
        QVERIFY(pages > 128);
        QCOMPARE(shown, u"Page %1 of %1"_s.arg(pages));
    }

    void aPageBeforeTheEndIsShownWhileTheEndIsWritten() {
        PreviewWindow w;
        w.listText(u"long.txt"_s, QByteArray("a line of a long text\n").repeated(100'000));
        w.key(Qt::Key_Space);
        QTRY_COMPARE(w.number(), u"Page 1 of more than 64"_s);
        w.key(Qt::Key_End);
        w.key(Qt::Key_Home);
        QTRY_COMPARE(w.number(), u"Page 1 of more than 64"_s);
        QTRY_VERIFY(w.number().startsWith(u"Page 1 of "_s) && !w.number().contains(u"more"_s));
    }

    void theSelectedEntryIsShown() {
        PreviewWindow w;
        w.listText(u"letter.txt"_s, "words\n");
        w.listPdf(2);
        w.key(Qt::Key_Space);
        QTRY_COMPARE(w.number(), u"Page 1 of 1"_s);
        w.choose(1);
        QTRY_COMPARE(w.number(), u"Page 1 of 2"_s);
        w.press("m_btnClear");
        QTRY_COMPARE(w.panel().view().words(), u"Select a file to see its pages"_s);
    }

    void aFinishedEntryShowsItsDocument() {
        PreviewWindow w;
        w.listText(u"letter.txt"_s, "words\n");
        run(w);
        w.choose(0);
        typePageSize(w, "400", "200");
        w.table()->setFocus();
        w.key(Qt::Key_Space);
        QTRY_VERIFY(!w.page().isNull());
        QVERIFY(w.width() < 1); // A4, as it was when the PDF was made.
    }

    void aDocumentThatWasDeletedIsSaidToBeGone_data() {
        QTest::addColumn<bool>("showsIt");
        QTest::newRow("while it is shown") << true;
        QTest::newRow("before it is shown") << false;
    }
    void aDocumentThatWasDeletedIsSaidToBeGone() {
        QFETCH(const bool, showsIt);
        PreviewWindow w;
        w.listText(u"letter.txt"_s, "words\n");
        run(w);
        w.choose(0);
        if (showsIt) {
            w.key(Qt::Key_Space);
            QTRY_COMPARE(w.number(), u"Page 1 of 1"_s);
        }
        QVERIFY(QFile::remove(outPath(w, u"letter.pdf"_s)));
        w.key(showsIt ? Qt::Key_Home : Qt::Key_Space);
        QTRY_COMPARE(w.panel().view().words(), u"The PDF is no longer there"_s);
        QCOMPARE(w.number(), QString());
    }

    void anEntryWithoutAPageSaysWhy() {
        PreviewWindow w;
        w.ctrl.addFiles({w.file(u"broken.png"_s, "no picture\n")}, -1);
        w.choose(0);
        w.key(Qt::Key_Space);
        QTRY_VERIFY(!w.panel().view().words().isEmpty());
        QCOMPARE(w.panel().view().accessibleName(), w.panel().view().words());
    }

    void aDrawingThatNeverEndsLeavesTheWindowAlive() {
        const QTemporaryDir folder;
        PreviewWindow w(endlessBundle(folder));
        w.listPdf(1);
        w.key(Qt::Key_Space);
        QTRY_COMPARE(w.panel().view().words(), u"Drawing the page…"_s);
        const QString number = folder.filePath(u"number"_s);
        QTRY_VERIFY(QFile::exists(number));
        const pid_t process = readFile(number).trimmed().toInt();
        QVERIFY(process > 0 && ::kill(process, 0) == 0);
        w.key(Qt::Key_Escape);
        QVERIFY(!w.isShown());
        QTRY_VERIFY(::kill(process, 0) != 0);
    }

    void aScreenReaderIsToldThePage() {
        PreviewWindow w;
        w.listPdf(2);
        w.key(Qt::Key_Space);
        QTRY_COMPARE(w.panel().view().accessibleName(), u"Page 1 of 2, pages.pdf"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(&w.panel().view())->role(),
                 QAccessible::Graphic);
        QCOMPARE(w.panel().accessibleName(), u"Preview"_s);
    }

    void theMenuShowsAndHidesIt() {
        WindowWorld world;
        FolioforgeAppDelegate delegate(world.services());
        delegate.applicationDidFinishLaunching();
        QMainWindow &window = *delegate.mainWndCtrl().window();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(viewMenu(window)->isVisible());
        QAction *item = viewMenu(window)->menu()->actions().constFirst();
        QCOMPARE(item->text(), u"&Preview"_s);
        QTest::keyClick(window.windowHandle(), Qt::Key_F3);
        QVERIFY(controlOf<PreviewPanel>(window, "previewPanel").isVisible());
        QVERIFY(item->isChecked());
        QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
        QVERIFY(!item->isChecked());
        item->trigger();
        QVERIFY(controlOf<PreviewPanel>(window, "previewPanel").isVisible());
    }

    void withoutTheProgramThereIsNoPreview() {
        PreviewWindow w(QString{});
        w.listPdf(1);
        w.key(Qt::Key_Space);
        QVERIFY(!w.isShown());
        WindowWorld world;
        FolioforgeAppDelegate delegate(world.services(world.path(u"Other.app"_s)));
        delegate.applicationDidFinishLaunching();
        QVERIFY(!viewMenu(*delegate.mainWndCtrl().window())->isVisible());
    }
};

FOLIOFORGE_TEST(PreviewTest)
#include "PreviewTest.moc"
