// SPDX-License-Identifier: Apache-2.0

#include "gui/TestWindow.h"
#include "support/Places.h"
#include "support/Sanitizer.h"
#include "support/TestUnit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>
#include <filesystem>
#include <iterator>

#include <malloc.h>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// The entries of a run. Under the sanitizer each takes ten times as long.
int entriesOfARun() {
    return isSanitized() ? 250 : 1000;
}

/// Bytes of the heap that are in use.
qint64 heapInUse() {
    if (isSanitized()) {
        return qint64(sanitizedBytes());
    }
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
}

/// Open files, by the kernel's count.
qint64 openHandles() {
    const std::filesystem::directory_iterator handles("/proc/self/fd");
    return std::distance(begin(handles), end(handles));
}

/// What the process holds at this moment.
struct Holdings {
    qint64 heap = heapInUse();
    qint64 handles = openHandles();
};

/// Resident memory in KB, for the log: it depends on the allocator as well.
qint64 residentMemory() {
    QFile status(u"/proc/self/statm"_s);
    constexpr int kPageKilobytes = 4;
    return status.open(QIODevice::ReadOnly)
               ? status.readAll().split(' ').value(1).toLongLong() * kPageKilobytes
               : -1;
}

/// A window with a short text for each entry in its list.
struct LongList {
    LongList() {
        QStringList paths;
        for (int i = 0; i < entriesOfARun(); ++i) {
            paths += w.file(u"%1.txt"_s.arg(i), "one line of text\n");
        }
        w.ctrl.addFiles(paths, -1);
    }

    /// Runs once into a folder of its own; what is held afterwards.
    Holdings run() {
        const QString folder = w.path(u"run%1"_s.arg(++runs));
        QDir().mkpath(folder);
        w.control<QLineEdit>("m_tfOutputFolder")->setText(folder);
        w.press("m_btnCreate");
        QTimer::singleShot(120'000, &w.ctrl, [] { qFatal("the run does not end"); });
        while (w.ctrl.isConverting()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        written = QDir(folder).entryList(QDir::Files).size();
        qInfo("run %d: %lld KB resident", runs, residentMemory());
        return {};
    }

    TestWindow w{bundlePath()};
    int runs = 0;
    qsizetype written = 0;
};

} // namespace

class LongRunsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    /// In memory where the system has such a folder: bringing each PDF to the disk takes long.
    void initTestCase() {
        const QFileInfo memory(u"/dev/shm"_s);
        if (memory.isWritable()) {
            qputenv("TMPDIR", QFile::encodeName(memory.filePath()));
        }
    }

    void runsOfManyEntriesHoldNothingAfterwards_data() {
        QTest::addColumn<bool>("merge");
        QTest::addColumn<int>("compression");
        QTest::newRow("a PDF each") << false << 0;
        QTest::newRow("one PDF, compressed") << true << 3;
    }

    void runsOfManyEntriesHoldNothingAfterwards() {
        QFETCH(const bool, merge);
        QFETCH(const int, compression);
        constexpr int kSmallestObject = 32; // Bytes.
        const qint64 allowance = kSmallestObject * entriesOfARun();
        LongList list;
        list.w.control<QCheckBox>("m_btnMerge")->setChecked(merge);
        list.w.control<QComboBox>("m_comboCompressMethod")->setCurrentIndex(compression);
        // The first run fills what is kept on purpose, such as fonts.
        Holdings before = list.run();
        qint64 growth = allowance;
        // A thread that is only just ending holds some kilobytes; what an entry leaves, every run
        // adds to.
        for (int i = 0; i < 3; ++i) {
            const Holdings after = list.run();
            QCOMPARE(list.written, merge ? 1 : entriesOfARun());
            QCOMPARE(after.handles, before.handles);
            growth = std::min(growth, after.heap - before.heap);
            before = after;
        }
        qInfo("the heap grew by %lld bytes", growth);
        QVERIFY(growth < allowance);
    }
};

FOLIOFORGE_TEST(LongRunsTest)
#include "LongRunsTest.moc"
