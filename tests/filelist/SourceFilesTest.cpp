// SPDX-License-Identifier: Apache-2.0

#include "filelist/SourceFiles.h"

#include "error/Error.h"
#include "files/PartFiles.h"
#include "files/ReadableLinks.h"
#include "files/TemporaryFolder.h"
#include "support/Files.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

/// Why the PDF at `path` may not enter the list; empty when it may.
QString refusalOf(const QString &path) {
    try {
        summarizeOpenPdf(path);
    } catch (const Error &error) {
        return error.reason();
    }
    return {};
}

} // namespace

class SourceFilesTest : public QObject {
    Q_OBJECT

    TemporaryFolder m_temporaryFolder;
    ReadableLinks m_readableLinks{m_temporaryFolder};

  private Q_SLOTS:
    void aFolderGivesItsTextsAndImagesButNoPdf() {
        const QTemporaryDir folder;
        for (const char *name :
             {"a.PDF", "b.TXT", "c.png", "d.docx", ".hidden.txt", "noextension"}) {
            test::writeFile(folder.filePath(QString::fromLatin1(name)), "x");
        }
        QVERIFY(QDir(folder.path()).mkpath(u"sub"_s));
        test::writeFile(folder.filePath(u"sub/deep.txt"_s), "x");
        QStringList files{u"before"_s};
        addDirectorie(folder.path(), files, m_readableLinks);
        QCOMPARE(files.takeFirst(), u"before"_s);
        files.sort();
        QCOMPARE(files, (QStringList{folder.path() + u"/.hidden.txt"_s, folder.path() + u"/b.TXT"_s,
                                     folder.path() + u"/c.png"_s}));
    }

    void theWindowLeavesOutPicturesThatTheCommandLineTakes() {
        const QTemporaryDir folder;
        const QString png = test::writeFile(folder.filePath(u"a.png"_s), "x");
        for (const char *name : {"b.webp", "c.heic", "d.heif", "e.avif", "f.JXL"}) {
            test::writeFile(folder.filePath(QString::fromLatin1(name)), "x");
        }
        QStringList files;
        addDirectorie(folder.path(), files, m_readableLinks);
        QCOMPARE(files, QStringList(png));
        QCOMPARE(listFolder(QFile::encodeName(folder.path())).names.size(), std::size_t(6));
    }

    void aFolderNamedLikeATextIsNoFile() {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(u"notes.txt"_s));
        QStringList files;
        addDirectorie(folder.path(), files, m_readableLinks);
        QVERIFY(files.isEmpty());
    }

    void filesComeInTheFileSystemsOrder() {
        const QTemporaryDir folder;
        for (int i = 0; i < 50; ++i) {
            test::writeFile(folder.filePath(u"%1.txt"_s.arg(i * 7919 % 50)), "x");
        }
        const QDir listing(folder.path(), QString(), QDir::NoSort, QDir::Files);
        QStringList expected;
        for (const QString &name : listing.entryList()) {
            expected += folder.path() + u'/' + name;
        }
        QStringList files;
        addDirectorie(folder.path(), files, m_readableLinks);
        QCOMPARE(files.size(), 50);
        QCOMPARE(files, expected);
    }

    void aFolderThatCannotBeListedAddsNothing() {
        const QTemporaryDir folder;
        QStringList files;
        addDirectorie(folder.filePath(u"missing"_s), files, m_readableLinks);
        addDirectorie(test::writeFile(folder.filePath(u"file"_s), "x"), files, m_readableLinks);
        QVERIFY(files.isEmpty());
    }

    void anInterruptedProgramRemovesEveryReadableLink() {
        const QTemporaryDir parent;
        TemporaryFolder folder(parent.path());
        ReadableLinks readableLinks(folder);
        for (int i = 0; i < 100; ++i) {
            const QString link = readableLinks.pathFor(QByteArray::number(i) + "\xe9.txt");
            QVERIFY2(QFileInfo(link).isSymLink(), qPrintable(link));
        }
        removePartFiles();
        QVERIFY(
            QDir(parent.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void linksGoWithTheirObject() {
        const QTemporaryDir parent;
        TemporaryFolder folder(parent.path());
        const QString link = ReadableLinks(folder).pathFor("caf\xe9.txt");
        QVERIFY(link.startsWith(folder.path()));
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void sizesAreRoundedUpToBlocks_data() {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << qint64(0) << u"4 KB"_s;
        QTest::newRow("one byte") << qint64(1) << u"4 KB"_s;
        QTest::newRow("one block") << qint64(4096) << u"4 KB"_s;
        QTest::newRow("one more") << qint64(4097) << u"8 KB"_s;
        QTest::newRow("last in KB") << qint64(1044480) << u"1020 KB"_s;
        QTest::newRow("first in MB") << qint64(1044481) << u"1.0 MB"_s;
        QTest::newRow("megabytes") << qint64(1600000) << u"1.5 MB"_s;
        QTest::newRow("largest") << qint64(2147483647 - 4095) << u"2048.0 MB"_s;
        QTest::newRow("past 32 bits by rounding") << qint64(2147483647) << u"4 KB"_s;
        QTest::newRow("negative in 32 bits") << qint64(3000000000) << u"4 KB"_s;
        QTest::newRow("once around") << qint64(4294967296 + 8192) << u"8 KB"_s;
    }

    void sizesAreRoundedUpToBlocks() {
        QFETCH(const qint64, bytes);
        QFETCH(const QString, text);
        QCOMPARE(sizeText(bytes), text);
    }

    void aPlainPdfIsAcceptedWithItsPages() {
        const QTemporaryDir folder;
        QCOMPARE(summarizeOpenPdf(test::writePdf(folder.filePath(u"a.pdf"_s), 2)).pageCount, 2);
    }

    void anEncryptedPdfIsRefused() {
        const QTemporaryDir folder;
        const QString plain = test::writePdf(folder.filePath(u"a.pdf"_s), 1);
        for (const QString &password : {u"secret"_s, QString()}) {
            const QString locked =
                test::encryptPdf(plain, folder.filePath(u"locked%1.pdf"_s.arg(password)), password);
            QCOMPARE(refusalOf(locked), u"The document is encrypted"_s);
        }
    }

    void whatIsNoPdfIsRefusedWithAReason() {
        const QTemporaryDir folder;
        const auto path = [&folder](const char *name) {
            return folder.filePath(QString::fromLatin1(name));
        };
        QVERIFY(QDir(folder.path()).mkpath(u"folder.pdf"_s));
        QCOMPARE(::mkfifo(qPrintable(path("pipe.pdf")), 0600), 0);
        const QByteArray whole = test::readFile(test::writePdf(path("whole.pdf"), 1));
        const QStringList broken{test::writeFile(path("empty.pdf"), {}),
                                 test::writeFile(path("text.pdf"), "just text"),
                                 test::writeFile(path("cut.pdf"), whole.first(20)),
                                 path("missing.pdf"),
                                 path("folder.pdf"),
                                 path("pipe.pdf"),
                                 u"/dev/null"_s,
                                 u"/dev/zero"_s};
        for (const QString &file : broken) {
            QVERIFY2(!refusalOf(file).isEmpty(), qPrintable(file));
        }
    }

    void refusedFilesAreListedOnALineEach() {
        const Notice alert = badFilesNotice({u"/a/one.pdf"_s, u"/b/two.pdf"_s, u"/c/three.pdf"_s});
        QCOMPARE(alert.title, u"Fail to import following files. They are encrypted or not normal "
                              "PDF files:"_s);
        QCOMPARE(alert.message, u"    /a/one.pdf\r\n    /b/two.pdf\r\n    /c/three.pdf"_s);
    }

    void pathsOfRefusedFilesAreReadAsAFormat() {
        const auto message = [](const char *path) {
            return badFilesNotice({QString::fromLatin1(path)}).message;
        };
        QCOMPARE(message("/a/100%%.pdf"), u"    /a/100%.pdf"_s);
        QCOMPARE(message("/a/%%%%.pdf"), u"    /a/%%.pdf"_s);
        QCOMPARE(message("/a/%s%@%n%1.pdf"), u"    /a/%s%@%n%1.pdf"_s);
        QCOMPARE(message("/a/100%"), u"    /a/100%"_s);
    }
};

FOLIOFORGE_TEST(SourceFilesTest)
#include "SourceFilesTest.moc"
