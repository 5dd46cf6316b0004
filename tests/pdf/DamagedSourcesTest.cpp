// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "error/Error.h"
#include "pdf/PDFContext.h"
#include "support/FaultyCalls.h"
#include "support/PdfFixture.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QFile>

#include <cstring>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// Sources that are damaged, change or cannot be read.
class DamagedSourcesTest : public QObject, protected MergeCase {
    Q_OBJECT

  private:
    static PDFContext::Settings through(SystemCalls &calls) {
        PDFContext::Settings settings;
        settings.flush = Flush::Never;
        settings.calls = calls;
        return settings;
    }

    /// The reason why `context` does not take `source`; empty where it does.
    static QString refusal(PDFContext &context, const QString &source) {
        try {
            context.addDocument(source);
            return {};
        } catch (const Error &error) {
            return error.reason();
        }
    }

    /// The contents of the first page.
    static QByteArray firstContents(const QString &path) {
        const auto document = opened(path);
        QPDFObjectHandle page = document->getAllPages().at(0);
        const auto data = page.getKey("/Contents").getStreamData();
        return {reinterpret_cast<const char *>(data->getBuffer()), qsizetype(data->getSize())};
    }

  private Q_SLOTS:
    void damagedPageLabelsCostNothingElse() {
        PdfFixture source;
        source.object(1, "<< /Type /Catalog /Pages 2 0 R /PageLabels << /Nums [0] >> >>")
            .pages(4, 2);
        const PdfProbe probe(merged({saved(source)}));
        QCOMPARE(probe.pageCount(), 2);
        QVERIFY(probe.text(2).contains(u"Page 2"_s));
    }

    void aDamagedSourceIsRepairedAndRead() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 2);
        QByteArray bytes = source.bytes();
        // No offset is right any more.
        bytes.insert(bytes.indexOf("1 0 obj"), QByteArray("% junk\n").repeated(20));
        const QString path = newPath();
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        QVERIFY(PdfProbe(merged({path})).text(2).contains(u"Page 2"_s));
    }

    void aLengthBeyondAllFilesIsFoundOut_data() {
        QTest::addColumn<QByteArray>("length");
        QTest::newRow("2^64") << QByteArray("18446744073709551616");
        QTest::newRow("-2^64") << QByteArray("-18446744073709551616");
        QTest::newRow("10^40") << '1' + QByteArray(40, '0');
        QTest::newRow("2^63") << QByteArray("9223372036854775808");
        QTest::newRow("2^63 - 1") << QByteArray("9223372036854775807");
        QTest::newRow("2^63 - 201") << QByteArray("9223372036854775607");
        QTest::newRow("2^62") << QByteArray("4611686018427387904");
        QTest::newRow("2^32") << QByteArray("4294967296");
        QTest::newRow("-1") << QByteArray("-1");
        QTest::newRow("-2^63") << QByteArray("-9223372036854775808");
    }
    void aLengthBeyondAllFilesIsFoundOut() {
        QFETCH(QByteArray, length);
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 1);
        const QByteArray content("BT /F 20 Tf 20 40 Td (Page 1) Tj ET");
        source.object(5, "<< /Length " + length + " >>\nstream\n" + content + "\nendstream");
        QVERIFY(PdfProbe(merged({saved(source)})).text(1).contains(u"Page 1"_s));
    }

    void aLengthOfTooManyDigitsIsFoundOutWhereverItStands() {
        const QByteArray content("BT /F 20 Tf 20 40 Td (Page 1) Tj ET");
        for (int before = 0; before < 150; ++before) {
            PdfFixture source;
            source.object(1, kCatalog).pages(4, 1);
            source.object(5, "<< /Of (" + QByteArray(before, 'x') +
                                 ") /Length 123456789012345678901234567890 >>\nstream\n" + content +
                                 "\nendstream");
            QVERIFY(firstContents(merged({saved(source)})).contains("(Page 1) Tj"));
        }
    }

    void aLengthWithManyZerosBeforeItIsRight() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 1);
        source.object(5, "<< /Length 0000000000000000000000001 >>\nstream\n% \nendstream");
        QCOMPARE(firstContents(merged({saved(source)})), "%");
    }

    void aLongNumberThatIsNoLengthStays() {
        const QByteArray content("BT /F 20 Tf 20 40 Td (/Length 12345678901234567890) Tj ET\n");
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 1);
        source.object(5, "<< /Length " + QByteArray::number(content.size()) + " >>\nstream\n" +
                             content + "\nendstream");
        QCOMPARE(firstContents(merged({saved(source)})), content);
    }

    void misplacedObjectsInASourceCostOnlyThemselves() {
        PdfFixture source;
        source.object(1, "<< /Type /Catalog /Pages 2 0 R /Outlines << /First 4 0 R >> /AcroForm << "
                         "/Fields [2 0 R 5 0 R 3 0 R 99 0 R] >> /OCProperties << /OCGs [1 0 R 4 0 "
                         "R] /D << /OFF [2 0 R] >> >> >>");
        source.pages(4, 2);
        PdfFixture tree = source;
        tree.object(1, "<< /Type /Catalog /Pages 2 0 R /Outlines << /First 2 0 R >> >>");
        const QString result = merged({saved(source), saved(tree)});
        QCOMPARE(PdfProbe(result).pageCount(), 4);
        QVERIFY(PdfProbe(result).text(4).contains(u"Page 2"_s));
        QVERIFY(!opened(result)->getRoot().hasKey("/Outlines"));
    }

    void aPageTreeThatContainsItselfIsRefused() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 2);
        source.object(2, "<< /Type /Pages /Kids [4 0 R 2 0 R 5 0 R] /Count 2 >>");
        PDFContext context(newPath(), {});
        QCOMPARE(refusal(context, saved(source)), u"The page tree contains itself"_s);
    }

    void aSourceThatCannotBeReadLeavesNothing() {
        PdfFixture good;
        good.object(1, kCatalog).pages(4, 1);
        const QString broken = newPath();
        QFile file(broken);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("%PDF-1.7\nnothing that could be a document");
        file.close();
        const QString path = newPath();
        PDFContext context(path, {});
        QCOMPARE(context.addDocument(saved(good)).pages, 1);
        QVERIFY_THROWS_EXCEPTION(Error, context.addDocument(broken));
        QVERIFY_THROWS_EXCEPTION(Error, context.addDocument(newPath()));
        QCOMPARE(context.pageCount(), 1);
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        QVERIFY(PdfProbe(path).isValid());
        QCOMPARE(PdfProbe(path).pageCount(), 1);
    }

    void aReadThatFailsIsItsSourcesErrorAndNeverAMissingObject() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 2).spread();
        const QString input = saved(source);
        test::FaultyCalls counted;
        QCOMPARE(PDFContext(newPath(), through(counted)).addDocument(input).pages, 2);
        QVERIFY(counted.moves() > 3);
        // The first call opens the file.
        for (int call = 2; call <= counted.moves() + 1; ++call) {
            test::FaultyCalls calls;
            calls.fault = {call, EIO, false, {}};
            const QString path = newPath();
            PDFContext context(path, through(calls));
            QCOMPARE(refusal(context, input),
                     u"Cannot read the file: %1"_s.arg(QString::fromLocal8Bit(std::strerror(EIO))));
            QCOMPARE(context.pageCount(), 0);
            QCOMPARE(refusal(context, input), QString()); // The disk is well again.
            QCOMPARE(context.close().status, CloseResult::Status::Written);
            QVERIFY(PdfProbe(path).text(1).contains(u"Page 1"_s));
            QVERIFY(PdfProbe(path).text(2).contains(u"Page 2"_s));
        }
    }

    void aSourceThatChangesBeforeItsStreamsAreReadFailsTheDocument() {
        PdfFixture source;
        source.object(1, kCatalog).pages(4, 1);
        const QString input = saved(source);
        const QString path = newPath();
        PDFContext context(path, {});
        QCOMPARE(context.addDocument(input).pages, 1);
        QVERIFY(source.pages(4, 2).write(input));
        const CloseResult result = context.close();
        QCOMPARE(result.status, CloseResult::Status::Failed);
        QVERIFY2(result.reason.contains(u"was changed"_s), qPrintable(result.reason));
        QVERIFY(!QFile::exists(path));
    }
};

FOLIOFORGE_TEST(DamagedSourcesTest)
#include "DamagedSourcesTest.moc"
