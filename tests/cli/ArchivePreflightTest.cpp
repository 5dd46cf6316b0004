// SPDX-License-Identifier: Apache-2.0

#include "ArchiveCase.h"
#include "support/TestUnit.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace folioforge;
using namespace folioforge::test;

/// PDF/A-1b as Apache PDFBox's preflight judges it, which knows no other part.
class ArchivePreflightTest : public QObject, ArchiveCase {
    Q_OBJECT

    /// What preflight says of each file, in one start of its machine.
    QByteArray judged(const QStringList &files) const {
        QStringList jars;
        for (const char *jar : {"preflight", "pdfbox2", "fontbox2", "xmpbox", "commons-logging",
                                "javax.activation", "jaxb-api"}) {
            jars += u"/usr/share/java/%1.jar"_s.arg(QLatin1StringView(jar));
        }
        writeFile(path("files"), files.join(u'\n').toUtf8() + '\n');
        runTool(u"java"_s,
                {u"-cp"_s, jars.join(u':'), u"org.apache.pdfbox.preflight.Validator_A1b"_s,
                 u"xml"_s, u"group"_s, path("files")});
        return readFile(path("files.preflight.xml"));
    }

  private Q_SLOTS:
    void init() { setUp(); }

    void everyDocumentOfPart1IsValid() {
        const QStringList colored = archive(u"1b"_s);
        QCOMPARE(convert(colored + QStringList{scripts()} + pictures()).exitCode, 0);
        QCOMPARE(merge("out/all.pdf", colored +
                                          QStringList{u"--title"_s, u"A < ö"_s, u"--bookmarks"_s,
                                                      u"both"_s, scripts()} +
                                          pictures())
                     .exitCode,
                 0);
        QCOMPARE(merge("out/readable.pdf",
                       colored + QStringList{u"--text-layout"_s, u"readable"_s, scripts()})
                     .exitCode,
                 0);
        QCOMPARE(merge("out/small.pdf",
                       colored + QStringList{u"--compress"_s, u"72l"_s, scripts()} + pictures())
                     .exitCode,
                 0);
        const QByteArray verdicts = judged(outputPaths());
        QVERIFY2(!verdicts.contains("<details>"), verdicts);
        QCOMPARE(verdicts.count("<isValid type=\"PDF/A1-b\">true</isValid>"), outputs().size());
    }

    void whatIsNotAskedForIsNotValid() {
        QCOMPARE(convert({text("a.txt")}).exitCode, 0);
        QVERIFY(judged(outputPaths()).contains("<isValid type=\"PDF/A1-b\">false</isValid>"));
    }
};

FOLIOFORGE_TEST(ArchivePreflightTest)
#include "ArchivePreflightTest.moc"
