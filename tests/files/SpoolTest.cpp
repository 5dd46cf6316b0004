// SPDX-License-Identifier: Apache-2.0

#include "files/Spool.h"

#include "error/Error.h"
#include "files/AbandonedParts.h"
#include "support/FaultyCalls.h"
#include "support/TestUnit.h"

#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cstring>
#include <numeric>
#include <vector>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

/// A disk that moves no bytes and names no reason. Whoever asks for ever is told another one.
class StandingDisk final : public SystemCalls {
  public:
    ssize_t pread(int, void *, std::size_t, off_t) override { return answer(); }
    ssize_t pwrite(int fd, const void *data, std::size_t size, off_t offset) override {
        return takesBytes ? SystemCalls::pwrite(fd, data, size, offset) : answer();
    }

    bool takesBytes = false;

  private:
    ssize_t answer() {
        constexpr int kPatience = 1000;
        errno = ++m_asked > kPatience ? EDOM : 0;
        return errno == 0 ? 0 : -1;
    }

    int m_asked = 0;
};

} // namespace

class SpoolTest : public QObject {
    Q_OBJECT

    /// Puts 12 MB through a spool; the reason of what failed. Other data than was kept fails the
    /// test.
    static QString keepAndGiveBack(SystemCalls &calls) {
        constexpr int kPieces = 3;
        static const QByteArray numbers = [] {
            constexpr int kNumbers = 1 << 20;
            std::vector<int> all(kNumbers);
            std::iota(all.begin(), all.end(), 0);
            return QByteArray(reinterpret_cast<const char *>(all.data()), kNumbers * sizeof(int));
        }();
        // No byte range of a piece is like another.
        const auto pieceOf = [](char piece) { return QByteArray(numbers).append(piece); };
        try {
            Spool spool(calls);
            std::vector<Spool::Place> places;
            for (char piece = 0; piece < kPieces; ++piece) {
                places.push_back(spool.add(pieceOf(piece)));
            }
            for (char piece = 0; piece < kPieces; ++piece) {
                const auto data = spool.at(places.at(static_cast<std::size_t>(piece)));
                if (data.toByteArray() != pieceOf(piece)) {
                    return u"other data came back"_s;
                }
            }
        } catch (const Error &error) {
            return error.reason();
        }
        return {};
    }

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

    void aFaultOfTheDiskIsAnErrorAndNeverWrongData_data() {
        QTest::addColumn<bool>("nameless");
        QTest::newRow("nameless file") << true;
        QTest::newRow("removed file") << false;
    }
    void aFaultOfTheDiskIsAnErrorAndNeverWrongData() {
        QFETCH(bool, nameless);
        const QTemporaryDir folder;
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", folder.path().toLocal8Bit());
        const auto restore = qScopeGuard([&] { qputenv("TMPDIR", before); });
        const std::map<std::string, int> missing =
            nameless ? std::map<std::string, int>()
                     : std::map<std::string, int>{{"openAnonymous", EOPNOTSUPP}};
        test::FaultyCalls counted;
        counted.failing = missing;
        QCOMPARE(keepAndGiveBack(counted), QString());
        int tried = 0;
        for (int call = 1; call <= counted.count(); ++call) {
            for (const int error : {ENOSPC, EIO, EACCES, EINTR, 0}) {
                test::FaultyCalls calls;
                calls.failing = missing;
                calls.fault = {call, error, false, {}};
                const QString reason = keepAndGiveBack(calls);
                const bool goesOn = error == EINTR || error == 0;
                QVERIFY(reason.isEmpty() || !goesOn);
                QVERIFY2(reason.isEmpty() ||
                             reason.contains(QString::fromLocal8Bit(std::strerror(error))),
                         qPrintable(reason));
                QVERIFY(calls.keptFiles() ||
                        QDir(folder.path())
                            .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
                const AbandonedParts cleared(folder.path(), AbandonedParts::Kinds::Files);
                ++tried;
            }
        }
        qInfo("%d faults tried", tried);
    }

    void aDiskThatTakesNoBytesIsFull() {
        StandingDisk disk;
        QCOMPARE(keepAndGiveBack(disk), u"Cannot write a temporary file: "_s +
                                            QString::fromLocal8Bit(std::strerror(ENOSPC)));
    }

    void bytesThatAreGoneAreAnError() {
        StandingDisk disk;
        disk.takesBytes = true;
        QCOMPARE(keepAndGiveBack(disk),
                 u"Cannot read a temporary file: "_s + QString::fromLocal8Bit(std::strerror(EIO)));
    }

    void whatWasKeptIsThereWhenTheDiskFillsUpHalfWay() {
        test::FaultyCalls calls;
        constexpr int kFirstWrite = 2; // After the file was made.
        calls.fault = {kFirstWrite, ENOSPC, true, {}, true};
        Spool spool(calls);
        // NOLINTNEXTLINE(clang-analyzer-deadcode.DeadStores): it is read behind the exception
        const auto first = spool.add(QByteArray(4 << 20, 'a'));
        // NOLINTNEXTLINE(clang-analyzer-deadcode.DeadStores): it is read behind the exception
        const auto second = spool.add(QByteArray(4 << 20, 'b'));
        QVERIFY_THROWS_EXCEPTION(Error, spool.add(QByteArray(4 << 20, 'c')));
        QCOMPARE(calls.count(), kFirstWrite + 1);
        QVERIFY(spool.at(first) == QByteArray(4 << 20, 'a'));
        QVERIFY(spool.at(second) == QByteArray(4 << 20, 'b'));
        calls.fault = {};
        const auto third = spool.add(QByteArray(4 << 20, 'd'));
        QVERIFY(spool.at(first) == QByteArray(4 << 20, 'a'));
        QVERIFY(spool.at(second) == QByteArray(4 << 20, 'b'));
        QVERIFY(spool.at(third) == QByteArray(4 << 20, 'd'));
    }

    void whatIsCutOffLeavesTheRestAndItsRoomOnTheDisk_data() {
        QTest::addColumn<int>("kept");
        QTest::newRow("in memory") << 5;
        QTest::newRow("in the file") << 1;
    }
    void whatIsCutOffLeavesTheRestAndItsRoomOnTheDisk() {
        QFETCH(const int, kept);
        constexpr qsizetype kPiece = 3 << 20;
        test::FaultyCalls calls;
        calls.room = 6 * kPiece;
        Spool spool(calls);
        std::vector<Spool::Place> places;
        for (char c = 0; c < kept; ++c) {
            places.push_back(spool.add(QByteArray(kPiece, c)));
        }
        const qint64 size = spool.size();
        QCOMPARE(size, kept * kPiece);
        try {
            for (;;) {
                spool.add(QByteArray(kPiece, 'x'));
            }
        } catch (const Error &full) {
            QVERIFY(full.reason().contains(QString::fromLocal8Bit(std::strerror(ENOSPC))));
        }
        spool.cutTo(size);
        for (char c = static_cast<char>(kept); c < 6; ++c) {
            places.push_back(spool.add(QByteArray(kPiece, c)));
        }
        for (char c = 0; c < 6; ++c) {
            QCOMPARE(spool.at(places.at(static_cast<std::size_t>(c))).toByteArray(),
                     QByteArray(kPiece, c));
        }
    }

    void whatIsCutOffInMemoryLeavesTheRest() {
        Spool spool;
        const auto first = spool.add(QByteArray("first"));
        const qint64 size = spool.size();
        spool.add(QByteArray("second"));
        spool.cutTo(size);
        QCOMPARE(spool.size(), size);
        const auto third = spool.add(QByteArray("third"));
        QCOMPARE(spool.at(first).toByteArray(), QByteArray("first"));
        QCOMPARE(spool.at(third).toByteArray(), QByteArray("third"));
    }

    void theFileOfWhatIsCutOffGetsSmaller() {
        test::FaultyCalls calls;
        Spool spool(calls);
        spool.add(QByteArray(9 << 20, 'a'));
        // NOLINTNEXTLINE(clang-analyzer-deadcode.DeadStores): it is read behind the exception
        const qint64 size = spool.size();
        calls.room = 10 << 20;
        QVERIFY_THROWS_EXCEPTION(Error, spool.add(QByteArray(9 << 20, 'b')));
        spool.cutTo(size);
        QCOMPARE(calls.sizeOfCut(), off_t{9} << 20);
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

FOLIOFORGE_TEST(SpoolTest)
#include "SpoolTest.moc"
