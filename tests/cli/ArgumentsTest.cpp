// SPDX-License-Identifier: Apache-2.0

#include "cli/Arguments.h"
#include "support/TestUnit.h"

#include <QTest>

#include <array>

using namespace Qt::StringLiterals;
using namespace folioforge;

namespace {

std::variant<Arguments, UsageError> parse(std::initializer_list<const char *> words) {
    const std::vector<QByteArray> arguments(words.begin(), words.end());
    return parseArguments(arguments);
}

/// The arguments, which must be right.
Arguments good(std::initializer_list<const char *> words) {
    auto result = parse(words);
    if (const auto *fault = std::get_if<UsageError>(&result)) {
        qFatal("%s", qPrintable(fault->message));
    }
    return std::get<Arguments>(std::move(result));
}

std::array<qint64, 4> topRightBottomLeft(const PageMargins &margins) {
    return {margins.top, margins.right, margins.bottom, margins.left};
}

} // namespace

class ArgumentsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void pagesBelongToTheInputBeforeThem() {
        const Arguments arguments = good(
            {"a.pdf", "--rotate", "+90:1", "--rotate=-90", "b.pdf", "c.pdf", "--pages", "1-3,odd"});
        QCOMPARE(arguments.pageChoices.size(), size_t(2));
        QCOMPARE(arguments.pageChoices.at(0), (PageChoice{{}, {{90, true, "1"}, {-90, true, {}}}}));
        QCOMPARE(arguments.pageChoices.at(2), (PageChoice{"1-3:odd", {}}));
    }

    void withoutOptionsEachFileBecomesAPdfInTheCurrentFolder() {
        const Arguments arguments = good({"a.txt", "b"});
        QCOMPARE(arguments.inputs, (std::vector<QByteArray>{"a.txt", "b"}));
        const ConversionOptions &options = arguments.options;
        QCOMPARE(options.outputFolder, u"."_s);
        QVERIFY(!options.merge);
        QCOMPARE(getTextPageSize(options.textPage), QSizeF(595, 842));
        QCOMPARE(topRightBottomLeft(options.textPage.margins),
                 (std::array<qint64, 4>{72, 72, 72, 72}));
        QCOMPARE(options.imagePage.sizeMode, int(ImagePageFollowsImage));
        QCOMPARE(topRightBottomLeft(options.imagePage.margins),
                 (std::array<qint64, 4>{0, 0, 0, 0}));
        QCOMPARE(options.compressIndex, 0);
        QCOMPARE(options.flush, Flush::Always);
        QVERIFY(!arguments.sort);
        QVERIFY(arguments.progress == ProgressMode::Auto);
        QVERIFY(!arguments.json && !arguments.quiet);
    }

    void anOptionsValueFollowsItOrAnEqualsSign() {
        QCOMPARE(good({"--title", "T", "a"}).options.info.title, u"T"_s);
        QCOMPARE(good({"--title=T=1", "a"}).options.info.title, u"T=1"_s);
        QCOMPARE(good({"--title=", "a"}).options.info.title, QString());
        QCOMPARE(good({"a", "--title", "--silent"}).options.info.title, u"--silent"_s);
    }

    void metadataIsStrippedOnRequest() {
        QVERIFY(!good({"a"}).options.stripMetadata);
        QVERIFY(good({"--strip-metadata", "a"}).options.stripMetadata);
        QVERIFY(good({"--keep-info", "a"}).options.keepInfo);
    }

    void documentInformationIsTaken() {
        const DocumentInfo info =
            good({"--title", "é", "--author", "b", "--subject", "c", "--keywords", "d", "a"})
                .options.info;
        QCOMPARE(info.title, u"é"_s);
        QCOMPARE(info.author, u"b"_s);
        QCOMPARE(info.subject, u"c"_s);
        QCOMPARE(info.keywords, u"d"_s);
    }

    void aMergePathIsAFolderAndAName_data() {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("name");
        QTest::newRow("name") << QByteArray("all") << u"."_s << u"all"_s;
        QTest::newRow("below") << QByteArray("x/y/all.pdf") << u"x/y"_s << u"all.pdf"_s;
        QTest::newRow("root") << QByteArray("/all") << u"/"_s << u"all"_s;
    }

    void aMergePathIsAFolderAndAName() {
        QFETCH(const QByteArray, path);
        const ConversionOptions options = good({"--merge", path.constData(), "a"}).options;
        QVERIFY(options.merge);
        QTEST(options.outputFolder, "folder");
        QTEST(options.outputName, "name");
    }

    void pageSizesAreNamesOrNumbers() {
        const auto text = [](const char *size) {
            return getTextPageSize(good({"--text-page-size", size, "a"}).options.textPage);
        };
        QCOMPARE(text("A3"), QSizeF(842, 1191));
        QCOMPARE(text("a5"), QSizeF(420, 595));
        QCOMPARE(text("300x400"), QSizeF(300, 400));
        QCOMPARE(text("3X14400"), QSizeF(3, 14400));
        QCOMPARE(text("A6"), QSizeF(298, 420)); // 105 x 148 mm
        QCOMPARE(text("a4^T"), QSizeF(842, 595));
        QCOMPARE(text("JIS-B5"), QSizeF(516, 729)); // 182 x 257 mm
        QCOMPARE(text("jb4^T"), QSizeF(1032, 729)); // 257 x 364 mm
        QCOMPARE(text("letter-landscape"), QSizeF(792, 612));
        QCOMPARE(text("210mmx11in"), QSizeF(595, 792));
        QCOMPARE(text("148x210mm"), QSizeF(420, 595));
        const auto image = [](const char *size) {
            return getImagePageSize(good({"--image-page-size", size, "a"}).options.imagePage);
        };
        QCOMPARE(image("image"), QSizeF(0, 0));
        QCOMPARE(image("612x792"), QSizeF(612, 792));
        QCOMPARE(image("Legal"), QSizeF(612, 1008));
    }

    void theWordImageTakesBackASize() {
        const Arguments arguments =
            good({"--image-page-size", "5x6", "--image-page-size", "image", "a"});
        QCOMPARE(arguments.options.imagePage.sizeMode, int(ImagePageFollowsImage));
    }

    void lengthsThatAreNoWholePointsAreSaidToBeRounded() {
        QCOMPARE(good({"--text-margins", "1in,25mm,25.4mm,1.001in", "--image-page-size", "A4", "a"})
                     .rounded,
                 QStringList({u"--text-margins: 25mm is 71 points"_s,
                              u"--text-margins: 1.001in is 72 points"_s}));
    }

    void howPicturesTakeTheirPagesIsChosen() {
        const auto layout = good({"--image-page-size=A4", "--image-orientation", "auto",
                                  "--image-fit", "fill", "--image-dpi", "300", "a"})
                                .options.imageLayout;
        QCOMPARE(layout.orientation, PageOrientation::Auto);
        QCOMPARE(layout.fit, ImageFit::Fill);
        QCOMPARE(layout.unstatedDpi, 300);
    }

    void marginsAreOneToFourLengths() {
        const auto margins = [](const char *text) {
            return topRightBottomLeft(
                good({"--image-margins", text, "a"}).options.imagePage.margins);
        };
        QCOMPARE(margins("1,2,3,4"), (std::array<qint64, 4>{1, 2, 3, 4}));
        QCOMPARE(margins("9"), (std::array<qint64, 4>{9, 9, 9, 9}));
        QCOMPARE(margins("1,2"), (std::array<qint64, 4>{1, 2, 1, 2}));
        QCOMPARE(margins("1,2,3"), (std::array<qint64, 4>{1, 2, 3, 2}));
        QCOMPARE(margins("-1"), (std::array<qint64, 4>{-1, -1, -1, -1}));
        QCOMPARE(margins("+7"), (std::array<qint64, 4>{7, 7, 7, 7}));
        QCOMPARE(
            topRightBottomLeft(good({"--text-margins", "5,6,7,8", "a"}).options.textPage.margins),
            (std::array<qint64, 4>{5, 6, 7, 8}));
    }

    void choicesAreTakenByTheirWords() {
        QCOMPARE(good({"--compress", "none", "a"}).options.compressIndex, 0);
        QCOMPARE(good({"--compress", "150m", "a"}).options.compressIndex, 1);
        QCOMPARE(good({"--compress", "96m", "a"}).options.compressIndex, 2);
        QCOMPARE(good({"--compress", "72l", "a"}).options.compressIndex, 3);
        QCOMPARE(good({"--flush", "never", "a"}).options.flush, Flush::Never);
        QVERIFY(good({"--sort", "name", "a"}).sort == SortOrder::Name);
        QVERIFY(good({"--sort", "natural", "a"}).sort == SortOrder::Natural);
        QVERIFY(good({"--sort", "size", "a"}).sort == SortOrder::Size);
        QVERIFY(good({"--sort", "created", "a"}).sort == SortOrder::Created);
        QVERIFY(good({"--sort", "modified", "a"}).sort == SortOrder::Modified);
        QVERIFY(good({"--progress", "always", "a"}).progress == ProgressMode::Always);
        QVERIFY(good({"--progress", "never", "a"}).progress == ProgressMode::Never);
    }

    void theTwoBoxesAreTicked() {
        const SecuritySettings security =
            good({"--refuse-print", "--refuse-copy", "a"}).options.security;
        QVERIFY(security.refusePrint && security.refuseCopy);
        QVERIFY(!security.useUserPassword && !security.useOwnerPassword);
    }

    void behindTwoDashesEverythingIsAFile() {
        QCOMPARE(good({"--quiet", "--", "-a.txt", "--json", "--"}).inputs,
                 (std::vector<QByteArray>{"-a.txt", "--json", "--"}));
        QCOMPARE(good({"-"}).inputs, std::vector<QByteArray>{"-"});
    }

    void versionAndHelpNeedNoFile() {
        QVERIFY(good({"--version"}).request == Request::ShowVersion);
        QVERIFY(good({"--help"}).request == Request::ShowHelp);
    }

    void faultsNameTheArgument_data() {
        QTest::addColumn<QByteArrayList>("words");
        QTest::addColumn<QString>("named");
        const auto row = [](const char *name, const QByteArrayList &words, const char *named) {
            QTest::newRow(name) << words << QString::fromUtf8(named);
        };
        row("nothing", {}, "no file");
        row("unknown", {"--colour", "a"}, "--colour");
        row("unknown short", {"-x", "a"}, "-x");
        row("password as an argument", {"--user-password=secret", "a"}, "--user-password");
        row("value missing", {"a", "--title"}, "--title");
        row("value too many", {"--json=yes", "a"}, "--json");
        row("word", {"--compress", "300m", "a"}, "300m");
        row("pages twice", {"a.pdf", "--pages", "1", "--pages", "2"}, "--pages");
        row("page size", {"--text-page-size", "A11", "a"}, "A11");
        row("paper with a nought", {"--text-page-size", "A04", "a"}, "A04");
        row("paper with a sign", {"--text-page-size", "A+1", "a"}, "A+1");
        row("three sides", {"--image-page-size", "10x20x30", "a"}, "10x20x30");
        row("half a size", {"--image-page-size", "100x", "a"}, "100x");
        row("size with another unit", {"--image-page-size", "100x200px", "a"}, "100x200px");
        row("five margins", {"--text-margins", "1,2,3,4,5", "a"}, "1,2,3,4,5");
        row("no margin", {"--text-margins", "1,,3", "a"}, "1,,3");
        row("two points", {"--text-margins", "1.5.2", "a"}, "1.5.2");
        row("density", {"--image-dpi", "4", "a"}, "\"4\"");
        row("no side", {"--text-page-size=0x0", "a"}, "its sides are 3 to 14400 points long");
        row("short side", {"--image-page-size=9x2", "a"}, "its sides are 3 to 14400 points long");
        row("long side", {"--image-page-size=14401x20", "a"}, "14401x20");
        row("merged report", {"--json", "--merge", "-", "a"}, "--json and \"--merge -\"");
        row("null without a list", {"-0", "a"}, "--files-from");
        row("option as a value", {"--title", "--merge", "x", "a"}, "write \"--title=--merge\"");
        row("option with a value as a value", {"--author", "--title=x", "a"}, "--author=--title=x");
        row("orientation of no page", {"--image-orientation=auto", "a"}, "--image-page-size");
        row("fit of no page", {"--image-fit=fill", "a"}, "--image-page-size");
        row("input without a name", {"a", ""}, "\"\" is no file");
        row("merge without a name", {"--merge=", "a"}, "\"\" is no name of a PDF");
        row("two outputs", {"--merge", "x", "--output-folder", "y", "a"}, "--merge");
        row("not UTF-8", {"--title", "caf\xE9", "a"}, "--title");
    }

    void faultsNameTheArgument() {
        QFETCH(const QByteArrayList, words);
        QFETCH(const QString, named);
        const std::vector<QByteArray> arguments(words.begin(), words.end());
        const auto result = parseArguments(arguments);
        const auto *fault = std::get_if<UsageError>(&result);
        QVERIFY(fault);
        QVERIFY2(fault->message.contains(named), qPrintable(fault->message));
        QVERIFY(!fault->message.contains(u"secret"_s));
    }

    void helpNamesEveryOption() {
        for (const char *option : {"--output-folder",
                                   "--merge",
                                   "--title",
                                   "--author",
                                   "--subject",
                                   "--keywords",
                                   "--user-password-file",
                                   "--owner-password-file",
                                   "--refuse-print",
                                   "--refuse-copy",
                                   "--text-page-size",
                                   "--text-margins",
                                   "--image-page-size",
                                   "--image-margins",
                                   "--image-orientation",
                                   "--image-fit",
                                   "--image-dpi",
                                   "--compress",
                                   "--sort",
                                   "--flush",
                                   "--progress",
                                   "--json",
                                   "--quiet",
                                   "--version",
                                   "--help"}) {
            QVERIFY2(helpText().contains(option), option);
        }
    }
};

FOLIOFORGE_TEST(ArgumentsTest)
#include "ArgumentsTest.moc"
