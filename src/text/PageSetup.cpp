// SPDX-License-Identifier: Apache-2.0

#include "text/PageSetup.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <limits>

namespace folioforge {
namespace {

enum class Target { Text, Image };
enum class Axis { Width, Height };

/// The settings of a kind of pages; the margins in the order in which they are checked.
struct PageSettings {
    Setting width;
    Setting height;
    std::array<Setting, 4> margins;
};

PageSettings settingsOf(Target target) {
    using enum Setting;
    return target == Target::Text
               ? PageSettings{TextWidth, TextHeight, {TextTop, TextLeft, TextBottom, TextRight}}
               : PageSettings{
                     ImageWidth, ImageHeight, {ImageTop, ImageLeft, ImageBottom, ImageRight}};
}

Notice alertInvalidPageMargin(Target target, Setting margin) {
    return notice(target == Target::Text
                      ? QCoreApplication::translate(
                            "PageSetup", "Invalid page margin value in text output setting.")
                      : QCoreApplication::translate(
                            "PageSetup", "Invalid page margin value in image output setting."),
                  margin);
}

/// Leads to the size where it can be changed, else to the first margin.
Notice alertInvalidPageSize(Target target, Axis axis, bool isCustom) {
    const PageSettings settings = settingsOf(target);
    const bool isWidth = axis == Axis::Width;
    QString words;
    if (target == Target::Text) {
        words = isWidth ? QCoreApplication::translate(
                              "PageSetup", "The value of page margin is larger than page width, "
                                           "please modify your text output setting.")
                        : QCoreApplication::translate(
                              "PageSetup", "The value of page margin is larger than page height, "
                                           "please modify your text output setting.");
    } else {
        words = isWidth ? QCoreApplication::translate(
                              "PageSetup", "The value of page margin is larger than page width, "
                                           "please modify your image output setting.")
                        : QCoreApplication::translate(
                              "PageSetup", "The value of page margin is larger than page height, "
                                           "please modify your image output setting.");
    }
    const Setting size = isWidth ? settings.width : settings.height;
    const Setting margin = settings.margins[isWidth ? 1 : 0];
    return notice(words, isCustom ? size : margin);
}

/// Negative margins wrap to large unsigned numbers and fail with the same test.
bool isValidMargin(qint64 margin) {
    return static_cast<quint64>(margin) <= quint64{kMaxMargin};
}

std::optional<Notice> checkMargins(const PageMargins &margins, Target target) {
    const std::array values{margins.top, margins.left, margins.bottom, margins.right};
    const auto invalid =
        std::ranges::find_if(values, [](qint64 margin) { return !isValidMargin(margin); });
    if (invalid == values.end()) {
        return std::nullopt;
    }
    const auto place = static_cast<std::size_t>(invalid - values.begin());
    return alertInvalidPageMargin(target, settingsOf(target).margins.at(place));
}

std::optional<Notice> checkRoomBetweenMargins(const PageMargins &margins, QSizeF size,
                                              Target target, bool isCustom) {
    if (static_cast<double>(margins.left + margins.right) >= size.width()) {
        return alertInvalidPageSize(target, Axis::Width, isCustom);
    }
    if (static_cast<double>(margins.top + margins.bottom) >= size.height()) {
        return alertInvalidPageSize(target, Axis::Height, isCustom);
    }
    return std::nullopt;
}

QSizeF customSize(const PageSetup &setup) {
    return {static_cast<double>(setup.customWidth), static_cast<double>(setup.customHeight)};
}

} // namespace

qint64 integerValue(QStringView text) {
    text = text.trimmed();
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+')) {
        text = text.sliced(1);
    }
    constexpr quint64 kMax = std::numeric_limits<qint64>::max();
    const quint64 limit = negative ? kMax + 1 : kMax;
    quint64 value = 0;
    for (const QChar unit : text) {
        if (unit < u'0' || unit > u'9') {
            break;
        }
        const quint64 digit = unit.unicode() - u'0';
        value = value > (limit - digit) / 10 ? limit : value * 10 + digit;
    }
    return static_cast<qint64>(negative ? 0 - value : value);
}

QSizeF getTextPageSize(const PageSetup &setup) {
    switch (setup.sizeMode) {
    case TextPageA3:
        return {842, 1191};
    case TextPageA4:
        return {595, 842};
    case TextPageA5:
        return {420, 595};
    case TextPageCustom:
        return customSize(setup);
    default:
        return {0, 0};
    }
}

QSizeF getImagePageSize(const PageSetup &setup) {
    return setup.sizeMode == ImagePageCustom ? customSize(setup) : QSizeF(0, 0);
}

std::optional<Notice> checkTextPageSizeSettings(const PageSetup &setup) {
    if (auto invalid = checkMargins(setup.margins, Target::Text)) {
        return invalid;
    }
    return checkRoomBetweenMargins(setup.margins, getTextPageSize(setup), Target::Text,
                                   setup.sizeMode == TextPageCustom);
}

std::optional<Notice> checkImagePageSizeSettings(const PageSetup &setup) {
    if (auto invalid = checkMargins(setup.margins, Target::Image)) {
        return invalid;
    }
    if (setup.sizeMode != ImagePageCustom) {
        return std::nullopt;
    }
    return checkRoomBetweenMargins(setup.margins, getImagePageSize(setup), Target::Image, true);
}

} // namespace folioforge
