// SPDX-License-Identifier: Apache-2.0

#include "MergeCase.h"
#include "pdf/import/SourceDocument.h"
#include "support/TestUnit.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// What the forms of documents keep in a copy, and how they stand beside each other.
class FormMergeTest : public QObject, protected MergeCase {
    Q_OBJECT

    /// Two pages, objects 4 and 5, that show the widgets 20 and 21; the form says `keys`.
    static PdfFixture withForm(const QByteArray &keys, const QByteArray &catalogKeys = {}) {
        PdfFixture fixture;
        fixture.pages(4, 2);
        fixture.object(1, "<< /Type /Catalog /Pages 2 0 R /AcroForm << " + keys + " >> " +
                              catalogKeys + " >>");
        for (const int page : {4, 5}) {
            fixture.object(page, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] /Annots [" +
                                     QByteArray::number(page + 16) + " 0 R] >>");
        }
        return fixture.object(20, widget("/FT /Tx /T (one)"))
            .object(21, widget("/FT /Tx /T (two)"));
    }
    static QByteArray widget(const QByteArray &keys) {
        return "<< /Type /Annot /Subtype /Widget /F 4 /Rect [0 0 90 40] " + keys + " >>";
    }
    static PdfFixture withFields() { return withForm("/Fields [20 0 R 21 0 R]"); }
    static PdfFixture withXfa(const QByteArray &formKeys, const QByteArray &catalogKeys = {}) {
        return withForm(formKeys, catalogKeys).stream(30, {}, "<xdp:xdp/>");
    }

    /// The widgets that qpdf finds on the pages, each as "page type name=value/default state".
    static QStringList widgetsOf(const QString &path) {
        const auto json = QJsonDocument::fromJson(
            runTool(u"qpdf"_s, {u"--json"_s, u"--json-key=acroform"_s, path}).out);
        QStringList rows;
        for (const auto &value : json[u"acroform"_s][u"fields"_s].toArray()) {
            const QJsonObject field = value.toObject();
            rows += u"%1 %2 %3=%4/%5 %6"_s.arg(field[u"pageposfrom1"_s].toInt())
                        .arg(field[u"fieldtype"_s].toString(), field[u"fullname"_s].toString(),
                             field[u"value"_s].toString(), field[u"defaultvalue"_s].toString(),
                             field[u"annotation"_s][u"appearancestate"_s].toString());
        }
        return rows;
    }
    static QPDFObjectHandle form(QPDF &document) { return document.getRoot().getKey("/AcroForm"); }
    /// The names of the fields that the form lists.
    static QByteArrayList names(QPDF &document) {
        QByteArrayList names;
        for (QPDFObjectHandle field : form(document).getKey("/Fields").getArrayAsVector()) {
            names += QByteArray::fromStdString(field.getKey("/T").getUTF8Value());
        }
        return names;
    }
    /// Whether a document is refused as a form whose pages another program makes, shown or added.
    bool isRefused(const PdfFixture &source) {
        const QString path = saved(source);
        const auto isRefusedBy = [](const auto &work) {
            try {
                work();
            } catch (const Error &error) {
                return error.reason() ==
                       u"It is a dynamic XFA form, whose pages only a program for such forms makes";
            }
            return false;
        };
        return isRefusedBy([&] { summarizePDF(path); }) &&
               isRefusedBy([&] { PDFContext(newPath(), unflushed()).addDocument(path); });
    }
    /// The last of what is said while `sources` are added.
    QStringList said(const QStringList &sources) {
        PDFContext context(newPath(), unflushed());
        QStringList said;
        for (const QString &source : sources) {
            said.clear();
            for (const Warning &warning : context.addDocument(source).warnings) {
                said += warning.name() + u": "_s + warning.text;
            }
        }
        return said;
    }

  private Q_SLOTS:
    void aFormWhosePagesAnotherProgramMakesIsRefused_data() {
        QTest::addColumn<QByteArray>("form");
        QTest::addColumn<QByteArray>("catalog");
        QTest::newRow("to be rendered without fields")
            << QByteArray("/XFA 30 0 R /Fields []") << QByteArray("/NeedsRendering true");
        QTest::newRow("to be rendered") << QByteArray("/XFA 30 0 R /Fields [20 0 R 21 0 R]")
                                        << QByteArray("/NeedsRendering true");
    }
    void aFormWhosePagesAnotherProgramMakesIsRefused() {
        QFETCH(QByteArray, form);
        QFETCH(QByteArray, catalog);
        QVERIFY(isRefused(withXfa(form, catalog)));
    }

    void anXfaFormWithoutFieldsIsRefusedWhereAllThatItShowsIsOnePage_data() {
        QTest::addColumn<int>("pages");
        QTest::addColumn<QByteArray>("form");
        QTest::addColumn<QByteArray>("annotation");
        QTest::addColumn<bool>("refused");
        const QByteArray note = "<< /Type /Annot /Subtype /Text /Rect [0 0 9 9] >>";
        const QByteArray empty = "/XFA 30 0 R /Fields []";
        QTest::newRow("without fields") << 1 << empty << note << true;
        QTest::newRow("without a list") << 1 << QByteArray("/XFA [(a) 30 0 R]") << note << true;
        QTest::newRow("a widget") << 1 << empty << widget("/FT /Tx /T (a)") << false;
        QTest::newRow("two pages") << 2 << empty << note << false;
    }
    void anXfaFormWithoutFieldsIsRefusedWhereAllThatItShowsIsOnePage() {
        QFETCH(int, pages);
        QFETCH(QByteArray, form);
        QFETCH(QByteArray, annotation);
        QFETCH(bool, refused);
        PdfFixture source = withXfa(form);
        source.object(2, "<< /Type /Pages /Kids [4 0 R 5 0 R] /Count 2 >>").object(20, annotation);
        source.object(21, "<< /Type /Annot /Subtype /Text /Rect [0 0 9 9] >>");
        if (pages == 1) {
            source.object(2, "<< /Type /Pages /Kids [4 0 R] /Count 1 >>");
        }
        QCOMPARE(isRefused(source), refused);
    }

    void aFormBesideItsXfaStaysAFormWithoutIt() {
        const QString path =
            saved(withXfa("/XFA 30 0 R /Fields [20 0 R 21 0 R]", "/NeedsRendering false"));
        QCOMPARE(summarizePDF(path).pageCount, 2);
        QCOMPARE(said({path}), QStringList{u"pdf-parts-left: Not carried over: an XFA form"_s});
        const QString result = merged({path}, true);
        QCOMPARE(widgetsOf(result), widgetsOf(path));
        const QByteArray json = PdfProbe(result).json();
        QVERIFY(!json.contains("/XFA"));
        QVERIFY(!json.contains("xdp"));
        QVERIFY(!json.contains("/NeedsRendering"));
    }

    void anEmptyXfaEntryIsNoForm() {
        QCOMPARE(summarizePDF(saved(withForm("/XFA [] /Fields []"))).pageCount, 2);
        QCOMPARE(summarizePDF(saved(withForm("/Fields []", "/NeedsRendering true"))).pageCount, 2);
    }

    void aFormOfWhichNoFieldIsTakenHasAnEmptyList() {
        PdfFixture source = withForm("/Fields [20 0 R] /DR << /Font << /F1 3 0 R >> >>");
        source.object(5, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 100] >>");
        const QString path = newPath();
        PDFContext context(path, unflushed());
        QCOMPARE(context.addDocument(saved(source), {"2", {}}).pages, 1);
        QCOMPARE(context.close().status, CloseResult::Status::Written);
        // The list is required (ISO 32000-1, table 218); poppler complains where there is none.
        QVERIFY(form(*opened(path)).getKey("/Fields").isArray());
    }

    void valuesAndDefaultsStay() {
        PdfFixture source = withFields();
        source.object(20, widget("/FT /Tx /T (one) /V (Anna) /DV (Bert) /MaxLen 9"));
        source.object(21, widget("/FT /Ch /Ff 131072 /T (two) /Opt [(a) [(b) (shown)]] /V (b) "
                                 "/DV (a)"));
        const QString path = saved(source);
        const QStringList expected{u"1 /Tx one=u:Anna/u:Bert "_s, u"2 /Ch two=u:b/u:a "_s};
        QCOMPARE(widgetsOf(path), expected);
        QCOMPARE(widgetsOf(merged({path})), expected);
    }

    void aRadioGroupOverTwoPagesStaysOneField() {
        PdfFixture source = withForm("/Fields [22 0 R]");
        const QByteArray button = "/Parent 22 0 R /AP << /N << /Off 23 0 R ";
        source.object(20, widget(button + "/a 23 0 R >> >> /AS /Off"));
        source.object(21, widget(button + "/b 23 0 R >> >> /AS /b"));
        source.object(22, "<< /FT /Btn /Ff 49152 /T (pick) /V /b /Kids [20 0 R 21 0 R] >>");
        source.stream(23, "/Type /XObject /Subtype /Form /BBox [0 0 9 9]", {});
        const QString path = saved(source);
        QCOMPARE(widgetsOf(merged({path, path})),
                 (QStringList{u"1 /Btn pick=/b/ /Off"_s, u"2 /Btn pick=/b/ /b"_s,
                              u"3 /Btn pick_2=/b/ /Off"_s, u"4 /Btn pick_2=/b/ /b"_s}));
    }

    void aFieldInheritsFromTheOnesAboveIt() {
        PdfFixture source = withForm("/Fields [22 0 R]");
        source.object(20, widget("/Parent 22 0 R /T (street)"));
        source.object(21, widget("/Parent 23 0 R /T (name)"));
        source.object(22, "<< /FT /Tx /T (address) /V (shared) /Kids [20 0 R 23 0 R] >>");
        source.object(23, "<< /Parent 22 0 R /T (city) /V (own) /Kids [21 0 R] >>");
        const QString path = saved(source);
        QCOMPARE(
            widgetsOf(merged({path, path})),
            (QStringList{u"1 /Tx address.street=u:shared/ "_s, u"2 /Tx address.city.name=u:own/ "_s,
                         u"3 /Tx address_2.street=u:shared/ "_s,
                         u"4 /Tx address_2.city.name=u:own/ "_s}));
    }

    void aFieldWithoutAWidgetStays() {
        PdfFixture source = withForm("/Fields [20 0 R 22 0 R << /FT /Tx /T (direct) /V (d) >>]");
        source.object(22, "<< /FT /Tx /T (hidden) /V (total) >>");
        const auto document = opened(merged({saved(source)}));
        QCOMPARE(names(*document).join(' '), "one hidden direct two");
        auto fields = form(*document).getKey("/Fields");
        QCOMPARE(fields.getArrayItem(1).getKey("/V").getStringValue(), std::string("total"));
        QVERIFY(fields.getArrayItem(2).isIndirect());
    }

    void aWidgetThatNoFormListsIsListed() {
        PdfFixture source = withForm("/Fields [20 0 R]");
        source.object(21, widget("/Parent 22 0 R /T (inner)"));
        source.object(22, "<< /FT /Tx /T (outer) /V (kept) /Kids [21 0 R] >>");
        const QString path = saved(source);
        const QString result = merged({path, path});
        QCOMPARE(names(*opened(result)).join(' '), "one outer one_2 outer_2");
        QCOMPARE(widgetsOf(result).last(), u"4 /Tx outer_2.inner=u:kept/ "_s);
        PdfFixture bare = withForm({});
        bare.object(1, kCatalog);
        QCOMPARE(names(*opened(merged({saved(bare)}))).join(' '), "one two");
    }

    void aWidgetThatIsNoFieldIsNotListed() {
        PdfFixture source = withForm("/Fields [20 0 R]");
        source.object(21, widget("/Parent 22 0 R")).object(22, "<< /T (a) /Parent 21 0 R >>");
        QCOMPARE(names(*opened(mergedOfOdd({saved(source)}))).join(' '), "one");
        QCOMPARE(
            names(*opened(mergedOfOdd({saved(source.object(21, widget("/T (a)")))}))).join(' '),
            "one");
    }

    void aNewNameIsNoneThatItsOwnFormHas() {
        const QString first = saved(withFields());
        const QString second = saved(withFields().object(21, widget("/FT /Tx /T (one_2)")));
        QCOMPARE(names(*opened(merged({first, second}))).join(' '), "one two one_3 one_2");
    }

    void namesUnderAFieldWithoutANameStayApart() {
        PdfFixture source = withForm("/Fields [22 0 R]");
        source.object(20, widget("/FT /Tx /Parent 22 0 R /T (a)"));
        source.object(21, widget("/FT /Tx /Parent 22 0 R /T (b)"));
        source.object(22, "<< /Kids [20 0 R 21 0 R] >>");
        const QString path = saved(source);
        QCOMPARE(
            widgetsOf(merged({path, path})),
            (QStringList{u"1 /Tx a=/ "_s, u"2 /Tx b=/ "_s, u"3 /Tx a_2=/ "_s, u"4 /Tx b_2=/ "_s}));
    }

    void fieldsThatAreRenamedAreNamed() {
        const QString path = saved(withFields());
        const QString one = saved(withFields().object(21, widget("/FT /Tx /T (three)")));
        QCOMPARE(said({path}), QStringList());
        QCOMPARE(said({path, one}),
                 QStringList{u"fields-renamed: 1 form field is renamed, since another document has "
                             "one of its name: \"one\" is now \"one_2\"; scripts are left as they "
                             "are"_s});
        QCOMPARE(said({path, one, path}),
                 QStringList{u"fields-renamed: 2 form fields are renamed, since another document "
                             "has fields of their names, such as \"one\" is now \"one_3\"; scripts "
                             "are left as they are"_s});
    }

    void actionsFollowTheNamesOfFields() {
        PdfFixture source = withForm("/Fields [20 0 R 21 0 R 22 0 R]");
        source.object(20, widget("/FT /Btn /Ff 65536 /T (one) /A 23 0 R"));
        source.object(22, "<< /FT /Tx /T (a) /AA << /F << /S /JavaScript /JS (one) >> >> >>");
        source.object(23, "<< /S /ResetForm /Fields [(one) (a.b) 21 0 R (other)] /Next [<< /S "
                          "/Hide /T (two) >> << /S /SubmitForm /F (x) /Fields [(two)] >>] >>");
        const QString path = saved(source);
        const auto document = opened(merged({path, path}));
        const auto resetOf = [&](int field) {
            return form(*document).getKey("/Fields").getArrayItem(field).getKey("/A");
        };
        const auto text = [](QPDFObjectHandle object) {
            return QByteArray::fromStdString(object.getUTF8Value());
        };
        auto first = resetOf(0).getKey("/Fields");
        QCOMPARE(text(first.getArrayItem(0)), "one");
        auto second = resetOf(3);
        auto fields = second.getKey("/Fields");
        QCOMPARE(text(fields.getArrayItem(0)), "one_2");
        QCOMPARE(text(fields.getArrayItem(1)), "a_2.b");
        QCOMPARE(text(fields.getArrayItem(2).getKey("/T")), "two_2");
        QCOMPARE(text(fields.getArrayItem(3)), "other");
        auto next = second.getKey("/Next");
        QCOMPARE(text(next.getArrayItem(0).getKey("/T")), "two_2");
        QCOMPARE(text(next.getArrayItem(1).getKey("/Fields").getArrayItem(0)), "two_2");
        auto script = form(*document).getKey("/Fields").getArrayItem(5).getKey("/AA").getKey("/F");
        QCOMPARE(text(script.getKey("/JS")), "one");
    }

    void fieldsThatShareAListOfThemselvesAreReadOnce() {
        PdfFixture source = withForm("/Fields 30 0 R");
        source.object(30, "[<< /FT /Tx /T (a) /Kids 30 0 R >> << /T (b) /Kids 30 0 R >>]");
        QCOMPARE(names(*opened(mergedOfOdd({saved(source)}))).join(' '), "a b one two");
    }

    void aFieldThatIsListedTwiceIsRenamedOnce() {
        const QByteArray defaults = "/DA (/F 9 Tf) /DR << /Font << /F 3 0 R >> >>";
        const QByteArray further = "/DA (/F 9 Tf) /DR << /Font << /F 3 0 R /F_2 30 0 R >> >>";
        PdfFixture twice = withForm("/Fields [20 0 R 20 0 R 21 0 R] " + further);
        twice.object(30, "<< /Type /Font /Subtype /Type1 /BaseFont /Courier >>");
        const QString first = saved(withForm("/Fields [20 0 R 21 0 R] " + defaults));
        const auto document = opened(mergedOfOdd({first, saved(twice)}));
        auto fields = form(*document).getKey("/Fields");
        QCOMPARE(names(*document).join(' '), "one two one_2 one_2 two_2");
        auto appearance = fields.getArrayItem(2).getKey("/DA");
        QCOMPARE(appearance.getStringValue(), std::string("/F_2 9 Tf"));
        auto fonts = form(*document).getKey("/DR").getKey("/Font");
        QCOMPARE(fonts.getKey("/F_2").getKey("/BaseFont").getName(), std::string("/Helvetica"));
    }

    void actionsFollowANameThatHoldsADot() {
        PdfFixture source = withForm("/Fields [20 0 R 21 0 R]");
        source.object(20, widget("/FT /Btn /T (a.b) /A << /S /ResetForm /Fields [(a.b)] >>"));
        const QString path = saved(source);
        const auto document = opened(merged({path, path}));
        auto second = form(*document).getKey("/Fields").getArrayItem(2);
        QCOMPARE(second.getKey("/T").getUTF8Value(), std::string("a.b_2"));
        auto reset = second.getKey("/A").getKey("/Fields");
        QCOMPARE(reset.getArrayItem(0).getUTF8Value(), std::string("a.b_2"));
    }

    void actionsThatShareAListOfFieldsStillDo() {
        PdfFixture source = withForm("/Fields [20 0 R 21 0 R]");
        for (const int field : {20, 21}) {
            source.object(field, widget("/FT /Btn /T (f" + QByteArray::number(field) +
                                        ") /A << /S /ResetForm /Fields 30 0 R >>"));
        }
        source.object(30, "[(f20) (f21)]");
        const QString path = saved(source);
        for (const QStringList &sources : {QStringList{path}, QStringList{path, path}}) {
            const auto document = opened(merged(sources));
            const auto fields = form(*document).getKey("/Fields").getArrayAsVector();
            const auto listOf = [&](std::size_t field) {
                return QPDFObjectHandle(fields.at(field)).getKey("/A").getKey("/Fields");
            };
            const std::size_t last = fields.size() - 1;
            QVERIFY(listOf(last).isSameObjectAs(listOf(last - 1)));
            QCOMPARE(listOf(last).getArrayItem(1).getUTF8Value(),
                     QPDFObjectHandle(fields.back()).getKey("/T").getUTF8Value());
        }
    }

    void theCalculationOrderOfAllSourcesIsJoined() {
        const PdfFixture source = withForm("/Fields [20 0 R 21 0 R] /CO [21 0 R 7 20 0 R 4 0 R]");
        const QString path = saved(source);
        const auto document = opened(merged({path, path}));
        QByteArrayList order;
        for (QPDFObjectHandle field : form(*document).getKey("/CO").getArrayAsVector()) {
            order += QByteArray::fromStdString(field.getKey("/T").getUTF8Value());
        }
        QCOMPARE(order.join(' '), "two one two_2 one_2");
    }

    void signatureFieldsAreStillAnnouncedAndNothingIsLocked() {
        const auto flags = [this](const QByteArray &source) {
            const QString path = saved(withForm("/Fields [20 0 R] /SigFlags " + source));
            return form(*opened(merged({path}))).getKey("/SigFlags");
        };
        QCOMPARE(flags("3").getIntValue(), 1LL);
        QVERIFY(flags("2").isNull());
    }

    void defaultResourcesStayWithoutAField() {
        PdfFixture source = withForm("/Fields [] /DR << /Font << /Helv 3 0 R >> >>");
        source.object(20, "<< /Type /Annot /Subtype /FreeText /DA (/Helv 9 Tf) /Rect [0 0 9 9] >>")
            .object(21, "<< /Type /Annot /Subtype /Text /Rect [0 0 9 9] >>");
        const auto document = opened(merged({saved(source)}));
        QVERIFY(form(*document).getKey("/DR").getKey("/Font").hasKey("/Helv"));
    }

    void anotherProgramReadsTheSameFields() {
        const QString path = saved(withForm("/Fields [20 0 R 21 0 R] /DA (/Helv 9 Tf)"));
        QCOMPARE(widgetsOf(path).size(), 2);
        QCOMPARE(widgetsOf(merged({path})), widgetsOf(path));
    }
};

FOLIOFORGE_TEST(FormMergeTest)
#include "FormMergeTest.moc"
