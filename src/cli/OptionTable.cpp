// SPDX-License-Identifier: Apache-2.0

#include "cli/OptionTable.h"

#include "cli/AccessibilityOptions.h"
#include "cli/ArchiveArguments.h"
#include "cli/NamesLike.h"
#include "cli/OptionValues.h"
#include "cli/TextOptions.h"
#include "convert/OutputName.h"

#include <algorithm>
#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr int kMaxJobs = 256;
constexpr int kLeastDpi = 5; // What a picture may state.
constexpr int kMaxDpi = 25400;
constexpr int kBestQuality = 100; // Of a JPEG.

/// Splits the path of the merged file; a name alone stands in the current folder, and "-" for
/// standard output. Throws ArgumentFault where the path leads to a folder.
void takeMergePath(const QString &path, Arguments &to) {
    ConversionOptions &options = to.options;
    options.merge = true;
    to.toStandardOutput = path == u"-";
    if (to.toStandardOutput) {
        return;
    }
    if (path.isEmpty()) {
        throw ArgumentFault(u"\"\" is no name of a PDF"_s);
    }
    const qsizetype slash = path.lastIndexOf(u'/');
    options.outputName = path.sliced(slash + 1);
    if (options.outputName.isEmpty() || isNameOfFolder(options.outputName)) {
        throw ArgumentFault(u"\"%1\" is a folder, not the name of a PDF"_s.arg(path));
    }
    options.outputFolder = slash < 0 ? u"."_s : path.first(std::max<qsizetype>(slash, 1));
}

/// The name of a file to be written. Throws ArgumentFault where it is none.
QString parseNewFile(const QString &path) {
    const QString name = path.sliced(path.lastIndexOf(u'/') + 1);
    if (name.isEmpty() || isNameOfFolder(name)) {
        throw ArgumentFault(u"\"%1\" is no name of a file"_s.arg(path));
    }
    return path;
}

/// What is held against the inputs: a dry run of a merge is.
void takeVerifiedPath(const QString &path, Arguments &to) {
    if (path.isEmpty()) {
        throw ArgumentFault(u"\"\" is no name of a PDF"_s);
    }
    to.options.verifyOnly = path;
}

/// Takes "none", a filter of the window or "DPI:QUALITY", the second where it is wanted. Throws
/// ArgumentFault.
void takeCompression(const QString &text, ConversionOptions &options) {
    constexpr std::array kFilters{"none"_L1, "150m"_L1, "96m"_L1, "72l"_L1};
    const auto *known = std::ranges::find(kFilters, text);
    options.compressIndex =
        known == kFilters.end() ? 0 : static_cast<int>(known - kFilters.begin());
    options.compressFilter.reset();
    if (known != kFilters.end()) {
        return;
    }
    const QStringList parts = text.split(u':');
    bool isNumber = false;
    parts.first().toDouble(&isNumber);
    if (!isNumber || parts.size() > 2) {
        throw ArgumentFault(
            u"\"%1\" is none of none, 150m, 96m, 72l and DPI:QUALITY, such as 120 or "
            "120:70"_s.arg(text));
    }
    QuartzFilter &filter = options.compressFilter.emplace();
    filter.resolution =
        parseNumber(parts.first(), QuartzFilter::kLeastResolution, QuartzFilter::kMaxResolution);
    if (parts.size() == 2) {
        filter.jpegQuality = parseWhole(parts.last(), 1, kBestQuality);
    }
}

/// The pages of the input before the option. Throws ArgumentFault where there is none.
PageChoice &choiceOfLastInput(Arguments &arguments) {
    const auto &inputs = arguments.inputs;
    const auto &lists = arguments.nameLists;
    if (inputs.empty() || (!lists.empty() && lists.back().at == inputs.size())) {
        throw ArgumentFault(u"It stands behind the PDF whose pages it means"_s);
    }
    return arguments.pageChoices[inputs.size() - 1];
}

const std::vector<Option> &inputOptions() {
    using Value = const QByteArray &;
    static const std::vector<Option> options{
        {"--files-from", Option::Valued,
         [](Arguments &to, Value value) {
             to.nameLists.push_back({value, to.inputs.size()});
         }},
        {"--null", Option::Switch, [](Arguments &to, Value) { to.listsEndInNull = true; }},
        {"-0", Option::Switch, [](Arguments &to, Value) { to.listsEndInNull = true; }},
        {"--input-type", Option::Valued,
         [](Arguments &to, Value value) { to.inputType = parseInputType(textOf(value)); }},
        {"--pages", Option::Valued,
         [](Arguments &to, Value value) {
             QByteArray &range = choiceOfLastInput(to).range;
             if (!range.isEmpty()) {
                 throw ArgumentFault(u"It is given twice for one PDF; a list is 1-3,7"_s);
             }
             range = parsePageRange(textOf(value));
         }},
        {"--rotate", Option::Valued,
         [](Arguments &to, Value value) {
             choiceOfLastInput(to).turns.push_back(parsePageTurn(textOf(value)));
         }},
        {"--input-password-file", Option::Valued,
         [](Arguments &to, Value value) { to.inputPasswordFile = value; }},
        {"--recursive", Option::Switch, [](Arguments &to, Value) { to.taking.folders = true; }},
        {"--with-pdfs", Option::Switch, [](Arguments &to, Value) { to.taking.pdfs = true; }},
        {"--sort", Option::Valued,
         [](Arguments &to, Value value) {
             to.sort = chosen<SortOrder>(textOf(value),
                                         {{QLatin1StringView("name"), SortOrder::Name},
                                          {QLatin1StringView("natural"), SortOrder::Natural},
                                          {QLatin1StringView("size"), SortOrder::Size},
                                          {QLatin1StringView("created"), SortOrder::Created},
                                          {QLatin1StringView("modified"), SortOrder::Modified}});
         }},
    };
    return options;
}

const std::vector<Option> &outputOptions() {
    using Value = const QByteArray &;
    static const std::vector<Option> options{
        {"--output-folder", Option::Valued,
         [](Arguments &to, Value value) { to.options.outputFolder = parseFolder(textOf(value)); }},
        {"--merge", Option::Valued,
         [](Arguments &to, Value value) { takeMergePath(textOf(value), to); }},
        {"--overwrite", Option::Valued,
         [](Arguments &to, Value value) {
             to.options.overwrite = chosen<Overwrite>(
                 textOf(value), {{QLatin1StringView("never"), Overwrite::Never},
                                 {QLatin1StringView("older"), Overwrite::Older},
                                 {QLatin1StringView("always"), Overwrite::Always}});
         }},
        {"--verify", Option::Switch, [](Arguments &to, Value) { to.options.verify = true; }},
        {"--verify-only", Option::Valued,
         [](Arguments &to, Value value) { takeVerifiedPath(textOf(value), to); }},
        {"--dry-run", Option::Switch, [](Arguments &to, Value) { to.options.dryRun = true; }},
        {"--jobs", Option::Valued,
         [](Arguments &to, Value value) { to.jobs = parseWhole(textOf(value), 1, kMaxJobs); }},
        {"--flush", Option::Valued,
         [](Arguments &to, Value value) {
             to.options.flush =
                 chosen<Flush>(textOf(value), {{QLatin1StringView("always"), Flush::Always},
                                               {QLatin1StringView("never"), Flush::Never}});
         }},
        {"--compress", Option::Valued,
         [](Arguments &to, Value value) { takeCompression(textOf(value), to.options); }},
        {"--compress-grey", Option::Switch,
         [](Arguments &to, Value) { to.options.compressGrey = true; }},
    };
    return options;
}

const std::vector<Option> &documentOptions() {
    using Value = const QByteArray &;
    static const std::vector<Option> options{
        {"--title", Option::Valued,
         [](Arguments &to, Value value) { to.options.info.title = textOf(value); }},
        {"--author", Option::Valued,
         [](Arguments &to, Value value) { to.options.info.author = textOf(value); }},
        {"--subject", Option::Valued,
         [](Arguments &to, Value value) { to.options.info.subject = textOf(value); }},
        {"--keywords", Option::Valued,
         [](Arguments &to, Value value) { to.options.info.keywords = textOf(value); }},
        {"--bookmarks", Option::Valued,
         [](Arguments &to, Value value) {
             to.options.bookmarks = chosen<Bookmarks>(
                 textOf(value), {{QLatin1StringView("sources"), Bookmarks::Sources},
                                 {QLatin1StringView("files"), Bookmarks::Files},
                                 {QLatin1StringView("both"), Bookmarks::Both},
                                 {QLatin1StringView("none"), Bookmarks::None}});
         }},
        {"--bookmark-titles", Option::Valued,
         [](Arguments &to, Value value) { to.bookmarkTitleFile = value; }},
        {"--keep-info", Option::Switch, [](Arguments &to, Value) { to.options.keepInfo = true; }},
        {"--user-password-file", Option::Valued,
         [](Arguments &to, Value value) { to.userPasswordFile = value; }},
        {"--owner-password-file", Option::Valued,
         [](Arguments &to, Value value) { to.ownerPasswordFile = value; }},
        {"--refuse-print", Option::Switch,
         [](Arguments &to, Value) { to.options.security.refusePrint = true; }},
        {"--refuse-copy", Option::Switch,
         [](Arguments &to, Value) { to.options.security.refuseCopy = true; }},
    };
    return options;
}

const std::vector<Option> &pageOptions() {
    using Value = const QByteArray &;
    static const std::vector<Option> options{
        {"--text-page-size", Option::Valued,
         [](Arguments &to, Value value) {
             parseTextPageSize(textOf(value), to.options.textPage, to.rounded);
         }},
        {"--text-margins", Option::Valued,
         [](Arguments &to, Value value) {
             to.options.textPage.margins = parseMargins(textOf(value), to.rounded);
         }},
        {"--image-page-size", Option::Valued,
         [](Arguments &to, Value value) {
             parseImagePageSize(textOf(value), to.options.imagePage, to.rounded);
         }},
        {"--image-margins", Option::Valued,
         [](Arguments &to, Value value) {
             to.options.imagePage.margins = parseMargins(textOf(value), to.rounded);
         }},
        {"--image-orientation", Option::Valued,
         [](Arguments &to, Value value) {
             to.options.imageLayout.orientation = chosen<PageOrientation>(
                 textOf(value), {{QLatin1StringView("auto"), PageOrientation::Auto},
                                 {QLatin1StringView("portrait"), PageOrientation::Portrait},
                                 {QLatin1StringView("landscape"), PageOrientation::Landscape}});
         }},
        {"--image-fit", Option::Valued,
         [](Arguments &to, Value value) {
             to.options.imageLayout.fit =
                 chosen<ImageFit>(textOf(value), {{QLatin1StringView("within"), ImageFit::Within},
                                                  {QLatin1StringView("fill"), ImageFit::Fill},
                                                  {QLatin1StringView("shrink"), ImageFit::Shrink}});
         }},
        {"--image-dpi", Option::Valued,
         [](Arguments &to, Value value) {
             to.options.imageLayout.unstatedDpi = parseWhole(textOf(value), kLeastDpi, kMaxDpi);
         }},
        {"--image-pages", Option::Valued,
         [](Arguments &to, Value value) {
             to.options.allPictures =
                 chosen<bool>(textOf(value), {{QLatin1StringView("first"), false},
                                              {QLatin1StringView("all"), true}});
         }},
        {"--strip-metadata", Option::Switch,
         [](Arguments &to, Value) { to.options.stripMetadata = true; }},
    };
    return options;
}

const std::vector<Option> &reportOptions() {
    using Value = const QByteArray &;
    static const std::vector<Option> options{
        {"--progress", Option::Valued,
         [](Arguments &to, Value value) {
             to.progress = chosen<ProgressMode>(
                 textOf(value), {{QLatin1StringView("auto"), ProgressMode::Auto},
                                 {QLatin1StringView("always"), ProgressMode::Always},
                                 {QLatin1StringView("never"), ProgressMode::Never}});
         }},
        {"--json", Option::Switch, [](Arguments &to, Value) { to.json = true; }},
        {"--manifest", Option::Valued,
         [](Arguments &to, Value value) { to.manifest = parseNewFile(textOf(value)); }},
        {"--quiet", Option::Switch, [](Arguments &to, Value) { to.quiet = true; }},
        {"--strict", Option::Switch, [](Arguments &to, Value) { to.strict = true; }},
        {"--completion", Option::Valued,
         [](Arguments &to, Value value) {
             to.request = Request::ShowCompletion;
             to.shell = chosen<Shell>(textOf(value), {{QLatin1StringView("bash"), Shell::Bash},
                                                      {QLatin1StringView("zsh"), Shell::Zsh},
                                                      {QLatin1StringView("fish"), Shell::Fish}});
         }},
        {"--version", Option::Switch,
         [](Arguments &to, Value) { to.request = Request::ShowVersion; }},
        {"--help", Option::Switch, [](Arguments &to, Value) { to.request = Request::ShowHelp; }},
        {"-h", Option::Switch, [](Arguments &to, Value) { to.request = Request::ShowHelp; }},
    };
    return options;
}

std::array<const std::vector<Option> *, 8> groups() {
    return {&inputOptions(),   &outputOptions(), &documentOptions(), &accessibilityOptions(),
            &archiveOptions(), &pageOptions(),   &textOptions(),     &reportOptions()};
}

} // namespace

QByteArrayList optionNames() {
    QByteArrayList names;
    for (const auto *group : groups()) {
        for (const Option &option : *group) {
            names += option.name.toByteArray();
        }
    }
    return names;
}

bool isOption(const QByteArray &argument) {
    return optionNames().contains(argument.split('=').first());
}

const Option &findOption(const QByteArray &name) {
    for (const auto *group : groups()) {
        for (const Option &option : *group) {
            if (option.name == name) {
                return option;
            }
        }
    }
    QStringList meant;
    for (const QByteArray &option : namesLike(name, optionNames())) {
        meant += u"\"%1\""_s.arg(QLatin1StringView(option));
    }
    const QString hint =
        meant.isEmpty() ? QString() : u"; is %1 meant?"_s.arg(meant.join(u" or "_s));
    throw ArgumentFault(u"There is no option \"%1\"%2"_s.arg(QString::fromUtf8(name), hint));
}

} // namespace folioforge
