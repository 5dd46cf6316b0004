// SPDX-License-Identifier: Apache-2.0

#include "ArchiveCase.h"
#include "support/PdfFixture.h"
#include "support/TestUnit.h"

#include <QCryptographicHash>
#include <QJsonDocument>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// PDF/A made of PDFs, and with its sources in it.
class ArchiveSourcesTest : public QObject, ArchiveCase {
    Q_OBJECT

    static QByteArray packet(const QByteArray &part, const QByteArray &level) {
        return "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>"
               "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
               "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
               "<rdf:Description rdf:about=\"\" xmlns:pdfaid=\"http://www.aiim.org/pdfa/ns/id/\" "
               "pdfaid:part=\"" +
               part + "\" pdfaid:conformance=\"" + level +
               "\"/></rdf:RDF></x:xmpmeta><?xpacket end=\"w\"?>";
    }

    /// A blank page that claims a part and level; `catalog` and `objects` may add to it.
    QString claiming(const char *name, const QByteArray &part, const QByteArray &level,
                     const QByteArray &catalog = {}, const std::map<int, QByteArray> &objects = {},
                     const QByteArray &profile = {}) const {
        PdfFixture pdf;
        pdf.object(1, "<< /Type /Catalog /Pages 2 0 R /Metadata 4 0 R " + catalog + " >>");
        pdf.object(2, "<< /Type /Pages /Kids [3 0 R] /Count 1 >>");
        pdf.object(3, "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 90 90] /Resources << >> >>");
        pdf.stream(4, "/Type /Metadata /Subtype /XML", packet(part, level));
        for (const auto &[number, body] : objects) {
            pdf.object(number, body);
        }
        if (!profile.isEmpty()) {
            pdf.stream(9, "/N " + QByteArray::number(profile.mid(16, 4) == "CMYK" ? 4 : 3),
                       profile);
        }
        [[maybe_unused]] const bool written = pdf.write(path(name));
        return path(name);
    }

    /// One with an output intent for the colours of `profile`.
    QString intended(const char *name, const QByteArray &profile) const {
        return claiming(name, "2", "U",
                        "/OutputIntents [<< /Type /OutputIntent /S /GTS_PDFA1 "
                        "/OutputConditionIdentifier (x) /DestOutputProfile 9 0 R >>]",
                        {}, profile);
    }

    /// The profile of another document of ours, with another name in it.
    static QByteArray rgbProfile(char mark) {
        QByteArray profile = inkProfile();
        profile.replace(12, 8, "mntrRGB ");
        profile[profile.indexOf("Inks")] = mark;
        return profile;
    }

    static QString codeOf(const ToolRun &run, int input) {
        return objectsOf(run.out).at(input)["warnings"_L1][0]["code"_L1].toString();
    }

    QString reasonOf(const QStringList &arguments, int input) const {
        const ToolRun run =
            merge("made.pdf", QStringList{u"--overwrite"_s, u"always"_s, u"--json"_s} + arguments);
        return member(objectsOf(run.out).at(input), "message");
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void whatClaimsEnoughIsTaken_data() {
        QTest::addColumn<QString>("standard");
        QTest::addColumn<QByteArrayList>("taken");
        QTest::addColumn<QByteArrayList>("refused");
        QTest::newRow("1b") << u"1b"_s << QByteArrayList{"1B", "1A"} << QByteArrayList{"2B", "3U"};
        QTest::newRow("2u") << u"2u"_s << QByteArrayList{"2U", "2A"}
                            << QByteArrayList{"1A", "1B", "2B", "3U", "4F", "2X"};
        QTest::newRow("3u") << u"3u"_s << QByteArrayList{"2U", "2A", "3U", "3A"}
                            << QByteArrayList{"2B", "3B", "1A"};
    }
    void whatClaimsEnoughIsTaken() {
        QFETCH(const QString, standard);
        QFETCH(const QByteArrayList, taken);
        QFETCH(const QByteArrayList, refused);
        QStringList made;
        for (const QByteArray &claim : taken + refused) {
            const QString source = claiming("s.pdf", claim.first(1), claim.sliced(1));
            for (const QStringList &inputs :
                 {QStringList(source), QStringList{text("a.txt"), source}}) {
                const QByteArray name = claim + QByteArray::number(inputs.size()) + ".pdf";
                const ToolRun run =
                    merge(name.constData(), archive(standard) + QStringList(u"--json"_s) + inputs);
                const bool isTaken = taken.contains(claim);
                QVERIFY2(run.exitCode == (isTaken ? 0 : 1), name);
                if (isTaken) {
                    QCOMPARE(codeOf(run, static_cast<int>(inputs.size()) - 1), u"claim-taken"_s);
                    made += path(name.constData());
                } else {
                    QVERIFY2(member(objectsOf(run.out).last(), "message")
                                 .contains(u"it says that it is PDF/A-"),
                             name);
                }
            }
        }
        QCOMPARE(faultsOf(standard, made), QByteArray());
    }

    void ourOwnDocumentsAreTakenAgain_data() { levels(); }
    void ourOwnDocumentsAreTakenAgain() {
        QFETCH(const QString, standard);
        QCOMPARE(convert(archive(standard) +
                         QStringList{scripts(), inSource(u"tests/data/image/translucent.png"_s)})
                     .exitCode,
                 0);
        QCOMPARE(merge("all.pdf", archive(standard) + outputPaths() + QStringList{text("b.txt")} +
                                      outputPaths())
                     .exitCode,
                 0);
        QCOMPARE(faultsOf(standard, {path("all.pdf")}), QByteArray());
        QCOMPARE(merge("one.pdf", archive(standard) +
                                      QStringList{outputPaths().first(), u"--rotate"_s, u"+90"_s})
                     .exitCode,
                 0);
        QCOMPARE(faultsOf(standard, {path("one.pdf")}), QByteArray());
    }

    void whatClaimsNothingIsRefusedByName() {
        writePdf(path("s.pdf"), 1);
        QCOMPARE(
            reasonOf(archive(u"2u"_s) + QStringList{text("a.txt"), path("s.pdf")}, 1),
            u"It cannot go into a document that is PDF/A-2u, since it does not say that it is PDF/A"_s);
        QCOMPARE(faultsOf(u"2u"_s, {path("made.pdf")}), QByteArray());
    }

    void aProtectedDocumentIsRefused() {
        encryptPdf(claiming("s.pdf", "2", "U"), path("locked.pdf"), QString());
        const QStringList known{u"--input-password-file"_s, text("words", "owner\n")};
        QVERIFY(reasonOf(archive(u"2u"_s) + known + QStringList{path("locked.pdf")}, 0)
                    .contains(u"protected"));
    }

    void aDamagedDocumentIsRefused() {
        const QString source = claiming("s.pdf", "2", "U");
        writeFile(path("cut.pdf"), readFile(source).chopped(60));
        QVERIFY(reasonOf(archive(u"2u"_s) + QStringList{path("cut.pdf")}, 0).contains(u"damaged"));
    }

    void anOutputIntentOfASourceStays() {
        const QString source = intended("s.pdf", inkProfile());
        QCOMPARE(merge("all.pdf",
                       archive(u"2u"_s) + QStringList{text("a.txt"),
                                                      inSource(u"tests/data/image/colour.png"_s),
                                                      source})
                     .exitCode,
                 0);
        QCOMPARE(faultsOf(u"2u"_s, {path("all.pdf")}), QByteArray());
        runTool(u"qpdf"_s,
                {u"--qdf"_s, u"--object-streams=disable"_s, path("all.pdf"), path("qdf.pdf")});
        QVERIFY(readFile(path("qdf.pdf")).contains(inkProfile()));
    }

    void outputIntentsOfOtherColorsAreRefused() {
        const QStringList inputs{intended("a.pdf", rgbProfile('x')),
                                 intended("b.pdf", inkProfile())};
        QVERIFY(reasonOf(archive(u"2u"_s) + inputs, 1).contains(u"another kind of device"));
        QCOMPARE(faultsOf(u"2u"_s, {path("made.pdf")}), QByteArray());
    }

    void anotherOutputIntentOfTheSameColorsIsNamed() {
        const ToolRun run =
            merge("all.pdf",
                  archive(u"2u"_s) + QStringList{u"--json"_s, intended("a.pdf", rgbProfile('x')),
                                                 intended("b.pdf", rgbProfile('y'))});
        QCOMPARE(run.exitCode, 0);
        const QJsonArray warnings = objectsOf(run.out).at(1)["warnings"_L1].toArray();
        QCOMPARE(warnings.at(1)["code"_L1].toString(), u"colors-differ"_s);
        QCOMPARE(warnings.size(), 2);
        QCOMPARE(faultsOf(u"2u"_s, {path("all.pdf")}), QByteArray());
    }

    void layersOfSourcesAreNamed() {
        const QByteArray layers =
            "/OCProperties << /OCGs [7 0 R 8 0 R] /D << /Name (own) /Order [7 0 R 8 0 R] >> >>";
        const std::map<int, QByteArray> groups{{7, "<< /Type /OCG /Name (one) >>"},
                                               {8, "<< /Type /OCG /Name (two) >>"}};
        const QStringList inputs{claiming("a.pdf", "2", "U", layers, groups), text("a.txt")};
        QCOMPARE(merge("all.pdf", archive(u"2u"_s) + inputs).exitCode, 0);
        QCOMPARE(faultsOf(u"2u"_s, {path("all.pdf")}), QByteArray());
        QVERIFY(readFile(path("all.pdf")).size() > 0);
    }

    void attachmentsOfPart2AreNotTakenIntoPart3() {
        const QByteArray files = "/Names << /EmbeddedFiles << /Names [(a) 7 0 R] >> >>";
        const std::map<int, QByteArray> objects{
            {7, "<< /Type /Filespec /F (a.pdf) /UF (a.pdf) /EF << /F 8 0 R >> >>"},
            {8, "<< /Type /EmbeddedFile /Length 0 >>\nstream\n\nendstream"}};
        const QString source = claiming("a.pdf", "2", "U", files, objects);
        QVERIFY(reasonOf(archive(u"3u"_s) + QStringList(source), 0)
                    .contains(u"PDF/A-2u, not PDF/A-3u"));
        QCOMPARE(reasonOf(archive(u"2u"_s) + QStringList(source), 0), QString());
    }

    void sourcesLieInTheDocumentBitForBit() {
        QDir().mkpath(path("other"));
        const QStringList inputs{text("a.txt"),
                                 inSource(u"tests/data/image/photo.jpg"_s),
                                 text("other/a.txt", "more"),
                                 claiming("s.pdf", "3", "U"),
                                 text("x.y.csv"),
                                 text("empty.txt", "")};
        const QStringList arguments{u"--embed-sources"_s, u"--as-text"_s};
        QCOMPARE(merge("all.pdf", archive(u"3u"_s) + arguments + inputs).exitCode, 0);
        QCOMPARE(faultsOf(u"3u"_s, {path("all.pdf")}), QByteArray());
        QVERIFY(PdfProbe(path("all.pdf")).isValid());
        QDir().mkpath(path("found"));
        QCOMPARE(runTool(u"pdfdetach"_s, {u"-saveall"_s, u"-o"_s, path("found"), path("all.pdf")})
                     .exitCode,
                 0);
        const QStringList names{u"a.txt"_s, u"photo.jpg"_s, u"a (2).txt"_s,
                                u"s.pdf"_s, u"x.y.csv"_s,   u"empty.txt"_s};
        QCOMPARE(QDir(path("found")).entryList(QDir::Files).size(), names.size());
        for (qsizetype i = 0; i < names.size(); ++i) {
            QCOMPARE(readFile(path("found/") + names.at(i)), readFile(inputs.at(i)));
        }
    }

    void anAttachmentTellsWhatItIs() {
        const QString source = text("a.txt", "some words\n");
        QCOMPARE(runTool(u"touch"_s, {u"-d"_s, u"2001-02-03T04:05:06Z"_s, source}).exitCode, 0);
        QCOMPARE(
            merge("all.pdf", archive(u"3u"_s) + QStringList{u"--embed-sources"_s, source}).exitCode,
            0);
        runTool(u"qpdf"_s,
                {u"--qdf"_s, u"--object-streams=disable"_s, path("all.pdf"), path("qdf.pdf")});
        const QByteArray pdf = readFile(path("qdf.pdf"));
        const QByteArray sum =
            QCryptographicHash::hash("some words\n", QCryptographicHash::Md5).toHex();
        QVERIFY(pdf.contains("/AFRelationship /Source"));
        QVERIFY(pdf.contains("/Subtype /text#2fplain"));
        QVERIFY(pdf.contains("/ModDate (D:20010203040506Z)"));
        QVERIFY(pdf.contains("/Size 11"));
        QVERIFY(pdf.contains("/CheckSum <" + sum + ">") || pdf.contains(QByteArray::fromHex(sum)));
    }

    void aSourceThatFailsIsNotAttached() {
        writeFile(path("b.jpg"), "\xFF\xD8\xFF\xE0 no picture");
        QCOMPARE(merge("all.pdf", archive(u"3u"_s) + QStringList{u"--embed-sources"_s,
                                                                 text("a.txt"), path("b.jpg")})
                     .exitCode,
                 1);
        const ToolRun listed = runTool(u"pdfdetach"_s, {u"-list"_s, path("all.pdf")});
        QVERIFY(listed.out.startsWith("1 embedded files"));
    }
};

FOLIOFORGE_TEST(ArchiveSourcesTest)
#include "ArchiveSourcesTest.moc"
