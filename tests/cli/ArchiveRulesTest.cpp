// SPDX-License-Identifier: Apache-2.0

#include "support/Evidence.h"
#include "support/TestUnit.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge::test;

/// Each rule of the standards for archives has its test, or a reason why it needs none.
class ArchiveRulesTest : public QObject {
    Q_OBJECT

    static const QStringList &offered() {
        static const QStringList standards{u"1b"_s, u"2u"_s, u"2a"_s, u"3u"_s, u"3a"_s};
        return standards;
    }

  private Q_SLOTS:
    void eachRuleHasOneRow() {
        QStringList shown;
        for (const QStringList &row : rowsOf(u"tests/cli/archive/evidence.tsv"_s)) {
            for (const QString &standard : row.at(0).split(u',')) {
                shown += QStringList{standard, row.at(1), row.at(2), row.at(3)}.join(u' ');
            }
        }
        QStringList rules;
        for (const QStringList &row : rowsOf(u"tests/cli/archive/rules.tsv"_s)) {
            if (offered().contains(row.at(0))) {
                rules += row.join(u' ');
            }
        }
        QVERIFY(rules.size() > 400);
        shown.sort();
        rules.sort();
        QCOMPARE(shown, rules);
    }

    void eachTestThatIsNamedIsThere() {
        for (const QStringList &row : rowsOf(u"tests/cli/archive/evidence.tsv"_s)) {
            QVERIFY2(isThere(row.at(4)), qPrintable(row.at(4)));
        }
    }
};

FOLIOFORGE_TEST(ArchiveRulesTest)
#include "ArchiveRulesTest.moc"
