// SPDX-License-Identifier: Apache-2.0

#include "TestWindow.h"
#include "support/TestUnit.h"

#include "skin/LightLook.h"
#include "skin/OptionsDrawer.h"

#include <QAccessible>
#include <QButtonGroup>
#include <QCheckBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// A window with a text in its list, which is made to refuse a run.
class Refusing : public TestWindow {
  public:
    Refusing() {
        ctrl.addFiles({file(u"a.txt"_s)}, -1);
        control<QLineEdit>("m_tfOutputName")->clear();
    }

    /// Gives `field` a wrong value, with what else it takes to be looked at.
    void spoil(const QByteArray &field, const QString &value) {
        const bool isSize = field.contains("Customized");
        if (isSize) {
            control<QAbstractButton>(field.contains("Text") ? "textCustom" : "imageCustom")
                ->setChecked(true);
        }
        control<QCheckBox>("m_btnMerge")->setChecked(field == "m_tfOutputName");
        control<QCheckBox>("m_btnCheckUserPassword")->setChecked(field == "m_tfUserPassword");
        control<QCheckBox>("m_btnCheckOwnerPassword")->setChecked(field == "m_tfOwnerPassword");
        control<QLineEdit>(field.constData())->setText(value);
    }
    [[nodiscard]] int openWidth() { return control<OptionsDrawer>("m_optionsDrawer")->openWidth(); }
    /// The colour of the field's left edge, half way down.
    QColor edgeOf(const char *field) {
        QWidget *widget = control<QWidget>(field);
        return widget->grab().toImage().pixelColor(0, widget->height() / 2);
    }
};

bool isRed(const QColor &color) {
    return color.red() > 150 && color.green() < 80 && color.blue() < 80;
}

} // namespace

/// What a notice speaks of is in sight, marked, and has the keyboard.
class FaultsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { applyLightLook(*qApp); }

    void theFieldThatANoticeSpeaksOfIsInSightMarkedAndFocused() {
        struct Case {
            const char *field;
            QString wrong;
        };
        Refusing w;
        for (const auto &[field, wrong] : {Case{"m_tfOutputFolder", QString()},
                                           {"m_tfOutputName", QString()},
                                           {"m_tfUserPassword", QString()},
                                           {"m_tfOwnerPassword", QString()},
                                           {"m_tfTextPageMarginTop", u"257"_s},
                                           {"m_tfTextPageMarginLeft", u"-1"_s},
                                           {"m_tfTextPageMarginBottom", u"300"_s},
                                           {"m_tfTextPageMarginRight", u"300"_s},
                                           {"m_tfTextCustomizedPageWidth", u"144"_s},
                                           {"m_tfTextCustomizedPageHeight", u"144"_s},
                                           {"m_tfImagePageMarginTop", u"257"_s},
                                           {"m_tfImagePageMarginLeft", u"257"_s},
                                           {"m_tfImagePageMarginBottom", u"257"_s},
                                           {"m_tfImagePageMarginRight", u"257"_s},
                                           {"m_tfImageCustomizedPageWidth", u"0"_s},
                                           {"m_tfImageCustomizedPageHeight", u"0"_s}}) {
            auto *shown = w.control<QLineEdit>(field);
            const QString right = shown->text();
            w.spoil(field, wrong);
            QVERIFY2(!isRed(w.edgeOf(field)), field);
            w.press("m_btnCreate");
            QVERIFY2(shown->isVisible() && !shown->visibleRegion().isEmpty(), field);
            QVERIFY2(shown->hasFocus(), field);
            QVERIFY2(isRed(w.edgeOf(field)), field);
            const QAccessibleInterface *readable = QAccessible::queryAccessibleInterface(shown);
            const QString said = readable->text(QAccessible::Description);
            QVERIFY2(!said.isEmpty() && w.messages().last().startsWith(said), field);
            shown->setText(right);
        }
        QCOMPARE(w.messages().size(), 16);
    }

    void thePanelOpensForAnOptionAlone() {
        Refusing w;
        w.spoil("m_tfOutputName", QString());
        w.press("m_btnCreate");
        QCOMPARE(w.openWidth(), 0);
        w.spoil("m_tfTextPageMarginTop", u"257"_s);
        w.press("m_btnCreate");
        QCOMPARE(w.openWidth(), 342);
        QVERIFY(w.control<QWidget>("m_btnElapse")->isVisible());
        QVERIFY(!w.control<QWidget>("m_btnExpand")->isVisible());
    }

    void marginsTooLargeForAFixedPageLeadToAMargin() {
        Refusing w;
        w.control<QAbstractButton>("textA5")->setChecked(true);
        w.spoil("m_tfTextPageMarginLeft", u"256"_s);
        w.spoil("m_tfTextPageMarginRight", u"256"_s);
        w.press("m_btnCreate");
        QVERIFY(w.control<QLineEdit>("m_tfTextPageMarginLeft")->hasFocus());
    }

    void theFieldIsThereBeforeTheNoticeComes() {
        WindowWorld world;
        world.storeFolder(world.home.path());
        MainWndCtrl ctrl(world.services());
        QMainWindow &window = *ctrl.window();
        ctrl.addFiles({world.file(u"a.txt"_s)}, -1);
        window.show();
        controlOf<QCheckBox>(window, "m_btnCheckUserPassword").setChecked(true);
        QTest::mouseClick(&controlOf<QWidget>(window, "m_btnCreate"), Qt::LeftButton);
        QVERIFY(window.findChild<QMessageBox *>()->isVisible());
        QCOMPARE(controlOf<OptionsDrawer>(window, "m_optionsDrawer").openWidth(), 342);
        const auto &field = controlOf<QLineEdit>(window, "m_tfUserPassword");
        QVERIFY(field.isVisible());
        QTest::keyClick(window.findChild<QMessageBox *>(), Qt::Key_Return);
        QCOMPARE(window.focusWidget(), &field);
    }

    void theMarkGoesWhenTheFieldChanges() {
        Refusing w;
        w.spoil("m_tfTextPageMarginTop", u"257"_s);
        w.press("m_btnCreate");
        w.key(Qt::Key_7);
        QCOMPARE(w.control<QLineEdit>("m_tfTextPageMarginTop")->text(), u"7"_s);
        QVERIFY(!isRed(w.edgeOf("m_tfTextPageMarginTop")));
        QVERIFY(w.control<QLineEdit>("m_tfTextPageMarginTop")
                    ->accessibleDescription()
                    .startsWith(u"7 pt"_s));
    }

    void theMarkGoesWhenTheFieldChangesThoughItIsStillWrong() {
        Refusing w;
        w.spoil("m_tfTextPageMarginTop", u"257"_s);
        w.press("m_btnCreate");
        w.key(Qt::Key_End);
        w.key(Qt::Key_Left, Qt::ShiftModifier);
        w.key(Qt::Key_8);
        const auto *field = w.control<QLineEdit>("m_tfTextPageMarginTop");
        QCOMPARE(field->text(), u"258"_s);
        QVERIFY(!isRed(w.edgeOf("m_tfTextPageMarginTop")));
        QVERIFY(field->accessibleDescription().startsWith(u"258 pt"_s));
    }

    void theMarkGoesWhenAnotherFieldMendsTheFault_data() {
        QTest::addColumn<QByteArray>("marked");
        QTest::addColumn<QString>("wrong");
        QTest::addColumn<QByteArray>("other");
        QTest::addColumn<QString>("stillWrong");
        QTest::addColumn<QString>("right");
        QTest::newRow("a margin makes room")
            << QByteArray("m_tfTextCustomizedPageWidth") << u"144"_s
            << QByteArray("m_tfTextPageMarginRight") << u"73"_s << u"71"_s;
        QTest::newRow("a folder where the name is free")
            << QByteArray("m_tfOutputName") << u"taken"_s << QByteArray("m_tfOutputFolder")
            << u"./out"_s << u"."_s;
    }
    void theMarkGoesWhenAnotherFieldMendsTheFault() {
        QFETCH(const QByteArray, marked);
        QFETCH(const QString, wrong);
        QFETCH(const QByteArray, other);
        QFETCH(const QString, stillWrong);
        QFETCH(const QString, right);
        Refusing w;
        w.file(u"out/taken.pdf"_s);
        w.spoil(marked, wrong);
        w.press("m_btnCreate");
        QVERIFY(isRed(w.edgeOf(marked.constData())));
        auto *field = w.control<QLineEdit>(other.constData());
        const auto value = [&](const QString &text) {
            return text.startsWith(u'.') ? w.path(text) : text;
        };
        field->setText(value(stillWrong));
        QVERIFY(isRed(w.edgeOf(marked.constData())));
        field->setText(value(right));
        QVERIFY(!isRed(w.edgeOf(marked.constData())));
    }

    void theMarkOfEqualPasswordsGoesWhenTheUserPasswordChanges() {
        Refusing w;
        w.spoil("m_tfOwnerPassword", u"secret"_s);
        w.control<QCheckBox>("m_btnCheckUserPassword")->setChecked(true);
        w.control<QLineEdit>("m_tfUserPassword")->setText(u"secret"_s);
        w.press("m_btnCreate");
        QVERIFY(isRed(w.edgeOf("m_tfOwnerPassword")));
        w.control<QLineEdit>("m_tfUserPassword")->setText(u"another"_s);
        QVERIFY(!isRed(w.edgeOf("m_tfOwnerPassword")));
    }

    void theMarkGoesWithThePageSizeThatIsNotWanted() {
        Refusing w;
        w.spoil("m_tfTextPageMarginLeft", u"250"_s);
        w.control<QLineEdit>("m_tfTextPageMarginRight")->setText(u"250"_s);
        w.control<QAbstractButton>("textA5")->setChecked(true);
        w.press("m_btnCreate");
        QVERIFY(isRed(w.edgeOf("m_tfTextPageMarginLeft")));
        w.control<QAbstractButton>("textA3")->setChecked(true);
        QVERIFY(!isRed(w.edgeOf("m_tfTextPageMarginLeft")));
    }

    void theMarkGoesWithThePasswordThatIsNotWanted() {
        Refusing w;
        w.spoil("m_tfUserPassword", QString());
        w.press("m_btnCreate");
        w.control<QCheckBox>("m_btnCheckUserPassword")->setChecked(false);
        QVERIFY(!isRed(w.edgeOf("m_tfUserPassword")));
    }

    void theMarkGoesWithTheLastFileAsThePasswordIsGreyed() {
        Refusing w;
        w.spoil("m_tfUserPassword", QString());
        w.press("m_btnCreate");
        QVERIFY(isRed(w.edgeOf("m_tfUserPassword")));
        w.press("m_btnClear");
        QVERIFY(!w.control<QLineEdit>("m_tfUserPassword")->isEnabled());
        QVERIFY(!isRed(w.edgeOf("m_tfUserPassword")));
    }

    void theMarkGoesToWhatTheNextNoticeSpeaksOf() {
        Refusing w;
        w.spoil("m_tfTextPageMarginTop", u"257"_s);
        w.press("m_btnCreate");
        w.control<QCheckBox>("m_btnCheckUserPassword")->setChecked(true);
        w.press("m_btnCreate");
        QVERIFY(isRed(w.edgeOf("m_tfUserPassword")));
        w.ctrl.clickBtnTextPageSize();
        QVERIFY(!isRed(w.edgeOf("m_tfTextPageMarginTop")));
    }

    void aNameThatIsTakenDuringTheRunIsAskedForAnew() {
        Refusing w;
        w.spoil("m_tfOutputName", u"all"_s);
        // The states are set after the checks and before the file is begun.
        connect(&w.ctrl.filesArray(), &QAbstractItemModel::dataChanged, this,
                [&w] { w.file(u"out/all.pdf"_s, "someone else's"); });
        w.press("m_btnCreate");
        QTRY_VERIFY(w.control<QLineEdit>("m_tfOutputName")->hasFocus());
        QVERIFY(isRed(w.edgeOf("m_tfOutputName")));
    }
};

FOLIOFORGE_TEST(FaultsTest)
#include "FaultsTest.moc"
