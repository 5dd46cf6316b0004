// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/SourceDocument.h"

#include "MergeCase.h"
#include "error/Error.h"
#include "odd/FileWriter.h"
#include "pdf/QpdfErrors.h"
#include "pdf/import/SourceInput.h"
#include "support/FaultyCalls.h"
#include "support/Memory.h"
#include "support/PdfFixture.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <qpdf/QPDF.hh>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <cstring>
#include <ctime>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::FailingMemory;
using test::FileWriter;
using test::kCatalog;
using test::PdfFixture;
using test::runTool;
using test::threePages;

class SourceDocumentTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString saved(const QString &name, const QByteArray &bytes) const {
        QFile file(path(name));
        const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        return written ? file.fileName() : QString();
    }
    /// Three pages encrypted by qpdf.
    QString encrypted(const QString &user, const QStringList &options) const {
        const QString plain = saved(u"plain.pdf"_s, threePages().bytes());
        QString result = path(u"encrypted.pdf"_s);
        runTool(u"qpdf"_s, QStringList{u"--allow-weak-crypto"_s, u"--encrypt"_s, user, u"owner"_s} +
                               options + QStringList{u"--"_s, plain, result});
        return result;
    }
    /// Uses the processor for so many milliseconds and a little more.
    static void spend(int milliseconds) {
        const auto used = [] {
            timespec time{};
            ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
            return time.tv_sec * 1000 + time.tv_nsec / 1'000'000;
        };
        const auto end = used() + milliseconds + 20;
        while (used() < end) {
        }
    }
    static QString refusal(const QString &file, SystemCalls &calls = SystemCalls::system()) {
        try {
            summarizePDF(file, calls);
            return {};
        } catch (const Error &error) {
            return error.reason();
        }
    }

  private Q_SLOTS:
    void countsPages() {
        const PDFSummary summary = summarizePDF(saved(u"a.pdf"_s, threePages().bytes()));
        QVERIFY(!summary.encrypted);
        QCOMPARE(summary.pageCount, 3);
    }

    void lackOfMemoryIsNeverCalledDamage_data() {
        QTest::addColumn<QString>("file");
        const QString classic = saved(u"classic.pdf"_s, threePages().bytes());
        const QString packed = m_folder.filePath(u"packed.pdf"_s);
        runTool(u"qpdf"_s, {u"--object-streams=generate"_s, classic, packed});
        QTest::newRow("table") << classic;
        QTest::newRow("streams") << packed;
    }
    void lackOfMemoryIsNeverCalledDamage() {
        QFETCH(const QString, file);
        std::unique_ptr<QPDF> document; // Its end asks for memory, which must not fail.
        int failures = 0;
        for (; !document; ++failures) {
            const auto reader = std::make_shared<SourceReader>();
            try {
                const FailingMemory failing(failures);
                document = openSourceDocument(FileVersion::of(file), reader);
            } catch (const Error &error) {
                QCOMPARE(error.reason(), notEnoughMemory().reason());
            } catch (const std::bad_alloc &) {
                // Before the library is asked.
            }
        }
        QVERIFY(document->getWarnings().empty());
        QCOMPARE(document->getAllPages().size(), 3U);
        constexpr int kLeast = 50; // Newer versions of the library ask less often.
        QVERIFY2(failures > kLeast, qPrintable(QString::number(failures)));
    }

    void lackOfMemoryInTheWordsOfDamageIsNamed() {
        const auto said = [](const auto &fault) {
            try {
                translateQpdfErrors([&] { throw fault; });
            } catch (const Error &error) {
                return error.reason();
            }
            return QString();
        };
        const QString memory = notEnoughMemory().reason();
        QCOMPARE(said(QPDFExc(qpdf_e_damaged_pdf, "", "", 0, "error reading xref: std::bad_alloc")),
                 memory);
        QCOMPARE(said(std::runtime_error("stream inflate: inflate: data: zlib memory error")),
                 memory);
        QCOMPARE(said(QPDFExc(qpdf_e_damaged_pdf, "", "", 0, "xref not found")),
                 u"The document is damaged: its table of objects is damaged"_s);
    }

    void anEncryptedDocumentWithoutItsTrailerIsRefused() {
        QFile file(encrypted(QString(), {u"256"_s}));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(bytes.contains("xref\n0"));
        const QString cut = saved(u"cut.pdf"_s, bytes.first(bytes.indexOf("xref\n0")));
        QCOMPARE(refusal(cut), u"The document is damaged: its trailer and its table of objects are "
                               "missing"_s);
    }

    void aDocumentEncryptedForCertificatesIsRefusedWithoutItsTrailer() {
        PdfFixture fixture;
        fixture.pages(4, 1).object(1, kCatalog);
        fixture.object(20, "<< /Filter /Adobe.PubSec /SubFilter /adbe.pkcs7.s5 /V 4 >>");
        const QByteArray bytes = fixture.bytes();
        QCOMPARE(refusal(saved(u"cut.pdf"_s, bytes.first(bytes.indexOf("xref\n0")))),
                 u"The document is damaged: its trailer and its table of objects are missing"_s);
    }

    void tellsAnEncryptedDocument_data() {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QStringList>("options");
        const QStringList weak{u"128"_s, u"--use-aes=n"_s};
        QTest::newRow("AES-256") << u"secret"_s << QStringList{u"256"_s};
        QTest::newRow("empty user password") << QString() << QStringList{u"256"_s};
        QTest::newRow("RC4, empty user password") << QString() << weak;
    }
    void tellsAnEncryptedDocument() {
        QFETCH(QString, user);
        QFETCH(QStringList, options);
        const QString file = encrypted(user, options);
        QVERIFY(QFile::exists(file));
        QVERIFY(summarizePDF(file).encrypted);
        QVERIFY_THROWS_EXCEPTION(
            Error, openSourceDocument(FileVersion::of(file), std::make_shared<SourceReader>()));
        QFile::remove(file);
    }

    void anUnknownSecurityHandlerIsEncryption() {
        QByteArray bytes = threePages().bytes();
        bytes.replace("/Root 1 0 R", "/Root 1 0 R /ID [(a) (a)] /Encrypt << /Filter /Vendor.Own /V "
                                     "4 /R 4 >>");
        QVERIFY(summarizePDF(saved(u"vendor.pdf"_s, bytes)).encrypted);
    }

    void aFileWithoutThePdfMarkIsNoPdf() {
        QCOMPARE(refusal(saved(u"text.pdf"_s, "just text")), u"This is not a PDF file"_s);
        QCOMPARE(refusal(saved(u"empty.pdf"_s, {})), u"This is not a PDF file"_s);
        const QByteArray cut = QByteArray(1024, ' ') + threePages().bytes().chopped(50);
        QCOMPARE(refusal(saved(u"cut.pdf"_s, cut)), u"This is not a PDF file"_s);
    }

    void aDocumentWithoutARightPdfMarkIsRead_data() {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray whole = threePages().bytes();
        const qsizetype header = whole.indexOf('\n') + 1;
        QTest::newRow("malformed") << QByteArray(whole).replace("%PDF-", "%PFD-");
        QTest::newRow("missing") << whole.sliced(header);
        QTest::newRow("overwritten") << QByteArray(header, '\0') + whole.sliced(header);
        QTest::newRow("after byte 1024") << QByteArray(1024, ' ') + whole;
        QTest::newRow("after a megabyte") << QByteArray(1 << 20, '\n') + whole;
    }
    void aDocumentWithoutARightPdfMarkIsRead() {
        QFETCH(QByteArray, bytes);
        QCOMPARE(summarizePDF(saved(u"mark.pdf"_s, bytes)).pageCount, 3);
    }

    void bytesBeforeThePdfMarkAreTolerated() {
        const QByteArray bytes = QByteArray(500, '\n') + threePages().bytes();
        QCOMPARE(summarizePDF(saved(u"shifted.pdf"_s, bytes)).pageCount, 3);
    }

    void aDamagedDocumentIsRepaired() {
        QByteArray bytes = threePages().bytes();
        bytes.replace("startxref\n", "startxref\n9");
        QCOMPARE(summarizePDF(saved(u"damaged.pdf"_s, bytes)).pageCount, 3);
    }

    void aHopelessDocumentIsAnError() {
        QCOMPARE(refusal(saved(u"hopeless.pdf"_s, "%PDF-1.4\nnothing")),
                 u"The document is damaged: its trailer and its table of objects are missing"_s);
        const QByteArray noCatalog = threePages().object(1, "<< /Pages 2 0 R >>").bytes();
        QCOMPARE(refusal(saved(u"nocatalog.pdf"_s,
                               QByteArray(noCatalog).replace("/Root 1 0 R", "/Root 99 0 R"))),
                 u"The document is damaged: it has no catalog"_s);
    }

    void aHugeDamagedDocumentIsRefusedRatherThanSearched() {
        QFile file(saved(u"huge.pdf"_s, threePages().bytes()));
        QVERIFY(file.resize(1 << 20));
        QCOMPARE(summarizePDF(file.fileName()).pageCount, 3);
        // Sparse, so it costs no disk; the table of objects is not where a reader looks for it.
        QVERIFY(file.resize(kMaxRepairedBytes + 1));
        QVERIFY(!refusal(file.fileName()).isEmpty());
    }

    void aSearchThatTakesTooLongIsGivenUp_data() {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<bool>("isQuick"); // With libqpdf 12.
        QTest::newRow("numbers") << QByteArray("1 0\n").repeated(32 << 20) << false;
        // libqpdf 11 reads all of them for each.
        QTest::newRow("comments") << QByteArray("%\n").repeated(8 << 20) << true;
    }
    void aSearchThatTakesTooLongIsGivenUp() {
        QFETCH(const QByteArray, lines);
        QFETCH(const bool, isQuick);
        // The library looks for a page that is not where the table says.
        auto objects = threePages().objects();
        const QByteArray page = objects.extract(4).mapped();
        FileWriter file;
        file.objectText(4, "junk\n4 0 obj\n" + page + "\nendobj\n");
        for (const auto &[number, body] : objects) {
            file.object(number, body);
        }
        const QString path = saved(u"endless.pdf"_s, file.raw(lines).table().bytes());
        const QString reason = refusal(path);
        QVERIFY2(reason == u"The document is too damaged to be repaired"_s ||
                     (isQuick && reason.isEmpty()),
                 qPrintable(reason));
    }

    void whatWasDoneBeforeASearchTakesNothingOfItsTime() {
        constexpr int kMilliseconds = 300;
        const QString file = saved(u"lines"_s, QByteArray("line\n").repeated(5000));
        SourceInput input(FileVersion::of(file), std::make_shared<SourceReader>(), {},
                          kMilliseconds);
        const auto readLines = [&input] {
            for (int i = 0; i < 2000; ++i) {
                input.findAndSkipNextEOL();
            }
        };
        readLines();
        spend(kMilliseconds);
        input.seek(0, SEEK_SET);
        readLines();
        spend(kMilliseconds);
        QVERIFY_THROWS_EXCEPTION(Error, readLines());
    }

    void aPageTreeThatBitesItsTailEnds() {
        PdfFixture fixture = threePages();
        fixture.object(2, "<< /Type /Pages /Count 3 /Kids [4 0 R 2 0 R 5 0 R] >>");
        const QString file = path(u"loop.pdf"_s);
        QVERIFY(fixture.write(file));
        // Either answer will do, as long as there is one.
        QVERIFY(!refusal(file).isEmpty() || summarizePDF(file).pageCount <= 3);
    }

    void aPipeOrAFolderIsRefusedAtOnce() {
        const QString pipe = path(u"pipe.pdf"_s);
        QCOMPARE(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
        QCOMPARE(refusal(pipe), u"It is not a regular file"_s);
        QCOMPARE(refusal(m_folder.path()), u"It is not a regular file"_s);
    }

    void aMissingFileIsAnError() {
        QVERIFY(refusal(path(u"missing.pdf"_s)).contains(u"No such"_s));
    }

    void aReadThatFailsIsAnErrorAndNeverFewerPages() {
        const QString file = saved(u"spread.pdf"_s, threePages().spread().bytes());
        test::FaultyCalls counted;
        QCOMPARE(refusal(file, counted), QString());
        QVERIFY(counted.moves() > 4); // The start, the end, the catalog, the tree and its pages.
        // The first call opens the file.
        for (int call = 2; call <= counted.moves() + 1; ++call) {
            test::FaultyCalls calls;
            calls.fault = {call, EIO, false, {}};
            QCOMPARE(refusal(file, calls),
                     u"Cannot read the file: %1"_s.arg(QString::fromLocal8Bit(std::strerror(EIO))));
        }
    }

    void cutAnywhereADocumentEitherReadsOrFails() {
        const QByteArray whole = threePages().bytes();
        for (qsizetype length = 0; length < whole.size(); length += 37) {
            const QString file = saved(u"cut.pdf"_s, whole.left(length));
            QVERIFY(!refusal(file).isEmpty() || summarizePDF(file).pageCount <= 3);
        }
    }
};

FOLIOFORGE_TEST(SourceDocumentTest)
#include "SourceDocumentTest.moc"
