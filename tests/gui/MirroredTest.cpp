// SPDX-License-Identifier: Apache-2.0

#include "ForeignWindow.h"
#include "OffscreenScreen.h"
#include "support/TestUnit.h"

#include "mainwnd/FilesArray.h"
#include "mainwnd/SkinTableView.h"
#include "preview/PreviewPanel.h"
#include "skin/BusySheet.h"

#include <QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// Where the text of a label stands in it, as the direction that begins there.
Qt::LayoutDirection sideOfInk(const QWidget &parent, const char *label) {
    auto &wide = controlOf<QLabel>(parent, label);
    wide.resize(300, 30);
    QImage drawn(wide.size(), QImage::Format_Grayscale8);
    drawn.fill(Qt::white);
    wide.render(&drawn);
    const uchar *bytes = drawn.constBits();
    const auto *darkest = std::min_element(bytes, bytes + drawn.sizeInBytes());
    if (*darkest > 128) {
        qFatal("%s shows no text", label);
    }
    return (darkest - bytes) % drawn.bytesPerLine() < drawn.width() / 2 ? Qt::LeftToRight
                                                                        : Qt::RightToLeft;
}

} // namespace

/// The window where one reads from right to left.
class MirroredTest : public QObject {
    Q_OBJECT

  public:
    static void initMain() { useScreenOf({1920, 1200}); }

  private Q_SLOTS:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); }

    void optionsOpenToTheLeft() {
        ForeignWindow w(u"ar"_s);
        w.window().move(500, 100);
        QCoreApplication::processEvents();
        const QRect closed = w.window().geometry();
        w.openPanel();
        QTRY_COMPARE(w.window().geometry(), closed.adjusted(-342, 0, 0, 0));
        const QWidget &panel = w.control<QWidget>("optionsPanel");
        QCOMPARE(panel.mapTo(&w.window(), QPoint(0, 0)).x(), 0);
        QTest::mouseClick(&w.control<QWidget>("m_btnElapse"), Qt::LeftButton);
        QTRY_COMPARE(w.window().geometry(), closed);
    }

    void namesOfFilesBeginWhereLinesBegin_data() {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("to the right") << Qt::LeftToRight;
        QTest::newRow("to the left") << Qt::RightToLeft;
    }
    void namesOfFilesBeginWhereLinesBegin() {
        QFETCH(const Qt::LayoutDirection, direction);
        QGuiApplication::setLayoutDirection(direction);
        PreviewPanel panel;
        BusySheet sheet;
        for (QWidget *parent : std::initializer_list<QWidget *>{&panel, &sheet}) {
            parent->resize(600, 400);
            parent->show();
        }
        for (const QString &name : {u"a.pdf"_s, u"أ.pdf"_s}) {
            panel.setFile(name);
            sheet.setFile(name);
            QCOMPARE(sideOfInk(panel, "previewFile"), direction);
            QCOMPARE(sideOfInk(sheet, "busyFile"), direction);
        }
    }

    void rowsAreChosenByMouseAndKeys() {
        ForeignWindow w(u"ar"_s);
        w.application->addTexts(4);
        w.application->activate();
        auto &table = w.control<SkinTableView>("m_tableview");
        const auto chosen = [&table] {
            QList<int> rows;
            for (const QModelIndex &index : table.selectionModel()->selectedRows()) {
                rows += index.row();
            }
            return rows;
        };
        const auto click = [&](int row, int column, Qt::KeyboardModifiers modifiers = {}) {
            const QPoint middle = table.visualRect(table.model()->index(row, column)).center();
            QTest::mouseClick(w.window().windowHandle(), Qt::LeftButton, modifiers,
                              table.viewport()->mapTo(&w.window(), middle));
        };
        for (int column = 0; column < FilesArray::ColumnCount; ++column) {
            click(column % 2, column);
            QCOMPARE(chosen(), QList{column % 2});
        }
        click(3, FilesArray::SizeColumn, Qt::ShiftModifier);
        QCOMPARE(chosen(), (QList{1, 2, 3}));
        click(2, FilesArray::NameColumn, Qt::ControlModifier);
        QCOMPARE(chosen(), (QList{1, 3}));
        click(0, FilesArray::NameColumn);
        w.application->key(Qt::Key_Down);
        QCOMPARE(chosen(), QList{1});
        w.application->key(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(chosen(), (QList{1, 2}));
    }
};

FOLIOFORGE_TEST(MirroredTest)

#include "MirroredTest.moc"
