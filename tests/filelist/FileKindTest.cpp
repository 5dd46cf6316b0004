// SPDX-License-Identifier: Apache-2.0

#include "filelist/FileKind.h"
#include "files/PathNames.h"
#include "support/TestUnit.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge;

class FileKindTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void kindIsDecidedByTheExtensionAlone_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<FileKind>("kind");
        QTest::newRow("text") << u"/a/b.txt"_s << FileKind::Text;
        QTest::newRow("capitals") << u"/a/B.TXT"_s << FileKind::Text;
        QTest::newRow("pdf") << u"b.Pdf"_s << FileKind::Pdf;
        for (const char *extension : {"png", "bmp", "gif", "jpg", "jpeg", "icns", "ico", "exr",
                                      "jp2", "tif", "tiff", "tga", "psd"}) {
            QTest::newRow(extension) << u"x."_s + QString::fromLatin1(extension) << FileKind::Image;
        }
        for (const char *extension : {"webp", "heic", "heif", "avif", "jxl"}) {
            QTest::newRow(extension)
                << u"x."_s + QString::fromLatin1(extension) << FileKind::FurtherImage;
        }
        QTest::newRow("document") << u"x.docx"_s << FileKind::Other;
        QTest::newRow("none") << u"txt"_s << FileKind::Other;
        QTest::newRow("hidden, named like an extension") << u".txt"_s << FileKind::Other;
        QTest::newRow("last one counts") << u"x.txt.gz"_s << FileKind::Other;
        QTest::newRow("folder's extension") << u"a.txt/b"_s << FileKind::Other;
    }

    void kindIsDecidedByTheExtensionAlone() {
        QFETCH(const QString, path);
        QFETCH(const FileKind, kind);
        QCOMPARE(fileKind(path), kind);
    }

    void extensionsAreInTheOrderOfFilePanels() {
        QCOMPARE(extensionsOf(FileKind::Text), QStringList{u"txt"_s});
        QCOMPARE(extensionsOf(FileKind::Pdf), QStringList{u"pdf"_s});
        QCOMPARE(extensionsOf(FileKind::Image).join(u' '),
                 u"png bmp gif jpg jpeg icns ico exr jp2 tif tiff tga psd"_s);
        QVERIFY(extensionsOf(FileKind::Other).isEmpty());
    }

    void theExtensionIsWhatFollowsTheLastFullStop() {
        QCOMPARE(pathExtension(u"/a.b/c.tar.gz"_s), u"gz"_s);
        QCOMPARE(pathExtension(u"/a.b/c"_s), QString());
        QCOMPARE(pathExtension(u"/a/.hidden"_s), QString());
        QCOMPARE(pathExtension(u"c."_s), QString());
    }

    void aNameLosesItsLastExtensionOnly() {
        QCOMPARE(withoutExtension(u"c.tar.gz"_s), u"c.tar"_s);
        QCOMPARE(withoutExtension(u"/a.b/c"_s), u"/a.b/c"_s);
        QCOMPARE(withoutExtension(u".hidden"_s), u".hidden"_s);
    }

    void theLastComponentIgnoresSlashesAtTheEnd() {
        QCOMPARE(lastPathComponent(u"/a/b.txt"_s), u"b.txt"_s);
        QCOMPARE(lastPathComponent(u"b.txt"_s), u"b.txt"_s);
        QCOMPARE(lastPathComponent(u"/a/b//"_s), u"b"_s);
        QCOMPARE(lastPathComponent(QString()), QString());
    }
};

FOLIOFORGE_TEST(FileKindTest)
#include "FileKindTest.moc"
