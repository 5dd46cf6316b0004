// SPDX-License-Identifier: Apache-2.0

#include "compress/CompressionPass.h"

#include "CompressionCase.h"
#include "error/Error.h"
#include "pdf/PDFContext.h"
#include "support/FaultyCalls.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/PhotoPage.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// The compressed copy: its protection, its name, and how it takes the place of the document.
class CompressedCopyTest : public QObject, protected CompressionCase {
    Q_OBJECT

    static QByteArray dataOf(QPDFObjectHandle stream) {
        const auto data = stream.getStreamData();
        return {reinterpret_cast<const char *>(data->getBuffer()),
                static_cast<qsizetype>(data->getSize())};
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void theCopyOfPdfAIsPdfAToo_data() {
        QTest::addColumn<QByteArray>("part");
        QTest::addColumn<bool>("classic");
        QTest::newRow("PDF/A-1") << QByteArray("1") << true;
        QTest::newRow("PDF/A-2") << QByteArray("2") << false;
    }
    void theCopyOfPdfAIsPdfAToo() {
        QFETCH(const QByteArray, part);
        QFETCH(const bool, classic);
        writePage(
            claiming(photoPage("q 144 0 0 108 50 20 cm /Im0 Do Q"), part).header("%PDF-1.4\n"));
        CompressionOutcome outcome;
        const QByteArray bytes = readFile(compressed(&outcome));
        QCOMPARE(outcome.imagesReduced, 1);
        QVERIFY(bytes.contains("pdfaid:part=\"" + part + '"'));
        QCOMPARE(bytes.startsWith("%PDF-1.4\n"), classic);
        QCOMPARE(bytes.contains("\nxref\n"), classic);
        QCOMPARE(bytes.contains("/ObjStm"), !classic);
        QCOMPARE(bytes.count("endstream"), bytes.count("\nendstream"));
    }

    void passwordsAreAskedAgain() {
        const QString copy = protectedCopy();
        QCOMPARE(PdfProbe(copy).pageCount(), 0);
        const PdfProbe opened(copy, u"user"_s);
        QCOMPARE(opened.pageCount(), 1);
        const QString allowed = opened.info(u"Encrypted"_s);
        QVERIFY2(allowed.contains(u"print:no"_s), qPrintable(allowed));
        QVERIFY2(allowed.contains(u"copy:yes"_s), qPrintable(allowed));
        QVERIFY2(allowed.contains(u"AES-256"_s), qPrintable(allowed));
    }

    /// It is compressed twice, and stays so.
    void aStreamThatStaysIsWholeInAProtectedCopy() {
        const QByteArray content("q 288 0 0 216 50 20 cm /Im0 Do Q");
        const auto flate = [](const QByteArray &bytes) { return qCompress(bytes).sliced(4); };
        PdfFixture page =
            photoPage({}).stream(5, imageKeys(1200, 900, kJpegRgb), jpeg(photo(1200, 900)));
        page.stream(4, "/Filter [/FlateDecode /FlateDecode]", flate(flate(content)));
        const QString copy = protectedCopyOf(page);
        QPDF document;
        document.processFile(copy.toLocal8Bit().constData(), "user");
        QPDFObjectHandle first = document.getAllPages().at(0);
        QCOMPARE(dataOf(first.getPageContents().at(0)), content);
        QVERIFY(document.getWarnings().empty());
    }

    void aFilterInAListKeepsTheBytesThatItPacked_data() {
        QTest::addColumn<QByteArray>("filter");
        QTest::newRow("name") << QByteArray("/FlateDecode");
        QTest::newRow("list") << QByteArray("[/FlateDecode]");
    }
    /// Without its predictor a picture of the kind takes many times the bytes.
    void aFilterInAListKeepsTheBytesThatItPacked() {
        QFETCH(const QByteArray, filter);
        QByteArray rows; // Each pixel is the one above it and 3.
        for (int row = 0; row < 40; ++row) {
            rows += '\2' + QByteArray(40, '\3');
        }
        const QByteArray packed = qCompress(rows).sliced(4);
        PdfFixture page = photoPage("q 288 0 0 216 50 20 cm /Im0 Do Q")
                              .stream(5, imageKeys(1200, 900, kJpegRgb), jpeg(photo(1200, 900)));
        page.stream(
            6,
            "/Type /XObject /Subtype /Image /Width 40 /Height 40 /BitsPerComponent 8 "
            "/ColorSpace /DeviceGray /DecodeParms << /Predictor 12 /Columns 40 >> /Filter " +
                filter,
            packed);
        writePage(page);
        const QByteArray bytes = readFile(compressed());
        QVERIFY(bytes.contains(packed));
    }

    /// With parameters of filters that are gone the data would be read as something else.
    void aStreamThatIsPackedAnewLosesTheParametersOfItsFilters() {
        const QByteArray content = QByteArray("q 288 0 0 216 50 20 cm /Im0 Do Q").leftJustified(40);
        const QByteArray packed = qCompress('\0' + content).sliced(4).toHex() + '>';
        writePage(photoPage({}).stream(4,
                                       "/Filter [/ASCIIHexDecode /FlateDecode] "
                                       "/DecodeParms [null << /Predictor 12 /Columns 40 >>]",
                                       packed));
        QPDF document;
        document.processFile(compressed().toLocal8Bit().constData());
        QPDFObjectHandle first = document.getAllPages().at(0);
        QPDFObjectHandle copied = first.getPageContents().at(0);
        QCOMPARE(copied.getDict().getKey("/Filter").unparse(), std::string("/FlateDecode"));
        QCOMPARE(dataOf(copied), content);
    }

    void theCopyOfAProtectedDocumentIsPrivate() {
        const QString copy = protectedCopy();
        QVERIFY(QFile::exists(copy));
        QCOMPARE(QFile::permissions(copy) &
                     (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
                 QFile::Permissions());
    }

    void theTemporaryNameGivesWayToFilesThatExist() {
        writeJpegPage("q 288 0 0 216 50 20 cm /Im0 Do Q");
        const QDir folder(m_temporaryFolder);
        test::writeFile(folder.filePath(u"document.pdf"_s), "mine");
        test::writeFile(folder.filePath(u"document(1).pdf"_s), "mine too");
        QCOMPARE(compressed(), folder.filePath(u"document(2).pdf"_s));
        QCOMPARE(test::readFile(folder.filePath(u"document.pdf"_s)), QByteArray("mine"));
    }

    void theTemporaryNameCountsBeforeTheLastExtensionAlone() {
        m_path = m_folder->filePath(u"a.b.pdf"_s);
        writeJpegPage("q 288 0 0 216 50 20 cm /Im0 Do Q");
        const QDir folder(m_temporaryFolder);
        test::writeFile(folder.filePath(u"a.b.pdf"_s), "mine");
        QCOMPARE(compressed(), folder.filePath(u"a.b(1).pdf"_s));
    }

    void theOwnersPasswordOpensTheDocument() {
        encryptDocument(u"neither"_s, u"owner"_s);
        CompressionOptions options = optionsOf(1);
        options.encryption = std::make_shared<const Encryption>(Encryption{u"user"_s, u"owner"_s});
        QCOMPARE(compress(m_path, options).error, QString());
    }

    void withoutAnOwnersPasswordTheUsersOpensTheDocument() {
        encryptDocument(u"neither"_s, u"user"_s);
        CompressionOptions options = optionsOf(1);
        options.encryption = std::make_shared<const Encryption>(Encryption{u"user"_s, {}});
        QCOMPARE(compress(m_path, options).error, QString());
    }

    void aDocumentWithOtherPasswordsIsNotOpened() {
        encryptDocument(u"neither"_s, u"nor"_s);
        CompressionOptions options = optionsOf(1);
        options.encryption = std::make_shared<const Encryption>(Encryption{u"user"_s, u"owner"_s});
        QVERIFY(!compress(m_path, options).error.isEmpty());
    }

    void whatCannotBecomeSmallerIsNotWrittenAgain() {
        writeJpegPage("q 288 0 0 216 50 20 cm /Im0 Do Q");
        // Once it is compressed there is nothing left to win.
        const QString once = compressed();
        QVERIFY(once != m_path);
        QVERIFY(QFile::remove(m_path) && QFile::rename(once, m_path));
        const CompressionOutcome outcome = run(1);
        QCOMPARE(outcome.error, QString());
        QVERIFY(!outcome.convertInfo);
        QCOMPARE(outcome.bytesAfter, outcome.bytesBefore);
        QVERIFY(QDir(m_temporaryFolder)
                    .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void theCopyIsBroughtToTheDiskWhereThatIsAskedFor() {
        writeJpegPage("q 288 0 0 216 50 20 cm /Im0 Do Q");
        FaultyCalls calls;
        calls.failing["fsync"] = EIO;
        CompressionOptions options = optionsOf(1);
        options.calls = calls;
        QCOMPARE(compress(m_path, options).error, QString());
        options.flush = Flush::Always;
        QVERIFY(!compress(m_path, options).error.isEmpty());
    }

    void theDocumentStaysUntilItsSuccessorHasItsName_data() {
        QTest::addColumn<QString>("call");
        for (const char *call : {"pread", "write", "fsync", "linkAnonymous", "rename"}) {
            QTest::newRow(call) << QString::fromLatin1(call);
        }
    }
    void theDocumentStaysUntilItsSuccessorHasItsName() {
        QFETCH(const QString, call);
        writeJpegPage("q 288 0 0 216 50 20 cm /Im0 Do Q");
        const QByteArray before = test::readFile(m_path);
        const QString copy = compressed();
        FaultyCalls calls;
        calls.failing[call.toStdString()] = EIO;
        QVERIFY_THROWS_EXCEPTION(Error, putInPlace(*m_record, Flush::Always, calls));
        QCOMPARE(test::readFile(m_path), before);
        m_record.reset();
        QVERIFY(!QFile::exists(copy));
    }

    void aCopyThatNobodyPutsInPlaceIsGone() {
        writeJpegPage("q 288 0 0 216 50 20 cm /Im0 Do Q");
        {
            const CompressionOutcome outcome = run(1);
            QVERIFY(QFile::exists(outcome.convertInfo->tempFilePathName));
        }
        QVERIFY(QDir(m_temporaryFolder)
                    .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void theCopyTakesThePlaceOfTheDocument() {
        writeJpegPage("q 288 0 0 216 50 20 cm /Im0 Do Q");
        const auto permissions = QFile::permissions(m_path);
        const QString copy = compressed();
        const QByteArray bytes = test::readFile(copy);
        putInPlace(*m_record, Flush::Never);
        QCOMPARE(test::readFile(m_path), bytes);
        QCOMPARE(QFile::permissions(m_path), permissions);
        m_record.reset();
        QVERIFY(!QFile::exists(copy));
    }

  private:
    /// A page at m_path with these passwords.
    void encryptDocument(const QString &user, const QString &owner) const {
        const QString plain = test::writePdf(m_folder->filePath(u"plain.pdf"_s), 1);
        const auto run = test::runTool(
            u"qpdf"_s, {u"--encrypt"_s, user, owner, u"256"_s, u"--"_s, plain, m_path});
        QCOMPARE(run.exitCode, 0);
    }

    /// The compressed copy of a document with the passwords "user" and "owner".
    QString protectedCopy() const {
        return protectedCopyOf(
            photoPage("q 288 0 0 216 50 20 cm /Im0 Do Q")
                .stream(5, imageKeys(1200, 900, kJpegRgb), jpeg(photo(1200, 900))));
    }
    QString protectedCopyOf(const PdfFixture &page) const {
        const QString plain = m_folder->filePath(u"plain.pdf"_s);
        if (!page.write(plain)) {
            return {};
        }
        test::runTool(u"qpdf"_s, {u"--stream-data=preserve"_s, u"--encrypt"_s, u"user"_s,
                                  u"owner"_s, u"256"_s, u"--"_s, plain, m_path});
        CompressionOptions options = optionsOf(1);
        options.encryption =
            std::make_shared<const Encryption>(Encryption{u"user"_s, u"owner"_s, true, false});
        return kept(compress(m_path, options).convertInfo);
    }
};

FOLIOFORGE_TEST(CompressedCopyTest)
#include "CompressedCopyTest.moc"
