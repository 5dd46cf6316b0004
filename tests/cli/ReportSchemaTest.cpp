// SPDX-License-Identifier: Apache-2.0

#include "Schemas.h"
#include "support/PhotoPage.h"
#include "support/TestUnit.h"

#include <QImage>
#include <QSet>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// The report of --json as docs/report.schema.json describes it.
class ReportSchemaTest : public QObject, CommandLineCase {
    Q_OBJECT

    QByteArray m_reports; ///< Of all tests.

    QList<QJsonObject> report(const QStringList &arguments) {
        const ToolRun run = runTool(kProgram, QStringList{u"--json"_s} + arguments);
        m_reports += run.out;
        return objectsOf(run.out);
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void theHeadNamesVersionsOfProgramAndLibraries() {
        const ToolRun run = convert({u"--json"_s, text("a.txt")});
        const QJsonObject head = QJsonDocument::fromJson(run.out.split('\n').first()).object();
        QCOMPARE(head[u"version"_s].toInt(), 1);
        const QByteArrayList said = runTool(kProgram, {u"--version"_s}).out.split('\n');
        QCOMPARE(member(head, "tool").toUtf8(), said.first());
        const QJsonObject libraries = head[u"libraries"_s].toObject();
        QCOMPARE(member(libraries, "Qt"), QString::fromLatin1(qVersion()));
        QCOMPARE(said.at(1).count(',') + 1, libraries.size());
        const ToolRun qpdf = runTool(u"qpdf"_s, {u"--version"_s});
        QCOMPARE(qpdf.out.simplified().split(' ').at(2), member(libraries, "qpdf").toLatin1());
    }

    void sizesAndChecksumsAreThoseOfTheFiles() {
        const QString picture = test::writePng(path("b.png"), 30, 20);
        const auto objects = report({u"--merge"_s, path("all.pdf"), text("a.txt"), picture});
        QCOMPARE(objects.size(), 2);
        QCOMPARE(member(objects[1], "sha256"), sha256(picture));
        QCOMPARE(objects[1][u"bytes"_s].toInteger(), QFileInfo(picture).size());
        for (const QJsonObject &object : objects) {
            QCOMPARE(member(object, "outputSha256"), sha256(path("all.pdf")));
            QCOMPARE(object[u"outputBytes"_s].toInteger(), QFileInfo(path("all.pdf")).size());
        }
    }

    void theFirstPageOfEachInputIsNamed() {
        const auto objects = report({u"--merge"_s, path("all.pdf"), text("a.txt"),
                                     writePdf(path("b.pdf"), 3), text("c.txt", "last of all")});
        QCOMPARE(objects[0][u"firstPage"_s].toInt(), 1);
        QCOMPARE(objects[1][u"firstPage"_s].toInt(), 2);
        QCOMPARE(objects[2][u"firstPage"_s].toInt(), 5);
        QVERIFY(PdfProbe(path("all.pdf")).text(5).contains(u"last of all"_s));
    }

    void theTimeOfAPdfHoldsThatOfItsInputs() {
        const auto objects = report({u"--merge"_s, path("all.pdf"),
                                     text("a.txt", QByteArray(3'000'000, 'x')), text("b.txt")});
        const double first = objects[0][u"seconds"_s].toDouble();
        QVERIFY(first > objects[1][u"seconds"_s].toDouble());
        QVERIFY(objects[1][u"outputSeconds"_s].toDouble() > first);
    }

    void everyKindOfLineIsAsTheSchemaSays() {
        QVERIFY(test::photo(1200, 900).save(path("p.jpg"), "JPG", 95));
        QVERIFY(QDir().mkpath(path("in/deep")));
        text("in/a.txt", "caf\xE9");
        report({u"--compress=72l"_s, u"--image-dpi=600"_s, u"--output-folder"_s, path("out"),
                path("p.jpg"), path("in"), path("missing.txt"), text("b.png", "no picture"),
                writePdf(path("c.pdf"), 2), text("d.txt")});
        report({u"--overwrite=older"_s, u"--output-folder"_s, path("out"), path("d.txt")});
        report({u"--dry-run"_s, u"--output-folder"_s, path("out"), path("d.txt"), path("c.pdf")});
        const QString script =
            u"trap '' XFSZ; ulimit -f 0; exec \"$0\" --json --output-folder \"$1\" \"$2\""_s;
        m_reports += runTool(u"sh"_s, {u"-c"_s, script, kProgram, path("out"), path("d.txt")}).out;
        QSet<QString> states;
        for (const QByteArray &line : m_reports.split('\n')) {
            states += member(QJsonDocument::fromJson(line).object(), "state");
        }
        states.remove(QString()); // Of the heads.
        QCOMPARE(states.size(), 6);
        const QByteArray faults = schemaFaultsOf(u"report"_s, m_reports);
        QVERIFY2(faults.isEmpty(), faults.constData());
    }

    void theSchemaRefusesWhatNoReportSays() {
        for (const QByteArray line :
             {"{\"version\":2,\"tool\":\"folioforge-cli 1.0.0\",\"libraries\":{}}",
              "{\"input\":\"a\",\"output\":null,\"pages\":0,\"state\":\"lost\",\"warnings\":[]}",
              "{\"input\":\"a\",\"output\":null,\"pages\":0,\"state\":\"failed\",\"warnings\":[]"
              "}"}) {
            QVERIFY2(schemaFaultsOf(u"report"_s, line).startsWith(line), line.constData());
        }
    }
};

FOLIOFORGE_TEST(ReportSchemaTest)
#include "ReportSchemaTest.moc"
