// SPDX-License-Identifier: Apache-2.0

#include "ArchiveCase.h"
#include "Schemas.h"
#include "support/TestUnit.h"

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// The manifest that --manifest puts into a PDF/A-3 as well.
class AttachedManifestTest : public QObject, ArchiveCase {
    Q_OBJECT

    /// The manifest in a PDF, as poppler takes it out.
    QJsonObject manifestIn(const QString &pdf) const {
        const QString file = path("attached.json");
        QFile::remove(file);
        runTool(u"pdfdetach"_s, {u"-savefile"_s, u"manifest.json"_s, u"-o"_s, file, pdf});
        return QJsonDocument::fromJson(readFile(file)).object();
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void itNamesEachSourceOfItsPdf() {
        const QString picture = writePng(path("b.png"), 30, 20);
        QCOMPARE(merge("all.pdf", archive(u"3u"_s) + QStringList{u"--manifest"_s, path("list.json"),
                                                                 text("a.txt"), picture})
                     .exitCode,
                 0);
        const QJsonObject list = manifestIn(path("all.pdf"));
        QCOMPARE(schemaFaultsOf(u"manifest"_s, readFile(path("attached.json")).replace('\n', ' ')),
                 QByteArray());
        const QJsonArray inputs = list[u"inputs"_s].toArray();
        QCOMPARE(inputs.size(), 2);
        QCOMPARE(inputs[0][u"sha256"_s].toString(), sha256(path("a.txt")));
        QCOMPARE(inputs[1][u"sha256"_s].toString(), sha256(picture));
        QCOMPARE(inputs[1][u"input"_s].toString(), picture);
        QCOMPARE(inputs[1][u"firstPage"_s].toInt(), 2);
        QCOMPARE(inputs[1][u"state"_s].toString(), u"enclosed"_s);
        QVERIFY(!inputs[1][u"modified"_s].toString().isEmpty());
        QCOMPARE(list[u"outputs"_s].toArray().size(), 0);
        QCOMPARE(faultsOf(u"3u"_s, {path("all.pdf")}), QByteArray());
    }

    void eachPdfHasThatOfItsOwnSource() {
        QCOMPARE(convert(archive(u"3u"_s) + QStringList{u"--manifest"_s, path("list.json"),
                                                        text("a.txt"), text("b.txt")})
                     .exitCode,
                 0);
        for (const char *name : {"a", "b"}) {
            const QJsonArray inputs =
                manifestIn(path("out/") + QLatin1StringView(name) + u".pdf"_s)[u"inputs"_s]
                    .toArray();
            QCOMPARE(inputs.size(), 1);
            QCOMPARE(inputs[0][u"sha256"_s].toString(), sha256(path(name) + u".txt"_s));
        }
    }

    void whatDidNotGoInStandsThereWithItsReason() {
        QCOMPARE(merge("all.pdf", archive(u"3u"_s) + QStringList{u"--manifest"_s, path("list.json"),
                                                                 text("a.txt"),
                                                                 writePng(path("tiny.png"), 1, 1)})
                     .exitCode,
                 1);
        const QJsonArray inputs = manifestIn(path("all.pdf"))[u"inputs"_s].toArray();
        QCOMPARE(inputs.size(), 2);
        QCOMPARE(inputs[1][u"state"_s].toString(), u"failed"_s);
        QVERIFY(inputs[1][u"message"_s].toString().contains(u"a page has 1 x 1 units"_s));
    }

    void otherPartsOfTheStandardHaveNone() {
        QCOMPARE(convert(archive(u"2u"_s) +
                         QStringList{u"--manifest"_s, path("list.json"), text("a.txt")})
                     .exitCode,
                 0);
        QVERIFY(
            runTool(u"pdfdetach"_s, {u"-list"_s, path("out/a.pdf")}).out.startsWith("0 embedded"));
    }
};

FOLIOFORGE_TEST(AttachedManifestTest)
#include "AttachedManifestTest.moc"
