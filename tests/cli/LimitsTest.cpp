// SPDX-License-Identifier: Apache-2.0

#include "hostile/HostileImages.h"
#include "hostile/HostilePdfs.h"
#include "support/Files.h"
#include "support/LimitedRun.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/Sanitizer.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// Whether the sizes of the promises are tried; else they are cut down so that the test is quick.
bool isFull() {
    return qEnvironmentVariableIsSet("FOLIOFORGE_FULL_LIMITS");
}

template<typename Number> Number sized(Number full, Number quick) {
    return isFull() ? full : quick;
}

/// Makes a file of a size: what the size counts is the function's to say.
using Maker = QByteArray (*)(qint64);

/// Columns and rows of files that a function makes, so that no more than one is in memory.
void addColumns() {
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<qint64>("size");
}

void addRow(const char *name, Maker maker, qint64 full, qint64 quick) {
    QTest::newRow(name) << maker << sized(full, quick);
}

QByteArray fetched() {
    QFETCH(Maker, maker);
    QFETCH(qint64, size);
    return maker(size);
}

QString written() {
    return u"a PDF"_s;
}

QString valid() {
    return u"a right PDF"_s;
}

QString noMemory() {
    return u"There is not enough memory"_s;
}

} // namespace

/// The finished program, given files made to exhaust it, ends soon and within 2 GiB of addresses:
/// with a right PDF or with words.
class LimitsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString target() const { return path(u"out.pdf"_s); }
    QString saved(const QString &name, const QByteArray &bytes) const {
        return writeFile(path(name), bytes);
    }
    QString savedPdf(const QByteArray &bytes) const { return saved(u"hostile.pdf"_s, bytes); }
    QStringList mergeOf(const QStringList &arguments) const {
        return QStringList{u"--flush"_s, u"never"_s, u"--merge"_s, target()} + arguments;
    }
    /// Merges and says how it ended: written(), or the reason on standard error.
    QString endingOf(const QStringList &arguments, const Limits &limits = {}) const {
        QFile::remove(target());
        const LimitedRun run = runLimited(commandLineProgram(), mergeOf(arguments), limits);
        QString answer = QString::fromUtf8(run.err.left(run.err.indexOf('\n')));
        answer = answer.sliced(answer.lastIndexOf(u": "_s) + 1).trimmed();
        if (run.exitCode == 0) {
            answer = written();
        } else if (run.exitCode != 1) {
            answer = u"exit status %1"_s.arg(run.exitCode); // A signal, or a fault of this test.
        }
        qInfo("| %s%s%s | %.1f s | %lld MB | %s |", QTest::currentTestFunction(),
              QTest::currentDataTag() ? ": " : "",
              QTest::currentDataTag() ? QTest::currentDataTag() : "", run.processorSeconds,
              run.peakBytes >> 20, qPrintable(answer));
        return answer;
    }
    /// The same, or valid() where qpdf finds what was written in order.
    QString answerTo(const QStringList &arguments, const Limits &limits = {}) const {
        const QString ending = endingOf(arguments, limits);
        return ending == written() && PdfProbe(target()).isValid() ? valid() : ending;
    }

    /// The addresses to try, of which megabytes are given: from the least with which the program
    /// starts at all. A sanitized program takes what it wants, and is tried once.
    static std::vector<qint64> littleMemory(qint64 least, qint64 most, qint64 step) {
        if (isSanitized()) {
            return {0};
        }
        constexpr qint64 kMegabyte = 1 << 20;
        std::vector<qint64> sizes;
        for (qint64 size = least * kMegabyte; size < most * kMegabyte; size += step * kMegabyte) {
            if (runLimited(commandLineProgram(), {u"--version"_s}, {size}).exitCode == 0) {
                sizes.push_back(size);
            }
        }
        return sizes;
    }
    /// A picture that cannot be compressed.
    QString noise(const QString &name, QImage::Format format) const {
        constexpr int kSide = 1200;
        QImage image(kSide, kSide, format);
        auto *pixels = reinterpret_cast<quint32 *>(image.bits());
        QRandomGenerator(11).generate(pixels, pixels + qsizetype{kSide} * kSide);
        return image.save(path(name)) ? path(name) : QString();
    }

  private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void imagesOverThePixelBoundAreRefused_data() {
        QTest::addColumn<QByteArray>("bytes");
        constexpr quint32 kSide = 30'000; // 900 million pixels.
        for (const auto &[extension, bytes] : imageHeaders(kSide)) {
            QTest::newRow(extension) << bytes;
        }
    }
    void imagesOverThePixelBoundAreRefused() {
        QFETCH(QByteArray, bytes);
        const QString name = u"claim."_s + QLatin1StringView(QTest::currentDataTag());
        QCOMPARE(answerTo({saved(name, bytes)}),
                 u"The image is too large (30000 x 30000 pixels)"_s);
    }

    void imagesThatUnfoldAreConverted_data() {
        addColumns();
        addRow("transparent PNG", transparentPng, 10'000, 1000);
        addRow("TIFF", deflatedTiff, 20'000, 2000);
        addRow("profile", pngWithProfile, 1LL << 30, 64 << 20);
    }
    void imagesThatUnfoldAreConverted() {
        QCOMPARE(answerTo({saved(u"image.png"_s, fetched())}), valid());
    }

    void littleMemoryGivesARightDocumentOrWords_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("options");
        QTest::newRow("bitmap") << u"noise.bmp"_s << QStringList();
        QTest::newRow("PNG") << u"noise.png"_s << QStringList();
        QTest::newRow("PDF") << u"noise.pdf"_s << QStringList();
        QTest::newRow("compressed PDF") << u"noise.pdf"_s << QStringList{u"--compress"_s, u"72l"_s};
    }
    void littleMemoryGivesARightDocumentOrWords() {
        QFETCH(const QString, name);
        QFETCH(const QStringList, options);
        QString source = noise(name, QImage::Format_RGB32);
        if (source.isEmpty()) {
            QCOMPARE(answerTo({noise(u"noise.png"_s, QImage::Format_ARGB32),
                               noise(u"noise.jpg"_s, QImage::Format_RGB32)}),
                     valid());
            source = path(name);
            QVERIFY(QFile::rename(target(), source));
        }
        for (const qint64 size : littleMemory(64, 190, sized(1, 8))) {
            const QString answer = answerTo(options + QStringList{source}, {size});
            QVERIFY2(answer == valid() || answer.contains(u"memory"_s),
                     qPrintable(u"%1 MB: %2"_s.arg(size >> 20).arg(answer)));
        }
    }

    void littleMemoryForAJpegXlGivesARightDocumentOrWords() {
        const QString source = path(u"plain.jxl"_s);
        const QString plain = path(u"plain.png"_s);
        runTool(u"convert"_s, {u"-size"_s, u"4000x3000"_s, u"xc:white"_s, plain});
        QCOMPARE(runTool(u"cjxl"_s, {u"-d"_s, u"0"_s, u"-e"_s, u"3"_s, plain, source}).exitCode, 0);
        for (const qint64 size : littleMemory(200, 1000, 100)) {
            const QString answer = answerTo({source}, {size});
            QVERIFY2(answer == valid() || answer.contains(u"memory"_s), qPrintable(answer));
        }
    }

    void aPageTreeOfAnyDepthIsRead() {
        const int depth = sized(100'000, 10'000);
        QCOMPARE(answerTo({savedPdf(deepPageTree(depth))}), valid());
        QCOMPARE(PdfProbe(target()).pageCount(), depth);
    }

    void treesOfAnyDepthAreRead() {
        QCOMPARE(answerTo({savedPdf(deepTrees(sized(100'000, 5'000)))}), valid());
    }

    void circlesEnd_data() {
        QTest::addColumn<QByteArray>("bytes");
        for (const auto &[name, bytes] : circles()) {
            QTest::newRow(name) << bytes;
        }
        QTest::newRow("names reached in 2^60 ways") << doublingNames(60);
    }
    void circlesEnd() {
        QFETCH(QByteArray, bytes);
        const bool tree = QByteArrayView(QTest::currentDataTag()).startsWith("a page tree");
        QCOMPARE(answerTo({savedPdf(bytes), u"--compress=72l"_s}),
                 tree ? u"The page tree contains itself"_s : valid());
    }

    void manyObjectsAreReadOrRefused_data() {
        addColumns();
        addRow("objects", manyObjects, 10'000'000, 50'000);
        addRow("entries", manyEntries, 10'000'000, 200'000);
    }
    void manyObjectsAreReadOrRefused() {
        const QString answer = answerTo({savedPdf(fetched())});
        QVERIFY(answer == valid() || answer == noMemory());
    }

    void aHugeNameInManyPlacesStaysOneName() {
        // Copies of large memory take the sanitizers long, and there they are not bounded.
        const QString file = savedPdf(sharedNames(sized(10'000, isSanitized() ? 100 : 2500)));
        QCOMPARE(answerTo({file, file}), valid());
        QCOMPARE(PdfProbe(target()).pageCount(), 2);
    }

    void listsThatManyShareAreReadOnce() {
        // Read for each that shares them, they take ten minutes, and no run is given so long.
        const QString file = savedPdf(sharedKids(isSanitized() ? 3000 : 60'000));
        QCOMPARE(answerTo({file, u"--pages"_s, u"1"_s}), valid());
    }

    void aLargePageInManyPlacesStaysOnePage() {
        const int count = sized(3000, 2000);
        QCOMPARE(answerTo({savedPdf(repeatedPage(count))}), valid());
        QCOMPARE(PdfProbe(target()).pageCount(), count);
    }

    void pdfsThatUnfoldAreConvertedOrRefused_data() {
        addColumns();
        addRow("content", unfoldingContent, 4LL << 30, 64 << 20);
        addRow("image", unfoldingImage, 4LL << 30, 64 << 20);
        addRow("objects", unfoldingObjects, 4LL << 30, 64 << 20);
    }
    void pdfsThatUnfoldAreConvertedOrRefused() {
        const QString file = savedPdf(fetched());
        const bool refused = qstrcmp(QTest::currentDataTag(), "objects") == 0;
        for (const char *method : {"none", "72l"}) {
            const QString answer = endingOf({file, u"--compress="_s + QLatin1StringView(method)});
            QCOMPARE(answer == written(), !refused);
            QVERIFY2(!refused || answer == u"it has no catalog"_s || answer == noMemory(),
                     qPrintable(answer));
            QCOMPARE(PdfProbe(target()).pageCount(), refused ? 0 : 1);
            QVERIFY(!answer.isEmpty());
        }
    }

    void aLineOfAHundredMegabytesIsLaidOut_data() {
        QTest::addColumn<QByteArray>("text");
        const int size = sized(100'000'000, 2'000'000);
        QTest::newRow("letters") << QByteArray(size, 'x');
        QTest::newRow("of no width") << QByteArray("\xE2\x80\x8B").repeated(size / 3);
        QTest::newRow("no newline but carriage returns") << QByteArray(size, '\r');
    }
    void aLineOfAHundredMegabytesIsLaidOut() {
        QFETCH(QByteArray, text);
        const QString answer = answerTo({saved(u"line.txt"_s, text)});
        QVERIFY(answer == valid() || answer == noMemory());
    }

    void tenThousandFormsOfTheSameNamesStayApart() {
        const int count = sized(10'000, 500);
        const QString file = savedPdf(formOfOneField());
        QCOMPARE(answerTo(QStringList(count, file)), valid());
        QCOMPARE(PdfProbe(target()).pageCount(), count);
    }

    void tenThousandInputsNeedFewDescriptors() {
        const int count = sized(10'000, 300);
        const QString picture = writePng(path(u"a.png"_s), 20, 10);
        const QString document = writePdf(path(u"a.pdf"_s), 1);
        QStringList inputs;
        for (int i = 0; i < count; ++i) {
            const QString name = path(QString::number(i));
            inputs += i % 3 == 0   ? writeFile(name + u".txt"_s, "words")
                      : i % 3 == 1 ? name + u".png"_s
                                   : name + u".pdf"_s;
            if (i % 3 != 0) {
                QVERIFY(QFile::copy(i % 3 == 1 ? picture : document, inputs.last()));
            }
        }
        Limits limits;
        limits.descriptors = 64;
        QCOMPARE(answerTo(inputs, limits), valid());
        QCOMPARE(PdfProbe(target()).pageCount(), count);
    }
};

FOLIOFORGE_TEST(LimitsTest)
#include "LimitsTest.moc"
