// SPDX-License-Identifier: Apache-2.0

#include "cli/TextOptions.h"

#include "cli/OptionValues.h"
#include "text/FontCatalog.h"
#include "text/TextEncoding.h"
#include "text/readable/MarginText.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

QStringList parseFamilies(const QString &text) {
    QStringList families;
    for (const QString &family : text.split(u',')) {
        families += family.trimmed();
    }
    if (families.contains(QString())) {
        throw ArgumentFault(u"\"%1\" has an empty name"_s.arg(text));
    }
    return families;
}

/// The text of a header or a footer. Throws ArgumentFault where it names what is not known.
QString parseMarginText(const QString &text) {
    if (const QString unknown = unknownPlaceholder(text); !unknown.isEmpty()) {
        throw ArgumentFault(u"\"%1\" is none of %2"_s.arg(unknown, placeholders().join(u", "_s)));
    }
    return text;
}

/// Throws ArgumentFault where no row stands in the margin of a header or a footer, or beside it.
void requireRoom(QLatin1StringView option, const QString &text, qint64 margin,
                 const ConversionOptions &options) {
    const double row = options.textFont->rowHeight();
    const PageMargins &margins = options.textPage.margins;
    const double rest = getTextPageSize(options.textPage).height() -
                        static_cast<double>(margins.top + margins.bottom);
    if (!text.isEmpty() && std::min(static_cast<double>(margin), rest) < row) {
        throw ArgumentFault(
            u"%1: A row is %2 points high; its margin has %3, and the margins leave "
            "%4 for the text"_s.arg(option)
                .arg(row, 0, 'f', 1)
                .arg(margin)
                .arg(rest));
    }
}

/// Throws ArgumentFault where the plain layout is asked for what only the other has.
void requireReadable(const TextArguments &text) {
    const std::array<std::pair<QLatin1StringView, bool>, 6> given{
        {{"--font"_L1, !text.families.isEmpty()},
         {"--font-size"_L1, text.fontSize.has_value()},
         {"--line-spacing"_L1, text.lineSpacing.has_value()},
         {"--tab-width"_L1, text.tabWidth.has_value()},
         {"--header"_L1, text.header.has_value()},
         {"--footer"_L1, text.footer.has_value()}}};
    for (const auto &[option, isGiven] : given) {
        if (isGiven) {
            throw ArgumentFault(u"%1 needs --text-layout=readable"_s.arg(option));
        }
    }
}

} // namespace

const std::vector<Option> &textOptions() {
    using Value = const QByteArray &;
    static const std::vector<Option> options{
        {"--as-text", Option::Switch, [](Arguments &to, Value) { to.taking.further.texts = true; }},
        {"--text-encoding", Option::Valued,
         [](Arguments &to, Value value) {
             to.options.textEncoding = textOf(value);
             if (!isTextEncoding(to.options.textEncoding)) {
                 throw ArgumentFault(u"There is no encoding \"%1\""_s.arg(to.options.textEncoding));
             }
         }},
        {"--text-layout", Option::Valued,
         [](Arguments &to, Value value) {
             to.text.isReadable =
                 chosen<bool>(textOf(value), {{QLatin1StringView("plain"), false},
                                              {QLatin1StringView("readable"), true}});
         }},
        {"--font", Option::Valued,
         [](Arguments &to, Value value) { to.text.families = parseFamilies(textOf(value)); }},
        {"--font-size", Option::Valued,
         [](Arguments &to, Value value) {
             to.text.fontSize = parseNumber(textOf(value), 1, 1000);
         }},
        {"--line-spacing", Option::Valued,
         [](Arguments &to, Value value) {
             to.text.lineSpacing = parseNumber(textOf(value), 0.5, 10);
         }},
        {"--tab-width", Option::Valued,
         [](Arguments &to, Value value) { to.text.tabWidth = parseNumber(textOf(value), 1, 100); }},
        {"--header", Option::Valued,
         [](Arguments &to, Value value) { to.text.header = parseMarginText(textOf(value)); }},
        {"--footer", Option::Valued,
         [](Arguments &to, Value value) { to.text.footer = parseMarginText(textOf(value)); }},
    };
    return options;
}

void prepareText(Arguments &arguments) {
    const TextArguments &text = arguments.text;
    if (!text.isReadable) {
        requireReadable(text);
        return;
    }
    if (const QStringList missing = missingFamilies(text.families); !missing.isEmpty()) {
        throw ArgumentFault(u"--font: the system has no font \"%1\""_s.arg(missing.front()));
    }
    constexpr double kUsualSize = 11;
    const QStringList families =
        text.families.isEmpty() ? QStringList{u"Arial Unicode MS"_s} : text.families;
    ConversionOptions &options = arguments.options;
    options.textFont = FontCascade::load(families, text.fontSize.value_or(kUsualSize));
    options.readable.emplace();
    options.readable->lineSpacing = text.lineSpacing.value_or(options.readable->lineSpacing);
    options.readable->tabWidth = text.tabWidth.value_or(options.readable->tabWidth);
    options.readable->header = text.header.value_or(QString());
    options.readable->footer = text.footer.value_or(QString());
    const PageMargins &margins = options.textPage.margins;
    requireRoom("--header"_L1, options.readable->header, margins.top, options);
    requireRoom("--footer"_L1, options.readable->footer, margins.bottom, options);
}

} // namespace folioforge
