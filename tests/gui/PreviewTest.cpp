// SPDX-License-Identifier: Apache-2.0

#include "OffscreenScreen.h"
#include "PreviewWindow.h"
#include "support/PhotoPage.h"
#include "support/TestUnit.h"

#include "app/FolioforgeAppDelegate.h"

#include <QAccessible>
#include <QRadioButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// `page` drawn by poppler in the size of `like`.
QImage drawnByPoppler(const QString &path, const QImage &like) {
    return PdfProbe(path).render(1, 144).scaled(like.size(), Qt::IgnoreAspectRatio,
                                                Qt::SmoothTransformation);
}

QImage whitePage(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

bool looksLike(const QImage &page, const QImage &expected) {
    return difference(page, expected) < difference(whitePage(expected.size()), expected) / 2;
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

} // namespace

/// What the preview shows, and when.
class PreviewTest : public QObject {
    Q_OBJECT

  public:
    static void initMain() { useScreenOf({1920, 1200}); } // A small one would scroll the window.

  private Q_SLOTS:
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

    void theReadableLayoutIsShown() {
        PreviewWindow w;
        w.listText(u"words.txt"_s, QByteArray("one\n\n\n\n\n\n\n\n\n\ntwo"));
        w.key(Qt::Key_Space);
        QTRY_VERIFY(!w.page().isNull());
        const QImage plain = w.page();
        tickReadable(w);
        QTRY_VERIFY(w.page().size() == plain.size() && w.page() != plain);
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
};

FOLIOFORGE_TEST(PreviewTest)
#include "PreviewTest.moc"
