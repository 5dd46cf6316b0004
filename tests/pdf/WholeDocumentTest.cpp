// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What stays of the catalog of a document that is the only source.
class WholeDocumentTest : public QObject, protected MergeCase {
    Q_OBJECT

    static PdfFixture withCatalog(const QByteArray &keys) {
        PdfFixture fixture;
        fixture.object(1, "<< /Type /Catalog /Pages 2 0 R " + keys + " >>").pages(4, 1);
        return fixture;
    }
    std::unique_ptr<QPDF> whole(const PdfFixture &source) {
        return opened(merged({saved(source)}, true));
    }
    static QByteArray entryOf(QPDF &document, const char *key) {
        return QByteArray::fromStdString(document.getRoot().getKey(key).unparseResolved());
    }

  private Q_SLOTS:
    void entriesThatNoOtherTopicOwnsStay_data() {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("viewer preferences")
            << QByteArray("/ViewerPreferences") << QByteArray("<< /FitWindow true >>");
        QTest::newRow("page mode") << QByteArray("/PageMode") << QByteArray("/UseThumbs");
        QTest::newRow("page layout") << QByteArray("/PageLayout") << QByteArray("/TwoColumnLeft");
        QTest::newRow("base of links")
            << QByteArray("/URI") << QByteArray("<< /Base (http://example.org/) >>");
    }
    void entriesThatNoOtherTopicOwnsStay() {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, value);
        QCOMPARE(entryOf(*whole(withCatalog(key + ' ' + value)), key.constData()), value);
    }
};

FOLIOFORGE_TEST(WholeDocumentTest)
#include "WholeDocumentTest.moc"
