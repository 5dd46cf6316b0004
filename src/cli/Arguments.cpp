// SPDX-License-Identifier: Apache-2.0

#include "cli/Arguments.h"

#include "cli/OptionValues.h"
#include "convert/OutputName.h"

#include <algorithm>
#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// An option with its effect; one that takes no value is called with an empty one.
struct Option {
    QByteArrayView name;
    enum Kind { Switch, Valued } kind;
    std::function<void(Arguments &, const QByteArray &)> apply;
};

/// Splits the path of the merged file; a name alone stands in the current folder. Throws
/// ArgumentFault where the path leads to a folder.
void takeMergePath(const QString &path, ConversionOptions &options) {
    const qsizetype slash = path.lastIndexOf(u'/');
    options.merge = true;
    options.outputName = path.sliced(slash + 1);
    if (isNameOfFolder(options.outputName)) {
        throw ArgumentFault(u"\"%1\" is a folder, not the name of a PDF"_s.arg(path));
    }
    options.outputFolder = slash < 0 ? u"."_s : path.first(std::max<qsizetype>(slash, 1));
}

const std::vector<Option> &outputOptions() {
    using Value = const QByteArray &;
    static const std::vector<Option> options{
        {"--output-folder", Option::Valued,
         [](Arguments &to, Value value) { to.options.outputFolder = textOf(value); }},
        {"--merge", Option::Valued,
         [](Arguments &to, Value value) { takeMergePath(textOf(value), to.options); }},
        {"--flush", Option::Valued,
         [](Arguments &to, Value value) {
             to.options.flush =
                 chosen<Flush>(textOf(value), {{QLatin1StringView("always"), Flush::Always},
                                               {QLatin1StringView("never"), Flush::Never}});
         }},
        {"--compress", Option::Valued,
         [](Arguments &to, Value value) {
             to.options.compressIndex = chosen<int>(textOf(value), {{QLatin1StringView("none"), 0},
                                                                    {QLatin1StringView("150m"), 1},
                                                                    {QLatin1StringView("96m"), 2},
                                                                    {QLatin1StringView("72l"), 3}});
         }},
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
             to.options.imageLayout.unstatedDpi = parseDensity(textOf(value));
         }},
        {"--strip-metadata", Option::Switch,
         [](Arguments &to, Value) { to.options.stripMetadata = true; }},
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
        {"--quiet", Option::Switch, [](Arguments &to, Value) { to.quiet = true; }},
        {"--strict", Option::Switch, [](Arguments &to, Value) { to.strict = true; }},
        {"--version", Option::Switch,
         [](Arguments &to, Value) { to.request = Request::ShowVersion; }},
        {"--help", Option::Switch, [](Arguments &to, Value) { to.request = Request::ShowHelp; }},
        {"-h", Option::Switch, [](Arguments &to, Value) { to.request = Request::ShowHelp; }},
    };
    return options;
}

const Option &findOption(const QByteArray &name) {
    for (const auto *group :
         {&outputOptions(), &documentOptions(), &pageOptions(), &reportOptions()}) {
        for (const Option &option : *group) {
            if (option.name == name) {
                return option;
            }
        }
    }
    throw ArgumentFault(u"There is no option \"%1\""_s.arg(QString::fromUtf8(name)));
}

/// Takes arguments one by one off the front.
class ArgumentReader {
  public:
    explicit ArgumentReader(std::span<const QByteArray> arguments)
        : m_rest(arguments) {}

    Arguments read() {
        while (!m_rest.empty()) {
            const QByteArray argument = take();
            if (argument == "--") {
                m_result.inputs.insert(m_result.inputs.end(), m_rest.begin(), m_rest.end());
                break;
            }
            if (argument.startsWith('-') && argument.size() > 1) {
                applyOption(argument);
            } else {
                m_result.inputs.push_back(argument);
            }
        }
        completeOutput();
        return std::move(m_result);
    }

  private:
    QByteArray take() {
        QByteArray argument = m_rest.front();
        m_rest = m_rest.subspan(1);
        return argument;
    }

    void applyOption(const QByteArray &argument) {
        const qsizetype equals = argument.indexOf('=');
        const QByteArray name = equals < 0 ? argument : argument.first(equals);
        const Option &option = findOption(name);
        if (option.kind == Option::Switch ? equals >= 0 : equals < 0 && m_rest.empty()) {
            throw ArgumentFault((option.kind == Option::Switch
                                     ? u"The option \"%1\" takes no value"_s
                                     : u"The option \"%1\" needs a value"_s)
                                    .arg(QString::fromUtf8(name)));
        }
        QByteArray value;
        if (option.kind == Option::Valued) {
            value = equals < 0 ? take() : argument.sliced(equals + 1);
        }
        const qsizetype rounded = m_result.rounded.size();
        try {
            option.apply(m_result, value);
        } catch (const ArgumentFault &fault) {
            throw ArgumentFault(QString::fromUtf8(name) + u": "_s + fault.text());
        }
        for (qsizetype i = rounded; i < m_result.rounded.size(); ++i) {
            m_result.rounded[i].prepend(QString::fromUtf8(name) + u": "_s);
        }
        m_folderGiven |= name == "--output-folder";
    }

    /// The two ways of naming the output exclude each other; with neither it is the current folder.
    void completeOutput() {
        ConversionOptions &options = m_result.options;
        if (m_folderGiven && options.merge) {
            throw ArgumentFault(u"--output-folder and --merge cannot be used together"_s);
        }
        if (!m_folderGiven && options.outputFolder.isEmpty()) {
            options.outputFolder = u"."_s;
        }
        if (m_result.request == Request::Convert && m_result.inputs.empty()) {
            throw ArgumentFault(u"There is no file to convert"_s);
        }
    }

    std::span<const QByteArray> m_rest;
    Arguments m_result;
    bool m_folderGiven = false;
};

} // namespace

std::variant<Arguments, UsageError> parseArguments(std::span<const QByteArray> arguments) {
    try {
        return ArgumentReader(arguments).read();
    } catch (const ArgumentFault &fault) {
        return UsageError{fault.text()};
    }
}

} // namespace folioforge
