#include "filelist/PDFFileInfo.h"

#include "filelist/EntryReader.h"
#include "support/Files.h"

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

using namespace folioforge;

namespace {

PDFFileInfo withDestination(const QString &name) {
    PDFFileInfo entry;
    entry.setDestFilePathName(QStringLiteral("/out/") + name);
    return entry;
}

/// Leaves this process 1 GiB of addresses while it lives. AddressSanitizer, which takes far more
/// for itself, refuses blocks of that size instead.
class ShortMemory {
  public:
    ShortMemory() {
#ifndef __SANITIZE_ADDRESS__
        ::getrlimit(RLIMIT_AS, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = 1 << 30;
        ::setrlimit(RLIMIT_AS, &limit);
#endif
    }
    ~ShortMemory() {
#ifndef __SANITIZE_ADDRESS__
        ::setrlimit(RLIMIT_AS, &m_before);
#endif
    }
    ShortMemory(const ShortMemory &) = delete;
    ShortMemory &operator=(const ShortMemory &) = delete;

  private:
    [[maybe_unused]] rlimit m_before{};
};

} // namespace

#ifdef __SANITIZE_ADDRESS__
// The sanitizer asks for this name. NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c)
extern "C" const char *__asan_default_options() {
    return "allocator_may_return_null=1:max_allocation_size_mb=1024";
}
#endif

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
        const QString path = test::writeFile(folder.filePath(QStringLiteral("log.txt")), "first\n");
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
        QVERIFY2(entry.readError().contains(QStringLiteral("changed")),
                 qPrintable(entry.readError()));
        QVERIFY(entry.getFileString().isEmpty());
    }

    void textsThatDoNotFitIntoMemorySaySoOnEveryThread() {
        const QString large = test::writeFile(path("large.txt"), {});
        constexpr qint64 kLarge = 3LL << 29; // Takes no room on the disk.
        QVERIFY(QFile::resize(large, kLarge));
        QStringList paths(15, large); // Enough for several threads.
        paths += test::writeFile(path("small.txt"), "words");
        const ShortMemory shortMemory;
        const ReadEntries read = readEntries(paths);
        QCOMPARE(read.entries.size(), std::size_t{16});
        for (std::size_t i = 0; i < 15; ++i) {
            QCOMPARE(read.entries[i].readError(), QStringLiteral("There is not enough memory"));
        }
        QCOMPARE(read.entries.back().getFileString(), QStringLiteral("words"));
    }

    void aNewEntryWaitsWithoutAStateText() {
        const PDFFileInfo entry;
        QCOMPARE(entry.filePathName(), QStringLiteral(""));
        QVERIFY(!entry.filePathName().isNull());
        QVERIFY(entry.fileName().isNull());
        QVERIFY(entry.destFilePathName().isNull());
        QVERIFY(entry.destFileName().isNull());
        QCOMPARE(entry.pageCount(), 0);
        QCOMPARE(entry.fileSize(), QStringLiteral(""));
        QCOMPARE(entry.index(), 0);
        QCOMPARE(entry.stateIndex(), 1);
        QVERIFY(!entry.state());
        QVERIFY(!entry.getSrcImage());
        QVERIFY(entry.getFileString().isNull());
    }

    void plainFieldsAreKept() {
        PDFFileInfo entry;
        entry.setPageCount(3);
        entry.setFileSize(QStringLiteral("4 KB"));
        entry.setIndex(7);
        entry.setFileName(QStringLiteral("n"));
        entry.setDestFileName(QStringLiteral("d"));
        const RichText text{QStringLiteral("t"), true, Qt::red};
        entry.setState(text);
        QCOMPARE(entry.pageCount(), 3);
        QCOMPARE(entry.fileSize(), QStringLiteral("4 KB"));
        QCOMPARE(entry.index(), 7);
        QCOMPARE(entry.fileName(), QStringLiteral("n"));
        QCOMPARE(entry.destFileName(), QStringLiteral("d"));
        QCOMPARE(entry.state(), std::optional(text));
    }

    void aTextIsReadWhole() {
        const PDFFileInfo entry = entryOf("a.txt", "one\r\ntwo \xE2\x82\xAC");
        QCOMPARE(entry.fileName(), QStringLiteral("a.txt"));
        QCOMPARE(entry.getFileString(), QStringLiteral("one\r\ntwo \u20ac"));
        QVERIFY(entry.readError().isEmpty());
        QVERIFY(entry.readWarning().isEmpty());
        QCOMPARE(entry.fileSize(), QStringLiteral(""));
    }

    void anExtensionInCapitalsCountsAsText() {
        QCOMPARE(entryOf("b.TXT", "text").getFileString(), QStringLiteral("text"));
    }

    void aByteOrderMarkIsNoText() {
        QCOMPARE(entryOf("bom.txt", "\xEF\xBB\xBFtext").getFileString(), QStringLiteral("text"));
    }

    void anEmptyTextIsEmptyNotAbsent() {
        const PDFFileInfo entry = entryOf("empty.txt", {});
        QVERIFY(!entry.getFileString().isNull());
        QVERIFY(entry.getFileString().isEmpty());
        QVERIFY(entry.readWarning().isEmpty());
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
        QVERIFY(entry.readWarning().contains(QStringLiteral("UTF-8")));
        QVERIFY(entry.readError().isEmpty());
    }

    void sourcesThatCannotBeReadSayWhy() {
        QCOMPARE(::mkfifo(qPrintable(path("pipe.txt")), 0600), 0);
        QCOMPARE(::mkfifo(qPrintable(path("pipe.png")), 0600), 0);
        QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("folder.png")));
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
        QCOMPARE(entry.fileSize(), QStringLiteral("612 \u00d7 400"));
        QVERIFY(entry.getSrcImage());
        QCOMPARE(entry.getSrcImage()->path, path("scan.png"));
        QCOMPARE(qRound(entry.getSrcImage()->sizeInPoints().width() * 10), 6127);
    }

    void aBrokenImageHasNoSizeAndSaysWhy() {
        const PDFFileInfo entry = entryOf("broken.png", "no image at all");
        QCOMPARE(entry.fileSize(), QStringLiteral("0 \u00d7 0"));
        QVERIFY(!entry.readError().isEmpty());
    }

    void aPdfIsNotReadByTheEntry() {
        const PDFFileInfo entry = entryOf("not-even.pdf", "x");
        QCOMPARE(entry.fileSize(), QStringLiteral(""));
        QVERIFY(entry.readError().isEmpty());
        QVERIFY(!entry.getSrcImage());
    }

    void anotherPathForgetsTheFormerSource() {
        PDFFileInfo entry = entryOf("first.txt", "text");
        entry.setFilePathName(test::writePng(path("second.png"), 10, 20));
        QVERIFY(entry.getFileString().isNull());
        QCOMPARE(entry.fileSize(), QStringLiteral("10 \u00d7 20"));
        entry.setFilePathName(path("first.txt"));
        QVERIFY(!entry.getSrcImage());
    }

    void theDestinationsNameIsItsLastComponent() {
        const PDFFileInfo entry = withDestination(QStringLiteral("a(1).pdf"));
        QCOMPARE(entry.destFilePathName(), QStringLiteral("/out/a(1).pdf"));
        QCOMPARE(entry.destFileName(), QStringLiteral("a(1).pdf"));
    }

    void eighteenCharactersAreShownWhole() {
        const QString name = QStringLiteral("abcdefghijklmn.pdf");
        QCOMPARE(name.size(), 18);
        QCOMPARE(withDestination(name).getShortDestFileName(0), name);
    }

    void nineteenCharactersLoseTheirMiddle() {
        const PDFFileInfo entry = withDestination(QStringLiteral("abcdefghijklmno.pdf"));
        QCOMPARE(entry.getShortDestFileName(0), QStringLiteral("abcdefgh...jklmno.pdf"));
    }

    void shrinkingTakesFromTheHeadAlone() {
        const PDFFileInfo entry = withDestination(QStringLiteral("abcdefghijklmno.pdf"));
        QCOMPARE(entry.getShortDestFileName(3), QStringLiteral("abcde...jklmno.pdf"));
        QCOMPARE(entry.getShortDestFileName(8), QStringLiteral("...jklmno.pdf"));
        QCOMPARE(entry.getShortDestFileName(20), QStringLiteral("...jklmno.pdf"));
        const PDFFileInfo sixteen = withDestination(QStringLiteral("abcdefghijkl.pdf"));
        QCOMPARE(sixteen.getShortDestFileName(2), QStringLiteral("abcdefghijkl.pdf"));
        QCOMPARE(sixteen.getShortDestFileName(3), QStringLiteral("abcde...ghijkl.pdf"));
    }

    void widthsAreWholePoints() {
        QCOMPARE(PDFFileInfo::GetWidthOfName(QString()), 0.0F);
        const float wide = PDFFileInfo::GetWidthOfName(QStringLiteral("WWWWWWWWWW"));
        const float narrow = PDFFileInfo::GetWidthOfName(QStringLiteral("iiiiiiiiii"));
        QCOMPARE(wide, std::trunc(wide));
        QVERIFY2(wide > 90 && wide < 130, qPrintable(QString::number(wide)));
        QVERIFY2(narrow > 20 && narrow < 40, qPrintable(QString::number(narrow)));
    }

    void statesHaveTheirTexts() {
        PDFFileInfo entry;
        const auto textOf = [&entry](int code) {
            entry.setStateIndex(code);
            return entry.state().value_or(RichText{QStringLiteral("none"), false, {}});
        };
        QCOMPARE(textOf(1), (RichText{QStringLiteral("Waiting..."), false, {}}));
        QCOMPARE(textOf(2), (RichText{QStringLiteral("Converting..."), false, {}}));
        QCOMPARE(textOf(4), (RichText{QStringLiteral("Finished"), false, {}}));
        QCOMPARE(textOf(5), (RichText{QStringLiteral("Failed"), false, {}}));
        QCOMPARE(textOf(6).text, QStringLiteral("none"));
        QCOMPARE(entry.stateIndex(), 6);
    }

    void aFinishedEntryShowsItsDestinationAsALink() {
        PDFFileInfo entry = withDestination(QStringLiteral("a.pdf"));
        entry.setStateIndex(FinishedAsLink);
        QCOMPARE(entry.state(), std::optional(RichText{QStringLiteral("a.pdf"), true, Qt::blue}));
    }

    void aLinkIsShortenedUntilItFits() {
        PDFFileInfo entry = withDestination(QStringLiteral("WWWWWWWWWWWWWWWWWWWWii.pdf"));
        entry.setStateIndex(FinishedAsLink);
        const QString text = entry.state()->text;
        QVERIFY(PDFFileInfo::GetWidthOfName(text) <= 100);
        QVERIFY2(text.startsWith(QStringLiteral("W")), qPrintable(text));
        QVERIFY(text.endsWith(QStringLiteral("...WWWWii.pdf")));
        const auto head = text.size() - 13;
        QVERIFY(PDFFileInfo::GetWidthOfName(
                    entry.getShortDestFileName(static_cast<int>(7 - head))) > 100);
    }

    void aLinkTooWideForTheColumnStillEnds() {
        PDFFileInfo entry = withDestination(QString(40, u'\u4e2d'));
        entry.setStateIndex(FinishedAsLink);
        QCOMPARE(entry.state()->text, QStringLiteral("...") + QString(10, u'\u4e2d'));
    }

    void metadataKeysGiveTheFilesAttributes() {
        const PDFFileInfo entry = entryOf("Meta.TXT", "12345");
        const QFileInfo file(entry.filePathName());
        QCOMPARE(entry.valueForUndefinedKey(QStringLiteral("kMDItemFSName")),
                 QVariant(QStringLiteral("meta.txt")));
        QCOMPARE(entry.valueForUndefinedKey(QStringLiteral("kMDItemFSSize")).toLongLong(), 5);
        QCOMPARE(
            entry.valueForUndefinedKey(QStringLiteral("kMDItemFSContentChangeDate")).toDateTime(),
            file.lastModified());
        QCOMPARE(entry.valueForUndefinedKey(QStringLiteral("kMDItemFSCreationDate")).toDateTime(),
                 file.birthTime());
        QVERIFY(!entry.valueForUndefinedKey(QStringLiteral("kMDItemPixelHeight")).isValid());
    }

    void attributesAreReadAfreshOnEachCall() {
        const PDFFileInfo entry = entryOf("fresh.txt", "1");
        test::writeFile(entry.filePathName(), "1234");
        QCOMPARE(entry.valueForUndefinedKey(kMDItemFSSize).toLongLong(), 4);
        QVERIFY(QFile::remove(entry.filePathName()));
        QVERIFY(!entry.valueForUndefinedKey(kMDItemFSSize).isValid());
        QCOMPARE(entry.valueForUndefinedKey(kMDItemFSName), QVariant(QStringLiteral("fresh.txt")));
    }
};

QTEST_GUILESS_MAIN(PDFFileInfoTest)
#include "PDFFileInfoTest.moc"
