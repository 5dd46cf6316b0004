// SPDX-License-Identifier: Apache-2.0

#include "support/Files.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge::test;

/// Each rule of the standards for archives has its test, or a reason why it needs none.
class ArchiveRulesTest : public QObject {
    Q_OBJECT

    static QList<QStringList> rowsOf(const QString &name) {
        QList<QStringList> rows;
        const QString text = QString::fromUtf8(readFile(inSource(u"tests/cli/archive/"_s + name)));
        for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts).sliced(1)) {
            rows += line.split(u'\t');
        }
        return rows;
    }

    static const QStringList &offered() {
        static const QStringList standards{u"1b"_s, u"2u"_s, u"2a"_s, u"3u"_s, u"3a"_s};
        return standards;
    }

  private Q_SLOTS:
    void eachRuleHasOneRow() {
        QStringList shown;
        for (const QStringList &row : rowsOf(u"evidence.tsv"_s)) {
            for (const QString &standard : row.at(0).split(u',')) {
                shown += QStringList{standard, row.at(1), row.at(2), row.at(3)}.join(u' ');
            }
        }
        QStringList rules;
        for (const QStringList &row : rowsOf(u"rules.tsv"_s)) {
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
        for (const QStringList &row : rowsOf(u"evidence.tsv"_s)) {
            if (row.at(4).startsWith(u"cannot arise: ")) {
                continue;
            }
            const QStringList name = row.at(4).split(u'.');
            QCOMPARE(name.size(), 3);
            const QByteArray source =
                readFile(inSource(u"tests/%1/%2Test.cpp"_s.arg(name.at(0), name.at(1))));
            const QByteArray function = "    void " + name.at(2).toUtf8() + "() {";
            QVERIFY2(source.contains(function), qPrintable(row.at(4)));
        }
    }
};

FOLIOFORGE_TEST(ArchiveRulesTest)
#include "ArchiveRulesTest.moc"
