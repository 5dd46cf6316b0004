// SPDX-License-Identifier: Apache-2.0

#include "files/SourceFile.h"

#include "error/Error.h"
#include "support/FaultyCalls.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <condition_variable>
#include <future>
#include <mutex>
#include <stop_token>

using namespace Qt::StringLiterals;
using namespace folioforge;

/// What is opened as a source file, and which of its bytes a view gives.
class SourceFileTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    QString m_path;

    static QString refusalOf(const QString &path) {
        try {
            static_cast<void>(SourceFile::open(path));
        } catch (const Error &error) {
            return error.reason();
        }
        return {};
    }

    /// Opens the pipe at `path` for writing after a while, so that whoever waits for that goes on.
    /// True when it had to.
    static bool wakeReaderOf(const QByteArray &path, const std::stop_token &stop) {
        std::mutex mutex;
        std::condition_variable_any woken;
        std::unique_lock lock(mutex);
        constexpr std::chrono::seconds kPatience{5};
        if (woken.wait_for(lock, stop, kPatience, [&stop] { return stop.stop_requested(); })) {
            return false;
        }
        ::close(::open(path.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
        return true;
    }

  private Q_SLOTS:
    void init() {
        m_path = m_folder.filePath(u"source"_s);
        test::writeFile(m_path, "0123456789");
    }

    void aDeviceIsNoSource() { QCOMPARE(refusalOf(u"/dev/zero"_s), u"It is not a regular file"_s); }

    void aPipeThatTakesTheNameIsNotWaitedFor() {
        const QByteArray name = QFile::encodeName(m_path);
        test::FaultyCalls calls;
        calls.fault.call = 1;
        calls.fault.first = [&name] {
            ::unlink(name.constData());
            ::mkfifo(name.constData(), 0600);
        };
        std::stop_source done;
        auto wasWaitedFor = std::async(std::launch::async, wakeReaderOf, name, done.get_token());
        QVERIFY_THROWS_EXCEPTION(Error, static_cast<void>(SourceFile::open(m_path, calls)));
        done.request_stop();
        QVERIFY(!wasWaitedFor.get());
        QVERIFY(QFile::remove(m_path));
    }

    void aChangeWithinTheSameSecondIsSeen() {
        std::array<timespec, 2> times{{{0, UTIME_OMIT}, {1'700'000'000, 5}}};
        const QByteArray name = QFile::encodeName(m_path);
        QCOMPARE(::utimensat(AT_FDCWD, name.constData(), times.data(), 0), 0);
        const SourceFile file = SourceFile::open(m_path);
        file.requireUnchanged();
        times[1].tv_nsec = 500'000'000;
        QCOMPARE(::utimensat(AT_FDCWD, name.constData(), times.data(), 0), 0);
        QVERIFY_THROWS_EXCEPTION(Error, file.requireUnchanged());
    }

    void aFileIsReadToItsEnd() {
        QCOMPARE(SourceFile::open(m_path).readAll(), QByteArray("0123456789"));
        const QByteArray large = QByteArray("0123456789").repeated(20'000);
        QCOMPARE(SourceFile::open(test::writeFile(m_path, large)).readAll(), large);
    }

    void aPartGivesNoBytesBehindItsEnd() {
        const SourceFile file = SourceFile::open(m_path);
        const FileView part = file.view().part(2, 4);
        QCOMPARE(part.read(1, 100), QByteArray("345"));
        std::array<uchar, 6> bytes{};
        QCOMPARE(part.readInto(1, bytes), 3);
        QCOMPARE(bytes, (std::array<uchar, 6>{'3', '4', '5', 0, 0, 0}));
        QCOMPARE(part.readInto(4, bytes), 0);
    }

    void bytesThatAreNotAllThereAreAnError() {
        const SourceFile file = SourceFile::open(m_path);
        QCOMPARE(file.view().readExactly(7, 3), QByteArray("789"));
        QVERIFY_THROWS_EXCEPTION(Error, static_cast<void>(file.view().readExactly(7, 4)));
    }

    void aPartEndsWhereItsViewEnds() {
        const SourceFile file = SourceFile::open(m_path);
        const FileView whole = file.view();
        QCOMPARE(whole.part(1, 9).size(), 9);
        QCOMPARE(whole.part(10, 0).size(), 0);
        QVERIFY_THROWS_EXCEPTION(Error, static_cast<void>(whole.part(1, 10)));
        QVERIFY_THROWS_EXCEPTION(Error, static_cast<void>(whole.part(11, 0)));
    }
};

FOLIOFORGE_TEST(SourceFileTest)
#include "SourceFileTest.moc"
