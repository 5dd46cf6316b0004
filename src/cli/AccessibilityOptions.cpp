// SPDX-License-Identifier: Apache-2.0

#include "cli/AccessibilityOptions.h"

#include "cli/OptionValues.h"
#include "convert/ConversionOptions.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// A language tag as RFC 3066 has it, which all of BCP 47 are. Throws ArgumentFault.
QString parseLanguage(const QString &text) {
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(u"[A-Za-z]{1,8}(-[A-Za-z0-9]{1,8})*"_s));
    if (!form.match(text).hasMatch()) {
        throw ArgumentFault(u"\"%1\" is no language such as en, de-CH or zh-Hant"_s.arg(text));
    }
    return text;
}

/// The descriptions of --alt-file. Throws ArgumentFault.
PictureDescriptions readDescriptions(const QByteArray &file) {
    PictureDescriptions descriptions;
    int number = 0;
    for (const QString &line : textContentsOf(file, "--alt-file"_L1).split(u'\n')) {
        ++number;
        const qsizetype tab = line.indexOf(u'\t');
        const QString name = line.first(std::max<qsizetype>(tab, 0));
        const QString description = line.sliced(tab + 1).trimmed();
        if (line.trimmed().isEmpty()) {
            continue;
        }
        if (name.isEmpty() || description.isEmpty()) {
            throw ArgumentFault(
                u"--alt-file: line %1 is not a name, a tab and a description"_s.arg(number));
        }
        descriptions.add(name, description);
    }
    return descriptions;
}

} // namespace

const std::vector<Option> &accessibilityOptions() {
    using Value = const QByteArray &;
    static const std::vector<Option> options{
        {"--tagged", Option::Switch, [](Arguments &to, Value) { to.options.tagged = true; }},
        {"--accessible", Option::Switch,
         [](Arguments &to, Value) { to.options.accessible = true; }},
        {"--lang", Option::Valued,
         [](Arguments &to, Value value) { to.options.language = parseLanguage(textOf(value)); }},
        {"--alt-file", Option::Valued,
         [](Arguments &to, Value value) {
             to.altFile = value;
             to.options.tagged = true;
         }},
    };
    return options;
}

void prepareTags(Arguments &arguments) {
    QString &language = arguments.options.language;
    if (language.isEmpty()) {
        language = systemLanguage();
    }
    if (arguments.altFile) {
        arguments.options.descriptions = readDescriptions(*arguments.altFile);
    }
}

} // namespace folioforge
