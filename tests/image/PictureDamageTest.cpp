// SPDX-License-Identifier: Apache-2.0

#include "support/TestUnit.h"

#include "image/PictureDamage.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;

class PictureDamageTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void missingRowsAreToldInPercent() {
        const Warning warning = cutOffPicture(40, 100);
        QCOMPARE(warning.name(), "picture-damaged"_L1);
        QCOMPARE(warning.text, u"The picture is cut off: 40 % of its rows could not be read"_s);
    }

    void oneRowOfManyIsNotNothing() { QVERIFY(cutOffPicture(1, 10'000).text.contains(u" 1 % "_s)); }

    void allRowsButOneAreNotAll() {
        QVERIFY(cutOffPicture(9'999, 10'000).text.contains(u" 99 % "_s));
    }
};

FOLIOFORGE_TEST(PictureDamageTest)
#include "PictureDamageTest.moc"
