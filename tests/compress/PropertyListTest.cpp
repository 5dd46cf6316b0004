// SPDX-License-Identifier: Apache-2.0

#include "compress/PropertyList.h"
#include "support/TestUnit.h"

#include "error/Error.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

const QByteArray kHead = R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)";

} // namespace

class PropertyListTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString write(const QByteArray &bytes) const {
        QString path = m_folder.filePath(u"list.plist"_s);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("cannot write %s", qPrintable(path));
        }
        return path;
    }

  private Q_SLOTS:
    void readsEveryKindOfValue() {
        const QString path = write(kHead + R"(<dict>
            <key>CFBundleIconFile</key><string>Folioforge &amp; Söhne</string>
            <key>yes</key><true/><key>no</key><false/>
            <key>whole</key><integer>-7</integer><key>real</key><real>1.25</real>
            <key>data</key><data>AQID</data>
            <key>date</key><date>2024-02-29T12:30:00Z</date>
            <key>list</key><array><integer>1</integer><string>two</string></array>
            <key>inner</key><dict><key>deep</key><string>down</string></dict>
            </dict></plist>)");
        const QVariantMap map = readPropertyList(path);
        QCOMPARE(map.value(u"CFBundleIconFile"_s).toString(), u"Folioforge & S\u00f6hne"_s);
        QCOMPARE(map.value(u"yes"_s), QVariant(true));
        QCOMPARE(map.value(u"no"_s), QVariant(false));
        QCOMPARE(map.value(u"whole"_s), QVariant(qint64(-7)));
        QCOMPARE(map.value(u"real"_s), QVariant(1.25));
        QCOMPARE(map.value(u"data"_s), QVariant(QByteArray("\x01\x02\x03")));
        QCOMPARE(map.value(u"date"_s).toDateTime(),
                 QDateTime(QDate(2024, 2, 29), QTime(12, 30), QTimeZone::utc()));
        QCOMPARE(map.value(u"list"_s), QVariant(QVariantList{qint64(1), u"two"_s}));
        QCOMPARE(map.value(u"inner"_s).toMap().value(u"deep"_s), QVariant(u"down"_s));
    }

    void theBinaryFormIsRefusedInWords() {
        const QString path = write("bplist00\xd1\x01\x02");
        try {
            readPropertyList(path);
            QFAIL("no error");
        } catch (const Error &error) {
            QCOMPARE(error.reason(), path + u" is a binary property list; only XML can be read"_s);
        }
    }

    void listsDeepWithinListsAreRefused_data() {
        QTest::addColumn<int>("levels");
        QTest::addColumn<bool>("isRead");
        QTest::newRow("few") << 60 << true;
        QTest::newRow("many") << 70 << false;
        QTest::newRow("a thousand") << 1000 << false;
    }

    void listsDeepWithinListsAreRefused() {
        QFETCH(const int, levels);
        QFETCH(const bool, isRead);
        const QString path =
            write(kHead + "<dict><key>a</key>" + QByteArray("<array>").repeated(levels) +
                  QByteArray("</array>").repeated(levels) + "</dict></plist>");
        if (isRead) {
            QVERIFY(readPropertyList(path).contains(u"a"_s));
        } else {
            QVERIFY_THROWS_EXCEPTION(Error, readPropertyList(path));
        }
    }

    void listsLargerThanAnyOfTheBundleAreRefused() {
        const QByteArray list = kHead + "<dict><key>a</key><string>" + QByteArray(17000, 'a') +
                                "</string></dict></plist>";
        QVERIFY_THROWS_EXCEPTION(Error, readPropertyList(write(list)));
    }

    void refusesWhatIsNoDictionary_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("words") << QByteArray("no list at all");
        QTest::newRow("array") << kHead + "<array><true/></array></plist>";
        QTest::newRow("cut short") << kHead + "<dict><key>a</key><str";
        QTest::newRow("behind its end") << kHead + "<dict/></plist><plist/>";
        QTest::newRow("key without a value") << kHead + "<dict><key>a</key></dict></plist>";
        QTest::newRow("value without a key") << kHead + "<dict><true/></dict></plist>";
        QTest::newRow("no number")
            << kHead + "<dict><key>a</key><integer>one</integer></dict></plist>";
        QTest::newRow("no such kind") << kHead + "<dict><key>a</key><word>b</word></dict></plist>";
    }

    void refusesWhatIsNoDictionary() {
        QFETCH(const QByteArray, bytes);
        const QString path = write(bytes);
        QVERIFY_THROWS_EXCEPTION(Error, readPropertyList(path));
    }

    void aMissingFileIsNamed() {
        const QString path = m_folder.filePath(u"absent.plist"_s);
        try {
            readPropertyList(path);
            QFAIL("no error");
        } catch (const Error &error) {
            QVERIFY(error.reason().contains(path));
        }
    }
};

FOLIOFORGE_TEST(PropertyListTest)
#include "PropertyListTest.moc"
