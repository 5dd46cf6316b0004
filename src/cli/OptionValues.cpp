// SPDX-License-Identifier: Apache-2.0

#include "cli/OptionValues.h"

#include "text/TextDecoder.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

/// A whole number with an optional sign and nothing else. The checks of the settings refuse numbers
/// that no page can have.
qint64 wholeNumber(QStringView text, const QString &fault) {
    QStringView digits = text;
    if (digits.startsWith(u'-') || digits.startsWith(u'+')) {
        digits = digits.sliced(1);
    }
    const auto isDigit = [](QChar unit) { return unit >= u'0' && unit <= u'9'; };
    if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), isDigit)) {
        throw ArgumentFault(fault);
    }
    return integerValue(text);
}

void takeCustomSize(const QString &text, int customMode, const QString &fault, PageSetup &setup) {
    const QStringList sides = text.split(u'x', Qt::KeepEmptyParts, Qt::CaseInsensitive);
    if (sides.size() != 2) {
        throw ArgumentFault(fault);
    }
    setup.sizeMode = customMode;
    setup.customWidth = wholeNumber(sides[0], fault);
    setup.customHeight = wholeNumber(sides[1], fault);
}

} // namespace

QString textOf(const QByteArray &bytes) {
    QString text = decodeText(bytes);
    if (text.isNull()) {
        throw ArgumentFault(u"\"%1\" is not valid UTF-8"_s.arg(QString::fromUtf8(bytes)));
    }
    return text;
}

PageMargins parseMargins(const QString &text) {
    const QString fault = u"\"%1\" is neither one whole number nor four as T,R,B,L"_s.arg(text);
    const QStringList numbers = text.split(u',');
    if (numbers.size() == 1) {
        const qint64 all = wholeNumber(text, fault);
        return {all, all, all, all};
    }
    constexpr qsizetype kSides = 4;
    if (numbers.size() != kSides) {
        throw ArgumentFault(fault);
    }
    return {.left = wholeNumber(numbers[3], fault),
            .right = wholeNumber(numbers[1], fault),
            .top = wholeNumber(numbers[0], fault),
            .bottom = wholeNumber(numbers[2], fault)};
}

void parseTextPageSize(const QString &text, PageSetup &setup) {
    constexpr std::array<std::pair<QLatin1StringView, int>, 3> kPapers{
        {{QLatin1StringView("A3"), TextPageA3},
         {QLatin1StringView("A4"), TextPageA4},
         {QLatin1StringView("A5"), TextPageA5}}};
    for (const auto &[paper, mode] : kPapers) {
        if (text.compare(paper, Qt::CaseInsensitive) == 0) {
            setup.sizeMode = mode;
            return;
        }
    }
    takeCustomSize(text, TextPageCustom,
                   u"\"%1\" is none of A3, A4, A5 and no size as WxH"_s.arg(text), setup);
}

void parseImagePageSize(const QString &text, PageSetup &setup) {
    if (text == u"image") {
        setup.sizeMode = ImagePageFollowsImage;
        return;
    }
    takeCustomSize(text, ImagePageCustom,
                   u"\"%1\" is neither \"image\" nor a size as WxH"_s.arg(text), setup);
}

} // namespace folioforge
