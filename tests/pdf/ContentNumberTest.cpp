// SPDX-License-Identifier: Apache-2.0

#include "pdf/ContentNumber.h"
#include "support/TestUnit.h"

#include <QTest>

#include <limits>

using namespace folioforge;

class ContentNumberTest : public QObject {
    Q_OBJECT

    static std::string written(double value) {
        std::string content;
        appendNumber(content, value);
        return content;
    }

  private Q_SLOTS:
    void writesNoMoreDigitsThanNeeded() {
        QCOMPARE(written(0), std::string("0 "));
        QCOMPARE(written(100), std::string("100 "));
        QCOMPARE(written(-0.5), std::string("-0.5 "));
        QCOMPARE(written(1.0 / 3), std::string("0.33333 "));
        QCOMPARE(written(12.34), std::string("12.34 "));
    }

    void roundsTinyNumbersToZeroWithoutSign() {
        QCOMPARE(written(1e-9), std::string("0 "));
        QCOMPARE(written(-1e-9), std::string("0 "));
    }

    void neverWritesExponentsOrWords() {
        QCOMPARE(written(1e14), std::string("100000000000000 "));
        QCOMPARE(written(std::numeric_limits<double>::infinity()), std::string("0 "));
        QCOMPARE(written(std::numeric_limits<double>::quiet_NaN()), std::string("0 "));
        QCOMPARE(written(1e300), std::string("1000000000000000 "));
    }
};

FOLIOFORGE_TEST(ContentNumberTest)
#include "ContentNumberTest.moc"
