// SPDX-License-Identifier: Apache-2.0

#include "files/AbandonedParts.h"

#include "files/OutputFile.h"
#include "files/ReadableLinks.h"
#include "files/TemporaryFolder.h"
#include "support/FaultyCalls.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;
using namespace folioforge;

using Kinds = AbandonedParts::Kinds;

class AbandonedPartsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QStringList names() const {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    void clear(Kinds kinds) const { const AbandonedParts cleared(m_folder->path(), kinds); }

    /// What a process left that was killed while it used its temporary folder.
    void leaveTemporaryFolder() const {
        const pid_t child = ::fork();
        if (child == 0) {
            TemporaryFolder folder(m_folder->path());
            ReadableLinks links(folder);
            links.pathFor("caf\xe9.txt");
            OutputFile copy(folder.path() + u"/a.pdf"_s, SystemCalls::system(),
                            OutputFile::Readers::OwnerAlone);
            copy.publish(folder.path() + u"/a.pdf"_s, Flush::Never);
            ::_exit(0);
        }
        ::waitpid(child, nullptr, 0);
        QCOMPARE(names().size(), 1);
    }

    /// A folder as a killed process leaves it, with `change` made to it.
    template<typename Change> QString leftFolder(const QString &name, const Change &change) const {
        const QString folder = path(name);
        const bool made = ::mkdir(QFile::encodeName(folder).constData(), S_IRWXU) == 0;
        const QString copy = test::writeFile(folder + u"/a.pdf"_s, "a copy");
        ::chmod(QFile::encodeName(copy).constData(), S_IRUSR | S_IWUSR);
        change(folder);
        return made ? folder : QString();
    }

  private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void filesThatAKilledProgramLeftAreRemoved() {
        test::writeFile(path(u".a.pdf.x0z9.folioforge-part"_s), "half");
        test::writeFile(path(u".spool.1.folioforge-part"_s), "half");
        clear(Kinds::Files);
        QCOMPARE(names(), QStringList());
    }

    void whatOnlyLooksLikeAPartStays_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("another ending") << u".a.x.other-part"_s;
        QTest::newRow("not hidden") << u"a.x.folioforge-part"_s;
        QTest::newRow("no number") << u".a..folioforge-part"_s;
        QTest::newRow("no name") << u".x.folioforge-part"_s;
        QTest::newRow("other letters") << u".a.X-1.folioforge-part"_s;
        QTest::newRow("the ending alone") << u".folioforge-part"_s;
    }
    void whatOnlyLooksLikeAPartStays() {
        QFETCH(const QString, name);
        test::writeFile(path(name), "mine");
        clear(Kinds::FilesAndFolders);
        QCOMPARE(names(), QStringList{name});
    }

    void aTemporaryFolderThatAKilledProgramLeftIsRemoved() {
        leaveTemporaryFolder();
        clear(Kinds::FilesAndFolders);
        QCOMPARE(names(), QStringList());
    }

    void inAnOutputFolderNoFolderIsRemoved() {
        leaveTemporaryFolder();
        clear(Kinds::Files);
        QCOMPARE(names().size(), 1);
        QVERIFY(QFile::exists(path(names().first() + u"/a.pdf"_s)));
    }

    void aFolderThatMayBeSomebodysStaysWhole_data() {
        using Change = void (*)(const QString &);
        QTest::addColumn<QString>("name");
        QTest::addColumn<Change>("change");
        const QString right = u".folder.x.folioforge-part"_s;
        const Change none = [](const QString &) {};
        QTest::newRow("of another name") << u".folders.x.folioforge-part"_s << none;
        QTest::newRow("with a further number") << u".folder.x.y.folioforge-part"_s << none;
        QTest::newRow("open to others") << right << Change([](const QString &folder) {
            ::chmod(QFile::encodeName(folder).constData(), 0750);
        });
        QTest::newRow("with a file that others may read") << right << Change([](const QString &to) {
            const QString file = test::writeFile(to + u"/notes.txt"_s, "mine");
            ::chmod(QFile::encodeName(file).constData(), 0644);
        });
        QTest::newRow("with a folder of another name")
            << right << Change([](const QString &folder) {
                   ::mkdir(QFile::encodeName(folder + u"/notes"_s).constData(), S_IRWXU);
               });
        QTest::newRow("with a file in a numbered folder") << right << Change([](const QString &to) {
            ::mkdir(QFile::encodeName(to + u"/0"_s).constData(), S_IRWXU);
            test::writeFile(to + u"/0/notes.txt"_s, "mine");
        });
    }
    void aFolderThatMayBeSomebodysStaysWhole() {
        using Change = void (*)(const QString &);
        QFETCH(const QString, name);
        QFETCH(const Change, change);
        const QString folder = leftFolder(name, change);
        clear(Kinds::FilesAndFolders);
        QCOMPARE(test::readFile(folder + u"/a.pdf"_s), QByteArray("a copy"));
    }

    void whatIsInUseIsNotRemoved() {
        test::FaultyCalls calls;
        calls.failing["openAnonymous"] = EOPNOTSUPP;
        const QString target = path(u"a.pdf"_s);
        OutputFile file(target, calls);
        TemporaryFolder folder(m_folder->path());
        const QString used = folder.path();
        clear(Kinds::FilesAndFolders);
        QCOMPARE(names().size(), 2);
        QVERIFY(QDir(used).exists());
        QCOMPARE(file.publish(target, Flush::Never), OutputFile::Published::Yes);
    }

    void aPlantedPartIsNotFollowed() {
        const QString victim = test::writeFile(path(u"victim"_s), "mine");
        QVERIFY(QFile::link(victim, path(u".a.x.folioforge-part"_s)));
        clear(Kinds::FilesAndFolders);
        QCOMPARE(test::readFile(victim), QByteArray("mine"));
    }

    void theRestOfAHugeFolderIsClearedMeanwhile() {
        constexpr int kFiles = 12'000;
        constexpr int kParts = 200;
        for (int i = 0; i < kFiles; ++i) {
            test::writeFile(path(QString::number(i)), {});
        }
        for (int i = 0; i < kParts; ++i) {
            test::writeFile(path(u".a.%1.folioforge-part"_s.arg(i)), {});
        }
        const AbandonedParts clearing(m_folder->path(), Kinds::Files);
        QTRY_COMPARE(names().size(), kFiles);
    }
};

FOLIOFORGE_TEST(AbandonedPartsTest)
#include "AbandonedPartsTest.moc"
