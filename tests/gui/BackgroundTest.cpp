// SPDX-License-Identifier: Apache-2.0

#include "skin/CycleSkinedView.h"
#include "support/TestUnit.h"

#include <QImage>
#include <QTest>

using namespace folioforge;

namespace {

QImage pictureOf(int width, int height) {
    CycleSkinedView view;
    view.resize(width, height);
    return view.grab().toImage();
}

} // namespace

class BackgroundTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theTopBandIsDarkAndTheRestWhite() {
        const QImage picture = pictureOf(80, 200);
        // 0.21956479121740835 of 255.
        const QColor band(56, 56, 56);
        QCOMPARE(picture.pixelColor(0, 0), band);
        QCOMPARE(picture.pixelColor(79, 57), band);
        QCOMPARE(picture.pixelColor(0, 58), QColor(Qt::white));
        QCOMPARE(picture.pixelColor(79, 199), QColor(Qt::white));
    }

    void aViewLowerThanTheBandIsAllDark() {
        const QImage picture = pictureOf(80, 40);
        QCOMPARE(picture.pixelColor(40, 0), QColor(56, 56, 56));
        QCOMPARE(picture.pixelColor(40, 39), QColor(56, 56, 56));
    }
};

FOLIOFORGE_TEST(BackgroundTest)
#include "BackgroundTest.moc"
