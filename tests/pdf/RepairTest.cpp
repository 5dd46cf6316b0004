// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "odd/FileWriter.h"
#include "pdf/import/SourceDocument.h"
#include "support/Files.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

/// These pages under a tree with `kids`.
PdfFixture withKids(const QByteArray &kids) {
    return threePages().object(2, "<< /Type /Pages /Count 3 /Kids [" + kids + "] >>");
}

/// `file` with a table that is not where the file says.
QByteArray withoutTable(QByteArray file) {
    return file.replace("startxref\n", "startxref\n9");
}
QByteArray withoutTable(const PdfFixture &fixture) {
    return withoutTable(fixture.bytes());
}

/// Three pages, all of them but their contents in an object stream, behind `beginning`. The first
/// page shows `contents`.
FileWriter packed(const QByteArray &contents = "7 0 R", const QByteArray &beginning = {}) {
    auto objects = threePages().objects();
    objects[4].replace("7 0 R", contents);
    FileWriter file("%PDF-1.7\n" + beginning);
    for (const int number : {7, 8, 9}) {
        file.object(number, objects.extract(number).mapped());
    }
    return file.objectStream(10, {objects.begin(), objects.end()});
}

} // namespace

/// Documents whose table of objects is of no use.
class RepairTest : public QObject, protected MergeCase {
    Q_OBJECT

  private:
    QString savedBytes(const QByteArray &bytes) { return writeFile(newPath(), bytes); }

    /// What stands on the pages of the document that is made of the source `bytes`.
    QString textOf(const QByteArray &bytes) {
        return PdfProbe(merged({savedBytes(bytes)})).text().simplified();
    }

    QStringList warningsOf(const QByteArray &bytes) {
        QStringList texts;
        PDFContext context(newPath(), {});
        for (const Warning &warning : context.addDocument(savedBytes(bytes)).warnings) {
            texts += warning.text;
        }
        return texts;
    }

  private Q_SLOTS:
    void aPageThatIsInTheTreeTwiceStaysTwoPages() {
        QCOMPARE(textOf(withoutTable(withKids("4 0 R 5 0 R 4 0 R"))), u"Page 1 Page 2 Page 1"_s);
    }

    void pagesThatAreMissingAreNamed() {
        const QByteArray bytes = withoutTable(withKids("4 0 R 99 0 R 6 0 R"));
        QCOMPARE(warningsOf(bytes),
                 QStringList({u"2 of 3 pages could be read, page 2 is the first that is missing"_s,
                              u"The document is damaged and was repaired: its table of objects is "
                              "damaged"_s}));
    }

    void theNameOfADamagedFileMayBeAnything() {
        const QString file = m_folder.filePath(u"std::bad_alloc.pdf"_s);
        writeFile(file, withoutTable(threePages()));
        QCOMPARE(summarizePDF(file).pageCount, 3);
    }

    void aTreeOfAnyDepthIsRead() {
        constexpr int kDepth = 100'000;
        PdfFixture source = withKids("10 0 R");
        for (int number = 10; number < 10 + kDepth; ++number) {
            source.object(number, "<< /Kids [" + QByteArray::number(number + 1) + " 0 R] >>");
        }
        source.object(10 + kDepth, source.objects().at(4));
        QCOMPARE(textOf(withoutTable(source)), u"Page 1"_s);
    }

    void objectsInObjectStreamsAreFound_data() {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray whole = packed().xrefStream(11).bytes();
        QTest::newRow("the table is not where the file says") << withoutTable(whole);
        QTest::newRow("the table is cut off") << whole.first(whole.indexOf("/XRef"));
        QTest::newRow("the table is missing") << packed().bytes();
        // The later one counts.
        const QByteArray page = threePages().objects().at(4);
        const auto fourth = [](const QByteArray &body, int stream) {
            return FileWriter(QByteArray()).objectStream(stream, {{4, body}}).bytes();
        };
        const QByteArray old = QByteArray(page).replace("7 0 R", "9 0 R");
        QTest::newRow("an older object stream") << packed("7 0 R", fourth(old, 12)).bytes();
        QTest::newRow("an older one of its number") << packed("7 0 R", fourth(old, 10)).bytes();
        QTest::newRow("a newer object stream") << packed("9 0 R").bytes() + fourth(page, 12);
        QTest::newRow("a newer object") << packed("9 0 R").object(4, page).bytes();
    }
    void objectsInObjectStreamsAreFound() {
        QFETCH(const QByteArray, bytes);
        QCOMPARE(textOf(bytes), u"Page 1 Page 2 Page 3"_s);
    }

    void theLastObjectOfANumberCounts() {
        const QByteArray kids = "<< /Type /Pages /Count 1 /Kids [6 0 R] >>";
        const QByteArray update = FileWriter(QByteArray()).object(2, kids).bytes();
        QCOMPARE(textOf(withoutTable(threePages()) + update), u"Page 3"_s);
    }

    void theLastTrailerCounts() {
        PdfFixture source = threePages();
        source.object(20, "<< /Type /Catalog /Pages 21 0 R >>");
        source.object(21, "<< /Type /Pages /Count 1 /Kids [5 0 R] >>");
        source.object(22, kCatalog);
        const QByteArray bytes = withoutTable(source) + "trailer << /Root 20 0 R >>\n";
        QCOMPARE(textOf(bytes), u"Page 2"_s);
    }

    void aTrailerThatLeadsNowhereGivesWayToTheCatalog() {
        const QByteArray bytes = threePages().bytes().replace("/Root 1 0 R", "/Root 99 0 R");
        QCOMPARE(textOf(bytes), u"Page 1 Page 2 Page 3"_s);
        QVERIFY(
            warningsOf(bytes).value(0).startsWith(u"The document is damaged and was repaired"_s));
    }

    void aCatalogInAnObjectStreamIsFoundWithoutATrailer() {
        QVERIFY(!packed().bytes().contains("trailer"));
        QCOMPARE(summarizePDF(savedBytes(packed().bytes())).pageCount, 3);
    }

    void anObjectBehindTheEndOfAnotherIsFound() {
        QByteArray bytes = withoutTable(threePages());
        QCOMPARE(textOf(bytes.replace("endobj\n5 0 obj", "endobj 5 0 obj")),
                 u"Page 1 Page 2 Page 3"_s);
    }

    void wordsThatLookLikeObjectsInTheMiddleOfALineAreNone() {
        PdfFixture source = threePages();
        source.stream(9, {}, "BT /F 9 Tf 20 40 Td (see 4 0 obj and 5 0 obj) Tj ET");
        QCOMPARE(textOf(withoutTable(source)), u"Page 1 Page 2 see 4 0 obj and 5 0 obj"_s);
    }

    void theDocumentInformationIsThatOfTheTrailer() {
        PdfFixture source = threePages().object(20, "<< /Title (Kept) >>").trailer("/Info 20 0 R");
        const auto document = openSourceDocument(FileVersion::of(savedBytes(withoutTable(source))),
                                                 std::make_shared<SourceReader>());
        auto info = document->getTrailer().getKey("/Info");
        QCOMPARE(info.getKey("/Title").getUTF8Value(), std::string("Kept"));
    }

    void anEncryptedDocumentIsStillOne() {
        const QString plain = saved(threePages());
        const QString path = newPath();
        runTool(u"qpdf"_s, {u"--encrypt"_s, u"secret"_s, u"owner"_s, u"256"_s, u"--"_s,
                            u"--object-streams=generate"_s, plain, path});
        const QByteArray bytes = readFile(path);
        QVERIFY(bytes.contains("startxref\n"));
        QVERIFY(summarizePDF(savedBytes(withoutTable(bytes))).encrypted);
    }

    void numbersBeyondWhatTheSizeOfTheFileSuggestsAreRead() {
        PdfFixture source = withKids("4 0 R 8000000 0 R");
        source.object(8'000'000, source.objects().at(6));
        FileWriter file;
        file.objects(source);
        QCOMPARE(textOf(FileWriter(file).table().bytes()), u"Page 1 Page 3"_s);
        QCOMPARE(warningsOf(FileWriter(file).table().bytes()),
                 QStringList(u"2 of 3 pages could be read"_s));
        QCOMPARE(textOf(withoutTable(file.table().bytes())), u"Page 1 Page 3"_s);
    }
};

FOLIOFORGE_TEST(RepairTest)
#include "RepairTest.moc"
