// SPDX-License-Identifier: Apache-2.0

#include "mainwnd/FilesArray.h"
#include "support/TestUnit.h"

#include <QAbstractItemModelTester>
#include <QFont>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

PDFFileInfo named(const QString &name) {
    PDFFileInfo entry;
    entry.setFileName(name);
    return entry;
}

std::vector<PDFFileInfo> entriesNamed(const QStringList &names) {
    std::vector<PDFFileInfo> entries;
    for (const QString &name : names) {
        entries.push_back(named(name));
    }
    return entries;
}

std::vector<PDFFileInfo> numbered(int count) {
    std::vector<PDFFileInfo> entries;
    entries.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        entries.push_back(named(QString::number(i)));
    }
    return entries;
}

QString namesOf(const FilesArray &files) {
    QStringList names;
    for (const PDFFileInfo *entry : files.arrangedObjects()) {
        names += entry->fileName();
    }
    return names.join(u' ');
}

QList<int> indexesOf(const FilesArray &files) {
    QList<int> indexes;
    for (const PDFFileInfo *entry : files.arrangedObjects()) {
        indexes += entry->index();
    }
    return indexes;
}

QVariant cell(const FilesArray &files, int row, int column, int role = Qt::DisplayRole) {
    return files.data(files.index(row, column), role);
}

void select(FilesArray &files, const QList<int> &rows) {
    for (const int row : rows) {
        files.selectionModel()->select(files.index(row, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

} // namespace

class FilesArrayTest : public QObject {
    Q_OBJECT

  private:
    /// A list of five, a to e, watched by Qt's model checker.
    struct FiveFiles {
        FilesArray files;
        QAbstractItemModelTester tester{&files,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest};
        FiveFiles() { files.insert(-1, entriesNamed(u"a b c d e"_s.split(u' '))); }
    };

  private Q_SLOTS:
    void negativeRowsAppendAndOthersInsertInOrder() {
        FiveFiles list;
        list.files.insert(-1, entriesNamed({u"f"_s, u"g"_s}));
        list.files.insert(2, entriesNamed({u"x"_s, u"y"_s}));
        QCOMPARE(namesOf(list.files), u"a b x y c d e f g"_s);
    }

    void aRowBehindTheEndAppends() {
        FiveFiles list;
        list.files.insert(99, entriesNamed({u"x"_s}));
        QCOMPARE(namesOf(list.files), u"a b c d e x"_s);
    }

    void anInsertionOfManyIsAnnouncedOnce() {
        FiveFiles list;
        const QSignalSpy inserted(&list.files, &QAbstractItemModel::rowsInserted);
        list.files.insert(-1, numbered(10'000));
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(inserted.at(0).at(1).toInt(), 5);
        QCOMPARE(inserted.at(0).at(2).toInt(), 10'004);
        QCOMPARE(list.files.count(), 10'005);
    }

    void insertingNothingAnnouncesNothing() {
        FiveFiles list;
        const QSignalSpy inserted(&list.files, &QAbstractItemModel::rowsInserted);
        list.files.insert(0, {});
        QCOMPARE(inserted.count(), 0);
    }

    void neighboursAreRemovedTogether() {
        FiveFiles list;
        list.files.takeRows(std::vector<int>{1, 2, 3});
        QCOMPARE(namesOf(list.files), u"a e"_s);
    }

    void scatteredRowsAreRemovedWithOneAnnouncement() {
        FiveFiles list;
        const QSignalSpy removed(&list.files, &QAbstractItemModel::rowsRemoved);
        list.files.takeRows(std::vector<int>{0, 2, 4});
        QCOMPARE(namesOf(list.files), u"b d"_s);
        QCOMPARE(removed.count(), 1);
    }

    void everySecondOfManyIsRemoved() {
        FilesArray files;
        files.insert(-1, numbered(100'000));
        std::vector<int> even(50'000);
        std::ranges::generate(even, [row = -2]() mutable { return row += 2; });
        files.takeRows(even);
        QCOMPARE(files.count(), 50'000);
        QCOMPARE(files.at(0).fileName(), u"1"_s);
        QCOMPARE(files.at(49'999).fileName(), u"99999"_s);
    }

    void removalLeavesNothingSelectedAndTheNeighbourCurrent() {
        FiveFiles list;
        select(list.files, {1, 3});
        list.files.takeRows(list.files.selectedRows());
        QVERIFY(!list.files.selectionModel()->hasSelection());
        QCOMPARE(list.files.selectionModel()->currentIndex().row(), 1);
    }

    void removingTheLastRowsMakesTheNewLastOneCurrent() {
        FiveFiles list;
        list.files.takeRows(std::vector<int>{3, 4});
        QCOMPARE(list.files.selectionModel()->currentIndex().row(), 2);
    }

    void allRowsCanBeTaken() {
        FiveFiles list;
        select(list.files, {0, 4});
        QCOMPARE(list.files.takeRows(std::vector<int>{0, 1, 2, 3, 4}).size(), std::size_t(5));
        QVERIFY(list.files.isEmpty());
        QVERIFY(list.files.selectedRows().empty());
    }

    void takenRowsComeBackWhereTheyWereAndAreSelected() {
        FiveFiles list;
        const std::vector<int> rows{0, 2, 3};
        std::vector<PDFFileInfo> taken = list.files.takeRows(rows);
        const QSignalSpy inserted(&list.files, &QAbstractItemModel::rowsInserted);
        list.files.putBack(rows, std::move(taken));
        QCOMPARE(namesOf(list.files), u"a b c d e"_s);
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(list.files.selectedRows(), rows);
        QCOMPARE(list.files.selectionModel()->currentIndex().row(), 0);
    }

    void rearrangingMovesTheSelectionWithItsEntries() {
        FiveFiles list;
        select(list.files, {0, 3});
        list.files.rearrange(std::vector<std::size_t>{4, 3, 2, 1, 0});
        QCOMPARE(namesOf(list.files), u"e d c b a"_s);
        QCOMPARE(list.files.selectedRows(), (std::vector<int>{1, 4}));
    }

    void aMovedEntryStaysSelected_data() {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("names");
        QTest::newRow("up") << 2 << 1 << u"a c b d e"_s;
        QTest::newRow("down") << 2 << 3 << u"a b d c e"_s;
        QTest::newRow("to the front") << 4 << 0 << u"e a b c d"_s;
        QTest::newRow("to the end") << 0 << 4 << u"b c d e a"_s;
        QTest::newRow("nowhere") << 2 << 2 << u"a b c d e"_s;
    }

    void aMovedEntryStaysSelected() {
        QFETCH(const int, from);
        QFETCH(const int, to);
        QFETCH(const QString, names);
        FiveFiles list;
        select(list.files, {from});
        list.files.move(from, to);
        QCOMPARE(namesOf(list.files), names);
        QCOMPARE(list.files.selectedRows(), std::vector<int>{to});
    }

    void reindexNumbersThePositionsFromOne() {
        FiveFiles list;
        list.files.move(4, 0);
        list.files.reindex();
        QCOMPARE(indexesOf(list.files), (QList<int>{1, 2, 3, 4, 5}));
        QCOMPARE(cell(list.files, 4, FilesArray::NumberColumn).toString(), u"5"_s);
    }

    void selectedRowsAscendWhateverTheOrderOfSelecting() {
        FiveFiles list;
        select(list.files, {4, 0, 2});
        QCOMPARE(list.files.selectedRows(), (std::vector<int>{0, 2, 4}));
    }

    void cellsShowNumberNameSizeAndState() {
        FilesArray files;
        PDFFileInfo entry = named(u"report.txt"_s);
        entry.setIndex(7);
        entry.setFileSize(u"12 KB"_s);
        entry.setStateIndex(Waiting);
        files.insert(-1, {entry});
        QCOMPARE(cell(files, 0, FilesArray::NumberColumn).toString(), u"7"_s);
        QCOMPARE(cell(files, 0, FilesArray::NameColumn).toString(), u"report.txt"_s);
        QCOMPARE(cell(files, 0, FilesArray::SizeColumn).toString(), u"12 KB"_s);
        QCOMPARE(cell(files, 0, FilesArray::DestinationColumn).toString(), u"Waiting..."_s);
        QVERIFY(!cell(files, 0, FilesArray::DestinationColumn, Qt::FontRole).isValid());
        QVERIFY(!cell(files, 0, FilesArray::DestinationColumn, Qt::ToolTipRole).isValid());
        QVERIFY(!cell(files, 0, FilesArray::DestinationColumn, FilesArray::kLinkRole).toBool());
    }

    void theSizeTellsThePagesThatAreKnown_data() {
        QTest::addColumn<int>("pages");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("unknown") << 0 << QString();
        QTest::newRow("one") << 1 << u"1 page"_s;
        QTest::newRow("several") << 12 << u"12 pages"_s;
    }
    void theSizeTellsThePagesThatAreKnown() {
        QFETCH(const int, pages);
        QFETCH(const QString, toolTip);
        FilesArray files;
        PDFFileInfo entry = named(u"report.pdf"_s);
        entry.setPageCount(pages);
        files.insert(-1, {entry});
        QCOMPARE(cell(files, 0, FilesArray::SizeColumn, Qt::ToolTipRole).toString(), toolTip);
    }

    void anEntryWithoutStateTextShowsNone() {
        FilesArray files;
        files.insert(-1, {named(u"a"_s)});
        QCOMPARE(cell(files, 0, FilesArray::DestinationColumn).toString(), QString());
    }

    void aFinishedEntryIsALinkToItsPdf() {
        FiveFiles list;
        list.files.setDestFilePathName(1, u"/out/report.pdf"_s);
        list.files.setStateIndex(1, FinishedAsLink);
        const int column = FilesArray::DestinationColumn;
        QCOMPARE(cell(list.files, 1, column).toString(), u"report.pdf"_s);
        QVERIFY(cell(list.files, 1, column, Qt::FontRole).value<QFont>().underline());
        QCOMPARE(cell(list.files, 1, column, Qt::ForegroundRole).value<QColor>(), QColor(Qt::blue));
        QCOMPARE(cell(list.files, 1, column, Qt::ToolTipRole).toString(), u"/out/report.pdf"_s);
        QVERIFY(cell(list.files, 1, column, FilesArray::kLinkRole).toBool());
        QVERIFY(!cell(list.files, 1, FilesArray::NameColumn, FilesArray::kLinkRole).toBool());
    }

    void oneStateForAllIsAnnouncedOnce() {
        FiveFiles list;
        const QSignalSpy changed(&list.files, &QAbstractItemModel::dataChanged);
        list.files.setStateIndexOfAll(Finished);
        QCOMPARE(changed.count(), 1);
        for (int row = 0; row < 5; ++row) {
            QCOMPARE(cell(list.files, row, FilesArray::DestinationColumn).toString(),
                     u"Finished"_s);
        }
    }

    void theHeaderNamesFourColumns() {
        const FilesArray files;
        QCOMPARE(files.columnCount(), 4);
        QStringList titles;
        for (int column = -1; column <= 4; ++column) {
            titles += files.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        }
        QCOMPARE(titles.join(u'|'), u"|No.|Name|Size|Destination|"_s);
    }

    void cellsOutsideTheListAreEmpty() {
        FiveFiles list;
        QVERIFY(!list.files.data({}, Qt::DisplayRole).isValid());
        QCOMPARE(list.files.rowCount(list.files.index(0, 0)), 0);
        QCOMPARE(list.files.columnCount(list.files.index(0, 0)), 0);
    }
};

FOLIOFORGE_TEST(FilesArrayTest)
#include "FilesArrayTest.moc"
