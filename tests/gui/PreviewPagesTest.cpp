// SPDX-License-Identifier: Apache-2.0

#include "PreviewWindow.h"
#include "support/TestUnit.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// How the pages of the preview are turned.
class PreviewPagesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
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

    void theEndIsShownThoughItIsAskedForWhileAnotherPageIsDrawn() {
        PreviewWindow w;
        w.listText(u"long.txt"_s, QByteArray("a line of a long text\n").repeated(100'000));
        w.key(Qt::Key_Space);
        QTRY_COMPARE(w.number(), u"Page 1 of more than 64"_s);
        w.key(Qt::Key_Right);
        w.key(Qt::Key_End);
        QTRY_VERIFY(w.number().contains(u" of "_s) && !w.number().contains(u"more"_s));
        const QStringList words = w.number().split(u' ');
        QCOMPARE(words.at(1), words.at(3)); // "Page 8 of 8"
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
};

FOLIOFORGE_TEST(PreviewPagesTest)
#include "PreviewPagesTest.moc"
