// SPDX-License-Identifier: Apache-2.0

#include "OffscreenScreen.h"
#include "WindowWorld.h"
#include "support/TestUnit.h"

#include "mainwnd/FilesArray.h"
#include "mainwnd/MainWndCtrl.h"
#include "mainwnd/SkinTableView.h"
#include "skin/LightLook.h"
#include "skin/OptionsDrawer.h"
#include "skin/SkinButton.h"

#include <QApplication>
#include <QButtonGroup>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

constexpr int kScale = 4; ///< Large enough for strokes to show their full colour.
constexpr double kTextContrast = 4.5;
constexpr double kEdgeContrast = 3.0;

/// The relative luminance of a colour (WCAG 2.1).
double luminance(QRgb color) {
    const auto linear = [](int value) {
        const double share = value / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

/// The contrast ratio of two colours (WCAG 2.1), from 1 to 21.
double contrast(QRgb one, QRgb other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

/// The colour that most of `image` has.
QRgb groundOf(const QImage &image) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    return std::max_element(counts.keyValueBegin(), counts.keyValueEnd(),
                            [](const auto &a, const auto &b) { return a.second < b.second; })
        ->first;
}

/// The greatest contrast in `image` with `ground`.
double contrastIn(const QImage &image, QRgb ground) {
    double greatest = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            greatest = std::max(greatest, contrast(image.pixel(x, y), ground));
        }
    }
    return greatest;
}

/// The window with the panel and every control shown.
struct Shown {
    Shown() {
        world.storeFolder(world.home.path());
        ctrl.EnableSettings(true);
        window.show();
        ctrl.clickBtnExpand();
        auto &drawer = control<OptionsDrawer>("m_optionsDrawer");
        QTRY_COMPARE(drawer.openWidth(), static_cast<int>(OptionsDrawer::kFullWidth));
    }

    /// What `area` of `widget` looks like, drawn large.
    QImage drawn(QWidget &widget, const QRect &area) {
        const QRect place(widget.mapTo(&window, area.topLeft()), area.size());
        QImage image(place.size() * kScale, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.scale(kScale, kScale);
        window.render(&painter, QPoint(), place);
        return image;
    }
    double textContrast(QWidget &widget, const QRect &area) {
        const QImage image = drawn(widget, area);
        return contrastIn(image, groundOf(image));
    }
    /// Of the left edge of `widget`, half way down, with what is beside it.
    double edgeContrast(QWidget &widget) {
        const int middle = widget.height() / 2;
        const QImage beside = drawn(widget, {-3, middle, 1, 1});
        return contrastIn(drawn(widget, {0, middle, 2, 1}), beside.pixel(0, 0));
    }
    template<typename Control> Control &control(const char *name) {
        return controlOf<Control>(window, name);
    }

    WindowWorld world;
    MainWndCtrl ctrl{world.services()};
    QMainWindow &window = *ctrl.window();
};

/// Where `button`, a check box or a radio button, has its indicator.
QRect indicatorOf(const QAbstractButton &button) {
    QStyleOptionButton option;
    option.initFrom(&button);
    const bool isRadio = qobject_cast<const QRadioButton *>(&button);
    return button.style()->subElementRect(
        isRadio ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator, &option, &button);
}

/// Where a skin has its label: on the right, without its edge.
QRect labelOf(const QWidget &button) {
    const int edge = 4;
    return button.rect().adjusted(button.width() / 2, edge, -edge, -edge);
}

QRect insideOf(const QWidget &widget) {
    return widget.rect().adjusted(4, 4, -4, -4);
}

} // namespace

/// Text and what controls are seen by stand out from their ground (WCAG 2.1, 1.4.3 and 1.4.11).
class ContrastTest : public QObject {
    Q_OBJECT

  public:
    static void initMain() { useScreenOf({1920, 1200}); }

  private Q_SLOTS:
    void initTestCase() { applyLightLook(*qApp); }

    void theLabelsOfSkinsStandOut_data() {
        QTest::addColumn<QByteArray>("name");
        for (const char *name : {"m_btnAddImage", "m_btnAddTxt", "m_btnAddPDF", "m_btnRemove",
                                 "m_btnCreate", "m_btnOpen", "m_btnBrowse", "m_btnSecuritySetting",
                                 "m_btnImageSetting", "m_btnTxtSetting"}) {
            QTest::newRow(name) << QByteArray(name);
        }
    }
    void theLabelsOfSkinsStandOut() {
        QFETCH(const QByteArray, name);
        Shown shown;
        auto &button = shown.control<SkinButton>(name.constData());
        for (const bool enabled : {true, false}) {
            button.setEnabled(enabled);
            const double contrast = shown.textContrast(button, labelOf(button));
            QVERIFY2(contrast >= kTextContrast, qPrintable(QString::number(contrast)));
        }
        button.setEnabled(true);
        QEnterEvent enter(QPointF(3, 3), QPointF(3, 3), QPointF(3, 3));
        QCoreApplication::sendEvent(&button, &enter);
        QVERIFY(shown.textContrast(button, labelOf(button)) >= kTextContrast);
    }

    void textInFieldsAndButtonsStandsOut_data() {
        QTest::addColumn<QByteArray>("name");
        for (const char *name : {"m_tfTitle", "m_tfOutputName", "m_tfOutputFolder", "m_btnAddFile",
                                 "m_btnClear", "m_btnMerge", "m_labelOptions", "m_lbOutputName"}) {
            QTest::newRow(name) << QByteArray(name);
        }
    }
    void textInFieldsAndButtonsStandsOut() {
        QFETCH(const QByteArray, name);
        Shown shown;
        auto &widget = shown.control<QWidget>(name.constData());
        if (auto *field = qobject_cast<QLineEdit *>(&widget)) {
            field->setText(u"Harbour"_s);
        }
        for (const bool enabled : {true, false}) {
            widget.setEnabled(enabled);
            const double contrast = shown.textContrast(widget, insideOf(widget));
            QVERIFY2(contrast >= kTextContrast, qPrintable(QString::number(contrast)));
        }
    }

    void theEmptyListsHintStandsOut() {
        Shown shown;
        auto &table = shown.control<SkinTableView>("m_tableview");
        QVERIFY(shown.textContrast(*table.viewport(), insideOf(*table.viewport())) >=
                kTextContrast);
    }

    void rowsStandOutWhateverTheirState() {
        Shown shown;
        auto &table = shown.control<SkinTableView>("m_tableview");
        shown.ctrl.addFiles({shown.world.file(u"a.txt"_s), shown.world.file(u"b.txt"_s)}, -1);
        auto &files = *qobject_cast<FilesArray *>(table.model());
        files.setDestFilePathName(0, u"/out/a.pdf"_s);
        files.setStateIndex(0, FinishedAsLink);
        for (const int selected : {0, 1}) {
            table.selectRow(selected);
            for (int column = 0; column < files.columnCount({}); ++column) {
                const QRect cell = table.visualRect(files.index(0, column)).adjusted(4, 4, -4, -4);
                const double contrast = shown.textContrast(*table.viewport(), cell);
                QVERIFY2(contrast >= kTextContrast,
                         qPrintable(u"column %1: %2"_s.arg(column).arg(contrast)));
            }
        }
    }

    void fieldsAndButtonsHaveEdgesThatStandOut_data() {
        QTest::addColumn<QByteArray>("name");
        for (const char *name :
             {"m_tfTitle", "m_tfOutputName", "m_tfOutputFolder", "m_comboCompressMethod",
              "m_btnAddFile", "m_btnClear", "m_btnAddImage", "m_btnCreate", "m_btnOpen",
              "m_btnBrowse", "m_btnImageSetting", "m_btnExpand", "m_btnElapse"}) {
            QTest::newRow(name) << QByteArray(name);
        }
    }
    void fieldsAndButtonsHaveEdgesThatStandOut() {
        QFETCH(const QByteArray, name);
        Shown shown;
        auto &widget = shown.control<QWidget>(name.constData());
        widget.setEnabled(true);
        widget.show();
        const double contrast = shown.edgeContrast(widget);
        QVERIFY2(contrast >= kEdgeContrast, qPrintable(QString::number(contrast)));
    }

    void boxesAndRadioButtonsStandOutInEachState_data() {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("hovered");
        QTest::addColumn<bool>("pressed");
        for (const char *name : {"m_btnMerge", "m_btnCheckUserPassword", "imageFollows"}) {
            for (const bool checked : {false, true}) {
                const char *state = checked ? "on" : "off";
                const QByteArray box(name);
                QTest::addRow("%s %s", name, state) << box << checked << false << false;
                QTest::addRow("%s %s, hovered", name, state) << box << checked << true << false;
                QTest::addRow("%s %s, pressed", name, state) << box << checked << true << true;
            }
        }
    }
    void boxesAndRadioButtonsStandOutInEachState() {
        QFETCH(const QByteArray, name);
        QFETCH(const bool, checked);
        QFETCH(const bool, hovered);
        QFETCH(const bool, pressed);
        Shown shown;
        auto &button = shown.control<QAbstractButton>(name.constData());
        if (name.startsWith("m_btnCheck")) {
            shown.ctrl.clickBtnSecurity();
        }
        button.setAutoExclusive(false);
        if (button.group()) {
            button.group()->setExclusive(false);
        }
        button.setChecked(checked);
        button.setAttribute(Qt::WA_UnderMouse, hovered);
        button.setDown(pressed);
        QVERIFY(button.isVisible());
        const QRect box = indicatorOf(button);
        const int middle = box.center().y();
        const QRgb ground = shown.drawn(button, {box.right() + 2, middle, 1, 1}).pixel(0, 0);
        for (const int edge : {box.left(), box.right()}) {
            const double contrast = contrastIn(shown.drawn(button, {edge, middle, 1, 1}), ground);
            QVERIFY2(contrast >= kEdgeContrast, qPrintable(QString::number(contrast)));
        }
        // What tells on from off is in the middle.
        const QImage inside = shown.drawn(button, box.adjusted(5, 5, -5, -5));
        QCOMPARE(contrastIn(inside, groundOf(inside)) >= kEdgeContrast, checked);
    }

    void buttonsThatCannotBePressedLookIt_data() {
        QTest::addColumn<QByteArray>("name");
        for (const char *name : {"m_btnAddFile", "m_btnAddFolder", "m_btnClear"}) {
            QTest::newRow(name) << QByteArray(name);
        }
    }
    void buttonsThatCannotBePressedLookIt() {
        QFETCH(const QByteArray, name);
        Shown shown;
        auto &button = shown.control<QWidget>(name.constData());
        const double before = shown.textContrast(button, insideOf(button));
        const QRgb fill = groundOf(shown.drawn(button, insideOf(button)));
        shown.window.centralWidget()->setEnabled(false); // As the busy sheet does.
        QVERIFY(shown.edgeContrast(button) < kEdgeContrast);
        QVERIFY(shown.textContrast(button, insideOf(button)) < 0.75 * before);
        QVERIFY(groundOf(shown.drawn(button, insideOf(button))) != fill);
    }

    void theFocusOfTheListStandsOut_data() {
        QTest::addColumn<bool>("selected");
        QTest::newRow("on a selected row") << true;
        QTest::newRow("on another row") << false;
    }
    void theFocusOfTheListStandsOut() {
        QFETCH(const bool, selected);
        Shown shown;
        auto &table = shown.control<SkinTableView>("m_tableview");
        shown.ctrl.addFiles({shown.world.file(u"a.txt"_s), shown.world.file(u"b.txt"_s)}, -1);
        shown.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shown.window));
        table.selectRow(0);
        if (!selected) {
            table.selectionModel()->clearSelection();
        }
        const QRect cell = table.visualRect(table.model()->index(0, 0));
        const QRect strip(cell.width() / 4, cell.top(), 1, cell.height());
        shown.control<QWidget>("m_btnClear").setFocus();
        const QImage without = shown.drawn(*table.viewport(), strip);
        table.setFocus();
        const QImage with = shown.drawn(*table.viewport(), strip);
        double greatest = 1;
        for (int y = 0; y < with.height(); ++y) {
            greatest = std::max(greatest, contrast(with.pixel(0, y), without.pixel(0, y)));
        }
        QVERIFY2(greatest >= kEdgeContrast, qPrintable(QString::number(greatest)));
    }
};

FOLIOFORGE_TEST(ContrastTest)
#include "ContrastTest.moc"
