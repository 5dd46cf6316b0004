// SPDX-License-Identifier: Apache-2.0

#include "gui/Drops.h"
#include "gui/RightClick.h"
#include "gui/TestWindow.h"
#include "support/TestUnit.h"

#include <QMenu>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

void addFour(TestWindow &w) {
    QStringList paths;
    for (const QChar letter : u"abcd"_s) {
        paths += w.file(letter + u".txt"_s);
    }
    w.ctrl.addFiles(paths, -1);
}

QMenu *openMenu(TestWindow &w, int row) {
    const QPoint spot = w.table()->visualRect(w.ctrl.filesArray().index(row, 1)).center();
    rightClick(w.ctrl.window()->windowHandle(),
               w.table()->viewport()->mapTo(w.ctrl.window(), spot));
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

QString enabledItems(const QMenu &menu) {
    QStringList titles;
    for (const QAction *item : menu.actions()) {
        if (item->isEnabled() && !item->isSeparator()) {
            titles += item->text();
        }
    }
    return titles.join(u'|');
}

void choose(QMenu &menu, const QString &title) {
    for (QAction *item : menu.actions()) {
        if (item->text() == title) {
            QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(item).center());
            return;
        }
    }
    qFatal("the menu has no %s", qPrintable(title));
}

} // namespace

class DroppingFilesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void filesGoInWhereTheyAreDroppedInDragOrder() {
        TestWindow w;
        addFour(w);
        QVERIFY(
            dropFiles(*w.table(), {w.file(u"z.txt"_s), w.file(u"x.txt"_s), w.file(u"y.txt"_s)}, 2));
        QCOMPARE(w.names(), u"a.txt b.txt z.txt x.txt y.txt c.txt d.txt"_s);
        QCOMPARE(w.numbers(), u"1 2 3 4 5 6 7"_s);
    }

    void filesDroppedBelowTheLastRowAreAppended() {
        TestWindow w;
        addFour(w);
        QVERIFY(dropFiles(*w.table(), {w.file(u"z.txt"_s)}, -1));
        QCOMPARE(w.names(), u"a.txt b.txt c.txt d.txt z.txt"_s);
    }

    void filesDroppedOnAnEmptyListEnableTheWindow() {
        TestWindow w;
        QVERIFY(dropFiles(*w.table(), {w.file(u"z.txt"_s)}, -1));
        QCOMPARE(w.names(), u"z.txt"_s);
        QCOMPARE(w.delegate.told, QList{true});
    }

    void onlyRecognisedExtensionsAreTaken() {
        TestWindow w;
        addFour(w);
        QVERIFY(dropFiles(*w.table(), {w.file(u"x.TIFF"_s), w.file(u"y.doc"_s)}, 1));
        QCOMPARE(w.names(), u"a.txt x.TIFF b.txt c.txt d.txt"_s);
    }

    void aDroppedFolderIsNotScannedAndRefusedAlone() {
        TestWindow w;
        QDir(w.home.path()).mkdir(u"folder.txt"_s);
        w.file(u"folder.txt/inside.txt"_s);
        const QString folder = w.path(u"folder.txt"_s);
        QVERIFY(!dropFiles(*w.table(), {folder}, -1));
        QVERIFY(w.ctrl.filesArray().isEmpty());
        QVERIFY(dropFiles(*w.table(), {folder, w.file(u"a.txt"_s)}, -1));
        QCOMPARE(w.names(), u"a.txt"_s);
    }

    void whatDoesNotExistOrIsNotRecognisedIsRefused() {
        TestWindow w;
        QVERIFY(!dropFiles(*w.table(), {w.path(u"gone.txt"_s)}, -1));
        QVERIFY(!dropFiles(*w.table(), {w.file(u"y.doc"_s)}, -1));
        QVERIFY(!dropFiles(*w.table(), {w.file(u"y.webp"_s), w.file(u"y.heic"_s)}, -1));
        QVERIFY(w.ctrl.filesArray().isEmpty());
        QCOMPARE(w.delegate.told, QList<bool>());
    }

    void anEmptyListOfFilesIsRefused() {
        TestWindow w;
        QMimeData nothing;
        nothing.setData(u"text/uri-list"_s, QByteArray());
        QVERIFY(!drop(*w.table(), nothing, -1));
        QMimeData page;
        page.setUrls({QUrl(u"https://example.org/a.txt"_s)});
        QVERIFY(!drop(*w.table(), page, -1));
    }

    void foreignDragsAreSwallowed() {
        TestWindow w;
        QMimeData words;
        words.setText(u"words"_s);
        QVERIFY(drop(*w.table(), words, -1));
        QVERIFY(w.ctrl.filesArray().isEmpty());
    }

    void aDroppedPdfThatIsNoneIsReported() {
        TestWindow w;
        QVERIFY(dropFiles(*w.table(), {w.file(u"bad.pdf"_s, "none")}, -1));
        QVERIFY(w.ctrl.filesArray().isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(w.messages().size(), 1);
    }

    void namesWithBlanksAndForeignLettersAreTaken() {
        TestWindow w;
        const QString name = QString::fromUtf8("größe 100% #1 日本.txt");
        QVERIFY(dropFiles(*w.table(), {w.file(name)}, -1));
        QCOMPARE(w.names(), name);
    }

    void theContextMenuFollowsTheListAndTheSelection() {
        TestWindow w;
        addFour(w);
        w.select({1, 2});
        QMenu *menu = openMenu(w, 3);
        QCOMPARE(enabledItems(*menu),
                 u"Remove|Clear|Sort By Name|Sort By Size|Sort By Data Created|"
                 "Sort By Data Modified"_s);
        menu->close();
        w.select({3});
        menu = openMenu(w, 0);
        QCOMPARE(enabledItems(*menu),
                 u"Remove|Clear|Sort By Name|Sort By Size|Sort By Data Created|"
                 "Sort By Data Modified|Move Up"_s);
        menu->close();
    }

    void theContextMenuOfAnEmptyListOffersNothing() {
        TestWindow w;
        rightClick(w.ctrl.window()->windowHandle(),
                   w.table()->viewport()->mapTo(w.ctrl.window(), QPoint(60, 60)));
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QCOMPARE(enabledItems(*menu), QString());
        QCOMPARE(menu->actions().at(3)->text(), u"Resort By Name"_s);
        menu->close();
    }

    void theContextMenusCommandsActOnTheList() {
        TestWindow w;
        addFour(w);
        w.select({1});
        choose(*openMenu(w, 3), u"Move Up"_s);
        QCOMPARE(w.names(), u"b.txt a.txt c.txt d.txt"_s);
        choose(*openMenu(w, 3), u"Move Down"_s);
        choose(*openMenu(w, 3), u"Move Down"_s);
        QCOMPARE(w.names(), u"a.txt c.txt b.txt d.txt"_s);
        choose(*openMenu(w, 0), u"Sort By Name"_s);
        QCOMPARE(w.names(), u"a.txt b.txt c.txt d.txt"_s);
        choose(*openMenu(w, 3), u"Remove"_s);
        QCOMPARE(w.names(), u"a.txt c.txt d.txt"_s);
        choose(*openMenu(w, 0), u"Clear"_s);
        QVERIFY(w.ctrl.filesArray().isEmpty());
    }

    void aClickOnAWaitingDestinationOnlySelects() {
        TestWindow w;
        addFour(w);
        const QPoint cell = w.table()->visualRect(w.ctrl.filesArray().index(0, 3)).center();
        QTest::mouseClick(w.table()->viewport(), Qt::LeftButton, {}, cell);
        QCOMPARE(w.table()->selectedRow(), 0);
        QCOMPARE(w.desktop.commands, QList<QByteArray>());
        QCOMPARE(w.desktop.files, QStringList());
    }
};

FOLIOFORGE_TEST(DroppingFilesTest)
#include "DroppingFilesTest.moc"
