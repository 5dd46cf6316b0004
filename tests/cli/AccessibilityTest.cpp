// SPDX-License-Identifier: Apache-2.0

#include "CommandLineCase.h"
#include "support/PhotoPage.h"
#include "support/TaggedPage.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge::test;

/// The options of tags, and what they say to those who do not see the pages.
class AccessibilityTest : public QObject, private CommandLineCase {
    Q_OBJECT

    QString picture(const char *name) const {
        const QImage image = photo(60, 40);
        return image.save(path(name)) ? path(name) : QString();
    }
    QString structureOf(const char *name) const { return PdfProbe(path(name)).structureText(); }
    QByteArray jsonOf(const char *name) const { return PdfProbe(path(name)).json(); }

  private Q_SLOTS:
    void init() { setUp(); }

    void textsAreTagged() {
        const ToolRun run = merge("out/a.pdf", {u"--tagged"_s, text("a.txt", "one\ntwo\n")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(structureOf("out/a.pdf"), u"Document \"a.txt\"\n  P (block)\n    \"one\"\n"
                                           "  P (block)\n    \"two\"\n"_s);
    }

    void theLanguageIsTheSystemsOrTheOneThatIsGiven() {
        const QString words = text("a.txt");
        QCOMPARE(runTool(u"env"_s, {u"LC_ALL=C.UTF-8"_s, kProgram, u"--tagged"_s, u"--merge"_s,
                                    path("out/en.pdf"), words})
                     .exitCode,
                 0);
        QVERIFY(jsonOf("out/en.pdf").contains("\"/Lang\": \"u:en\""));
        QCOMPARE(merge("out/fr.pdf", {u"--tagged"_s, u"--lang"_s, u"fr-CA"_s, words}).exitCode, 0);
        QVERIFY(jsonOf("out/fr.pdf").contains("\"/Lang\": \"u:fr-CA\""));
    }

    void whatIsNoLanguageIsRefused_data() {
        QTest::addColumn<QString>("tag");
        for (const QString &tag :
             {u"de_AT"_s, u"German language"_s, u""_s, u"1a"_s, u"abcdefghi"_s}) {
            QTest::newRow(qPrintable(u'"' + tag + u'"')) << tag;
        }
    }
    void whatIsNoLanguageIsRefused() {
        QFETCH(QString, tag);
        const ToolRun run = merge("out/a.pdf", {u"--lang="_s + tag, text("a.txt")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.contains("--lang: "));
    }

    void aListDescribesPicturesAndNamesWhatItDoesNotFind() {
        const QString list =
            writeFile(path("alt.tsv"), "a.png\tA meadow \xE2\x80\x93 in May\r\n\nz.png\tNothing\n");
        const ToolRun run = merge("out/a.pdf", {u"--alt-file"_s, list, picture("a.png")});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.err.trimmed(), "folioforge-cli: --alt-file: No input is called \"z.png\"");
        QVERIFY(jsonOf("out/a.pdf").contains("\"/Alt\": \"u:A meadow \xE2\x80\x93 in May\""));
    }

    void aListThatCannotBeReadIsRefused_data() {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<QByteArray>("said");
        QTest::newRow("no tab") << QByteArray("a\tb\nc d\n") << QByteArray("line 2 is not");
        QTest::newRow("no name") << QByteArray("\tb\n") << QByteArray("line 1 is not");
        QTest::newRow("no description") << QByteArray("a\t \n") << QByteArray("line 1 is not");
        QTest::newRow("no text") << QByteArray("a\t\xFF\xFE\xFD\n") << QByteArray("as UTF-8");
    }
    void aListThatCannotBeReadIsRefused() {
        QFETCH(QByteArray, list);
        QFETCH(QByteArray, said);
        const ToolRun run = merge(
            "out/a.pdf", {u"--alt-file"_s, writeFile(path("alt.tsv"), list), picture("a.png")});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains("--alt-file: ") && run.err.contains(said), run.err);
        QCOMPARE(merge("out/a.pdf", {u"--alt-file"_s, path("none"), picture("a.png")}).exitCode, 2);
    }

    void aPageWithALinkIsFoundToBeItsSource() {
        PdfFixture source = headingAndText("Heading", "Text",
                                           "/ParentTree << /Nums [7 [12 0 R 13 0 R] 8 13 0 R] >>");
        source.object(13, element("P", 11, "[1 << /Type /OBJR /Obj 20 0 R >>]"));
        source.object(20, "<< /Type /Annot /Subtype /Link /Rect [10 10 50 20] /StructParent 8 "
                          "/Contents (x) /A << /S /URI /URI (http://example.org) >> >>");
        QByteArray page = source.objects().at(4);
        source.object(4, page.replace("/Contents", "/Annots [20 0 R] /Contents"));
        QVERIFY(source.write(path("in.pdf")));
        const ToolRun run = convert({u"--accessible"_s, u"--title"_s, u"T"_s, u"--lang"_s, u"en"_s,
                                     u"--verify"_s, path("in.pdf")});
        QVERIFY2(run.exitCode == 0, run.err);
        QVERIFY(jsonOf("out/in.pdf").contains("\"/Tabs\": \"/S\""));
    }

    void compressionKeepsTags() {
        const QStringList inputs{text("a.txt", "one\ntwo\n"), picture("b.jpg")};
        QCOMPARE(merge("out/whole.pdf", QStringList(u"--tagged"_s) + inputs).exitCode, 0);
        QCOMPARE(
            merge("out/small.pdf", QStringList{u"--tagged"_s, u"--compress"_s, u"20:20"_s} + inputs)
                .exitCode,
            0);
        QVERIFY(QFileInfo(path("out/small.pdf")).size() < QFileInfo(path("out/whole.pdf")).size());
        QStringList whole = structureOf("out/whole.pdf").split(u'\n');
        QStringList small = structureOf("out/small.pdf").split(u'\n');
        whole.sort(); // Attributes have no order.
        small.sort();
        QCOMPARE(small, whole);
        QVERIFY(PdfProbe(path("out/small.pdf")).isValid());
    }

    void pdfsWithoutTagsAreRefusedByNameWhereTheStandardIsAskedFor() {
        const QString untagged = writePdf(path("plain.pdf"), 1);
        const ToolRun run = merge("out/a.pdf", {u"--accessible"_s, text("a.txt"), untagged});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("plain.pdf: It has no structure tags, which PDF/UA asks for"),
                 run.err);
        QVERIFY(headingAndText("a", "b").write(path("tagged.pdf")));
        QCOMPARE(merge("out/b.pdf", {u"--accessible"_s, path("tagged.pdf")}).exitCode, 0);
    }

    void theStandardGoesWithThatForArchives() {
        const ToolRun run =
            merge("out/a.pdf", {u"--accessible"_s, u"--archive"_s, u"pdfa-2a"_s, text("a.txt")});
        QCOMPARE(run.exitCode, 0);
        const QByteArray packet = runTool(u"mutool"_s, {u"show"_s, u"-b"_s, path("out/a.pdf"),
                                                        u"trailer/Root/Metadata"_s})
                                      .out;
        QVERIFY(packet.contains("<pdfuaid:part>1</pdfuaid:part>"));
        QVERIFY(packet.contains("<pdfaid:part>2</pdfaid:part>"));
        const ToolRun checked =
            runTool(python(), {inSource(u"tests/support/archive/check-archive"_s), u"2a"_s,
                               path("out/a.pdf")});
        QVERIFY2(checked.exitCode == 0, checked.out + checked.err);
        QCOMPARE(
            merge("out/b.pdf", {u"--accessible"_s, u"--archive"_s, u"pdfa-1b"_s, text("a.txt")})
                .exitCode,
            2);
    }
};

FOLIOFORGE_TEST(AccessibilityTest)
#include "AccessibilityTest.moc"
