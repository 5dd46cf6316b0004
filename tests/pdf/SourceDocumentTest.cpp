#include "pdf/import/SourceDocument.h"

#include "error/Error.h"
#include "support/FaultyCalls.h"
#include "support/PdfFixture.h"
#include "support/PdfProbe.h"

#include <qpdf/QPDF.hh>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <cstring>

using namespace folioforge;
using test::PdfFixture;
using test::runTool;

class SourceDocumentTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString saved(const QString &name, const QByteArray &bytes) const {
        QFile file(path(name));
        const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        return written ? file.fileName() : QString();
    }
    static PdfFixture threePages() {
        return PdfFixture().object(1, "<< /Type /Catalog /Pages 2 0 R >>").pages(4, 3);
    }
    /// Three pages encrypted by qpdf.
    QString encrypted(const QString &user, const QStringList &options) const {
        const QString plain = saved(QStringLiteral("plain.pdf"), threePages().bytes());
        QString result = path(QStringLiteral("encrypted.pdf"));
        runTool(QStringLiteral("qpdf"),
                QStringList{QStringLiteral("--allow-weak-crypto"), QStringLiteral("--encrypt"),
                            user, QStringLiteral("owner")} +
                    options + QStringList{QStringLiteral("--"), plain, result});
        return result;
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
        const PDFSummary summary =
            summarizePDF(saved(QStringLiteral("a.pdf"), threePages().bytes()));
        QVERIFY(!summary.encrypted);
        QCOMPARE(summary.pageCount, 3);
    }

    void tellsAnEncryptedDocument_data() {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QStringList>("options");
        const QStringList weak{QStringLiteral("128"), QStringLiteral("--use-aes=n")};
        QTest::newRow("AES-256") << QStringLiteral("secret") << QStringList{QStringLiteral("256")};
        QTest::newRow("empty user password") << QString() << QStringList{QStringLiteral("256")};
        QTest::newRow("RC4, empty user password") << QString() << weak;
    }
    void tellsAnEncryptedDocument() {
        QFETCH(QString, user);
        QFETCH(QStringList, options);
        const QString file = encrypted(user, options);
        QVERIFY(QFile::exists(file));
        QVERIFY(summarizePDF(file).encrypted);
        QVERIFY_THROWS_EXCEPTION(
            Error, openSourceDocument(SourceFile::examine(file), std::make_shared<SourceReader>()));
        QFile::remove(file);
    }

    void anUnknownSecurityHandlerIsEncryption() {
        QByteArray bytes = threePages().bytes();
        bytes.replace("/Root 1 0 R", "/Root 1 0 R /ID [(a) (a)] /Encrypt << /Filter /Vendor.Own /V "
                                     "4 /R 4 >>");
        QVERIFY(summarizePDF(saved(QStringLiteral("vendor.pdf"), bytes)).encrypted);
    }

    void aFileWithoutThePdfMarkIsNoPdf() {
        QCOMPARE(refusal(saved(QStringLiteral("text.pdf"), "just text")),
                 QStringLiteral("This is not a PDF file"));
        QCOMPARE(refusal(saved(QStringLiteral("empty.pdf"), {})),
                 QStringLiteral("This is not a PDF file"));
        const QByteArray late = QByteArray(1024, ' ') + threePages().bytes();
        QCOMPARE(refusal(saved(QStringLiteral("late.pdf"), late)),
                 QStringLiteral("This is not a PDF file"));
    }

    void bytesBeforeThePdfMarkAreTolerated() {
        const QByteArray bytes = QByteArray(500, '\n') + threePages().bytes();
        QCOMPARE(summarizePDF(saved(QStringLiteral("shifted.pdf"), bytes)).pageCount, 3);
    }

    void aDamagedDocumentIsRepaired() {
        QByteArray bytes = threePages().bytes();
        bytes.replace("startxref\n", "startxref\n9");
        QCOMPARE(summarizePDF(saved(QStringLiteral("damaged.pdf"), bytes)).pageCount, 3);
    }

    void aHopelessDocumentIsAnError() {
        QVERIFY(!refusal(saved(QStringLiteral("hopeless.pdf"), "%PDF-1.4\nnothing")).isEmpty());
        QByteArray noCatalog = threePages().bytes();
        noCatalog.replace("/Root 1 0 R", "/Root 99 0 R");
        QVERIFY(!refusal(saved(QStringLiteral("nocatalog.pdf"), noCatalog)).isEmpty());
    }

    void aHugeDamagedDocumentIsRefusedRatherThanSearched() {
        QFile file(saved(QStringLiteral("huge.pdf"), threePages().bytes()));
        QVERIFY(file.resize(1 << 20));
        QCOMPARE(summarizePDF(file.fileName()).pageCount, 3);
        // Sparse, so it costs no disk; the table of objects is not where a reader looks for it.
        QVERIFY(file.resize(kMaxRepairedBytes + 1));
        QVERIFY(!refusal(file.fileName()).isEmpty());
    }

    void aPageTreeThatBitesItsTailEnds() {
        PdfFixture fixture = threePages();
        fixture.object(2, "<< /Type /Pages /Count 3 /Kids [4 0 R 2 0 R 5 0 R] >>");
        const QString file = path(QStringLiteral("loop.pdf"));
        QVERIFY(fixture.write(file));
        // Either answer will do, as long as there is one.
        QVERIFY(!refusal(file).isEmpty() || summarizePDF(file).pageCount <= 3);
    }

    void aPipeOrAFolderIsRefusedAtOnce() {
        const QString pipe = path(QStringLiteral("pipe.pdf"));
        QCOMPARE(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
        QCOMPARE(refusal(pipe), QStringLiteral("This is not a regular file"));
        QCOMPARE(refusal(m_folder.path()), QStringLiteral("This is not a regular file"));
    }

    void aMissingFileIsAnError() {
        QVERIFY(refusal(path(QStringLiteral("missing.pdf"))).contains(QStringLiteral("No such")));
    }

    void aReadThatFailsIsAnErrorAndNeverFewerPages() {
        const QString file = saved(QStringLiteral("spread.pdf"), threePages().spread().bytes());
        test::FaultyCalls counted;
        QCOMPARE(refusal(file, counted), QString());
        QVERIFY(counted.count() > 5); // The start, the end, the catalog, the tree and its pages.
        for (int call = 1; call <= counted.count(); ++call) {
            test::FaultyCalls calls;
            calls.fault = {call, EIO, false, {}};
            QCOMPARE(refusal(file, calls), QStringLiteral("Cannot read the file: %1")
                                               .arg(QString::fromLocal8Bit(std::strerror(EIO))));
        }
    }

    void cutAnywhereADocumentEitherReadsOrFails() {
        const QByteArray whole = threePages().bytes();
        for (qsizetype length = 0; length < whole.size(); length += 37) {
            const QString file = saved(QStringLiteral("cut.pdf"), whole.left(length));
            QVERIFY(!refusal(file).isEmpty() || summarizePDF(file).pageCount <= 3);
        }
    }
};

QTEST_APPLESS_MAIN(SourceDocumentTest)
#include "SourceDocumentTest.moc"
