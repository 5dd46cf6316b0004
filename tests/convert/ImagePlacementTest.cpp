// SPDX-License-Identifier: Apache-2.0

#include "convert/ImagePlacement.h"
#include "support/TestUnit.h"

#include <QTest>

using namespace folioforge;

namespace {

PageSetup fixedPage(qint64 width, qint64 height, PageMargins margins) {
    return {ImagePageCustom, width, height, margins};
}

} // namespace

class ImagePlacementTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aSmallImageFillsAFixedPageBetweenItsMargins() {
        const ImagePlacement placed = placeImage({100, 50}, fixedPage(612, 792, {36, 36, 36, 36}));
        // The scale 540/100 in single precision is 5.400000095; 100 and 50 times it round back.
        QCOMPARE(placed.page, QSizeF(612, 792));
        QCOMPARE(placed.image, QRectF(36, 261, 540, 270));
    }

    void aLargeImageIsReducedAndCentred() {
        const ImagePlacement placed = placeImage({2000, 1000}, fixedPage(500, 600, {}));
        QCOMPARE(placed.image, QRectF(0, 175, 500, 250));
    }

    void unequalMarginsMoveTheImage() {
        const ImagePlacement placed = placeImage(
            {100, 100}, fixedPage(300, 300, {.left = 10, .right = 50, .top = 20, .bottom = 60}));
        // 240 by 220 points are free: the height decides, 20 points of width are spare.
        QCOMPARE(placed.image, QRectF(20, 60, 220, 220));
    }

    void otherPagesTakeTheImagesSizeAndTheMargins() {
        const PageSetup setup{ImagePageFollowsImage, 999, 999, {10, 10, 10, 10}};
        const ImagePlacement placed = placeImage({200, 100}, setup);
        QCOMPARE(placed.page, QSizeF(220, 120));
        QCOMPARE(placed.image, QRectF(10, 10, 200, 100));
    }

    void unequalMarginsAroundTheImageKeepItUnscaled() {
        const PageSetup setup{
            ImagePageFollowsImage, 0, 0, {.left = 1, .right = 2, .top = 4, .bottom = 8}};
        const ImagePlacement placed = placeImage({200, 100}, setup);
        QCOMPARE(placed.page, QSizeF(203, 112));
        QCOMPARE(placed.image, QRectF(1, 8, 200, 100));
    }

    void anyOtherRowFollowsTheImage() {
        const PageSetup setup{7, 50, 50, {}};
        QCOMPARE(placeImage({200, 100}, setup).page, QSizeF(200, 100));
    }

    void aPageLiesAsItIsAskedTo_data() {
        QTest::addColumn<PageOrientation>("orientation");
        QTest::addColumn<QSizeF>("image");
        QTest::addColumn<QSizeF>("page");
        const auto row = [](const char *name, PageOrientation orientation, QSizeF image,
                            QSizeF page) { QTest::newRow(name) << orientation << image << page; };
        row("as given", PageOrientation::AsGiven, {20, 10}, {300, 400});
        row("as a wide image", PageOrientation::Auto, {20, 10}, {400, 300});
        row("as a tall image", PageOrientation::Auto, {10, 20}, {300, 400});
        row("under a square image", PageOrientation::Auto, {10, 10}, {300, 400});
        row("portrait", PageOrientation::Portrait, {20, 10}, {300, 400});
        row("landscape", PageOrientation::Landscape, {10, 20}, {400, 300});
    }
    void aPageLiesAsItIsAskedTo() {
        QFETCH(const PageOrientation, orientation);
        QFETCH(const QSizeF, image);
        QTEST(placeImage(image, fixedPage(300, 400, {}), {.orientation = orientation}).page,
              "page");
    }

    void aSquareImageLeavesAWidePageAsItIs() {
        const ImageLayout layout{.orientation = PageOrientation::Auto};
        QCOMPARE(placeImage({10, 10}, fixedPage(400, 300, {}), layout).page, QSizeF(400, 300));
    }

    void anImageThatOnlyShrinksStaysAsItIsWhereItFits() {
        const ImageLayout layout{.fit = ImageFit::Shrink};
        QCOMPARE(placeImage({100, 50}, fixedPage(300, 400, {}), layout).image,
                 QRectF(100, 175, 100, 50));
        QCOMPARE(placeImage({600, 300}, fixedPage(300, 400, {}), layout).image,
                 QRectF(0, 125, 300, 150));
    }

    void anImageThatFillsLeavesNoSpace() {
        const auto placed =
            placeImage({100, 50}, fixedPage(300, 400, {10, 30, 20, 40}), {.fit = ImageFit::Fill});
        // 260 by 340 points are free: the height decides, 420 points of width are cut off.
        QCOMPARE(placed.image, QRectF(-200, 40, 680, 340));
        QCOMPARE(placed.space, QRectF(10, 40, 260, 340));
    }

    void theScaleIsASinglePrecisionNumber() {
        // 100/3 as a 32-bit float is 33.33333206176758; three times that rounds to 100 exactly,
        // while 7/3 of it shows the float: 7 * 33.33333206176758 = 233.3333282470703 in 32 bits.
        const ImagePlacement placed = placeImage({3, 7}, fixedPage(100, 1000, {}));
        QCOMPARE(placed.image.width(), 100.0);
        QVERIFY(placed.image.height() == 233.3333282470703125);
    }

    void theSizeInPointsIsASinglePrecisionNumber() {
        // 17 pixels at 300 per inch are 4.08 points. The float of 4.08 times the float of 100/12
        // is 33.99999618530273; the product of the double would be 34.
        const ImagePlacement placed = placeImage({12, 4.08}, fixedPage(100, 1000, {}));
        QVERIFY(placed.image.height() == 33.999996185302734);
    }

    void theDrawnSizeIsASinglePrecisionProduct() {
        // Five times the float of 100/3 lies between two floats: 166.6666603088379 is rounded to
        // 166.66665649414062, where a product of doubles would keep it or say 166.66666666666666.
        const ImagePlacement placed = placeImage({3, 5}, fixedPage(100, 1000, {}));
        QCOMPARE(placed.image.width(), 100.0);
        QVERIFY(placed.image.height() == 166.66665649414062);
        QVERIFY(placed.image.y() == (1000 - 166.66665649414062) * 0.5);
    }
};

FOLIOFORGE_TEST(ImagePlacementTest)
#include "ImagePlacementTest.moc"
