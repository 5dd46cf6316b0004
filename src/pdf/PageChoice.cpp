// SPDX-License-Identifier: Apache-2.0

#include "pdf/PageChoice.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace folioforge {

std::optional<QByteArray> pageRange(const QByteArray &text) {
    static const QRegularExpression syntax(
        u"^((?:r?[0-9]{1,9}|z)(?:-(?:r?[0-9]{1,9}|z))?)(,(?1))*([:,](?:odd|even))?$"_s);
    QByteArray range = text;
    if (range == "odd" || range == "even") {
        range.prepend("1-z:");
    }
    if (!syntax.match(QString::fromLatin1(range)).hasMatch()) {
        return std::nullopt;
    }
    return range.replace(",odd", ":odd").replace(",even", ":even");
}

std::optional<PageTurn> pageTurn(const QByteArray &text) {
    const qsizetype colon = text.indexOf(':');
    const QByteArray angle = colon < 0 ? text : text.first(colon);
    const auto range = colon < 0 ? QByteArray() : pageRange(text.sliced(colon + 1));
    const bool isSigned = angle.startsWith('+') || angle.startsWith('-');
    bool isNumber = false;
    const int degrees = (isSigned ? angle.sliced(1) : angle).toInt(&isNumber);
    if (!range || !isNumber || degrees < 0 || degrees > 270 || degrees % 90 != 0 ||
        (isSigned && !QByteArrayView("0123456789").contains(angle.back()))) {
        return std::nullopt;
    }
    return PageTurn{angle.startsWith('-') ? -degrees : degrees, isSigned, *range};
}

} // namespace folioforge
