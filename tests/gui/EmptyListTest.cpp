// SPDX-License-Identifier: Apache-2.0

#include "gui/TestWindow.h"
#include "skin/LightLook.h"
#include "support/TestUnit.h"

#include <QDragEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

struct EmptyWindow : TestWindow {
    EmptyWindow()
        : TestWindow(realBundle()) {}

    QWidget &viewport() { return *table()->viewport(); }
    [[nodiscard]] QImage picture() { return viewport().grab().toImage(); }
    QLabel &line() { return *control<QLabel>("emptyHintLine"); }
    /// What stands before the name in `row`.
    [[nodiscard]] QImage markIn(int row) {
        const QRect cell = table()->visualRect(ctrl.filesArray().index(row, 1));
        return picture().copy(cell.left(), cell.top() + 2, 22, cell.height() - 4);
    }
};

int inkIn(const QImage &picture) {
    int ink = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ink += picture.pixelColor(x, y).lightness() < 200 ? 1 : 0;
        }
    }
    return ink;
}

} // namespace

/// What the list shows while it is empty and while files are dragged over it, and the marks of
/// kinds.
class EmptyListTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { applyLightLook(*qApp); }

    void theLineStandsBelowAPictureInTheMiddle() {
        EmptyWindow w;
        QCOMPARE(w.line().text(), u"Drop files here, or add them with the buttons above"_s);
        const QRect line(w.line().mapTo(&w.viewport(), QPoint()), w.line().size());
        QVERIFY(std::abs(line.center().x() - w.viewport().rect().center().x()) <= 1);
        const QRect above(line.center().x() - 56, line.top() - 100, 112, 90);
        QVERIFY(inkIn(w.picture().copy(above)) > 500);
    }

    void theButtonsAddFilesAndFolders() {
        EmptyWindow w;
        w.notices.setNextFiles({});
        w.notices.setNextFiles({});
        w.press("emptyHintFiles");
        w.press("emptyHintFolder");
        const std::vector<FilePanel> &panels = w.notices.filePanels();
        QCOMPARE(panels.size(), std::size_t(2));
        QVERIFY(panels.at(0).chooses == FilePanel::Chooses::FilesAndFolders);
        QVERIFY(panels.at(1).chooses == FilePanel::Chooses::Folders);
    }

    void theHintIsThereWhileTheListIsEmpty() {
        EmptyWindow w;
        QVERIFY(w.line().isVisible());
        w.ctrl.addFiles({w.file(u"a.txt"_s)}, -1);
        QVERIFY(!w.line().isVisible());
        w.press("m_btnClear");
        QVERIFY(w.line().isVisible());
    }

    void aLowListGivesUpThePicture() {
        EmptyWindow w;
        w.ctrl.window()->resize(w.ctrl.window()->minimumSize());
        QTRY_VERIFY(w.table()->height() < 200);
        QCoreApplication::processEvents();
        const QRect line(w.line().mapTo(&w.viewport(), QPoint()), w.line().size());
        const auto &button = *w.control<QPushButton>("emptyHintFiles");
        const QRect below(button.mapTo(&w.viewport(), QPoint()), button.size());
        QVERIFY(w.viewport().rect().contains(line) && w.viewport().rect().contains(below));
        QVERIFY(!line.intersects(below));
        QCOMPARE(inkIn(w.picture().copy(0, 0, w.viewport().width(), line.top())), 0);
    }

    void theHintLeavesDropsAndTheMenuToTheList() {
        EmptyWindow w;
        QWidget *target = &w.line();
        while (!target->acceptDrops()) {
            target = target->parentWidget();
        }
        QCOMPARE(target, &w.viewport());
        QTest::mouseClick(w.ctrl.window()->windowHandle(), Qt::RightButton, {},
                          w.line().mapTo(w.ctrl.window(), w.line().rect().center()));
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QCOMPARE(menu->title(), u"Contextual Menu"_s);
        menu->close();
    }

    void theWholeListIsLitWhileFilesAreDraggedOverIt() {
        EmptyWindow w;
        const QImage before = w.picture();
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(w.file(u"a.txt"_s))});
        QDragEnterEvent enter(w.viewport().rect().center(), Qt::CopyAction, &files, Qt::LeftButton,
                              {});
        QApplication::sendEvent(&w.viewport(), &enter);
        const QImage lit = w.picture();
        for (const QPoint &spot :
             {QPoint(20, 60), QPoint(20, 20), QPoint(lit.width() - 20, lit.height() - 20)}) {
            QVERIFY(lit.pixelColor(spot).red() < before.pixelColor(spot).red() - 10);
        }
        QDragLeaveEvent leave;
        QApplication::sendEvent(&w.viewport(), &leave);
        QCOMPARE(w.picture(), before);
    }

    void aMarkBeforeTheNameTellsTheKind() {
        EmptyWindow w;
        w.ctrl.addFiles({w.file(u"a.txt"_s), writePng(w.path(u"b.png"_s), 8, 8),
                         writePdf(w.path(u"c.pdf"_s), 1), w.file(u"d.txt"_s), w.file(u"e.txt"_s)},
                        -1);
        QCOMPARE(w.ctrl.filesArray().count(), 5);
        w.control<QWidget>("m_btnClear")->setFocus(); // Without the ring of the focus.
        for (int row = 0; row < 5; ++row) {
            QVERIFY(inkIn(w.markIn(row)) > 20);
        }
        // Rows 1 and 3, 0 and 2 have the same ground.
        QVERIFY(w.markIn(0) != w.markIn(2));
        QVERIFY(w.markIn(1) != w.markIn(3));
        QCOMPARE(w.markIn(4), w.markIn(0));
        QVERIFY(w.markIn(4) != w.markIn(2));
    }
};

FOLIOFORGE_TEST(EmptyListTest)
#include "EmptyListTest.moc"
