// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "support/TestUnit.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFAcroFormDocumentHelper.hh>
#include <qpdf/QPDFOutlineDocumentHelper.hh>

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace folioforge;
using test::opened;
using test::PdfFixture;
using test::PdfProbe;
using test::unflushed;

/// What the catalog of a merged document says of bookmarks, layers, forms, labels and versions.
class MergedCatalogTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    int m_number = 0;

    static inline const QByteArray kLongAppearance =
        "/DA (/F 9 Tf" + QByteArray(" 0 g").repeated(100) + ")";

    QString newPath() { return m_folder.filePath(u"%1.pdf"_s.arg(++m_number)); }

    /// A document of one page whose catalog holds `keys`.
    static PdfFixture withCatalog(const QByteArray &keys) {
        PdfFixture fixture;
        fixture.object(1, "<< /Type /Catalog /Pages 2 0 R " + keys + " >>").pages(4, 1);
        return fixture;
    }
    static PdfFixture withForm(const QByteArray &keys, const QByteArray &field = {}) {
        return withCatalog("/AcroForm << /Fields [20 0 R] " + keys + " >>")
            .object(20, "<< /FT /Tx /T (name) " + field + " >>");
    }

    QString saved(const PdfFixture &fixture) {
        const QString path = newPath();
        return fixture.write(path) ? path : QString();
    }
    /// The PDF of all of `sources`, read back with the PDF library alone.
    std::unique_ptr<QPDF> merged(const std::vector<PdfFixture> &sources) {
        const QString path = newPath();
        PDFContext context(path, unflushed());
        for (const PdfFixture &source : sources) {
            context.addDocument(saved(source));
        }
        const CloseResult result = context.close();
        if (result.status != CloseResult::Status::Written || !PdfProbe(path).isValid()) {
            QTest::qFail(qPrintable(result.reason), __FILE__, __LINE__);
        }
        return opened(path);
    }
    static QPDFObjectHandle catalogEntry(QPDF &document, const char *key, const char *inner) {
        auto entry = document.getRoot().getKey(key);
        return entry.isDictionary() ? entry.getKey(inner) : entry;
    }
    /// The names of layers in `list`.
    static QByteArrayList layersIn(QPDFObjectHandle list) {
        QByteArrayList names;
        for (QPDFObjectHandle layer : list.getArrayAsVector()) {
            names += QByteArray::fromStdString(layer.getKey("/Name").getStringValue());
        }
        return names;
    }

  private Q_SLOTS:
    void bookmarksThatStandInOthersComeLikeAllOthers() {
        const auto source =
            withCatalog("/Outlines << /First << /Title (1) /First 21 0 R /Last 21 0 R /Count 1 "
                        "/Next 20 0 R >> /Last 20 0 R >>")
                .object(20, "<< /Title (2) /Next << /Title (3) /Next << /Title (4) >> >> >>")
                .object(21, "<< /Title (1.1) >>");
        const auto document = merged({source, source});
        QByteArrayList titles;
        for (auto &item : QPDFOutlineDocumentHelper(*document).getTopLevelOutlines()) {
            titles += QByteArray::fromStdString(item.getTitle());
            QVERIFY(item.getObjectHandle().isIndirect());
            QCOMPARE(item.getKids().size(), titles.last() == "1" ? 1U : 0U);
        }
        QCOMPARE(titles.join(' '), "1 2 3 4 1 2 3 4");
        QCOMPARE(catalogEntry(*document, "/Outlines", "/Count").getIntValue(), 2 * 5);
    }

    void aClosedBookmarkIsOneLine() {
        const auto source = withCatalog("/Outlines << /First 20 0 R /Last 20 0 R >>")
                                .object(20, "<< /Title (Closed) /Count -3 >>");
        const auto document = merged({source, source});
        QCOMPARE(catalogEntry(*document, "/Outlines", "/Count").getIntValue(), 2LL);
    }

    void layersKeepTheirPlacesInEachList() {
        const auto source =
            withCatalog("/OCProperties << /OCGs [20 0 R 21 0 R 22 0 R] /D << /OFF [20 0 R] "
                        "/Locked [21 0 R] /Order [22 0 R 20 0 R] /RBGroups [[20 0 R 21 0 R]] /AS "
                        "[<< /Event /Print /Category [/Print] /OCGs [22 0 R] >>] >> >>")
                .object(20, "<< /Type /OCG /Name (a) >>")
                .object(21, "<< /Type /OCG /Name (b) >>")
                .object(22, "<< /Type /OCG /Name (c) >>");
        const auto document = merged({source, source});
        QCOMPARE(layersIn(catalogEntry(*document, "/OCProperties", "/OCGs")).join(), "abcabc");
        auto lists = catalogEntry(*document, "/OCProperties", "/D");
        QCOMPARE(layersIn(lists.getKey("/OFF")).join(), "aa");
        QCOMPARE(layersIn(lists.getKey("/Locked")).join(), "bb");
        QCOMPARE(layersIn(lists.getKey("/Order")).join(), "caca");
        QCOMPARE(layersIn(lists.getKey("/RBGroups").getArrayItem(1)).join(), "ab");
        auto automatic = lists.getKey("/AS");
        QCOMPARE(automatic.getArrayNItems(), 2);
        QCOMPARE(layersIn(automatic.getArrayItem(1).getKey("/OCGs")).join(), "c");
    }

    void aFormNeedsAppearancesWhereOneOfItsSourcesDid() {
        const PdfFixture plain = withForm({});
        const PdfFixture needy = withForm("/NeedAppearances true");
        const auto flag = [this](const std::vector<PdfFixture> &sources) {
            return catalogEntry(*merged(sources), "/AcroForm", "/NeedAppearances");
        };
        QVERIFY(flag({plain, needy, plain}).getBoolValue());
        QVERIFY(flag({plain, plain}).isNull());
    }

    void fieldsAreCalculatedInTheOrderOfTheSources() {
        const PdfFixture source = withForm("/CO [20 0 R]");
        const auto document = merged({source, source});
        const auto order = catalogEntry(*document, "/AcroForm", "/CO").getArrayAsVector();
        const auto fields = catalogEntry(*document, "/AcroForm", "/Fields").getArrayAsVector();
        QCOMPARE(order.size(), 2U);
        QVERIFY(order[0].isSameObjectAs(fields.at(0)));
        QVERIFY(order[1].isSameObjectAs(fields.at(1)));
    }

    void theDefaultsOfAFormGoToTheFieldsThatHaveNone() {
        const QByteArray defaults = "/DA (/F 9 Tf) /Q 2";
        const auto document =
            merged({withForm(defaults), withForm(defaults, "/DA (/F 7 Tf) /Q 1")});
        const auto fields = catalogEntry(*document, "/AcroForm", "/Fields").getArrayAsVector();
        auto bare = fields.at(0);
        auto own = fields.at(1);
        QCOMPARE(bare.getKey("/DA").getStringValue(), std::string("/F 9 Tf"));
        QCOMPARE(bare.getKey("/Q").getIntValue(), 2LL);
        QCOMPARE(own.getKey("/DA").getStringValue(), std::string("/F 7 Tf"));
        QCOMPARE(own.getKey("/Q").getIntValue(), 1LL);
    }

    void fieldsOfOneNameAreNumberedFromTwo() {
        const PdfFixture source = withForm({});
        const PdfFixture numbered = withForm({}).object(20, "<< /FT /Tx /T (name_2) >>");
        const auto document = merged({source, source, source, numbered});
        QByteArrayList names;
        for (QPDFObjectHandle field :
             catalogEntry(*document, "/AcroForm", "/Fields").getArrayAsVector()) {
            names += QByteArray::fromStdString(field.getKey("/T").getUTF8Value());
        }
        QCOMPARE(names.join(' '), "name name_2 name_3 name_2_2");
    }

    void resourcesOfOneNameAreNumberedFromTwo() {
        const QByteArray resources = "/DR << /Font << /F 3 0 R /G 3 0 R >> >> /DA (/F 9 Tf)";
        const auto document = merged({withForm(resources), withForm(resources)});
        auto fonts = catalogEntry(*document, "/AcroForm", "/DR").getKey("/Font");
        QByteArrayList names;
        for (const auto &[name, font] : fonts.getDictAsMap()) {
            names += QByteArray::fromStdString(name);
        }
        QCOMPARE(names.join(' '), "/F /F_2 /G /G_2");
        const auto fields = catalogEntry(*document, "/AcroForm", "/Fields").getArrayAsVector();
        auto second = fields.at(1);
        QCOMPARE(second.getKey("/DA").getStringValue(), std::string("/F_2 9 Tf"));
    }

    void aTableUnderManyUnknownNamesIsTakenOnceAndUnderKnownOnesEachTime() {
        const QByteArray names = "/A 30 0 R /B 30 0 R /C 30 0 R /Font 30 0 R /XObject 30 0 R";
        const auto document =
            merged({withForm("/DR << " + names + " >>").object(30, "<< /F 3 0 R >>")});
        QByteArrayList kept;
        for (const auto &[name, table] :
             catalogEntry(*document, "/AcroForm", "/DR").getDictAsMap()) {
            kept += QByteArray::fromStdString(name);
        }
        QCOMPARE(kept.join(' '), "/A /Font /XObject");
    }

    void aDefaultAppearanceFollowsTheRenamesOfItsOwnCategories() {
        const PdfFixture first = withForm(
            "/DR << /Font << /F 3 0 R >> /ColorSpace << /C /DeviceRGB /F /DeviceRGB >> >>");
        const PdfFixture second =
            withForm("/DR << /Font << /C 3 0 R /A#20B 3 0 R >> /ColorSpace << /C /DeviceGray >> >> "
                     "/DA (/F cs /C 9 Tf /C cs \\(/C\\) Tj /A#20B 7 Tf)");
        const PdfFixture third = withForm("/DR << /Font << /A#20B 3 0 R /F 3 0 R >> >> /DA (/A#20B "
                                          "7 Tf /F 9 Tf /F cs)");
        const auto document = merged({first, second, third});
        const auto fields = catalogEntry(*document, "/AcroForm", "/Fields").getArrayAsVector();
        const auto appearance = [&](std::size_t field) {
            return QPDFObjectHandle(fields.at(field)).getKey("/DA").getStringValue();
        };
        QCOMPARE(appearance(1), std::string("/F cs /C 9 Tf /C_2 cs (/C) Tj /A#20B 7 Tf"));
        QCOMPARE(appearance(2), std::string("/A#20B_2 7 Tf /F_2 9 Tf /F cs"));
    }

    void fieldsThatShareALongAppearanceShareTheRenamedOne_data() {
        QTest::addColumn<QByteArray>("ofForm");
        QTest::addColumn<QByteArray>("ofFields");
        QTest::newRow("of the form") << kLongAppearance << QByteArray();
        QTest::newRow("an object") << QByteArray() << QByteArray("/DA 22 0 R");
    }
    void fieldsThatShareALongAppearanceShareTheRenamedOne() {
        QFETCH(QByteArray, ofForm);
        QFETCH(QByteArray, ofFields);
        const QByteArray field = "<< /FT /Tx " + ofFields + " /T ";
        const PdfFixture source =
            withCatalog("/AcroForm << /Fields [20 0 R 21 0 R] /DR << /Font << /F 3 0 R >> >> " +
                        ofForm + " >>")
                .object(20, field + "(one) >>")
                .object(21, field + "(two) >>")
                .object(22, kLongAppearance.mid(4));
        const auto document = merged({source, source});
        const auto fields = catalogEntry(*document, "/AcroForm", "/Fields").getArrayAsVector();
        auto third = fields.at(2);
        auto fourth = fields.at(3);
        QCOMPARE(third.getKey("/DA").getStringValue().substr(0, 9), std::string("/F_2 9 Tf"));
        QVERIFY(third.getKey("/DA").isIndirect());
        QVERIFY(third.getKey("/DA").isSameObjectAs(fourth.getKey("/DA")));
    }

    void labelsBehindTheLastPageAreLeftOut() {
        const auto document =
            merged({withCatalog("/PageLabels << /Nums [0 << /S /r >> 1 << /S /a >>] >>")});
        QCOMPARE(catalogEntry(*document, "/PageLabels", "/Nums").getArrayNItems(), 2);
    }

    void aPageBehindALabelledDocumentIsNumberedByItsPlace() {
        const QString path = newPath();
        PDFContext context(path, unflushed());
        context.addDocument(saved(withCatalog("/PageLabels << /Nums [0 << /S /r >>] >>")));
        context.beginPage(QRectF(0, 0, 100, 100));
        context.endPage();
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        const auto document = opened(path);
        auto labels = catalogEntry(*document, "/PageLabels", "/Nums").getArrayAsVector();
        QCOMPARE(labels.size(), 4U);
        QCOMPARE(labels[2].getIntValue(), 1LL);
        QCOMPARE(labels[3].getKey("/St").getIntValue(), 2LL);
    }

    void labelsOfPagesThatAreTakenBackGoWithThem() {
        const QString path = newPath();
        PDFContext context(path, unflushed());
        context.addDocument(saved(withCatalog("/PageLabels << /Nums [0 << /S /r >>] >>")));
        const PDFContext::Mark mark = context.mark();
        context.beginPage(QRectF(0, 0, 100, 100));
        context.endPage();
        context.rollBack(mark);
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        const auto document = opened(path);
        QCOMPARE(catalogEntry(*document, "/PageLabels", "/Nums").getArrayNItems(), 2);
    }

    void theVersionIsTheHighestOfTheSources() {
        const PdfFixture old = withCatalog({}).header("%PDF-1.3\n");
        const PdfFixture recent = withCatalog({}).header("%PDF-2.0\n");
        QCOMPARE(merged({old, recent, old})->getPDFVersion(), std::string("2.0"));
    }
};

FOLIOFORGE_TEST(MergedCatalogTest)
#include "MergedCatalogTest.moc"
