// SPDX-License-Identifier: Apache-2.0

#include "hostile/HostilePdfs.h"
#include "hostile/HostileRuns.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/Sanitizer.h"
#include "support/TestUnit.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// The finished program, given texts and PDFs made to exhaust it, ends soon and within 2 GiB of
/// addresses: with a right PDF or with words.
class LimitsTest : public QObject, private HostileRuns {
    Q_OBJECT

  private Q_SLOTS:
    void init() { begin(); }

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
