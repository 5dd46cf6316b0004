// SPDX-License-Identifier: Apache-2.0

#include "OffscreenScreen.h"
#include "WindowWorld.h"
#include "support/TestUnit.h"

#include "mainwnd/MainWndCtrl.h"
#include "mainwnd/SkinTableView.h"
#include "skin/OptionsDrawer.h"

#include <QCheckBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// One start of the application in `world`, until it goes.
struct Start {
    explicit Start(WindowWorld &world)
        : ctrl(world.services()) {
        world.storeFolder(world.home.path());
        world.notices.answerNoticesAtOnce();
        window.show();
    }
    template<typename Control> Control &control(const char *name) {
        return controlOf<Control>(window, name);
    }
    void press(const char *name) { QTest::mouseClick(&control<QWidget>(name), Qt::LeftButton); }
    QList<int> widths() {
        QList<int> widths;
        for (int column = 0; column < 4; ++column) {
            widths += control<SkinTableView>("m_tableview").columnWidth(column);
        }
        return widths;
    }
    /// Drags the edge between the names and the sizes with the mouse.
    void dragEdge(int by) {
        QHeaderView &header = *control<SkinTableView>("m_tableview").horizontalHeader();
        const QPoint edge(header.sectionViewportPosition(2) - 1, header.height() / 2);
        QTest::mouseMove(header.viewport(), edge);
        QTest::mousePress(header.viewport(), Qt::LeftButton, {}, edge);
        QTest::mouseMove(header.viewport(), edge + QPoint(by / 2, 0));
        QTest::mouseMove(header.viewport(), edge + QPoint(by, 0));
        QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, edge + QPoint(by, 0));
    }

    MainWndCtrl ctrl;
    QMainWindow &window = *ctrl.window();
};

QString lastStartFolder(const WindowWorld &world) {
    return world.notices.filePanels().back().startFolder;
}

} // namespace

/// What comes back at the next start, and what does not.
class WindowMemoryTest : public QObject {
    Q_OBJECT

  public:
    static void initMain() { useScreenOf({1920, 1200}); }

  private Q_SLOTS:
    void theSizeComesBackWithoutTheOptions() {
        WindowWorld world;
        {
            Start first(world);
            first.window.resize(790, 610);
            first.press("m_btnExpand");
            QTRY_COMPARE(first.control<OptionsDrawer>("m_optionsDrawer").openWidth(), 342);
            QTRY_COMPARE(first.window.width(), 790 + 342);
        }
        Start second(world);
        QCOMPARE(second.window.size(), QSize(790, 610));
        QCOMPARE(second.control<OptionsDrawer>("m_optionsDrawer").openWidth(), 0);
    }

    void aWindowThatFillsTheScreenKeepsTheSizeBefore() {
        WindowWorld world;
        { Start(world).window.resize(790, 610); }
        {
            Start second(world);
            second.window.showMaximized();
            QTRY_VERIFY(second.window.width() > 1900);
        }
        QCOMPARE(Start(world).window.size(), QSize(790, 610));
    }

    void theWidthsOfColumnsComeBack() {
        WindowWorld world;
        QList<int> dragged;
        {
            Start first(world);
            const QList<int> before = first.widths();
            first.dragEdge(-90);
            dragged = first.widths();
            QCOMPARE(dragged.at(1), before.at(1) - 90);
        }
        Start second(world);
        const QList<int> widths = second.widths();
        for (int i = 0; i < 4; ++i) {
            QVERIFY(std::abs(widths.at(i) - dragged.at(i)) <= 1);
        }
    }

    void sharesThatCannotBeAreNotTaken_data() {
        QTest::addColumn<QVariantList>("shares");
        QTest::newRow("too few") << QVariantList{0.5, 0.5};
        QTest::newRow("more than all") << QVariantList{0.5, 0.5, 0.5, 0.5};
        QTest::newRow("negative") << QVariantList{-0.5, 0.5, 0.5, 0.5};
        QTest::newRow("no numbers") << QVariantList{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    }
    void sharesThatCannotBeAreNotTaken() {
        QFETCH(const QVariantList, shares);
        WindowWorld world;
        const QList<int> usual = Start(world).widths();
        world.settings.setValue(u"Window/ColumnShares"_s, shares);
        QCOMPARE(Start(world).widths(), usual);
    }

    void eachPanelBeginsWhereItWasLast() {
        WindowWorld world;
        QDir(world.home.path()).mkpath(u"texts"_s);
        QDir(world.home.path()).mkpath(u"pictures"_s);
        {
            Start first(world);
            world.notices.setNextFiles({world.file(u"texts/a.txt"_s)});
            first.press("m_btnAddTxt");
            world.notices.setNextFiles({writePng(world.path(u"pictures/b.png"_s), 4, 4)});
            first.press("m_btnAddImage");
            QCoreApplication::processEvents();
        }
        Start second(world);
        for (const auto &[button, folder] :
             {std::pair("m_btnAddTxt", u"texts"_s), std::pair("m_btnAddImage", u"pictures"_s),
              std::pair("m_btnAddPDF", u"Documents"_s)}) {
            world.notices.setNextFiles({});
            second.press(button);
            QCOMPARE(lastStartFolder(world), world.path(folder));
        }
    }

    void aPanelWhoseFolderIsGoneBeginsWhereItDid() {
        WindowWorld world;
        QDir(world.home.path()).mkpath(u"texts"_s);
        Start start(world);
        world.notices.setNextFiles({world.file(u"texts/a.txt"_s)});
        start.press("m_btnAddTxt");
        QCoreApplication::processEvents();
        QDir(world.path(u"texts"_s)).removeRecursively();
        world.notices.setNextFiles({});
        start.press("m_btnAddTxt");
        QCOMPARE(lastStartFolder(world), world.path(u"Documents"_s));
    }

    void settingsOfDocumentsDoNotComeBack() {
        WindowWorld world;
        {
            Start first(world);
            first.ctrl.EnableSettings(true);
            first.control<QCheckBox>("m_btnMerge").setChecked(true);
            first.control<QLineEdit>("m_tfTitle").setText(u"Title"_s);
            first.control<QLineEdit>("m_tfOutputName").setText(u"book"_s);
        }
        Start second(world);
        QVERIFY(!second.control<QCheckBox>("m_btnMerge").isChecked());
        QCOMPARE(second.control<QLineEdit>("m_tfTitle").text(), QString());
        QCOMPARE(second.control<QLineEdit>("m_tfOutputName").text(), QString());
    }

    void theNameIsGreyWhileNothingIsMerged() {
        WindowWorld world;
        Start start(world);
        auto &merge = start.control<QCheckBox>("m_btnMerge");
        QVERIFY(!start.control<QWidget>("m_tfOutputName").isEnabled());
        QVERIFY(!start.control<QWidget>("m_lbOutputName").isEnabled());
        tick(merge);
        QVERIFY(start.control<QWidget>("m_tfOutputName").isEnabled());
        QVERIFY(start.control<QWidget>("m_lbOutputName").isEnabled());
        merge.setChecked(false);
        QVERIFY(!start.control<QWidget>("m_tfOutputName").isEnabled());
    }
};

FOLIOFORGE_TEST(WindowMemoryTest)
#include "WindowMemoryTest.moc"
