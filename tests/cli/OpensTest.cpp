// SPDX-License-Identifier: Apache-2.0

#include "support/Files.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstdint>
#include <cstring>

#include <sys/inotify.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

/// Counts how often a file is opened, by whichever process.
class OpenCounter {
  public:
    explicit OpenCounter(const QString &path) {
        // Equal events in a row come as one, so that opens count apart only with what follows them.
        constexpr std::uint32_t kEvents = IN_OPEN | IN_ACCESS | IN_CLOSE;
        ::inotify_add_watch(m_fd, QFile::encodeName(path).constData(), kEvents);
    }
    OpenCounter(const OpenCounter &) = delete;
    OpenCounter &operator=(const OpenCounter &) = delete;
    ~OpenCounter() { ::close(m_fd); }

    [[nodiscard]] int count() const {
        int opens = 0;
        QByteArray events(1 << 16, Qt::Uninitialized);
        events.truncate(::read(m_fd, events.data(), static_cast<std::size_t>(events.size())));
        inotify_event event{};
        for (qsizetype at = 0; at < events.size(); at += qsizetype(sizeof event) + event.len) {
            std::memcpy(&event, events.constData() + at, sizeof event);
            opens += (event.mask & IN_OPEN) != 0 ? 1 : 0;
        }
        return opens;
    }

  private:
    int m_fd = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
};

} // namespace

/// A run opens each of its sources no oftener than it needs to.
class OpensTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// How often a run of the program opens the file at `source`; -1 where the run fails.
    int opens(const QString &source, const QStringList &options) const {
        OpenCounter counter(source);
        QProcess program;
        program.start(test::commandLineProgram(), options + QStringList{source});
        return program.waitForFinished() && program.exitCode() == 0 ? counter.count() : -1;
    }

  private Q_SLOTS:
    void aSourceIsOpenedToBeListedAndToBeWritten_data() {
        QTest::addColumn<QString>("source");
        QTest::addColumn<int>("times");
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        QVERIFY(picture.save(path(u"own bytes.jpg"_s)));
        QVERIFY(picture.save(path(u"decoded.bmp"_s)));
        QTest::newRow("text") << test::writeFile(path(u"words.txt"_s), "words") << 1;
        QTest::newRow("picture whose own bytes go in") << path(u"own bytes.jpg"_s) << 2;
        QTest::newRow("picture that is decoded") << path(u"decoded.bmp"_s) << 2;
        QTest::newRow("PDF") << test::writePdf(path(u"pages.pdf"_s), 3) << 2;
    }
    void aSourceIsOpenedToBeListedAndToBeWritten() {
        QFETCH(QString, source);
        QFETCH(int, times);
        QCOMPARE(opens(source, {u"--output-folder"_s, m_folder.path()}), times);
        QCOMPARE(opens(source, {u"--merge"_s, path(source.section(u'/', -1) + u".pdf"_s)}), times);
    }
};

FOLIOFORGE_TEST(OpensTest)
#include "OpensTest.moc"
