// SPDX-License-Identifier: Apache-2.0

#include "pdf/import/DocumentCatalog.h"
#include "MergeCase.h"
#include "support/Memory.h"
#include "support/TestUnit.h"

#include <qpdf/QPDFWriter.hh>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What a document leaves that could not be added.
class DocumentCatalogTest : public QObject, protected MergeCase {
    Q_OBJECT

    /// A document with something of each topic; `name` stands in all of it.
    static PdfFixture withAll(const QByteArray &name) {
        PdfFixture fixture;
        fixture.object(
            1, "<< /Type /Catalog /Pages 2 0 R /Lang (" + name +
                   ") /PageMode /UseOutlines /MarkInfo << /Marked true >> /PageLabels << /Nums [0 "
                   "<< /P (" +
                   name +
                   ") >>] >> /Outlines << /First 20 0 R /Last 20 0 R >> /StructTreeRoot 21 0 R "
                   "/AcroForm << /Fields [22 0 R] /DR << /Font << /F1 3 0 R >> >> >> /Dests << /" +
                   name + " [4 0 R /Fit] >> /Names << /Dests << /Names [(" + name +
                   ") [4 0 R /Fit]] >> /JavaScript << /Names [(" + name +
                   ") << /S /JavaScript /JS (1) >>] >> >> /OCProperties << /OCGs [23 0 R] /D << "
                   ">> >> /Threads [<< /I << /Title (" +
                   name +
                   ") >> >>] /AF [24 0 R] /OutputIntents [<< /S /GTS_PDFX "
                   "/OutputConditionIdentifier (" +
                   name + ") >>] >>");
        fixture.object(20, "<< /Title (" + name + ") /Dest [4 0 R /Fit] >>");
        fixture.object(21, "<< /Type /StructTreeRoot /K << /S /H1 /Pg 4 0 R /K 0 >> >>");
        fixture.object(22, "<< /T (" + name + ") /FT /Tx /V (" + name + ") >>");
        fixture.object(23, "<< /Type /OCG /Name (" + name + ") >>");
        fixture.object(24, "<< /Type /Filespec /F (" + name + ") /EF << /F 25 0 R >> >>");
        return fixture.stream(25, "/Type /EmbeddedFile", name).pages(4, 2);
    }

    /// Copies of documents and the document that is made of them.
    struct Target {
        QPDF document;
        DocumentCatalog catalog;
        std::vector<std::unique_ptr<QPDF>> sources;
        std::vector<SharedStreams> shared = std::vector<SharedStreams>(2);

        Target() { document.emptyPDF(); }
        ImportedDocument copyOf(const QString &path) {
            sources.push_back(opened(path));
            SourceNames names(catalog.names(), path);
            const ImportOptions options{
                ImportScope::OneOfSeveral, {}, false, {}, catalog.pageCount()};
            return importDocument(*sources.back(), document, shared.at(sources.size() - 1), names,
                                  options);
        }
        QByteArray written() {
            DocumentInfo info;
            info.created = QDateTime::fromSecsSinceEpoch(0).toUTC();
            catalog.finish(document, info);
            QPDFWriter writer(document);
            writer.setOutputMemory();
            writer.setStaticID(true);
            writer.setQDFMode(true);
            writer.setSuppressOriginalObjectIDs(true);
            writer.write();
            const auto buffer = writer.getBufferSharedPointer();
            return {reinterpret_cast<const char *>(buffer->getBuffer()),
                    static_cast<qsizetype>(buffer->getSize())};
        }
    };

  private Q_SLOTS:
    void aDocumentThatFailsWhileItIsAddedLeavesNothing() {
        const QString first = saved(withAll("first"));
        const QString second = saved(withAll("second"));
        Target alone;
        alone.catalog.addDocument(alone.copyOf(first));
        const QByteArray without = alone.written();
        QVERIFY(without.contains("(first)") && !without.contains("second"));
        bool added = false;
        int failures = 0;
        for (; !added; ++failures) {
            Target target;
            target.catalog.addDocument(target.copyOf(first));
            const int before = target.catalog.pageCount();
            ImportedDocument copy = target.copyOf(second);
            try {
                const FailingMemory failing(failures);
                target.catalog.addDocument(std::move(copy));
                added = true;
            } catch (const std::bad_alloc &) {
                target.catalog.truncatePages(before);
            }
            const QByteArray written = target.written();
            QVERIFY2(added ? written.contains("(second)") : written == without,
                     "allocation " + QByteArray::number(failures) + ":\n" + written);
        }
        constexpr int kLeast = 10; // Pages, names and the document itself are kept.
        QVERIFY2(failures > kLeast, qPrintable(QString::number(failures)));
    }

    void aDocumentWhosePagesAreTakenBackLeavesNothing() {
        Target alone;
        const QString first = saved(withAll("first"));
        alone.catalog.addDocument(alone.copyOf(first));
        Target target;
        target.catalog.addDocument(target.copyOf(first));
        const int before = target.catalog.pageCount();
        target.catalog.addDocument(target.copyOf(saved(withAll("second"))));
        target.catalog.truncatePages(before);
        QCOMPARE(target.written(), alone.written());
    }
};

FOLIOFORGE_TEST(DocumentCatalogTest)
#include "DocumentCatalogTest.moc"
