// SPDX-License-Identifier: Apache-2.0

#include "support/NoThreads.h"

#include "compress/CompressionCase.h"
#include "convert/Conversion.h"
#include "filelist/EntryReader.h"
#include "image/PdfImage.h"
#include "support/Files.h"
#include "support/Places.h"
#include "support/TestUnit.h"
#include <thread>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

class NoThreadsTest : public QObject, CompressionCase {
    Q_OBJECT

    QString path(const QString &name) const { return m_folder->filePath(name); }

    int m_refused = 0;

    /// The PDF of the file at `source`, made while threads cannot be had.
    PdfProbe converted(const QString &source) {
        const PDFFileInfo entry(source);
        const std::vector<const PDFFileInfo *> entries{&entry};
        ConversionOptions options;
        options.outputFolder = m_folder->path();
        const NoThreads none;
        const PDFOutcome outcome = createPDF(entries, m_path, options);
        m_refused = none.refused();
        if (outcome.close.status != CloseResult::Status::Written) {
            QTest::qFail(qPrintable(outcome.close.reason), __FILE__, __LINE__);
        }
        return PdfProbe(m_path);
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void aLongTextIsWritten() {
        QByteArray lines;
        for (int i = 0; i < 50'000; ++i) {
            lines += "line number " + QByteArray::number(i) + "\n";
        }
        const PdfProbe probe = converted(writeFile(path(u"long.txt"_s), lines));
        QVERIFY(m_refused > 0);
        QVERIFY(probe.isValid());
        QVERIFY(probe.text(1).startsWith(u"line number 0\n"_s));
        QVERIFY(probe.text(probe.pageCount()).contains(u"line number 49999\n"_s));
    }

    void severalPicturesAreWritten() {
        std::vector<std::unique_ptr<PDFFileInfo>> list;
        std::vector<const PDFFileInfo *> entries;
        for (int i = 0; i < 3; ++i) {
            const QString file = path(u"%1.bmp"_s.arg(i));
            QVERIFY(photo(100 + i, 50, QImage::Format_RGB32).save(file));
            entries.push_back(list.emplace_back(std::make_unique<PDFFileInfo>(file)).get());
        }
        ConversionOptions options;
        options.outputFolder = m_folder->path();
        const NoThreads none;
        QCOMPARE(createPDF(entries, m_path, options).pages(), 3);
        QVERIFY(none.refused() > 0 || std::thread::hardware_concurrency() == 1);
    }

    void aPictureAndItsOpacityAreWritten() {
        constexpr int kSide = 700;
        QImage picture = photo(kSide, kSide, QImage::Format_RGBA8888);
        picture.setPixelColor(0, 0, Qt::transparent);
        QVERIFY(picture.save(path(u"picture.png"_s)));
        const PdfProbe probe = converted(path(u"picture.png"_s));
        QVERIFY(m_refused > 0);
        QVERIFY(probe.isValid());
        const QList<QStringList> images = probe.images();
        QCOMPARE(images.size(), 2);
        QCOMPARE(images.at(0).at(2), u"image"_s);
        QCOMPARE(images.at(1).at(2), u"smask"_s);
    }

    void aBitmapIsWritten() {
        // So large that Qt would convert it on threads of its own.
        QVERIFY(photo(900, 600, QImage::Format_RGB32).save(path(u"picture.bmp"_s)));
        const PdfProbe probe = converted(path(u"picture.bmp"_s));
        QVERIFY(probe.isValid());
        QCOMPARE(probe.images().size(), 1);
    }

    void picturesOfOtherLibrariesAreWritten_data() {
        QTest::addColumn<QString>("name");
        for (const char *name : {"colour.webp", "colour.jxl"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }

    void picturesOfOtherLibrariesAreWritten() {
        QFETCH(const QString, name);
        const PdfProbe probe = converted(inSource(u"tests/data/image/"_s) + name);
        QVERIFY(probe.isValid());
        QCOMPARE(probe.images().size(), 1);
    }

    void aPictureWhoseLibraryWaitsForThreadsIsRefused() {
        for (const char *name : {"colour.heic", "colour.avif"}) {
            const QString file = inSource(u"tests/data/image/"_s) + QString::fromLatin1(name);
            const NoThreads none;
            try {
                toPdfImage(file);
                QFAIL(name);
            } catch (const Error &error) {
                QVERIFY(error.reason().startsWith(u"The system grants no thread"));
            }
        }
    }

    void theImagesOfADocumentAreReduced() {
        writeJpegPage("q 72 0 0 54 0 0 cm /Im0 Do Q");
        QString copy;
        {
            const NoThreads none;
            copy = compressed();
            QVERIFY(none.refused() > 0);
        }
        const PdfProbe probe(copy);
        QVERIFY(probe.isValid());
        QCOMPARE(probe.images().size(), 1);
        QCOMPARE(probe.images().at(0).at(kWidthColumn), u"150"_s);
    }

    void filesEnterTheListInTheirOrder() {
        QStringList paths;
        for (int i = 0; i < 100; ++i) {
            paths += writeFile(path(u"%1.txt"_s.arg(i)), "text");
        }
        const NoThreads none;
        const std::vector<ReadEntry> read = readEntries(paths, SourceReading::WhenListed);
        QVERIFY(none.refused() > 0 || std::thread::hardware_concurrency() == 1);
        QCOMPARE(read.size(), std::size_t{100});
        for (int i = 0; i < 100; ++i) {
            QCOMPARE(read.at(i).entry.filePathName(), paths.at(i));
        }
    }
};

FOLIOFORGE_TEST(NoThreadsTest)
#include "NoThreadsTest.moc"
