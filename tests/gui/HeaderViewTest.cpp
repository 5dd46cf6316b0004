// SPDX-License-Identifier: Apache-2.0

#include "skin/VesprinTableHeaderView.h"
#include "support/TestUnit.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

constexpr QRgb kGround = 0xff0000ff; // Blue: no colour of the header.

QImage canvas(int width, int height) {
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(kGround);
    return picture;
}

QImage drawn(int column, const QRectF &cell, const QString &title = {}, QSize size = {200, 60}) {
    QImage picture = canvas(size.width(), size.height());
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    VesprinTableHeaderView::drawColumn(painter, column, cell, title);
    return picture;
}

/// Grey 0.5 at `alpha` over `under`, both of 255.
int over(int under, double alpha) {
    return qRound(127.5 * alpha + under * (1 - alpha));
}

bool isNear(const QColor &color, int grey) {
    return qAbs(color.red() - grey) <= 2 && qAbs(color.green() - grey) <= 2 &&
           qAbs(color.blue() - grey) <= 2;
}

/// The pixels of `picture` darker than the header's greys: the title's ink.
QRect inkOf(const QImage &picture) {
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y).lightness() < 90 &&
                picture.pixelColor(x, y).blue() < 200) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

} // namespace

class HeaderViewTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theCellIsFilledButForItsTopRow() {
        const QImage picture = drawn(0, QRectF(10, 5, 100, 34));
        const int grey = qRound(0.98 * 255);
        QCOMPARE(picture.pixel(50, 5), kGround);
        QVERIFY(isNear(picture.pixelColor(50, 6), grey));
        QVERIFY(isNear(picture.pixelColor(50, 30), grey));
        QCOMPARE(picture.pixel(9, 20), kGround);
        QCOMPARE(picture.pixel(115, 20), kGround);
    }

    void theSeparatorKeepsEightPointsFromTopAndBottom_data() {
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");
        QTest::newRow("as high as in the window") << 34 << 8 << 25;
        QTest::newRow("higher") << 50 << 8 << 41;
        // From 8 to 12 - 8 = 4: the ends have changed places.
        QTest::newRow("low, upwards") << 12 << 4 << 7;
    }

    void theSeparatorKeepsEightPointsFromTopAndBottom() {
        QFETCH(const int, height);
        QFETCH(const int, first);
        QFETCH(const int, last);
        const QImage picture = drawn(0, QRectF(0, 0, 100, height));
        const int ground = qRound(0.98 * 255);
        // A line of one point centred on the cell's edge covers half of the pixel on each side.
        const int half = over(ground, 0.25);
        QVERIFY(isNear(picture.pixelColor(99, first - 1), ground));
        QVERIFY(isNear(picture.pixelColor(99, first), half));
        QVERIFY(isNear(picture.pixelColor(99, last), half));
        QVERIFY(isNear(picture.pixelColor(99, last + 1), ground));
    }

    void theLastColumnHasNoSeparator() {
        const QImage picture = drawn(3, QRectF(0, 0, 100, 34));
        QVERIFY(isNear(picture.pixelColor(99, 17), qRound(0.98 * 255)));
        QCOMPARE(picture.pixel(100, 17), kGround);
    }

    void theBottomLineIsTwoPointsAroundTheEdge() {
        const QImage picture = drawn(0, QRectF(0, 0, 100, 34));
        QVERIFY(isNear(picture.pixelColor(50, 33), over(qRound(0.98 * 255), 0.5)));
        // Its lower half falls below the header: half grey over the ground.
        QVERIFY(qAbs(picture.pixelColor(50, 34).red() - 64) <= 2);
        QCOMPARE(picture.pixel(50, 35), kGround);
    }

    void theBottomLineOfTheLastTwoColumnsIsOnWholePoints_data() {
        QTest::addColumn<int>("column");
        QTest::addColumn<bool>("whole");
        QTest::newRow("0") << 0 << false;
        QTest::newRow("1") << 1 << false;
        QTest::newRow("2") << 2 << true;
        QTest::newRow("3") << 3 << true;
    }

    void theBottomLineOfTheLastTwoColumnsIsOnWholePoints() {
        QFETCH(const int, column);
        QFETCH(const bool, whole);
        // Bottom at 34.5: the line covers 33.5 to 35.5, or 33 to 35 where it is truncated. The
        // row at 35 is beyond the cell, so only the line colours it.
        const QImage picture = drawn(column, QRectF(0, 0, 100, 34.5));
        QCOMPARE(picture.pixel(50, 35) == kGround, whole);
    }

    void theTitleIsCentredAndRaisedByFour() {
        const QString title = u"HHH"_s;
        const QImage picture = drawn(3, QRectF(0, 0, 200, 34), title);
        QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        font.setPixelSize(13);
        const QFontMetricsF metrics(font);
        const QRect ink = inkOf(picture);
        QVERIFY(!ink.isEmpty());
        QVERIFY(qAbs(ink.center().x() - 100) <= 2);
        // Filled area 1 to 34; the text box is centred in it and raised by 4.
        const double top = 1 + (33 - metrics.height()) / 2 - 4;
        const double baseline = top + metrics.ascent();
        QVERIFY(qAbs(ink.bottom() + 1 - baseline) <= 1.5);
    }

    void aTitleWiderThanItsColumnIsCentredWhole() {
        const QImage picture = drawn(3, QRectF(80, 0, 40, 34), u"HHHHHHHHHHHHHH"_s);
        const QRect ink = inkOf(picture);
        QVERIFY(ink.left() < 78);
        QVERIFY(ink.right() > 122);
        QVERIFY(qAbs((ink.left() + ink.right()) / 2 - 100) <= 2);
    }

    void aHeaderWithoutATableDrawsNothingVisible() {
        VesprinTableHeaderView header;
        header.resize(100, 34);
        const QImage picture = header.grab().toImage();
        QImage even = picture;
        even.fill(picture.pixelColor(90, 20));
        QCOMPARE(picture, even);
    }

    void theWidgetDrawsTheTitlesOfItsTable() {
        QStandardItemModel model(0, 4);
        model.setHorizontalHeaderLabels({u"HHHH"_s, {}, {}, {}});
        QTableView table;
        table.setHorizontalHeader(new VesprinTableHeaderView(&table));
        table.setModel(&model);
        table.resize(420, 200);
        table.horizontalHeader()->setFixedHeight(34);
        table.show();
        const QImage picture = table.horizontalHeader()->viewport()->grab().toImage();
        QVERIFY(!inkOf(picture.copy(0, 0, 100, 32)).isEmpty());
        QVERIFY(inkOf(picture.copy(100, 0, 90, 32)).isEmpty());
    }
};

FOLIOFORGE_TEST(HeaderViewTest)
#include "HeaderViewTest.moc"
