#include "pdf/Spool.h"

#include <QTemporaryDir>
#include <QTest>

#include <array>

using namespace folioforge;

class SpoolTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void givesBackWhatItGot() {
        Spool spool;
        const auto first = spool.add(QByteArray("first"));
        const auto empty = spool.add(QByteArray());
        const auto second = spool.add(QByteArray("second"));
        QCOMPARE(spool.at(first).toByteArray(), QByteArray("first"));
        QCOMPARE(spool.at(empty).toByteArray(), QByteArray());
        QCOMPARE(spool.at(second).toByteArray(), QByteArray("second"));
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
            const auto data = spool.at(places.at(static_cast<std::size_t>(c - 'a')));
            QCOMPARE(data.toByteArray(), QByteArray(1 << 20, c));
        }
        qputenv("TMPDIR", before);
    }

    void givesBackSmallAndHugePiecesInAnyOrder() {
        constexpr std::array<qsizetype, 5> kSizes{900, 300'000, 9 << 20, 0, 1};
        Spool spool;
        std::vector<Spool::Place> places;
        for (int i = 0; i < 60; ++i) {
            const auto size = kSizes.at(static_cast<std::size_t>(i) % kSizes.size());
            places.push_back(spool.add(QByteArray(size, static_cast<char>(i))));
        }
        for (int i = 0; i < 60; ++i) {
            const int other = i * 37 % 60;
            const auto data = spool.at(places.at(static_cast<std::size_t>(other)));
            QCOMPARE(data.size(), kSizes.at(static_cast<std::size_t>(other) % kSizes.size()));
            QVERIFY(data.toByteArray().count(static_cast<char>(other)) == data.size());
        }
    }
};

QTEST_APPLESS_MAIN(SpoolTest)
#include "SpoolTest.moc"
