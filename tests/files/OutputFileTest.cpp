// SPDX-License-Identifier: Apache-2.0

#include "files/OutputFile.h"

#include "error/Error.h"
#include "files/PartFiles.h"
#include "files/TemporaryFolder.h"
#include "support/FaultyCalls.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <stop_token>
#include <string>
#include <thread>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::FaultyCalls;

namespace {

const QByteArray kContent("content");

} // namespace

class OutputFileTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString target(const QString &name = u"a.pdf"_s) const { return m_folder->filePath(name); }
    QStringList names() const {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    static QByteArray contentOf(const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }
    static unsigned modeOf(const QString &path) {
        struct stat status = {};
        ::stat(QFile::encodeName(path).constData(), &status);
        return status.st_mode & 0777U;
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
        QTest::newRow("rename") << QStringList{u"openAnonymous"_s};
        QTest::newRow("link") << QStringList{u"openAnonymous"_s, u"renameExclusive"_s};
        QTest::newRow("held name")
            << QStringList{u"openAnonymous"_s, u"renameExclusive"_s, u"link"_s};
    }
    static FaultyCalls without(const QStringList &missing) {
        FaultyCalls calls;
        for (const QString &call : missing) {
            calls.failing[call.toStdString()] = EOPNOTSUPP;
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
        QCOMPARE(names(), QStringList{u"a.pdf"_s});
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
        QCOMPARE(names(), QStringList{u"a.pdf"_s});
    }

    void aPlantedLinkIsNotFollowed_data() { addWays(); }
    void aPlantedLinkIsNotFollowed() {
        QFETCH(QStringList, missing);
        FaultyCalls calls = without(missing);
        const QString victim = target(u"victim"_s);
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
        const QString next = target(u"a(1).pdf"_s);
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
        QCOMPARE(modeOf(target()), 0640U);
    }

    void theUnfinishedFileIsItsOwnersAlone() {
        FaultyCalls calls = without({u"openAnonymous"_s});
        const OutputFile file(target(), calls);
        QCOMPARE(names().size(), 1);
        QVERIFY(names().first().endsWith(u".folioforge-part"_s));
        QCOMPARE(modeOf(target(names().first())), 0600U);
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

    void aFileIsReplacedInOneStep_data() { addWays(); }
    void aFileIsReplacedInOneStep() {
        QFETCH(QStringList, missing);
        FaultyCalls calls = without(missing);
        test::writeFile(target(), "the old one");
        OutputFile file(target(), calls);
        file.write(kContent);
        file.finish(Flush::Always);
        QCOMPARE(contentOf(target()), QByteArray("the old one"));
        file.replace(target(), Flush::Always);
        QCOMPARE(contentOf(target()), kContent);
        QCOMPARE(names(), QStringList{u"a.pdf"_s});
    }

    void aLinkIsReplacedAndNotFollowed() {
        const QString victim = test::writeFile(target(u"victim"_s), "mine");
        QVERIFY(QFile::link(victim, target()));
        OutputFile file(target());
        file.write(kContent);
        file.finish(Flush::Never);
        file.replace(target(), Flush::Never);
        QCOMPARE(contentOf(victim), QByteArray("mine"));
        QVERIFY(!QFileInfo(target()).isSymLink());
        QCOMPARE(contentOf(target()), kContent);
    }

    void aFileCanBeItsOwnersAlone_data() { addWays(); }
    void aFileCanBeItsOwnersAlone() {
        QFETCH(QStringList, missing);
        FaultyCalls calls = without(missing);
        OutputFile file(target(), calls, OutputFile::Readers::OwnerAlone);
        file.finish(Flush::Never);
        file.publish(target(), Flush::Never);
        QCOMPARE(modeOf(target()), 0600U);
    }

    void aTemporaryFolderIsItsOwnersAloneAndGoesWithItsFiles() {
        {
            TemporaryFolder folder(m_folder->path());
            QCOMPARE(names(), QStringList());
            test::writeFile(folder.path() + u"/a.pdf"_s, "a copy");
            QCOMPARE(modeOf(folder.path()), 0700U);
        }
        QCOMPARE(names(), QStringList());
    }

    void aTemporaryFolderThatSomebodyRemovedIsMadeAgain() {
        {
            TemporaryFolder folder(m_folder->path());
            QVERIFY(QDir(folder.path()).removeRecursively());
            QVERIFY(QFileInfo(folder.path()).isDir());
            QCOMPARE(QFileInfo(folder.path()).path(), m_folder->path());
        }
        QCOMPARE(names(), QStringList());
    }

    void aTemporaryFolderThatCannotBeMadeIsItsParent() {
        TemporaryFolder folder(target(u"missing"_s));
        QCOMPARE(folder.path(), target(u"missing"_s));
    }

    void aTemporaryFolderThatCannotBeOpenedLeavesNothing() {
        struct rlimit before = {};
        QCOMPARE(::getrlimit(RLIMIT_NOFILE, &before), 0);
        const struct rlimit none = {0, before.rlim_max};
        TemporaryFolder folder(m_folder->path());
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);
        const QString path = folder.path();
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &before), 0);
        QCOMPARE(path, m_folder->path());
        QCOMPARE(names(), QStringList());
    }

    void anInterruptedProgramRemovesItsTemporaryFolder() {
        TemporaryFolder folder(m_folder->path());
        FaultyCalls calls = without({u"openAnonymous"_s});
        OutputFile file(folder.path() + u"/a.pdf"_s, calls);
        removePartFiles();
        QCOMPARE(names(), QStringList());
    }

    void anInterruptedProgramRemovesTheUnfinishedFile() {
        FaultyCalls calls = without({u"openAnonymous"_s});
        OutputFile file(target(), calls);
        QCOMPARE(names().size(), 1);
        removePartFiles();
        QCOMPARE(names(), QStringList());
    }

    void anInterruptionOnAnotherThreadRemovesNothingThatIsNoLongerTemporary() {
        const std::string path = QFile::encodeName(target()).toStdString();
        const std::jthread interrupted([](const std::stop_token &stop) {
            while (!stop.stop_requested()) {
                removePartFiles();
            }
        });
        for (int i = 0; i < 5'000; ++i) {
            static_cast<void>(PartFile(path));
            const int fd = ::open(path.c_str(), O_CREAT | O_WRONLY, 0600);
            QVERIFY(fd >= 0);
            ::close(fd);
            QCOMPARE(::unlink(path.c_str()), 0);
        }
    }

    void aFaultLeavesNothingAndSaysWhy_data() {
        QTest::addColumn<QString>("call");
        QTest::addColumn<int>("error");
        QTest::addColumn<bool>("nameless");
        for (const bool nameless : {true, false}) {
            const char *kind = nameless ? "nameless" : "named";
            QTest::addRow("disk full, %s", kind) << u"write"_s << ENOSPC << nameless;
            QTest::addRow("flush fails, %s", kind) << u"fsync"_s << EIO << nameless;
            QTest::addRow("close fails, %s", kind) << u"close"_s << EIO << nameless;
        }
        QTest::addRow("link fails") << u"linkAnonymous"_s << EACCES << true;
        QTest::addRow("rename fails") << u"renameExclusive"_s << EACCES << false;
        QTest::addRow("no permission") << u"openAnonymous"_s << EACCES << true;
    }
    void aFaultLeavesNothingAndSaysWhy() {
        QFETCH(QString, call);
        QFETCH(int, error);
        QFETCH(bool, nameless);
        FaultyCalls calls = without(nameless ? QStringList() : QStringList{u"openAnonymous"_s});
        calls.failing[call.toStdString()] = error;
        try {
            writeTo(target(), calls);
            QFAIL("the fault went unnoticed");
        } catch (const Error &caught) {
            QVERIFY2(caught.reason().contains(QString::fromLocal8Bit(std::strerror(error))),
                     qPrintable(caught.reason()));
        }
        QCOMPARE(names(), QStringList());
    }

    void aFileSystemWithoutAFlushIsAWarning_data() {
        QTest::addColumn<int>("error");
        QTest::newRow("invalid argument") << EINVAL;
        QTest::newRow("not supported") << EOPNOTSUPP;
        QTest::newRow("no such call") << ENOSYS;
    }
    void aFileSystemWithoutAFlushIsAWarning() {
        QFETCH(const int, error);
        FaultyCalls calls;
        calls.failing["fsync"] = error;
        OutputFile file(target(), calls);
        file.write(kContent);
        const Warnings warnings = file.finish(Flush::Always);
        QCOMPARE(warnings.size(), std::size_t{1});
        QCOMPARE(warnings[0].code, WarningCode::NotFlushed);
        QCOMPARE(file.publish(target(), Flush::Always), OutputFile::Published::Yes);
        QCOMPARE(contentOf(target()), kContent);
        QVERIFY(OutputFile(target(), calls).finish(Flush::Never).empty());
    }

    void theLongestNameCanBeWritten_data() { addWays(); }
    void theLongestNameCanBeWritten() {
        QFETCH(QStringList, missing);
        FaultyCalls calls = without(missing);
        // 255 bytes: 125 letters of two bytes, one of one byte, and the extension.
        const QString name = QString(125, QChar(0xE9)) + u'a' + u".pdf"_s;
        QCOMPARE(name.toUtf8().size(), 255);
        QCOMPARE(writeTo(target(name), calls), OutputFile::Published::Yes);
        QCOMPARE(names(), QStringList{name});
    }

    void aMissingFolderIsAnError() {
        QVERIFY_THROWS_EXCEPTION(Error, OutputFile(target(u"none/a.pdf"_s)));
    }

    void writtenBytesCanBeReadBack() {
        OutputFile file(target());
        file.write(QByteArray(3 << 20, 'x'));
        file.write(kContent);
        QCOMPARE(file.size(), (3 << 20) + kContent.size());
        QByteArray back(100, '\0');
        back.truncate(file.readInto(3 << 20, back));
        QCOMPARE(back, kContent);
        file.write(kContent);
        file.finish(Flush::Never);
        QCOMPARE(file.publish(target(), Flush::Never), OutputFile::Published::Yes);
        QCOMPARE(contentOf(target()), QByteArray(3 << 20, 'x') + "contentcontent");
    }
};

FOLIOFORGE_TEST(OutputFileTest)
#include "OutputFileTest.moc"
