// SPDX-License-Identifier: Apache-2.0

#include "pdf/writing/DocumentWriter.h"
#include "MergeCase.h"
#include "error/Error.h"
#include "files/OutputFile.h"
#include "pdf/Password.h"
#include "pdf/writing/CrossReferences.h"
#include "pdf/writing/ObjectStreams.h"
#include "support/Files.h"
#include "support/Sanitizer.h"
#include "support/TestUnit.h"

#include <qpdf/Buffer.hh>

#include <QFile>

#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

const QByteArray kSecret("(for your eyes only)");

/// A page with a piece of private data, object 20.
PdfFixture withData(const QByteArray &data) {
    return PdfFixture()
        .object(1, kCatalog)
        .pages(4, 1)
        .object(4, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Contents 5 0 R "
                   "/PieceInfo 20 0 R >>")
        .object(20, data);
}

QPDFObjectHandle dataOf(QPDF &document) {
    QPDFObjectHandle page = document.getAllPages().at(0);
    return page.getKey("/PieceInfo");
}

} // namespace

/// What stands in the file of a document, as qpdf and mutool read it.
class DocumentWriterTest : public QObject, protected MergeCase {
    Q_OBJECT

    QString locked(const QString &source) {
        QString path = newPath();
        PDFContext::Settings settings = unflushed();
        settings.encryption = std::make_unique<Encryption>();
        settings.encryption->userPassword = u"secret"_s;
        PDFContext context(path, std::move(settings));
        context.addDocument(source);
        return context.close().status == CloseResult::Status::Written ? path : QString();
    }
    /// The file as qpdf writes it with every stream unpacked and every object by itself.
    QByteArray unpacked(const QString &path) {
        const QString plain = newPath();
        runTool(u"qpdf"_s, {u"--password=secret"_s, u"--decrypt"_s, u"--qdf"_s,
                            u"--object-streams=disable"_s, path, plain});
        return readFile(plain);
    }

  private Q_SLOTS:
    void allKindsOfObjectsStayAsTheyAre_data() {
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("numbers like a reference") << QByteArray("[5 0 1 0 0 1.5 -3 0 .25 0]");
        QTest::newRow("a string like a reference") << QByteArray("(4 0 R \\) 5 0 R \\( <<)");
        QTest::newRow("nested parentheses") << QByteArray("(a (4 0 R) b)");
        QTest::newRow("a backslash at the end") << QByteArray("[(a\\\\) (4 0 R)]");
        QTest::newRow("bytes") << QByteArray("<00ff28295c0a0d>");
        QTest::newRow("names") << QByteArray("[/4 /R#20R /A.0 /B#28#29 /0 /#2F]");
        QTest::newRow("others") << QByteArray("[true false null << /4 << >> >> []]");
    }
    void allKindsOfObjectsStayAsTheyAre() {
        QFETCH(const QByteArray, value);
        const auto document = opened(merged({saved(withData("<< /V " + value + " >>"))}));
        QCOMPARE(dataOf(*document).getKey("/V").unparseResolved(),
                 QPDFObjectHandle::parse(value.toStdString()).unparse());
    }

    void referencesLeadToTheirObjects() {
        PdfFixture source = withData("<< /A [0 21 0 R 0 22 0 R 7] /B<< /C 23 0 R >> >>");
        source.object(21, "(one)").object(22, "[21 0 R]").object(23, "23");
        const auto document = opened(merged({saved(source)}));
        auto list = dataOf(*document).getKey("/A");
        QCOMPARE(list.getArrayNItems(), 5);
        QCOMPARE(list.getArrayItem(1).getStringValue(), "one");
        QVERIFY(list.getArrayItem(3).getArrayItem(0).isSameObjectAs(list.getArrayItem(1)));
        QCOMPARE(dataOf(*document).getKey("/B").getKey("/C").getIntValue(), 23);
    }

    void nothingThatNothingRefersToIsWritten() {
        PdfFixture source = withData("<< >>");
        source.object(30, kSecret);
        const QByteArray plain = unpacked(merged({saved(source)}));
        QVERIFY(plain.contains("/PieceInfo"));
        QVERIFY(!plain.contains(kSecret));
    }

    void aStreamWithoutFilterIsCompressed() {
        PdfFixture source = withData("<< /S 21 0 R >>");
        source.stream(21, {}, QByteArray(5000, 'x'));
        const auto document = opened(merged({saved(source)}));
        auto stream = dataOf(*document).getKey("/S");
        QVERIFY(stream.getDict().getKey("/Filter").isNameAndEquals("/FlateDecode"));
        QVERIFY(stream.getDict().getKey("/Length").getIntValue() < 100);
        QCOMPARE(stream.getStreamData()->getSize(), 5000U);
    }

    void howAStreamWasEncryptedIsNoFilterOfIt_data() {
        QTest::addColumn<QByteArray>("keys");
        QTest::addColumn<QByteArray>("filter");
        QTest::newRow("alone") << QByteArray("/Filter /Crypt /DecodeParms << /Name /Identity >>")
                               << QByteArray("null");
        QTest::newRow("first of two")
            << QByteArray("/Filter [/Crypt /ASCIIHexDecode] /DecodeParms [<< /Name /Identity >> "
                          "null]")
            << QByteArray("[ /ASCIIHexDecode ]");
        QTest::newRow("without parameters")
            << QByteArray("/Filter [/Crypt /ASCIIHexDecode]") << QByteArray("[ /ASCIIHexDecode ]");
        QTest::newRow("of no parameters")
            << QByteArray("/Filter [/Crypt] /DecodeParms []") << QByteArray("null");
        QTest::newRow("twice") << QByteArray("/Filter [/Crypt /ASCIIHexDecode /Crypt]")
                               << QByteArray("[ /ASCIIHexDecode ]");
        QTest::newRow("never") << QByteArray("/Filter /ASCIIHexDecode /DecodeParms []")
                               << QByteArray("/ASCIIHexDecode");
    }
    void howAStreamWasEncryptedIsNoFilterOfIt() {
        QFETCH(const QByteArray, keys);
        QFETCH(const QByteArray, filter);
        PdfFixture source = withData("<< /S 21 0 R >>");
        source.stream(21, keys, "41424344>");
        const auto document = opened(merged({saved(source)}));
        auto stream = dataOf(*document).getKey("/S").getDict();
        QCOMPARE(stream.getKey("/Filter").unparse(), filter.toStdString());
        QVERIFY(!stream.hasKey("/DecodeParms"));
    }

    void filtersKeepTheirParameters() {
        PdfFixture source = withData("<< /S 21 0 R >>");
        source.stream(21,
                      "/Filter [/Crypt /ASCIIHexDecode /FlateDecode] "
                      "/DecodeParms [null null << /Columns 3 >>]",
                      {});
        const auto document = opened(merged({saved(source)}));
        auto stream = dataOf(*document).getKey("/S").getDict();
        QCOMPARE(stream.getKey("/Filter").unparse(), "[ /ASCIIHexDecode /FlateDecode ]");
        QCOMPARE(stream.getKey("/DecodeParms").unparse(), "[ null << /Columns 3 >> ]");
    }

    void parametersOfNoFilterGo() {
        PdfFixture source = withData("<< /S 21 0 R >>");
        source.stream(21, "/DecodeParms << /Predictor 12 /Columns 4 >>", "plain");
        const auto document = opened(merged({saved(source)}));
        const auto data = dataOf(*document).getKey("/S").getStreamData();
        QCOMPARE(std::string(reinterpret_cast<const char *>(data->getBuffer()), data->getSize()),
                 "plain");
    }

    void numbersBehindEachOtherStayApart() {
        PdfFixture source = withData("[21 0 R 22 0 R 23 0 R]");
        source.object(21, "7").object(22, "8").object(23, "9");
        const auto document = opened(merged({saved(source)}));
        QCOMPARE(dataOf(*document).getArrayItem(0).getIntValue(), 7);
        QCOMPARE(dataOf(*document).getArrayItem(1).getIntValue(), 8);
        QCOMPARE(dataOf(*document).getArrayItem(2).getIntValue(), 9);
    }

    void objectsBeyondFourGigabytesAreFound() {
        const QString path = newPath();
        QFile file(path);
        QVERIFY(file.open(QFile::WriteOnly));
        file.write("%PDF-1.5\n");
        constexpr qint64 kFar = 5'000'000'000; // A hole: it takes no room on a disk.
        file.seek(kFar);
        CrossReferences references;
        for (const char *body :
             {"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [] /Count 0 >>"}) {
            references.putAt(references.newNumber(), file.pos());
            file.write(QByteArray("0 0 obj ").replace(0, 1, file.pos() == kFar ? "1" : "2") + body +
                       " endobj ");
        }
        file.write(references.endAsStream(file.pos(), "/Root 1 0 R"));
        file.close();
        const ToolRun run = runTool(u"qpdf"_s, {u"--show-npages"_s, path});
        QCOMPARE(run.err, ""); // Nothing had to be searched for.
        QCOMPARE(run.out, "0\n");
        QFile::remove(path);
    }

    void asManyObjectsAsPdfAAllowsAreWritten_data() {
        QTest::addColumn<int>("objects");
        QTest::addColumn<bool>("isAllowed");
        QTest::newRow("as many") << 8'388'607 << true;
        QTest::newRow("one more") << 8'388'608 << false;
    }
    void asManyObjectsAsPdfAAllowsAreWritten() {
        QFETCH(const int, objects);
        QFETCH(const bool, isAllowed);
        QPDF document;
        document.emptyPDF();
        OutputFile file(newPath());
        DocumentForm form;
        form.archive = true;
        const auto write = [&] {
            writeDocument(document, file, nullptr, form,
                          {[&](const NumberOf &, ObjectStreams &streams) {
                               constexpr int kOthers = 4; // With the streams of the writer.
                               for (int number = kOthers; number < objects; ++number) {
                                   streams.newNumber();
                               }
                           },
                           {}});
        };
        if (isAllowed) {
            write();
        } else {
            QVERIFY_THROWS_EXCEPTION(Error, write());
        }
    }

    void aDocumentThatFindsNoMemoryGetsNoName() {
        if (isSanitized()) {
            return; // Its own memory is more than any limit.
        }
        PdfFixture source = withData("<< /S 21 0 R >>");
        source.stream(21, "/Filter /FlateDecode", QByteArray(64 << 20, 'x'));
        const QString path = newPath();
        PDFContext context(path, unflushed());
        context.addDocument(saved(source));
        const rlim_t used = readFile(u"/proc/self/statm"_s).split(' ').front().toULongLong() *
                            static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
        rlimit before{};
        QCOMPARE(::getrlimit(RLIMIT_AS, &before), 0);
        const rlimit little{used + (24 << 20), before.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_AS, &little), 0);
        const CloseResult result = context.close();
        ::setrlimit(RLIMIT_AS, &before);
        QCOMPARE(result.reason, u"There is not enough memory"_s);
        QVERIFY(!QFile::exists(path));
    }

    void nothingOfAnEncryptedDocumentCanBeRead() {
        PdfFixture source = withData("<< /V " + kSecret + " /S 21 0 R >>");
        source.object(1, "<< /Type /Catalog /Pages 2 0 R /Lang " + kSecret + " >>");
        source.stream(21, "/T " + kSecret, kSecret);
        const QString path = locked(saved(source));
        QVERIFY(!readFile(path).contains(kSecret.mid(1, 18)));
        const QByteArray plain = unpacked(path);
        QCOMPARE(plain.count(kSecret), 4); // The language, the string, the key and the data.
    }

    void theCatalogOfAnEncryptedDocumentStandsByItself() {
        const QString path = locked(saved(withData("<< >>")));
        QVERIFY(readFile(path).contains("/Type /Catalog"));
        const QString plain = merged({saved(withData("<< >>"))});
        QVERIFY(!readFile(plain).contains("/Type /Catalog"));
    }

    void anEncryptedDocumentNamesTheExtensionThatHasItsCipher() {
        const QString path = locked(saved(withData("<< >>")));
        QVERIFY(readFile(path).startsWith("%PDF-1.7\n"));
        QVERIFY(unpacked(path).contains("/ExtensionLevel 8"));
    }

    void readersThatRepairNothingTakeTheFile() {
        PdfFixture many = withData("<< /Many 21 0 R >>");
        QByteArray list;
        for (int number = 100; number < 9000; ++number) {
            many.object(number, "<< /Number " + QByteArray::number(number) + " >>");
            list += QByteArray::number(number) + " 0 R ";
        }
        many.object(21, '[' + list + ']');
        const QString path = merged({saved(many)}); // qpdf finds it in order.
        const ToolRun run = runTool(u"mutool"_s, {u"show"_s, path, u"trailer"_s});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.err.isEmpty(), run.err.constData());
        const auto document = opened(path);
        auto last = dataOf(*document).getKey("/Many").getArrayItem(8899);
        QCOMPARE(last.getKey("/Number").getIntValue(), 8999);
    }
};

FOLIOFORGE_TEST(DocumentWriterTest)
#include "DocumentWriterTest.moc"
