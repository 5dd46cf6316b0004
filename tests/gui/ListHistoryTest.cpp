// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/ListHistory.h"
#include "gui/TestWindow.h"
#include "support/TestUnit.h"

#include <QAction>
#include <QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

void undo(TestWindow &w) {
    w.key(Qt::Key_Z, Qt::ControlModifier);
}

void redo(TestWindow &w) {
    w.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
}

QLineEdit &name(TestWindow &w) {
    return *w.control<QLineEdit>("m_tfOutputName");
}

void addFive(TestWindow &w) {
    QStringList paths;
    for (const QChar letter : u"abcde"_s) {
        paths += w.file(letter + u".txt"_s);
    }
    w.ctrl.addFiles(paths, -1);
}

std::vector<PDFFileInfo> blank(std::size_t count) {
    return std::vector<PDFFileInfo>(count);
}

} // namespace

class ListHistoryTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void removedFilesComeBackWhereTheyWereAndAreSelected() {
        TestWindow w;
        addFive(w);
        w.select({0, 2, 3});
        w.press("m_btnRemove");
        undo(w);
        QCOMPARE(w.names(), u"a.txt b.txt c.txt d.txt e.txt"_s);
        QCOMPARE(w.numbers(), u"1 2 3 4 5"_s);
        QCOMPARE(w.ctrl.filesArray().selectedRows(), (std::vector<int>{0, 2, 3}));
        redo(w);
        QCOMPARE(w.names(), u"b.txt e.txt"_s);
        QCOMPARE(w.numbers(), u"1 2"_s);
    }

    void filesComeBackWithoutBeingReadAgain() {
        TestWindow w;
        w.ctrl.addFiles({w.file(u"a.txt"_s, "kept")}, -1);
        w.press("m_btnClear");
        QFile::remove(w.path(u"a.txt"_s));
        undo(w);
        QCOMPARE(w.ctrl.filesArray().at(0).getFileString(), u"kept"_s);
        QCOMPARE(w.states(), u"Waiting..."_s);
        QVERIFY(w.control<QWidget>("m_btnCreate")->isEnabled());
    }

    void addedFilesGoAndComeAgain() {
        TestWindow w;
        addFive(w);
        w.ctrl.addFiles({w.file(u"x.txt"_s), w.file(u"y.txt"_s)}, 1);
        undo(w);
        QCOMPARE(w.names(), u"a.txt b.txt c.txt d.txt e.txt"_s);
        redo(w);
        QCOMPARE(w.names(), u"a.txt x.txt y.txt b.txt c.txt d.txt e.txt"_s);
        undo(w);
        undo(w);
        QVERIFY(w.ctrl.filesArray().isEmpty());
        QVERIFY(!w.control<QWidget>("m_btnCreate")->isEnabled());
        QCOMPARE(w.delegate.told.last(), false);
    }

    void theNameComesBackWithTheList() {
        TestWindow w;
        addFive(w);
        name(w).setText(u"book"_s);
        w.press("m_btnClear");
        QCOMPARE(name(w).text(), QString());
        undo(w);
        QCOMPARE(name(w).text(), u"book"_s);
        undo(w);
        QCOMPARE(name(w).text(), QString());
        redo(w);
        QCOMPARE(name(w).text(), u"book"_s);
    }

    void aNameTypedSinceStays() {
        TestWindow w;
        addFive(w);
        w.press("m_btnClear");
        name(w).setText(u"typed"_s);
        undo(w);
        QCOMPARE(name(w).text(), u"typed"_s);
    }

    void aMovedFileGoesBackAndIsSelected() {
        TestWindow w;
        addFive(w);
        w.select({2});
        w.ctrl.clickMenuMoveDown();
        w.select({0});
        undo(w);
        QCOMPARE(w.names(), u"a.txt b.txt c.txt d.txt e.txt"_s);
        QCOMPARE(w.ctrl.filesArray().selectedRows(), std::vector<int>{2});
        redo(w);
        QCOMPARE(w.names(), u"a.txt b.txt d.txt c.txt e.txt"_s);
        QCOMPARE(w.numbers(), u"1 2 3 4 5"_s);
    }

    void whatChangesNothingIsNoStep() {
        TestWindow w;
        addFive(w);
        w.select({});
        w.press("m_btnRemove");
        w.ctrl.clickMenuResortByName();
        w.ctrl.addFiles({}, -1);
        undo(w);
        QVERIFY(w.ctrl.filesArray().isEmpty());
    }

    void aChangeDropsWhatWasTakenBack() {
        TestWindow w;
        addFive(w);
        w.select({0});
        w.press("m_btnRemove");
        undo(w);
        w.select({1});
        w.press("m_btnRemove");
        redo(w);
        QCOMPARE(w.names(), u"a.txt c.txt d.txt e.txt"_s);
        undo(w);
        QCOMPARE(w.names(), u"a.txt b.txt c.txt d.txt e.txt"_s);
        undo(w);
        QVERIFY(w.ctrl.filesArray().isEmpty());
    }

    void aFinishedFileComesBackFinished() {
        TestWindow w;
        w.ctrl.addFiles({w.file(u"a.txt"_s)}, -1);
        w.press("m_btnCreate");
        QTRY_VERIFY(!w.ctrl.isConverting());
        w.press("m_btnClear");
        undo(w);
        QCOMPARE(w.ctrl.filesArray().at(0).stateIndex(), int(FinishedAsLink));
        QCOMPARE(w.states(), u"a.pdf"_s);
    }

    void theActionsNameTheirSteps() {
        FilesArray files;
        ListHistory history(files);
        QCOMPARE(history.undoAction()->text(), u"Undo"_s);
        QVERIFY(!history.undoAction()->isEnabled());
        history.insert(u"Add"_s, -1, blank(3));
        history.move(u"Move Up"_s, 1, 0);
        QCOMPARE(history.undoAction()->text(), u"Undo Move Up"_s);
        history.undo({});
        QCOMPARE(history.undoAction()->text(), u"Undo Add"_s);
        QCOMPARE(history.redoAction()->text(), u"Redo Move Up"_s);
        QVERIFY(history.redoAction()->isEnabled());
        history.setLocked(true);
        QVERIFY(!history.undoAction()->isEnabled() && !history.redoAction()->isEnabled());
    }

    void theOldestStepsAreForgotten() {
        FilesArray files;
        ListHistory history(files);
        history.insert(u"Add"_s, -1, blank(2));
        for (std::size_t i = 0; i < ListHistory::kMaxSteps; ++i) {
            history.move(u"Move Up"_s, 1, 0);
        }
        int steps = 0;
        while (history.undoAction()->isEnabled()) {
            history.undo({});
            ++steps;
        }
        QCOMPARE(steps, int(ListHistory::kMaxSteps));
        QCOMPARE(files.count(), 2);
    }

    void stepsDoNotHoldFilesWithoutEnd() {
        FilesArray files;
        ListHistory history(files);
        const std::size_t many = ListHistory::kMaxEntries - 1;
        history.insert(u"Add"_s, -1, blank(1));
        history.insert(u"Add"_s, -1, blank(many));
        QVERIFY(history.undoAction()->isEnabled());
        std::vector<int> rows(many);
        std::ranges::generate(rows, [row = 0]() mutable { return row++; });
        history.remove(u"Remove"_s, rows, {});
        history.undo({});
        QCOMPARE(files.count(), int(many) + 1);
        QVERIFY(!history.undoAction()->isEnabled());
    }
};

FOLIOFORGE_TEST(ListHistoryTest)
#include "ListHistoryTest.moc"
