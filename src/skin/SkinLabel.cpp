// SPDX-License-Identifier: Apache-2.0

#include "skin/SkinLabel.h"

#include <QFont>
#include <QGuiApplication>
#include <QPainterPath>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace folioforge {
namespace {

constexpr double kGap = 7;            ///< Between picture and words, in points.
constexpr double kSide = 14;          ///< Beside both, where a skin grows.
constexpr double kLeastSide = 7;      ///< Where it does not.
constexpr double kPrimaryHeight = 44; ///< Of the button whose words are larger.

QFont fontOf(double height) {
    const bool isPrimary = height >= kPrimaryHeight;
    QFont font = QGuiApplication::font();
    font.setPixelSize(isPrimary ? 17 : 13);
    font.setWeight(isPrimary ? QFont::DemiBold : QFont::Normal);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QString outline(const QPainterPath &path) {
    QString data;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element point = path.elementAt(i);
        if (point.isMoveTo()) {
            data += i == 0 ? u"M"_s : u"zM"_s;
        } else if (point.isLineTo()) {
            data += u'L';
        } else {
            data += point.type == QPainterPath::CurveToElement ? u'C' : u' ';
        }
        data += QString::number(point.x, 'f', 2) + u' ' + QString::number(point.y, 'f', 2);
    }
    return data + u'z';
}

} // namespace

QByteArray withLabel(const QByteArray &svg, const QString &label, SkinWidth width) {
    // As resources/skins/drawskins.cpp writes it: size, ground, picture, words.
    static const QRegularExpression form(
        uR"re(^<svg(.*?) width="(\d+)" height="(\d+)"[^>]*>(\s*<rect[^>]*? width=")\d+)re"
        uR"re(("[^>]*>\s*<g transform="translate\()([\d.]+)(.*)<path aria-label="([^"]*)" )re"
        uR"re(transform="translate\(([\d.]+) ([\d.]+)\)" fill="([^"]*)")re"_s,
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch found = form.match(QString::fromUtf8(svg));
    if (!found.hasMatch() || label.isEmpty() || found.captured(8) == label) {
        return svg;
    }
    const double oldWidth = found.captured(2).toDouble();
    const QString height = found.captured(3);
    const double picture = found.captured(9).toDouble() - found.captured(6).toDouble();
    QPainterPath words;
    words.addText(0, 0, fontOf(height.toDouble()), label);
    const QRectF box = words.boundingRect();

    const double natural = std::ceil(picture + box.width() + 2 * kSide);
    const double newWidth = width == SkinWidth::Grows ? std::max(oldWidth, natural) : oldWidth;
    const double scale = std::min(1.0, (newWidth - 2 * kLeastSide - picture) / box.width());
    const double room = box.width() * scale;
    const double start = (newWidth - picture - room) / 2;
    const bool mirrored = QGuiApplication::isRightToLeft();
    const double pictureAt = mirrored ? start + room + kGap : start;
    const double wordsAt = (mirrored ? start : start + picture) - box.left() * scale;
    const auto number = [](double value) { return QString::number(value, 'f', 2); };
    const QString ground = found.captured(4) + number(newWidth - 1) + found.captured(5) +
                           number(pictureAt) + found.captured(7);
    const QString drawn =
        u"<path transform=\"translate(%1 %2) scale(%3)\" fill=\"%4\" d=\"%5\"/>"_s.arg(
            number(wordsAt), found.captured(10), number(scale), found.captured(11), outline(words));
    return u"<svg%1 width=\"%2\" height=\"%3\" viewBox=\"0 0 %2 %3\">%4%5</svg>"_s
        .arg(found.captured(1), number(newWidth), height, ground, drawn)
        .toUtf8();
}

} // namespace folioforge
