// SPDX-License-Identifier: Apache-2.0

#include "skin/SkinButton.h"
#include "support/TestUnit.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

SkinImage plate(const QColor &color, QSize size = QSize(60, 30)) {
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(color);
    return SkinImage(picture);
}

/// A button with four looks that can be told apart, in a window that is larger than it.
struct Skinned {
    Skinned() {
        window.resize(300, 200);
        button.setGeometry(100, 80, 60, 30);
        button.setNormalImage(normal);
        button.setMouseOnImage(hover);
        button.setMouseDownImage(down);
        button.setDisableImage(disabled);
        window.show();
        fired = std::make_unique<QSignalSpy>(&button, &QAbstractButton::clicked);
        // Away from the button, so that the pointer enters it when a test says so.
        moveTo(QPoint(5, 5));
        button.showNormalImage();
    }

    void moveTo(QPoint position) const { QTest::mouseMove(window.windowHandle(), position); }
    void press() const { QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, inside); }
    void release(QPoint at) const {
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, at);
    }

    const QPoint inside{120, 95};
    const QPoint outside{20, 20};
    SkinImage normal = plate(Qt::green);
    SkinImage hover = plate(Qt::yellow);
    SkinImage down = plate(Qt::red);
    SkinImage disabled = plate(Qt::gray);
    QWidget window;
    SkinButton button{&window};
    std::unique_ptr<QSignalSpy> fired;
};

QColor centerOf(SkinButton &button) {
    const QImage picture = button.grab().toImage();
    return picture.pixelColor(picture.width() / 2, picture.height() / 2);
}

} // namespace

class SkinButtonTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void imagesStartEmptyAndTheTextIsShown() {
        const SkinButton button;
        QVERIFY(button.image().isNull());
        QVERIFY(button.normalImage().isNull());
        QVERIFY(button.mouseOnImage().isNull());
        QVERIFY(button.mouseDownImage().isNull());
        QVERIFY(button.disableImage().isNull());
    }

    void aButtonWithoutImagesStillFires() {
        SkinButton button;
        button.setText(u"Plain"_s);
        button.show();
        const QSignalSpy fired(&button, &QAbstractButton::clicked);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(fired.count(), 1);
    }

    void onlyTheNormalImageIsShownWhenSet() {
        const Skinned skinned;
        QVERIFY(skinned.button.image() == skinned.normal);
    }

    void oneImageGivesAllLooksAtTheirOpacities() {
        SkinButton button;
        button.resize(60, 30);
        button.setImage(plate(Qt::black));
        QVERIFY(button.image() == button.normalImage());
        const auto shade = [](const SkinImage &look) {
            QImage canvas(60, 30, QImage::Format_RGB32);
            canvas.fill(Qt::white);
            QPainter painter(&canvas);
            look.draw(painter, canvas.rect());
            return canvas.pixelColor(30, 15).red();
        };
        // Black at 1.0, 0.7 and 0.4 over white.
        QCOMPARE(shade(button.normalImage()), 0);
        QCOMPARE(shade(button.mouseOnImage()), 0);
        QVERIFY(qAbs(shade(button.mouseDownImage()) - 77) <= 1);
        QVERIFY(qAbs(shade(button.disableImage()) - 153) <= 1);
    }

    void anEmptyImageEmptiesAllLooks() {
        SkinButton button;
        button.setImage(plate(Qt::black));
        button.setImage(SkinImage());
        QVERIFY(button.image().isNull());
        QVERIFY(button.mouseOnImage().isNull());
        QVERIFY(button.mouseDownImage().isNull());
        QVERIFY(button.disableImage().isNull());
    }

    void enteringShowsTheHoverImage() {
        Skinned skinned;
        skinned.moveTo(skinned.inside);
        QVERIFY(skinned.button.image() == skinned.hover);
        QCOMPARE(centerOf(skinned.button), QColor(Qt::yellow));
    }

    void leavingKeepsTheHoverImageUntilTheNormalOneIsAskedFor() {
        Skinned skinned;
        skinned.moveTo(skinned.inside);
        skinned.moveTo(skinned.outside);
        QVERIFY(skinned.button.image() == skinned.hover);
        skinned.button.showNormalImage();
        QVERIFY(skinned.button.image() == skinned.normal);
    }

    void pressingShowsThePressedImageAndFiresNothing() {
        Skinned skinned;
        skinned.press();
        QVERIFY(skinned.button.image() == skinned.down);
        QCOMPARE(skinned.fired->count(), 0);
        skinned.release(skinned.inside);
    }

    void releasingInsideFiresOnceAndShowsTheHoverImage() {
        Skinned skinned;
        skinned.press();
        skinned.release(skinned.inside);
        QCOMPARE(skinned.fired->count(), 1);
        QVERIFY(skinned.button.image() == skinned.hover);
    }

    void draggingOutAndReleasingThereFiresNothing() {
        Skinned skinned;
        skinned.press();
        skinned.moveTo(skinned.outside);
        QVERIFY(skinned.button.image() == skinned.normal);
        skinned.release(skinned.outside);
        QCOMPARE(skinned.fired->count(), 0);
        QVERIFY(skinned.button.image() == skinned.normal);
    }

    void draggingOutAndBackInFiresOnce() {
        Skinned skinned;
        skinned.press();
        skinned.moveTo(skinned.outside);
        skinned.moveTo(skinned.inside);
        QVERIFY(skinned.button.image() == skinned.down);
        skinned.release(skinned.inside);
        QCOMPARE(skinned.fired->count(), 1);
        QVERIFY(skinned.button.image() == skinned.hover);
    }

    /// Which look is shown is a matter of identity: where hover is the normal image again, the
    /// release outside finds the normal image shown already.
    void releasingOutsideFiresWhereHoverIsTheNormalImage() {
        Skinned skinned;
        skinned.button.setMouseOnImage(skinned.normal);
        skinned.press();
        skinned.moveTo(skinned.outside);
        skinned.release(skinned.outside);
        QCOMPARE(skinned.fired->count(), 1);
    }

    void aDisabledButtonIgnoresTheMouse() {
        Skinned skinned;
        skinned.button.setEnabled(false);
        skinned.moveTo(skinned.inside);
        skinned.press();
        skinned.release(skinned.inside);
        QVERIFY(skinned.button.image() == skinned.disabled);
        QCOMPARE(skinned.fired->count(), 0);
    }

    void disablingShowsTheDisabledImageAtOnce() {
        Skinned skinned;
        skinned.button.setEnabled(false);
        QVERIFY(skinned.button.image() == skinned.disabled);
        skinned.button.showNormalImage();
        QVERIFY(skinned.button.image() == skinned.disabled);
    }

    void enablingShowsTheNormalImageUnderThePointerToo() {
        Skinned skinned;
        skinned.moveTo(skinned.inside);
        skinned.button.setEnabled(false);
        skinned.button.setEnabled(true);
        QVERIFY(skinned.button.image() == skinned.normal);
    }

    void enablingAnEnabledButtonEndsAStaleHoverLook() {
        Skinned skinned;
        skinned.moveTo(skinned.inside);
        skinned.moveTo(skinned.outside);
        skinned.button.setEnabled(true);
        QVERIFY(skinned.button.image() == skinned.normal);
    }

    void resizingMovesTheTrackingRectangle() {
        Skinned skinned;
        QCOMPARE(skinned.button.tracking(), QRect(0, 0, 60, 30));
        skinned.button.resize(20, 10);
        QCOMPARE(skinned.button.tracking(), QRect(0, 0, 20, 10));
        // A drag to where the button reached before is outside now.
        skinned.moveTo(QPoint(105, 85));
        QTest::mousePress(skinned.window.windowHandle(), Qt::LeftButton, {}, QPoint(105, 85));
        skinned.moveTo(skinned.inside + QPoint(10, 0));
        QVERIFY(skinned.button.image() == skinned.normal);
        skinned.release(skinned.inside + QPoint(10, 0));
    }

    void theOtherMouseButtonsDoNothing() {
        Skinned skinned;
        QTest::mouseClick(skinned.window.windowHandle(), Qt::RightButton, {}, skinned.inside);
        QCOMPARE(skinned.fired->count(), 0);
    }

    void spaceReturnAndEnterFire() {
        Skinned skinned;
        skinned.button.setFocus();
        QTest::keyClick(&skinned.button, Qt::Key_Space);
        QTest::keyClick(&skinned.button, Qt::Key_Return);
        QTest::keyClick(&skinned.button, Qt::Key_Enter);
        QCOMPARE(skinned.fired->count(), 3);
    }

    void theFocusRingIsPaintedForTheKeyboard() {
        Skinned skinned;
        QPushButton other(&skinned.window);
        other.show();
        other.setFocus();
        QWidget::setTabOrder(&other, &skinned.button);
        skinned.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&skinned.window));
        const QImage before = skinned.button.grab().toImage();
        QTest::keyClick(&skinned.window, Qt::Key_Tab);
        QVERIFY(skinned.button.hasFocus());
        const QImage after = skinned.button.grab().toImage();
        QVERIFY(before.pixelColor(30, 1) != after.pixelColor(30, 1));
        QCOMPARE(after.pixelColor(30, 15), QColor(Qt::green));
    }

    void aDrawingKeepsItsSizeAndIsSharpAtTwiceTheScale() {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"line.svg"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10' "
                   "viewBox='0 0 20 10'><rect x='0.5' width='0.5' height='10'/></svg>");
        file.close();
        const SkinImage image = SkinImage::named(folder.path(), u"line"_s);
        QCOMPARE(image.size(), QSize(20, 10));
        QImage canvas(40, 20, QImage::Format_RGB32);
        canvas.fill(Qt::white);
        QPainter painter(&canvas);
        painter.scale(2, 2);
        image.draw(painter, QRectF(0, 0, 20, 10));
        painter.end();
        // Half a point at twice the scale is one whole pixel, neither blurred nor missing.
        QCOMPARE(canvas.pixelColor(0, 10), QColor(Qt::white));
        QCOMPARE(canvas.pixelColor(1, 10), QColor(Qt::black));
        QCOMPARE(canvas.pixelColor(2, 10), QColor(Qt::white));
    }

    void aMissingOrDamagedSkinIsEmpty() {
        const QTemporaryDir folder;
        QVERIFY(SkinImage::named(folder.path(), u"none"_s).isNull());
        QFile file(folder.filePath(u"bad.svg"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<svg");
        file.close();
        QVERIFY(SkinImage::named(folder.path(), u"bad"_s).isNull());
    }
};

FOLIOFORGE_TEST(SkinButtonTest)
#include "SkinButtonTest.moc"
