// SPDX-License-Identifier: Apache-2.0

#include "pdf/OrientedMatrix.h"
#include "support/TestUnit.h"

#include <QTest>

using namespace folioforge;

namespace {

QPointF mapped(const Matrix &matrix, QPointF point) {
    return {matrix.a * point.x() + matrix.c * point.y() + matrix.e,
            matrix.b * point.x() + matrix.d * point.y() + matrix.f};
}

} // namespace

class OrientedMatrixTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    // Exif 2.32, tag 0x0112: which side of the shown picture the stored first row and the stored
    // first column are. In the unit square the stored first row lies at y = 1, the first column at
    // x = 0, so the stored corner (first row, first column) is (0, 1).
    void firstRowAndFirstColumnLieWhereTheTagSays_data() {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QPointF>("firstCorner"); // first row, first column
        QTest::addColumn<QPointF>("rowEnd");      // first row, last column
        QTest::addColumn<QPointF>("columnEnd");   // last row, first column
        const QPointF topLeft(10, 220);
        const QPointF topRight(110, 220);
        const QPointF bottomLeft(10, 20);
        const QPointF bottomRight(110, 20);
        QTest::newRow("row top, column left") << 1 << topLeft << topRight << bottomLeft;
        QTest::newRow("row top, column right") << 2 << topRight << topLeft << bottomRight;
        QTest::newRow("row bottom, column right") << 3 << bottomRight << bottomLeft << topRight;
        QTest::newRow("row bottom, column left") << 4 << bottomLeft << bottomRight << topLeft;
        QTest::newRow("row left, column top") << 5 << topLeft << bottomLeft << topRight;
        QTest::newRow("row right, column top") << 6 << topRight << bottomRight << topLeft;
        QTest::newRow("row right, column bottom") << 7 << bottomRight << topRight << bottomLeft;
        QTest::newRow("row left, column bottom") << 8 << bottomLeft << topLeft << bottomRight;
        QTest::newRow("zero counts as 1") << 0 << topLeft << topRight << bottomLeft;
        QTest::newRow("nine counts as 1") << 9 << topLeft << topRight << bottomLeft;
    }
    void firstRowAndFirstColumnLieWhereTheTagSays() {
        QFETCH(int, orientation);
        const Matrix matrix = orientedMatrix({10, 20, 100, 200}, orientation);
        QTEST(mapped(matrix, {0, 1}), "firstCorner");
        QTEST(mapped(matrix, {1, 1}), "rowEnd");
        QTEST(mapped(matrix, {0, 0}), "columnEnd");
    }
};

FOLIOFORGE_TEST(OrientedMatrixTest)
#include "OrientedMatrixTest.moc"
