// SPDX-License-Identifier: Apache-2.0

#include "cli/Lengths.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr double kPointsPerInch = 72;
constexpr double kPointsPerMillimetre = kPointsPerInch / 25.4;

/// Millimetres.
struct Sheet {
    int width;
    int height;
};

/// `number` halvings of `sheet`, each across its longer side and rounded down (ISO 216).
QSizeF halved(Sheet sheet, int number) {
    for (; number > 0; --number) {
        sheet = {sheet.height / 2, sheet.width};
    }
    return QSizeF(sheet.width, sheet.height) * kPointsPerMillimetre;
}

constexpr int kSmallestIso = 10; // A10 and B10.

/// "A4" and the like; nothing where `name` is none.
std::optional<QSizeF> isoSize(QStringView name) {
    bool isNumber = false;
    const int number = name.sliced(1).toInt(&isNumber);
    const bool isPlain = isNumber && name[1].isDigit() && (name.size() == 2) == (number < 10);
    if (!isPlain || number > kSmallestIso) {
        return std::nullopt;
    }
    switch (name[0].toUpper().unicode()) {
    case u'A':
        return halved({841, 1189}, number);
    case u'B':
        return halved({1000, 1414}, number);
    default:
        return std::nullopt;
    }
}

constexpr std::pair<double, double> inMillimetres(double width, double height) {
    return {width * kPointsPerMillimetre, height * kPointsPerMillimetre};
}

constexpr std::pair<double, double> inInches(double width, double height) {
    return {width * kPointsPerInch, height * kPointsPerInch};
}

/// Papers beside those of ISO 216, also by the names that img2pdf has for them.
constexpr std::array<std::pair<QLatin1StringView, std::pair<double, double>>, 10> kPapers{
    {{QLatin1StringView("C5"), inMillimetres(162, 229)},
     {QLatin1StringView("DL"), inMillimetres(110, 220)},
     {QLatin1StringView("JIS-B4"), inMillimetres(257, 364)},
     {QLatin1StringView("JIS-B5"), inMillimetres(182, 257)},
     {QLatin1StringView("JB4"), inMillimetres(257, 364)},
     {QLatin1StringView("JB5"), inMillimetres(182, 257)},
     {QLatin1StringView("Letter"), inInches(8.5, 11)},
     {QLatin1StringView("Legal"), inInches(8.5, 14)},
     {QLatin1StringView("Tabloid"), inInches(11, 17)},
     {QLatin1StringView("Executive"), inInches(7.25, 10.5)}}};

std::optional<QSizeF> portraitSize(QStringView name) {
    const auto *const found = std::ranges::find_if(kPapers, [&](const auto &paper) {
        return name.compare(paper.first, Qt::CaseInsensitive) == 0;
    });
    if (found != kPapers.end()) {
        return QSizeF(found->second.first, found->second.second);
    }
    return name.size() == 2 || name.size() == 3 ? isoSize(name) : std::nullopt;
}

/// Digits with at most one point among or beside them, behind a sign or none.
bool isDecimal(QStringView text) {
    if (text.startsWith(u'-') || text.startsWith(u'+')) {
        text = text.sliced(1);
    }
    const auto isDigit = [](QChar unit) { return unit >= u'0' && unit <= u'9'; };
    return std::ranges::any_of(text, isDigit) && text.count(u'.') <= 1 &&
           std::ranges::all_of(text, [&](QChar unit) { return isDigit(unit) || unit == u'.'; });
}

} // namespace

std::optional<double> pointsOf(QStringView text) {
    static constexpr std::array<std::pair<QLatin1StringView, double>, 4> kUnits{
        {{QLatin1StringView("pt"), 1},
         {QLatin1StringView("mm"), kPointsPerMillimetre},
         {QLatin1StringView("cm"), 10 * kPointsPerMillimetre},
         {QLatin1StringView("in"), kPointsPerInch}}};
    double unit = 1;
    for (const auto &[name, points] : kUnits) {
        if (text.endsWith(name, Qt::CaseInsensitive)) {
            unit = points;
            text.chop(name.size());
            break;
        }
    }
    return isDecimal(text) ? std::optional(text.toDouble() * unit) : std::nullopt;
}

QStringView unitOf(QStringView text) {
    qsizetype start = text.size();
    while (start > 0 && text[start - 1].isLetter()) {
        --start;
    }
    return text.sliced(start);
}

qint64 wholePoints(double points) {
    constexpr auto kLimit = static_cast<double>(std::numeric_limits<qint64>::max());
    if (points >= kLimit) {
        return std::numeric_limits<qint64>::max();
    }
    return points <= -kLimit ? std::numeric_limits<qint64>::min() : std::llround(points);
}

QByteArrayList paperNames() {
    QByteArrayList names;
    for (const char series : {'A', 'B'}) {
        for (int number = 0; number <= kSmallestIso; ++number) {
            names += series + QByteArray::number(number);
        }
    }
    for (const auto &paper : kPapers) {
        names += QByteArray(paper.first.data(), paper.first.size());
    }
    return names;
}

std::optional<QSizeF> paperSize(QStringView name) {
    for (const auto &turned : {u"^T"_s, u"-landscape"_s}) {
        if (name.endsWith(turned, Qt::CaseInsensitive)) {
            const auto portrait = portraitSize(name.chopped(turned.size()));
            return portrait ? std::optional(portrait->transposed()) : std::nullopt;
        }
    }
    return portraitSize(name);
}

} // namespace folioforge
