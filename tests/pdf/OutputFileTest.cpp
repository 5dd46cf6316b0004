#include "pdf/OutputFile.h"

#include "error/Error.h"
#include "pdf/PartFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <set>
#include <string>

using namespace folioforge;

namespace {

/// The running system, save for the calls that a test lets fail.
class FaultyCalls final : public SystemCalls {
  public:
    int failWith = 0; ///< errno of the failing calls.
    std::set<std::string> failing;
    bool hasNameless = true;

    int openAnonymous(const char *folder, mode_t mode) override {
        if (!hasNameless) {
            errno = EOPNOTSUPP;
            return -1;
        }
        return fails("openAnonymous") ? -1 : SystemCalls::openAnonymous(folder, mode);
    }
    ssize_t write(int fd, const void *data, std::size_t size) override {
        return fails("write") ? -1 : SystemCalls::write(fd, data, size);
    }
    int fsync(int fd) override { return fails("fsync") ? -1 : SystemCalls::fsync(fd); }
    int close(int fd) override {
        const int result = SystemCalls::close(fd);
        return fails("close") ? -1 : result;
    }
    int linkAnonymous(int fd, const char *path) override {
        return fails("linkAnonymous") ? -1 : SystemCalls::linkAnonymous(fd, path);
    }
    int renameExclusive(const char *from, const char *to) override {
        return fails("renameExclusive") ? -1 : SystemCalls::renameExclusive(from, to);
    }
    int link(const char *from, const char *to) override {
        return fails("link") ? -1 : SystemCalls::link(from, to);
    }

  private:
    bool fails(const char *call) const {
        if (!failing.contains(call)) {
            return false;
        }
        errno = failWith;
        return true;
    }
};

const QByteArray kContent("content");

} // namespace

class OutputFileTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString target(const QString &name = QStringLiteral("a.pdf")) const {
        return m_folder->filePath(name);
    }
    QStringList names() const {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    static QByteArray contentOf(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }
    static OutputFile::Published writeTo(const QString &path, SystemCalls &calls,
                                         Flush flush = Flush::Always) {
        OutputFile file(path, calls);
        file.write(kContent);
        file.finish(flush);
        return file.publish(path, flush);
    }
    /// The ways in which a file gets its name, from the best to the last.
    static void addWays() {
        QTest::addColumn<QStringList>("missing");
        QTest::newRow("nameless file") << QStringList();
        QTest::newRow("rename") << QStringList{QStringLiteral("openAnonymous")};
        QTest::newRow("link") << QStringList{QStringLiteral("openAnonymous"),
                                             QStringLiteral("renameExclusive")};
        QTest::newRow("held name")
            << QStringList{QStringLiteral("openAnonymous"), QStringLiteral("renameExclusive"),
                           QStringLiteral("link")};
    }
    static FaultyCalls without(const QStringList &missing) {
        FaultyCalls calls;
        calls.failWith = EOPNOTSUPP;
        for (const QString &call : missing) {
            calls.failing.insert(call.toStdString());
        }
        return calls;
    }

  private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void theFileAppearsWhole_data() { addWays(); }
    void theFileAppearsWhole() {
        QFETCH(QStringList, missing);
        FaultyCalls calls = without(missing);
        QCOMPARE(writeTo(target(), calls), OutputFile::Published::Yes);
        QCOMPARE(contentOf(target()), kContent);
        QCOMPARE(names(), QStringList{QStringLiteral("a.pdf")});
    }

    void aFileThatIsThereIsNeverReplaced_data() { addWays(); }
    void aFileThatIsThereIsNeverReplaced() {
        QFETCH(QStringList, missing);
        FaultyCalls calls = without(missing);
        QFile other(target());
        QVERIFY(other.open(QIODevice::WriteOnly));
        other.write("someone else's");
        other.close();
        QCOMPARE(writeTo(target(), calls), OutputFile::Published::NameTaken);
        QCOMPARE(contentOf(target()), QByteArray("someone else's"));
        QCOMPARE(names(), QStringList{QStringLiteral("a.pdf")});
    }

    void aPlantedLinkIsNotFollowed_data() { addWays(); }
    void aPlantedLinkIsNotFollowed() {
        QFETCH(QStringList, missing);
        FaultyCalls calls = without(missing);
        const QString victim = target(QStringLiteral("victim"));
        QVERIFY(QFile::link(victim, target()));
        QCOMPARE(writeTo(target(), calls), OutputFile::Published::NameTaken);
        QVERIFY(!QFile::exists(victim));
    }

    void afterATakenNameAnotherCanBeTried_data() { addWays(); }
    void afterATakenNameAnotherCanBeTried() {
        QFETCH(QStringList, missing);
        FaultyCalls calls = without(missing);
        QVERIFY(QFile(target()).open(QIODevice::WriteOnly));
        OutputFile file(target(), calls);
        file.write(kContent);
        file.finish(Flush::Never);
        QCOMPARE(file.publish(target(), Flush::Never), OutputFile::Published::NameTaken);
        const QString next = target(QStringLiteral("a(1).pdf"));
        QCOMPARE(file.publish(next, Flush::Never), OutputFile::Published::Yes);
        QCOMPARE(contentOf(next), kContent);
    }

    void theUmaskDecidesWhoMayReadTheFinishedFile_data() { addWays(); }
    void theUmaskDecidesWhoMayReadTheFinishedFile() {
        QFETCH(QStringList, missing);
        FaultyCalls calls = without(missing);
        const mode_t before = ::umask(027);
        writeTo(target(), calls);
        ::umask(before);
        struct stat status {};
        QCOMPARE(::stat(target().toLocal8Bit().constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777U, 0640U);
    }

    void theUnfinishedFileIsItsOwnersAlone() {
        FaultyCalls calls = without({QStringLiteral("openAnonymous")});
        const OutputFile file(target(), calls);
        QCOMPARE(names().size(), 1);
        QVERIFY(names().first().endsWith(QStringLiteral(".folioforge-part")));
        struct stat status {};
        QCOMPARE(::stat(target(names().first()).toLocal8Bit().constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777U, 0600U);
    }

    void anUnpublishedFileLeavesNothing_data() { addWays(); }
    void anUnpublishedFileLeavesNothing() {
        QFETCH(QStringList, missing);
        FaultyCalls calls = without(missing);
        {
            OutputFile file(target(), calls);
            file.write(kContent);
            file.finish(Flush::Never);
        }
        QCOMPARE(names(), QStringList());
    }

    void anInterruptedProgramRemovesTheUnfinishedFile() {
        FaultyCalls calls = without({QStringLiteral("openAnonymous")});
        OutputFile file(target(), calls);
        QCOMPARE(names().size(), 1);
        removePartFiles();
        QCOMPARE(names(), QStringList());
    }

    void aFaultLeavesNothingAndSaysWhy_data() {
        QTest::addColumn<QString>("call");
        QTest::addColumn<int>("error");
        QTest::addColumn<bool>("nameless");
        for (const bool nameless : {true, false}) {
            const char *kind = nameless ? "nameless" : "named";
            QTest::addRow("disk full, %s", kind) << QStringLiteral("write") << ENOSPC << nameless;
            QTest::addRow("flush fails, %s", kind) << QStringLiteral("fsync") << EIO << nameless;
            QTest::addRow("close fails, %s", kind) << QStringLiteral("close") << EIO << nameless;
        }
        QTest::addRow("link fails") << QStringLiteral("linkAnonymous") << EACCES << true;
        QTest::addRow("rename fails") << QStringLiteral("renameExclusive") << EACCES << false;
        QTest::addRow("no permission") << QStringLiteral("openAnonymous") << EACCES << true;
    }
    void aFaultLeavesNothingAndSaysWhy() {
        QFETCH(QString, call);
        QFETCH(int, error);
        QFETCH(bool, nameless);
        FaultyCalls calls;
        calls.failWith = error;
        calls.failing.insert(call.toStdString());
        calls.hasNameless = nameless;
        try {
            writeTo(target(), calls);
            QFAIL("the fault went unnoticed");
        } catch (const Error &caught) {
            QVERIFY2(caught.reason().contains(QString::fromLocal8Bit(std::strerror(error))),
                     qPrintable(caught.reason()));
        }
        QCOMPARE(names(), QStringList());
    }

    void theLongestNameCanBeWritten_data() { addWays(); }
    void theLongestNameCanBeWritten() {
        QFETCH(QStringList, missing);
        FaultyCalls calls = without(missing);
        // 255 bytes: 125 letters of two bytes, one of one byte, and the extension.
        const QString name = QString(125, QChar(0xE9)) + u'a' + QStringLiteral(".pdf");
        QCOMPARE(name.toUtf8().size(), 255);
        QCOMPARE(writeTo(target(name), calls), OutputFile::Published::Yes);
        QCOMPARE(names(), QStringList{name});
    }

    void aMissingFolderIsAnError() {
        QVERIFY_THROWS_EXCEPTION(Error, OutputFile(target(QStringLiteral("none/a.pdf"))));
    }

    void writtenBytesCanBeReadBackAndReplaced() {
        OutputFile file(target());
        file.write(QByteArray(3 << 20, 'x'));
        file.write(kContent);
        QCOMPARE(file.size(), (3 << 20) + kContent.size());
        QCOMPARE(file.read(3 << 20, 100), kContent);
        file.overwrite((3 << 20) + 1, "0");
        file.write(kContent);
        file.finish(Flush::Never);
        QCOMPARE(file.publish(target(), Flush::Never), OutputFile::Published::Yes);
        QCOMPARE(contentOf(target()), QByteArray(3 << 20, 'x') + "c0ntentcontent");
    }
};

QTEST_APPLESS_MAIN(OutputFileTest)
#include "OutputFileTest.moc"
