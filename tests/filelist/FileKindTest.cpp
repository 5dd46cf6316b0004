#include "filelist/FileKind.h"
#include "files/PathNames.h"

#include <QTest>

using namespace folioforge;

class FileKindTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void kindIsDecidedByTheExtensionAlone_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<FileKind>("kind");
        QTest::newRow("text") << QStringLiteral("/a/b.txt") << FileKind::Text;
        QTest::newRow("capitals") << QStringLiteral("/a/B.TXT") << FileKind::Text;
        QTest::newRow("pdf") << QStringLiteral("b.Pdf") << FileKind::Pdf;
        for (const char *extension : {"png", "bmp", "gif", "jpg", "jpeg", "icns", "ico", "exr",
                                      "jp2", "tif", "tiff", "tga", "psd"}) {
            QTest::newRow(extension)
                << QStringLiteral("x.") + QString::fromLatin1(extension) << FileKind::Image;
        }
        QTest::newRow("document") << QStringLiteral("x.docx") << FileKind::Other;
        QTest::newRow("none") << QStringLiteral("txt") << FileKind::Other;
        QTest::newRow("hidden, named like an extension")
            << QStringLiteral(".txt") << FileKind::Other;
        QTest::newRow("last one counts") << QStringLiteral("x.txt.gz") << FileKind::Other;
        QTest::newRow("folder's extension") << QStringLiteral("a.txt/b") << FileKind::Other;
    }

    void kindIsDecidedByTheExtensionAlone() {
        QFETCH(const QString, path);
        QFETCH(const FileKind, kind);
        QCOMPARE(fileKind(path), kind);
    }

    void extensionsAreInTheOrderOfFilePanels() {
        QCOMPARE(extensionsOf(FileKind::Text), QStringList{QStringLiteral("txt")});
        QCOMPARE(extensionsOf(FileKind::Pdf), QStringList{QStringLiteral("pdf")});
        QCOMPARE(extensionsOf(FileKind::Image).join(u' '),
                 QStringLiteral("png bmp gif jpg jpeg icns ico exr jp2 tif tiff tga psd"));
        QVERIFY(extensionsOf(FileKind::Other).isEmpty());
    }

    void theExtensionIsWhatFollowsTheLastFullStop() {
        QCOMPARE(pathExtension(QStringLiteral("/a.b/c.tar.gz")), QStringLiteral("gz"));
        QCOMPARE(pathExtension(QStringLiteral("/a.b/c")), QString());
        QCOMPARE(pathExtension(QStringLiteral("/a/.hidden")), QString());
        QCOMPARE(pathExtension(QStringLiteral("c.")), QString());
    }

    void aNameLosesItsLastExtensionOnly() {
        QCOMPARE(withoutExtension(QStringLiteral("c.tar.gz")), QStringLiteral("c.tar"));
        QCOMPARE(withoutExtension(QStringLiteral("/a.b/c")), QStringLiteral("/a.b/c"));
        QCOMPARE(withoutExtension(QStringLiteral(".hidden")), QStringLiteral(".hidden"));
    }

    void theLastComponentIgnoresSlashesAtTheEnd() {
        QCOMPARE(lastPathComponent(QStringLiteral("/a/b.txt")), QStringLiteral("b.txt"));
        QCOMPARE(lastPathComponent(QStringLiteral("b.txt")), QStringLiteral("b.txt"));
        QCOMPARE(lastPathComponent(QStringLiteral("/a/b//")), QStringLiteral("b"));
        QCOMPARE(lastPathComponent(QString()), QString());
    }
};

QTEST_GUILESS_MAIN(FileKindTest)
#include "FileKindTest.moc"
