// SPDX-License-Identifier: Apache-2.0

#include "convert/Conversion.h"
#include "support/Files.h"
#include "support/PdfFixture.h"
#include "support/PdfProbe.h"
#include "support/TestUnit.h"

#include <QTemporaryDir>
#include <QTest>

#include <vector>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What is said of pages that readers need not show.
class PageSizesTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    /// What is said of the last of `copies` of `source` in one PDF, which is written in any case.
    QString said(const QString &source, const ConversionOptions &given = {},
                 std::size_t copies = 1) {
        ConversionOptions options = given;
        options.outputFolder = m_folder.path();
        options.flush = Flush::Never;
        const PDFFileInfo entry(source);
        const std::vector<const PDFFileInfo *> entries(copies, &entry);
        const QString target = m_folder.filePath(u"made.pdf"_s);
        QFile::remove(target);
        const PDFOutcome outcome = createPDF(entries, target, options, nullptr);
        if (outcome.close.status != CloseResult::Status::Written ||
            outcome.entries.size() != copies) {
            return outcome.close.reason;
        }
        QStringList texts;
        for (const Warning &warning : outcome.entries.back().warnings) {
            texts += warning.name() + u": "_s + warning.text;
        }
        return texts.join(u'\n');
    }

    /// A PDF with a page for each of `boxes`, which are what stands between the brackets.
    QString pdfOf(const QByteArrayList &boxes, const QByteArray &pageKeys = {}) {
        PdfFixture fixture;
        fixture.object(1, kCatalog).pages(4, static_cast<int>(boxes.size()));
        for (int i = 0; i < boxes.size(); ++i) {
            fixture.object(4 + i, "<< /Type /Page /Parent 2 0 R /MediaBox [" + boxes[i] + "] " +
                                      pageKeys + " >>");
        }
        const QString path = m_folder.filePath(u"source.pdf"_s);
        return fixture.write(path) ? path : QString();
    }

    QString textOf(int width, int height) {
        ConversionOptions options;
        options.textPage = {TextPageCustom, width, height, {}};
        return said(writeFile(m_folder.filePath(u"a.txt"_s), "a"), options);
    }

    static QString named(const QString &pages) {
        return u"page-size: Readers need not show pages beyond 3 to 14,400 units: "_s + pages;
    }

  private Q_SLOTS:
    void pagesOfAPdfBeyondTheLimitsAreNamed() {
        QCOMPARE(said(pdfOf({"0 0 14400 3", "0 0 100 2.5", "-1 0 14400 100", "10 10 0 0"})),
                 named(u"page 2 (100 x 2.5), page 3 (14401 x 100)"_s));
        QCOMPARE(PdfProbe(m_folder.filePath(u"made.pdf"_s)).box(u"MediaBox"_s, 3),
                 QRectF(-1, 0, 14401, 100));
    }

    void theFirstThreeAreNamedAndTheOthersCounted() {
        QCOMPARE(said(pdfOf({"0 0 1 1", "0 0 2 2", "0 0 1 1", "0 0 1 1", "0 0 1 1"})),
                 named(u"page 1 (1 x 1), page 2 (2 x 2), page 3 (1 x 1) and 2 more"_s));
    }

    void pagesAreCountedWithinTheirSource() {
        QCOMPARE(said(pdfOf({"0 0 9 9", "0 0 1 1"}), {}, 3), named(u"page 2 (1 x 1)"_s));
    }

    void unitsAreThoseOfThePage() {
        QCOMPARE(said(pdfOf({"0 0 14400 14400"}, "/UserUnit 10")), QString());
        QCOMPARE(said(pdfOf({"0 0 2 2"}, "/UserUnit 10")), named(u"page 1 (2 x 2)"_s));
    }

    void aTextPageBeyondTheLimitsIsNamed() {
        QCOMPARE(textOf(100, 14400), QString());
        QCOMPARE(textOf(100, 14401), named(u"page 1 (100 x 14401)"_s));
    }

    void aPictureSmallerThanTheLimitIsNamed() {
        QCOMPARE(said(writePng(m_folder.filePath(u"a.png"_s), 3, 3)), QString());
        QCOMPARE(said(writePng(m_folder.filePath(u"b.png"_s), 3, 2)), named(u"page 1 (3 x 2)"_s));
    }
};

FOLIOFORGE_TEST(PageSizesTest)
#include "PageSizesTest.moc"
