// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/SourcesAhead.h"

#include "MergeCase.h"
#include "support/Files.h"
#include "support/PdfFixture.h"
#include "support/TestUnit.h"

#include <qpdf/QPDF.hh>

#include <QTest>
#include <QThread>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// Notes which files are opened, and reads nothing where it is blind.
class NotingCalls final : public SystemCalls {
  public:
    int open(const char *path, int flags, mode_t mode) override {
        const int result = SystemCalls::open(path, flags, mode);
        const std::lock_guard lock(m_mutex);
        ++m_opened[path];
        m_changed.notify_all();
        return result;
    }
    bool isOpenedWithin(std::chrono::milliseconds time, const QString &path, int times = 1) {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, time,
                                  [&] { return m_opened[path.toStdString()] >= times; });
    }
    int timesOpened(const QString &path) {
        const std::lock_guard lock(m_mutex);
        return m_opened[path.toStdString()];
    }
    ssize_t pread(int fd, void *data, std::size_t size, off_t offset) override {
        errno = EIO;
        return isBlind ? -1 : SystemCalls::pread(fd, data, size, offset);
    }

    std::atomic<bool> isBlind = false;

  private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<std::string, int> m_opened;
};

} // namespace

/// Sources of a document that are parsed before their turn.
class SourcesAheadTest : public QObject, protected MergeCase {
    Q_OBJECT

    NotingCalls m_calls;
    QStringList m_sources;

    /// What is parsed ahead of the sources, and whether it is begun with each of `begun`.
    std::unique_ptr<SourcesAhead> ahead(const QStringList &begun) {
        auto result = std::make_unique<SourcesAhead>(
            std::vector<QString>(m_sources.begin(), m_sources.end()), InputPasswords(), m_calls, 2);
        for (const QString &path : begun) {
            if (!m_calls.isOpenedWithin(20s, path)) {
                QTest::qFail("It is not begun", __FILE__, __LINE__);
            }
        }
        return result;
    }
    std::unique_ptr<QPDF> taken(SourcesAhead &sources, const QString &path) {
        return sources.take(FileVersion::of(path), std::make_shared<SourceReader>());
    }
    /// Those of pages 4 to 6, which threePages() has.
    static QByteArrayList contentsOf(QPDF &document) {
        QByteArrayList names;
        for (const int page : {4, 5, 6}) {
            names += QByteArray::fromStdString(
                document.getObject(page, 0).getKey("/Contents").unparse());
        }
        return names;
    }

  private Q_SLOTS:
    void init() {
        m_calls.isBlind = false;
        m_sources.clear();
        for (int i = 0; i < 4; ++i) {
            m_sources += saved(threePages());
        }
    }

    void whatIsTakenIsParsedAsAWhole() {
        const auto sources = ahead({m_sources[0]});
        const auto document = taken(*sources, m_sources[0]);
        QVERIFY(document);
        m_calls.isBlind = true;
        QCOMPARE(contentsOf(*document), (QByteArrayList{"7 0 R", "8 0 R", "9 0 R"}));
    }

    void nothingIsParsedAheadOnOneCore() {
        SourcesAhead sources(std::vector<QString>(m_sources.begin(), m_sources.end()),
                             InputPasswords(), m_calls, 1);
        QVERIFY(!m_calls.isOpenedWithin(300ms, m_sources[0]));
        QVERIFY(!taken(sources, m_sources[0]));
    }

    void aTakenSourceIsReadByItsNewReader() {
        const auto sources = ahead({m_sources[0]});
        const auto reader = std::make_shared<SourceReader>();
        const auto document = sources->take(FileVersion::of(m_sources[0]), reader);
        QVERIFY(document);
        writeFile(m_sources[0], "%PDF-1.7, and another file now");
        QVERIFY_THROWS_EXCEPTION(std::exception, document->getObject(7, 0).getStreamData());
        QVERIFY(reader->failure().has_value());
    }

    void theNextSourceAloneIsParsed() {
        const auto sources = ahead({m_sources[0]});
        QVERIFY(!m_calls.isOpenedWithin(300ms, m_sources[1]));
        QVERIFY(taken(*sources, m_sources[0]));
        QVERIFY(m_calls.isOpenedWithin(20s, m_sources[1]));
    }

    void aSourceThatChangedSinceIsNotTaken() {
        const auto sources = ahead({m_sources[0]});
        QThread::msleep(300); // It is parsed.
        writeFile(m_sources[0], threePages().bytes() + "\n% more");
        QVERIFY(!taken(*sources, m_sources[0]));
    }

    void aDamagedSourceIsLeftToItsTurn() {
        writeFile(m_sources[0], threePages().bytes().replace("endobj\n3 0 obj", "      \n3 0 obj"));
        const auto sources = ahead({m_sources[0]});
        QVERIFY(!taken(*sources, m_sources[0]));
        QVERIFY(m_calls.isOpenedWithin(20s, m_sources[1]));
        QVERIFY(taken(*sources, m_sources[1]));
    }

    void aSourceThatIsSkippedLeavesTheOthersInTheirOrder() {
        const auto sources = ahead({m_sources[0]});
        QVERIFY(!taken(*sources, m_sources[1]));
        QVERIFY(m_calls.isOpenedWithin(20s, m_sources[2]));
        QVERIFY(taken(*sources, m_sources[2]));
        QVERIFY(!taken(*sources, m_sources[0]));
    }

    void theSameFileMayComeTwice() {
        m_sources = {m_sources[0], m_sources[0]};
        const auto sources = ahead({m_sources[0]});
        const auto first = taken(*sources, m_sources[0]);
        QVERIFY(m_calls.isOpenedWithin(20s, m_sources[0], 2));
        const auto second = taken(*sources, m_sources[0]);
        QVERIFY(first && second);
        QCOMPARE(contentsOf(*second), contentsOf(*first));
    }

    void someOfThePagesOfASourceTakeNoneThatIsAhead() {
        PDFContext::Settings settings = unflushed();
        settings.sources = {m_sources[0], m_sources[1]};
        settings.calls = m_calls;
        PDFContext context(newPath(), std::move(settings));
        const bool isAhead = std::thread::hardware_concurrency() > 1;
        QCOMPARE(m_calls.isOpenedWithin(isAhead ? 20s : 1s, m_sources[0]), isAhead);
        context.addDocument(m_sources[1], {"2", {}});
        context.addDocument(m_sources[0]);
        context.addDocument(m_sources[1]);
        QCOMPARE(m_calls.timesOpened(m_sources[0]), 1);
        QCOMPARE(context.pageCount(), 7);
    }
};

FOLIOFORGE_TEST(SourcesAheadTest)
#include "SourcesAheadTest.moc"
