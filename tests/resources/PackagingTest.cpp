// SPDX-License-Identifier: Apache-2.0

#include "support/Files.h"
#include "support/PdfProbe.h"
#include "support/Places.h"
#include "support/TestUnit.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace folioforge::test;

namespace {

/// What the first group of `pattern` finds in a file of the source tree; empty where nothing.
QString foundIn(const QString &file, const QString &pattern) {
    return QRegularExpression(pattern, QRegularExpression::MultilineOption)
        .match(QString::fromUtf8(readFile(inSource(file))))
        .captured(1);
}

QString projectVersion() {
    return foundIn(u"CMakeLists.txt"_s, u"^    VERSION (\\S+)$"_s);
}

/// The words at `column` of the list of libraries in scripts/release.
QStringList billOfMaterials(int column) {
    QStringList words;
    for (const QString &line :
         foundIn(u"scripts/release"_s, u"<<'LIBRARIES'\n((?:.*\n)+?)LIBRARIES$"_s)
             .split(u'\n', Qt::SkipEmptyParts)) {
        words += line.section(u' ', column, column);
    }
    return words;
}

} // namespace

/// What packages are made of, as the programs of desktops and distributions see it.
class PackagingTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyPackageHasTheVersionOfTheProject_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("pattern");
        QTest::newRow("Debian") << u"debian/changelog"_s << u"\\Afolioforge \\((.*)\\) "_s;
        QTest::newRow("RPM") << u"packaging/folioforge.spec"_s << u"^Version: +(.*)$"_s;
        QTest::newRow("changes") << u"CHANGELOG.md"_s << u"^## (\\d\\S*)"_s;
    }

    void everyPackageHasTheVersionOfTheProject() {
        QFETCH(const QString, file);
        QFETCH(const QString, pattern);
        QVERIFY(!projectVersion().isEmpty());
        QCOMPARE(foundIn(file, pattern), projectVersion());
    }

    void desktopsTakeTheEntry() {
        const ToolRun run = runTool(u"desktop-file-validate"_s,
                                    {inBuild(u"packaging/com.vesprin.folioforge.desktop"_s)});
        QVERIFY2(run.exitCode == 0 && run.out.isEmpty(), run.out.constData());
    }

    void softwareCentresTakeTheDescription() {
        // Version 0.16 does not know yet that developers have an element of their own.
        const ToolRun run = runTool(u"appstreamcli"_s,
                                    {u"validate"_s, u"--strict"_s, u"--no-net"_s,
                                     u"--override=unknown-tag=pedantic"_s,
                                     inBuild(u"packaging/com.vesprin.folioforge.metainfo.xml"_s)});
        QVERIFY2(run.exitCode == 0, run.out.constData());
    }

    void theDescriptionShowsPicturesThatExistInTheirSizes() {
        const QString description = QString::fromUtf8(
            readFile(inSource(u"packaging/com.vesprin.folioforge.metainfo.xml.in"_s)));
        static const QRegularExpression kImage(
            u"<image type=\"source\" width=\"(\\d+)\" height=\"(\\d+)\">[^<]*/images/([^<]*)<"_s);
        int pictures = 0;
        for (auto match = kImage.globalMatch(description); match.hasNext(); ++pictures) {
            const auto image = match.next();
            QCOMPARE(QImage(inSource(u"docs/images/"_s + image.captured(3))).size(),
                     QSize(image.captured(1).toInt(), image.captured(2).toInt()));
        }
        QCOMPARE(pictures, 3);
    }

    void theBillOfMaterialsNamesWhatTheProgramStandsOn() {
        QStringList named = billOfMaterials(0);
        QCOMPARE(named.removeAll(u"PDFium"_s), 1); // The command line draws no pages.
        const QString told = QString::fromUtf8(runTool(commandLineProgram(), {u"--version"_s}).out)
                                 .section(u"with "_s, 1);
        QStringList standsOn;
        for (const QString &library : told.trimmed().split(u", "_s)) {
            standsOn += library.section(u' ', 0, 0);
        }
        named.sort();
        standsOn.sort();
        QVERIFY(named.size() > 10);
        QCOMPARE(named, standsOn);
    }

    void theBillOfMaterialsHasTheLeastVersionsOfTheBuild() {
        const QString build = QString::fromUtf8(readFile(inSource(u"cmake/Dependencies.cmake"_s)));
        static const QRegularExpression kVersion(u"(?:>=|\\((?:Qt6|GIF) )([0-9.]+)"_s);
        QStringList asked;
        for (auto match = kVersion.globalMatch(build); match.hasNext();) {
            asked += match.next().captured(1);
        }
        QStringList told = billOfMaterials(1);
        told.removeAll(u"0"_s);
        asked.removeDuplicates();
        told.removeDuplicates();
        asked.sort();
        told.sort();
        QVERIFY(told.size() > 5);
        QCOMPARE(told, asked);
    }

    void debianNeedsNothingThatInstallDepsLacks() {
        const QString needed = foundIn(u"debian/control"_s, u"^Build-Depends:\n((?: .*\n)+)"_s);
        const QStringList known =
            foundIn(u"scripts/install-deps"_s, u"^debian_packages=\"\n((?: .*\n)+)"_s)
                .split(QRegularExpression(u"[\\s\"]+"_s));
        int packages = 0;
        for (QString package : needed.split(u'\n', Qt::SkipEmptyParts)) {
            package = package.trimmed().section(QRegularExpression(u"[ ,]"_s), 0, 0);
            if (package != u"debhelper-compat") {
                QVERIFY2(known.contains(package), qPrintable(package));
                ++packages;
            }
        }
        QVERIFY(packages > 15);
    }
};

FOLIOFORGE_TEST(PackagingTest)
#include "PackagingTest.moc"
