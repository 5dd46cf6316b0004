#include "filelist/SourceFiles.h"

#include "files/PartFiles.h"
#include "files/StandIns.h"
#include "files/TemporaryFolder.h"
#include "support/Files.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

#include <sys/stat.h>

using namespace folioforge;

class SourceFilesTest : public QObject {
    Q_OBJECT

    TemporaryFolder m_temporaryFolder;
    StandIns m_standIns{m_temporaryFolder};

  private Q_SLOTS:
    void aFolderGivesItsTextsAndImagesButNoPdf() {
        const QTemporaryDir folder;
        for (const char *name :
             {"a.PDF", "b.TXT", "c.png", "d.docx", ".hidden.txt", "noextension"}) {
            test::writeFile(folder.filePath(QString::fromLatin1(name)), "x");
        }
        QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("sub")));
        test::writeFile(folder.filePath(QStringLiteral("sub/deep.txt")), "x");
        QStringList files{QStringLiteral("before")};
        addDirectorie(folder.path(), files, m_standIns);
        QCOMPARE(files.takeFirst(), QStringLiteral("before"));
        files.sort();
        QCOMPARE(files, (QStringList{folder.path() + QStringLiteral("/.hidden.txt"),
                                     folder.path() + QStringLiteral("/b.TXT"),
                                     folder.path() + QStringLiteral("/c.png")}));
    }

    void aFolderNamedLikeATextIsNoFile() {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("notes.txt")));
        QStringList files;
        addDirectorie(folder.path(), files, m_standIns);
        QVERIFY(files.isEmpty());
    }

    void filesComeInTheFileSystemsOrder() {
        const QTemporaryDir folder;
        for (int i = 0; i < 50; ++i) {
            test::writeFile(folder.filePath(QStringLiteral("%1.txt").arg(i * 7919 % 50)), "x");
        }
        const QDir listing(folder.path(), QString(), QDir::NoSort, QDir::Files);
        QStringList expected;
        for (const QString &name : listing.entryList()) {
            expected += folder.path() + u'/' + name;
        }
        QStringList files;
        addDirectorie(folder.path(), files, m_standIns);
        QCOMPARE(files.size(), 50);
        QCOMPARE(files, expected);
    }

    void aFolderThatCannotBeListedAddsNothing() {
        const QTemporaryDir folder;
        QStringList files;
        addDirectorie(folder.filePath(QStringLiteral("missing")), files, m_standIns);
        addDirectorie(test::writeFile(folder.filePath(QStringLiteral("file")), "x"), files,
                      m_standIns);
        QVERIFY(files.isEmpty());
    }

    void anInterruptedProgramRemovesEveryStandIn() {
        const QTemporaryDir parent;
        TemporaryFolder folder(parent.path());
        StandIns standIns(folder);
        for (int i = 0; i < 100; ++i) {
            const QString link = standIns.pathFor(QByteArray::number(i) + "\xe9.txt");
            QVERIFY2(QFileInfo(link).isSymLink(), qPrintable(link));
        }
        removePartFiles();
        QVERIFY(
            QDir(parent.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void standInsGoWithTheirObject() {
        const QTemporaryDir parent;
        TemporaryFolder folder(parent.path());
        const QString link = StandIns(folder).pathFor("caf\xe9.txt");
        QVERIFY(link.startsWith(folder.path()));
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void sizesAreRoundedUpToBlocks_data() {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << qint64(0) << QStringLiteral("4 KB");
        QTest::newRow("one byte") << qint64(1) << QStringLiteral("4 KB");
        QTest::newRow("one block") << qint64(4096) << QStringLiteral("4 KB");
        QTest::newRow("one more") << qint64(4097) << QStringLiteral("8 KB");
        QTest::newRow("last in KB") << qint64(1044480) << QStringLiteral("1020 KB");
        QTest::newRow("first in MB") << qint64(1044481) << QStringLiteral("1.0 MB");
        QTest::newRow("megabytes") << qint64(1600000) << QStringLiteral("1.5 MB");
        QTest::newRow("largest") << qint64(2147483647 - 4095) << QStringLiteral("2048.0 MB");
        QTest::newRow("past 32 bits by rounding") << qint64(2147483647) << QStringLiteral("4 KB");
        QTest::newRow("negative in 32 bits") << qint64(3000000000) << QStringLiteral("4 KB");
        QTest::newRow("once around") << qint64(4294967296 + 8192) << QStringLiteral("8 KB");
    }

    void sizesAreRoundedUpToBlocks() {
        QFETCH(const qint64, bytes);
        QFETCH(const QString, text);
        QCOMPARE(sizeText(bytes), text);
    }

    void aPlainPdfIsAccepted() {
        const QTemporaryDir folder;
        QString reason = QStringLiteral("stale");
        QVERIFY(
            isAcceptablePdf(test::writePdf(folder.filePath(QStringLiteral("a.pdf")), 2), &reason));
        QVERIFY(reason.isEmpty());
    }

    void anEncryptedPdfIsRefused() {
        const QTemporaryDir folder;
        const QString plain = test::writePdf(folder.filePath(QStringLiteral("a.pdf")), 1);
        for (const QString &password : {QStringLiteral("secret"), QString()}) {
            const QString locked = test::encryptPdf(
                plain, folder.filePath(QStringLiteral("locked%1.pdf").arg(password)), password);
            QString reason;
            QVERIFY(!isAcceptablePdf(locked, &reason));
            QVERIFY2(reason.contains(QStringLiteral("encrypted")), qPrintable(reason));
        }
    }

    void whatIsNoPdfIsRefusedWithAReason() {
        const QTemporaryDir folder;
        const auto path = [&folder](const char *name) {
            return folder.filePath(QString::fromLatin1(name));
        };
        QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("folder.pdf")));
        QCOMPARE(::mkfifo(qPrintable(path("pipe.pdf")), 0600), 0);
        const QByteArray whole = test::readFile(test::writePdf(path("whole.pdf"), 1));
        const QStringList broken{test::writeFile(path("empty.pdf"), {}),
                                 test::writeFile(path("text.pdf"), "just text"),
                                 test::writeFile(path("cut.pdf"), whole.first(20)),
                                 path("missing.pdf"),
                                 path("folder.pdf"),
                                 path("pipe.pdf"),
                                 QStringLiteral("/dev/null"),
                                 QStringLiteral("/dev/zero")};
        for (const QString &file : broken) {
            QString reason;
            QVERIFY2(!isAcceptablePdf(file, &reason), qPrintable(file));
            QVERIFY2(!reason.isEmpty(), qPrintable(file));
        }
    }

    void refusedFilesAreListedOnALineEach() {
        const Notice alert =
            badFilesNotice({QStringLiteral("/a/one.pdf"), QStringLiteral("/b/two.pdf"),
                            QStringLiteral("/c/three.pdf")});
        QCOMPARE(alert.title,
                 QStringLiteral("Fail to import following files. They are encrypted or not normal "
                                "PDF files:"));
        QCOMPARE(alert.message,
                 QStringLiteral("    /a/one.pdf\r\n    /b/two.pdf\r\n    /c/three.pdf"));
    }

    void pathsOfRefusedFilesAreReadAsAFormat() {
        const auto message = [](const char *path) {
            return badFilesNotice({QString::fromLatin1(path)}).message;
        };
        QCOMPARE(message("/a/100%%.pdf"), QStringLiteral("    /a/100%.pdf"));
        QCOMPARE(message("/a/%%%%.pdf"), QStringLiteral("    /a/%%.pdf"));
        QCOMPARE(message("/a/%s%@%n%1.pdf"), QStringLiteral("    /a/%s%@%n%1.pdf"));
        QCOMPARE(message("/a/100%"), QStringLiteral("    /a/100%"));
    }
};

QTEST_GUILESS_MAIN(SourceFilesTest)
#include "SourceFilesTest.moc"
