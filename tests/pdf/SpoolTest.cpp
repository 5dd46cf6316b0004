#include "pdf/Spool.h"

#include <QTemporaryDir>
#include <QTest>

using namespace folioforge;

class SpoolTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void givesBackWhatItGot() {
        Spool spool;
        const auto first = spool.add(QByteArray("first"));
        const auto empty = spool.add(QByteArray());
        const auto second = spool.add(QByteArray("second"));
        QCOMPARE(spool.at(first), QByteArray("first"));
        QCOMPARE(spool.at(empty), QByteArray());
        QCOMPARE(spool.at(second), QByteArray("second"));
    }

    void givesBackWhatNoLongerFitsIntoMemoryAndShowsNoFile() {
        const QTemporaryDir folder;
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", folder.path().toLocal8Bit());
        Spool spool;
        std::vector<Spool::Place> places;
        for (char c = 'a'; c <= 'z'; ++c) {
            places.push_back(spool.add(QByteArray(1 << 20, c)));
        }
        QCOMPARE(
            QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList());
        for (char c = 'a'; c <= 'z'; ++c) {
            const QByteArray data = spool.at(places.at(static_cast<std::size_t>(c - 'a')));
            QCOMPARE(data, QByteArray(1 << 20, c));
        }
        qputenv("TMPDIR", before);
    }
};

QTEST_APPLESS_MAIN(SpoolTest)
#include "SpoolTest.moc"
