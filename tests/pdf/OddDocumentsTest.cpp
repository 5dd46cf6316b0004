// SPDX-License-Identifier: Apache-2.0

#include "odd/OddDocuments.h"
#include "error/Error.h"
#include "pdf/PDFContext.h"
#include "pdf/import/SourceDocument.h"
#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <qpdf/QPDF.hh>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <iterator>
#include <map>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

namespace {

QList<OddDocument> allOddDocuments() {
    return oddPageTrees() + oddBoxes() + oddFiles() + oddSyntax() + oddContents() + oddFilters() +
           oddGraphics() + oddInteraction();
}

bool isOfDamage(const Warning &warning) {
    return warning.code == WarningCode::PdfRepaired || warning.code == WarningCode::PdfPagesLost;
}

bool isBlank(const QImage &picture) {
    QImage paper(picture.size(), picture.format());
    paper.fill(Qt::white);
    return picture == paper;
}

/// What other programs see of a document's pages.
struct Pages {
    Pages() = default;
    explicit Pages(const QString &path)
        : pictures(PdfProbe(path).renderAll(kSide))
        , geometry(PdfProbe(path).geometry()) {}

    void operator+=(const Pages &more) {
        pictures += more.pictures;
        geometry += more.geometry;
    }

    static constexpr int kSide = 120; ///< Pixels of the longer side of a page.
    QList<QImage> pictures;
    QList<QByteArray> geometry;
};

} // namespace

/// Documents of every form that ISO 32000 allows keep their pages: poppler draws the copies as it
/// draws the documents.
class OddDocumentsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    const QList<OddDocument> m_documents = allOddDocuments();
    std::map<qsizetype, Pages> m_read; ///< What was seen of the documents themselves.
    Warnings m_warnings;               ///< Of the documents that were merged.

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString saved(const QByteArray &bytes) const { return writeFile(path(u"source.pdf"_s), bytes); }
    QString sourceOf(qsizetype index) const {
        return writeFile(path(u"source%1.pdf"_s.arg(index)), m_documents.at(index).bytes);
    }
    const Pages &read(qsizetype index) {
        const auto known = m_read.find(index);
        return known != m_read.end() ? known->second
                                     : m_read.emplace(index, Pages(sourceOf(index))).first->second;
    }
    /// Writes the PDF of all `sources` and returns its path; qpdf finds it in order.
    QString merged(const QStringList &sources) {
        QString target = path(u"merged.pdf"_s);
        QFile::remove(target);
        PDFContext::Settings settings;
        settings.flush = Flush::Never;
        PDFContext context(target, std::move(settings));
        for (const QString &source : sources) {
            const Warnings warnings = context.addDocument(source).warnings;
            std::ranges::copy(warnings, std::back_inserter(m_warnings));
        }
        const CloseResult result = context.close();
        QString log = result.reason;
        if (result.status != CloseResult::Status::Written || !PdfProbe(target).isValid(&log)) {
            QTest::qFail(qPrintable(log), __FILE__, __LINE__);
        }
        return target;
    }
    static QString refusal(const QString &file) {
        try {
            summarizePDF(file);
            openSourceDocument(FileVersion::of(file), std::make_shared<SourceReader>());
            return {};
        } catch (const Error &error) {
            return error.reason();
        }
    }

  private Q_SLOTS:
    void aHundredDocumentsAndMoreAreTried() {
        QVERIFY2(m_documents.size() >= 100, qPrintable(QString::number(m_documents.size())));
    }

    void anOddDocumentKeepsItsPages_data() {
        QTest::addColumn<qsizetype>("index");
        for (qsizetype i = 0; i < m_documents.size(); ++i) {
            QTest::newRow(m_documents.at(i).name) << i;
        }
    }
    void anOddDocumentKeepsItsPages() {
        QFETCH(qsizetype, index);
        const OddDocument &document = m_documents.at(index);
        const Pages &source = read(index);
        QCOMPARE(source.pictures.size(), document.pages);
        QVERIFY(std::ranges::all_of(source.pictures, [&](const QImage &picture) {
            return isBlank(picture) == document.blank;
        }));
        m_warnings.clear();
        const Pages copied(merged({sourceOf(index)}));
        QVERIFY(std::ranges::none_of(m_warnings, isOfDamage));
        QCOMPARE(copied.geometry, source.geometry);
        QCOMPARE(copied.pictures, source.pictures);
    }

    void allOddDocumentsInOneKeepTheirPages() {
        QStringList sources;
        Pages expected;
        for (qsizetype i = 0; i < m_documents.size(); ++i) {
            if (!m_documents.at(i).ruling) {
                sources += sourceOf(i);
                expected += read(i);
            }
        }
        // Twice, so that each meets another one whose names are the same as its own.
        const Pages all(merged(sources + sources));
        QCOMPARE(all.geometry, expected.geometry + expected.geometry);
        QCOMPARE(all.pictures, expected.pictures + expected.pictures);
    }

    void aDamagedDocumentIsRepairedOrRefused_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("meant");
        for (const DamagedDocument &document : damagedDocuments()) {
            QTest::newRow(document.name) << document.bytes << document.meant;
        }
    }
    void aDamagedDocumentIsRepairedOrRefused() {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, meant);
        const QString damaged = saved(bytes);
        const QString reason = refusal(damaged);
        QCOMPARE(reason.isEmpty(), !meant.isEmpty());
        if (!meant.isEmpty()) {
            const Pages copied(merged({damaged}));
            QCOMPARE(copied.pictures, Pages(saved(meant)).pictures);
        }
    }

    void anEncryptedDocumentIsRefused_data() {
        QTest::addColumn<QStringList>("options");
        const auto row = [](const char *name, const char *options) {
            QTest::newRow(name) << QString::fromLatin1(options).split(u' ');
        };
        row("RC4, 40 bits", "user owner 40");
        row("RC4, 40 bits, owner's password alone", " owner 40");
        row("RC4, 128 bits", "user owner 128 --use-aes=n");
        row("RC4, 128 bits, owner's password alone", " owner 128 --use-aes=n");
        row("RC4 by crypt filters", " owner 128 --use-aes=n --force-V4");
        row("AES, 128 bits", "user owner 128 --use-aes=y");
        row("AES, 128 bits, owner's password alone", " owner 128 --use-aes=y");
        row("AES, 128 bits, metadata in the clear", " owner 128 --cleartext-metadata --use-aes=y");
        row("AES, 256 bits, first form", " owner 256 --force-R5");
        row("AES, 256 bits", "user owner 256");
        row("AES, 256 bits, owner's password alone", " owner 256");
        row("AES, 256 bits, no password", "  256 --allow-insecure");
        row("AES, 256 bits, nothing allowed", " owner 256 --print=none --extract=n --modify=none");
    }
    void anEncryptedDocumentIsRefused() {
        QFETCH(QStringList, options);
        const QString encrypted = path(u"encrypted.pdf"_s);
        QFile::remove(encrypted);
        const ToolRun run =
            runTool(u"qpdf"_s, QStringList{u"--allow-weak-crypto"_s, u"--encrypt"_s} + options +
                                   QStringList{u"--"_s, saved(onePage().bytes()), encrypted});
        QVERIFY2(QFile::exists(encrypted), run.err.constData());
        QVERIFY(summarizePDF(encrypted).encrypted);
        QVERIFY_THROWS_EXCEPTION(Error, openSourceDocument(FileVersion::of(encrypted),
                                                           std::make_shared<SourceReader>()));
    }
};

FOLIOFORGE_TEST(OddDocumentsTest)
#include "OddDocumentsTest.moc"
