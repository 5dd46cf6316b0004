// SPDX-License-Identifier: Apache-2.0

#include "cli/TextOptions.h"

#include "cli/OptionValues.h"
#include "text/FontCatalog.h"
#include "text/TextEncoding.h"

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

} // namespace

const std::vector<Option> &textOptions() {
    using Value = const QByteArray &;
    static const std::vector<Option> options{
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
    };
    return options;
}

void prepareText(Arguments &arguments) {
    const TextArguments &text = arguments.text;
    if (!text.isReadable) {
        if (!text.families.isEmpty() || text.fontSize || text.lineSpacing || text.tabWidth) {
            throw ArgumentFault(
                u"--font, --font-size, --line-spacing and --tab-width need --text-layout=readable"_s);
        }
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
}

} // namespace folioforge
