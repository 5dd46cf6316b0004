// SPDX-License-Identifier: Apache-2.0

#include "filelist/PDFFileInfo.h"

#include "filelist/EntryReader.h"
#include "support/Files.h"
#include "support/Sanitizer.h"
#include "support/TestUnit.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <stop_token>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

PDFFileInfo withDestination(const QString &name) {
    PDFFileInfo entry;
    entry.setDestFilePathName(u"/out/"_s + name);
    return entry;
}

/// Leaves this process 1 GiB of addresses while it lives. AddressSanitizer, which takes far more
/// for itself, refuses blocks of that size instead.
class ShortMemory {
  public:
    ShortMemory() {
        ::getrlimit(RLIMIT_AS, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = test::isSanitized() ? limit.rlim_cur : 1 << 30;
        ::setrlimit(RLIMIT_AS, &limit);
    }
    ~ShortMemory() { ::setrlimit(RLIMIT_AS, &m_before); }
    ShortMemory(const ShortMemory &) = delete;
    ShortMemory &operator=(const ShortMemory &) = delete;

  private:
    rlimit m_before{};
};

} // namespace

// The sanitizer asks for this name.
extern "C" const char *__asan_default_options() { // NOLINT
    return "allocator_may_return_null=1:max_allocation_size_mb=1024";
}

class PDFFileInfoTest : public QObject {
    Q_OBJECT

  private:
    QTemporaryDir m_folder;

    QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    PDFFileInfo entryOf(const char *name, const QByteArray &bytes) const {
        return PDFFileInfo(test::writeFile(path(name), bytes));
    }

  private Q_SLOTS:
    void aTextThatGrowsWhileItIsReadIsAnError() {
        const QTemporaryDir folder;
        const QString path = test::writeFile(folder.filePath(u"log.txt"_s), "first\n");
        constexpr qint64 kLarge = 64 << 20; // Takes many times as long to read as to append to.
        QVERIFY(QFile::resize(path, kLarge));
        const std::jthread writer([&path](const std::stop_token &stop) {
            QFile log(path);
            while (!stop.stop_requested() && log.open(QIODevice::Append)) {
                log.write("more\n");
                log.close();
            }
        });
        const PDFFileInfo entry(path);
        QVERIFY2(entry.readError().contains(u"changed"_s), qPrintable(entry.readError()));
        QVERIFY(entry.getFileString().isEmpty());
    }

    void textsThatDoNotFitIntoMemorySaySoOnEveryThread() {
        const QString large = test::writeFile(path("large.txt"), {});
        constexpr qint64 kLarge = 3LL << 29; // Takes no room on the disk.
        QVERIFY(QFile::resize(large, kLarge));
        QStringList paths(15, large); // Enough for several threads.
        paths += test::writeFile(path("small.txt"), "words");
        const ShortMemory shortMemory;
        const std::vector<ReadEntry> read = readEntries(paths, SourceReading::WhenListed);
        QCOMPARE(read.size(), std::size_t{16});
        for (std::size_t i = 0; i < 15; ++i) {
            QCOMPARE(read[i].problem, u"There is not enough memory"_s);
        }
        QCOMPARE(read.back().entry.getFileString(), u"words"_s);
    }

    void aNewEntryWaitsWithoutAStateText() {
        const PDFFileInfo entry;
        QCOMPARE(entry.filePathName(), u""_s);
        QVERIFY(!entry.filePathName().isNull());
        QVERIFY(entry.fileName().isNull());
        QVERIFY(entry.destFilePathName().isNull());
        QVERIFY(entry.destFileName().isNull());
        QCOMPARE(entry.pageCount(), 0);
        QCOMPARE(entry.fileSize(), u""_s);
        QCOMPARE(entry.index(), 0);
        QCOMPARE(entry.stateIndex(), 1);
        QVERIFY(!entry.state());
        QVERIFY(!entry.getSrcImage());
        QVERIFY(entry.getFileString().isNull());
    }

    void plainFieldsAreKept() {
        PDFFileInfo entry;
        entry.setPageCount(3);
        entry.setFileSize(u"4 KB"_s);
        entry.setIndex(7);
        entry.setFileName(u"n"_s);
        entry.setDestFileName(u"d"_s);
        const RichText text{u"t"_s, true, Qt::red};
        entry.setState(text);
        QCOMPARE(entry.pageCount(), 3);
        QCOMPARE(entry.fileSize(), u"4 KB"_s);
        QCOMPARE(entry.index(), 7);
        QCOMPARE(entry.fileName(), u"n"_s);
        QCOMPARE(entry.destFileName(), u"d"_s);
        QCOMPARE(entry.state(), std::optional(text));
    }

    void aTextIsReadWhole() {
        const PDFFileInfo entry = entryOf("a.txt", "one\r\ntwo \xE2\x82\xAC");
        QCOMPARE(entry.fileName(), u"a.txt"_s);
        QCOMPARE(entry.getFileString(), u"one\r\ntwo \u20ac"_s);
        QVERIFY(entry.readError().isEmpty());
        QVERIFY(entry.remarks().empty());
        QCOMPARE(entry.fileSize(), u""_s);
    }

    void anExtensionInCapitalsCountsAsText() {
        QCOMPARE(entryOf("b.TXT", "text").getFileString(), u"text"_s);
    }

    void aByteOrderMarkIsNoText() {
        QCOMPARE(entryOf("bom.txt", "\xEF\xBB\xBFtext").getFileString(), u"text"_s);
    }

    void anEmptyTextIsEmptyNotAbsent() {
        const PDFFileInfo entry = entryOf("empty.txt", {});
        QVERIFY(!entry.getFileString().isNull());
        QVERIFY(entry.getFileString().isEmpty());
        QVERIFY(entry.remarks().empty());
    }

    void bytesThatAreNotUtf8LeaveTheTextAbsentWithAWarning_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("latin 1") << QByteArray("caf\xE9");
        QTest::newRow("cut off") << QByteArray("euro \xE2\x82");
        QTest::newRow("overlong") << QByteArray("\xC0\x80");
        QTest::newRow("half a pair") << QByteArray("\xED\xA0\x80");
        QTest::newRow("utf-16") << QByteArray("\xFF\xFEt\0", 4);
    }

    void bytesThatAreNotUtf8LeaveTheTextAbsentWithAWarning() {
        QFETCH(const QByteArray, bytes);
        const PDFFileInfo entry = entryOf("bad.txt", bytes);
        QVERIFY(entry.getFileString().isNull());
        QVERIFY(entry.remarks().value(0).contains(u"UTF-8"_s));
        QVERIFY(entry.readError().isEmpty());
    }

    void sourcesThatCannotBeReadSayWhy() {
        QCOMPARE(::mkfifo(qPrintable(path("pipe.txt")), 0600), 0);
        QCOMPARE(::mkfifo(qPrintable(path("pipe.png")), 0600), 0);
        QVERIFY(QDir(m_folder.path()).mkpath(u"folder.png"_s));
        for (const char *name :
             {"pipe.txt", "pipe.png", "folder.png", "missing.txt", "missing.png"}) {
            const PDFFileInfo entry(path(name));
            QVERIFY2(!entry.readError().isEmpty(), name);
            QVERIFY2(entry.getFileString().isNull(), name);
            QVERIFY2(!entry.getSrcImage(), name);
        }
    }

    void anImageShowsItsSizeInWholePoints() {
        // 6127 x 4002 pixels at 720 per inch measure 612.7 x 400.2 points.
        QImage image(6127, 4002, QImage::Format_Mono);
        image.fill(0);
        image.setDotsPerMeterX(28346);
        image.setDotsPerMeterY(28346);
        QVERIFY(image.save(path("scan.png")));
        const PDFFileInfo entry(path("scan.png"));
        QCOMPARE(entry.fileSize(), u"612 \u00d7 400"_s);
        QVERIFY(entry.getSrcImage());
        QCOMPARE(entry.getSrcImage()->path, path("scan.png"));
        QCOMPARE(qRound(entry.getSrcImage()->sizeInPoints().width() * 10), 6127);
    }

    void aBrokenImageHasNoSizeAndSaysWhy() {
        const PDFFileInfo entry = entryOf("broken.png", "no image at all");
        QCOMPARE(entry.fileSize(), u"0 \u00d7 0"_s);
        QVERIFY(!entry.readError().isEmpty());
    }

    void aPdfIsNotReadByTheEntry() {
        const PDFFileInfo entry = entryOf("not-even.pdf", "x");
        QCOMPARE(entry.fileSize(), u""_s);
        QVERIFY(entry.readError().isEmpty());
        QVERIFY(!entry.getSrcImage());
    }

    void anotherPathForgetsTheFormerSource() {
        PDFFileInfo entry = entryOf("first.txt", "text");
        entry.setFilePathName(test::writePng(path("second.png"), 10, 20));
        QVERIFY(entry.getFileString().isNull());
        QCOMPARE(entry.fileSize(), u"10 \u00d7 20"_s);
        entry.setFilePathName(path("first.txt"));
        QVERIFY(!entry.getSrcImage());
    }

    void theDestinationsNameIsItsLastComponent() {
        const PDFFileInfo entry = withDestination(u"a(1).pdf"_s);
        QCOMPARE(entry.destFilePathName(), u"/out/a(1).pdf"_s);
        QCOMPARE(entry.destFileName(), u"a(1).pdf"_s);
    }

    void eighteenCharactersAreShownWhole() {
        const QString name = u"abcdefghijklmn.pdf"_s;
        QCOMPARE(name.size(), 18);
        QCOMPARE(withDestination(name).getShortDestFileName(0), name);
    }

    void nineteenCharactersLoseTheirMiddle() {
        const PDFFileInfo entry = withDestination(u"abcdefghijklmno.pdf"_s);
        QCOMPARE(entry.getShortDestFileName(0), u"abcdefgh...jklmno.pdf"_s);
    }

    void shrinkingTakesFromTheHeadAlone() {
        const PDFFileInfo entry = withDestination(u"abcdefghijklmno.pdf"_s);
        QCOMPARE(entry.getShortDestFileName(3), u"abcde...jklmno.pdf"_s);
        QCOMPARE(entry.getShortDestFileName(8), u"...jklmno.pdf"_s);
        QCOMPARE(entry.getShortDestFileName(20), u"...jklmno.pdf"_s);
        const PDFFileInfo sixteen = withDestination(u"abcdefghijkl.pdf"_s);
        QCOMPARE(sixteen.getShortDestFileName(2), u"abcdefghijkl.pdf"_s);
        QCOMPARE(sixteen.getShortDestFileName(3), u"abcde...ghijkl.pdf"_s);
    }

    void widthsAreWholePoints() {
        QCOMPARE(PDFFileInfo::GetWidthOfName(QString()), 0.0F);
        const float wide = PDFFileInfo::GetWidthOfName(u"WWWWWWWWWW"_s);
        const float narrow = PDFFileInfo::GetWidthOfName(u"iiiiiiiiii"_s);
        QCOMPARE(wide, std::trunc(wide));
        QVERIFY2(wide > 90 && wide < 130, qPrintable(QString::number(wide)));
        QVERIFY2(narrow > 20 && narrow < 40, qPrintable(QString::number(narrow)));
    }

    void statesHaveTheirTexts() {
        PDFFileInfo entry;
        const auto textOf = [&entry](int code) {
            entry.setStateIndex(code);
            return entry.state().value_or(RichText{u"none"_s, false, {}});
        };
        QCOMPARE(textOf(1), (RichText{u"Waiting..."_s, false, {}}));
        QCOMPARE(textOf(2), (RichText{u"Converting..."_s, false, {}}));
        QCOMPARE(textOf(4), (RichText{u"Finished"_s, false, {}}));
        QCOMPARE(textOf(5), (RichText{u"Failed"_s, false, {}}));
        QCOMPARE(textOf(6).text, u"none"_s);
        QCOMPARE(entry.stateIndex(), 6);
    }

    void aFinishedEntryShowsItsDestinationAsALink() {
        PDFFileInfo entry = withDestination(u"a.pdf"_s);
        entry.setStateIndex(FinishedAsLink);
        QCOMPARE(entry.state(), std::optional(RichText{u"a.pdf"_s, true, Qt::blue}));
    }

    void aLinkIsShortenedUntilItFits() {
        PDFFileInfo entry = withDestination(u"WWWWWWWWWWWWWWWWWWWWii.pdf"_s);
        entry.setStateIndex(FinishedAsLink);
        const QString text = entry.state()->text;
        QVERIFY(PDFFileInfo::GetWidthOfName(text) <= 100);
        QVERIFY2(text.startsWith(u"W"_s), qPrintable(text));
        QVERIFY(text.endsWith(u"...WWWWii.pdf"_s));
        const auto head = text.size() - 13;
        QVERIFY(PDFFileInfo::GetWidthOfName(
                    entry.getShortDestFileName(static_cast<int>(7 - head))) > 100);
    }

    void aLinkTooWideForTheColumnStillEnds() {
        PDFFileInfo entry = withDestination(QString(40, u'\u4e2d'));
        entry.setStateIndex(FinishedAsLink);
        QCOMPARE(entry.state()->text, u"..."_s + QString(10, u'\u4e2d'));
    }

    void metadataKeysGiveTheFilesAttributes() {
        const PDFFileInfo entry = entryOf("Meta.TXT", "12345");
        const QFileInfo file(entry.filePathName());
        QCOMPARE(entry.valueForUndefinedKey(u"kMDItemFSName"_s), QVariant(u"meta.txt"_s));
        QCOMPARE(entry.valueForUndefinedKey(u"kMDItemFSSize"_s).toLongLong(), 5);
        QCOMPARE(entry.valueForUndefinedKey(u"kMDItemFSContentChangeDate"_s).toDateTime(),
                 file.lastModified());
        QCOMPARE(entry.valueForUndefinedKey(u"kMDItemFSCreationDate"_s).toDateTime(),
                 file.birthTime());
        QVERIFY(!entry.valueForUndefinedKey(u"kMDItemPixelHeight"_s).isValid());
    }

    void attributesAreReadAfreshOnEachCall() {
        const PDFFileInfo entry = entryOf("fresh.txt", "1");
        test::writeFile(entry.filePathName(), "1234");
        QCOMPARE(entry.valueForUndefinedKey(kMDItemFSSize).toLongLong(), 4);
        QVERIFY(QFile::remove(entry.filePathName()));
        QVERIFY(!entry.valueForUndefinedKey(kMDItemFSSize).isValid());
        QCOMPARE(entry.valueForUndefinedKey(kMDItemFSName), QVariant(u"fresh.txt"_s));
    }
};

FOLIOFORGE_TEST(PDFFileInfoTest)
#include "PDFFileInfoTest.moc"
